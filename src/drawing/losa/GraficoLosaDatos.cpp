#include "drawing/losa/GraficoLosaDatos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "drawing/Cotas.h"
#include "drawing/Primitivas.h"
#include "drawing/Superficie.h"
#include "drawing/losa/Apoyos.h"
#include "drawing/losa/FigurasLosa.h"
#include "drawing/losa/TextosDeLosa.h"

namespace trabex::dibujo::losa {

namespace {

constexpr Color FondoBanda{205, 216, 219};
constexpr Color FondoMarca{255, 205, 96};
constexpr Color FondoCarga{248, 214, 210};
constexpr Color FondoConcreto{222, 226, 227};
constexpr Color TintaMarca{196, 84, 20};
constexpr Pluma PlumaCota{1, EstiloLinea::Solida, {90, 98, 100}};
constexpr double Letra = 8;
constexpr double AnchoUtil = 0.80;

/// What of a slab a sketch shows, and in which part of the canvas's height.
struct Boceto {
    const losas::Losa& Datos;
    const MarcaBoceto& Marca;
    const Separadores& Numeros;
    EjesDeHoja Ejes;  ///< with a span without length drawn as one of 1 m
    std::size_t N = 0;

    std::string Numero(double valor, const char* formato) const { return Formato(valor, formato, Numeros); }
};

Boceto Empezar(Lienzo& lienzo, const EstadoVista& vista, const losas::Losa& losa, const MarcaBoceto& marca,
               const Separadores& numeros) {
    Despejar(lienzo, vista, EnPantalla);
    losas::Losa dibujada = losa;
    for (std::size_t i = 1; i < dibujada.Tramos.size(); ++i) {
        double& LT = dibujada.Tramos[i].LT;
        if (!(LT > 0)) LT = 1;
    }
    return {losa, marca, numeros, UbicarEjes(dibujada), losas::NumeroTramos(losa)};
}

/// Fits the slab in the width, and `metros` of height in `parte` of the canvas; the slab's level lies at
/// `nivel` of the height.
Plano Ubicar(Lienzo& lienzo, EstadoVista& vista, const EjesDeHoja& ejes, double metros, double parte,
             double nivel) {
    const double escala = EscalaDeRegla(lienzo, {AnchoUtil, parte}, std::max(ejes.Longitud, 1.0),
                                        metros + ejes.YMaximo - ejes.YMinimo);
    Plano plano = Encuadrar(lienzo, vista, EnPantalla, {escala, nivel, (ejes.YMaximo + ejes.YMinimo) / 2});
    plano.Letra(Letra);
    lienzo.PonerColorTexto(Contorno);
    return plano;
}

void DibujeTramos(Plano& p, const Boceto& b) {
    for (std::size_t i = 1; i <= b.N; ++i)
        DibujeBanda(p, b.Ejes, i, -MediaBanda, MediaBanda, PlumaContorno,
                    i == b.Marca.Tramo ? FondoMarca : FondoBanda);
    for (std::size_t eje = 1; eje <= b.N + 1 && eje < b.Datos.Ejes.size(); ++eje)
        DibujeApoyo(p, b.Ejes.EjesX[eje], b.Ejes.EjesY[eje], b.Datos.Ejes[eje].Tipo);
}

void DibujeNombres(Plano& p, const Boceto& b, double abajo) {
    p.Letra(Letra, true);
    for (std::size_t eje = 1; eje <= b.N + 1 && eje < b.Datos.Ejes.size(); ++eje) {
        const std::string& nombre = b.Datos.Ejes[eje].Eje;
        const MedidaTexto medida = p.ElLienzo().Medir(nombre.empty() ? "0" : nombre);
        const std::int32_t radio = std::max(medida.Ancho, medida.Alto) / 2 + 3;
        const std::int32_t x = p.X(b.Ejes.EjesX[eje]);
        const std::int32_t y = p.Fila(abajo, b.Ejes.EjesY[eje]) + radio;
        const bool marcado = eje == b.Marca.Junta;
        p.ElLienzo().Circulo({x, y}, radio,
                             Pluma{marcado ? 2 : 1, EstiloLinea::Solida, marcado ? TintaMarca : Contorno},
                             marcado ? FondoMarca : FondoNombreDeEje);
        p.EscribirCentrado(nombre, x, y);
    }
    p.Letra(Letra);
}

void DibujeCotasDeTramos(Plano& p, const Boceto& b, double sobre) {
    for (std::size_t i = 1; i <= b.N; ++i) {
        const double nivel = std::max(b.Ejes.EjesY[i], b.Ejes.EjesY[i + 1]) + sobre;
        p.ElLienzo().PonerColorTexto(b.Datos.Tramos[i].LT > 0 && i != b.Marca.Tramo ? Contorno : TintaMarca);
        Acotar(p, {p.X(b.Ejes.EjesX[i]), p.Y(nivel)}, {p.X(b.Ejes.EjesX[i + 1]), p.Y(nivel)},
               b.Numero(b.Datos.Tramos[i].LT, "0.00"), TextoDeCota::Encima);
    }
    p.ElLienzo().PonerColorTexto(Contorno);
}

void DibujeCorrimientos(Plano& p, const Boceto& b) {
    for (std::size_t k = 1; k < b.Datos.JuntasD.size(); ++k) {
        const losas::JuntaD& junta = b.Datos.JuntasD[k];
        if (junta.Junta < 1 || static_cast<std::size_t>(junta.Junta) > b.N + 1) continue;
        const auto eje = static_cast<std::size_t>(junta.Junta);
        const std::int32_t x = p.X(b.Ejes.EjesX[eje]);
        const double y = b.Ejes.EjesY[eje];
        DibujeLinea(p.ElLienzo(), x, p.Fila(0.25, y), x, p.Y(y + 0.25), 2, EstiloLinea::Solida, TintaMarca);
        p.ElLienzo().PonerColorTexto(TintaMarca);
        p.Rotular("(" + b.Numero(junta.x, "0.00") + " ; " + b.Numero(junta.y, "0.00") + ")",
                  {{static_cast<double>(x), p.Y(y + 0.3) - p.ElLienzo().Medir("WW").Alto / 2.0},
                   {static_cast<double>(x), p.Y(y + 0.3) - p.ElLienzo().Medir("WW").Alto * 1.5}});
        p.ElLienzo().PonerColorTexto(Contorno);
    }
}

/// The section in a box of the canvas, with its dimensions.
class Seccion {
  public:
    Seccion(Plano& p, const Boceto& b, double x, double y, double ancho, double alto)
        : p_(p), b_(b), x_(x), y_(y), ancho_(ancho), alto_(alto) {}

