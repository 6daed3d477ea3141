#include "slab/CalcularLosa.h"

#include <cmath>

#include "base/Round.h"
#include "base/VigilanciaFlotante.h"
#include "slab/Analizar.h"
#include "slab/DisenoSeccion.h"
#include "slab/EsfuerzosTramo.h"
#include "slab/Geometria.h"

namespace trabex::losas {

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
        DisenarJuntas();
        DisenarTramos();
    }

  private:
    /// What span i gives to its joints. Zones that are not judged stay 0.
    struct Juntas {
        AceroCaras Acero;        // of joint i
        AceroCaras AceroUltimo;  // of joint N + 1, when i = N
        double MczI = 0, MczD = 0, MczIUltimo = 0;
        double PtoD, PtoI;  // of joint i and of joint i + 1
    };

    void DisenarJuntas();
    void DisenarTramos();
    Juntas JuntasDe(std::size_t i) const;
    double Coseno(std::size_t i) const;
    void CalcularMacizados(std::size_t i, double C, const ExtremosMayorados& tramo, Juntas& juntas) const;
    void CalcularInflexiones(std::size_t i, double C, const ExtremosMayorados& tramo, Juntas& juntas) const;
    void Guardar(std::size_t i, const Juntas& juntas);

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
Diseno::Juntas Diseno::JuntasDe(std::size_t i) const {
    const double C = Coseno(i);
    const ExtremosMayorados tramo = MayorarExtremos(resultados_, generales_, i);
    Juntas juntas{};
    juntas.Acero = seccion_.CalcularAcero(tramo.Mi);
    if (i == N_) juntas.AceroUltimo = seccion_.CalcularAcero(tramo.Mj);
    if (!losa_.OpcionMaciza && losa_.Ejes[i].Tipo != SinApoyo) CalcularMacizados(i, C, tramo, juntas);
    CalcularInflexiones(i, C, tramo, juntas);
    return juntas;
}

/// The cosine of span i serves both sides of its joint, and the last joint is judged with the number and the
/// support of the one before it.
void Diseno::CalcularMacizados(std::size_t i, double C, const ExtremosMayorados& tramo,
                               Juntas& juntas) const {
    const ExtremosMayorados izquierdo = MayorarExtremos(resultados_, generales_, i - 1);
    juntas.MczI = seccion_.CalcularMacizado(i, izquierdo.Vj, izquierdo.Mj, C);
    juntas.MczD = seccion_.CalcularMacizado(i, tramo.Vi, tramo.Mi, C);
    if (i == N_) juntas.MczIUltimo = seccion_.CalcularMacizado(N_, tramo.Vj, tramo.Mj, C);
}

void Diseno::CalcularInflexiones(std::size_t i, double C, const ExtremosMayorados& tramo,
                                 Juntas& juntas) const {
    const PuntosInflexion p = CalcularInflexion(losa_.Tramos[i], generales_, tramo.Vi, tramo.Mi, C);
    const double Ls = losa_.Tramos[i].LT / C;
    const auto dentro = [Ls](double x) { return x > 0 && Round(x, 2) < Round(Ls, 2); };
    juntas.PtoD = dentro(p.salida2) ? p.salida2 : 0;
    juntas.PtoI = dentro(p.salida1) ? Ls - p.salida1 : 0;
}

void Diseno::Guardar(std::size_t i, const Juntas& juntas) {
    DisenoDeEje& eje = resultados_.DisenoEje[i];
    DisenoDeEje& siguiente = resultados_.DisenoEje[i + 1];
    eje.AS1 = juntas.Acero.AsSup;
    eje.AS2 = juntas.Acero.AsInf;
    eje.MczI = juntas.MczI;
    eje.MczD = juntas.MczD;
    eje.PtoD = juntas.PtoD;
    siguiente.PtoI = juntas.PtoI;
    if (i != N_) return;
    siguiente.AS1 = juntas.AceroUltimo.AsSup;
    siguiente.AS2 = juntas.AceroUltimo.AsInf;
    siguiente.MczI = juntas.MczIUltimo;
}

void Diseno::DisenarJuntas() {
    const auto borrar = [this] { resultados_.DisenoEje.assign(N_ + 2, {}); };
    borrar();
    vigilancia_.Recorrer(
        1, N_, [this](std::size_t i) { return JuntasDe(i); },
        [this](std::size_t i, const Juntas& juntas) { Guardar(i, juntas); }, borrar);
}

void Diseno::DisenarTramos() {
    std::vector<DisenoDeTramo>& tramos = resultados_.DisenoTramo;
    vigilancia_.Recorrer(
        1, N_, [&](std::size_t i) { return seccion_.CalcularAcero(tramos[i].MT); },
        [&](std::size_t i, const AceroCaras& As) {
            tramos[i].AS1 = As.AsSup;
            tramos[i].AS2 = As.AsInf;
        },
        [&] {
            for (DisenoDeTramo& tramo : tramos) tramo.AS1 = tramo.AS2 = 0;
        });
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

}  // namespace trabex::losas
