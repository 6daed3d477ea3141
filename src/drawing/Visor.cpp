#include "drawing/Visor.h"

namespace trabex::dibujo {

namespace {
constexpr double PasoDeZoom = 0.1;
constexpr double ZoomMinimo = 0.1;
}  // namespace

void Visor::CambiarZoom(double paso) {
    estado_.Zoom += paso;
    if (estado_.Zoom < ZoomMinimo) estado_.Zoom = ZoomMinimo;
    anfitrion_.RedibujeVista();
}

void Visor::EjecuteZoomIn() {
    CambiarZoom(PasoDeZoom);
}

void Visor::EjecuteZoomOut() {
    CambiarZoom(-PasoDeZoom);
}

void Visor::Restablecer() {
    estado_.Zoom = 1;
    estado_.PanX = 0;
    estado_.PanY = 0;
}

void Visor::EjecuteZoomExtents() {
    Restablecer();
    EjecutePanRealtime(false);
    anfitrion_.SoltarPanRealtime();
    anfitrion_.RedibujeVista();
}

void Visor::EjecutePanRealtime(bool activo) {
    pan_ = activo;
    mano_ = activo;
    MostrarPuntero();
}

void Visor::ZoomMouseWheel(bool adelante) {
    if (adelante)
        EjecuteZoomIn();
    else
        EjecuteZoomOut();
}

void Visor::CuadriculaFondo(bool visible) {
    estado_.CuadriculaVisible = visible;
    anfitrion_.RedibujeVista();
}

void Visor::EjecutePlotear() {
    anfitrion_.RedibujeVista();
}

void Visor::MostrarPuntero() {
    anfitrion_.PonerPuntero(!mano_     ? PunteroVista::Normal
                            : cerrada_ ? PunteroVista::ManoCerrada
                                       : PunteroVista::ManoAbierta);
}

void Visor::BajarBoton(BotonRaton boton, std::int32_t x, std::int32_t y) {
    if (boton == BotonRaton::Derecho) return anfitrion_.AbrirMenuPantalla(x, y);
    if (boton == BotonRaton::Ninguno) return;
    x_ = x;
    y_ = y;
    if (boton == BotonRaton::Izquierdo) cerrada_ = true;
    if (boton == BotonRaton::Central) mano_ = true;
    MostrarPuntero();
}

void Visor::SubirBoton(BotonRaton boton) {
    if (boton == BotonRaton::Izquierdo) cerrada_ = false;
    if (boton == BotonRaton::Central) mano_ = false;
    MostrarPuntero();
}

void Visor::Mover(BotonRaton boton, std::int32_t x, std::int32_t y) {
    const bool arrastra = boton == BotonRaton::Central || (boton == BotonRaton::Izquierdo && pan_);
    if (arrastra && (x != x_ || y != y_)) {
        const double dx = x - x_;
        const double dy = y - y_;
        x_ = x;
        y_ = y;
        Desplazar(dx, dy);
    }
    if (boton == BotonRaton::Ninguno && pan_ && !mano_) {
        mano_ = true;
        MostrarPuntero();
    }
}

void Visor::Desplazar(double dx, double dy) {
    estado_.PanX = static_cast<float>(estado_.PanX + dx);
    estado_.PanY = static_cast<float>(estado_.PanY + dy);
    anfitrion_.RedibujeVista();
}

void Visor::Teclear(TeclaVista tecla) {
    if (teclas_.Antes && teclas_.Antes(tecla)) return;
    const double paso = teclas_.PasoMetros * estado_.Escala + teclas_.PasoPixeles;
    switch (tecla) {
        case TeclaVista::Mas:
            return EjecuteZoomIn();
        case TeclaVista::Menos:
            return EjecuteZoomOut();
        case TeclaVista::Escape:
            return EjecuteZoomExtents();
        case TeclaVista::Izquierda:
            return Desplazar(paso, 0);
        case TeclaVista::Derecha:
            return Desplazar(-paso, 0);
        case TeclaVista::Arriba:
            return Desplazar(0, paso);
        case TeclaVista::Abajo:
            return Desplazar(0, -paso);
    }
}

}  // namespace trabex::dibujo
