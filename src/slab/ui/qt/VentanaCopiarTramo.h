#pragma once

#include <QDialog>

#include "shell/Tapiz.h"
#include "slab/ui/LosaDatos.h"

class QCheckBox;
class QListWidget;

namespace trabex::losas::ui::qt {

/// Copies what the current span has to other ones.
class VentanaCopiarTramo : public QDialog {
  public:
    VentanaCopiarTramo(LosaDatos& operaciones, const programa::Tapiz& preferencias, QWidget* padre);

  private:
    void Aceptar();

    LosaDatos& operaciones_;
    QListWidget* tramos_;
    QCheckBox* longitud_;
    QCheckBox* uniforme_;
    QCheckBox* puntual_;
};

}  // namespace trabex::losas::ui::qt
