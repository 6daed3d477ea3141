#include "drawing/losa/LecturaDeHoja.h"

#include <algorithm>
#include <cmath>

#include "drawing/Primitivas.h"
#include "drawing/losa/LugaresDeHoja.h"
#include "drawing/losa/PerfilDeHoja.h"

namespace trabex::dibujo::losa {

namespace {

/// Pointed places and stations are the same from here on, m.
constexpr double MismoLugar = 1e-6;

bool Tiene(const GrupoDeTramos& tramos, std::size_t tramo) {
    return tramos.Primero <= tramo && tramo <= tramos.Ultimo;
}

std::vector<losas::PuntoDiagrama> EstacionesDe(const HojaLosa& hoja, const losas::LosaCalculada& losa,
                                               std::size_t tramo) {
    return losas::EstacionesDeTramo(losa, tramo, PendienteDeTramo(hoja.Ejes, tramo));
}

std::optional<EstacionDeHoja> En(const HojaLosa& hoja, const losas::LosaCalculada& losa, std::size_t tramo,
                                 double d) {
    const auto punto = losas::PuntoDeTramo(losa, tramo, PendienteDeTramo(hoja.Ejes, tramo),
                                           std::clamp(d, 0.0, std::max(0.0, losa.Datos.Tramos[tramo].LT)));
    return punto ? std::optional(EstacionDeHoja{tramo, *punto}) : std::nullopt;
}

const BandaDeHoja* Banda(const HojaLosa& hoja, BandaDe cual) {
    const auto hallada = std::find_if(hoja.Bandas.begin(), hoja.Bandas.end(),
                                      [&](const BandaDeHoja& banda) { return banda.De == cual; });
    return hallada == hoja.Bandas.end() ? nullptr : &*hallada;
}

std::string NombreDeEje(const losas::Losa& losa, std::size_t eje) {
    return eje < losa.Ejes.size() ? losa.Ejes[eje].Eje : std::string();
}

}  // namespace

std::optional<EstacionDeHoja> EstacionEn(const HojaLosa& hoja, const losas::LosaCalculada& losa,
                                         PuntoLienzo lugar) {
    const auto banda = BandaEn(hoja, lugar.x, lugar.y);
    if (banda != BandaDe::Cortes && banda != BandaDe::Momentos) return std::nullopt;
    const auto enTramo = TramoEn(hoja, lugar.x);
    if (!enTramo || enTramo->Tramo > losas::NumeroTramos(losa.Datos)) return std::nullopt;
    return En(hoja, losa, enTramo->Tramo, enTramo->d);
}

std::optional<EstacionDeHoja> EstacionVecina(const HojaLosa& hoja, const losas::LosaCalculada& losa,
                                             const std::optional<EstacionDeHoja>& otra, bool aLaDerecha) {
    const GrupoDeTramos tramos{hoja.Tramos.Primero,
                               std::min(hoja.Tramos.Ultimo, losas::NumeroTramos(losa.Datos))};
    if (!Banda(hoja, BandaDe::Cortes) || tramos.Ultimo < tramos.Primero) return std::nullopt;
    std::size_t tramo = otra ? otra->Tramo : (aLaDerecha ? tramos.Primero : tramos.Ultimo);
    if (otra && Tiene(tramos, tramo)) {
        const auto estaciones = EstacionesDe(hoja, losa, tramo);
        const auto delante = [&](const losas::PuntoDiagrama& p) {
            const double dx = p.d - otra->Punto.d;
            if (std::fabs(dx) > MismoLugar) return aLaDerecha ? dx > 0 : dx < 0;
            return aLaDerecha ? p.V < otra->Punto.V : p.V > otra->Punto.V;  // the load takes shear away
        };
        if (aLaDerecha) {
            const auto hallada = std::find_if(estaciones.begin(), estaciones.end(), delante);
            if (hallada != estaciones.end()) return EstacionDeHoja{tramo, *hallada};
        } else {
            const auto hallada = std::find_if(estaciones.rbegin(), estaciones.rend(), delante);
            if (hallada != estaciones.rend()) return EstacionDeHoja{tramo, *hallada};
        }
        if (tramo == (aLaDerecha ? tramos.Ultimo : tramos.Primero)) return otra;
        tramo = aLaDerecha ? tramo + 1 : tramo - 1;
    }
    for (tramo = std::clamp(tramo, tramos.Primero, tramos.Ultimo); Tiene(tramos, tramo);
         tramo = aLaDerecha ? tramo + 1 : tramo - 1) {
        const auto estaciones = EstacionesDe(hoja, losa, tramo);
        if (!estaciones.empty())
            return EstacionDeHoja{tramo, aLaDerecha ? estaciones.front() : estaciones.back()};
    }
    return std::nullopt;
}

std::optional<EstacionDeHoja> Releida(const HojaLosa& hoja, const losas::LosaCalculada& losa,
                                      const EstacionDeHoja& estacion) {
    const bool hay = Tiene(hoja.Tramos, estacion.Tramo) && estacion.Tramo <= losas::NumeroTramos(losa.Datos);
    return hay ? En(hoja, losa, estacion.Tramo, estacion.Punto.d) : std::nullopt;
}

std::optional<LineaDeMira> MiraDe(const HojaLosa& hoja, const EstacionDeHoja& estacion) {
    const BandaDeHoja* cortes = Banda(hoja, BandaDe::Cortes);
    const BandaDeHoja* momentos = Banda(hoja, BandaDe::Momentos);
    if (cortes == nullptr || momentos == nullptr || !Tiene(hoja.Tramos, estacion.Tramo)) return std::nullopt;
    const double x = hoja.Vista.Escala * (hoja.Ejes.EjesX[estacion.Tramo] + estacion.Punto.d);
    const double nivel =
        hoja.Vista.OrigenY + PerfilDeHoja(hoja.Ejes, hoja.Tramos, hoja.Vista.Escala).Nivel(x);
    const std::int32_t columna = Pixeles(hoja.Vista.OrigenX + x);
    return LineaDeMira{{columna, Pixeles(nivel + cortes->Desde)},
                       {columna, Pixeles(nivel + momentos->Hasta)}};
}

std::string TextoDeLectura(const HojaLosa& hoja, const losas::LosaCalculada& losa,
                           const EstacionDeHoja& estacion) {
    const auto numero = [&](double valor, const char* formato) {
        return Formato(valor, formato, hoja.Numeros);
    };
    const AceroCaras acero = losas::AceroPara(losa, estacion.Punto.M);
    const char* unidad = losa.Datos.OpcionMaciza ? " cm2/m" : " cm2";
    return "Tramo " + NombreDeEje(losa.Datos, estacion.Tramo) + "-" +
           NombreDeEje(losa.Datos, estacion.Tramo + 1) + "   x = " + numero(estacion.Punto.d, "0.00") +
           " m   Mu = " + numero(estacion.Punto.M, "0") + " kgf-m   Vu = " + numero(estacion.Punto.V, "0") +
           " kgf   As Sup = " + numero(acero.AsSup, "0.00") + unidad +
           "   As Inf = " + numero(acero.AsInf, "0.00") + unidad;
}

}  // namespace trabex::dibujo::losa
