#pragma once

#include <QDialog>

#include "reports/montaje/PanelProgreso.h"

class QLabel;
class QProgressBar;

namespace trabex::reportes::ui::qt {

/// The progress panel: over its window, which takes no command meanwhile. Nothing closes it but the end of
/// the work; " Cancelar " and Escape ask for it.
class PanelProgresoQt : public montaje::PanelProgreso {
  public:
    explicit PanelProgresoQt(QWidget* ventana);

    void Mostrar() override;
    void Avanzar(double porcentaje, const std::string& rotulo) override;
    void Ocultar() override;
    bool Cancelado() const override { return panel_.Cancelado; }

    QWidget* Ventana() { return &panel_; }

  private:
    class Panel : public QDialog {
      public:
        using QDialog::QDialog;
        void reject() override { Cancelado = true; }
        bool Cancelado = false;
    };
    Panel panel_;
    QLabel* rotulo_;
    QProgressBar* barra_;
};

}  // namespace trabex::reportes::ui::qt
