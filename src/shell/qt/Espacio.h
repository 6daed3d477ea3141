#pragma once

#include <functional>
#include <string_view>

#include "shell/Aplicacion.h"
#include "shell/Servicios.h"

class QWidget;

namespace trabex::programa::qt {

/// The workspace of an element, as the program lists it. What the workspace remembers for the whole run is in
/// its function.
struct Espacio {
    std::string_view Clave;  ///< of its command in the main window
    /// Shows the workspace until it closes.
    std::function<void(Aplicacion&, const Servicios&, QWidget* padre)> Abrir;
    const char* Ayuda;  ///< its page of the help
};

}  // namespace trabex::programa::qt
