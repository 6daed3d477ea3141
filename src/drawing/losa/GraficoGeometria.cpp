#include "drawing/Primitivas.h"
#include "drawing/losa/GraficoLosa.h"
#include "drawing/losa/HojaComun.h"

namespace trabex::dibujo::losa {

namespace {

constexpr double InicioDeGuias = 1.68;  // m below the joint
constexpr double FinDeGuias = 6.8;      // m below the origin
constexpr double FilaDeCotas = 6.6;
constexpr double FilaDeTitulos = 7.2;
constexpr double LetraDeCotas = 7;

void DibujeCotas(const Hoja& h) {
    const Plano& p = h.Papel;
    p.Letra(LetraDeCotas);
    const std::int32_t fila = p.Fila(FilaDeCotas);
    for (std::size_t i = 1; i <= h.N; ++i)
        p.Acotar(h.EjeX(i), h.EjeX(i + 1), fila, h.Numero(h.Losa.Datos.Tramos[i].LT, "0.00"),
                 EstiloLinea::Punteada);
    constexpr std::string_view rotulo = "DESPIECE:";
    const MedidaTexto medida = p.lienzo().Medir(rotulo);
    p.Escribir(rotulo, Ancla::Izquierda, p.X(h.EjeX(1)) - Pixeles(1.1 * medida.Ancho),
               fila - medida.Alto / 2);
}

}  // namespace

void DibujeGeometria(Lienzo& lienzo, HojaLosa& hoja, const LosaCalculada& losa, const EstiloHoja& estilo) {
    const Hoja h = EmpezarHoja(lienzo, hoja, losa, estilo);
    if (h.N == 0) return;
    const Plano& p = h.Papel;
    for (std::size_t eje = 1; eje <= h.N + 1; ++eje) {
        const std::int32_t x = p.X(h.EjeX(eje));
        DibujeLinea(lienzo, x, p.Fila(InicioDeGuias, h.EjeY(eje)), x, p.Fila(FinDeGuias), 1,
                    EstiloLinea::Punteada, {});
    }
    DibujeCotas(h);
    const TextosHoja& textos = estilo.Textos;
    std::vector<std::string> titulos{RotuloDeLosa(losa.Datos) + std::string(textos.Espesor) + h.Espesor() +
                                         std::string(textos.TituloGeometria),
                                     losa.Datos.Nombre};
    if (!textos.LineaGeometria.empty()) titulos.emplace_back(textos.LineaGeometria);
    DibujeTitulos(h, p.Fila(FilaDeTitulos), titulos);
}

}  // namespace trabex::dibujo::losa
