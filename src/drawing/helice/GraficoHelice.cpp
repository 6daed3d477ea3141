#include "drawing/helice/GraficoHelice.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "drawing/helice/FigurasHelice.h"

namespace trabex::dibujo::helice {

namespace {

using helices::DatosEscaleraH;
using helices::EscaleraHCalculada;

constexpr double LetraTitulo = 10;  // points
constexpr double LetraTextos = 9;
constexpr double LetraCotas = 8;
constexpr double AltoDeTextos = 0.16;  // parts of the height
constexpr double AltoDeTitulo = 0.07;
constexpr double Apilado = 0.72;  // narrower surfaces have the perspective below the plan
constexpr double Margen = 0.03;   // between figures, a part of the smaller side at least
constexpr double AumentoMaximo = 4;
constexpr double InclinacionDeBoceto = 30;

/// Where all stands on the canvas, m from its middle at zoom 1.
struct Sitios {
    double Escala;  ///< canvas units per metre at zoom 1
    Sitio Titulo, Planta, Perspectiva, Textos, SegundaColumna, Pie, Fondo;
    double ParteDePerspectiva;  ///< its size, of the plan's scale
};

/// Plan and perspective in a row of `largo` units: the middle of each, and the size that is left to the
/// second, as much as it asks for if there is room.
struct EnFila {
    double Primera, Segunda, Tamano;
};
EnFila Alinear(double largo, double primera, double segunda, double margen) {
    const double tamano = std::max(std::min(segunda, largo - primera - 3 * margen), margen);
    const double aire = (largo - primera - tamano) / 3;
    return {aire + primera / 2, largo - aire - tamano / 2, tamano};
}

/// Turned anyhow, the flight stays within a sphere, and looks larger where it comes near the eye.
double RadioALaVista(const DatosEscaleraH& e, const CuerpoHelice& cuerpo) {
    const double radio = std::hypot(cuerpo.RadioExterior(), e.H / 2 + e.T);
    const double ojo = Perspectiva(e.H, {}).Distancia();
    return radio * (radio < AumentoMaximo / (AumentoMaximo + 1) * ojo ? ojo / (ojo - radio) : AumentoMaximo);
}

Sitios Repartir(const Lienzo& lienzo, const DatosEscaleraH& e, const CuerpoHelice& cuerpo,
                const EstiloHelice& estilo) {
    const double w = lienzo.ScaleWidth();
    const double h = lienzo.ScaleHeight();
    const double menor = std::min(w, h);
    const bool textos = estilo.RotuloSeccion != nullptr;
    const double arriba = (estilo.Cabecera + (textos ? AltoDeTitulo : 0)) * h;
    const double abajo = (1 - estilo.Pie - (textos ? AltoDeTextos : AltoDeTitulo)) * h;
    const double planta = estilo.ParteDeLaPlanta * menor;
    const double metros = 2 * (e.B / 2 + e.R);
    const bool apilado = w < Apilado * h || !textos;
    const double esfera = RadioALaVista(e, cuerpo) / cuerpo.RadioExterior();
    const EnFila fila =
        Alinear(apilado ? abajo - arriba : w, planta, planta * std::min(esfera, 1.2), Margen * menor);
    const double escala = planta / metros;
    const auto sitio = [&](double x, double y) { return Sitio{(x - w / 2) / escala, (h / 2 - y) / escala}; };
    const double medio = (arriba + abajo) / 2;
    return {escala,
            sitio(w / 2, estilo.Cabecera * h),
            apilado ? sitio(w / 2, arriba + fila.Primera) : sitio(fila.Primera, medio),
            apilado ? sitio(w / 2, arriba + fila.Segunda) : sitio(fila.Segunda, medio),
            sitio((apilado ? 0.08 : 0.1) * w, abajo),
            sitio((apilado ? 0.52 : 0.56) * w, abajo),
            sitio(w / 2, abajo),
            sitio(w / 2, (1 - estilo.Pie) * h),
            fila.Tamano / (planta * esfera)};
}

void Escriba(const Plano& p, const Sitios& r, const EscaleraHCalculada& escalera, const HojaHelice& hoja,
             const EstiloHelice& estilo) {
    const DatosEscaleraH& e = escalera.Datos;
    const helices::ResultadosEscaleraH& resultados = escalera.Resultados;
    const auto metros = [&](double valor) { return Formato(valor, "0.00", hoja.Numeros); };
    const auto resultado = [&](double valor, const char* formato, const char* unidad) {
        return resultados.Error ? std::string() : Formato(valor, formato, hoja.Numeros) + unidad;
    };
    const std::array<std::string, 8> textos{
        "Radio = " + metros(e.R) + " m",
        "Angulo = " + NumeroParaEditar(e.Angulo, 0, hoja.Numeros) + "º",
        "Carga W = " + std::to_string(e.W) + " kgf/ml",
        "Longitud = " + resultado(resultados.L, "0.00", " m"),
        "Alfa = " + resultado(resultados.Alfa, "0.00", "º"),
        "Reacción Vertical RV = " + resultado(resultados.FV, "#,##0", " kgf"),
        "Reacción Horizontal RH = " + resultado(resultados.Fh, "#,##0", " kgf"),
        estilo.RotuloSeccion + metros(e.B) + " x " + metros(e.T)};
    p.LetraDeTitulo(LetraTitulo);
    p.Escribir(estilo.Arriba == Encabezado::Titulo ? e.Titulo : e.Nombre, Ancla::Centro, p.X(r.Titulo.x),
               p.Y(r.Titulo.y));
    p.Letra(LetraTextos);
    const std::int32_t renglon = p.ElLienzo().Medir("WW").Alto;
    constexpr std::size_t renglones = 4;
    const std::int32_t primero =
        std::min(p.Y(r.Textos.y), p.Y(r.Fondo.y) - std::int32_t{renglones} * renglon);
    for (std::size_t i = 0; i < textos.size(); ++i) {
        const Sitio& columna = i < renglones ? r.Textos : r.SegundaColumna;
        p.Escribir(textos[i], Ancla::Izquierda, p.X(columna.x),
                   primero + static_cast<std::int32_t>(i % renglones) * renglon);
    }
}

}  // namespace

void RedibujeVista(Lienzo& lienzo, HojaHelice& hoja, const EscaleraHCalculada& escalera,
                   const EstiloHelice& estilo) {
    Despejar(lienzo, hoja.Vista, estilo.Medio);
    const DatosEscaleraH& e = escalera.Datos;
    if (!TieneMedidas(e) || lienzo.ScaleWidth() <= 0 || lienzo.ScaleHeight() <= 0) return;
    const CuerpoHelice cuerpo(e);
    const Sitios r = Repartir(lienzo, e, cuerpo, estilo);
    Plano p = Encuadrar(lienzo, hoja.Vista, estilo.Medio, {r.Escala, 0.5, 0});
    DibujePlanta(p, cuerpo, r.Planta);
    p.Letra(LetraCotas);
    AcotePlanta(p, cuerpo, r.Planta, e, hoja.Numeros);
    DibujePerspectiva(p, cuerpo, r.Perspectiva, r.ParteDePerspectiva, Perspectiva(e.H, hoja.ElGiro));
    if (estilo.RotuloSeccion != nullptr)
        Escriba(p, r, escalera, hoja, estilo);
    else
        p.Escribir(
            "H = " + Formato(e.H, "0.00", hoja.Numeros) + "   T = " + Formato(e.T, "0.00", hoja.Numeros),
            Ancla::Centro, p.X(r.Pie.x), p.Y(r.Pie.y));
}

void DibujeEnPapel(Lienzo& pagina, const HojaHelice& pantalla, const EscaleraHCalculada& escalera,
                   const DatosDePagina& datos) {
    HojaHelice hoja = pantalla;
    RedibujeVista(pagina, hoja, escalera, HeliceEnPapel);
    DibujePagina(pagina, datos);
}

void DibujeBoceto(Lienzo& lienzo, HojaHelice& hoja, const DatosEscaleraH& escalera) {
    HojaHelice boceto = hoja;
    boceto.ElGiro = {InclinacionDeBoceto, 0, ModoGiro::Ninguno};
    RedibujeVista(lienzo, boceto, {escalera, {}}, HeliceEnBoceto);
    hoja.Vista = boceto.Vista;
}

}  // namespace trabex::dibujo::helice
