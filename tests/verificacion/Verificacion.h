#pragma once

#include <cstddef>
#include <deque>
#include <string>

namespace trabex::verificacion {

/// A thing that is compared with what others have found: how often, and how far off the worst case is. A
/// difference is relative to the greatest value of its kind in the case.
class Problema {
  public:
    Problema(std::string elemento, std::string que, std::string fuente, double limite)
        : elemento_(std::move(elemento)), que_(std::move(que)), fuente_(std::move(fuente)), limite_(limite) {}

    /// One more comparison of the current case.
    void Comparar(double obtenido, double esperado, double escala);
    void NuevoCaso() { ++casos_; }

    const std::string& Elemento() const { return elemento_; }
    const std::string& Que() const { return que_; }
    const std::string& Fuente() const { return fuente_; }
    std::size_t Casos() const { return casos_; }
    double Peor() const { return peor_; }
    double Limite() const { return limite_; }
    /// It was compared, and every difference is within its limit.
    bool Cumple() const { return casos_ > 0 && peor_ <= limite_; }

  private:
    std::string elemento_, que_, fuente_;
    double limite_;
    std::size_t casos_ = 0;
    double peor_ = 0;
};

/// All problems, in the order of the page. References to them stay good.
using Problemas = std::deque<Problema>;

void VerificarLosas(Problemas& problemas);
void VerificarEscaleras(Problemas& problemas);
void VerificarHelices(Problemas& problemas);
void VerificarMarcus(Problemas& problemas);
void VerificarSecciones(Problemas& problemas);

/// The page for the engineer. Differences are told as the power of ten above them, so that it is the same
/// text on every machine.
std::string Pagina(const Problemas& problemas);

}  // namespace trabex::verificacion
