#include "drawing/losa/ValoresHoja.h"

#include <algorithm>
#include <cmath>

#include "base/Round.h"
#include "slab/EsfuerzosTramo.h"

namespace trabex::dibujo::losa {

namespace {

constexpr double EstacionesPorMetro = 4;

std::size_t Tramos(const LosaCalculada& losa) {
    return losa.Datos.Tramos.size() - 1;
}

bool TieneEsfuerzos(const LosaCalculada& losa) {
    const auto& porCaso = losa.Resultados.ResultadoTramo;
    return std::all_of(porCaso.begin() + losas::CasoPermanente, porCaso.end(),
                       [&](const auto& tramos) { return tramos.size() == losa.Datos.Tramos.size(); });
}

double Reaccion(const LosaCalculada& losa, losas::CasoCarga caso, std::size_t eje) {
    const auto& juntas = losa.Resultados.ResultadoJunta[caso];
    return juntas.size() == losa.Datos.Tramos.size() + 1 && eje < juntas.size() ? juntas[eje].RV : 0;
}

}  // namespace

EjesDeHoja UbicarEjes(const losas::Losa& losa) {
    const std::size_t N = losa.Tramos.size() - 1;
    EjesDeHoja ejes;
    for (std::size_t i = 1; i <= N; ++i) ejes.Longitud += losa.Tramos[i].LT;
    ejes.EjesX.assign(N + 2, 0);
    ejes.EjesY.assign(N + 2, 0);
    ejes.EjesX[1] = -ejes.Longitud / 2;
    for (std::size_t i = 1; i <= N; ++i) ejes.EjesX[i + 1] = ejes.EjesX[i] + losa.Tramos[i].LT;
    for (std::size_t k = 1; k < losa.JuntasD.size(); ++k) {
        const losas::JuntaD& junta = losa.JuntasD[k];
        if (junta.Junta < 1 || static_cast<std::size_t>(junta.Junta) > N + 1) continue;
        ejes.EjesX[static_cast<std::size_t>(junta.Junta)] += junta.x;
        ejes.EjesY[static_cast<std::size_t>(junta.Junta)] += junta.y;
    }
    const auto [menor, mayor] = std::minmax_element(ejes.EjesY.begin() + 1, ejes.EjesY.end());
    ejes.YMinimo = *menor;
    ejes.YMaximo = *mayor;
    return ejes;
}

double PendienteDeTramo(const EjesDeHoja& ejes, std::size_t i) {
    const double dx = ejes.EjesX[i + 1] - ejes.EjesX[i];
    const double dy = ejes.EjesY[i + 1] - ejes.EjesY[i];
    return dx != 0 ? std::atan(dy / dx) : 0;
}

double EspesorDeLosa(const losas::Losa& losa) {
    return losa.OpcionMaciza ? losa.Hm : losa.Ho;
}

std::string RotuloDeLosa(const losas::Losa& losa) {
    return losa.OpcionMaciza ? "LOSA MACIZA: " : "LOSA NERVADA: ";
}

std::string TextoDeCarga(const losas::Tramo& tramo, OpcionDeCarga opcion) {
    const Separadores sinUso;
    const auto entero = [&](double valor) { return Formato(valor, "0", sinUso); };
    if (opcion == CargaPorCasos) return entero(tramo.Wp) + " + " + entero(tramo.WV);
    return entero(static_cast<double>(tramo.Wp) + tramo.WV);
}

std::string TextoDeCorrimiento(const losas::JuntaD& junta, const Separadores& separadores) {
    const auto numero = [&](double valor) { return Formato(valor, "0.00", separadores); };
    if (junta.x == 0) return numero(junta.y);
    if (junta.y == 0) return numero(junta.x);
    return numero(junta.x) + " ; " + numero(junta.y);
}

ExtremosDeTramo ExtremosDe(const LosaCalculada& losa, std::size_t i) {
    if (!TieneEsfuerzos(losa)) return {};
    const losas::ExtremosMayorados m = losas::MayorarExtremos(losa.Resultados, losa.Generales, i);
    const losas::DisenoDeTramo tramo = DisenoEnTramo(losa, i);
    return {m.Mi, m.Vi, m.Mj, m.Vj, tramo.MT, tramo.x};
}

std::vector<PuntoDiagrama> EstacionesDeTramo(const LosaCalculada& losa, std::size_t i, double pendiente) {
    const losas::Tramo& tramo = losa.Datos.Tramos[i];
    const double estaciones = Round(tramo.LT * EstacionesPorMetro);
    constexpr double demasiadas = 100000;  // a span of 25 km
    if (!TieneEsfuerzos(losa) || !(estaciones >= 1 && estaciones < demasiadas)) return {};

    const ExtremosDeTramo extremos = ExtremosDe(losa, i);
    const double paso = tramo.LT / estaciones;
    losas::EstacionPuntual puntual;
    std::vector<PuntoDiagrama> puntos;
    double d = 0;
    for (int k = 0; k <= static_cast<int>(estaciones); ++k) {
        do {
            PuntoDiagrama punto{d, 0, 0};
            losas::EsfuerzosEnSeccion(tramo, losa.Generales, d, std::cos(pendiente), extremos.MA, extremos.VA,
                                      puntual, punto.M, punto.V);
            puntos.push_back(punto);
        } while (puntual.RepitaEstacion);
        d += paso;
    }
    return puntos;
}

ReaccionPorMetro ReaccionEnEje(const LosaCalculada& losa, std::size_t eje) {
    const double ancho = losa.Datos.OpcionMaciza ? 1 : losa.Datos.So;
    const double CP = Reaccion(losa, losas::CasoPermanente, eje) / ancho;
    const double CV = Reaccion(losa, losas::CasoVariable, eje) / ancho;
    return {CP, CV, CP + CV};
}

double ReaccionMayorada(const LosaCalculada& losa, std::size_t eje) {
    return losas::Mayorar(losa.Generales, Reaccion(losa, losas::CasoPermanente, eje),
                          Reaccion(losa, losas::CasoVariable, eje));
}

double MomentoSuperior(const LosaCalculada& losa, std::size_t eje) {
    const std::size_t N = Tramos(losa);
    const double M = eje <= N ? ExtremosDe(losa, eje).MA : ExtremosDe(losa, N).MB;
    return std::min(M, 0.0);
}

losas::DisenoDeEje DisenoEnEje(const LosaCalculada& losa, std::size_t eje) {
    const auto& ejes = losa.Resultados.DisenoEje;
    return ejes.size() == losa.Datos.Tramos.size() + 1 ? ejes[eje] : losas::DisenoDeEje{};
}

losas::DisenoDeTramo DisenoEnTramo(const LosaCalculada& losa, std::size_t tramo) {
    const auto& tramos = losa.Resultados.DisenoTramo;
    return tramos.size() == losa.Datos.Tramos.size() ? tramos[tramo] : losas::DisenoDeTramo{};
}

double AceroMinimo(const losas::Losa& losa, const DatosGenerales& generales) {
    if (losa.OpcionMaciza) return ((losa.Hm - generales.D8) * 100) * ((losa.Bm * 100) * 0.002);
    return (14.0 / generales.FY) * (losa.Bo * 100) * ((losa.Ho - generales.D8) * 100);
}

}  // namespace trabex::dibujo::losa
