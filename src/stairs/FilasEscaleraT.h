#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Formatos.h"
#include "stairs/ValoresEscaleraT.h"

// Which number stands in which cell of the sheets of a stair: one table a sheet.

namespace trabex::escaleras {

/// Where the numbers of a row stand about its base line.
enum class LugarDeCifra { Encima, Centrada, Debajo };

/// A number as it is shown. `Falla`: the landing fails in shear there.
struct Cifra {
    std::string Texto;
    bool Falla = false;
};

/// A line of numbers: one for each station of the flight, from the support on, then one for each of the
/// landing, from 90 degrees to 0. An empty part has none.
struct LineaDeCifras {
    LugarDeCifra Lugar;
    std::vector<Cifra> Tramo;
    std::vector<Cifra> Descanso;
};

/// A row of a sheet with its numbers. Its base line stands `Desfase` m below the table's top.
struct FilaDeHoja {
    double Desfase;
    std::string_view Rotulo;
    std::vector<LineaDeCifras> Lineas;
};

/// Rows of the sheet of forces, and of that of the design.
std::vector<FilaDeHoja> FilasDeSolicitaciones(const EscaleraCalculada& escalera,
                                              const Separadores& separadores);
std::vector<FilaDeHoja> FilasDeDiseno(const EscaleraCalculada& escalera, const Separadores& separadores);

/// What the sheet of reactions shows at each support.
struct ReaccionesDeHoja {
    std::string Vertical;
    std::string Horizontal;
};
ReaccionesDeHoja ReaccionesDe(const EscaleraCalculada& escalera, const Separadores& separadores);

/// Captions of the minimum steel; see AceroMinimoTramo for the units.
struct RotulosDeMinimo {
    std::string Tramo;
    std::string Descanso;
};
RotulosDeMinimo RotulosDeAceroMinimo(const EscaleraCalculada& escalera, double unidadesPorMetro,
                                     const Separadores& separadores);

}  // namespace trabex::escaleras
