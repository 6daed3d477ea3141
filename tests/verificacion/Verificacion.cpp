#include "Verificacion.h"

#include <algorithm>
#include <cmath>

namespace trabex::verificacion {

namespace {

constexpr int MenorPotencia = -12;  // what lies below is the last bits of a double

constexpr const char* Principio = R"(# Verificación de los cálculos

Esta página la escribe un programa que se corre con cada cambio del sistema: compara los resultados de cada elemento con
soluciones cerradas, coeficientes publicados, otros métodos de cálculo y las leyes de la estática. Si una diferencia pasa
de su límite, el cambio no se acepta.

Cada diferencia es relativa al mayor valor de su clase en el caso (por ejemplo, al mayor momento de la losa), y se da la
del peor de los casos, redondeada hacia arriba a una potencia de diez. Donde la fuente da tres o cuatro cifras, o un método
aproximado, el límite lo dice.
)";

std::string Potencia(double valor) {
    const int potencia = valor > 0
                             ? std::max(MenorPotencia, static_cast<int>(std::ceil(std::log10(valor) - 1e-9)))
                             : MenorPotencia;
    return "10^" + std::to_string(potencia);
}

}  // namespace

void Problema::Comparar(double obtenido, double esperado, double escala) {
    const double diferencia = std::fabs(obtenido - esperado) / escala;
    // A difference that is no number is the worst of all.
    Peor = diferencia <= HUGE_VAL ? std::max(Peor, diferencia) : HUGE_VAL;
}

std::string Pagina(const Problemas& problemas) {
    std::string texto = Principio;
    std::string elemento;
    int numero = 0;
    for (const Problema& problema : problemas) {
        if (problema.Elemento != elemento) {
            elemento = problema.Elemento;
            texto += "\n## " + elemento +
                     "\n\n| No. | Qué se compara | Con qué | Casos | Diferencia | Límite |\n"
                     "|---|---|---|---|---|---|\n";
        }
        texto += "| " + std::to_string(++numero) + " | " + problema.Que + " | " + problema.Fuente + " | " +
                 std::to_string(problema.Casos) + " | " + Potencia(problema.Peor) + " | " +
                 Potencia(problema.Limite) + " |\n";
    }
    return texto;
}

}  // namespace trabex::verificacion
