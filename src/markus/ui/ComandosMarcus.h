#pragma once

#include <array>

#include "shell/ComandosEspacio.h"

namespace trabex::marcus::ui {

/// The commands of the window `Marcus`.
inline constexpr std::array<programa::ComandoEspacio, 7> ComandosMarcus{{
    {"ID_Nueva", " Crear un Nuevo Nivel ", "Crear Nivel", "Crear un nuevo nivel en el proyecto. ", "nuevo",
     programa::GrupoComandos::Elemento, false},
    {"ID_Renombrar", " Renombrar el Nivel Seleccionado ", "Renombrar Nivel",
     "Renombrar el nivel seleccionado. ", "renombrar", programa::GrupoComandos::Elemento, true},
    {"ID_Eliminar", " Eliminar el Nivel Seleccionado ", "Eliminar Nivel",
     "Eliminar el nivel seleccionado y sus paños. ", "eliminar", programa::GrupoComandos::Elemento, true},
    {"ID_Salvar", " Salvar losa Datos del Nivel ", "Salvar Nivel", "Salvar los paños del nivel. ", "salvar",
     programa::GrupoComandos::Elemento, true},
    {"ID_Deshacer", " Deshacer ", "Deshacer", "Volver a lo que había antes del último cambio. ", "deshacer",
     programa::GrupoComandos::Vista, false},
    {"ID_Exportar", " Imprimir los Resultados ", "Exportar Resultados",
     "Imprimir o exportar los resultados del nivel. ", "exportar", programa::GrupoComandos::Salida, true},
    {"ID_ImprimirP", " Imprimir la Pantalla Actual ", "Imprimir la Pantalla Actual",
     "Ver, imprimir y exportar los paños tal como están en la pantalla. ", "imprimir",
     programa::GrupoComandos::Salida, true},
}};

}  // namespace trabex::marcus::ui
