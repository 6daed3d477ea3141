#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/Edicion.h"
#include "base/ErrorEjecucion.h"

namespace trabex::programa {

/// Button layouts of the message box.
enum class BotonesCaja : std::int16_t { Aceptar = 0, SiNo = 1, SiNoCancelar = 2 };

/// Pictures of the message box.
enum class IconoCaja : std::int16_t {
    Informacion = 0,
    Advertencia = 1,
    Pregunta = 2,
    Error = 3,
    Alto = 4,
    Ninguno = 5
};

/// Answers of the message box, the same in all layouts.
enum RespuestaCaja : std::int16_t { RespuestaAceptarONo = 0, RespuestaSi = 1, RespuestaCancelar = 2 };

/// The answer by which a question on an existing file lets it be replaced. The box never gives it: such a
/// file is never replaced.
inline constexpr std::int16_t RespuestaQueReemplaza = 6;

/// The heading over an error that no rule foresees.
inline constexpr const char* ErrorInesperado = "Error Inesperado...";

struct Mensaje {
    std::string Texto;       ///< a line feed breaks a line
    std::string Encabezado;  ///< the bold line at the top
    std::string Titulo = ProgramaYEdicion;
    BotonesCaja Botones = BotonesCaja::Aceptar;
    std::int16_t PorDefecto = 0;  ///< button with the focus on opening, 0 being the first
    IconoCaja Icono = IconoCaja::Informacion;
};

/// The only message box of the system.
class CajaMensajes {
  public:
    virtual ~CajaMensajes() = default;
    /// Shows the box until it is answered; a RespuestaCaja.
    virtual std::int16_t Mostrar(const Mensaje& mensaje) = 0;
};

/// Captions of a layout's buttons, in order, and the answer of each.
struct BotonCaja {
    const char* Texto;
    RespuestaCaja Respuesta;
};
struct DisposicionCaja {
    const BotonCaja* Botones;
    std::int16_t Cuantos;
    std::optional<RespuestaCaja> Escape;  ///< what Escape answers; nothing where it does nothing
};
DisposicionCaja DisposicionDe(BotonesCaja botones);

/// Sizes of the box, in twips (1/1440 inch), from the measured widths of heading and text.
inline constexpr int AnchoMaximoTexto = 10500;  ///< longer lines wrap
int AnchoCaja(BotonesCaja botones, int anchoEncabezado, int anchoTexto);

/// A run-time error in the fixed form, "Error Número: " and the code over its text.
Mensaje MensajeDeError(const ErrorEjecucion& error, const std::string& encabezado);

/// The same for a project that could not be written; `causa` is what its connection tells.
Mensaje MensajeSinGuardar(CodigoError causa);

/// A notice with one button.
Mensaje Aviso(const std::string& texto, const std::string& encabezado);

/// A question with two buttons, the first by default.
Mensaje Pregunta(const std::string& texto, const std::string& encabezado);

/// The question before something is deleted: "No" has the focus.
Mensaje PreguntaDeEliminar(const std::string& texto, const std::string& encabezado);

/// The question of a data window that is left with changes: what is edited, over it.
Mensaje PreguntaDeSalvar(const std::string& editado, const std::string& encabezado);

}  // namespace trabex::programa
