#include "reports/planex/ui/qt/VentanaCuadroCAD.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/qt/ComunVentanas.h"

namespace trabex::planex::ui::qt {

VentanaCuadroCAD::VentanaCuadroCAD(const programa::Aplicacion& aplicacion, DestinoCAD& destino,
                                   QWidget* padre)
    : QDialog(padre) {
    setObjectName("CuadroCAD");
    setWindowTitle("EXPORTAR A Planex ESTRUCTURAL");
    auto* pregunta = new QLabel("Versión del programa que recibirá las losas:", this);
    auto* edicion = programa::qt::Boton(" Planex Estructural 2023 ", "salvar", this);
    auto* cancelar = programa::qt::Boton(" Cancelar ", "", this);
    edicion->setDefault(true);
    connect(edicion, &QPushButton::clicked, this, [this, &destino] {
        AceptarCuadroCAD(destino);
        accept();
    });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    programa::qt::PonerAyuda(edicion, "Planex Estructural 2023",
                             "Exportar las losas a un proyecto de esta versión. ");

    auto* columna = new QVBoxLayout(this);
    columna->setSizeConstraint(QLayout::SetFixedSize);
    columna->setContentsMargins(18, 16, 18, 16);
    columna->setSpacing(10);
    columna->addWidget(pregunta);
    columna->addWidget(edicion);
    columna->addWidget(cancelar);
    programa::qt::PrepararVentana(this, aplicacion.Preferencias);
}

}  // namespace trabex::planex::ui::qt
