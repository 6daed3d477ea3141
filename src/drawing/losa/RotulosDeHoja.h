#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "drawing/Ocupacion.h"

namespace trabex::dibujo::losa {

/// What a band or row of a sheet tells.
enum class BandaDe : std::uint8_t {
    Cargas,  ///< all above the slab
    Longitudes,
    Nombres,  ///< of the axes
    Cotas,
    Cortes,
    Momentos,
    Reacciones,  ///< factored
    CP,
    CV,
    Total,
    Macizados,
    MuSup,
    MuInf,
    AsSup,
    AsInf,
    Inflexion,
    Despiece,
    Titulos,
};

/// Where a band lies, canvas units downward from the sheet's origin: between two rows, or, where it follows
/// the slab, between two lines that run so far below the line through its axes.
struct BandaDeHoja {
    BandaDe De;
    double Desde;
    double Hasta;
    bool SigueALaLosa;
};

/// A text of a sheet. Its box on the canvas is that before the text turns about the box's centre.
struct RotuloDeHoja {
    BandaDe De;
    std::string Texto;
    PiezaTexto Caja;
    double Grados = 0;  ///< anticlockwise
    /// The axis, or in `Longitudes`, `Cotas`, `MuInf` and `AsInf` the span, that the text tells of; in
    /// `Cargas`, `Cortes` and `Momentos` the span, and the axis where it is a joint's shift. 0: of none.
    std::size_t Lugar = 0;
};

}  // namespace trabex::dibujo::losa
