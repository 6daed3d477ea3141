#include "slab/ui/qt/VentanaCopiarTramo.h"

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include "shell/qt/ComunVentanas.h"

namespace trabex::losas::ui::qt {

VentanaCopiarTramo::VentanaCopiarTramo(LosaDatos& operaciones, const programa::Tapiz& preferencias,
                                       QWidget* padre)
    : QDialog(padre), operaciones_(operaciones), tramos_(new QListWidget(this)) {
    setObjectName("CopiarTramo");
    setWindowTitle("COPIAR EL TRAMO " + QString::number(operaciones.TramoActual()));
    auto* rotulo = new QLabel("A los &Tramos:", this);
    rotulo->setBuddy(tramos_);
    tramos_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (std::size_t i = 1; i <= operaciones.NumeroDeTramos(); ++i)
        tramos_->addItem("Tramo " + QString::number(i));
    tramos_->selectAll();
    const auto opcion = [this](const char* texto, bool marcada) {
        auto* casilla = new QCheckBox(texto, this);
        casilla->setChecked(marcada);
        return casilla;
    };
    const QueCopiar porDefecto;
    longitud_ = opcion("&Longitud", porDefecto.Longitud);
    uniforme_ = opcion("Carga &Uniforme", porDefecto.CargaUniforme);
    puntual_ = opcion("Carga &Puntual", porDefecto.CargaPuntual);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(rotulo);
    columna->addWidget(tramos_, 1);
    for (QCheckBox* casilla : {longitud_, uniforme_, puntual_}) columna->addWidget(casilla);
    columna->addLayout(programa::qt::FilaAceptarCancelar(this, [this] { Aceptar(); }));
    programa::qt::PrepararVentana(this, preferencias);
}

void VentanaCopiarTramo::Aceptar() {
    std::vector<std::size_t> elegidos;
    for (int i = 0; i < tramos_->count(); ++i)
        if (tramos_->item(i)->isSelected()) elegidos.push_back(static_cast<std::size_t>(i) + 1);
    operaciones_.CopiarTramo(operaciones_.TramoActual(), elegidos,
                             {longitud_->isChecked(), uniforme_->isChecked(), puntual_->isChecked()});
    accept();
}

}  // namespace trabex::losas::ui::qt
