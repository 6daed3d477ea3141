#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "drawing/Primitivas.h"
#include "drawing/losa/GraficoLosa.h"
#include "drawing/losa/HojaComun.h"

namespace trabex::dibujo::losa {

namespace {

using namespace hoja;

constexpr Color FondoCorte{165, 191, 235};
constexpr Color FondoMomento{247, 194, 187};
constexpr double PrimeraBanda = 2.97;  // axis of the shear diagram, below the slab
constexpr double MediaFranja = 1.39;   // from a diagram's axis to the edge of its band
constexpr double Amplitud = 0.8;       // of the largest value
constexpr double LargoDeFlecha = 0.5;
constexpr double FilaDeTitulos = 7.62;
constexpr double FlechaDeReaccion = 0.8;  // part of a block arrow's size

/// A diagram: its values are drawn along the span, `Sentido` telling which way a positive one goes on the
/// canvas. Shears are drawn upward, moments on the side in tension.
struct Diagrama {
    std::int32_t Desfase;  ///< of its axis from the slab's, canvas units
    double Unidades;       ///< canvas units per kgf or kgf·m
    double Sentido;
    Color Fondo;
    double PuntoDiagrama::*Valor;

    double Subida(double valor) const { return Sentido * Unidades * valor; }
};

std::int32_t EjeDelDiagrama(const Hoja& h, const Diagrama& diagrama, std::size_t i, double d,
                            double tangente) {
    return h.Papel.Y(h.EjeY(i) + tangente * d) + diagrama.Desfase;
}

void DibujeFranjas(const Hoja& h, const Diagrama& diagrama, std::size_t i, double tangente,
                   const std::vector<PuntoDiagrama>& puntos) {
    const auto x = [&](const PuntoDiagrama& punto) { return h.Papel.X(h.EjeX(i) + punto.d); };
    const auto eje = [&](const PuntoDiagrama& punto) {
        return EjeDelDiagrama(h, diagrama, i, punto.d, tangente);
    };
    const auto extremo = [&](const PuntoDiagrama& punto) {
        return eje(punto) + Pixeles(diagrama.Subida(punto.*diagrama.Valor));
    };
    const Pluma pluma{1, EstiloLinea::Solida, diagrama.Fondo};
    for (std::size_t k = 1; k < puntos.size(); ++k) {
        const PuntoDiagrama& a = puntos[k - 1];
        const PuntoDiagrama& b = puntos[k];
        const std::array<PuntoLienzo, 4> franja{
            {{x(a), eje(a)}, {x(a), extremo(a)}, {x(b), extremo(b)}, {x(b), eje(b)}}};
        h.Papel.lienzo().Poligono(franja, pluma, diagrama.Fondo);
    }
    for (std::size_t k = 1; k < puntos.size(); ++k)
        DibujeLinea(h.Papel.lienzo(), x(puntos[k - 1]), extremo(puntos[k - 1]), x(puntos[k]),
                    extremo(puntos[k]), 1, EstiloLinea::Solida, Contorno);
    DibujeLinea(h.Papel.lienzo(), x(puntos.front()), eje(puntos.front()), x(puntos.back()),
                eje(puntos.back()), 1, EstiloLinea::Solida, Contorno);
}

/// A value that is written at the diagram's ordinate. The shear at a span's end is written as the support's
/// push on it, upward like the one at its start; the diagram ends with the opposite sign.
struct ValorDeTramo {
    double d;  ///< from the first axis along the horizontal, m
    double Ordenada;
    double Valor;
    double Lado;
};

/// A value at the end of a diagram's ordinate: the block arrow that points to it from outside, and its text
/// beside the arrow. A text stays in its diagram's band; `Lado` is the side of the arrow that it prefers.
void RotularExtremo(Hoja& h, const Diagrama& diagrama, double x, double eje, const ValorDeTramo& v) {
    const std::string texto = h.Numero(v.Valor, "0");
    if (texto == "0" || texto.empty()) return;
    Plano& p = h.Papel;
    const double subida = diagrama.Subida(v.Ordenada);
    const double fuera = subida < 0 ? -1 : 1;
    DibujeFlecha(p.lienzo(), Pixeles(x), Pixeles(eje + subida), subida < 0 ? HaciaAbajo : HaciaArriba,
                 FlechaBloque, p.Escala());
    const MedidaTexto medida = p.lienzo().Medir(texto);
    const double medio = medida.Alto / 2.0;
    const double limite = std::max(p.Escala() * MediaFranja - medio, medio);
    const double junto = 0.06 * p.Escala() + p.Unidades(2) + medida.Ancho / 2.0;
    const double alto = std::fabs(subida);
    std::vector<Centro> centros;
    for (const double distancia :
         {std::min(alto + 0.6 * LargoDeFlecha * p.Escala(), limite), std::min(alto + medio, limite), medio,
          limite, limite + 2 * medio, -medio}) {
        for (const double corrimiento : {1.0, -1.0, 0.0, 2.0, -2.0, 3.0})
            centros.push_back({x + corrimiento * v.Lado * junto, eje + fuera * distancia});
    }
    p.Rotular(texto, centros);
}

void DibujeDiagrama(Hoja& h, const Diagrama& diagrama) {
    for (std::size_t i = 1; i <= h.N; ++i) {
        const double pendiente = PendienteDeTramo(h.Datos.Ejes, i);
        const std::vector<PuntoDiagrama> puntos = EstacionesDeTramo(h.Losa, i, pendiente);
        if (!puntos.empty()) DibujeFranjas(h, diagrama, i, std::tan(pendiente), puntos);
    }
}

void RotularDiagrama(Hoja& h, const Diagrama& diagrama, std::size_t i,
                     const std::vector<ValorDeTramo>& valores) {
    const double tangente = std::tan(PendienteDeTramo(h.Datos.Ejes, i));
    for (const ValorDeTramo& v : valores)
        RotularExtremo(h, diagrama, h.Papel.X(h.EjeX(i) + v.d), EjeDelDiagrama(h, diagrama, i, v.d, tangente),
                       v);
}

/// Factored reaction under each axis.
void DibujeReacciones(Hoja& h, std::int32_t fila) {
    Plano& p = h.Papel;
    const double tamano = FlechaDeReaccion * p.Escala();
    for (std::size_t eje = 1; eje <= h.N + 1; ++eje) {
        const std::string texto = h.Numero(ReaccionMayorada(h.Losa, eje), "0");
        if (texto == "0" || texto.empty()) continue;
        const std::int32_t x = p.X(h.EjeX(eje));
        DibujeFlecha(p.lienzo(), x, fila, HaciaArriba, FlechaBloque, tamano);
        const MedidaTexto medida = p.lienzo().Medir(texto);
        const double lado = 0.06 * p.Escala() + p.Unidades(2) + medida.Ancho / 2.0;
        const double y = fila + std::max(0.32 * tamano, medida.Alto / 2.0);
        p.Rotular(texto,
                  {{x + lado, y}, {x - lado, y}, {x + lado, y + medida.Alto}, {x - lado, y + medida.Alto}});
    }
}

/// A text at the left of the first axis and its values, centred on a row.
void RotularFila(const Hoja& h, std::string_view texto, std::int32_t fila) {
    const double margen = 0.5 * h.Papel.Escala() + h.Papel.lienzo().Medir("00000").Ancho;
    h.Papel.Escribir(texto, Ancla::Derecha, h.Papel.X(h.EjeX(1)) - Pixeles(margen),
                     fila - h.Papel.lienzo().Medir("WW").Alto / 2);
}

double Unidades(double escala, double maximo) {
    return maximo != 0 ? escala * Amplitud / maximo : 0;
}

}  // namespace

void DibujeFuerzas(Lienzo& lienzo, HojaLosa& hoja, const LosaCalculada& losa, const EstiloHoja& estilo) {
    Hoja h = EmpezarHoja(lienzo, hoja, losa, estilo);
    if (h.N == 0) return;
    Plano& p = h.Papel;
    const losas::ResultadosLosa& r = losa.Resultados;
    const std::int32_t primera = Pixeles(p.Escala() * PrimeraBanda);
    const std::int32_t franja = 2 * Pixeles(p.Escala() * MediaFranja);
    const Diagrama cortes{primera, Unidades(p.Escala(), r.MaxCorte), -1, FondoCorte, &PuntoDiagrama::V};
    const Diagrama momentos{primera + franja,
                            Unidades(p.Escala(), std::max(r.MaxMomentoApoyo, r.MaxMomentoTramo)), 1,
                            FondoMomento, &PuntoDiagrama::M};
    p.Letra(LetraNormal);
    RotularFila(h, estilo.Textos.VU, p.Fila(0, h.EjeY(1)) + cortes.Desfase);
    RotularFila(h, estilo.Textos.MU, p.Fila(0, h.EjeY(1)) + momentos.Desfase);
    DibujeDiagrama(h, cortes);
    DibujeDiagrama(h, momentos);
    for (std::size_t i = 1; i <= h.N; ++i) {
        const ExtremosDeTramo e = ExtremosDe(losa, i);
        const double LT = losa.Datos.Tramos[i].LT;
        RotularDiagrama(h, cortes, i, {{0, e.VA, e.VA, 1}, {LT, -e.VB, e.VB, -1}});
        const double C = std::cos(PendienteDeTramo(hoja.Ejes, i));
        RotularDiagrama(h, momentos, i, {{0, e.MA, e.MA, 1}, {LT, e.MB, e.MB, -1}, {e.x * C, e.MT, e.MT, 1}});
    }
    const std::int32_t filaReacciones = hoja.Vista.OrigenY + momentos.Desfase + franja / 2;
    RotularFila(h, losa.Datos.OpcionMaciza ? "(kgf/metro):" : "(kgf/Nervio):",
                filaReacciones + lienzo.Medir("WW").Alto / 2);
    DibujeReacciones(h, filaReacciones);

    const DatosGenerales& g = losa.Generales;
    const std::int32_t titulos =
        std::max(p.Fila(FilaDeTitulos), filaReacciones + 2 * lienzo.Medir("WW").Alto + p.Unidades(4));
    DibujeTitulos(h, titulos,
                  {RotuloDeLosa(losa.Datos) + "E = " + h.Espesor() + " m", losa.Datos.Nombre,
                   "(DIAGRAMAS DE CORTES Y MOMENTOS MAYORADOS)",
                   "COMBINACIONES DE CARGA (U = " + h.Numero(g.FCP, "0.00") + " CP + " +
                       h.Numero(g.FCV, "0.00") + " CV)"});
}

}  // namespace trabex::dibujo::losa
