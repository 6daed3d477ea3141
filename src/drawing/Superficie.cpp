#include "drawing/Superficie.h"

#include <algorithm>

#include "drawing/Primitivas.h"

namespace trabex::dibujo {

namespace {
constexpr std::int32_t SeparacionCuadricula = 80;  // canvas units
}

double EscalaDeRegla(const Lienzo& lienzo, const ReglaDeEscala& regla, double ancho, double alto) {
    const double W = lienzo.ScaleWidth();
    const double H = lienzo.ScaleHeight();
    double escala = W * regla.ParteDelAncho / ancho;
    if (regla.ParteDelAlto > 0) escala = std::min(escala, H * regla.ParteDelAlto / alto);
    const bool conTope = regla.EscalaMaxima > 0 && (W > H || !regla.TopeSoloApaisada);
    return conTope ? std::min(escala, regla.EscalaMaxima) : escala;
}

void Despejar(Lienzo& lienzo, const EstadoVista& vista, const Superficie& superficie) {
    lienzo.Limpiar();
    if (superficie.ConCuadricula && vista.CuadriculaVisible && !vista.ExportandoGrafico)
        DibujeCuadricula(lienzo, SeparacionCuadricula);
}

Plano Encuadrar(Lienzo& lienzo, EstadoVista& vista, const Superficie& superficie, const Encuadre& encuadre) {
    const double enPantalla = vista.Escala;
    if (!(vista.Zoom > 0)) vista.Zoom = 1;
    vista.Escala = vista.Zoom * encuadre.EscalaBase;
    if (superficie.DePagina)
        vista.EscalaBase = 1 / encuadre.EscalaBase;
    else if (vista.Zoom == 1.0)
        vista.EscalaBase = 1 / vista.Escala;
    const double pan = superficie.DePagina && enPantalla > 0 ? vista.Escala / enPantalla : 1;
    vista.OrigenX = Pixeles(lienzo.ScaleWidth() / 2.0 + pan * vista.PanX);
    vista.OrigenY = Pixeles(encuadre.Metros * vista.Escala + lienzo.ScaleHeight() * encuadre.ParteDelAlto +
                            pan * vista.PanY);
    lienzo.PonerMetros({vista.Escala, {vista.OrigenX, vista.OrigenY}});
    lienzo.PonerColorTexto(lienzo.ColorTextoDeBotones());
    return Plano(lienzo, vista, superficie.FuenteNombre);
}

}  // namespace trabex::dibujo
