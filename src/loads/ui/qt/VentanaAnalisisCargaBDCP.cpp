#include "loads/ui/qt/VentanaAnalisisCargaBDCP.h"

#include <QLabel>
#include <QVBoxLayout>

#include "base/Texto.h"
#include "loads/ui/qt/ColumnasDePesos.h"
#include "loads/ui/qt/Mandos.h"
#include "loads/ui/qt/VentanasDeCreacion.h"
#include "loads/ui/qt/VentanasDeEleccion.h"
#include "reports/ui/qt/VistaDeTablas.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::cargas::ui::qt {

VentanaAnalisisCargaBDCP::VentanaAnalisisCargaBDCP(reportes::ui::EntornoSalida& entorno,
                                                   AnalisisCargaBDCP& operaciones, QWidget* padre)
    : QDialog(padre), entorno_(entorno), operaciones_(operaciones), tabla_(Tabla()) {
    setObjectName("AnalisisCargaBDCP");
    setWindowTitle(operaciones.Variante().Titulo);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    Armar();
    programa::qt::TamanoInicial(this, {720, 560});
    operaciones_.Abrir(*this);
    programa::qt::PrepararVentana(this, entorno.LaAplicacion.Preferencias);
    tabla_->setFocus();
}

programa::qt::TablaDatos* VentanaAnalisisCargaBDCP::Tabla() {
    auto* tabla = new programa::qt::TablaDatos(
        ColumnasDePesos(lineas_, [this](int fila, CampoDePeso campo,
                                        const std::string& texto) { return Poner(fila, campo, texto); }),
        entorno_.LaAplicacion.SeparadoresLocales, this);
    tabla->setObjectName("Pesos");
    return tabla;
}

void VentanaAnalisisCargaBDCP::Armar() {
    const auto capturar = [this] { operaciones_.Capturar(tabla_->FilaActual()); };
    auto* columna = new QVBoxLayout(this);
    PonerMandos(
        *this, *columna, "&Cargas",
        {{"ID_Capturar", "copiar", "C&aptura la Carga Seleccionada",
          "La carga seleccionada pasa al análisis de carga.", "Ctrl+Return", capturar},
         {"ID_Crear", "nuevo", "Crear &Nueva Carga", "Agregar una carga a la lista.", "Ctrl+N",
          [this] { operaciones_.Crear(); }},
         {"ID_Eliminar", "eliminar", "&Eliminar la Carga Seleccionada", "Eliminar la carga de la lista.",
          "Ctrl+Del", [this] { operaciones_.Eliminar(tabla_->FilaActual()); }},
         {"ID_Imprimir", "imprimir", "&Imprimir la Pantalla Actual", "Ver, imprimir y exportar la lista.",
          "Ctrl+P",
          [this] {
              if (!programa::qt::EntradasEnOrden(this)) return;
              reportes::ui::qt::ImprimirPantallaActual(entorno_, {{tabla_, "Pesos Unitarios"}},
                                                       operaciones_.Variante().Encabezado, this);
          }},
         {"ID_Normas", "manual", "N&ormas", "Ver la norma de acciones mínimas.", "Ctrl+M",
          [this] { operaciones_.VerNorma(); }}});
    auto* encabezado = new QLabel(operaciones_.Variante().Encabezado, this);
    QFont fuente = encabezado->font();
    fuente.setBold(true);
    encabezado->setFont(fuente);
    encabezado->setAlignment(Qt::AlignCenter);
    columna->addWidget(encabezado);
    columna->addWidget(tabla_, 1);
    PonerModificarCeldas(*tabla_, *columna, capturar);
}

void VentanaAnalisisCargaBDCP::reject() {
    if (!programa::qt::EntradasEnOrden(this)) return;
    operaciones_.Cerrar();
    QDialog::reject();
}

void VentanaAnalisisCargaBDCP::LlenarLista(const std::vector<PesoUnitario>& lineas) {
    lineas_ = lineas;
    tabla_->OlvidarCambios();
    tabla_->PonerFilas(static_cast<int>(lineas_.size()));
}

void VentanaAnalisisCargaBDCP::MarcarFila(int fila) {
    tabla_->IrA(fila, 0);
}

bool VentanaAnalisisCargaBDCP::Poner(int fila, CampoDePeso campo, const std::string& texto) {
    if (!operaciones_.ModificarCelda(fila, campo, texto)) return false;
    PesoUnitario& linea = lineas_[static_cast<std::size_t>(fila) - 1];
    PonerCelda(linea, campo, texto);
    linea.Descripcion = Recortar(linea.Descripcion);
    return true;
}

void VentanaAnalisisCargaBDCP::MostrarNueva(AnalisisCargaNewCP& operaciones) {
    VentanaAnalisisCargaNewCP ventana(entorno_.LaAplicacion, operaciones_.Variante(), operaciones, this);
    programa::qt::MostrarModal(ventana);
}

void VentanaAnalisisCargaBDCP::MostrarNormas(Normas& operaciones) {
    MostrarVentanaNormas(operaciones, entorno_.LaAplicacion.Preferencias, this);
}

}  // namespace trabex::cargas::ui::qt
