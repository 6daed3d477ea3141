#include "helical/CalcularEscaleraH.h"

#include <algorithm>

#include "base/Enteros.h"
#include "base/RefuerzoEscalera.h"
#include "base/Round.h"
#include "base/VigilanciaFlotante.h"
#include "helical/DisenoEscaleraH.h"
#include "helical/EstaticaEscaleraH.h"

namespace trabex::helices {

namespace {

using Estaciones = std::vector<EstacionEscaleraH>;

/// The calculation of one helical stair, step by step.
class Calculo {
  public:
    Calculo(const DatosEscaleraH& escalera, const DatosGenerales& generales, ResultadosEscaleraH& resultados)
        : escalera_(escalera), generales_(generales), r_(resultados), fi_(escalera.Angulo / 2) {}

    void Ejecutar() {
        const CalculoEstaticoH estatico = PlantearEstatica();
        DimensionarEstaciones();
        CalcularEsfuerzos(estatico);
        CalcularReacciones(estatico);
        CalcularAreasDeTorsion(estatico.Coseno());
        DisenarFlexion(r_.TramoSuperior);
        DisenarFlexion(r_.TramoInferior);
        DisenarLateral(r_.TramoSuperior);
        DisenarLateral(r_.TramoInferior);
        DisenarEstribos();
        CopiarEstribos();
    }

  private:
    CalculoEstaticoH PlantearEstatica();
    void DimensionarEstaciones();
    void CalcularEsfuerzos(const CalculoEstaticoH& estatico);
    void LlenarEstaciones(const CalculoEstaticoH& estatico, Estaciones& tramo, double signo, int primera,
                          int paso);
    void CalcularReacciones(const CalculoEstaticoH& estatico);
    void CalcularAreasDeTorsion(double cosenoAlfa);
    void DisenarFlexion(Estaciones& tramo);
    void DisenarLateral(Estaciones& tramo);
    void DisenarEstribos();
    void CopiarEstribos();

