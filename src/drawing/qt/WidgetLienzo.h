#pragma once

#include <QImage>
#include <QWidget>
#include <functional>
#include <optional>

#include "drawing/LectorDeVista.h"
#include "drawing/Visor.h"
#include "drawing/qt/LienzoQt.h"

class QMenu;

namespace trabex::dibujo::qt {

/// The canvas that every workspace embeds: a persistent picture, and the mouse, wheel and keys of the
/// viewport. `dibujar` draws the current view whole; it runs at every redraw and change of size.
class WidgetLienzo : public QWidget, private AnfitrionVista {
  public:
    WidgetLienzo(EstadoVista& estado, std::function<void(Lienzo&)> dibujar, QWidget* padre = nullptr,
                 TeclasDeVista teclas = {});

    /// Zoom, pan and grid commands, for tool bars and menus.
    Visor& Comandos() { return visor_; }
    /// Draws the current view now; what is on the screen changes with it.
    void RedibujeVista() override;
    /// The menu `ID_Pantalla`, opened by the right button. Not owned.
    void PonerMenuPantalla(QMenu* menu) { menu_ = menu; }
    /// What to do when the pan mode ends by itself: the tool button comes up.
    void AlSoltarPan(std::function<void()> accion) { alSoltarPan_ = std::move(accion); }

    /// Who reads the drawing at the pointer, and at Shift with the arrow keys; double clicks are theirs. Not
    /// owned.
    void PonerLector(LectorDeVista* lector) { lector_ = lector; }

    /// The picture as it stands.
    const QImage& Imagen() const { return imagen_; }

    QSize sizeHint() const override { return {720, 420}; }
    QSize minimumSizeHint() const override { return {160, 100}; }

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void leaveEvent(QEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void PonerPuntero(PunteroVista puntero) override;
    void SoltarPanRealtime() override;
    void AbrirMenuPantalla(std::int32_t x, std::int32_t y) override;

    /// Only what the line leaves and what it takes is painted again.
    void PonerMira(const std::optional<LineaDeMira>& mira);

    Visor visor_;
    LectorDeVista* lector_ = nullptr;
    std::optional<LineaDeMira> mira_;
    std::function<void(Lienzo&)> dibujar_;
    std::function<void()> alSoltarPan_;
    QMenu* menu_ = nullptr;
    QImage imagen_;
    MemoriaDeTextos memoria_;
    int rueda_ = 0;  // turn of the wheel that is not yet a step: fine wheels and touch pads give it in parts
};

}  // namespace trabex::dibujo::qt
