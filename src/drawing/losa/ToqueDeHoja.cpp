#include "drawing/losa/ToqueDeHoja.h"

#include <algorithm>
#include <cmath>

#include "drawing/losa/FigurasLosa.h"
#include "drawing/losa/LugaresDeHoja.h"

namespace trabex::dibujo::losa {

namespace {

constexpr double PixelesAlrededor = 4;
constexpr double RadioDeEje = 0.26;

/// A sheet's point in metres from a place of the slab, x to the right and y upward.
class Apuntado {
  public:
    Apuntado(const HojaLosa& hoja, const losas::Losa& losa, PuntoLienzo lugar)
        : hoja_(hoja), losa_(losa), lugar_(lugar), margen_(PixelesAlrededor / hoja.Vista.Escala) {}

    std::optional<Toque> Toca() const {
        if (const auto tramo = Puntual()) return Toque{QueToca::CargaPuntual, *tramo};
        if (const auto eje = Nombre()) return Toque{QueToca::Eje, *eje};
        if (const auto eje = Apoyo()) return Toque{QueToca::Apoyo, *eje};
        if (const auto tramo = DeRotulo(BandaDe::Longitudes, 0)) return Toque{QueToca::Tramo, *tramo};
        return Banda();
    }

  private:
    Lugar Desde(const Lugar& lugar) const {
        return {(lugar_.x - hoja_.Vista.OrigenX) / hoja_.Vista.Escala - lugar.x,
                (hoja_.Vista.OrigenY - lugar_.y) / hoja_.Vista.Escala - lugar.y};
    }
    bool Dentro(const Lugar& p, double ancho, double abajo, double arriba) const {
        return std::fabs(p.x) <= ancho + margen_ && p.y >= abajo && p.y <= arriba;
    }
    /// What a label in a band, turned so much, tells of.
    std::optional<std::size_t> DeRotulo(BandaDe banda, double grados) const {
        for (const RotuloDeHoja& rotulo : hoja_.Rotulos) {
            if (rotulo.De != banda || rotulo.Grados != grados) continue;
            const PiezaTexto& caja = rotulo.Caja;
            const double x = std::fabs(lugar_.x - caja.x - caja.Ancho / 2);
            const double y = std::fabs(lugar_.y - caja.y - caja.Alto / 2);
            const bool acostado = grados == 0;
            if ((acostado ? x : y) <= caja.Ancho / 2 && (acostado ? y : x) <= caja.Alto / 2)
                return rotulo.Lugar;
        }
        return std::nullopt;
    }
    std::optional<std::size_t> Puntual() const {
        for (std::size_t i = hoja_.Tramos.Primero; i <= UltimoTramo(); ++i) {
            if (losa_.Tramos[i].p1 == 0) continue;
            const Lugar pie = EnTramo(hoja_.Ejes, i, losa_.Tramos[i].L1);
            if (Dentro(Desde(pie), 0.15, BordeCarga, BordeCarga + 0.5)) return i;
        }
        return DeRotulo(BandaDe::Cargas, 90);
    }
    std::optional<std::size_t> Nombre() const {
        const double radio = RadioDeEje * hoja_.Vista.Escala + PixelesAlrededor;
        for (const RotuloDeHoja& rotulo : hoja_.Rotulos) {
            if (rotulo.De != BandaDe::Nombres) continue;
            const PiezaTexto& caja = rotulo.Caja;
            if (std::hypot(lugar_.x - caja.x - caja.Ancho / 2, lugar_.y - caja.y - caja.Alto / 2) <= radio)
                return rotulo.Lugar;
        }
        return DeRotulo(BandaDe::Nombres, 0);
    }
    std::optional<std::size_t> Apoyo() const {
        for (std::size_t eje = hoja_.Tramos.Primero; eje <= UltimoTramo() + 1 && eje < losa_.Ejes.size();
             ++eje) {
            const Lugar p = Desde({hoja_.Ejes.EjesX[eje], hoja_.Ejes.EjesY[eje]});
            const bool bloque = losa_.Ejes[eje].Tipo == losas::Empotramiento;
            if (bloque ? Dentro(p, 0.1, -0.25, 0.25) : Dentro(p, 0.2, -0.5, -MediaBanda)) return eje;
        }
        return std::nullopt;
    }
    std::optional<Toque> Banda() const {
        const auto tramo = TramoEn(hoja_, lugar_.x);
        if (!tramo || tramo->Tramo > UltimoTramo()) return std::nullopt;
        const double ancho = hoja_.Ejes.EjesX[tramo->Tramo + 1] - hoja_.Ejes.EjesX[tramo->Tramo];
        const double subida = hoja_.Ejes.EjesY[tramo->Tramo + 1] - hoja_.Ejes.EjesY[tramo->Tramo];
        const double nivel = hoja_.Ejes.EjesY[tramo->Tramo] + (ancho > 0 ? subida * tramo->d / ancho : 0);
        const double sobre = Desde({0, nivel}).y;
        if (sobre > MediaBanda && sobre <= BordeCarga) return Toque{QueToca::CargaUniforme, tramo->Tramo};
        if (std::fabs(sobre) <= MediaBanda + margen_) return Toque{QueToca::Tramo, tramo->Tramo};
        return std::nullopt;
    }
    /// Of what is drawn, what the slab still has.
    std::size_t UltimoTramo() const { return std::min(hoja_.Tramos.Ultimo, losas::NumeroTramos(losa_)); }

    const HojaLosa& hoja_;
    const losas::Losa& losa_;
    PuntoLienzo lugar_;
    double margen_;
};

}  // namespace

std::optional<Toque> ToqueEn(const HojaLosa& hoja, const losas::Losa& losa, PuntoLienzo lugar) {
    if (hoja.Tramos.Ultimo < hoja.Tramos.Primero || !(hoja.Vista.Escala > 0)) return std::nullopt;
    return Apuntado(hoja, losa, lugar).Toca();
}

}  // namespace trabex::dibujo::losa
