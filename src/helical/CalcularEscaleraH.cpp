#include "helical/CalcularEscaleraH.h"

#include <cmath>
#include <optional>
#include <tuple>

#include "base/Angulos.h"
#include "base/Enteros.h"
#include "base/RefuerzoEscalera.h"
#include "base/VigilanciaFlotante.h"
#include "helical/DisenoEscaleraH.h"
#include "helical/EstacionesHelice.h"
#include "helical/EstaticaEscaleraH.h"

namespace trabex::helices {

namespace {

using Estaciones = std::vector<EstacionEscaleraH>;

/// The stations of one helical stair, step by step, once its redundants are known.
class Calculo {
  public:
    Calculo(const DatosEscaleraH& escalera, const DatosGenerales& generales, const CalculoEstaticoH& estatico,
            const Pasos& pasos, ResultadosEscaleraH& resultados)
        : escalera_(escalera),
          generales_(generales),
          estatico_(estatico),
          pasos_(pasos),
          estaciones_(EstacionesDe(escalera)),
          r_(resultados) {}

    void Ejecutar() {
        DimensionarEstaciones();
        CalcularEsfuerzos();
        CalcularReacciones();
        CalcularAreasDeTorsion();
        DisenarFlexion(r_.TramoSuperior);
        DisenarFlexion(r_.TramoInferior);
        DisenarLateral(r_.TramoSuperior);
        DisenarLateral(r_.TramoInferior);
        DisenarEstribos();
        CopiarEstribos();
    }

  private:
    void DimensionarEstaciones();
    void CalcularEsfuerzos();
    void CalcularReacciones();
    void CalcularAreasDeTorsion();
    void DisenarFlexion(Estaciones& tramo);
    void DisenarLateral(Estaciones& tramo);
    void DisenarEstribos();
    void CopiarEstribos();

