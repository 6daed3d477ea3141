#include "lote/Faltas.h"

#include <algorithm>
#include <tuple>

namespace trabex::lote {

void Faltas::Anotar(std::string salida, std::string texto) {
    const std::scoped_lock espera(turno_);
    faltas_.push_back({std::move(salida), std::move(texto)});
}

std::vector<Falta> Faltas::Todas() const {
    const std::scoped_lock espera(turno_);
    std::vector<Falta> todas = faltas_;
    std::sort(todas.begin(), todas.end(), [](const Falta& a, const Falta& b) {
        return std::tie(a.Salida, a.Texto) < std::tie(b.Salida, b.Texto);
    });
    return todas;
}

std::string SalidaDe(const std::string& salida, const char* clase, const std::string& elemento) {
    return salida + " de " + clase + " \"" + elemento + "\"";
}

}  // namespace trabex::lote
