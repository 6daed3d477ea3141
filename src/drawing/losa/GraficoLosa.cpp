#include "drawing/losa/GraficoLosa.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>

#include "drawing/Primitivas.h"
#include "drawing/losa/HojaComun.h"

namespace trabex::dibujo::losa {

namespace {

using namespace hoja;

constexpr Color FondoBanda{156, 177, 182};
constexpr std::array<Color, 3> FondoCarga{{{248, 199, 199}, {248, 199, 199}, {255, 242, 217}}};
constexpr Pluma PlumaContorno{1, EstiloLinea::Solida, Contorno};

constexpr double PieDeLinea = 0.75;  // end of an axis's vertical line, below the joint
constexpr double DiametroDeEje = 0.52;
constexpr double TopeDeCirculo = 0.3;  // below the line's end
constexpr double LetraDeEje = 11.5;

/// Fit of the total length in the width.
double FactorDeAjuste(const EjesDeHoja& ejes, const ReglaDeEscala& regla) {
    if (ejes.Longitud > 15) return 0.75;
    if (ejes.Longitud > 10) return 0.70;
    if (ejes.Longitud > 5) return ejes.YMaximo > 0 ? regla.KHasta10Escalonada : regla.KHasta10;
    return 0.60;
}

/// A band along a span, from `desde` to `hasta` m above the line through its axes.
std::array<PuntoLienzo, 4> BandaDeTramo(const Hoja& h, std::size_t i, double desde, double hasta) {
    const Plano& p = h.Papel;
    const auto punto = [&](std::size_t eje, double sobre) {
        return PuntoLienzo{p.X(h.EjeX(eje)), p.Y(h.EjeY(eje) + sobre)};
    };
    return {punto(i, desde), punto(i + 1, desde), punto(i + 1, hasta), punto(i, hasta)};
}

/// A point of the line through a span's axes, at `d` m from the first along the horizontal.
struct Lugar {
    double x;
    double y;
};
Lugar EnTramo(const Hoja& h, std::size_t i, double d) {
    return {h.EjeX(i) + d, h.EjeY(i) + std::tan(PendienteDeTramo(h.Datos.Ejes, i)) * d};
}

Lugar MitadDeTramo(const Hoja& h, std::size_t i) {
    return {(h.EjeX(i) + h.EjeX(i + 1)) / 2, (h.EjeY(i) + h.EjeY(i + 1)) / 2};
}

void DibujeBandas(const Hoja& h) {
    for (std::size_t i = 1; i <= h.N; ++i)
        h.Papel.lienzo().Poligono(BandaDeTramo(h, i, -MediaBanda, MediaBanda), PlumaContorno, FondoBanda);
    for (std::size_t i = 1; i <= h.N; ++i)
        h.Papel.lienzo().Poligono(BandaDeTramo(h, i, MediaBanda, BordeCarga), std::nullopt,
                                  FondoCarga[h.Datos.OpcionCarga]);
}

/// The arrow stands on the load band; its value beside it, read from below.
void DibujeCargaPuntual(Hoja& h, std::size_t i) {
    const losas::Tramo& tramo = h.Losa.Datos.Tramos[i];
    if (tramo.p1 == 0) return;
    Plano& p = h.Papel;
    const Lugar lugar = EnTramo(h, i, tramo.L1);
    const std::int32_t x = p.X(lugar.x);
    const std::int32_t y = p.Y(lugar.y + BordeCarga);
    DibujeFlecha(p.lienzo(), x, y, HaciaAbajo, FlechaBloque, p.Escala());
    p.Reservar({x - 0.15 * p.Escala(), y - 0.5 * p.Escala(), 0.3 * p.Escala(), 0.5 * p.Escala()});
    const std::string valor = h.Numero(tramo.p1, "0");
    const MedidaTexto medida = p.lienzo().Medir(valor);
    const double lado = 0.15 * p.Escala() + medida.Alto / 2.0;
    const double centro = y - medida.Ancho / 2.0 - p.Unidades(2);
    p.Rotular(valor, {{x + lado, centro}, {x - lado, centro}, {x + lado, centro - medida.Ancho}}, 90);
}

void DibujeCargaUniforme(Hoja& h, std::size_t i) {
    Plano& p = h.Papel;
    const double pendiente = PendienteDeTramo(h.Datos.Ejes, i);
    const Lugar mitad = MitadDeTramo(h, i);
    const std::string texto = TextoDeCarga(h.Losa.Datos.Tramos[i], h.Datos.OpcionCarga);
    const MedidaTexto medida = p.lienzo().Medir(texto);
    const double x = p.X(mitad.x);
    const double enBanda = std::min<double>(p.Y(mitad.y + (MediaBanda + BordeCarga) / 2),
                                            p.Y(mitad.y + MediaBanda) - medida.Alto / 2.0);
    std::vector<Centro> centros{{x, enBanda}};
    const double cuarto = (h.EjeX(i + 1) - h.EjeX(i)) * p.Escala() / 4;
    if (pendiente == 0 && medida.Ancho < 2 * cuarto) {
        centros.push_back({x - cuarto, enBanda});
        centros.push_back({x + cuarto, enBanda});
    }
    const double sobreBanda = std::min(enBanda, p.Y(mitad.y + BordeCarga) + medida.Alto / 2.0);
    for (int nivel = 1; nivel <= 4; ++nivel) centros.push_back({x, sobreBanda - nivel * medida.Alto});
    const CajaTexto caja = p.Colocar(medida.Ancho, medida.Alto, centros);
    p.EscribirCentrado(texto, caja.x + caja.Ancho / 2, caja.y + caja.Alto / 2,
                       pendiente * 180 / std::numbers::pi);
}

/// Places one above or below another, `paso` apart.
std::vector<Centro> Niveles(double x, double primera, double paso) {
    return {{x, primera}, {x, primera + paso}, {x, primera + 2 * paso}, {x, primera + 3 * paso}};
}

void DibujeLongitud(Hoja& h, std::size_t i) {
    Plano& p = h.Papel;
    const Lugar mitad = MitadDeTramo(h, i);
    const double alto = p.lienzo().Medir("WW").Alto;
    const double primera = p.Fila(MediaBanda, mitad.y) + p.Unidades(2) + alto / 2;
    p.Rotular(h.Numero(h.Losa.Datos.Tramos[i].LT, "0.00"), Niveles(p.X(mitad.x), primera, alto));
}

void DibujeEje(Hoja& h, std::size_t eje) {
    Plano& p = h.Papel;
    const std::int32_t x = p.X(h.EjeX(eje));
    DibujeLinea(p.lienzo(), x, p.Fila(MediaBanda, h.EjeY(eje)), x, p.Fila(PieDeLinea, h.EjeY(eje)), 1,
                EstiloLinea::Solida, Contorno);
    const std::int32_t radio = Pixeles(p.Escala() * DiametroDeEje / 2);
    const std::int32_t y = p.Fila(PieDeLinea + TopeDeCirculo + DiametroDeEje / 2, h.EjeY(eje));
    p.lienzo().Circulo({x, y}, radio, PlumaContorno, FondoTexto);
    p.Letra(LetraDeEje, true);
    const std::string nombre = eje < h.Losa.Datos.Ejes.size() ? h.Losa.Datos.Ejes[eje].Eje : "";
    const MedidaTexto medida = p.lienzo().Medir(nombre);
    const double ancho = std::max(medida.Ancho, 2 * radio);
    const double alto = std::max(medida.Alto, 2 * radio);
    p.Reservar({x - ancho / 2, y - alto / 2, ancho, alto});
    p.EscribirCentrado(nombre, x, y);
}

void DibujeJuntaDesplazada(Hoja& h, const losas::JuntaD& junta) {
    if (junta.Junta < 1 || static_cast<std::size_t>(junta.Junta) > h.N + 1) return;
    Plano& p = h.Papel;
    const auto eje = static_cast<std::size_t>(junta.Junta);
    const std::int32_t x = p.X(h.EjeX(eje));
    const double y = h.EjeY(eje);
    DibujeLinea(p.lienzo(), x, p.Fila(0.1, y), x, p.Y(y + 0.16), 2, EstiloLinea::Solida, Contorno);
    const std::string texto = TextoDeCorrimiento(junta, h.Datos.Numeros);
    const MedidaTexto medida = p.lienzo().Medir(texto);
    const double primera = p.Y(y + BordeCarga) - p.Unidades(2) - 0.5 * medida.Alto;
    p.Rotular(texto, Niveles(x, primera, -medida.Alto));
}

void Preparar(Hoja& h) {
    h.Papel.lienzo().PonerColorTexto(h.Papel.lienzo().ColorTextoDeBotones());
    h.Papel.Letra(LetraNormal);
}

}  // namespace

std::string Hoja::Numero(double valor, std::string_view formato) const {
    return Formato(valor, formato, Datos.Numeros);
}

std::string Hoja::Espesor() const {
    return Numero(EspesorDeLosa(Losa.Datos), "0.00");
}

void UbicarVista(const Lienzo& lienzo, HojaLosa& hoja, const EstiloHoja& estilo) {
    const double W = lienzo.ScaleWidth();
    const double H = lienzo.ScaleHeight();
    const ReglaDeEscala& regla = estilo.Escala;
    const EjesDeHoja& ejes = hoja.Ejes;
    double base = W * FactorDeAjuste(ejes, regla) / ejes.Longitud;
    if (regla.LimiteVertical) base = std::min(base, H * 0.7 / (ejes.YMaximo / 2 + 7.5));
    if (regla.EscalaMaxima > 0) base = std::min(base, regla.EscalaMaxima);
    EstadoVista& vista = hoja.Vista;
    if (!(vista.Zoom > 0)) vista.Zoom = 1;
    const double enPantalla = vista.Escala;
    vista.Escala = vista.Zoom * base;
    const double pan = regla.DePagina && enPantalla > 0 ? vista.Escala / enPantalla : 1;
    if (vista.Zoom == 1.0) vista.EscalaBase = 1 / vista.Escala;
    if (regla.DePagina) vista.EscalaBase = 1 / base;
    vista.OrigenX = Pixeles(W / 2 + pan * vista.PanX);
    vista.OrigenY = Pixeles(ejes.YMaximo / 2 * vista.Escala + H * regla.OrigenVertical + pan * vista.PanY);
}

/// Labels are placed after the figures whose places they must leave free.
static void DibujeBase(Hoja& h) {
    Preparar(h);
    const Plano& p = h.Papel;
    DibujeLinea(p.lienzo(), p.X(h.EjeX(1)), h.Datos.Vista.OrigenY, p.X(h.EjeX(h.N + 1)),
                h.Datos.Vista.OrigenY, 1, EstiloLinea::Punteada, {});
    DibujeBandas(h);
    for (std::size_t i = 1; i <= h.N; ++i) DibujeCargaPuntual(h, i);
    for (std::size_t i = 1; i <= h.N; ++i) DibujeCargaUniforme(h, i);
    for (std::size_t i = 1; i <= h.N; ++i) DibujeLongitud(h, i);
    for (std::size_t eje = 1; eje <= h.N + 1; ++eje) DibujeEje(h, eje);
    p.Letra(LetraNormal);
    for (std::size_t k = 1; k < h.Losa.Datos.JuntasD.size(); ++k)
        DibujeJuntaDesplazada(h, h.Losa.Datos.JuntasD[k]);
    for (std::size_t eje = 1; eje <= h.N + 1 && eje < h.Losa.Datos.Ejes.size(); ++eje)
        DibujeApoyo(p, h.EjeX(eje), h.EjeY(eje), h.Losa.Datos.Ejes[eje].Tipo);
}

Hoja EmpezarHoja(Lienzo& lienzo, HojaLosa& datos, const LosaCalculada& losa, const EstiloHoja& estilo) {
    Hoja h{Plano(lienzo, datos.Vista, estilo.FuenteNombre), datos, losa, estilo,
           losa.Datos.Tramos.size() - 1};
    lienzo.Limpiar();
    if (estilo.ConCuadricula && datos.Vista.CuadriculaVisible && !datos.Vista.ExportandoGrafico)
        DibujeCuadricula(lienzo, SeparacionCuadricula);
    if (h.N == 0) return h;
    datos.Ejes = UbicarEjes(losa.Datos);
    UbicarVista(lienzo, datos, estilo);
    DibujeBase(h);
    return h;
}

void DibujeTitulos(const Hoja& h, std::int32_t fila, const std::vector<std::string>& lineas) {
    h.Papel.LetraDeTitulo(hoja::LetraDeTitulo);
    const std::int32_t alto = h.Papel.lienzo().Medir("WW").Alto;
    for (const std::string& linea : lineas) {
        h.Papel.Escribir(linea, Ancla::Centro, h.Papel.X(0), fila);
        fila += alto;
    }
}

std::int16_t DibujeBaseLosa(Lienzo& lienzo, HojaLosa& hoja, const LosaCalculada& losa,
                            const EstiloHoja& estilo) {
    EmpezarHoja(lienzo, hoja, losa, estilo);
    return losas::NumeroTramos(losa.Datos);
}

void RedibujeVista(Lienzo& lienzo, HojaLosa& hoja, const LosaCalculada& losa, const EstiloHoja& estilo) {
    switch (hoja.VistaActual) {
        case VistaGeometria:
            return DibujeGeometria(lienzo, hoja, losa, estilo);
        case VistaFuerzas:
            return DibujeFuerzas(lienzo, hoja, losa, estilo);
        case VistaDiseno:
            return DibujeDiseno(lienzo, hoja, losa, estilo);
        default:
            return;
    }
}

}  // namespace trabex::dibujo::losa
