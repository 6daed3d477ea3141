#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace trabex::dibujo {

struct Color {
    std::uint8_t R = 0;
    std::uint8_t G = 0;
    std::uint8_t B = 0;
    friend bool operator==(const Color&, const Color&) = default;
};

/// A point of the canvas in its own units (pixels on a screen), x to the right, y downward.
struct PuntoLienzo {
    std::int32_t x = 0;
    std::int32_t y = 0;
    friend bool operator==(const PuntoLienzo&, const PuntoLienzo&) = default;
};

enum class EstiloLinea { Solida = 0, Punteada = 2 };

/// Lives for one primitive.
struct Pluma {
    std::int32_t Ancho = 1;
    EstiloLinea Estilo = EstiloLinea::Solida;
    Color Tinta;
};

struct Fuente {
    std::string Nombre;
    double Puntos = 8;
    bool Negrita = false;
};

struct MedidaTexto {
    std::int32_t Ancho = 0;
    std::int32_t Alto = 0;  ///< of a line: the same for every text of a font
};

/// Where the metres of a drawing lie on its canvas: canvas units per metre, and the point of the world's (0,
/// 0).
struct MetrosEnLienzo {
    double PorMetro = 0;  ///< 0: none were told
    PuntoLienzo Origen;
};

/// The surface that drawings are made on: a raster with a persistent picture on a screen, a page on a
/// printer. It has a current font and text colour; pens and fills are given with each figure.
class Lienzo {
  public:
    virtual ~Lienzo() = default;

    virtual std::int32_t ScaleWidth() const = 0;
    virtual std::int32_t ScaleHeight() const = 0;
    /// Side of a plotted pixel in the canvas's units: 1 on a screen, more on finer devices, so that what is
    /// told in pixels is seen there too.
    virtual std::int32_t LadoDePixel() const { return 1; }
    virtual void Limpiar() = 0;

    virtual void PonerFuente(const Fuente& fuente) = 0;
    virtual void PonerColorTexto(Color color) = 0;
    /// The platform's colour of text on buttons.
    virtual Color ColorTextoDeBotones() const = 0;
    virtual MedidaTexto Medir(std::string_view texto) = 0;
    /// `lugar` is the text's top left corner; the text turns about it, anticlockwise, by tenths of a degree.
    virtual void Texto(std::string_view texto, PuntoLienzo lugar, std::int32_t decimasDeGrado) = 0;

    virtual void Linea(PuntoLienzo desde, PuntoLienzo hasta, const Pluma& pluma) = 0;
    /// Closed. Without a pen no outline is drawn, without a fill it is transparent.
    virtual void Poligono(std::span<const PuntoLienzo> puntos, const std::optional<Pluma>& pluma,
                          const std::optional<Color>& relleno) = 0;
    virtual void Circulo(PuntoLienzo centro, std::int32_t radio, const std::optional<Pluma>& pluma,
                         const std::optional<Color>& relleno) = 0;
    virtual void Pixel(PuntoLienzo lugar, Color color) = 0;

    // What a picture has no use for, and a file for other programs has.
    /// The figures from here on belong to a layer, by its name; texts have one of their own.
    virtual void PonerCapa(std::string_view /*capa*/) {}
    virtual void PonerMetros(const MetrosEnLienzo& /*metros*/) {}
};

}  // namespace trabex::dibujo
