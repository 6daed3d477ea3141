#include "slab/ui/LectorDeLosa.h"

#include <cstdlib>

namespace trabex::losas::ui {

using namespace dibujo::losa;

std::optional<dibujo::LineaDeMira> LectorDeLosa::Mostrar(std::optional<EstacionDeHoja> estacion) {
    const HojaLosa& hoja = losas_.Estado().Hoja;
    const auto mira = estacion ? MiraDe(hoja, *estacion) : std::nullopt;
    const bool habia = estacion_.has_value();
    estacion_ = mira ? estacion : std::nullopt;
    if (estacion_)
        decir_(TextoDeLectura(hoja, losas_.Calculada(), *estacion_));
    else if (habia)
        decir_({});
    return mira;
}

std::optional<dibujo::LineaDeMira> LectorDeLosa::Apuntar(std::optional<dibujo::PuntoLienzo> lugar) {
    if (!lugar) return Mostrar(std::nullopt);
    return Mostrar(EstacionEn(losas_.Estado().Hoja, losas_.Calculada(), *lugar));
}

std::optional<dibujo::LineaDeMira> LectorDeLosa::Avanzar(int pasos) {
    auto estacion = estacion_;
    for (int k = 0; k < std::abs(pasos); ++k)
        estacion = EstacionVecina(losas_.Estado().Hoja, losas_.Calculada(), estacion, pasos > 0);
    return Mostrar(estacion);
}

std::optional<dibujo::LineaDeMira> LectorDeLosa::Releer() {
    if (!estacion_) return std::nullopt;
    return Mostrar(Releida(losas_.Estado().Hoja, losas_.Calculada(), *estacion_));
}

void LectorDeLosa::Abrir(dibujo::PuntoLienzo lugar) {
    if (const auto toque = ToqueEn(losas_.Estado().Hoja, losas_.Estado().Abierta, lugar))
        losas_.Modificar(toque);
}

}  // namespace trabex::losas::ui
