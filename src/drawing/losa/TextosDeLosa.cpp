#include "drawing/losa/TextosDeLosa.h"

namespace trabex::dibujo::losa {

std::string RotuloDeLosa(const losas::Losa& losa) {
    return losa.OpcionMaciza ? "LOSA MACIZA: " : "LOSA NERVADA: ";
}

std::string TextoDeCarga(const losas::Tramo& tramo, OpcionDeCarga opcion) {
    const Separadores sinUso;
    const auto entero = [&](double valor) { return Formato(valor, "0", sinUso); };
    if (opcion == CargaPorCasos) return entero(tramo.Wp) + " + " + entero(tramo.WV);
    return entero(static_cast<double>(tramo.Wp) + tramo.WV);
}

std::string TextoDeCorrimiento(const losas::JuntaD& junta, const Separadores& separadores) {
    const auto numero = [&](double valor) { return Formato(valor, "0.00", separadores); };
    if (junta.x == 0) return numero(junta.y);
    if (junta.y == 0) return numero(junta.x);
    return numero(junta.x) + " ; " + numero(junta.y);
}

}  // namespace trabex::dibujo::losa
