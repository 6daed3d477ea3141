#include "markus/ui/qt/VentanaMarcusNuevo.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QVBoxLayout>

#include "shell/qt/CampoTexto.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/VentanaRenombrar.h"

namespace trabex::marcus::ui::qt {

VentanaMarcusNuevo::VentanaMarcusNuevo(MarcusNuevo& operaciones, const programa::Tapiz& preferencias,
                                       QWidget* padre)
    : QDialog(padre) {
    setObjectName("MarcusNuevo");
    setWindowTitle("CREAR UN NUEVO NIVEL");
    auto* marco = new QGroupBox("Entre el Nombre", this);
    auto* formulario = new QFormLayout(marco);
    auto* nombre = new programa::qt::CampoTexto(programa::qt::LargoDeNombre, marco);
    nombre->setObjectName("Nombre");
    nombre->setMinimumWidth(320);
    formulario->addRow("&Nombre:", nombre);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(marco);
    columna->addStretch(1);
    columna->addLayout(programa::qt::FilaAceptarCancelar(this, [this, nombre, &operaciones] {
        if (operaciones.Aceptar(programa::qt::S(nombre->text()))) return accept();
        nombre->setFocus();
        nombre->selectAll();
    }));
    programa::qt::PrepararVentana(this, preferencias);
}

}  // namespace trabex::marcus::ui::qt
