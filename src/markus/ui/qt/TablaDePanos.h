#pragma once

#include "markus/ui/Marcus.h"
#include "shell/qt/TablaDatos.h"

namespace trabex::marcus::ui::qt {

/// The entry table of the panels of a level, four columns that are entered and four results. A block of cells
/// that the mouse or Shift and the arrows select is told once it is whole.
class TablaDePanos : public programa::qt::TablaDatos {
  public:
    TablaDePanos(Marcus& operaciones, const Separadores& numeros, QWidget* padre);

    /// A block that is asked about stays in sight.
    bool EnMano() const override { return preguntando_ || TablaDatos::EnMano(); }

  protected:
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void keyReleaseEvent(QKeyEvent* evento) override;

  private:
    void TitularEsquina();
    /// After the event that ended the selection: the question is a window of its own.
    void ContarBloque();

    Marcus& operaciones_;
    bool extendiendo_ = false;
    bool preguntando_ = false;
};

}  // namespace trabex::marcus::ui::qt
