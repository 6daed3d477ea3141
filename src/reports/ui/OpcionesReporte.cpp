#include "reports/ui/OpcionesReporte.h"

namespace trabex::reportes::ui {

void OpcionImpreLosas::Aceptar(std::uint8_t opcion, bool desplazamientos) {
    estado_.OpcionExportarLosas = opcion;
    estado_.ExportarDesplazamientos = desplazamientos;
    aceptado_ = true;
}

}  // namespace trabex::reportes::ui
