#pragma once

#include <functional>

#include "drawing/qt/PapelQt.h"
#include "reports/ui/SalidaReporte.h"

class QPrinter;
class QWidget;

namespace trabex::reportes::ui::qt {

/// Draws the pages of a document, telling how many of them are drawn.
using DibujarPaginas = std::function<void(dibujo::qt::PapelQt&, const Avance&)>;

/// Draws on a printer that is set up, at paper scale. Throws ErrorEjecucion 482 when the printer refuses, and
/// TrabajoCancelado: nothing more of it comes out.
void ImprimirDibujos(QPrinter& impresora, const DibujarPaginas& dibujar, const Avance& avance = {});

/// The same on the program's printer, after the system's prompt, with a panel. Shows what fails.
void PedirEImprimirDibujos(EntornoSalida& entorno, QWidget& ventana, const DibujarPaginas& dibujar);

}  // namespace trabex::reportes::ui::qt
