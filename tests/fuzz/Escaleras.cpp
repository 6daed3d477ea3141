// Stairs, helices and panels of any values that a file can hold: each is calculated or ends in its error, and
// the arrays are as long as what reads them expects.

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "base/ErrorEjecucion.h"
#include "helical/CalcularEscaleraH.h"
#include "markus/CalculeMarcus.h"
#include "stairs/CalcularEscaleraT.h"

namespace {

using namespace trabex;

void Exigir(bool condicion) {
    if (!condicion) std::abort();
}

/// Values cut from the bytes, zeros once they are over.
struct Bytes {
    template <class... Numeros>
    void Poner(Numeros&... numeros) {
        const auto uno = [this](auto& numero) {
            numero = 0;
            if (sizeof numero > Largo) return;
            std::memcpy(&numero, Datos, sizeof numero);
            Datos += sizeof numero;
            Largo -= sizeof numero;
        };
        (uno(numeros), ...);
    }
    const std::uint8_t* Datos;
    std::size_t Largo;
};

void ProbarEscalera(Bytes& bytes, const DatosGenerales& generales) {
    escaleras::DatosEscaleraT e;
    bytes.Poner(e.L, e.B, e.H, e.HT, e.Hd, e.WT, e.Wd, e.WpD);
    escaleras::ResultadosEscaleraT r;
    escaleras::CalcularEscaleraT(e, generales, r);
    Exigir(r.TramoT.empty() || (r.TramoT.size() == 11 && r.DescansoT.size() == 8));
}

void ProbarHelice(Bytes& bytes, const DatosGenerales& generales) {
    helices::DatosEscaleraH e;
    bytes.Poner(e.B, e.T, e.H, e.R, e.Angulo, e.W, e.Inter);
    helices::ResultadosEscaleraH r;
    helices::CalcularEscaleraH(e, generales, r);
    Exigir(r.TramoSuperior.size() == r.TramoInferior.size());
    Exigir(r.TramoSuperior.empty() || r.TramoSuperior.size() >= r.NEst + 2);
}

void ProbarPanos(Bytes& bytes) {
    std::vector<marcus::PanoMarcus> panos(2);
    for (marcus::PanoMarcus& pano : panos) bytes.Poner(pano.Carga, pano.Caso, pano.LX, pano.LY);
    try {
        marcus::CalculeMarcus(panos);
    } catch (const ErrorEjecucion&) {
        Exigir(panos[1].Reparto.CX == 0);
    }
    for (const marcus::PanoMarcus& pano : panos) Exigir(pano.Reparto.CX >= 0 && pano.Reparto.CX <= 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    Bytes bytes{datos, largo};
    DatosGenerales g;
    bytes.Poner(g.FC, g.FY, g.D8, g.FiMomento, g.FS);
    ProbarHelice(bytes, g);
    ProbarEscalera(bytes, g);
    ProbarPanos(bytes);
    return 0;
}
