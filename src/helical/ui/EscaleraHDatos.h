#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "helical/DatosEscaleraH.h"
#include "stairs/ui/CamposEscalera.h"
#include "store/proyecto/ProyectoAbierto.h"

namespace trabex::helices::ui {

/// Fields of a helical stair, in the order in which they stand.
enum class CampoEscaleraH : std::size_t { H, B, T, R, Angulo, W, Inter };

/// A helical stair as it is typed: the interval may be past the 16 bits that hold it.
struct EntradaEscaleraH {
    double B;
    double T;
    double H;
    double R;
    double Angulo;
    std::int32_t W;
    std::int32_t Inter;
};

class PantallaEscaleraHDatos : public escaleras::ui::PantallaDeCampos<CampoEscaleraH> {
  public:
    virtual void Pitar() = 0;
};

/// What the data window of helical stairs works on; the workspace owns it all.
struct TrabajoEscaleraH {
    almacen::proyecto::ProyectoAbierto& Proyecto;  ///< its list stands on the selected stair
    DatosEscaleraH& Actual;                        ///< the current stair
    bool& Nueva;           ///< set by the creation of a stair until the window has saved it
    bool& DatosCambiados;  ///< raised by a save: the workspace calculates again
};

/// Operations of the window that edits a helical stair.
class EscaleraHDatos {
  public:
    EscaleraHDatos(TrabajoEscaleraH trabajo, programa::CajaMensajes& caja, PantallaEscaleraHDatos& pantalla)
        : trabajo_(trabajo), caja_(caja), pantalla_(pantalla) {}

    /// Name of the stair on which the list stands.
    std::string Nombre() const;

    /// The values to show on opening: the current stair's, or the seeds of a new one.
    EntradaEscaleraH Mostrar();

    /// A field was edited.
    void Cambiar() { modificada_ = true; }
    bool Modificada() const { return modificada_; }

    /// " Salvar ". B, T, R, the angle or the interval at 0 beep and take the focus, but that the interval
    /// gives it to the angle; an angle over 360 is told by a message. The rise and the load may be 0. An
    /// interval past 32767 is an overflow. False when nothing was stored.
    bool Salvar(const EntradaEscaleraH& entrados);

    /// Whether the window may close; asks when there are changes. A save that did not go through keeps it
    /// open.
    bool Cerrar(const EntradaEscaleraH& entrados);

  private:
    bool Admitir(const EntradaEscaleraH& entrados);
    bool Guardar(const EntradaEscaleraH& entrados);

    TrabajoEscaleraH trabajo_;
    programa::CajaMensajes& caja_;
    PantallaEscaleraHDatos& pantalla_;
    bool modificada_ = false;
};

}  // namespace trabex::helices::ui
