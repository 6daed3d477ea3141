#include "drawing/losa/GraficoFuerzas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "drawing/Primitivas.h"
#include "drawing/losa/BaseLosa.h"

namespace trabex::dibujo::losa {

namespace {

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
    double losas::PuntoDiagrama::*Valor;

    double Subida(double valor) const { return Sentido * Unidades * valor; }
};

std::int32_t EjeDelDiagrama(const Trazado& t, const Diagrama& diagrama, std::size_t i, double d,
                            double tangente) {
    return t.EnMetros.Y(t.EjeY(i) + tangente * d) + diagrama.Desfase;
}

/// A station on the canvas.
struct PuntoDeFranja {
    std::int32_t x;
    std::int32_t Eje;      ///< row of the diagram's axis
    std::int32_t Extremo;  ///< row of its value
};

std::vector<PuntoDeFranja> EnLienzo(const Trazado& t, const Diagrama& diagrama, std::size_t i,
                                    double tangente, const std::vector<losas::PuntoDiagrama>& puntos) {
    std::vector<PuntoDeFranja> enLienzo;
    enLienzo.reserve(puntos.size());
    for (const losas::PuntoDiagrama& punto : puntos) {
        const std::int32_t eje = EjeDelDiagrama(t, diagrama, i, punto.d, tangente);
        enLienzo.push_back(
            {t.EnMetros.X(t.EjeX(i) + punto.d), eje, eje + Pixeles(diagrama.Subida(punto.*diagrama.Valor))});
    }
    return enLienzo;
}

/// Of the stations in one column of the canvas only the first, the lowest, the highest and the last can be
/// told apart: a slab of thousands of spans has no more strips than the canvas has columns for them.
std::vector<PuntoDeFranja> Distinguibles(const std::vector<PuntoDeFranja>& puntos) {
    const auto masBajo = [](const PuntoDeFranja& a, const PuntoDeFranja& b) { return a.Extremo < b.Extremo; };
    std::vector<PuntoDeFranja> visibles;
    for (auto desde = puntos.begin(); desde != puntos.end();) {
        const auto hasta =
            std::find_if(desde, puntos.end(), [&](const PuntoDeFranja& p) { return p.x != desde->x; });
        auto [menor, mayor] = std::minmax_element(desde, hasta, masBajo);
        if (mayor < menor) std::swap(menor, mayor);
        auto ultimo = puntos.end();
        for (const auto punto : {desde, menor, mayor, hasta - 1}) {
            if (punto != ultimo) visibles.push_back(*punto);
            ultimo = punto;
        }
        desde = hasta;
    }
    return visibles;
}

/// The strips between stations as one figure, closed along its axis and at the span's ends.
void DibujeFranjas(const Trazado& t, const Diagrama& diagrama, const std::vector<PuntoDeFranja>& puntos) {
    std::vector<PuntoLienzo> figura{{puntos.front().x, puntos.front().Eje}};
    for (const PuntoDeFranja& punto : puntos) figura.push_back({punto.x, punto.Extremo});
    figura.push_back({puntos.back().x, puntos.back().Eje});
    t.EnMetros.ElLienzo().Poligono(figura, PlumaContorno, diagrama.Fondo);
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
/// beside the arrow, or as near as there is room. A text stays in its diagram's band; `Lado` is the side of
/// the arrow that it prefers.
void RotularExtremo(Trazado& t, const Diagrama& diagrama, double x, double eje, const ValorDeTramo& v) {
    const std::string texto = t.Numero(v.Valor, "0");
    if (texto == "0" || texto.empty()) return;
    Plano& p = t.EnMetros;
    const double subida = diagrama.Subida(v.Ordenada);
    const double fuera = subida < 0 ? -1 : 1;
    DibujeFlecha(p.ElLienzo(), Pixeles(x), Pixeles(eje + subida), subida < 0 ? HaciaAbajo : HaciaArriba,
                 FlechaBloque, p.Escala());
    const MedidaTexto medida = p.ElLienzo().Medir(texto);
    const double medio = medida.Alto / 2.0;
    const double limite = std::max(p.Escala() * MediaFranja - medio, medio);
    const double junto = 0.06 * p.Escala() + p.Unidades(2) + medida.Ancho / 2.0;
    const double alto = std::fabs(subida);
    std::vector<Centro> centros;
    for (const double distancia : {std::min(alto + 0.6 * LargoDeFlecha * p.Escala(), limite),
                                   std::min(alto + medio, limite), medio, limite, -medio, -limite}) {
        for (const double corrimiento : {1.0, -1.0, 0.0, 2.0, -2.0, 3.0})
            centros.push_back({x + corrimiento * v.Lado * junto, eje + fuera * distancia});
    }
    p.Rotular(texto, centros);
}

/// A span that lies beside the canvas shows nothing of its diagram.
bool ALaVista(const Trazado& t, std::size_t i) {
    const auto [izquierda, derecha] =
        std::minmax({t.EnMetros.X(t.EjeX(i)), t.EnMetros.X(t.EjeX(i) + t.Losa.Tramos[i].LT)});
    return derecha >= 0 && izquierda <= t.EnMetros.ElLienzo().ScaleWidth();
}

void DibujeDiagrama(Trazado& t, const Diagrama& diagrama) {
    for (std::size_t i = 1; i <= t.N; ++i) {
        if (!ALaVista(t, i)) continue;
        const double pendiente = PendienteDeTramo(t.Hoja.Ejes, i);
        const std::vector<losas::PuntoDiagrama> puntos = losas::EstacionesDeTramo(t.Calculada, i, pendiente);
        if (!puntos.empty())
            DibujeFranjas(t, diagrama, Distinguibles(EnLienzo(t, diagrama, i, std::tan(pendiente), puntos)));
    }
}

void RotularDiagrama(Trazado& t, const Diagrama& diagrama, std::size_t i,
                     const std::vector<ValorDeTramo>& valores) {
    const double tangente = std::tan(PendienteDeTramo(t.Hoja.Ejes, i));
    for (const ValorDeTramo& v : valores)
        RotularExtremo(t, diagrama, t.EnMetros.X(t.EjeX(i) + v.d),
                       EjeDelDiagrama(t, diagrama, i, v.d, tangente), v);
}

/// Factored reaction under each axis.
void DibujeReacciones(Trazado& t, std::int32_t fila) {
    Plano& p = t.EnMetros;
    const double tamano = FlechaDeReaccion * p.Escala();
    for (std::size_t eje = 1; eje <= t.N + 1; ++eje) {
        const std::string texto = t.Numero(losas::ReaccionMayorada(t.Calculada, eje), "0");
        if (texto == "0" || texto.empty()) continue;
        const std::int32_t x = p.X(t.EjeX(eje));
        DibujeFlecha(p.ElLienzo(), x, fila, HaciaArriba, FlechaBloque, tamano);
        const MedidaTexto medida = p.ElLienzo().Medir(texto);
        const double lado = 0.06 * p.Escala() + p.Unidades(2) + medida.Ancho / 2.0;
        const double y = fila + std::max(0.32 * tamano, medida.Alto / 2.0);
        p.Rotular(texto,
                  {{x + lado, y}, {x - lado, y}, {x + lado, y + medida.Alto}, {x - lado, y + medida.Alto}});
    }
}

/// A text at the left of the first axis and its values, centred on a row.
void RotularFila(const Trazado& t, std::string_view texto, std::int32_t fila) {
    const double margen = 0.5 * t.EnMetros.Escala() + t.EnMetros.ElLienzo().Medir("00000").Ancho;
    t.EnMetros.Escribir(texto, Ancla::Derecha, t.EnMetros.X(t.EjeX(1)) - Pixeles(margen),
                        fila - t.EnMetros.ElLienzo().Medir("WW").Alto / 2);
}

double Unidades(double escala, double maximo) {
    return maximo != 0 ? escala * Amplitud / maximo : 0;
}

}  // namespace

void DibujeFuerzas(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                   const EstiloHoja& estilo) {
    Trazado t = DibujeBaseLosa(lienzo, hoja, losa, estilo);
    if (t.N == 0) return;
    Plano& p = t.EnMetros;
    const losas::ResultadosLosa& r = losa.Resultados;
    const std::int32_t primera = Pixeles(p.Escala() * PrimeraBanda);
    const std::int32_t franja = 2 * Pixeles(p.Escala() * MediaFranja);
    const Diagrama cortes{primera, Unidades(p.Escala(), r.MaxCorte), -1, FondoCorte,
                          &losas::PuntoDiagrama::V};
    const Diagrama momentos{primera + franja,
                            Unidades(p.Escala(), std::max(r.MaxMomentoApoyo, r.MaxMomentoTramo)), 1,
                            FondoMomento, &losas::PuntoDiagrama::M};
    p.Letra(LetraNormal);
    RotularFila(t, estilo.Textos.VU, p.Fila(0, t.EjeY(1)) + cortes.Desfase);
    RotularFila(t, estilo.Textos.MU, p.Fila(0, t.EjeY(1)) + momentos.Desfase);
    DibujeDiagrama(t, cortes);
    DibujeDiagrama(t, momentos);
    for (std::size_t i = 1; i <= t.N; ++i) {
        const losas::ExtremosDeTramo e = losas::ExtremosDe(losa, i);
        const double LT = losa.Datos.Tramos[i].LT;
        RotularDiagrama(t, cortes, i, {{0, e.VA, e.VA, 1}, {LT, -e.VB, e.VB, -1}});
        const double C = std::cos(PendienteDeTramo(hoja.Ejes, i));
        RotularDiagrama(t, momentos, i, {{0, e.MA, e.MA, 1}, {LT, e.MB, e.MB, -1}, {e.x * C, e.MT, e.MT, 1}});
    }
    const std::int32_t filaReacciones = hoja.Vista.OrigenY + momentos.Desfase + franja / 2;
    RotularFila(t, losa.Datos.OpcionMaciza ? "(kgf/metro):" : "(kgf/Nervio):",
                filaReacciones + lienzo.Medir("WW").Alto / 2);
    DibujeReacciones(t, filaReacciones);

    const DatosGenerales& g = losa.Generales;
    const std::int32_t titulos =
        std::max(p.Fila(FilaDeTitulos), filaReacciones + 2 * lienzo.Medir("WW").Alto + p.Unidades(4));
    DibujeTitulos(t, titulos,
                  {RotuloDeLosa(losa.Datos) + "E = " + t.Espesor() + " m", losa.Datos.Nombre,
                   "(DIAGRAMAS DE CORTES Y MOMENTOS MAYORADOS)",
                   "COMBINACIONES DE CARGA (U = " + t.Numero(g.FCP, "0.00") + " CP + " +
                       t.Numero(g.FCV, "0.00") + " CV)"});
}

}  // namespace trabex::dibujo::losa
