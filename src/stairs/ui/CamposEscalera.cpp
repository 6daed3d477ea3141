#include "stairs/ui/CamposEscalera.h"

namespace trabex {

Mensaje PreguntaDeSalvar(const std::string& nombre) {
    Mensaje mensaje;
    mensaje.Texto = nombre + "\n¿Desea Salvar las Modificaciones?";
    mensaje.Encabezado = "Análisis y Diseño de Escaleras...";
    mensaje.Botones = BotonesCaja::SiNoCancelar;
    mensaje.Icono = IconoCaja::Pregunta;
    return mensaje;
}

Mensaje AvisoDeNoSalvado() {
    return AvisoDeError(ErrorEjecucion(CodigoError::ErrorAccesoRuta));
}

Mensaje AvisoDeError(const ErrorEjecucion& error) {
    return MensajeDeError(error, "Error Inesperado...");
}

}  // namespace trabex
