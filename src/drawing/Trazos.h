#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/Lienzo.h"

namespace trabex::dibujo {

/// Draws on another canvas and keeps what it drew as bytes, a few thousand for a sheet: they are drawn again
/// elsewhere, in any size, with sharp lines and texts that stay texts.
class LienzoConTrazos : public Lienzo {
  public:
    explicit LienzoConTrazos(Lienzo& destino);

    /// What was drawn since the canvas was last cleared.
    const std::string& Trazos() const { return trazos_; }

    std::int32_t ScaleWidth() const override { return destino_.ScaleWidth(); }
    std::int32_t ScaleHeight() const override { return destino_.ScaleHeight(); }
    std::int32_t LadoDePixel() const override { return destino_.LadoDePixel(); }
    void Limpiar() override;
    void PonerFuente(const Fuente& fuente) override;
    void PonerColorTexto(Color color) override;
    Color ColorTextoDeBotones() const override { return destino_.ColorTextoDeBotones(); }
    MedidaTexto Medir(std::string_view texto) override { return destino_.Medir(texto); }
    void Texto(std::string_view texto, PuntoLienzo lugar, std::int32_t decimasDeGrado) override;
    void Linea(PuntoLienzo desde, PuntoLienzo hasta, const Pluma& pluma) override;
    void Poligono(std::span<const PuntoLienzo> puntos, const std::optional<Pluma>& pluma,
                  const std::optional<Color>& relleno) override;
    void Circulo(PuntoLienzo centro, std::int32_t radio, const std::optional<Pluma>& pluma,
                 const std::optional<Color>& relleno) override;
    void Pixel(PuntoLienzo lugar, Color color) override;
    void PonerCapa(std::string_view capa) override;
    void PonerMetros(const MetrosEnLienzo& metros) override;

  private:
    void Empezar();

    Lienzo& destino_;
    Fuente fuente_;
    Color texto_;
    std::string trazos_;
};

/// The size of the canvas that was drawn on and of a plotted pixel, in its units. Nothing when the bytes are
/// not those of a drawing.
struct MedidaDeTrazos {
    std::int32_t Ancho = 0;
    std::int32_t Alto = 0;
    std::int32_t LadoDePixel = 1;
};
std::optional<MedidaDeTrazos> MedidaDe(std::string_view trazos);

/// A text of a drawing: where its top left corner stands, its size before it turns about that corner, and by
/// how much.
struct TextoTrazado {
    std::string Texto;
    PuntoLienzo Lugar;
    MedidaTexto Medida;
    std::int32_t DecimasDeGrado = 0;
};
std::vector<TextoTrazado> TextosDe(std::string_view trazos);

/// Draws them again; bytes that are damaged end the drawing. With `alEscribir` texts go there, with their
/// size at the first drawing.
void Repetir(std::string_view trazos, Lienzo& destino);
void Repetir(std::string_view trazos, Lienzo& destino,
             const std::function<void(const TextoTrazado&)>& alEscribir);

}  // namespace trabex::dibujo
