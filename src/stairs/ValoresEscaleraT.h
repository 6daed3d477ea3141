#pragma once

#include <cstddef>
#include <cstdint>

#include "base/DatosGenerales.h"
#include "stairs/DatosEscaleraT.h"
#include "stairs/ResultadosEscaleraT.h"

namespace trabex::escaleras {

/// A stair with what was calculated of it. Its values below are what sheets show: stations that are not there
/// count as zeros.
struct EscaleraCalculada {
    const DatosEscaleraT& Datos;
    const DatosGenerales& Generales;
    const ResultadosEscaleraT& Resultados;
};

/// Whether the stair has the dimensions that a calculation and a drawing need.
bool TieneMedidas(const DatosEscaleraT& escalera);

/// Plan length of flight and landing, m.
double LongitudEnPlanta(const DatosEscaleraT& escalera);
/// Slope of a flight, radians.
double PendienteDeTramo(const DatosEscaleraT& escalera);

/// The steps of a flight, for the picture alone: as many treads as 0.3 m fit into its length.
struct Peldanos {
    std::int16_t Huellas = 0;
    double Huella = 0;        ///< depth of a tread, m
    double Contrahuella = 0;  ///< rise of a step along the slope, m
};
/// Throws ErrorEjecucion 11 (division by zero) when no tread fits (L up to 0.15 m) or no rise of 0.18 m (half
/// of H up to 0.09 m), and 6 past 32767 of them.
Peldanos PeldanosDe(const DatosEscaleraT& escalera);

inline constexpr std::size_t EstacionesDeTramo = 11;
inline constexpr std::size_t EstacionesDeDescanso = 7;

/// The station that a column shows, from the support (0) to the landing (10), and its distance from the
/// support, m.
EscaleraTramoPunto TramoEnColumna(const EscaleraCalculada& escalera, std::size_t columna);
double Progresiva(const DatosEscaleraT& escalera, std::size_t columna);

/// The station that a column shows, from 90 degrees (0), beside the flight, to 0 degrees (6).
EscaleraDescansoPunto DescansoEnColumna(const EscaleraCalculada& escalera, std::size_t columna);
std::int32_t AnguloDeColumna(std::size_t columna);

/// Minimum steel of a flight (AceroMinimoDeViga) and of the landing (AceroMinimoDeLosa), told beside that of
/// the stations and applied to none. With 100 units to the metre it is in cm².
double AceroMinimoTramo(const EscaleraCalculada& escalera, double unidadesPorMetro);
double AceroMinimoDescanso(const EscaleraCalculada& escalera, double unidadesPorMetro);

}  // namespace trabex::escaleras
