#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <functional>

#include "drawing/Lienzo.h"

namespace trabex::dibujo::qt {

/// Resolution of drawings on paper, units to an inch: the scale's cap is told in these.
inline constexpr int UnidadesPorPulgadaDePapel = 600;

/// Draws pages one after another on a printer or a PDF, whose resolution is UnidadesPorPulgadaDePapel; the
/// canvas is the page within its margins. Each operation throws ErrorEjecucion 482 when the device refuses.
class PapelQt {
  public:
    explicit PapelQt(QPagedPaintDevice& papel);
    void Pagina(const std::function<void(Lienzo&)>& dibujar);
    /// The end of the document.
    void Terminar();
    QPainter& Pintor() { return pintor_; }

  private:
    QPagedPaintDevice& papel_;
    QPainter pintor_;
    bool primera_ = true;
};

}  // namespace trabex::dibujo::qt
