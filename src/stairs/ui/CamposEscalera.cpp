#include "stairs/ui/CamposEscalera.h"

namespace trabex::escaleras::ui {

programa::Mensaje PreguntaDeSalvar(const std::string& nombre) {
    programa::Mensaje mensaje;
    mensaje.Texto = nombre + "\n¿Desea Salvar las Modificaciones?";
    mensaje.Encabezado = "Análisis y Diseño de Escaleras...";
    mensaje.Botones = programa::BotonesCaja::SiNoCancelar;
    mensaje.Icono = programa::IconoCaja::Pregunta;
    return mensaje;
}

programa::Mensaje AvisoDeNoSalvado() {
    return AvisoDeError(ErrorEjecucion(CodigoError::ErrorAccesoRuta));
}

programa::Mensaje AvisoDeError(const ErrorEjecucion& error) {
    return programa::MensajeDeError(error, "Error Inesperado...");
}

}  // namespace trabex::escaleras::ui
