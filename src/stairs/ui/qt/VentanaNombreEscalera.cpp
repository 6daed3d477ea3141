#include "stairs/ui/qt/VentanaNombreEscalera.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>
#include <functional>

#include "shell/qt/CampoTexto.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/VentanaRenombrar.h"

namespace trabex::escaleras::ui::qt {

namespace {

using programa::qt::Q;
using programa::qt::S;

constexpr int LargoDeTitulo = 120;  // characters that the tables' columns of titles hold

QLineEdit* Linea(const char* nombre, int largo, QWidget* padre) {
    auto* linea = new programa::qt::CampoTexto(largo, padre);
    linea->setObjectName(nombre);
    linea->setMinimumWidth(320);
    return linea;
}

/// A frame with its rows over " Aceptar " and " Cancelar ". Refused, the focus goes back to `campo`.
void Armar(QDialog* ventana, QGroupBox* marco, QLineEdit* campo, const std::function<bool()>& aceptar) {
    auto* columna = new QVBoxLayout(ventana);
    columna->addWidget(marco);
    columna->addStretch(1);
    columna->addLayout(programa::qt::FilaAceptarCancelar(ventana, [ventana, campo, aceptar] {
        if (aceptar()) return ventana->accept();
        campo->setFocus();
        campo->selectAll();
    }));
}

}  // namespace

VentanaEscaleraTNueva::VentanaEscaleraTNueva(const TextosDeEscaleraNueva& textos, EscaleraTNueva& operaciones,
                                             const programa::Tapiz& preferencias, QWidget* padre)
    : QDialog(padre) {
    setObjectName("EscaleraTNueva");
    setWindowTitle(textos.Titulo);
    auto* marco = new QGroupBox(textos.Marco, this);
    auto* formulario = new QFormLayout(marco);
    auto* nombre = Linea("Nombre", programa::qt::LargoDeNombre, marco);
    auto* titulo = Linea("Titulo", LargoDeTitulo, marco);
    formulario->addRow("&Nombre:", nombre);
    formulario->addRow("&Título:", titulo);
    Armar(this, marco, nombre, [nombre, titulo, &operaciones] {
        return operaciones.Aceptar(S(nombre->text()), S(titulo->text()));
    });
    programa::qt::PrepararVentana(this, preferencias);
}

VentanaEscaleraTitulo::VentanaEscaleraTitulo(EscaleraTitulo& operaciones, const programa::Tapiz& preferencias,
                                             QWidget* padre)
    : QDialog(padre) {
    setObjectName("EscaleraTitulo");
    setWindowTitle("TÍTULO DE LA ESCALERA");
    auto* marco = new QGroupBox("Entre el Título de la Escalera", this);
    auto* formulario = new QFormLayout(marco);
    auto* nombre = new QLabel(Q(operaciones.Nombre()), marco);
    nombre->setTextFormat(Qt::PlainText);
    auto* titulo = Linea("Titulo", LargoDeTitulo, marco);
    titulo->setText(Q(operaciones.Titulo()));
    titulo->selectAll();
    formulario->addRow("Escalera:", nombre);
    formulario->addRow("&Título:", titulo);
    Armar(this, marco, titulo, [titulo, &operaciones] { return operaciones.Aceptar(S(titulo->text())); });
    programa::qt::PrepararVentana(this, preferencias);
}

}  // namespace trabex::escaleras::ui::qt
