#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/Plano.h"
#include "drawing/losa/EstiloHoja.h"
#include "drawing/losa/FigurasLosa.h"
#include "drawing/losa/HojaLosa.h"
#include "slab/ValoresLosa.h"

namespace trabex::dibujo::losa {

inline constexpr double LetraNormal = 8.5;  ///< points

/// A sheet of a slab while it is drawn: the canvas in metres, and what it shows.
struct Trazado {
    Plano EnMetros;
    const HojaLosa& Hoja;
    const losas::LosaCalculada& Calculada;
    const losas::Losa& Losa;
    const EstiloHoja& Estilo;
    std::size_t N = 0;  ///< spans; with none nothing is drawn

    double EjeX(std::size_t eje) const { return Hoja.Ejes.EjesX[eje]; }
    double EjeY(std::size_t eje) const { return Hoja.Ejes.EjesY[eje]; }
    std::string Numero(double valor, std::string_view formato) const;
    /// Depth of the slab, m, as the titles show it.
    std::string Espesor() const;
};

/// Where the slab lies on its surface, by its length and its highest axis.
Encuadre EncuadreDeLosa(const Lienzo& lienzo, const EjesDeHoja& ejes, const EstiloHoja& estilo);

/// The common part of the three sheets: clears, sets scale and origin, draws the slab with its loads, axes,
/// displaced joints and supports.
Trazado DibujeBaseLosa(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                       const EstiloHoja& estilo);

/// Bold lines of the sheet's title, centred below each other from a row on.
void DibujeTitulos(const Trazado& t, std::int32_t fila, const std::vector<std::string>& lineas);

}  // namespace trabex::dibujo::losa
