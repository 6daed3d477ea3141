#include "stairs/ValoresEscaleraT.h"

#include <cmath>

#include "base/AceroMinimo.h"
#include "base/Enteros.h"

namespace trabex::escaleras {

namespace {
constexpr double HuellaUsual = 0.3;         // m
constexpr double ContrahuellaUsual = 0.18;  // m
constexpr std::int32_t GradosPorColumna = 15;

std::int16_t CuantosCaben(double longitud, double paso) {
    const std::int16_t cuantos = Redondear16(longitud / paso);
    if (cuantos == 0) throw ErrorEjecucion(CodigoError::DivisionPorCero);
    return cuantos;
}
}  // namespace

bool TieneMedidas(const DatosEscaleraT& escalera) {
    return escalera.L != 0 && escalera.B != 0 && escalera.H != 0;
}

double LongitudEnPlanta(const DatosEscaleraT& escalera) {
    return escalera.B + escalera.L;
}

double PendienteDeTramo(const DatosEscaleraT& escalera) {
    return std::atan((escalera.H / 2) / escalera.L);
}

Peldanos PeldanosDe(const DatosEscaleraT& escalera) {
    const std::int16_t huellas = CuantosCaben(escalera.L, HuellaUsual);
    CuantosCaben(escalera.H / 2, ContrahuellaUsual);
    const double huella = escalera.L / huellas;
    return {huellas, huella, std::tan(PendienteDeTramo(escalera)) * huella};
}

EscaleraTramoPunto TramoEnColumna(const EscaleraCalculada& escalera, std::size_t columna) {
    const auto& estaciones = escalera.Resultados.TramoT;
    const std::size_t estacion = EstacionesDeTramo - 1 - columna;
    return estacion < estaciones.size() ? estaciones[estacion] : EscaleraTramoPunto{};
}

double Progresiva(const DatosEscaleraT& escalera, std::size_t columna) {
    return static_cast<double>(columna) * (escalera.L / 10);
}

EscaleraDescansoPunto DescansoEnColumna(const EscaleraCalculada& escalera, std::size_t columna) {
    const auto& estaciones = escalera.Resultados.DescansoT;
    const std::size_t estacion = EstacionesDeDescanso - columna;
    return estacion < estaciones.size() ? estaciones[estacion] : EscaleraDescansoPunto{};
}

std::int32_t AnguloDeColumna(std::size_t columna) {
    return (static_cast<std::int32_t>(EstacionesDeDescanso - columna) - 1) * GradosPorColumna;
}

double AceroMinimoTramo(const EscaleraCalculada& escalera, double unidadesPorMetro) {
    const DatosEscaleraT& e = escalera.Datos;
    const DatosGenerales& g = escalera.Generales;
    return AceroMinimoDeViga(g.FY, e.B * unidadesPorMetro, (e.HT - g.D8) * unidadesPorMetro);
}

double AceroMinimoDescanso(const EscaleraCalculada& escalera, double unidadesPorMetro) {
    const DatosEscaleraT& e = escalera.Datos;
    return AceroMinimoDeLosa(e.B * unidadesPorMetro, (e.Hd - escalera.Generales.D8) * unidadesPorMetro);
}

}  // namespace trabex::escaleras
