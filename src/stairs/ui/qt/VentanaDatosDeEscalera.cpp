#include "stairs/ui/qt/VentanaDatosDeEscalera.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "drawing/qt/WidgetLienzo.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::escaleras::ui::qt {

namespace {
constexpr QSize MenorBoceto(228, 264);
constexpr QSize TamanoDeVentana(760, 480);
}  // namespace

VentanaDatosDeEscalera::VentanaDatosDeEscalera(const programa::Aplicacion& aplicacion, QWidget* padre)
    : QDialog(padre), aplicacion_(aplicacion) {
    vista_.CuadriculaVisible = false;
}

void VentanaDatosDeEscalera::Armar(const char* nombre, const char* titulo,
                                   std::span<const RotuloDeCampo> rotulos) {
    setObjectName(nombre);
    setWindowTitle(titulo);
    auto* partes = new QHBoxLayout;
    partes->addWidget(MarcoDeCampos(rotulos));
    partes->addWidget(Boceto(), 1);
    auto* columna = new QVBoxLayout(this);
    columna->addLayout(partes, 1);
    columna->addLayout(Botones());
    Rellenar();
    programa::qt::TamanoInicial(this, TamanoDeVentana);
    programa::qt::PrepararVentana(this, aplicacion_.Preferencias);
    campos_->EnfocarPrimero();
}

QWidget* VentanaDatosDeEscalera::MarcoDeCampos(std::span<const RotuloDeCampo> rotulos) {
    auto* marco = new QGroupBox("Datos Generales de la Escalera", this);
    auto* columna = new QVBoxLayout(marco);
    nombre_ = new QLabel(marco);
    nombre_->setObjectName("Nombre");
    nombre_->setTextFormat(Qt::PlainText);
    nombre_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    columna->addWidget(nombre_);
    campos_.emplace(rotulos, Numeros(), *columna, marco);
    campos_->AlEditar([this] { AlEditar(); });
    campos_->AlCambiar([this] {
        if (boceto_ != nullptr) boceto_->RedibujeVista();
    });
    return marco;
}

QWidget* VentanaDatosDeEscalera::Boceto() {
    boceto_ = new dibujo::qt::WidgetLienzo(
        vista_, [this](dibujo::Lienzo& lienzo) { DibujarBoceto(lienzo, vista_); }, this);
    boceto_->setObjectName("Boceto");
    boceto_->setMinimumSize(MenorBoceto);
    boceto_->setFocusPolicy(Qt::ClickFocus);
    return boceto_;
}

void VentanaDatosDeEscalera::AgregarBoton(QHBoxLayout& fila, const char* texto, const char* icono,
                                          const char* ayuda, const std::function<void()>& accion,
                                          bool principal) {
    const QString nombre = QString(texto).remove('&').trimmed();
    QPushButton* boton = programa::qt::Boton(texto, icono, this);
    boton->setObjectName(nombre);
    boton->setAutoDefault(false);
    boton->setDefault(principal);
    programa::qt::PonerAyuda(boton, nombre, ayuda);
    connect(boton, &QPushButton::clicked, this, accion);
    fila.addWidget(boton);
}

QLayout* VentanaDatosDeEscalera::Botones() {
    auto* fila = new QHBoxLayout;
    AgregarBotones(*fila);
    fila->addStretch(1);
    AgregarBoton(
        *fila, " &Salvar ", "salvar", "Guardar la escalera en el proyecto. ",
        [this] {
            if (programa::qt::EntradasEnOrden(this)) Salvar();
        },
        true);
    AgregarBoton(*fila, " &Retorno ", "salida", "Volver a las escaleras del proyecto. ",
                 [this] { reject(); });
    return fila;
}

void VentanaDatosDeEscalera::Rellenar() {
    MostrarValores();
    nombre_->setText("ESCALERA: " + programa::qt::Q(Nombre()));
}

void VentanaDatosDeEscalera::reject() {
    if (programa::qt::EntradasEnOrden(this) && Cerrar()) QDialog::reject();
}

}  // namespace trabex::escaleras::ui::qt
