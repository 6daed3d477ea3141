#include "stairs/Avisos.h"

#include "base/AvisosPorEstacion.h"
#include "base/RefuerzoEscalera.h"
#include "stairs/DisenoEscaleraT.h"
#include "stairs/EstaticaEscaleraT.h"

namespace trabex::escaleras {

namespace {

constexpr double CentimetrosPorMetro = 100;

Avisos AvisosDelTramo(const EscaleraCalculada& escalera, const Separadores& numeros) {
    const auto& [d, g, r] = escalera;
    AvisosPorEstacion avisos;
    const double minimo = AceroMinimoTramo(escalera, CentimetrosPorMetro);
    for (std::size_t i = 0; i <= UltimaEstacion; ++i) {
        const EscaleraTramoPunto& punto = r.TramoT[i];
        for (const double M : {punto.EnvolventeNegativa, punto.EnvolventePositiva})
            AnotarFlexion(avisos, i, AcerosDeEscalera(M, d.B, d.HT, g), minimo, numeros);
        AnotarLateral(avisos, i, AcerosDeEscalera(punto.MomentoY, d.HT, d.B, g));
        AnotarEstribos(avisos, i, punto.SeparacionEstribo);
    }
    return avisos.Escribir("Tramo, X = ", [&](std::size_t i) {
        return Formato(XDeEstacion(escalera.Datos, i), "#,##0.00", numeros) + " m";
    });
}

Avisos AvisosDelDescanso(const EscaleraCalculada& escalera, const Separadores& numeros) {
    const auto& [d, g, r] = escalera;
    AvisosPorEstacion avisos;
    const double minimo = AceroMinimoDescanso(escalera, CentimetrosPorMetro);
    for (std::size_t j = 1; j <= UltimoDescanso; ++j) {
        const EscaleraDescansoPunto& punto = r.DescansoT[j];
        AnotarFlexion(avisos, j, AcerosDeEscalera(punto.MomentoTotal, d.B, d.Hd, g), minimo, numeros);
        AnotarLateral(avisos, j, AcerosDeEscalera(punto.MomentoY, d.Hd, d.B, g));
        if (!punto.FallaCorte.empty()) avisos.Anotar(Gravedad::Falla, "El descanso falla por corte.", j);
    }
    return avisos.Escribir("Descanso, θ = ",
                           [](std::size_t j) { return std::to_string(GradosDeDescanso(j)) + "°"; });
}

}  // namespace

Avisos AvisosDe(const EscaleraCalculada& escalera, const Separadores& numeros) {
    // A stair without measures leaves the results of the one before it.
    if (!TieneMedidas(escalera.Datos) || escalera.Resultados.TramoT.empty()) return {};
    if (escalera.Resultados.Error) return {AvisoDeError(*escalera.Resultados.Error)};
    Avisos avisos = AvisosDelTramo(escalera, numeros);
    const Avisos otros = AvisosDelDescanso(escalera, numeros);
    avisos.insert(avisos.end(), otros.begin(), otros.end());
    return avisos;
}

}  // namespace trabex::escaleras
