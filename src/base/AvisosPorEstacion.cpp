#include "base/AvisosPorEstacion.h"

#include <algorithm>

namespace trabex {

namespace {

constexpr double NadaDeAcero = 0.005;          // cm²: what two decimals don't show
constexpr double SeparacionConstruible = 5.0;  // cm

std::string Lugar(const std::vector<std::size_t>& estaciones,
                  const std::function<std::string(std::size_t)>& nombre) {
    std::string lugar;
    for (std::size_t i = 0; i < estaciones.size();) {
        std::size_t j = i;
        while (j + 1 < estaciones.size() && estaciones[j + 1] == estaciones[j] + 1) ++j;
        if (!lugar.empty()) lugar += "; ";
        lugar += nombre(estaciones[i]);
        if (j > i) lugar += " a " + nombre(estaciones[j]);
        i = j + 1;
    }
    return lugar;
}

}  // namespace

void AvisosPorEstacion::Anotar(Gravedad peso, const std::string& texto, std::size_t estacion) {
    auto nota = std::find_if(notas_.begin(), notas_.end(), [&](const Nota& n) { return n.Texto == texto; });
    if (nota == notas_.end()) nota = notas_.insert(nota, {peso, texto, {}});
    if (nota->Estaciones.empty() || nota->Estaciones.back() != estacion) nota->Estaciones.push_back(estacion);
}

Avisos AvisosPorEstacion::Escribir(const std::string& parte,
                                   const std::function<std::string(std::size_t)>& nombre) const {
    Avisos avisos;
    for (const Nota& nota : notas_)
        avisos.push_back({nota.Peso, nota.Texto, parte + Lugar(nota.Estaciones, nombre)});
    return avisos;
}

void AnotarFlexion(AvisosPorEstacion& avisos, std::size_t estacion, const AcerosFlexion& acero, double minimo,
                   const Separadores& numeros) {
    if (acero.Compresion < 0) {
        avisos.Anotar(Gravedad::Falla,
                      "El acero a compresión sale negativo: la sección es demasiado delgada para su "
                      "recubrimiento.",
                      estacion);
    }
    if (acero.Compresion > NadaDeAcero)
        avisos.Anotar(Gravedad::Nota, "La sección necesita acero a compresión.", estacion);
    if (acero.Traccion > NadaDeAcero && acero.Traccion < minimo) {
        avisos.Anotar(
            Gravedad::Nota,
            "El acero teórico es menor que el mínimo de " + Formato(minimo, "#,##0.00", numeros) + " cm².",
            estacion);
    }
}

void AnotarLateral(AvisosPorEstacion& avisos, std::size_t estacion, const AcerosFlexion& acero) {
    if (acero.Compresion < 0) {
        avisos.Anotar(Gravedad::Falla,
                      "El acero a compresión de la flexión lateral sale negativo: la sección es demasiado "
                      "angosta para su recubrimiento.",
                      estacion);
    }
    if (acero.Compresion > NadaDeAcero) {
        avisos.Anotar(Gravedad::Advertencia,
                      "La flexión lateral necesita acero a compresión, que no está en el acero lateral.",
                      estacion);
    }
}

void AnotarEstribos(AvisosPorEstacion& avisos, std::size_t estacion, double separacion) {
    if (separacion > 0 && separacion < SeparacionConstruible)
        avisos.Anotar(Gravedad::Advertencia, "Los estribos quedan a menos de 5 cm.", estacion);
}

Aviso AvisoDeError(const ErrorEjecucion& error) {
    return {Gravedad::Falla,
            "El cálculo terminó con el error " + std::to_string(error.Codigo()) + " (" + error.Texto() +
                "): los resultados están incompletos.",
            ""};
}

}  // namespace trabex
