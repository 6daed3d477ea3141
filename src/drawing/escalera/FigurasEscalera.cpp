#include "drawing/escalera/FigurasEscalera.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "drawing/Primitivas.h"

namespace trabex::dibujo::escalera {

namespace {

using escaleras::DatosEscaleraT;
using escaleras::Peldanos;

constexpr Color FondoSeccion{181, 196, 200};
constexpr Color FondoPlanta{255, 255, 255};

/// A point of the section: x from the middle, y down from the origin, m.
struct Punto {
    double x, y;
};

template <std::size_t N>
void Rellenar(const Plano& p, const std::array<Punto, N>& figura, const Pluma& pluma, Color fondo) {
    std::array<PuntoLienzo, N> puntos{};
    std::transform(figura.begin(), figura.end(), puntos.begin(), [&](Punto punto) {
        return PuntoLienzo{p.X(punto.x), p.Fila(punto.y)};
    });
    p.ElLienzo().Poligono(puntos, pluma, fondo);
}

void Rectangulo(const Plano& p, Punto a, Punto b, const Pluma& pluma, Color fondo) {
    Rellenar<4>(p, {{a, {b.x, a.y}, b, {a.x, b.y}}}, pluma, fondo);
}

/// A flight from its upper end on, toward the right (`sentido` 1) or the left (-1).
void DibujeTramo(const Plano& p, const DatosEscaleraT& e, const Peldanos& peldanos, Punto desde,
                 double sentido) {
    const double alfa = escaleras::PendienteDeTramo(e);
    const Punto hasta{desde.x + sentido * e.L, desde.y + e.H / 2};
    const Punto espesor{-sentido * e.HT * std::sin(alfa), e.HT * std::cos(alfa)};
    const Pluma pluma{1, EstiloLinea::Solida, FondoSeccion};
    Rellenar<4>(p,
                {{desde,
                  hasta,
                  {hasta.x + espesor.x, hasta.y + espesor.y},
                  {desde.x + espesor.x, desde.y + espesor.y}}},
                pluma, FondoSeccion);
    Punto pie = desde;
    for (std::int16_t i = 0; i < peldanos.Huellas; ++i) {
        const Punto siguiente{pie.x + sentido * peldanos.Huella, pie.y + peldanos.Contrahuella};
        Rellenar<3>(p, {{pie, {siguiente.x, pie.y}, siguiente}}, pluma, FondoSeccion);
        pie = siguiente;
    }
}

}  // namespace

void DibujePlanta(const Plano& p, const DatosEscaleraT& e) {
    const double medio = escaleras::LongitudEnPlanta(e) / 2;
    const double arriba = (e.B + e.B) + 2 * Ojo;
    const Pluma pluma;
    Rectangulo(p, {medio - e.B, -Ojo}, {medio, -arriba}, pluma, FondoPlanta);
    Rectangulo(p, {-medio, -Ojo}, {medio - e.B, -(e.B + Ojo)}, pluma, FondoPlanta);
    Rectangulo(p, {-medio, -(e.B + 2 * Ojo)}, {medio - e.B, -arriba}, pluma, FondoPlanta);
}

void DibujeSeccion(const Plano& p, const DatosEscaleraT& e, const Peldanos& peldanos, double arriba,
                   Tramos tramos) {
    const double medio = escaleras::LongitudEnPlanta(e) / 2;
    const Punto quiebre{medio - e.B, e.H / 2 + arriba};
    DibujeTramo(p, e, peldanos, {-medio, arriba}, 1);
    if (tramos == Tramos::Ambos) DibujeTramo(p, e, peldanos, quiebre, -1);
    Rectangulo(p, quiebre, {medio, quiebre.y + e.Hd}, {1, EstiloLinea::Solida, FondoSeccion}, FondoSeccion);
}

void DibujeTitulo(const Plano& p, std::string_view titulo, std::int32_t sobreFila) {
    p.LetraDeTitulo(LetraTitulo);
    p.Escribir(titulo, Ancla::Centro, p.X(0), sobreFila - p.ElLienzo().Medir("WW").Alto);
}

}  // namespace trabex::dibujo::escalera
