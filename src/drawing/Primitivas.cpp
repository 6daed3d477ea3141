#include "drawing/Primitivas.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

#include "base/Round.h"

namespace trabex::dibujo {

namespace {

constexpr Color ColorCuadricula{226, 232, 239};
constexpr std::int32_t SobraCuadricula = 30;
constexpr std::int32_t FilasDePunta = 5;

/// Turns an offset of the figure that looks down to the way of each flag, and hands it to `dibujar`.
template <class Dibujar>
void PorSentido(const Sentidos& sentidos, Dibujar dibujar) {
    if (sentidos.Izquierda) dibujar([](PuntoLienzo p) { return PuntoLienzo{-p.y, p.x}; });
    if (sentidos.Derecha) dibujar([](PuntoLienzo p) { return PuntoLienzo{p.y, p.x}; });
    if (sentidos.Arriba) dibujar([](PuntoLienzo p) { return PuntoLienzo{p.x, -p.y}; });
    if (sentidos.Abajo) dibujar([](PuntoLienzo p) { return p; });
}

struct ProporcionFlecha {
    double Punta;
    double MedioFuste;
    double Largo;
};

void DibujeBloque(Lienzo& lienzo, PuntoLienzo punta, const Sentidos& sentidos, Color color, double s,
                  const ProporcionFlecha& proporcion) {
    const std::int32_t a = Pixeles(proporcion.Punta * s);
    const std::int32_t b = Pixeles(proporcion.MedioFuste * s);
    const std::int32_t c = Pixeles(proporcion.Largo * s);
    const std::array<PuntoLienzo, 7> figura{
        {{0, 0}, {a, -a}, {b, -a}, {b, -c}, {-b, -c}, {-b, -a}, {-a, -a}}};
    PorSentido(sentidos, [&](auto girar) {
        std::array<PuntoLienzo, 7> puntos{};
        std::transform(figura.begin(), figura.end(), puntos.begin(), [&](PuntoLienzo p) {
            const PuntoLienzo girado = girar(p);
            return PuntoLienzo{punta.x + girado.x, punta.y + girado.y};
        });
        lienzo.Poligono(puntos, std::nullopt, color);
    });
}

}  // namespace

std::int32_t Pixeles(double valor) {
    constexpr double limite = std::numeric_limits<std::int32_t>::max() / 4.0;  // sums of a few still fit
    const double entero = Round(valor);
    return static_cast<std::int32_t>(std::clamp(entero == entero ? entero : 0.0, -limite, limite));
}

void DibujeLinea(Lienzo& lienzo, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                 std::int32_t ancho, EstiloLinea estilo, Color color) {
    lienzo.Linea({x1, y1}, {x2, y2}, {ancho, estilo, color});
}

void DibujeTexto(Lienzo& lienzo, std::string_view texto, std::int32_t x, std::int32_t y, double angulo) {
    lienzo.Texto(texto, {x, y}, Pixeles(angulo) * 10);
}

void DibujeFlechaPixel(Lienzo& lienzo, std::int32_t x, std::int32_t y, const Sentidos& sentidos,
                       Color color) {
    const std::int32_t lado = lienzo.LadoDePixel();
    PorSentido(sentidos, [&](auto girar) {
        for (std::int32_t fila = 0; fila < FilasDePunta; ++fila) {
            for (std::int32_t columna = -fila; columna <= fila; ++columna) {
                const PuntoLienzo p = girar(PuntoLienzo{columna, -fila});
                lienzo.Pixel({x + p.x * lado, y + p.y * lado}, color);
            }
        }
    });
}

void DibujeFlecha(Lienzo& lienzo, std::int32_t x, std::int32_t y, const Sentidos& sentidos, Color color,
                  double s) {
    DibujeBloque(lienzo, {x, y}, sentidos, color, s, {0.15, 0.045, 0.5});
}

void DibujeFlechaDiagonal(Lienzo& lienzo, std::int32_t x, std::int32_t y, const Sentidos& sentidos,
                          Color color, double s) {
    DibujeBloque(lienzo, {x, y}, sentidos, color, s, {0.101, 0.03, 0.354});
}

void DibujeCuadricula(Lienzo& lienzo, std::int32_t separacion) {
    const std::int32_t ancho = lienzo.ScaleWidth();
    const std::int32_t alto = lienzo.ScaleHeight();
    for (std::int32_t x = 0; x <= ancho + SobraCuadricula; x += separacion)
        DibujeLinea(lienzo, x, 0, x, alto, 1, EstiloLinea::Solida, ColorCuadricula);
    for (std::int32_t y = 0; y <= alto + SobraCuadricula; y += separacion)
        DibujeLinea(lienzo, 0, y, ancho, y, 1, EstiloLinea::Solida, ColorCuadricula);
}

}  // namespace trabex::dibujo
