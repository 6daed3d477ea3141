#pragma once

#include <QDialog>

#include "markus/ui/Marcus.h"
#include "shell/Tapiz.h"

namespace trabex::marcus::ui::qt {

/// Names a new level: `MarcusNuevo`. Accepted when it was added.
class VentanaMarcusNuevo : public QDialog {
  public:
    VentanaMarcusNuevo(MarcusNuevo& operaciones, const programa::Tapiz& preferencias, QWidget* padre);
};

}  // namespace trabex::marcus::ui::qt
