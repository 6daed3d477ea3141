#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "base/Aviso.h"
#include "base/ErrorEjecucion.h"
#include "base/Formatos.h"
#include "base/RefuerzoFlexion.h"

namespace trabex {

/// Notices about a row of stations, each told once with the stations that it holds for.
class AvisosPorEstacion {
  public:
    void Anotar(Gravedad peso, const std::string& texto, std::size_t estacion);

    /// Stations go by `nombre`, runs of them from the first to the last:
    /// "Tramo, X = 0,00 m a 0,96 m; 1,92 m" for the part "Tramo, X = ".
    Avisos Escribir(const std::string& parte, const std::function<std::string(std::size_t)>& nombre) const;

  private:
    struct Nota {
        Gravedad Peso;
        std::string Texto;
        std::vector<std::size_t> Estaciones;  ///< rising
    };
    std::vector<Nota> notas_;
};

/// Steel in compression, and what comes out negative, of a section that bends in the flight's plane, and
/// theoretical steel below `minimo`.
void AnotarFlexion(AvisosPorEstacion& avisos, std::size_t estacion, const AcerosFlexion& acero, double minimo,
                   const Separadores& numeros);

/// The same of a section that bends about its other axis, for which only the steel in tension is told.
void AnotarLateral(AvisosPorEstacion& avisos, std::size_t estacion, const AcerosFlexion& acero);

/// Stirrups closer than they can be built, cm.
void AnotarEstribos(AvisosPorEstacion& avisos, std::size_t estacion, double separacion);

/// A calculation that was cut short.
Aviso AvisoDeError(const ErrorEjecucion& error);

}  // namespace trabex
