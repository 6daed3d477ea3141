#include "drawing/helice/FigurasHelice.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <tuple>
#include <vector>

#include "base/Angulos.h"
#include "drawing/Primitivas.h"

namespace trabex::dibujo::helice {

namespace {

using Cara = CuerpoHelice::Cara;
using Parte = CuerpoHelice::Parte;

constexpr double GradosConSitio = 320;  // of a flight that leaves room over its foot
constexpr Color Tinta{58, 66, 74};
constexpr Color TintaSuave{150, 160, 168};
constexpr Color TintaEje{176, 60, 50};
constexpr Color FondoPlanta{236, 240, 242};

Color FondoDe(Parte parte) {
    switch (parte) {
        case Parte::Huella:
            return {230, 235, 238};
        case Parte::Contrahuella:
            return {206, 214, 219};
        case Parte::Costado:
        case Parte::Losa:
            return {191, 201, 207};
        case Parte::Fondo:
            break;
    }
    return {158, 170, 178};
}

Color Sombrear(Color color, double luz) {
    const auto tono = [luz](std::uint8_t parte) {
        return static_cast<std::uint8_t>(std::clamp(parte * luz, 0.0, 255.0));
    };
    return {tono(color.R), tono(color.G), tono(color.B)};
}

PuntoLienzo EnPlanta(const Plano& p, const CuerpoHelice& cuerpo, Sitio centro, double radio, double grados) {
    const Punto3 punto = cuerpo.En(radio, grados);
    return {p.X(centro.x + punto.x), p.Y(centro.y + punto.z)};
}

void Polilinea(Lienzo& lienzo, const std::vector<PuntoLienzo>& puntos, const Pluma& pluma) {
    for (std::size_t i = 1; i < puntos.size(); ++i) lienzo.Linea(puntos[i - 1], puntos[i], pluma);
}

/// Degrees between the points of curves: one, or more where they would meet on the same few pixels.
double PasoDe(const Plano& p, const CuerpoHelice& cuerpo) {
    constexpr double unidades = 6;
    const double porGrado = EnRadianes(1) * cuerpo.RadioExterior() * p.Escala();
    return std::clamp(std::ceil(unidades / porGrado), 1.0, 6.0);
}

std::vector<PuntoLienzo> Arco(const Plano& p, const CuerpoHelice& cuerpo, Sitio centro, double radio) {
    std::vector<PuntoLienzo> puntos;
    for (const double grados : CuerpoHelice::Quiebres(0, cuerpo.Angulo(), PasoDe(p, cuerpo)))
        puntos.push_back(EnPlanta(p, cuerpo, centro, radio, grados));
    return puntos;
}

/// The head of the climbing arrow, its point where the flight ends.
void Punta(const Plano& p, const CuerpoHelice& cuerpo, Sitio centro) {
    const double fin = cuerpo.Angulo();
    const double largo =
        std::min(0.28 * (cuerpo.RadioExterior() - cuerpo.RadioInterior()), 0.3 * cuerpo.RadioDelEje());
    const Direccion d = DireccionEn(fin);
    const Punto3 punta = cuerpo.En(cuerpo.RadioDelEje(), fin);
    const auto punto = [&](double atras, double lado) {
        return PuntoLienzo{p.X(centro.x + punta.x + d.Seno * atras + d.Coseno * lado),
                           p.Y(centro.y + punta.z + d.Coseno * atras - d.Seno * lado)};
    };
    const std::array<PuntoLienzo, 3> figura{punto(0, 0), punto(largo, largo / 3), punto(largo, -largo / 3)};
    p.ElLienzo().Poligono(figura, std::nullopt, TintaEje);
}

}  // namespace

void DibujePlanta(const Plano& p, const CuerpoHelice& cuerpo, Sitio centro) {
    Lienzo& lienzo = p.ElLienzo();
    const std::vector<PuntoLienzo> exterior = Arco(p, cuerpo, centro, cuerpo.RadioExterior());
    std::vector<PuntoLienzo> interior = Arco(p, cuerpo, centro, cuerpo.RadioInterior());
    std::vector<PuntoLienzo> contorno = exterior;
    contorno.insert(contorno.end(), interior.rbegin(), interior.rend());
    lienzo.Poligono(contorno, std::nullopt, FondoPlanta);
    const auto radial = [&](double grados, const Pluma& pluma) {
        lienzo.Linea(EnPlanta(p, cuerpo, centro, cuerpo.RadioInterior(), grados),
                     EnPlanta(p, cuerpo, centro, cuerpo.RadioExterior(), grados), pluma);
    };
    for (int n = 1; n < cuerpo.Peldanos(); ++n)
        radial(n * cuerpo.GradosDePeldano(), {1, EstiloLinea::Solida, TintaSuave});
    const Pluma borde{2, EstiloLinea::Solida, Tinta};
    Polilinea(lienzo, exterior, borde);
    Polilinea(lienzo, interior, borde);
    radial(0, borde);
    radial(cuerpo.Angulo(), borde);
    Polilinea(lienzo, Arco(p, cuerpo, centro, cuerpo.RadioDelEje()), {1, EstiloLinea::Solida, TintaEje});
    lienzo.Circulo(EnPlanta(p, cuerpo, centro, cuerpo.RadioDelEje(), 0), p.Unidades(3), std::nullopt,
                   TintaEje);
    Punta(p, cuerpo, centro);
    const PuntoLienzo medio{p.X(centro.x), p.Y(centro.y)};
    const std::int32_t cruz = p.Unidades(4);
    lienzo.Linea({medio.x - cruz, medio.y}, {medio.x + cruz, medio.y}, {1, EstiloLinea::Solida, Tinta});
    lienzo.Linea({medio.x, medio.y - cruz}, {medio.x, medio.y + cruz}, {1, EstiloLinea::Solida, Tinta});
}

namespace {

/// A face before the eye.
struct CaraVista {
    std::array<PuntoVisto, 4> Puntos;
    std::array<bool, 4> Aristas;
    Color Tono;
    double Fondo;
    double x1, y1, x2, y2;  // what it covers
};

/// Light comes from the left, from above and from who looks.
double LuzDe(const Perspectiva& perspectiva, const Cara& cara) {
    constexpr Punto3 luz{-0.36, 0.74, -0.57};
    const Punto3 n = perspectiva.Girar(Normal(cara.Vertices));
    const double largo = std::sqrt(n.x * n.x + n.y * n.y + n.z * n.z);
    if (!(largo > 0)) return 1;
    return 0.8 + 0.25 * std::max(0.0, -(n.x * luz.x + n.y * luz.y + n.z * luz.z) / largo);
}

double DobleArea(const PuntoVisto& a, const PuntoVisto& b, const PuntoVisto& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

/// The faces that look to the eye, the furthest first.
std::vector<CaraVista> CarasALaVista(const CuerpoHelice& cuerpo, double paso,
                                     const Perspectiva& perspectiva) {
    std::vector<CaraVista> vistas;
    for (const Cara& cara : cuerpo.Caras(paso)) {
        CaraVista vista{};
        std::transform(cara.Vertices.begin(), cara.Vertices.end(), vista.Puntos.begin(),
                       [&](const Punto3& punto) { return perspectiva.Ver(punto); });
        const auto& v = vista.Puntos;
        if (!(DobleArea(v[0], v[1], v[2]) + DobleArea(v[0], v[2], v[3]) > 0)) continue;
        if (!std::all_of(v.begin(), v.end(), [&](const PuntoVisto& p) { return perspectiva.Delante(p); }))
            continue;
        vista.Aristas = cara.Aristas;
        vista.Tono = Sombrear(FondoDe(cara.De), LuzDe(perspectiva, cara));
        vista.Fondo = (v[0].Fondo + v[1].Fondo + v[2].Fondo + v[3].Fondo) / 4;
        std::tie(vista.x1, vista.x2) = std::minmax({v[0].x, v[1].x, v[2].x, v[3].x});
        std::tie(vista.y1, vista.y2) = std::minmax({v[0].y, v[1].y, v[2].y, v[3].y});
        vistas.push_back(vista);
    }
    std::sort(vistas.begin(), vistas.end(),
              [](const CaraVista& a, const CaraVista& b) { return a.Fondo > b.Fondo; });
    return vistas;
}

/// Whether a triangle stands before a point, `holgura` m or more.
bool Tapa(const PuntoVisto& a, const PuntoVisto& b, const PuntoVisto& c, const PuntoVisto& p,
          double holgura) {
    const double area = DobleArea(a, b, c);
    if (!(area > 0)) return false;
    const double u = DobleArea(b, c, p) / area;
    const double v = DobleArea(c, a, p) / area;
    const double w = 1 - u - v;
    if (u < 0 || v < 0 || w < 0) return false;
    return u * a.Fondo + v * b.Fondo + w * c.Fondo < p.Fondo - holgura;
}

PuntoVisto Medio(const PuntoVisto& a, const PuntoVisto& b) {
    return {(a.x + b.x) / 2, (a.y + b.y) / 2, (a.Fondo + b.Fondo) / 2};
}

bool Oculto(const std::vector<CaraVista>& vistas, const PuntoVisto& p, double holgura) {
    return std::any_of(vistas.rbegin(), vistas.rend(), [&](const CaraVista& cara) {
        if (p.x < cara.x1 || p.x > cara.x2 || p.y < cara.y1 || p.y > cara.y2) return false;
        const auto& v = cara.Puntos;
        return Tapa(v[0], v[1], v[2], p, holgura) || Tapa(v[0], v[2], v[3], p, holgura);
    });
}

}  // namespace

void DibujePerspectiva(const Plano& p, const CuerpoHelice& cuerpo, Sitio centro, double parte,
                       const Perspectiva& perspectiva) {
    Lienzo& lienzo = p.ElLienzo();
    const auto lugar = [&](const PuntoVisto& punto) {
        return PuntoLienzo{p.X(centro.x + parte * punto.x), p.Y(centro.y + parte * punto.y)};
    };
    const double paso = PasoDe(p, cuerpo);
    const std::vector<CaraVista> vistas = CarasALaVista(cuerpo, paso, perspectiva);
    for (const CaraVista& vista : vistas) {
        std::array<PuntoLienzo, 4> puntos{};
        std::transform(vista.Puntos.begin(), vista.Puntos.end(), puntos.begin(), lugar);
        lienzo.Poligono(puntos, Pluma{1, EstiloLinea::Solida, vista.Tono}, vista.Tono);
    }
    // After all faces: one that is painted later would nibble at the lines of its neighbours.
    const double holgura = cuerpo.RadioExterior() / 100;
    for (const CaraVista& vista : vistas) {
        for (std::size_t k = 0; k < 4; ++k) {
            const PuntoVisto& desde = vista.Puntos[k];
            const PuntoVisto& hasta = vista.Puntos[(k + 1) % 4];
            if (vista.Aristas[k] && !Oculto(vistas, Medio(desde, hasta), holgura))
                lienzo.Linea(lugar(desde), lugar(hasta), {1, EstiloLinea::Solida, Tinta});
        }
    }
    for (const double radio : {cuerpo.RadioExterior(), cuerpo.RadioInterior()}) {
        PuntoVisto anterior = perspectiva.Ver(cuerpo.En(radio, 0));
        for (const double grados : CuerpoHelice::Quiebres(0, cuerpo.Grados(), paso)) {
            const PuntoVisto punto = perspectiva.Ver(cuerpo.En(radio, grados));
            if (perspectiva.Delante(punto) && perspectiva.Delante(anterior) &&
                Oculto(vistas, Medio(anterior, punto), holgura))
                lienzo.Linea(lugar(anterior), lugar(punto), {1, EstiloLinea::Punteada, TintaSuave});
            anterior = punto;
        }
    }
}

void AcotePlanta(Plano& p, const CuerpoHelice& cuerpo, Sitio centro, const helices::DatosEscaleraH& e,
                 const Separadores& numeros) {
    Lienzo& lienzo = p.ElLienzo();
    const double alto = lienzo.Medir("WW").Alto;
    const PuntoLienzo eje = EnPlanta(p, cuerpo, centro, cuerpo.RadioDelEje(), cuerpo.Angulo() / 2);
    const PuntoLienzo medio{p.X(centro.x), p.Y(centro.y)};
    lienzo.Linea(medio, eje, {1, EstiloLinea::Punteada, Tinta});
    const Direccion d = DireccionEn(cuerpo.Angulo() / 2);
    // Beside its line, on either side of it, within the inner edge if it is wide enough.
    const std::string radio = "R = " + Formato(e.R, "0.00", numeros);
    const double lado =
        std::fabs(d.Seno) * lienzo.Medir(radio).Ancho / 2 + std::fabs(d.Coseno) * alto / 2 + alto / 4;
    const double dentro = cuerpo.RadioInterior() / cuerpo.RadioDelEje();
    const double parte = dentro > 0.3 ? 0.55 * dentro : 0.5;
    const double x = medio.x + parte * (eje.x - medio.x);
    const double y = medio.y + parte * (eje.y - medio.y);
    p.Rotular(radio, {{x + lado * d.Seno, y - lado * d.Coseno}, {x - lado * d.Seno, y + lado * d.Coseno}});
    // Opposite to the line.
    const std::string angulo = NumeroParaEditar(e.Angulo, 0, numeros) + "º";
    const double atras = alto + lienzo.Medir(angulo).Ancho / 2.0 * std::fabs(d.Coseno);
    p.Rotular(angulo, {{medio.x - atras * d.Coseno, medio.y - atras * d.Seno}});
    // Over its end; there is no room where the flight comes round to it.
    const std::string ancho = "B = " + Formato(e.B, "0.00", numeros);
    const PuntoLienzo pie = EnPlanta(p, cuerpo, centro, cuerpo.RadioDelEje(), 0);
    const PuntoLienzo borde = EnPlanta(p, cuerpo, centro, cuerpo.RadioExterior(), 0);
    if (cuerpo.Angulo() < GradosConSitio)
        p.Rotular(ancho, {{static_cast<double>(pie.x), pie.y - alto * 0.7}});
    else
        p.Rotular(ancho,
                  {{borde.x + lienzo.Medir(ancho).Ancho / 2.0 + alto / 3, static_cast<double>(borde.y)}});
}

}  // namespace trabex::dibujo::helice
