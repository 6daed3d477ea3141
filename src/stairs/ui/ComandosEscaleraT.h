#pragma once

#include <array>

#include "shell/ComandosEspacio.h"

namespace trabex::escaleras::ui {

/// The commands of the workspace of stairs, beside those of the drawing.
inline constexpr std::array<programa::ComandoEspacio, 9> ComandosEscaleraT{{
    {"ID_Abrir", " Abrir Proyecto ", "Abrir Proyecto", "Abrir un proyecto existente. ", "abrir",
     programa::GrupoComandos::Proyecto, false},
    {"ID_Generales", " Datos Generales ", "Datos Generales",
     "Materiales y factores de las escaleras del proyecto. ", "generales", programa::GrupoComandos::Proyecto,
     false},
    {"ID_Nueva", " Crear Nueva Escalera ", "Crear Escalera", "Crear una nueva escalera en el proyecto. ",
     "nuevo", programa::GrupoComandos::Elemento, false},
    {"ID_Editar", " Modificar la Escalera Seleccionada ", "Editar Escalera",
     "Editar la escalera seleccionada. ", "editar", programa::GrupoComandos::Elemento, true},
    {"ID_Renombrar", " Renombrar la Escalera Seleccionada ", "Renombrar Escalera",
     "Renombrar la escalera seleccionada. ", "renombrar", programa::GrupoComandos::Elemento, true},
    {"ID_Titulo", " Título de la Escalera Seleccionada ", "Título Escalera",
     "Cambiar el título de la escalera seleccionada. ", "titulo", programa::GrupoComandos::Elemento, true},
    {"ID_Eliminar", " Eliminar la Escalera Seleccionada ", "Eliminar Escalera",
     "Eliminar la escalera seleccionada. ", "eliminar", programa::GrupoComandos::Elemento, true},
    {"ID_Exportar", " Exportar los Resultados ", "Exportar Resultados",
     "Exportar los gráficos de las escaleras. ", "exportar", programa::GrupoComandos::Salida, true},
    {"ID_ExportarG", " Exportar la Imagen ", "Gráfico Escalera",
     "Exportar la imagen de la escalera seleccionada \na formato BMP o JPG. ", "imagen",
     programa::GrupoComandos::Salida, true},
}};

}  // namespace trabex::escaleras::ui
