#include "loads/ui/qt/VentanasDeEleccion.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include "shell/qt/ComunVentanas.h"

namespace trabex::cargas::ui::qt {

VentanaDeEleccion::VentanaDeEleccion(const char* nombre, const char* titulo, const char* marco,
                                     std::initializer_list<const char*> opciones,
                                     const programa::Tapiz& preferencias, QWidget* padre)
    : QDialog(padre), opciones_(new QButtonGroup(this)) {
    setObjectName(nombre);
    setWindowTitle(titulo);
    auto* caja = new QGroupBox(marco, this);
    auto* lista = new QVBoxLayout(caja);
    for (const char* texto : opciones) {
        auto* opcion = new QRadioButton(texto, caja);
        opciones_->addButton(opcion, static_cast<int>(opciones_->buttons().size()));
        lista->addWidget(opcion);
    }
    opciones_->button(0)->setChecked(true);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(caja);
    columna->addStretch(1);
    columna->addLayout(programa::qt::FilaAceptarCancelar(this, [this] { accept(); }));
    setMinimumWidth(380);
    programa::qt::PrepararVentana(this, preferencias);
}

int VentanaDeEleccion::Elegida() const {
    return opciones_->checkedId();
}

VentanaOpcionAnalisisCarga::VentanaOpcionAnalisisCarga(const programa::Tapiz& preferencias, QWidget* padre)
    : VentanaDeEleccion(
          "OpcionAnalisisCarga", "EXPORTAR LOS ANÁLISIS DE CARGA", "Análisis de Carga del Reporte",
          {"El Análisis de Carga &Seleccionado", "&Todos los Análisis de Carga"}, preferencias, padre) {}

void MostrarVentanaNormas(Normas& operaciones, const programa::Tapiz& preferencias, QWidget* padre) {
    VentanaDeEleccion ventana("Normas", "NORMAS DE ACCIONES MÍNIMAS", "Acciones Mínimas 2002-1988",
                              {"&Articulado", "&Comentario"}, preferencias, padre);
    programa::qt::MostrarModal(ventana);
    if (ventana.result() != QDialog::Accepted) return;
    operaciones.Abrir(ventana.Elegida() == 0 ? DocumentoDeNorma::Articulado : DocumentoDeNorma::Comentario);
}

}  // namespace trabex::cargas::ui::qt
