#pragma once

#include <cstddef>
#include <deque>
#include <string>

namespace trabex::verificacion {

/// A thing that is compared with what others have found: how often, and how far off the worst case is. A
/// difference is relative to the greatest value of its kind in the case.
struct Problema {
    Problema(std::string elemento, std::string que, std::string fuente, double limite)
        : Elemento(std::move(elemento)), Que(std::move(que)), Fuente(std::move(fuente)), Limite(limite) {}

    /// One more comparison of the current case.
    void Comparar(double obtenido, double esperado, double escala);
    void NuevoCaso() { ++Casos; }
    /// It was compared, and every difference is within its limit.
    bool Cumple() const { return Casos > 0 && Peor <= Limite; }

    std::string Elemento, Que, Fuente;
    double Limite;
    std::size_t Casos = 0;
    double Peor = 0;
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
