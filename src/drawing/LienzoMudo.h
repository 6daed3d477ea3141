#pragma once

#include "drawing/Lienzo.h"

namespace trabex::dibujo {

/// A canvas that shows nothing and measures nothing: for what takes only some strokes of a drawing.
class LienzoMudo : public Lienzo {
  public:
    std::int32_t ScaleWidth() const override { return 0; }
    std::int32_t ScaleHeight() const override { return 0; }
    void Limpiar() override {}
    void PonerFuente(const Fuente& /*fuente*/) override {}
    void PonerColorTexto(Color /*color*/) override {}
    Color ColorTextoDeBotones() const override { return {}; }
    MedidaTexto Medir(std::string_view /*texto*/) override { return {}; }
    void Texto(std::string_view /*texto*/, PuntoLienzo /*lugar*/, std::int32_t /*decimasDeGrado*/) override {}
    void Linea(PuntoLienzo /*desde*/, PuntoLienzo /*hasta*/, const Pluma& /*pluma*/) override {}
    void Poligono(std::span<const PuntoLienzo> /*puntos*/, const std::optional<Pluma>& /*pluma*/,
                  const std::optional<Color>& /*relleno*/) override {}
    void Circulo(PuntoLienzo /*centro*/, std::int32_t /*radio*/, const std::optional<Pluma>& /*pluma*/,
                 const std::optional<Color>& /*relleno*/) override {}
    void Pixel(PuntoLienzo /*lugar*/, Color /*color*/) override {}
};

}  // namespace trabex::dibujo
