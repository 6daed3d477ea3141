#pragma once

#include "shell/ListaElementos.h"

namespace trabex::escaleras::ui {

/// What both kinds of stair state of their list: the arguments are the kind's own.
constexpr programa::ClaseDeElemento ClaseDeEscalera(std::string_view consulta,
                                                    const almacen::TablasDeElemento& tablas,
                                                    std::string_view entreParentesis = {},
                                                    std::string_view tituloVentana = {}) {
    return {
        consulta,
        tablas,
        {"La Escalera: ", "La Escalera ya Existe en el Proyecto...", "Creando Nueva Escalera..."},
        {"Escalera: ", "¿Esta Usted Seguro de Eliminar la Escalera del Proyecto?", "Eliminar Escalera..."},
        {"Este Nombre ya Existe en las Escaleras del Proyecto...", "Renombrar la Escalera: "},
        entreParentesis,
        tituloVentana};
}

}  // namespace trabex::escaleras::ui
