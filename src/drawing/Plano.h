#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "drawing/Lienzo.h"
#include "drawing/Ocupacion.h"
#include "drawing/Visor.h"

namespace trabex::dibujo {

enum class Ancla { Izquierda, Centro, Derecha };

/// The centre of a possible place.
struct Centro {
    double x = 0;
    double y = 0;
};

/// A canvas seen in metres: maps the world's points, sizes texts with the zoom, and knows where it has
/// written, so that labels do not overprint one another.
class Plano {
  public:
    Plano(Lienzo& lienzo, const EstadoVista& vista, std::string_view fuente);

    Lienzo& ElLienzo() const { return lienzo_; }
    double Escala() const { return vista_.Escala; }
    /// Canvas units by which lengths that do not follow the world have grown since zoom 1.
    double Aumento() const { return vista_.EscalaBase * vista_.Escala; }
    /// An empty record of places, its cells sized for this plane's labels.
    Ocupacion SinOcupar() const;

    /// A length in pixels as canvas units: the same number on a screen.
    std::int32_t Unidades(std::int32_t pixeles) const { return pixeles * lienzo_.LadoDePixel(); }

    std::int32_t X(double x) const;
    std::int32_t Y(double y) const;
    /// Row of a point `abajo` m below the world's level `y`.
    std::int32_t Fila(double abajo, double y = 0) const { return Y(y - abajo); }

    /// Sets the font: `base` is its size in points at zoom 1. A title is never smaller than 8 points.
    void Letra(double base, bool negrita = false) const;
    void LetraDeTitulo(double base) const;

    /// A line of text, `y` being its top.
    void Escribir(std::string_view texto, Ancla ancla, std::int32_t x, std::int32_t y) const;
    /// Text centred on a point, turned anticlockwise.
    void EscribirCentrado(std::string_view texto, double x, double y, double grados = 0) const;

    /// Takes a place, so that no label is put there.
    void Reservar(const PiezaTexto& caja);
    /// The first centre at which a box of this size meets no taken place; the last resort is the one that is
    /// overprinted least. Takes the place.
    PiezaTexto Colocar(double ancho, double alto, const std::vector<Centro>& centros);
    /// Places a text by its possible centres and writes it. `grados`: 0 or 90.
    void Rotular(std::string_view texto, const std::vector<Centro>& centros, double grados = 0);

  private:
    Lienzo& lienzo_;
    const EstadoVista& vista_;
    std::string_view fuente_;
    Ocupacion ocupadas_;  // from the world's origin: a pan moves all places alike
};

}  // namespace trabex::dibujo
