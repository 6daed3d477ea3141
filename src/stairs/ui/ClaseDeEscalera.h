#pragma once

#include "shell/ListaElementos.h"

namespace trabex::escaleras::ui {

/// What both kinds of stair state of their list: `consulta` and `tablas` are the kind's own, and so is what
/// the question before a stair is deleted tells in brackets.
constexpr programa::ClaseDeElemento ClaseDeEscalera(std::string_view consulta,
                                                    const almacen::TablasDeElemento& tablas,
                                                    std::string_view entreParentesis = {}) {
    return {
        consulta,
        tablas,
        {"La Escalera: ", "La Escalera ya Existe en el Proyecto...", "Creando Nueva Escalera..."},
        {"Escalera: ", "¿Esta Usted Seguro de Eliminar la Escalera del Proyecto?", "Eliminar Escalera..."},
        {"Este Nombre ya Existe en las Escaleras del Proyecto...", "Renombrar la Escalera: "},
        entreParentesis};
}

}  // namespace trabex::escaleras::ui