    const DatosEscaleraH& escalera_;
    const DatosGenerales& generales_;
    const CalculoEstaticoH& estatico_;
    const Pasos& pasos_;
    const EstacionesHelice estaciones_;
    ResultadosEscaleraH& r_;
};

void Calculo::DimensionarEstaciones() {
    r_.NEst = 0;
    r_.TramoSuperior.clear();
    r_.TramoInferior.clear();
    const std::size_t registros = pasos_([&] { return RegistrosPorMitad(escalera_); });
    r_.TramoSuperior.resize(registros);
    r_.TramoInferior.resize(registros);
    r_.NEst = estaciones_.NEst();
}

void Calculo::CalcularEsfuerzos() {
    for (std::size_t i = 1; i <= r_.NEst; ++i)
        estatico_.EsfuerzosEn(EnRadianes(estaciones_.GradosSuperior(i)), pasos_, r_.TramoSuperior[i]);
    for (std::size_t i = 1; i <= r_.NEst; ++i)
        estatico_.EsfuerzosEn(EnRadianes(estaciones_.GradosInferior(i)), pasos_, r_.TramoInferior[i]);
}

/// At the support's own angle, which no station need reach.
void Calculo::CalcularReacciones() {
    const double apoyo = EnRadianes(escalera_.Angulo / 2);
    const double N = pasos_([&] { return estatico_.N(apoyo); });
    const double Q = pasos_([&] { return estatico_.QX(apoyo); });
    const double seno = estatico_.Seno();
    const double coseno = estatico_.Coseno();
    r_.FV = pasos_([&] { return Redondear32(seno * N + coseno * Q); });
    // A sum, though the projections on the horizontal subtract: the panels show this value.
    r_.Fh = pasos_([&] { return Redondear32(coseno * N + seno * Q); });
}

void Calculo::CalcularAreasDeTorsion() {
    const double dS =
        pasos_([&] { return ((escalera_.R * DosPi * escalera_.Inter) / 360) / estatico_.Coseno(); });
    const auto trapecio = [dS](const Estaciones& tramo, std::size_t i) {
        return (tramo[i].MT + tramo[i + 1].MT) / 2 * dS;
    };
    double total = 0;
    for (std::size_t i = 1; i <= r_.NEst; ++i)
        total = pasos_([&] { return total + trapecio(r_.TramoSuperior, i); });
    double s = 0;
    for (std::size_t i = 1; i <= r_.NEst; ++i) {
        r_.TramoSuperior[i].TU = pasos_([&] { return total - s; });
        s = pasos_([&] { return s + trapecio(r_.TramoSuperior, i); });
    }
    s = 0;
    for (std::size_t i = 1; i <= r_.NEst; ++i) {
        r_.TramoInferior[i].TU = s * (-1);
        s = pasos_([&] { return s - trapecio(r_.TramoInferior, i); });
    }
}

void Calculo::DisenarFlexion(Estaciones& tramo) {
    for (std::size_t i = 1; i <= r_.NEst; ++i) {
        const AceroCaras As = RefuerzoEscalera(tramo[i].MX, escalera_.B, escalera_.T, generales_, pasos_);
        tramo[i].ASXS = As.AsSup;
        tramo[i].ASXI = As.AsInf;
        tramo[i].ASMin = pasos_([&] { return AceroMinimo(escalera_, generales_); });
    }
}

/// The lateral moment bends the section about its other axis: width and height change places.
void Calculo::DisenarLateral(Estaciones& tramo) {
    for (std::size_t i = 1; i <= r_.NEst; ++i) {
        const AceroCaras As = RefuerzoEscalera(tramo[i].MY, escalera_.T, escalera_.B, generales_, pasos_);
        tramo[i].AsY = tramo[i].MY < 0 ? As.AsSup : As.AsInf;
    }
}

void Calculo::DisenarEstribos() {
    for (std::size_t i = 1; i <= r_.NEst; ++i) {
        EstacionEscaleraH& estacion = r_.TramoSuperior[i];
        const EstribosHelice estribos =
            EstribosEscalera(estacion.QX, estacion.TU, escalera_.B, escalera_.T, generales_, pasos_);
        estacion.AsT = estribos.Barra;
        estacion.SEP = estribos.Separacion;
        estacion.LON = estribos.Longitudinal;
    }
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

/// Geometry and redundants. What is not reached keeps what it held.
CalculoEstaticoH PlantearEstatica(const DatosEscaleraH& escalera, ResultadosEscaleraH& r) {
    const std::tuple anteriores{r.L, r.Alfa, r.X, r.Y};
    std::optional<CalculoEstaticoH> estatico;
    Vigilar([&](const Pasos& pasos) {
        std::tie(r.L, r.Alfa, r.X, r.Y) = anteriores;
        r.L = pasos([&] { return LargoEnPlanta(escalera); });
        r.Alfa = pasos([&] { return PendienteEnGrados(escalera, r.L); });
        estatico = pasos([&] { return CalculoEstaticoH(escalera, r.Alfa); });
        r.X = estatico->Hiperestaticas().X;
        r.Y = estatico->Hiperestaticas().Y;
    });
    return *estatico;
}

}  // namespace

void CalcularEscaleraH(const DatosEscaleraH& escalera, const DatosGenerales& generales,
                       ResultadosEscaleraH& resultados) {
    resultados.Error.reset();
    const std::tuple reacciones{resultados.FV, resultados.Fh};
    try {
        const CalculoEstaticoH estatico = PlantearEstatica(escalera, resultados);
        Vigilar([&](const Pasos& pasos) {
            // Reactions that are not reached keep what they held.
            std::tie(resultados.FV, resultados.Fh) = reacciones;
            Calculo(escalera, generales, estatico, pasos, resultados).Ejecutar();
        });
    } catch (const ErrorEjecucion& error) {
        resultados.Error = error;
    }
}

double EmpujeEstatico(const DatosEscaleraH& escalera, const ResultadosEscaleraH& resultados) {
    return -resultados.X * std::sin(EnRadianes(escalera.Angulo / 2)) * escalera.W * escalera.R;
}

}  // namespace trabex::helices
