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
constexpr double ParteDelLienzo = 0.5;  // that the plan fills
constexpr double AltoDeTextos = 0.16;   // parts of the height
constexpr double AltoDeTitulo = 0.07;
constexpr double Apilado = 0.72;  // from this width to the height on, the figures stand side by side
constexpr double InclinacionDeBoceto = 30;

/// Where all stands on the canvas, m from its middle at zoom 1.
struct Reparto {
    double Escala;  ///< canvas units per metre at zoom 1
    Sitio Titulo, Planta, Perspectiva, Textos, SegundaColumna;
    double ParteDePerspectiva;  ///< its size, of the plan's scale
};

Reparto Repartir(const Lienzo& lienzo, const DatosEscaleraH& e, const CuerpoHelice& cuerpo,
                 const EstiloHelice& estilo) {
    const double w = lienzo.ScaleWidth();
    const double h = lienzo.ScaleHeight();
    const double diametro = 2 * (e.B / 2 + e.R);
    const double lado = ParteDelLienzo * std::min(w, h);
    Reparto r{};
    r.Escala = lado / diametro;
    const bool textos = estilo.RotuloSeccion != nullptr;
    const double arriba = estilo.Cabecera + (textos ? AltoDeTitulo : 0);
    const double abajo = 1 - estilo.Pie - (textos ? AltoDeTextos : 0);
    const auto sitio = [&](double x, double y) {
        return Sitio{(x - 0.5) * w / r.Escala, (0.5 - y) * h / r.Escala};
    };
    const bool apilado = w < Apilado * h;
    r.Planta = apilado ? sitio(0.5, arriba + (abajo - arriba) * 0.27) : sitio(0.25, (arriba + abajo) / 2);
    r.Perspectiva =
        apilado ? sitio(0.5, arriba + (abajo - arriba) * 0.75) : sitio(0.75, (arriba + abajo) / 2);
    r.Titulo = sitio(0.5, estilo.Cabecera);
    r.Textos = sitio(apilado ? 0.08 : 0.1, abajo);
    r.SegundaColumna = sitio(apilado ? 0.52 : 0.56, abajo);
    const double esfera = std::hypot(cuerpo.RadioExterior(), e.H / 2 + e.T);
    r.ParteDePerspectiva = std::min(1.0, 1.15 * cuerpo.RadioExterior() / esfera);
    return r;
}

void Escriba(const Plano& p, const Reparto& r, const EscaleraHCalculada& escalera, const HojaHelice& hoja,
             const EstiloHelice& estilo) {
    const DatosEscaleraH& e = escalera.Datos;
    const auto metros = [&](double valor) { return Formato(valor, "0.00", hoja.Numeros); };
    const auto fuerza = [&](double valor) { return Formato(valor, "#,##0", hoja.Numeros) + " kgf"; };
    const std::array<std::string, 8> textos{"Radio = " + metros(e.R) + " m",
                                            "Angulo = " + NumeroParaEditar(e.Angulo, 0, hoja.Numeros) + "º",
                                            "Carga W = " + std::to_string(e.W) + " kgf/ml",
                                            "Longitud = " + metros(escalera.Resultados.L) + " m",
                                            "Alfa = " + metros(escalera.Resultados.Alfa) + "º",
                                            "Reacción Vertical RV = " + fuerza(escalera.Resultados.FV),
                                            "Reacción Horizontal RH = " + fuerza(escalera.Resultados.Fh),
                                            estilo.RotuloSeccion + metros(e.B) + " x " + metros(e.T)};
    p.LetraDeTitulo(LetraTitulo);
    p.Escribir(estilo.Arriba == Encabezado::Titulo ? e.Titulo : e.Nombre, Ancla::Centro, p.X(r.Titulo.x),
               p.Y(r.Titulo.y));
    p.Letra(LetraTextos);
    const std::int32_t renglon = p.ElLienzo().Medir("WW").Alto;
    for (std::size_t i = 0; i < textos.size(); ++i) {
        const Sitio& columna = i < textos.size() / 2 ? r.Textos : r.SegundaColumna;
        p.Escribir(textos[i], Ancla::Izquierda, p.X(columna.x),
                   p.Y(columna.y) + static_cast<std::int32_t>(i % (textos.size() / 2)) * renglon);
    }
}

}  // namespace

void RedibujeVista(Lienzo& lienzo, HojaHelice& hoja, const EscaleraHCalculada& escalera,
                   const EstiloHelice& estilo) {
    Despejar(lienzo, hoja.Vista, estilo.Medio);
    const DatosEscaleraH& e = escalera.Datos;
    if (!TieneMedidas(e)) return;
    const CuerpoHelice cuerpo(e);
    const Reparto r = Repartir(lienzo, e, cuerpo, estilo);
    Plano p = Encuadrar(lienzo, hoja.Vista, estilo.Medio, {r.Escala, 0.5, 0});
    DibujePlanta(p, cuerpo, r.Planta);
    p.Letra(LetraCotas);
    AcotePlanta(p, cuerpo, r.Planta, e, hoja.Numeros);
    DibujePerspectiva(p, cuerpo, r.Perspectiva, r.ParteDePerspectiva, Perspectiva(e.H, hoja.ElGiro));
    if (estilo.RotuloSeccion != nullptr) Escriba(p, r, escalera, hoja, estilo);
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
