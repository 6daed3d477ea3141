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

void DibujeFranjas(const Trazado& t, const Diagrama& diagrama, std::size_t i, double tangente,
                   const std::vector<losas::PuntoDiagrama>& puntos) {
    const auto x = [&](const losas::PuntoDiagrama& punto) { return t.EnMetros.X(t.EjeX(i) + punto.d); };
    const auto eje = [&](const losas::PuntoDiagrama& punto) {
        return EjeDelDiagrama(t, diagrama, i, punto.d, tangente);
    };
    const auto extremo = [&](const losas::PuntoDiagrama& punto) {
        return eje(punto) + Pixeles(diagrama.Subida(punto.*diagrama.Valor));
    };
    const Pluma pluma{1, EstiloLinea::Solida, diagrama.Fondo};
    for (std::size_t k = 1; k < puntos.size(); ++k) {
        const losas::PuntoDiagrama& a = puntos[k - 1];
        const losas::PuntoDiagrama& b = puntos[k];
        const std::array<PuntoLienzo, 4> franja{
            {{x(a), eje(a)}, {x(a), extremo(a)}, {x(b), extremo(b)}, {x(b), eje(b)}}};
        t.EnMetros.ElLienzo().Poligono(franja, pluma, diagrama.Fondo);
    }
    for (std::size_t k = 1; k < puntos.size(); ++k)
        DibujeLinea(t.EnMetros.ElLienzo(), x(puntos[k - 1]), extremo(puntos[k - 1]), x(puntos[k]),
                    extremo(puntos[k]), 1, EstiloLinea::Solida, Contorno);
    DibujeLinea(t.EnMetros.ElLienzo(), x(puntos.front()), eje(puntos.front()), x(puntos.back()),
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

void DibujeDiagrama(Trazado& t, const Diagrama& diagrama) {
    for (std::size_t i = 1; i <= t.N; ++i) {
        const double pendiente = PendienteDeTramo(t.Hoja.Ejes, i);
        const std::vector<losas::PuntoDiagrama> puntos = losas::EstacionesDeTramo(t.Calculada, i, pendiente);
        if (!puntos.empty()) DibujeFranjas(t, diagrama, i, std::tan(pendiente), puntos);
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
