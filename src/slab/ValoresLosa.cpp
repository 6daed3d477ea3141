#include "slab/ValoresLosa.h"

#include <algorithm>
#include <cmath>

#include "base/AceroMinimo.h"
#include "base/Round.h"
#include "slab/DisenoSeccion.h"
#include "slab/EsfuerzosTramo.h"

namespace trabex::losas {

namespace {

constexpr double EstacionesPorMetro = 4;

bool TieneEsfuerzos(const LosaCalculada& losa) {
    const auto& porCaso = losa.Resultados.ResultadoTramo;
    return std::all_of(porCaso.begin() + CasoPermanente, porCaso.end(),
                       [&](const auto& tramos) { return tramos.size() == losa.Datos.Tramos.size(); });
}

Reaccion ReaccionDe(const LosaCalculada& losa, CasoCarga caso, std::size_t eje) {
    const std::vector<EstadoJunta>& juntas = losa.Resultados.ResultadoJunta[caso];
    if (juntas.size() != losa.Datos.Tramos.size() + 1) return {};
    return {juntas[eje].RV, juntas[eje].RH};
}

/// The stations of a span from its first axis on.
class Recorrido {
  public:
    Recorrido(const LosaCalculada& losa, std::size_t i, double pendiente)
        : losa_(losa),
          tramo_(losa.Datos.Tramos[i]),
          C_(std::cos(pendiente)),
          extremos_(ExtremosDe(losa, i)) {}

    PuntoDiagrama En(double d) {
        PuntoDiagrama punto{d, 0, 0};
        EsfuerzosEnSeccion(tramo_, losa_.Generales, d, C_, extremos_.MA, extremos_.VA, puntual_, punto.M,
                           punto.V);
        return punto;
    }
    /// The station is to be asked for once more: it has a point load.
    bool Repite() const { return puntual_.RepitaEstacion; }

  private:
    const LosaCalculada& losa_;
    const Tramo& tramo_;
    double C_;
    ExtremosDeTramo extremos_;
    EstacionPuntual puntual_;
};

}  // namespace

ExtremosDeTramo ExtremosDe(const LosaCalculada& losa, std::size_t i) {
    if (!TieneEsfuerzos(losa)) return {};
    const ExtremosMayorados m = MayorarExtremos(losa.Resultados, losa.Generales, i);
    const DisenoDeTramo tramo = DisenoEnTramo(losa, i);
    return {m.Mi, m.Vi, m.Mj, m.Vj, tramo.MT, tramo.x};
}

std::vector<PuntoDiagrama> EstacionesDeTramo(const LosaCalculada& losa, std::size_t i, double pendiente) {
    const Tramo& tramo = losa.Datos.Tramos[i];
    const double estaciones = Round(tramo.LT * EstacionesPorMetro);
    constexpr double demasiadas = 100000;  // a span of 25 km
    if (!TieneEsfuerzos(losa) || !(estaciones >= 1 && estaciones < demasiadas)) return {};

    const double paso = tramo.LT / estaciones;
    Recorrido recorrido(losa, i, pendiente);
    std::vector<PuntoDiagrama> puntos;
    double d = 0;
    for (int k = 0; k <= static_cast<int>(estaciones); ++k) {
        do {
            puntos.push_back(recorrido.En(d));
        } while (recorrido.Repite());
        d += paso;
    }
    return puntos;
}

std::optional<PuntoDiagrama> PuntoDeTramo(const LosaCalculada& losa, std::size_t i, double pendiente,
                                          double d) {
    if (!TieneEsfuerzos(losa)) return std::nullopt;
    Recorrido recorrido(losa, i, pendiente);
    const PuntoDiagrama punto = recorrido.En(d);
    return recorrido.Repite() ? recorrido.En(d) : punto;
}

AceroCaras AceroPara(const LosaCalculada& losa, double M) {
    return DisenoSeccion(losa.Datos, losa.Generales).CalcularAcero(M);
}

ReaccionesPorMetro ReaccionesEnEje(const LosaCalculada& losa, std::size_t eje) {
    const double ancho = losa.Datos.OpcionMaciza ? 1 : losa.Datos.So;
    const Reaccion permanente = ReaccionDe(losa, CasoPermanente, eje);
    const Reaccion variable = ReaccionDe(losa, CasoVariable, eje);
    return {{permanente.V / ancho, permanente.H / ancho},
            {variable.V / ancho, variable.H / ancho},
            {(permanente.V + variable.V) / ancho, (permanente.H + variable.H) / ancho}};
}

double ReaccionMayorada(const LosaCalculada& losa, std::size_t eje) {
    return Mayorar(losa.Generales, ReaccionDe(losa, CasoPermanente, eje).V,
                   ReaccionDe(losa, CasoVariable, eje).V);
}

double MomentoSuperior(const LosaCalculada& losa, std::size_t eje) {
    const std::size_t N = NumeroTramos(losa.Datos);
    const double M = eje <= N ? ExtremosDe(losa, eje).MA : ExtremosDe(losa, N).MB;
    return std::min(M, 0.0);
}

DisenoDeEje DisenoEnEje(const LosaCalculada& losa, std::size_t eje) {
    const auto& ejes = losa.Resultados.DisenoEje;
    return ejes.size() == losa.Datos.Tramos.size() + 1 ? ejes[eje] : DisenoDeEje{};
}

DisenoDeTramo DisenoEnTramo(const LosaCalculada& losa, std::size_t tramo) {
    const auto& tramos = losa.Resultados.DisenoTramo;
    return tramos.size() == losa.Datos.Tramos.size() ? tramos[tramo] : DisenoDeTramo{};
}

double AceroMinimo(const Losa& losa, const DatosGenerales& generales) {
    const auto [ancho, alto] = SeccionDeCalculo(losa);
    const double b = ancho * 100;
    const double d = (alto - generales.D8) * 100;
    return losa.OpcionMaciza ? AceroMinimoDeLosa(b, d) : AceroMinimoDeViga(generales.FY, b, d);
}

}  // namespace trabex::losas
