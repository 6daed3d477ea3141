#include "drawing/losa/GraficoGeometria.h"

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

void DibujeCotas(const Trazado& t) {
    const Plano& p = t.EnMetros;
    p.Letra(LetraDeCotas);
    const std::int32_t fila = p.Fila(FilaDeCotas);
    for (std::size_t i = 1; i <= t.N; ++i)
        Acotar(p, {p.X(t.EjeX(i)), fila}, {p.X(t.EjeX(i + 1)), fila}, t.Numero(t.Losa.Tramos[i].LT, "0.00"),
               TextoDeCota::Encima, {1, EstiloLinea::Punteada, {}});
    constexpr std::string_view rotulo = "DESPIECE:";
    const MedidaTexto medida = p.ElLienzo().Medir(rotulo);
    p.Escribir(rotulo, Ancla::Izquierda, p.X(t.EjeX(1)) - Pixeles(1.1 * medida.Ancho),
               fila - medida.Alto / 2);
}

}  // namespace

void DibujeGeometria(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                     const EstiloHoja& estilo) {
    const Trazado t = DibujeBaseLosa(lienzo, hoja, losa, estilo);
    if (t.N == 0) return;
    const Plano& p = t.EnMetros;
    for (std::size_t eje = 1; eje <= t.N + 1; ++eje) {
        const std::int32_t x = p.X(t.EjeX(eje));
        DibujeLinea(lienzo, x, p.Fila(InicioDeGuias, t.EjeY(eje)), x, p.Fila(FinDeGuias), 1,
                    EstiloLinea::Punteada, {});
    }
    DibujeCotas(t);
    const TextosHoja& textos = estilo.Textos;
    std::vector<std::string> titulos{RotuloDeLosa(losa.Datos) + std::string(textos.Espesor) + t.Espesor() +
                                         std::string(textos.TituloGeometria),
                                     losa.Datos.Nombre};
    if (!textos.LineaGeometria.empty()) titulos.emplace_back(textos.LineaGeometria);
    DibujeTitulos(t, p.Fila(FilaDeTitulos), titulos);
}

}  // namespace trabex::dibujo::losa
