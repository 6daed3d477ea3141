#pragma once

#include <QDialog>

#include "shell/Renombrar.h"
#include "shell/Tapiz.h"

namespace trabex::programa::qt {

/// Asks for an element's new name, of slabs and of stairs.
class VentanaRenombrar : public QDialog {
  public:
    VentanaRenombrar(Renombrar& operaciones, const Tapiz& preferencias, QWidget* padre);
};

inline constexpr int LargoDeNombre = 60;  ///< characters that the tables' columns of names hold

}  // namespace trabex::programa::qt
