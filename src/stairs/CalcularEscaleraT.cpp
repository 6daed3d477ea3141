#include "stairs/CalcularEscaleraT.h"

#include <cmath>

#include "base/VigilanciaFlotante.h"
#include "stairs/DisenoEscaleraT.h"
#include "stairs/EstaticaEscaleraT.h"

namespace trabex::escaleras {

namespace {

constexpr std::size_t UltimaEstacion = 10;
constexpr std::size_t UltimoDescanso = 7;
constexpr int GradosPorEstacion = 15;

/// The calculation of one stair, step by step. What a step leaves is looked at for faults before it is
/// stored.
class Calculo {
  public:
    Calculo(const DatosEscaleraT& escalera, const DatosGenerales& generales, ResultadosEscaleraT& resultados)
        : escalera_(escalera), generales_(generales), resultados_(resultados), estatico_(escalera) {
        resultados_.Estatica = {};
        resultados_.TramoT.assign(UltimaEstacion + 1, {});
        resultados_.DescansoT.assign(UltimoDescanso + 1, {});
        vigilancia_.Comprobar();
        resultados_.Estatica = estatico_.Estatica();
    }

    void Ejecutar() {
        CalcularTramo();
        CalcularEstribos();
        CalcularDescanso();
        CalcularReacciones();
    }

  private:
    void CalcularTramo();
    void CalcularEstribos();
    void CalcularDescanso();
    void CalcularReacciones();
    double PasoDeEstacion() const { return escalera_.L / 10; }

    const VigilanciaFlotante vigilancia_;  // first: it watches the statics too
    const DatosEscaleraT& escalera_;
    const DatosGenerales& generales_;
    ResultadosEscaleraT& resultados_;
    const CalculoEstaticoT estatico_;
};

/// The greatest of 0 and the two absolute shears.
double EnvolventeDeCorte(const EscaleraTramoPunto& punto) {
    double corte = 0;
    if (std::fabs(punto.CorteTotal) > corte) corte = std::fabs(punto.CorteTotal);
    if (std::fabs(punto.CortePermanente) > corte) corte = std::fabs(punto.CortePermanente);
    return corte;
}

void Calculo::CalcularTramo() {
    const double dX = PasoDeEstacion();
    double X = 0;
    for (EscaleraTramoPunto& punto : resultados_.TramoT) {
        EscaleraTramoPunto calculado = estatico_.EsfuerzosTramo(X);
        vigilancia_.Comprobar();
        punto = calculado;
        DisenarFlexionTramo(escalera_, generales_, calculado);
        vigilancia_.Comprobar();
        punto = calculado;
        punto.CorteEnvolvente = EnvolventeDeCorte(punto);
        X += dX;
    }
}

/// From the support to the landing: a station without torsion steel takes over the bar of the one before it.
void Calculo::CalcularEstribos() {
    const double dX = PasoDeEstacion();
    double X = 0;
    double area = 0;
    for (std::size_t i = UltimaEstacion + 1; i-- > 0;) {
        EscaleraTramoPunto& punto = resultados_.TramoT[i];
        const EstribosTramo estribos = CalculeEstribos(punto.CorteEnvolvente, punto.Torsor,
                                                       resultados_.Estatica, X, escalera_, generales_, area);
        vigilancia_.Comprobar();
        punto.SeparacionEstribo = estribos.Separacion;
        punto.AreaEstribo = area;
        punto.AsTorsion = estribos.AsLongitudinal;
        X += dX;
    }
}

void Calculo::CalcularDescanso() {
    for (std::size_t j = 1; j <= UltimoDescanso; ++j) {
        const int grados = (static_cast<int>(j) - 1) * GradosPorEstacion;
        EscaleraDescansoPunto calculado = estatico_.EsfuerzosDescanso((grados * 3.14159265358979) / 180);
        vigilancia_.Comprobar();
        resultados_.DescansoT[j] = calculado;
        DisenarDescanso(escalera_, generales_, calculado);
        vigilancia_.Comprobar();
        resultados_.DescansoT[j] = calculado;
    }
}

void Calculo::CalcularReacciones() {
    const EscaleraTramoPunto& apoyo = resultados_.TramoT[UltimaEstacion];
    const double seno = std::sin(resultados_.Estatica.Alfa);
    const double coseno = std::cos(resultados_.Estatica.Alfa);
    const double vertical = seno * apoyo.Axial + coseno * apoyo.CorteTotal;
    // A sum, though the projections on the horizontal subtract: the sheets show this value.
    const double horizontal = coseno * apoyo.Axial + seno * apoyo.CorteTotal;
    vigilancia_.Comprobar();
    resultados_.ReaccionVertical = vertical;
    resultados_.ReaccionHorizontal = horizontal;
}

}  // namespace

void CalcularEscaleraT(const DatosEscaleraT& escalera, const DatosGenerales& generales,
                       ResultadosEscaleraT& resultados) {
    if (escalera.L == 0 || escalera.B == 0 || escalera.H == 0) return;
    resultados.Error.reset();
    try {
        Calculo(escalera, generales, resultados).Ejecutar();
    } catch (const ErrorEjecucion& error) {
        resultados.Error = error;
    }
}

}  // namespace trabex::escaleras
