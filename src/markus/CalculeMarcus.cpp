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
constexpr std::array<FormulaDeCaso, 9> Formulas{{{true, 1, 1},
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

/// Walks panels in order, carrying CX from one to the next.
class Recorrido {
  public:
    RepartoMarcus Repartir(const PanoMarcus& pano) {
        if (pano.Caso >= 1 && pano.Caso <= static_cast<int>(Formulas.size()))
            CX_ = CoeficienteX(Formulas[static_cast<std::size_t>(pano.Caso) - 1], pano.LX, pano.LY);
        const double CY = CX_ > 0 ? 1 - CX_ : 0;
        const RepartoMarcus reparto{CX_, CY, pano.Carga * CX_, pano.Carga * CY};
        vigilancia_.Comprobar();
        return reparto;
    }

  private:
    const VigilanciaFlotante vigilancia_;
    double CX_ = 0;
};

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
    Recorrido recorrido;
    for (PanoMarcus& pano : panos) pano.Reparto = recorrido.Repartir(pano);
}

void CalculeMarcus(std::span<FilaMarcus> filas) {
    Recorrido recorrido;
    for (FilaMarcus& fila : filas) fila.Reparto = recorrido.Repartir(LeerFila(fila));
}

}  // namespace trabex::marcus
