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
    Diseno(const Losa& losa, const DatosGenerales& generales, const Pasos& pasos, double total,
           ResultadosLosa& resultados)
        : losa_(losa),
          generales_(generales),
          pasos_(pasos),
          resultados_(resultados),
          N_(losa.Tramos.size() - 1),
          seccion_(pasos([&] { return DisenoSeccion(losa, generales); })),
          dibujo_(pasos([&] { return CoordenarJuntas(losa, total / 2); })) {}

    void Ejecutar() {
        DisenarJuntas();
        DisenarTramos();
    }

  private:
    void DisenarJuntas();
    void DisenarTramos();
    double Coseno(std::size_t i) const;
    void DisenarJunta(std::size_t j, double M);
    void CalcularMacizados(std::size_t i, double C, const ExtremosMayorados& tramo);
    void CalcularInflexiones(std::size_t i, double C, const ExtremosMayorados& tramo);

    const Losa& losa_;
    const DatosGenerales& generales_;
    const Pasos& pasos_;
    ResultadosLosa& resultados_;
    const std::size_t N_;
    const DisenoSeccion seccion_;
    const CoordenadasJuntas dibujo_;  // centred on 0: they serve only to get the cosines
};

double Diseno::Coseno(std::size_t i) const {
    const double dx = dibujo_.X[i + 1] - dibujo_.X[i];
    const double dy = dibujo_.Y[i + 1] - dibujo_.Y[i];
    if (dx == 0 || dy == 0) return 1;
    return std::cos(std::atan(dy / dx));
}

/// Joint after joint. The steel of a joint comes from the moment at the start of the span to its right; only
/// the last joint reads the end of a span.
void Diseno::DisenarJuntas() {
    resultados_.DisenoEje.assign(N_ + 2, {});
    for (std::size_t i = 1; i <= N_; ++i) {
        const double C = pasos_([this, i] { return Coseno(i); });
        const ExtremosMayorados tramo =
            pasos_([this, i] { return MayorarExtremos(resultados_, generales_, i); });
        DisenarJunta(i, tramo.Mi);
        if (i == N_) DisenarJunta(N_ + 1, tramo.Mj);
        if (!losa_.OpcionMaciza && losa_.Ejes[i].Tipo != SinApoyo) CalcularMacizados(i, C, tramo);
        CalcularInflexiones(i, C, tramo);
    }
}

void Diseno::DisenarJunta(std::size_t j, double M) {
    const AceroCaras As = pasos_([&] { return seccion_.CalcularAcero(M); });
    resultados_.DisenoEje[j].AS1 = As.AsSup;
    resultados_.DisenoEje[j].AS2 = As.AsInf;
}

/// The cosine of span i serves both sides of its joint, and the last joint is judged with the number and the
/// support of the one before it.
void Diseno::CalcularMacizados(std::size_t i, double C, const ExtremosMayorados& tramo) {
    const ExtremosMayorados izquierdo =
        pasos_([this, i] { return MayorarExtremos(resultados_, generales_, i - 1); });
    const auto macizado = [&](double V, double M) {
        return pasos_([&] { return seccion_.CalcularMacizado(i, V, M, C); });
    };
    resultados_.DisenoEje[i].MczI = macizado(izquierdo.Vj, izquierdo.Mj);
    resultados_.DisenoEje[i].MczD = macizado(tramo.Vi, tramo.Mi);
    if (i == N_) resultados_.DisenoEje[i + 1].MczI = macizado(tramo.Vj, tramo.Mj);
}

void Diseno::CalcularInflexiones(std::size_t i, double C, const ExtremosMayorados& tramo) {
    const PuntosInflexion p =
        pasos_([&] { return CalcularInflexion(losa_.Tramos[i], generales_, tramo.Vi, tramo.Mi, C); });
    const double Ls = pasos_([&] { return losa_.Tramos[i].LT / C; });
    const auto dentro = [Ls](double x) { return x > 0 && Round(x, 2) < Round(Ls, 2); };
    resultados_.DisenoEje[i].PtoD = pasos_([&] { return dentro(p.salida2) ? p.salida2 : 0; });
    resultados_.DisenoEje[i + 1].PtoI = pasos_([&] { return dentro(p.salida1) ? Ls - p.salida1 : 0; });
}

void Diseno::DisenarTramos() {
    for (std::size_t i = 1; i <= N_; ++i) {
        DisenoDeTramo& tramo = resultados_.DisenoTramo[i];
        const AceroCaras As = pasos_([&] { return seccion_.CalcularAcero(tramo.MT); });
        tramo.AS1 = As.AsSup;
        tramo.AS2 = As.AsInf;
    }
}

void AnalizarYDisenar(const Losa& losa, const DatosGenerales& generales, const Pasos& pasos,
                      ResultadosLosa& resultados) {
    Analizar(losa, generales, pasos, resultados);
    const double total = pasos([&] {
        double suma = 0;
        for (const Tramo& tramo : losa.Tramos) suma += tramo.LT;
        return suma;
    });
    if (total == 0) return;
    Diseno(losa, generales, pasos, total, resultados).Ejecutar();
}

}  // namespace

void CalcularLosa(const Losa& losa, const DatosGenerales& generales, ResultadosLosa& resultados) {
    if (!SePuedeAnalizar(losa)) return;
    resultados.Error.reset();
    try {
        Vigilar([&](const Pasos& pasos) { AnalizarYDisenar(losa, generales, pasos, resultados); });
    } catch (const ErrorEjecucion& error) {
        resultados.Error = error;
    }
}

}  // namespace trabex::losas
