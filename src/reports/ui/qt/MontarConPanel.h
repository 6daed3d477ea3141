#pragma once

#include <functional>

#include "reports/montaje/PanelProgreso.h"
#include "reports/montaje/SuperficieOculta.h"

class QWidget;

namespace trabex::reportes::ui::qt {

/// Runs the staging of a report: on a surface off the screen, with the progress panel over `ventana` and the
/// pointer of long work. False when it was cancelled.
bool MontarConPanel(QWidget& ventana,
                    const std::function<void(montaje::SuperficieOculta&, montaje::PanelProgreso&)>& montar);

}  // namespace trabex::reportes::ui::qt
