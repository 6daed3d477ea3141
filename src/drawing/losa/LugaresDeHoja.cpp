#include "drawing/losa/LugaresDeHoja.h"

#include <algorithm>

#include "drawing/losa/PerfilDeHoja.h"

namespace trabex::dibujo::losa {

double XDeEje(const HojaLosa& hoja, std::size_t eje) {
    return hoja.Vista.OrigenX + hoja.Vista.Escala * hoja.Ejes.EjesX[eje];
}

std::optional<LugarEnTramo> TramoEn(const HojaLosa& hoja, double x) {
    for (std::size_t i = hoja.Tramos.Primero; i <= hoja.Tramos.Ultimo; ++i) {
        if (XDeEje(hoja, i) <= x && x <= XDeEje(hoja, i + 1))
            return LugarEnTramo{i, (x - XDeEje(hoja, i)) / hoja.Vista.Escala};
    }
    return std::nullopt;
}

std::optional<BandaDe> BandaEn(const HojaLosa& hoja, double x, double y) {
    if (hoja.Tramos.Ultimo < hoja.Tramos.Primero) return std::nullopt;
    const PerfilDeHoja perfil(hoja.Ejes, hoja.Tramos, hoja.Vista.Escala);
    const auto hallada = std::find_if(hoja.Bandas.begin(), hoja.Bandas.end(), [&](const BandaDeHoja& banda) {
        const double fila =
            y - hoja.Vista.OrigenY - (banda.SigueALaLosa ? perfil.Nivel(x - hoja.Vista.OrigenX) : 0);
        return banda.Desde <= fila && fila < banda.Hasta;
    });
    return hallada == hoja.Bandas.end() ? std::nullopt : std::optional(hallada->De);
}

}  // namespace trabex::dibujo::losa
