#pragma once

#include <functional>

#include "drawing/qt/PapelQt.h"
#include "reports/ui/SalidaReporte.h"

class QPrinter;
class QWidget;

namespace trabex::reportes::ui::qt {

/// Draws the pages of a document at paper scale on a printer that is set up. Throws ErrorEjecucion 482 when
/// the printer refuses.
void ImprimirDibujos(QPrinter& impresora, const std::function<void(dibujo::qt::PapelQt&)>& dibujar);

/// The same on the program's printer, after the system's prompt. Shows what fails.
void PedirEImprimirDibujos(EntornoSalida& entorno, QWidget& ventana,
                           const std::function<void(dibujo::qt::PapelQt&)>& dibujar);

}  // namespace trabex::reportes::ui::qt
