#include "shell/ConfigurarPrograma.h"

#include "shell/Arranque.h"

namespace trabex::programa {

ResultadoConfiguracion AceptarConfiguracion(Aplicacion& aplicacion, CajaMensajes& caja,
                                            const Tapiz& elegida) {
    Mensaje pregunta = Pregunta(
        "Tapiz de la Pantalla: " + elegida.Imagen + "\n¿Asumir por Defecto las Opciones Seleccionadas?",
        "Configurar la Pantalla...");
    pregunta.Botones = BotonesCaja::SiNoCancelar;
    const std::int16_t respuesta = caja.Mostrar(pregunta);
    if (respuesta == RespuestaCancelar) return ResultadoConfiguracion::SigueAbierta;
    if (respuesta != RespuestaSi) return ResultadoConfiguracion::SinGuardar;
    try {
        GuardarTapiz(ArchivoTapiz(aplicacion), elegida);
    } catch (const ErrorEjecucion& error) {
        caja.Mostrar(MensajeDeError(error, ErrorInesperado));
        return ResultadoConfiguracion::SigueAbierta;
    }
    aplicacion.Preferencias = elegida;
    return ResultadoConfiguracion::Guardada;
}

}  // namespace trabex::programa