    void Dibujar() {
        const losas::Losa& losa = b_.Datos;
        const double total = losa.OpcionMaciza ? losa.Bm : losa.So + losa.Bo;
        const double altura = losa.OpcionMaciza ? losa.Hm : losa.Ho;
        if (!(total > 0 && altura > 0)) return;
        unidades_ = std::min(ancho_ * 0.55 / total, alto_ * 0.45 / altura);
        izquierda_ = x_ - total * unidades_ / 2;
        arriba_ = y_ - altura * unidades_ / 2;
        if (losa.OpcionMaciza)
            DibujarMaciza();
        else
            DibujarNervada();
        CotaVertical(X(0) - 10, 0, altura, TextoDeCota::Izquierda);
    }

  private:
    std::int32_t X(double x) const { return Pixeles(izquierda_ + x * unidades_); }
    std::int32_t Y(double y) const { return Pixeles(arriba_ + y * unidades_); }

    void DibujarMaciza() {
        const losas::Losa& losa = b_.Datos;
        const std::array<PuntoLienzo, 4> figura{
            {{X(0), Y(0)}, {X(losa.Bm), Y(0)}, {X(losa.Bm), Y(losa.Hm)}, {X(0), Y(losa.Hm)}}};
        p_.ElLienzo().Poligono(figura, PlumaContorno, FondoConcreto);
        CotaHorizontal(0, losa.Bm, losa.Hm, losa.Bm);
    }

    /// Two ribs under their topping.
    void DibujarNervada() {
        const losas::Losa& losa = b_.Datos;
        const double fin = losa.So + losa.Bo;
        const std::array<PuntoLienzo, 8> figura{{{X(0), Y(0)},
                                                 {X(fin), Y(0)},
                                                 {X(fin), Y(losa.Ho)},
                                                 {X(losa.So), Y(losa.Ho)},
                                                 {X(losa.So), Y(losa.Loseta)},
                                                 {X(losa.Bo), Y(losa.Loseta)},
                                                 {X(losa.Bo), Y(losa.Ho)},
                                                 {X(0), Y(losa.Ho)}}};
        p_.ElLienzo().Poligono(figura, PlumaContorno, FondoConcreto);
        CotaHorizontal(0, losa.Bo, losa.Ho, losa.Bo);
        CotaHorizontal(losa.Bo / 2, losa.So + losa.Bo / 2, losa.Ho + SegundaCota(), losa.So);
        CotaVertical(X(fin) + 10, 0, losa.Loseta, TextoDeCota::Derecha);
    }

    double SegundaCota() const { return (p_.ElLienzo().Medir("WW").Alto + 8) / unidades_; }

    void CotaHorizontal(double desde, double hasta, double abajo, double valor) {
        const std::int32_t y = Y(abajo) + p_.ElLienzo().Medir("WW").Alto + 6;
        Acotar(p_, {X(desde), y}, {X(hasta), y}, b_.Numero(valor, "0.00"), TextoDeCota::AlFinal, PlumaCota);
    }

