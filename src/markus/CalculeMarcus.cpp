#include "markus/CalculeMarcus.h"

#include <array>
#include <cmath>

#include "base/Enteros.h"
#include "base/ErrorEjecucion.h"
#include "base/Formatos.h"
#include "base/Texto.h"
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

/// Walks rows in order, carrying CX from one to the next. Those before a fault get what was found for them,
/// the others keep what they had.
template <class Fila, class Leer>
void RepartirFilas(std::span<Fila> filas, Leer leer) {
    std::vector<RepartoMarcus> repartos;
    repartos.reserve(filas.size());
    const auto guardar = [&] {
        for (std::size_t i = 0; i < repartos.size(); ++i) filas[i].Reparto = repartos[i];
    };
    try {
        Vigilar([&](const Pasos& pasos) {
            repartos.clear();
            double CX = 0;
            for (const Fila& fila : filas) {
                repartos.push_back(pasos([&] { return Repartir(leer(fila), CX); }));
                CX = repartos.back().CX;
            }
        });
    } catch (const ErrorEjecucion&) {
        guardar();
        throw;
    }
    guardar();
}

double Numero(const std::string& texto) {
    if (const auto numero = LeerNumero(texto)) return *numero;
    throw ErrorEjecucion(CodigoError::TiposNoCoinciden);
}

PanoMarcus LeerFila(const FilaMarcus& fila) {
    PanoMarcus pano;
    pano.Carga = Numero(fila.Carga);
    pano.LX = Numero(fila.LX);
    pano.LY = Numero(fila.LY);
    pano.Caso = Recortar(fila.Caso).empty() ? std::int16_t{1} : Redondear16(Numero(fila.Caso));
    return pano;
}

}  // namespace

void CalculePanos(std::span<PanoMarcus> panos) {
    RepartirFilas(panos, [](const PanoMarcus& pano) -> const PanoMarcus& { return pano; });
}

void CalculeMarcus(std::span<FilaMarcus> filas) {
    RepartirFilas(filas, LeerFila);
}

}  // namespace trabex::marcus
