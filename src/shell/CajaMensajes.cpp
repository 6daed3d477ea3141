#include "shell/CajaMensajes.h"

#include <algorithm>
#include <array>

namespace trabex::programa {

namespace {

constexpr std::array<BotonCaja, 1> SoloAceptar{{{"Aceptar", RespuestaAceptarONo}}};
constexpr std::array<BotonCaja, 3> SiNoCancelar{
    {{"Sí", RespuestaSi}, {"No", RespuestaAceptarONo}, {"Cancelar", RespuestaCancelar}}};

constexpr int MargenEncabezado = 200;
constexpr int MargenTexto = 350;
constexpr int AnchoMinimoUno = 3900;
constexpr int AnchoMinimoVarios = 4300;

}  // namespace

DisposicionCaja DisposicionDe(BotonesCaja botones) {
    switch (botones) {
        case BotonesCaja::SiNo:
            return {SiNoCancelar.data(), 2, std::nullopt};
        case BotonesCaja::SiNoCancelar:
            return {SiNoCancelar.data(), 3, RespuestaCancelar};
        case BotonesCaja::Aceptar:
            break;
    }
    return {SoloAceptar.data(), 1, RespuestaAceptarONo};
}

int AnchoCaja(BotonesCaja botones, int anchoEncabezado, int anchoTexto) {
    const int minimo = botones == BotonesCaja::Aceptar ? AnchoMinimoUno : AnchoMinimoVarios;
    return std::max(
        {minimo, anchoEncabezado + MargenEncabezado, std::min(anchoTexto, AnchoMaximoTexto) + MargenTexto});
}

Mensaje MensajeDeError(const ErrorEjecucion& error, const std::string& encabezado) {
    Mensaje mensaje;
    mensaje.Texto = "Error Número: " + std::to_string(error.Codigo()) + "\n" + error.Texto();
    mensaje.Encabezado = encabezado;
    mensaje.Icono = IconoCaja::Error;
    return mensaje;
}

Mensaje MensajeSinGuardar(CodigoError causa) {
    return MensajeDeError(ErrorEjecucion(causa), ErrorInesperado);
}

Mensaje Aviso(const std::string& texto, const std::string& encabezado) {
    Mensaje mensaje;
    mensaje.Texto = texto;
    mensaje.Encabezado = encabezado;
    mensaje.Icono = IconoCaja::Advertencia;
    return mensaje;
}

Mensaje Pregunta(const std::string& texto, const std::string& encabezado) {
    Mensaje mensaje;
    mensaje.Texto = texto;
    mensaje.Encabezado = encabezado;
    mensaje.Botones = BotonesCaja::SiNo;
    mensaje.Icono = IconoCaja::Pregunta;
    return mensaje;
}

Mensaje PreguntaDeEliminar(const std::string& texto, const std::string& encabezado) {
    Mensaje mensaje = Pregunta(texto, encabezado);
    mensaje.PorDefecto = 1;
    return mensaje;
}

Mensaje PreguntaDeSalvar(const std::string& editado, const std::string& encabezado) {
    return Pregunta(editado + "\n¿Desea Salvar las Modificaciones?", encabezado);
}

}  // namespace trabex::programa
