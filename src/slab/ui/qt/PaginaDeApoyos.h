#pragma once

#include <QWidget>

#include "base/Formatos.h"
#include "slab/ui/LosaDatos.h"

class QLayout;

namespace trabex::programa::qt {
class TablaDatos;
}

namespace trabex::losas::ui::qt {

/// The supports of a slab: a button for each type over the table of its axes.
class PaginaDeApoyos : public QWidget {
  public:
    /// The operations outlive it.
    PaginaDeApoyos(LosaDatos& operaciones, const Separadores& numeros, QWidget* padre);

    programa::qt::TablaDatos* Tabla() const { return tabla_; }

  private:
    QLayout* FilaDeTipos();

    LosaDatos& operaciones_;
    programa::qt::TablaDatos* tabla_;
};

}  // namespace trabex::losas::ui::qt
