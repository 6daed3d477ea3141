#pragma once

#include <mutex>
#include <string>
#include <vector>

namespace trabex::lote {

/// An output that could not be written.
struct Falta {
    std::string Salida;  ///< which one, as a person names it
    std::string Texto;   ///< why
};

/// What could not be written in a run. Any thread may add to it; the order does not depend on them.
class Faltas {
  public:
    void Anotar(std::string salida, std::string texto);
    std::vector<Falta> Todas() const;

  private:
    mutable std::mutex turno_;
    std::vector<Falta> faltas_;
};

/// How messages name an element's output: 'hoja "geometria" de la losa …'.
std::string SalidaDe(const std::string& salida, const char* clase, const std::string& elemento);

}  // namespace trabex::lote
