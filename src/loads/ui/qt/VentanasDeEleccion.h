#pragma once

#include <QDialog>

#include "loads/ui/Normas.h"
#include "shell/Tapiz.h"

class QButtonGroup;

namespace trabex::cargas::ui::qt {

/// A frame of options, one of which is chosen by " Aceptar ".
class VentanaDeEleccion : public QDialog {
  public:
    VentanaDeEleccion(const char* nombre, const char* titulo, const char* marco,
                      std::initializer_list<const char*> opciones, const programa::Tapiz& preferencias,
                      QWidget* padre);
    /// The place of the chosen option, from 0.
    int Elegida() const;

  private:
    QButtonGroup* opciones_;
};

/// `OpcionAnalisisCarga`: the selected analysis (0) or all of them (1).
class VentanaOpcionAnalisisCarga : public VentanaDeEleccion {
  public:
    VentanaOpcionAnalisisCarga(const programa::Tapiz& preferencias, QWidget* padre);
};

/// `Normas`: asks for a document of the norm, and opens it.
void MostrarVentanaNormas(Normas& operaciones, const programa::Tapiz& preferencias, QWidget* padre);

}  // namespace trabex::cargas::ui::qt
