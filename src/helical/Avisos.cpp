#include "helical/Avisos.h"

#include "base/AvisosPorEstacion.h"
#include "base/RefuerzoEscalera.h"
#include "helical/EstacionesHelice.h"

namespace trabex::helices {

namespace {

void AvisarIntervalo(const DatosEscaleraH& e, const Separadores& numeros, Avisos& avisos) {
    const EstacionesHelice estaciones = EstacionesDe(e);
    if (estaciones.NEst() == 0) {
        avisos.push_back({Gravedad::Falla, "El intervalo no da ninguna estación.", ""});
        return;
    }
    if (estaciones.QuedanCortas()) {
        avisos.push_back(
            {Gravedad::Advertencia, "El intervalo no da una estación en el centro.", "Tramo superior"});
        avisos.push_back(
            {Gravedad::Advertencia, "El intervalo no da una estación en el apoyo.", "Tramo inferior"});
    }
    if (e.Angulo / 2 != estaciones.Rp) {
        avisos.push_back({Gravedad::Nota,
                          "El apoyo está a " + Formato(e.Angulo / 2, "0.00", numeros) +
                              "° del centro y las estaciones llegan, como mucho, a " +
                              std::to_string(estaciones.Rp) + "°.",
                          ""});
    }
}

Avisos AvisosDelTramo(const DatosEscaleraH& e, const DatosGenerales& g, bool superior,
                      const ResultadosEscaleraH& r, const Separadores& numeros) {
    const std::vector<EstacionEscaleraH>& tramo = superior ? r.TramoSuperior : r.TramoInferior;
    AvisosPorEstacion avisos;
    for (std::size_t i = 1; i <= r.NEst; ++i) {
        AnotarFlexion(avisos, i, AcerosDeEscalera(tramo[i].MX, e.B, e.T, g), tramo[i].ASMin, numeros);
        AnotarLateral(avisos, i, AcerosDeEscalera(tramo[i].MY, e.T, e.B, g));
        AnotarEstribos(avisos, i, tramo[i].SEP);
    }
    const EstacionesHelice estaciones = EstacionesDe(e);
    return avisos.Escribir(superior ? "Tramo superior, θ = " : "Tramo inferior, θ = ", [&](std::size_t i) {
        return std::to_string(superior ? estaciones.GradosSuperior(i) : estaciones.GradosInferior(i)) + "°";
    });
}

}  // namespace

Avisos AvisosDe(const DatosEscaleraH& escalera, const DatosGenerales& generales,
                const ResultadosEscaleraH& resultados, const Separadores& numeros) {
    if (resultados.Error) return {AvisoDeError(*resultados.Error)};
    if (resultados.TramoSuperior.empty()) return {};
    Avisos avisos;
    AvisarIntervalo(escalera, numeros, avisos);
    for (const bool superior : {true, false}) {
        const Avisos otros = AvisosDelTramo(escalera, generales, superior, resultados, numeros);
        avisos.insert(avisos.end(), otros.begin(), otros.end());
    }
    return avisos;
}

}  // namespace trabex::helices
