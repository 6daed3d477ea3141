#include "shell/ConfigurarPrograma.h"

#include "shell/Arranque.h"

namespace trabex::programa {

ResultadoConfiguracion AceptarConfiguracion(Aplicacion& aplicacion, const Servicios& servicios,
                                            const Tapiz& elegida, const std::function<void()>& antes) {
    Mensaje pregunta = Pregunta(
        "Tapiz de la Pantalla: " + elegida.Imagen + "\n¿Asumir por Defecto las Opciones Seleccionadas?",
        "Configurar la Pantalla...");
    pregunta.Botones = BotonesCaja::SiNoCancelar;
    const std::int16_t respuesta = servicios.Caja.Mostrar(pregunta);
    if (respuesta == RespuestaCancelar) return ResultadoConfiguracion::SigueAbierta;
    if (respuesta != RespuestaSi) return ResultadoConfiguracion::SinGuardar;
    try {
        antes();
        GuardarTapiz(ArchivoTapiz(servicios.Carpetas), elegida);
    } catch (const ErrorEjecucion& error) {
        servicios.Caja.Mostrar(MensajeDeError(error, ErrorInesperado));
        if (error.Codigo() == static_cast<int>(CodigoError::LongitudDeRegistro)) {
            const std::string imagen = aplicacion.Preferencias.Imagen;
            aplicacion.Preferencias = elegida;
            aplicacion.Preferencias.Imagen = imagen;
        }
        return ResultadoConfiguracion::SigueAbierta;
    }
    aplicacion.Preferencias = elegida;
    return ResultadoConfiguracion::Guardada;
}

}  // namespace trabex::programa