    const VigilanciaFlotante vigilancia_;
    const DatosEscaleraH& escalera_;
    const DatosGenerales& generales_;
    ResultadosEscaleraH& r_;
    const double fi_;      // half the development, degrees
    std::int16_t Rp_ = 0;  // the same in whole degrees
};

CalculoEstaticoH Calculo::PlantearEstatica() {
    const GeometriaHelice geometria = GeometriaDe(escalera_);
    vigilancia_.Comprobar();
    r_.L = geometria.L;
    r_.Alfa = geometria.Alfa;
    const CalculoEstaticoH estatico(escalera_, r_.Alfa);
    vigilancia_.Comprobar();
    r_.X = estatico.Hiperestaticas().X;
    r_.Y = estatico.Hiperestaticas().Y;
    return estatico;
}

/// Both arrays run from 0 to one past the last station, at least.
void Calculo::DimensionarEstaciones() {
    Rp_ = Redondear16(fi_);
    const double cuantas = fi_ / escalera_.Inter + 2;
    vigilancia_.Comprobar();
    const std::int16_t NMax = Redondear16(cuantas);
    r_.NEst = 0;
    r_.TramoSuperior.clear();
    r_.TramoInferior.clear();
    if (NMax < 0) throw ErrorEjecucion(CodigoError::SubindiceFueraDeIntervalo);
    r_.TramoSuperior.resize(static_cast<std::size_t>(NMax) + 1);
    r_.TramoInferior.resize(static_cast<std::size_t>(NMax) + 1);
}

void Calculo::CalcularEsfuerzos(const CalculoEstaticoH& estatico) {
    LlenarEstaciones(estatico, r_.TramoSuperior, -1, Rp_, -escalera_.Inter);
    LlenarEstaciones(estatico, r_.TramoInferior, 1, 0, escalera_.Inter);
}

/// One half: whole degrees from `primera` on, by `paso`, while they lie from 0 to Rp.
void Calculo::LlenarEstaciones(const CalculoEstaticoH& estatico, Estaciones& tramo, double signo, int primera,
                               int paso) {
    std::size_t cuantas = 0;
    for (int c = primera; c >= 0 && c <= Rp_; c += paso) ++cuantas;
    const std::size_t caben = std::min(cuantas, tramo.size() - 1);
    r_.NEst = caben;
    vigilancia_.Recorrer(
        1, caben,
        [&](std::size_t i) {
            const int c = primera + static_cast<int>(i - 1) * paso;
            return estatico.EsfuerzosEn(EnRadianes(signo * c));
        },
        [&](std::size_t i, const EstacionEscaleraH& estacion) { tramo[i] = estacion; },
        [&] { tramo.assign(tramo.size(), {}); });
    if (caben < cuantas) throw ErrorEjecucion(CodigoError::SubindiceFueraDeIntervalo);
}

/// At the support's own angle, which no station need reach.
void Calculo::CalcularReacciones(const CalculoEstaticoH& estatico) {
    const EstacionEscaleraH apoyo = estatico.EsfuerzosEn(EnRadianes(fi_));
    const double vertical = estatico.Seno() * apoyo.N + estatico.Coseno() * apoyo.QX;
    // A sum, though the projections on the horizontal subtract: the panels show this value.
    const double horizontal = estatico.Coseno() * apoyo.N + estatico.Seno() * apoyo.QX;
    vigilancia_.Comprobar();
    r_.FV = Redondear32(vertical);
    r_.Fh = Redondear32(horizontal);
}

void Calculo::CalcularAreasDeTorsion(double cosenoAlfa) {
    const double dS = ((escalera_.R * DosPiHelice * escalera_.Inter) / 360) / cosenoAlfa;
    const auto trapecio = [dS](const Estaciones& tramo, std::size_t i) {
        return (tramo[i].MT + tramo[i + 1].MT) / 2 * dS;
    };
    double total = 0;
    for (std::size_t i = 1; i <= r_.NEst; ++i) total += trapecio(r_.TramoSuperior, i);
    double s = 0;
    for (std::size_t i = 1; i <= r_.NEst; ++i) {
        r_.TramoSuperior[i].TU = total - s;
        s += trapecio(r_.TramoSuperior, i);
    }
    s = 0;
    for (std::size_t i = 1; i <= r_.NEst; ++i) {
        r_.TramoInferior[i].TU = s * (-1);
        s -= trapecio(r_.TramoInferior, i);
    }
    vigilancia_.Comprobar();
}

void Calculo::DisenarFlexion(Estaciones& tramo) {
    struct Aceros {
        AceroCaras As;
        double Minimo;
    };
    const auto guardar = [&](std::size_t i, const Aceros& aceros) {
        tramo[i].ASXS = aceros.As.AsSup;
        tramo[i].ASXI = aceros.As.AsInf;
        tramo[i].ASMin = aceros.Minimo;
    };
    vigilancia_.Recorrer(
        1, r_.NEst,
        [&](std::size_t i) {
            return Aceros{RefuerzoEscalera(tramo[i].MX, escalera_.B, escalera_.T, generales_),
                          AceroMinimo(escalera_, generales_)};
        },
        guardar,
        [&] {
            for (std::size_t i = 1; i <= r_.NEst; ++i) guardar(i, {});
        });
}

/// The lateral moment bends the section about its other axis: width and height change places.
void Calculo::DisenarLateral(Estaciones& tramo) {
    vigilancia_.Recorrer(
        1, r_.NEst,
        [&](std::size_t i) {
            const AceroCaras As = RefuerzoEscalera(tramo[i].MY, escalera_.T, escalera_.B, generales_);
            return tramo[i].MY < 0 ? As.AsSup : As.AsInf;
        },
        [&](std::size_t i, double AsY) { tramo[i].AsY = AsY; },
        [&] {
            for (EstacionEscaleraH& estacion : tramo) estacion.AsY = 0;
        });
}

void Calculo::DisenarEstribos() {
    Estaciones& tramo = r_.TramoSuperior;
    const auto guardar = [&](std::size_t i, const EstribosHelice& estribos) {
        tramo[i].AsT = estribos.Barra;
        tramo[i].SEP = estribos.Separacion;
        tramo[i].LON = estribos.Longitudinal;
    };
    vigilancia_.Recorrer(
        1, r_.NEst,
        [&](std::size_t i) {
            return EstribosEscalera(tramo[i].QX, tramo[i].TU, escalera_.B, escalera_.T, generales_);
        },
        guardar,
        [&] {
            for (std::size_t i = 1; i <= r_.NEst; ++i) guardar(i, {});
        });
}

/// The stirrups of the lower half are those of the upper one read from the other end.
void Calculo::CopiarEstribos() {
    for (std::size_t j = 1; j <= r_.NEst; ++j) {
        const EstacionEscaleraH& espejo = r_.TramoSuperior[r_.NEst + 1 - j];
        r_.TramoInferior[j].AsT = espejo.AsT;
        r_.TramoInferior[j].SEP = espejo.SEP;
        r_.TramoInferior[j].LON = espejo.LON;
    }
}

}  // namespace

void CalcularEscaleraH(const DatosEscaleraH& escalera, const DatosGenerales& generales,
                       ResultadosEscaleraH& resultados) {
    resultados.Error.reset();
    try {
        Calculo(escalera, generales, resultados).Ejecutar();
    } catch (const ErrorEjecucion& error) {
        resultados.Error = error;
    }
}

}  // namespace trabex::helices
