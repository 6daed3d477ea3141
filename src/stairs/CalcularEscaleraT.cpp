#include "stairs/CalcularEscaleraT.h"

#include <cmath>
#include <tuple>

#include "base/Angulos.h"
#include "base/VigilanciaFlotante.h"
#include "stairs/DisenoEscaleraT.h"
#include "stairs/EstaticaEscaleraT.h"
#include "stairs/ValoresEscaleraT.h"

namespace trabex::escaleras {

namespace {

/// The calculation of one stair, step by step.
class Calculo {
  public:
    Calculo(const DatosEscaleraT& escalera, const DatosGenerales& generales, const Pasos& pasos,
            ResultadosEscaleraT& resultados)
        : escalera_(escalera), generales_(generales), pasos_(pasos), r_(resultados) {}

    void Ejecutar() {
        Vaciar();
        FormarEstatica(escalera_, pasos_, r_.Estatica);
        const EsfuerzosEscaleraT esfuerzos(escalera_, r_.Estatica);
        CalcularTramo(esfuerzos);
        CalcularEstribos();
        CalcularDescanso(esfuerzos);
        CalcularReacciones();
    }

  private:
    void Vaciar();
    void CalcularTramo(const EsfuerzosEscaleraT& esfuerzos);
    void CalcularEstribos();
    void CalcularDescanso(const EsfuerzosEscaleraT& esfuerzos);
    void CalcularReacciones();

    const DatosEscaleraT& escalera_;
    const DatosGenerales& generales_;
    const Pasos& pasos_;
    ResultadosEscaleraT& r_;
};

/// Nothing of the stair before survives in a station.
void Calculo::Vaciar() {
    r_.Estatica = {};
    r_.TramoT.assign(UltimaEstacion + 1, {});
    r_.DescansoT.assign(UltimoDescanso + 1, {});
}

/// The greatest of 0 and the two absolute shears.
double EnvolventeDeCorte(const EscaleraTramoPunto& punto) {
    double corte = 0;
    if (std::fabs(punto.CorteTotal) > corte) corte = std::fabs(punto.CorteTotal);
    if (std::fabs(punto.CortePermanente) > corte) corte = std::fabs(punto.CortePermanente);
    return corte;
}

void Calculo::CalcularTramo(const EsfuerzosEscaleraT& esfuerzos) {
    for (std::size_t i = 0; i <= UltimaEstacion; ++i) {
        EscaleraTramoPunto& punto = r_.TramoT[i];
        esfuerzos.EnTramo(XDeEstacion(escalera_, i), pasos_, punto);
        DisenarFlexionTramo(escalera_, generales_, pasos_, punto);
        punto.CorteEnvolvente = EnvolventeDeCorte(punto);
    }
}

/// From the support to the landing: a station without torsion steel takes over the bar of the one before it.
void Calculo::CalcularEstribos() {
    double area = 0;
    for (std::size_t i = UltimaEstacion + 1; i-- > 0;) {
        EscaleraTramoPunto& punto = r_.TramoT[i];
        const double X = XDeEstacion(escalera_, UltimaEstacion - i);
        const EstribosTramo estribos = CalculeEstribos(punto.CorteEnvolvente, punto.Torsor, r_.Estatica, X,
                                                       escalera_, generales_, area, pasos_);
        punto.SeparacionEstribo = estribos.Separacion;
        punto.AreaEstribo = area;
        punto.AsTorsion = estribos.AsLongitudinal;
    }
}

void Calculo::CalcularDescanso(const EsfuerzosEscaleraT& esfuerzos) {
    for (std::size_t j = 1; j <= UltimoDescanso; ++j) {
        esfuerzos.EnDescanso(EnRadianes(GradosDeDescanso(j)), pasos_, r_.DescansoT[j]);
        DisenarDescanso(escalera_, generales_, pasos_, r_.DescansoT[j]);
    }
}

void Calculo::CalcularReacciones() {
    const EscaleraTramoPunto& apoyo = r_.TramoT[UltimaEstacion];
    const double seno = std::sin(r_.Estatica.Alfa);
    const double coseno = std::cos(r_.Estatica.Alfa);
    r_.ReaccionVertical = pasos_([&] { return seno * apoyo.Axial + coseno * apoyo.CorteTotal; });
    // A sum, though the projections on the horizontal subtract: the sheets show this value.
    r_.ReaccionHorizontal = pasos_([&] { return coseno * apoyo.Axial + seno * apoyo.CorteTotal; });
}

}  // namespace

void CalcularEscaleraT(const DatosEscaleraT& escalera, const DatosGenerales& generales,
                       ResultadosEscaleraT& resultados) {
    if (!TieneMedidas(escalera)) return;
    resultados.Error.reset();
    const std::tuple reacciones{resultados.ReaccionVertical, resultados.ReaccionHorizontal};
    try {
        Vigilar([&](const Pasos& pasos) {
            // Reactions that are not reached keep what they held.
            std::tie(resultados.ReaccionVertical, resultados.ReaccionHorizontal) = reacciones;
            Calculo(escalera, generales, pasos, resultados).Ejecutar();
        });
    } catch (const ErrorEjecucion& error) {
        resultados.Error = error;
    }
}

double EmpujeEstatico(const ResultadosEscaleraT& resultados) {
    if (resultados.TramoT.size() <= UltimaEstacion) return 0;
    const EscaleraTramoPunto& apoyo = resultados.TramoT[UltimaEstacion];
    return std::cos(resultados.Estatica.Alfa) * apoyo.Axial -
           std::sin(resultados.Estatica.Alfa) * apoyo.CorteTotal;
}

}  // namespace trabex::escaleras
