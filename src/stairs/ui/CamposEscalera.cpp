#include "stairs/ui/CamposEscalera.h"

namespace trabex::escaleras::ui {

programa::Mensaje PreguntaDeSalvar(const std::string& nombre) {
    programa::Mensaje mensaje = programa::PreguntaDeSalvar(nombre, "Análisis y Diseño de Escaleras...");
    mensaje.Botones = programa::BotonesCaja::SiNoCancelar;
    return mensaje;
}

}  // namespace trabex::escaleras::ui
