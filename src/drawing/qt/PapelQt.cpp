#include "drawing/qt/PapelQt.h"

#include "base/ErrorEjecucion.h"
#include "drawing/qt/LienzoQt.h"

namespace trabex::dibujo::qt {

namespace {

void Exigir(bool hecho) {
    if (!hecho) throw ErrorEjecucion(CodigoError::ErrorImpresora);
}

}  // namespace

PapelQt::PapelQt(QPagedPaintDevice& papel) : papel_(papel) {
    Exigir(pintor_.begin(&papel_));
}

void PapelQt::Pagina(const std::function<void(Lienzo&)>& dibujar) {
    Exigir(primera_ || papel_.newPage());
    primera_ = false;
    LienzoQt lienzo(pintor_, papel_.width(), papel_.height());
    dibujar(lienzo);
}

void PapelQt::Terminar() {
    Exigir(pintor_.end());
}

}  // namespace trabex::dibujo::qt
