#include "drawing/losa/GraficoGeometria.h"

#include <algorithm>
#include <cmath>

#include "drawing/Cotas.h"
#include "drawing/Primitivas.h"
#include "drawing/losa/BaseLosa.h"

namespace trabex::dibujo::losa {

namespace {

constexpr double InicioDeGuias = 1.68;  // m below the joint
constexpr double FinDeGuias = 6.8;      // m below the origin
constexpr double FilaDeCotas = 6.6;
constexpr double FilaDeTitulos = 7.2;
constexpr double LetraDeCotas = 7;

/// The lengths over the dimension line, on as many lines as they need, and its label: rows count from the
/// line. Their heads reach `Alto` over it.
struct Cotas {
    std::vector<RotuloDeHoja> Rotulos;
    double Alto = 0;
    double Pie = 0;
};

Cotas Disponer(const Trazado& t) {
    const double renglon = t.Renglon();
    Ocupacion ocupadas = t.EnMetros.SinOcupar();
    Cotas cotas;
    const auto guardar = [&](std::string texto, const PiezaTexto& caja, std::size_t tramo) {
        cotas.Alto = std::max(cotas.Alto, -caja.y);
        cotas.Pie = std::max(cotas.Pie, caja.Pie());
        cotas.Rotulos.push_back({BandaDe::Cotas, std::move(texto), caja, 0, tramo});
    };
    constexpr std::string_view rotulo = "DESPIECE:";
    const double ancho = t.Medir(rotulo).Ancho;
    const PiezaTexto titulo{t.Columna(t.PrimerEje()) - 1.1 * ancho, -renglon / 2, ancho, renglon};
    ocupadas.Reservar(titulo);
    guardar(std::string(rotulo), titulo, 0);
    for (std::size_t i = t.PrimerTramo(); i <= t.UltimoTramo(); ++i) {
        const std::string texto = t.Numero(t.Losa.Tramos[i].LT, "0.00");
        const double suyo = t.Medir(texto).Ancho;
        const PiezaTexto caja{t.MitadDeTramo(i) - std::floor(suyo / 2),
                              -renglon - t.EnMetros.Unidades(PixelesSobreCota), suyo, renglon};
        guardar(texto, ocupadas.Apilar(caja, -renglon), i);
    }
    return cotas;
}

/// The dimension chain in its row, at each axis the guide that leads down to it.
void Dibujar(const Trazado& t, Cotas cotas, double fila) {
    const Plano& p = t.EnMetros;
    const std::int32_t renglon = Pixeles(t.Hoja.Vista.OrigenY + fila);
    const std::int32_t fin = std::max(p.Fila(FinDeGuias), renglon);
    for (std::size_t eje = t.PrimerEje(); eje <= t.UltimoEje(); ++eje) {
        const std::int32_t x = p.X(t.EjeX(eje));
        const std::int32_t inicio = Pixeles(t.Hoja.Vista.OrigenY - p.Escala() * t.EjeY(eje) +
                                            std::max(p.Escala() * InicioDeGuias, t.Pie));
        DibujeLinea(p.ElLienzo(), x, inicio, x, fin, 1, EstiloLinea::Punteada, {});
    }
    for (std::size_t i = t.PrimerTramo(); i <= t.UltimoTramo(); ++i)
        DibujeCota(p, {p.X(t.EjeX(i)), renglon}, {p.X(t.EjeX(i + 1)), renglon}, SentidoDeCota::Horizontal,
                   {1, EstiloLinea::Punteada, {}});
    for (RotuloDeHoja& rotulo : cotas.Rotulos) {
        rotulo.Caja.y += fila;
        t.Escribir(std::move(rotulo));
    }
    t.Anotar({BandaDe::Cotas, fila - cotas.Alto, fila + cotas.Pie, false});
}

}  // namespace

void DibujeGeometria(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                     const EstiloHoja& estilo) {
    const auto trazado = DibujeBaseLosa(lienzo, hoja, losa, estilo, {});
    if (!trazado) return;
    const Trazado& t = *trazado;
    lienzo.PonerCapa(CapaCotas);
    const double E = t.EnMetros.Escala();
    t.EnMetros.Letra(LetraDeCotas);
    Cotas cotas = Disponer(t);
    const double fila = std::max(E * FilaDeCotas, t.Perfil.Todos().MasBajo + t.Pie + cotas.Alto);
    const double pie = fila + std::max(E * (FilaDeTitulos - FilaDeCotas), cotas.Pie);
    Dibujar(t, std::move(cotas), fila);
    const TextosHoja& textos = estilo.Textos;
    std::vector<std::string> titulos{RotuloDeLosa(losa.Datos) + std::string(textos.Espesor) + t.Espesor() +
                                         std::string(textos.TituloGeometria),
                                     t.Nombre()};
    if (!textos.LineaGeometria.empty()) titulos.emplace_back(textos.LineaGeometria);
    DibujeTitulos(t, pie, titulos);
}

}  // namespace trabex::dibujo::losa
