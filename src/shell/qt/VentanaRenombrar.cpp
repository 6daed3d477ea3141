#include "shell/qt/VentanaRenombrar.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "shell/qt/CampoTexto.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::programa::qt {

VentanaRenombrar::VentanaRenombrar(Renombrar& operaciones, const Tapiz& preferencias, QWidget* padre)
    : QDialog(padre) {
    setObjectName("Renombrar");
    setWindowTitle("RENOMBRAR");
    auto* marco = new QGroupBox("Entre el Nuevo Nombre", this);
    auto* formulario = new QFormLayout(marco);
    auto* actual = new QLabel(Q(operaciones.NombreActual()), marco);
    actual->setTextFormat(Qt::PlainText);
    auto* nombre = new CampoTexto(LargoDeNombre, marco);
    nombre->setText(Q(operaciones.NombreActual()));
    nombre->setObjectName("Nombre");
    nombre->setMinimumWidth(320);
    nombre->selectAll();
    formulario->addRow("Nombre Actual:", actual);
    formulario->addRow("&Nombre:", nombre);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(marco);
    columna->addStretch(1);
    columna->addLayout(FilaAceptarCancelar(this, [this, nombre, &operaciones] {
        if (operaciones.Aceptar(S(nombre->text()))) return accept();
        nombre->setFocus();
        nombre->selectAll();
    }));
    PrepararVentana(this, preferencias);
}

}  // namespace trabex::programa::qt
