#include "slab/ui/qt/VentanaNombreLosa.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>

#include "shell/qt/CampoTexto.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/VentanaRenombrar.h"

namespace trabex::losas::ui::qt {

VentanaNombreLosa::VentanaNombreLosa(const QString& titulo, Losas& losas,
                                     std::function<bool(const std::string&)> aceptar, QWidget* padre)
    : QDialog(padre), losas_(losas) {
    setObjectName("NombreLosa");
    setWindowTitle(titulo);
    auto* marco = new QGroupBox("Entre el Nombre de la Losa", this);
    auto* formulario = new QFormLayout(marco);
    nombre_ = new programa::qt::CampoTexto(programa::qt::LargoDeNombre, marco);
    nombre_->setObjectName("Nombre");
    nombre_->setMinimumWidth(320);
    nombre_->installEventFilter(this);
    formulario->addRow("Nombre:", nombre_);
    formulario->addRow("Existentes:", FilaDeExistentes());
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(marco);
    columna->addStretch(1);
    columna->addLayout(programa::qt::FilaAceptarCancelar(this, [this, aceptar = std::move(aceptar)] {
        if (aceptar(programa::qt::S(nombre_->text()))) return accept();
        nombre_->setFocus();
        nombre_->selectAll();
    }));
    programa::qt::PrepararVentana(this, losas_.Programa().Preferencias);
}

QLayout* VentanaNombreLosa::FilaDeExistentes() {
    existente_ = new QLabel(this);
    existente_->setTextFormat(Qt::PlainText);
    existente_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    existente_->setMargin(4);
    existente_->setMinimumHeight(44);
    deslizador_ = new QScrollBar(Qt::Vertical, this);
    deslizador_->setRange(1, std::max(1, losas_.Lista().NumeroDeElementos()));
    deslizador_->setPageStep(1);
    deslizador_->setEnabled(losas_.Lista().NumeroDeElementos() > 0);
    deslizador_->setValue(losas_.Lista().Fila());
    deslizador_->setMaximumHeight(44);
    connect(deslizador_, &QScrollBar::valueChanged, this, [this](int fila) {
        losas_.Lista().Seleccionar(fila);
        MostrarExistente();
    });
    MostrarExistente();
    auto* fila = new QHBoxLayout;
    fila->addWidget(existente_, 1);
    fila->addWidget(deslizador_);
    return fila;
}

void VentanaNombreLosa::MostrarExistente() {
    existente_->setText(programa::qt::Q(losas_.Estado().Abierta.Nombre));
}

/// The arrows walk the slabs while the name is being typed.
bool VentanaNombreLosa::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == nombre_ && evento->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        if (tecla == Qt::Key_Up || tecla == Qt::Key_Down) {
            deslizador_->setValue(deslizador_->value() + (tecla == Qt::Key_Up ? -1 : 1));
            return true;
        }
    }
    return QDialog::eventFilter(objeto, evento);
}

}  // namespace trabex::losas::ui::qt
