#include "drawing/losa/BaseLosa.h"

#include <algorithm>
#include <numbers>

#include "drawing/Primitivas.h"
#include "drawing/losa/Apoyos.h"

namespace trabex::dibujo::losa {

namespace {

constexpr Color FondoBanda{156, 177, 182};
constexpr std::array<Color, 3> FondoCarga{{{248, 199, 199}, {248, 199, 199}, {255, 242, 217}}};

constexpr double PieDeLinea = 0.75;  // end of an axis's vertical line, below the joint
constexpr double DiametroDeEje = 0.52;
constexpr double TopeDeCirculo = 0.3;  // below the line's end
constexpr double LetraDeEje = 11.5;
constexpr double LetraDeTitulo = 9;
constexpr double MetrosBajoLosa = 7.5;  // that bands and tables need below the slab

void DibujeBandas(const Trazado& t) {
    for (std::size_t i = 1; i <= t.N; ++i)
        DibujeBanda(t.EnMetros, t.Hoja.Ejes, i, -MediaBanda, MediaBanda, PlumaContorno, FondoBanda);
    for (std::size_t i = 1; i <= t.N; ++i)
        DibujeBanda(t.EnMetros, t.Hoja.Ejes, i, MediaBanda, BordeCarga, std::nullopt,
                    FondoCarga[t.Hoja.OpcionCarga]);
}

/// The value of a point load beside its arrow, read from below.
void DibujeCargaPuntual(Trazado& t, std::size_t i) {
    const losas::Tramo& tramo = t.Losa.Tramos[i];
    if (tramo.p1 == 0) return;
    Plano& p = t.EnMetros;
    const auto [x, y] = DibujeFlechaDeCarga(p, t.Hoja.Ejes, i, tramo.L1);
    const std::string valor = t.Numero(tramo.p1, "0");
    const MedidaTexto medida = p.ElLienzo().Medir(valor);
    const double lado = 0.15 * p.Escala() + medida.Alto / 2.0;
    const double centro = y - medida.Ancho / 2.0 - p.Unidades(2);
    p.Rotular(valor, {{x + lado, centro}, {x - lado, centro}, {x + lado, centro - medida.Ancho}}, 90);
}

void DibujeCargaUniforme(Trazado& t, std::size_t i) {
    Plano& p = t.EnMetros;
    const double pendiente = PendienteDeTramo(t.Hoja.Ejes, i);
    const Lugar mitad = MitadDeTramo(t.Hoja.Ejes, i);
    const std::string texto = TextoDeCarga(t.Losa.Tramos[i], t.Hoja.OpcionCarga);
    const MedidaTexto medida = p.ElLienzo().Medir(texto);
    const double x = p.X(mitad.x);
    const double enBanda = std::min<double>(p.Y(mitad.y + (MediaBanda + BordeCarga) / 2),
                                            p.Y(mitad.y + MediaBanda) - medida.Alto / 2.0);
    std::vector<Centro> centros{{x, enBanda}};
    const double cuarto = (t.EjeX(i + 1) - t.EjeX(i)) * p.Escala() / 4;
    if (pendiente == 0 && medida.Ancho < 2 * cuarto) {
        centros.push_back({x - cuarto, enBanda});
        centros.push_back({x + cuarto, enBanda});
    }
    const double sobreBanda = std::min(enBanda, p.Y(mitad.y + BordeCarga) + medida.Alto / 2.0);
    for (int nivel = 1; nivel <= 4; ++nivel) centros.push_back({x, sobreBanda - nivel * medida.Alto});
    const PiezaTexto caja = p.Colocar(medida.Ancho, medida.Alto, centros);
    p.EscribirCentrado(texto, caja.x + caja.Ancho / 2, caja.y + caja.Alto / 2,
                       pendiente * 180 / std::numbers::pi);
}

/// Places one above or below another, `paso` apart.
std::vector<Centro> Niveles(double x, double primera, double paso) {
    return {{x, primera}, {x, primera + paso}, {x, primera + 2 * paso}, {x, primera + 3 * paso}};
}

void DibujeLongitud(Trazado& t, std::size_t i) {
    Plano& p = t.EnMetros;
    const Lugar mitad = MitadDeTramo(t.Hoja.Ejes, i);
    const double alto = p.ElLienzo().Medir("WW").Alto;
    const double primera = p.Fila(MediaBanda, mitad.y) + p.Unidades(2) + alto / 2;
    p.Rotular(t.Numero(t.Losa.Tramos[i].LT, "0.00"), Niveles(p.X(mitad.x), primera, alto));
}

void DibujeEje(Trazado& t, std::size_t eje) {
    Plano& p = t.EnMetros;
    const std::int32_t x = p.X(t.EjeX(eje));
    DibujeLinea(p.ElLienzo(), x, p.Fila(MediaBanda, t.EjeY(eje)), x, p.Fila(PieDeLinea, t.EjeY(eje)), 1,
                EstiloLinea::Solida, Contorno);
    const std::int32_t radio = Pixeles(p.Escala() * DiametroDeEje / 2);
    const std::int32_t y = p.Fila(PieDeLinea + TopeDeCirculo + DiametroDeEje / 2, t.EjeY(eje));
    p.ElLienzo().Circulo({x, y}, radio, PlumaContorno, FondoNombreDeEje);
    p.Letra(LetraDeEje, true);
    const std::string nombre = eje < t.Losa.Ejes.size() ? t.Losa.Ejes[eje].Eje : "";
    const MedidaTexto medida = p.ElLienzo().Medir(nombre);
    const double ancho = std::max(medida.Ancho, 2 * radio);
    const double alto = std::max(medida.Alto, 2 * radio);
    p.Reservar({x - ancho / 2, y - alto / 2, ancho, alto});
    p.EscribirCentrado(nombre, x, y);
}

void DibujeJuntaDesplazada(Trazado& t, const losas::JuntaD& junta) {
    if (junta.Junta < 1 || static_cast<std::size_t>(junta.Junta) > t.N + 1) return;
    Plano& p = t.EnMetros;
    const auto eje = static_cast<std::size_t>(junta.Junta);
    const std::int32_t x = p.X(t.EjeX(eje));
    const double y = t.EjeY(eje);
    DibujeLinea(p.ElLienzo(), x, p.Fila(0.1, y), x, p.Y(y + 0.16), 2, EstiloLinea::Solida, Contorno);
    const std::string texto = TextoDeCorrimiento(junta, t.Hoja.Numeros);
    const MedidaTexto medida = p.ElLienzo().Medir(texto);
    const double primera = p.Y(y + BordeCarga) - p.Unidades(2) - 0.5 * medida.Alto;
    p.Rotular(texto, Niveles(x, primera, -medida.Alto));
}

/// Labels are placed after the figures whose places they must leave free.
void DibujeLosa(Trazado& t) {
    const Plano& p = t.EnMetros;
    p.Letra(LetraNormal);
    DibujeLinea(p.ElLienzo(), p.X(t.EjeX(1)), t.Hoja.Vista.OrigenY, p.X(t.EjeX(t.N + 1)),
                t.Hoja.Vista.OrigenY, 1, EstiloLinea::Punteada, {});
    DibujeBandas(t);
    for (std::size_t i = 1; i <= t.N; ++i) DibujeCargaPuntual(t, i);
    for (std::size_t i = 1; i <= t.N; ++i) DibujeCargaUniforme(t, i);
    for (std::size_t i = 1; i <= t.N; ++i) DibujeLongitud(t, i);
    for (std::size_t eje = 1; eje <= t.N + 1; ++eje) DibujeEje(t, eje);
    p.Letra(LetraNormal);
    for (std::size_t k = 1; k < t.Losa.JuntasD.size(); ++k) DibujeJuntaDesplazada(t, t.Losa.JuntasD[k]);
    for (std::size_t eje = 1; eje <= t.N + 1 && eje < t.Losa.Ejes.size(); ++eje)
        DibujeApoyo(p, t.EjeX(eje), t.EjeY(eje), t.Losa.Ejes[eje].Tipo);
}

}  // namespace

std::string Trazado::Numero(double valor, std::string_view formato) const {
    return Formato(valor, formato, Hoja.Numeros);
}

std::string Trazado::Espesor() const {
    return Numero(losas::SeccionDeCalculo(Losa).Alto, "0.00");
}

Encuadre EncuadreDeLosa(const Lienzo& lienzo, const EjesDeHoja& ejes, const EstiloHoja& estilo) {
    const auto ajuste = std::find_if(estilo.Ajustes.begin(), estilo.Ajustes.end() - 1,
                                     [&](const auto& fila) { return ejes.Longitud > fila.MayorQue; });
    const double parte = ejes.YMaximo > 0 ? ajuste->Escalonada : ajuste->Parte;
    return {EscalaDeRegla(lienzo, {parte, estilo.ParteDelAlto, estilo.EscalaMaxima}, ejes.Longitud,
                          ejes.YMaximo / 2 + MetrosBajoLosa),
            estilo.OrigenVertical, ejes.YMaximo / 2};
}

Trazado DibujeBaseLosa(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                       const EstiloHoja& estilo) {
    const std::size_t N = losas::NumeroTramos(losa.Datos);
    Despejar(lienzo, hoja.Vista, estilo.Medio);
    if (N == 0) return {Plano(lienzo, hoja.Vista, estilo.Medio.FuenteNombre), hoja, losa, losa.Datos, estilo};
    hoja.Ejes = UbicarEjes(losa.Datos);
    Trazado t{Encuadrar(lienzo, hoja.Vista, estilo.Medio, EncuadreDeLosa(lienzo, hoja.Ejes, estilo)),
              hoja,
              losa,
              losa.Datos,
              estilo,
              N};
    DibujeLosa(t);
    return t;
}

void DibujeTitulos(const Trazado& t, std::int32_t fila, const std::vector<std::string>& lineas) {
    t.EnMetros.LetraDeTitulo(LetraDeTitulo);
    const std::int32_t alto = t.EnMetros.ElLienzo().Medir("WW").Alto;
    for (const std::string& linea : lineas) {
        t.EnMetros.Escribir(linea, Ancla::Centro, t.EnMetros.X(0), fila);
        fila += alto;
    }
}

}  // namespace trabex::dibujo::losa
