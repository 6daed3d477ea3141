#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "base/Formatos.h"
#include "helical/DatosEscaleraH.h"
#include "helical/ResultadosEscaleraH.h"
#include "markus/CalculeMarcus.h"
#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"
#include "stairs/DatosEscaleraT.h"
#include "stairs/ResultadosEscaleraT.h"

namespace trabex::lote {

/// What the summary says of one element: its extremes. Lengths in m, moments in kgf·m, forces in kgf, steel
/// in cm², spacings in cm. `Error` is the text of the run-time error that ended its calculation.
struct ResumenLosa {
    std::string Nombre;
    bool OpcionMaciza = false;
    std::size_t Tramos = 0;
    double Longitud = 0;  ///< sum of the span lengths
    double MaxMomentoApoyo = 0;
    double MaxMomentoTramo = 0;
    double MaxCorte = 0;
    double AceroSuperior = 0;  ///< the largest at an axis
    double AceroInferior = 0;  ///< the largest of a span
    std::string Error;
};

struct ResumenEscaleraT {
    std::string Nombre;
    double L = 0, B = 0, H = 0;
    double ReaccionVertical = 0;
    double ReaccionHorizontal = 0;
    double MaxMomento = 0;     ///< largest absolute moment in the flight's plane
    double AceroSuperior = 0;  ///< the largest of the flight, flexure and torsion
    double AceroInferior = 0;
    double Estribos = 0;  ///< the closest spacing
    std::string Error;
};

struct ResumenEscaleraH {
    std::string Nombre;
    double R = 0, Angulo = 0, H = 0;
    std::int32_t FV = 0;
    std::int32_t Fh = 0;
    double MaxMX = 0;  ///< largest absolute
    double MaxMY = 0;  ///< largest absolute
    double MaxMT = 0;  ///< largest absolute
    std::int16_t Estribos = 0;
    std::string Error;
};

struct ResumenMarcus {
    std::string Nombre;
    std::size_t Panos = 0;
    double MinCX = 0, MaxCX = 0;
    double MaxWX = 0, MaxWY = 0;
    std::string Error;
};

ResumenLosa Resumir(const losas::Losa& losa, const losas::ResultadosLosa& resultados);
ResumenEscaleraT Resumir(const escaleras::DatosEscaleraT& escalera,
                         const escaleras::ResultadosEscaleraT& resultados);
ResumenEscaleraH Resumir(const helices::DatosEscaleraH& escalera,
                         const helices::ResultadosEscaleraH& resultados);
ResumenMarcus Resumir(const marcus::NivelMarcus& nivel, const std::string& error);

/// The summaries of a kind as a table of plain text, a heading and an element a line.
std::string TablaDe(const std::vector<ResumenLosa>& losas, const Separadores& separadores);
std::string TablaDe(const std::vector<ResumenEscaleraT>& escaleras, const Separadores& separadores);
std::string TablaDe(const std::vector<ResumenEscaleraH>& escaleras, const Separadores& separadores);
std::string TablaDe(const std::vector<ResumenMarcus>& niveles, const Separadores& separadores);

}  // namespace trabex::lote
