#include "slab/ui/qt/VentanaCarga.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "shell/qt/CampoNumero.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::losas::ui::qt {

VentanaCarga::VentanaCarga(CargaDeTramos& operaciones, const Separadores& separadores,
                           const programa::Tapiz& preferencias, QWidget* padre)
    : QDialog(padre),
      operaciones_(operaciones),
      separadores_(separadores),
      preferencias_(preferencias),
      marco_(new QGroupBox(programa::qt::Q(operaciones.Marco()), this)),
      formulario_(new QFormLayout(marco_)),
      encabezado_(new QLabel(this)),
      deslizador_(new QScrollBar(Qt::Horizontal, this)) {}

programa::qt::CampoNumero* VentanaCarga::Campo(const QString& rotulo, const ClaseNumero& clase) {
    auto* campo = new programa::qt::CampoNumero(clase, separadores_, marco_);
    campo->installEventFilter(this);
    connect(campo, &QLineEdit::textEdited, this, [this] { TomarCampos(); });
    formulario_->addRow(rotulo, campo);
    campos_.push_back(campo);
    return campo;
}

void VentanaCarga::Armar(const QString& titulo, QWidget* pie) {
    setObjectName(titulo);
    setWindowTitle(titulo);
    QFont fuente = encabezado_->font();
    fuente.setBold(true);
    fuente.setPointSize(fuente.pointSize() + 2);
    encabezado_->setFont(fuente);
    encabezado_->setAlignment(Qt::AlignCenter);
    deslizador_->setRange(1, static_cast<int>(operaciones_.NumeroDeTramos()));
    deslizador_->setPageStep(1);
    deslizador_->setValue(static_cast<int>(operaciones_.TramoActual()));
    deslizador_->setMinimumHeight(20);
    connect(deslizador_, &QScrollBar::valueChanged, this, [this](int tramo) { MoverA(tramo); });
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(encabezado_);
    columna->addWidget(deslizador_);
    columna->addWidget(marco_);
    if (pie != nullptr) columna->addWidget(pie);
    columna->addStretch(1);
    columna->addLayout(FilaDeBotones());
    MostrarTramo();
    programa::qt::PrepararVentana(this, preferencias_);
    campos_.front()->setFocus();
}

QLayout* VentanaCarga::FilaDeBotones() {
    auto* fijar = programa::qt::Boton("&Fijar Carga", "", this);
    auto* igualar = programa::qt::Boton("&Igualar", "", this);
    auto* cancelar = programa::qt::Boton(" Cancelar ", "", this);
    programa::qt::PonerAyuda(fijar, "Fijar Carga", "Fijar las cargas de todos los tramos. ");
    programa::qt::PonerAyuda(igualar, "Igualar", "Igualar todos los tramos a la carga seleccionada. ");
    connect(fijar, &QPushButton::clicked, this, [this] {
        if (!programa::qt::EntradasEnOrden(this)) return;
        operaciones_.Fijar();
        accept();
    });
    connect(igualar, &QPushButton::clicked, this, [this] {
        if (programa::qt::EntradasEnOrden(this) && operaciones_.Igualar()) accept();
    });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    for (QPushButton* boton : {fijar, igualar, cancelar}) boton->setAutoDefault(false);
    auto* fila = new QHBoxLayout;
    for (QPushButton* boton : {fijar, igualar, cancelar}) fila->addWidget(boton);
    return fila;
}

void VentanaCarga::MoverA(int tramo) {
    const auto actual = static_cast<int>(operaciones_.TramoActual());
    if (tramo == actual) return;
    if (!programa::qt::EntradasEnOrden(this)) return deslizador_->setValue(actual);
    operaciones_.MoverA(static_cast<std::size_t>(tramo));
    MostrarTramo();
}

void VentanaCarga::MostrarTramo() {
    encabezado_->setText(programa::qt::Q(operaciones_.Encabezado()));
    MostrarCampos();
}

bool VentanaCarga::eventFilter(QObject* objeto, QEvent* evento) {
    auto* campo = dynamic_cast<programa::qt::CampoNumero*>(objeto);
    if (campo == nullptr || evento->type() != QEvent::KeyPress) return QDialog::eventFilter(objeto, evento);
    const int tecla = static_cast<QKeyEvent*>(evento)->key();
    if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter)
        campo->Terminar();
    else if (tecla == Qt::Key_PageDown || tecla == Qt::Key_PageUp)
        deslizador_->setValue(deslizador_->value() + (tecla == Qt::Key_PageUp ? -1 : 1));
    else
        return QDialog::eventFilter(objeto, evento);
    campo->selectAll();
    return true;
}

VentanaCarga01::VentanaCarga01(Carga01& operaciones, const Separadores& separadores,
                               const programa::Tapiz& preferencias, QWidget* padre)
    : VentanaCarga(operaciones, separadores, preferencias, padre),
      operaciones_(operaciones),
      permanente_(Campo("Carga Permanente (kgf/m)  Wp =", EnteroDe32)),
      variable_(Campo("Carga Variable (kgf/m)  WV =", EnteroDe32)),
      suma_(new QLabel(this)) {
    suma_->setAlignment(Qt::AlignRight);
    suma_->setFixedWidth(permanente_->width());
    static_cast<QFormLayout*>(permanente_->parentWidget()->layout())->addRow("Carga Total (kgf/m) =", suma_);
    auto* leyenda = new QLabel(programa::qt::Q(operaciones.Leyenda()), this);
    leyenda->setWordWrap(true);
    Armar("CARGA UNIFORME", leyenda);
}

void VentanaCarga01::MostrarCampos() {
    permanente_->PonerValor(operaciones_.Actual().Wp);
    variable_->PonerValor(operaciones_.Actual().WV);
    suma_->setText(programa::qt::Q(operaciones_.Suma()));
}

void VentanaCarga01::TomarCampos() {
    operaciones_.Poner(static_cast<std::int32_t>(permanente_->Valor()),
                       static_cast<std::int32_t>(variable_->Valor()));
    suma_->setText(programa::qt::Q(operaciones_.Suma()));
}

VentanaCarga02::VentanaCarga02(Carga02& operaciones, const Separadores& separadores,
                               const programa::Tapiz& preferencias, QWidget* padre)
    : VentanaCarga(operaciones, separadores, preferencias, padre),
      operaciones_(operaciones),
      carga_(Campo("Carga Puntual (Permanente)", EnteroDe32)),
      distancia_(Campo("Distancia al Eje Izquierdo (m)  L1 =", Longitud)) {
    Armar("CARGA PUNTUAL", nullptr);
}

void VentanaCarga02::MostrarCampos() {
    carga_->PonerValor(operaciones_.Actual().p1);
    distancia_->PonerValor(operaciones_.Actual().L1);
}

void VentanaCarga02::TomarCampos() {
    operaciones_.Poner(static_cast<std::int32_t>(carga_->Valor()), distancia_->Valor());
}

}  // namespace trabex::losas::ui::qt