    void CotaVertical(std::int32_t x, double desde, double hasta, TextoDeCota lado) {
        Acotar(p_, {x, Y(desde)}, {x, Y(hasta)}, b_.Numero(hasta - desde, "0.00"), lado, PlumaCota);
    }

    Plano& p_;
    const Boceto& b_;
    double x_, y_, ancho_, alto_;
    double unidades_ = 1;
    double izquierda_ = 0;
    double arriba_ = 0;
};

/// The load of a span as a band whose texts name both loads, and its point load with its distance.
void DibujeCargasDeTramo(Plano& p, const Boceto& b, std::size_t i) {
    const losas::Tramo& tramo = b.Datos.Tramos[i];
    const bool marcado = i == b.Marca.Tramo;
    if (tramo.Wp != 0 || tramo.WV != 0)
        DibujeBanda(p, b.Ejes, i, MediaBanda, BordeCarga, std::nullopt, marcado ? FondoMarca : FondoCarga);
    const double medio = (p.X(b.Ejes.EjesX[i]) + p.X(b.Ejes.EjesX[i + 1])) / 2.0;
    const double nivel = (b.Ejes.EjesY[i] + b.Ejes.EjesY[i + 1]) / 2;
    if (tramo.p1 != 0 && tramo.L1 >= 0 && tramo.L1 <= tramo.LT) {
        const auto [x, y] = DibujeFlechaDeCarga(p, b.Ejes, i, tramo.L1);
        const MedidaTexto medida = p.ElLienzo().Medir(b.Numero(tramo.p1, "0"));
        const double lado = 0.15 * p.Escala() + medida.Ancho / 2.0 + 3;
        p.Rotular(b.Numero(tramo.p1, "0"),
                  {{x + lado, y - 0.25 * p.Escala()}, {x - lado, y - 0.25 * p.Escala()}});
    }
    const std::string texto = TextoDeCarga(tramo, CargaPorCasos);
    const double alto = p.ElLienzo().Medir(texto).Alto;
    const double cuarto = (p.X(b.Ejes.EjesX[i + 1]) - p.X(b.Ejes.EjesX[i])) / 4.0;
    const double enBanda = p.Y(nivel + (MediaBanda + BordeCarga) / 2);
    p.Rotular(texto, {{medio, enBanda},
                      {medio - cuarto, enBanda},
                      {medio + cuarto, enBanda},
                      {medio, enBanda - alto},
                      {medio, enBanda - 2 * alto},
                      {medio, enBanda - 3 * alto}});
}

void DibujeTramosYSeccion(Lienzo& lienzo, EstadoVista& vista, const losas::Losa& losa,
                          const MarcaBoceto& marca, const Separadores& numeros) {
    const Boceto b = Empezar(lienzo, vista, losa, marca, numeros);
    Plano p = Ubicar(lienzo, vista, b.Ejes, 3.2, 0.55, 0.30);
    if (b.N > 0) {
        DibujeTramos(p, b);
        DibujeCotasDeTramos(p, b, 0.75);
        DibujeCorrimientos(p, b);
        DibujeNombres(p, b, 0.6);
    }
    const double H = lienzo.ScaleHeight();
    Seccion(p, b, vista.OrigenX, H * 0.76 * vista.Zoom + H * (1 - vista.Zoom) / 2 + vista.PanY,
            lienzo.ScaleWidth() * vista.Zoom, H * 0.4 * vista.Zoom)
        .Dibujar();
}

}  // namespace

void DibujeLosaDatos(Lienzo& lienzo, EstadoVista& vista, const losas::Losa& losa, const MarcaBoceto& marca,
                     const Separadores& numeros) {
    DibujeTramosYSeccion(lienzo, vista, losa, marca, numeros);
}

void DibujeLosaCargas(Lienzo& lienzo, EstadoVista& vista, const losas::Losa& losa, const MarcaBoceto& marca,
                      const Separadores& numeros) {
    const Boceto b = Empezar(lienzo, vista, losa, marca, numeros);
    if (b.N == 0) return;
    Plano p = Ubicar(lienzo, vista, b.Ejes, 4, 0.9, 0.5);
    DibujeTramos(p, b);
    for (std::size_t i = 1; i <= b.N; ++i) DibujeCargasDeTramo(p, b, i);
    DibujeNombres(p, b, 0.6);
}

void DibujeLosaExportar(Lienzo& lienzo, EstadoVista& vista, const losas::Losa& losa,
                        const Separadores& numeros) {
    DibujeTramosYSeccion(lienzo, vista, losa, {}, numeros);
}

}  // namespace trabex::dibujo::losa
