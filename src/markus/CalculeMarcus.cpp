#include "markus/CalculeMarcus.h"

#include <array>
#include <cmath>
#include <vector>

#include "base/ErrorEjecucion.h"
#include "base/VigilanciaFlotante.h"

namespace trabex::marcus {

namespace {

/// With r the fourth power of the longer name over the divisor, CX is Veces·r/(Veces·r + Suma) when the
/// formula divides by LX, and Suma/(Veces·r + Suma) when it divides by LY.
struct FormulaDeCaso {
    bool DivideLX;
    double Veces;
    double Suma;
};
constexpr std::array<FormulaDeCaso, UltimoCaso> Formulas{{{true, 1, 1},
                                                          {true, 1, 1},
                                                          {true, 1, 1},
                                                          {true, 2, 5},
                                                          {false, 2, 5},
                                                          {false, 1, 5},
                                                          {true, 1, 5},
                                                          {true, 2, 1},
                                                          {false, 2, 1}}};

double CoeficienteX(const FormulaDeCaso& formula, double LX, double LY) {
    const double divisor = formula.DivideLX ? LX : LY;
    const double dividendo = formula.DivideLX ? LY : LX;
    if (!(divisor > 0)) return 0;
    const double r = formula.Veces * std::pow(dividendo / divisor, 4);
    return (formula.DivideLX ? r : formula.Suma) / (r + formula.Suma);
}

/// What a panel gets, where `CX` comes from the panel before it.
RepartoMarcus Repartir(const PanoMarcus& pano, double CX) {
    for (const double numero : {pano.Carga, pano.LX, pano.LY})
        if (std::isnan(numero)) throw ErrorEjecucion(CodigoError::TiposNoCoinciden);
    if (pano.Caso >= PrimerCaso && pano.Caso <= UltimoCaso)
        CX = CoeficienteX(Formulas[static_cast<std::size_t>(pano.Caso - PrimerCaso)], pano.LX, pano.LY);
    const double CY = CX > 0 ? 1 - CX : 0;
    return {CX, CY, pano.Carga * CX, pano.Carga * CY};
}

}  // namespace

void CalculeMarcus(std::span<PanoMarcus> panos) {
    std::vector<RepartoMarcus> repartos;
    repartos.reserve(panos.size());
    const auto guardar = [&] {
        for (std::size_t i = 0; i < repartos.size(); ++i) panos[i].Reparto = repartos[i];
    };
    try {
        Vigilar([&](const Pasos& pasos) {
            repartos.clear();
            double CX = 0;
            for (const PanoMarcus& pano : panos) {
                repartos.push_back(pasos([&] { return Repartir(pano, CX); }));
                CX = repartos.back().CX;
            }
        });
    } catch (const ErrorEjecucion&) {
        guardar();
        throw;
    }
    guardar();
}

}  // namespace trabex::marcus
