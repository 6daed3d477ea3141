#pragma once

#include <array>

#include "shell/ComandosEspacio.h"

namespace trabex::helices::ui {

/// The commands of the workspace of helical stairs, beside those that every drawing has.
inline constexpr std::array<programa::ComandoEspacio, 17> ComandosEscaleraH{{
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
    {"ID_Anterior", " Escalera Anterior ", "Escalera Anterior", "Ver la escalera anterior de la lista. ",
     "anterior", programa::GrupoComandos::Elemento, true},
    {"ID_Siguiente", " Siguiente Escalera ", "Siguiente Escalera", "Ver la escalera siguiente de la lista. ",
     "siguiente", programa::GrupoComandos::Elemento, true},
    {"ID_Graficos", " Reporte con el Gráfico ", "Reporte con el Gráfico",
     "Exportar el gráfico y los resultados de la escalera seleccionada. ", "graficos",
     programa::GrupoComandos::Salida, true},
    {"ID_Exportar", " Exportar los Resultados ", "Exportar Resultados",
     "Exportar las tablas de resultados de la escalera seleccionada. ", "exportar",
     programa::GrupoComandos::Salida, true},
    {"ID_ImprimirP", " Imprimir la Pantalla Actual ", "Imprimir la Pantalla Actual",
     "Ver, imprimir y exportar las solicitaciones y el diseño de la escalera. ", "exportar",
     programa::GrupoComandos::Salida, true},
    {"ID_Imprimir", " Imprimir el Gráfico ", "Imprimir Gráfico",
     "Imprimir el gráfico de la escalera seleccionada. ", "imprimir", programa::GrupoComandos::Salida, true},
    {"ID_ExportarG", " Exportar la Imagen ", "Gráfico Escalera",
     "Exportar la imagen de la escalera seleccionada \na formato BMP o JPG. ", "imagen",
     programa::GrupoComandos::Salida, true},
    {"ID_GirarV", " Girar Verticalmente ", "Girar Verticalmente",
     "Girar la perspectiva hacia arriba; con las flechas, paso a paso. ", "girar-v",
     programa::GrupoComandos::Vista, false},
    {"ID_GirarH", " Girar Horizontalmente ", "Girar Horizontalmente",
     "Girar la perspectiva alrededor de su eje; con las flechas, paso a paso. ", "girar-h",
     programa::GrupoComandos::Vista, false},
    {"ID_GirarN", " Angulo Normal ", "Angulo Normal", "Volver a la perspectiva inicial. ", "girar-n",
     programa::GrupoComandos::Vista, false},
}};

}  // namespace trabex::helices::ui
