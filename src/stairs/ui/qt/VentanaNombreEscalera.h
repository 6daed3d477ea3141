#pragma once

#include <QDialog>

#include "shell/Tapiz.h"
#include "stairs/ui/EscaleraTNueva.h"
#include "stairs/ui/EscaleraTitulo.h"

namespace trabex::escaleras::ui::qt {

/// What the window of a new stair says of its kind.
struct TextosDeEscaleraNueva {
    const char* Titulo;
    const char* Marco;
};
inline constexpr TextosDeEscaleraNueva NuevaAutoportante{"CREAR NUEVA ESCALERA", "ESCALERA AUTOPORTANTE"};
inline constexpr TextosDeEscaleraNueva NuevaHelicoidal{"Escalera o Viga Helicoidal", "ESCALERA HELICOIDAL"};

/// Names a new stair of either kind: `EscaleraTNueva`. Accepted when the stair was added.
class VentanaEscaleraTNueva : public QDialog {
  public:
    VentanaEscaleraTNueva(const TextosDeEscaleraNueva& textos, EscaleraTNueva& operaciones,
                          const programa::Tapiz& preferencias, QWidget* padre);
};

/// Edits the title of the selected stair: `EscaleraTitulo`. Accepted when it was stored.
class VentanaEscaleraTitulo : public QDialog {
  public:
    VentanaEscaleraTitulo(EscaleraTitulo& operaciones, const programa::Tapiz& preferencias, QWidget* padre);
};

}  // namespace trabex::escaleras::ui::qt
