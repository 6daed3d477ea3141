#pragma once

#include <QDialog>

#include "base/Fecha.h"
#include "shell/Tapiz.h"

class QCalendarWidget;

namespace trabex::programa::qt {

/// Picks a day from a month.
class VentanaCalendario : public QDialog {
  public:
    VentanaCalendario(const Fecha& fecha, const Tapiz& preferencias, QWidget* padre);
    Fecha Elegida() const;

  private:
    QCalendarWidget* mes_;
};

}  // namespace trabex::programa::qt
