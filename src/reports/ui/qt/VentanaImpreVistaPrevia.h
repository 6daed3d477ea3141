#pragma once

#include <QDialog>

#include "reports/ui/VistaPreviaR.h"

class QCheckBox;
class QDoubleSpinBox;
class QFormLayout;
class QRadioButton;
class QSpinBox;

namespace trabex::reportes::ui::qt {

/// Asks how a grid is printed, and prints it.
class VentanaImpreVistaPrevia : public QDialog {
  public:
    VentanaImpreVistaPrevia(EntornoSalida& entorno, VistaPreviaR& operaciones, int paginas, QWidget* padre);

  private:
    QWidget* Margenes();
    QWidget* Paginas(int cuantas);
    QWidget* Opciones();
    QDoubleSpinBox* Margen(QFormLayout& donde, const char* rotulo, std::int32_t& twips);
    QCheckBox* Casilla(const char* texto, bool& valor);
    void Aceptar();

    VistaPreviaR& operaciones_;
    cuadricula::AjustesDeImpresion ajustes_;
    QRadioButton* todas_ = nullptr;
    QSpinBox* primera_ = nullptr;
    QSpinBox* ultima_ = nullptr;
};

}  // namespace trabex::reportes::ui::qt
