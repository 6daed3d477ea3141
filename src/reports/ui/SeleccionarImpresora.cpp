#include "reports/ui/SeleccionarImpresora.h"

#include "base/Texto.h"

namespace trabex::reportes::ui {

std::optional<std::size_t> SeleccionarImpresora::MarcarImpresoraDefecto() const {
    const std::string& elegida = entorno_.Estado.Impresora;
    const std::string actual = Mayusculas(elegida.empty() ? entorno_.LasImpresoras.PorDefecto() : elegida);
    for (std::size_t i = 0; i < disponibles_.size(); ++i) {
        if (Mayusculas(disponibles_[i]) == actual) return i;
    }
    return std::nullopt;
}

bool SeleccionarImpresora::Aceptar(const std::string& impresora) {
    const programa::Mensaje pregunta =
        programa::Pregunta("Cambiar a esta Impresora?\n" + impresora, "Seleccionar Impresora...");
    if (entorno_.Servicios.Caja.Mostrar(pregunta) != programa::RespuestaSi) return false;
    entorno_.Estado.Impresora = impresora;
    return true;
}

}  // namespace trabex::reportes::ui
