#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "drawing/Lienzo.h"

namespace trabex::prueba {

using namespace dibujo;

/// A rectangle on a canvas.
struct Caja {
    double x1, y1, x2, y2;

    bool Pisa(const Caja& otra, double roce) const {
        return std::min(x2, otra.x2) - std::max(x1, otra.x1) > roce &&
               std::min(y2, otra.y2) - std::max(y1, otra.y1) > roce;
    }
};

/// A canvas that keeps what is drawn. Its texts are 0.55 of their size wide a character and 1.3 tall.
class LienzoGrabador : public Lienzo {
  public:
    struct TextoGrabado {
        std::string Texto;
        PuntoLienzo Lugar;
        std::int32_t Decimas;
        Fuente Letra;
        MedidaTexto Medida;
        Color Tinta;

        double CentroX() const { return Lugar.x + Medida.Ancho / 2.0; }
        /// The place that it takes, turned about its corner.
        Caja SuCaja() const {
            const double giro = Decimas / 1800.0 * 3.14159265358979;
            const double ax = Medida.Ancho * std::cos(giro), ay = -Medida.Ancho * std::sin(giro);
            const double bx = Medida.Alto * std::sin(giro), by = Medida.Alto * std::cos(giro);
            return {Lugar.x + std::min({0.0, ax, bx, ax + bx}), Lugar.y + std::min({0.0, ay, by, ay + by}),
                    Lugar.x + std::max({0.0, ax, bx, ax + bx}), Lugar.y + std::max({0.0, ay, by, ay + by})};
        }
    };
    struct Figura {
        std::vector<PuntoLienzo> Puntos;
        std::optional<Pluma> Borde;
        std::optional<Color> Relleno;
    };

    LienzoGrabador(std::int32_t ancho, std::int32_t alto, std::int32_t porPulgada = 96)
        : ancho_(ancho), alto_(alto), porPulgada_(porPulgada) {}

    std::int32_t ScaleWidth() const override { return ancho_; }
    std::int32_t ScaleHeight() const override { return alto_; }
    std::int32_t LadoDePixel() const override { return std::max(1, porPulgada_ / 96); }
    void Limpiar() override {
        ++Limpiezas;
        Textos.clear();
        Lineas.clear();
        Poligonos.clear();
        Circulos.clear();
        Pixeles.clear();
    }
    void PonerFuente(const Fuente& fuente) override { fuente_ = fuente; }
    void PonerColorTexto(Color color) override { tinta_ = color; }
    Color ColorTextoDeBotones() const override { return {}; }
    MedidaTexto Medir(std::string_view texto) override {
        const double unidades = fuente_.Puntos * porPulgada_ / 72;
        const auto letras =
            std::count_if(texto.begin(), texto.end(), [](char c) { return (c & 0xC0) != 0x80; });
        return {static_cast<std::int32_t>(std::ceil(0.55 * unidades * static_cast<double>(letras))),
                static_cast<std::int32_t>(std::ceil(1.3 * unidades))};
    }
    void Texto(std::string_view texto, PuntoLienzo lugar, std::int32_t decimas) override {
        Textos.push_back({std::string(texto), lugar, decimas, fuente_, Medir(texto), tinta_});
    }
    void Linea(PuntoLienzo desde, PuntoLienzo hasta, const Pluma& pluma) override {
        Lineas.push_back({{desde, hasta}, pluma, {}});
    }
    void Poligono(std::span<const PuntoLienzo> puntos, const std::optional<Pluma>& pluma,
                  const std::optional<Color>& relleno) override {
        Poligonos.push_back({{puntos.begin(), puntos.end()}, pluma, relleno});
    }
    void Circulo(PuntoLienzo centro, std::int32_t radio, const std::optional<Pluma>& pluma,
                 const std::optional<Color>& relleno) override {
        Circulos.push_back({{centro, {centro.x + radio, centro.y}}, pluma, relleno});
    }
    void Pixel(PuntoLienzo lugar, Color) override { Pixeles.push_back(lugar); }

    const TextoGrabado* Hallar(const std::string& texto) const {
        const auto hallado =
            std::find_if(Textos.begin(), Textos.end(), [&](const auto& t) { return t.Texto == texto; });
        return hallado == Textos.end() ? nullptr : &*hallado;
    }
    std::vector<Figura> DeColor(Color color) const {
        std::vector<Figura> figuras;
        std::copy_if(Poligonos.begin(), Poligonos.end(), std::back_inserter(figuras),
                     [&](const Figura& f) { return f.Relleno == color; });
        return figuras;
    }

    std::vector<TextoGrabado> Textos;
    std::vector<Figura> Lineas;
    std::vector<Figura> Poligonos;
    std::vector<Figura> Circulos;
    std::vector<PuntoLienzo> Pixeles;
    int Limpiezas = 0;

  private:
    std::int32_t ancho_;
    std::int32_t alto_;
    std::int32_t porPulgada_;
    Fuente fuente_;
    Color tinta_;
};

}  // namespace trabex::prueba
