#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "stairs/DatosEscaleraT.h"
#include "stairs/ui/CamposEscalera.h"
#include "store/proyecto/ProyectoAbierto.h"

namespace trabex::escaleras::ui {

/// Fields of a self-supporting stair, in the order in which they stand and are checked.
enum class CampoEscaleraT : std::size_t { L, B, H, HT, Hd, WT, Wd, WpD };

/// What the data window of stairs works on; the workspace owns it all.
struct TrabajoEscaleraT {
    almacen::proyecto::ProyectoAbierto& Proyecto;  ///< its list stands on the selected stair
    DatosEscaleraT& Actual;                        ///< the current stair
    bool Nueva;                                    ///< the window opens on a stair just created
    bool& DatosCambiados;                          ///< raised by a save: the workspace calculates again
};

/// Operations of the window that edits a self-supporting stair.
class EscaleraTDatos {
  public:
    EscaleraTDatos(TrabajoEscaleraT trabajo, programa::CajaMensajes& caja,
                   PantallaDeCampos<CampoEscaleraT>& pantalla)
        : trabajo_(trabajo), caja_(caja), pantalla_(pantalla) {}

    /// Name of the stair on which the list stands.
    std::string Nombre() const;

    /// The values to show on opening: the current stair's, or the seeds of a new one. "Escalera Anterior" and
    /// "Siguiente Escalera" show them again, and so discard the edits: neither moves the list.
    DatosEscaleraT Mostrar();

    /// A field was edited.
    void Cambiar() { modificada_ = true; }
    bool Modificada() const { return modificada_; }

    /// The first of the five lengths that is exactly 0. Loads may be 0, and no sign is checked.
    static std::optional<CampoEscaleraT> PrimerCero(const DatosEscaleraT& entrados);

    /// " Salvar ". A length of 0 takes the focus, without a message. False when nothing was stored.
    bool Salvar(const DatosEscaleraT& entrados);

    /// Whether the window may close; asks when there are changes. A save that did not go through keeps it
    /// open.
    bool Cerrar(const DatosEscaleraT& entrados);

  private:
    TrabajoEscaleraT trabajo_;
    programa::CajaMensajes& caja_;
    PantallaDeCampos<CampoEscaleraT>& pantalla_;
    bool modificada_ = false;
};

}  // namespace trabex::escaleras::ui
