#pragma once

#include <QDialog>

#include "reports/ui/OpcionesReporte.h"
#include "shell/Tapiz.h"

namespace trabex::reportes::ui::qt {

/// Asks for the slabs of a results report.
class VentanaOpcionImpreLosas : public QDialog {
  public:
    VentanaOpcionImpreLosas(montaje::EstadoReportes& estado, const programa::Tapiz& preferencias,
                            QWidget* padre);
    bool Aceptado() const { return operaciones_.Aceptado(); }

  private:
    OpcionImpreLosas operaciones_;
};

/// Asks for the drawings of a report: a dialog of the family, by its table. Accepted, the choice is in the
/// state.
class VentanaOpcionGrafico : public QDialog {
  public:
    VentanaOpcionGrafico(const DialogoDeGraficos& dialogo, montaje::EstadoReportes& estado,
                         const programa::Tapiz& preferencias, QWidget* padre);
};

}  // namespace trabex::reportes::ui::qt
