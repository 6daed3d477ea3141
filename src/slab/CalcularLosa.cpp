#include "slab/CalcularLosa.h"

#include <cmath>

#include "base/Round.h"
#include "base/VigilanciaFlotante.h"
#include "slab/Analizar.h"
#include "slab/DisenoSeccion.h"
#include "slab/EsfuerzosTramo.h"
#include "slab/Geometria.h"

namespace trabex {

namespace {

/// Design of an analysed slab, joint by joint and span by span.
class Diseno {
  public:
    Diseno(const Losa& losa, const DatosGenerales& generales, ResultadosLosa& resultados, double total)
        : losa_(losa),
          generales_(generales),
          resultados_(resultados),
          N_(losa.Tramos.size() - 1),
          seccion_(losa, generales),
          dibujo_(CoordenarJuntas(losa, total / 2)) {}

    void Ejecutar() {
        resultados_.DisenoEje.assign(N_ + 2, {});
        for (std::size_t i = 1; i <= N_; ++i) DisenarJunta(i);
        for (std::size_t i = 1; i <= N_; ++i) {
            DisenoDeTramo& tramo = resultados_.DisenoTramo[i];
            const AceroCaras As = seccion_.CalcularAcero(tramo.MT);
            vigilancia_.Comprobar();
            tramo.AS1 = As.AsSup;
            tramo.AS2 = As.AsInf;
        }
    }

  private:
    double Coseno(std::size_t i) const;
    void DisenarJunta(std::size_t i);
    void PonerAcero(std::size_t junta, double M);
    void PonerMacizados(std::size_t i, double C, const ExtremosMayorados& tramo);
    void PonerInflexiones(std::size_t i, double C, const ExtremosMayorados& tramo);

    const Losa& losa_;
    const DatosGenerales& generales_;
    ResultadosLosa& resultados_;
    const std::size_t N_;
    VigilanciaFlotante vigilancia_;
    const DisenoSeccion seccion_;
    const CoordenadasJuntas dibujo_;  // centred on 0: they serve only to get the cosines
};

double Diseno::Coseno(std::size_t i) const {
    const double dx = dibujo_.X[i + 1] - dibujo_.X[i];
    const double dy = dibujo_.Y[i + 1] - dibujo_.Y[i];
    if (dx == 0 || dy == 0) return 1;
    return std::cos(std::atan(dy / dx));
}

/// Joint i and span i, which starts there. The steel of a joint comes from the moment at the start of the
/// span to its right; only the last joint reads the end of a span.
void Diseno::DisenarJunta(std::size_t i) {
    const double C = Coseno(i);
    const ExtremosMayorados tramo = MayorarExtremos(resultados_, generales_, i);
    PonerAcero(i, tramo.Mi);
    if (i == N_) PonerAcero(N_ + 1, tramo.Mj);
    if (!losa_.OpcionMaciza && losa_.Ejes[i].Tipo != SinApoyo) PonerMacizados(i, C, tramo);
    PonerInflexiones(i, C, tramo);
}

void Diseno::PonerAcero(std::size_t junta, double M) {
    const AceroCaras As = seccion_.CalcularAcero(M);
    vigilancia_.Comprobar();
    resultados_.DisenoEje[junta].AS1 = As.AsSup;
    resultados_.DisenoEje[junta].AS2 = As.AsInf;
}

/// The cosine of span i serves both sides of its joint, and the last joint is judged with the number and the
/// support of the one before it.
void Diseno::PonerMacizados(std::size_t i, double C, const ExtremosMayorados& tramo) {
    const ExtremosMayorados izquierdo = MayorarExtremos(resultados_, generales_, i - 1);
    std::vector<DisenoDeEje>& ejes = resultados_.DisenoEje;
    const auto poner = [&](double& longitud, double V, double M) {
        const double calculada = seccion_.CalcularMacizado(i, V, M, C);
        vigilancia_.Comprobar();
        longitud = calculada;
    };
    poner(ejes[i].MczI, izquierdo.Vj, izquierdo.Mj);
    poner(ejes[i].MczD, tramo.Vi, tramo.Mi);
    if (i == N_) poner(ejes[N_ + 1].MczI, tramo.Vj, tramo.Mj);
}

void Diseno::PonerInflexiones(std::size_t i, double C, const ExtremosMayorados& tramo) {
    const PuntosInflexion p = CalcularInflexion(losa_.Tramos[i], generales_, tramo.Vi, tramo.Mi, C);
    const double Ls = losa_.Tramos[i].LT / C;
    vigilancia_.Comprobar();
    const auto dentro = [Ls](double x) { return x > 0 && Round(x, 2) < Round(Ls, 2); };
    resultados_.DisenoEje[i].PtoD = dentro(p.salida2) ? p.salida2 : 0;
    resultados_.DisenoEje[i + 1].PtoI = dentro(p.salida1) ? Ls - p.salida1 : 0;
}

}  // namespace

void CalcularLosa(const Losa& losa, const DatosGenerales& generales, ResultadosLosa& resultados) {
    try {
        if (!Analizar(losa, generales, resultados)) return;
        double total = 0;
        for (const Tramo& tramo : losa.Tramos) total += tramo.LT;
        if (total == 0) return;
        Diseno(losa, generales, resultados, total).Ejecutar();
    } catch (const ErrorEjecucion& error) {
        resultados.Error = error;
    }
}

}  // namespace trabex
