#pragma once

#include <cstdint>
#include <functional>
#include <utility>

namespace trabex::dibujo {

/// Viewport state of a workspace: the map from metres to its canvas, with the user's zoom and pan over it.
struct EstadoVista {
    double Zoom = 1;  ///< above 0
    float PanX = 0;   ///< pixels
    float PanY = 0;
    double Escala = 0;         ///< pixels per metre, zoom included
    double EscalaBase = 0;     ///< 1 / Escala of the last redraw in which Zoom was exactly 1
    std::int32_t OrigenX = 0;  ///< pixel of the world's point (0, 0)
    std::int32_t OrigenY = 0;
    bool CuadriculaVisible = true;
    bool ExportandoGrafico = false;  ///< a drawing is being made for a picture or a report
};

enum class BotonRaton { Ninguno, Izquierdo, Derecho, Central };

/// Keys that move the drawing, by the platform's virtual codes.
enum class TeclaVista {
    Escape = 27,
    Izquierda = 37,
    Arriba = 38,
    Derecha = 39,
    Abajo = 40,
    Mas = 107,
    Menos = 109,
};

/// What the keys do to the drawing of an element.
struct TeclasDeVista {
    double PasoMetros = 0.4;  ///< step of the arrow keys: so many metres of the drawing...
    double PasoPixeles = 0;   ///< ...and so many pixels
    /// Sees each key first; true when that was all the key had to do.
    std::function<bool(TeclaVista)> Antes;
};

/// Pointer of the canvas. The hand, pointer 99 of the canvas, shows open or closed.
enum class PunteroVista { Normal, ManoAbierta, ManoCerrada };

/// What the viewport asks of the workspace that holds the canvas.
class AnfitrionVista {
  public:
    virtual ~AnfitrionVista() = default;
    /// Draws the current view whole on the canvas's picture, and lets the canvas repaint.
    virtual void RedibujeVista() = 0;
    virtual void PonerPuntero(PunteroVista puntero) = 0;
    /// The tool button `ID_PanRealtime` comes up.
    virtual void SoltarPanRealtime() = 0;
    /// Opens the menu `ID_Pantalla` at a point of the canvas.
    virtual void AbrirMenuPantalla(std::int32_t x, std::int32_t y) = 0;
};

/// Commands, mouse and keys of a drawing canvas. Every redraw is whole and synchronous.
class Visor {
  public:
    Visor(EstadoVista& estado, AnfitrionVista& anfitrion, TeclasDeVista teclas = {})
        : estado_(estado), anfitrion_(anfitrion), teclas_(std::move(teclas)) {}

    void EjecuteZoomIn();
    /// Zoom stops at 0.1.
    void EjecuteZoomOut();
    /// Zoom 1, no pan, and the pan mode off.
    void EjecuteZoomExtents();
    /// `activo`: state of the tool button `ID_PanRealtime`.
    void EjecutePanRealtime(bool activo);
    /// One zoom step and one picture; the wheel's position has no effect on the zoom's centre.
    void ZoomMouseWheel(bool adelante);
    void CuadriculaFondo(bool visible);
    void EjecutePlotear();

    /// As a workspace does when another element is selected.
    void Restablecer();

    void BajarBoton(BotonRaton boton, std::int32_t x, std::int32_t y);
    void SubirBoton(BotonRaton boton);
    /// `boton`: the one that is held while the mouse moves.
    void Mover(BotonRaton boton, std::int32_t x, std::int32_t y);
    void Teclear(TeclaVista tecla);

  private:
    void CambiarZoom(double paso);
    void Desplazar(double dx, double dy);
    void MostrarPuntero();

    EstadoVista& estado_;
    AnfitrionVista& anfitrion_;
    TeclasDeVista teclas_;
    bool pan_ = false;
    bool mano_ = false;     // pointer 99
    bool cerrada_ = false;  // image of the hand
    std::int32_t x_ = 0;    // where the drag was last seen
    std::int32_t y_ = 0;
};

}  // namespace trabex::dibujo
