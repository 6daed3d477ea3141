#pragma once

#include <array>
#include <string_view>

namespace trabex::losas::ui {

/// Groups of the workspace's tool bar, in order.
enum class GrupoLosas { Proyecto, Losa, Salida, Vista };

/// A command of the slab workspace, as its tool bar, menus and tests know it.
struct ComandoLosas {
    std::string_view Clave;
    std::string_view Nombre;  ///< of the button
    std::string_view Titulo;  ///< of its tool tip
    std::string_view Ayuda;   ///< text of its tool tip
    std::string_view Icono;
    GrupoLosas Grupo;
    bool PideLosa;   ///< does nothing while the list is empty
    bool Enchufado;  ///< its operation comes from another part of the program
};

inline constexpr std::array<ComandoLosas, 19> ComandosLosas{{
    {"ID_Abrir", " Abrir Proyecto ", "Abrir Proyecto", "Abrir un proyecto existente. ", "abrir",
     GrupoLosas::Proyecto, false, false},
    {"ID_Generales", " Datos Generales ", "Datos Proyecto", "Datos generales del proyecto. ", "generales",
     GrupoLosas::Proyecto, true, false},
    {"ID_Nueva", " Crear Nueva Losa ", "Crear Losa", "Crear una nueva losa en el proyecto. ", "losa-nueva",
     GrupoLosas::Losa, false, false},
    {"ID_Editar", " Modificar la Losa Seleccionada ", "Editar Losa", "Editar la losa seleccionada. ",
     "editar", GrupoLosas::Losa, true, false},
    {"ID_Copiar", " Crear Losa a partir de la Seleccionada ", "Crear Losa",
     "Crear una losa a partir de la seleccionada. ", "copiar", GrupoLosas::Losa, true, false},
    {"ID_Renombrar", " Renombrar la Losa Seleccionada ", "Renombrar Losa", "Renombrar la losa seleccionada. ",
     "renombrar", GrupoLosas::Losa, true, false},
    {"ID_Eliminar", " Eliminar la Losa Seleccionada ", "Eliminar Losa", "Eliminar la losa seleccionada. ",
     "eliminar", GrupoLosas::Losa, true, false},
    {"ID_Graficos", " Gráficos de las Losas ", "Gráficos Losa", "Exportar los gráficos de las losas. ",
     "graficos", GrupoLosas::Salida, true, true},
    {"ID_Exportar", " Exportar los Resultados ", "Exportar Resultados",
     "Exportar los resultados del análisis y diseño. ", "exportar", GrupoLosas::Salida, true, true},
    {"ID_Imprimir", " Imprimir los Resultados ", "Imprimir Resultados",
     "Imprimir los resultados del análisis y diseño. ", "imprimir", GrupoLosas::Salida, true, true},
    {"ID_Impresora", " Cambiar de Impresora ", "Cambiar de Impresora", "Cambiar de impresora. ",
     "cambiar-impresora", GrupoLosas::Salida, false, true},
    {"ID_Planex", " Exportar a Planex ", "Exportar a Planex Estructural",
     "Exportar las losas la programa de dibujo \nPlanex Estructural 2023. ", "planex", GrupoLosas::Salida,
     true, true},
    {"ID_ExportarG", " Exportar la Imagen ", "Exportar Imagen Seleccionada",
     "Exportar la imagen de loa losa seleccionada \na formato BMP o JPG. ", "imagen", GrupoLosas::Salida,
     true, true},
    {"ID_ZoomIN", " Zoom Más ", "Zoom Más", "Acercar el dibujo. ", "zoom-mas", GrupoLosas::Vista, false,
     false},
    {"ID_ZoomOut", " Zoom Menos ", "Zoom Menos", "Alejar el dibujo. ", "zoom-menos", GrupoLosas::Vista, false,
     false},
    {"ID_ZoomExtents", " Zoom Extents ", "Zoom Extents", "Ver todo el dibujo. ", "zoom-todo",
     GrupoLosas::Vista, false, false},
    {"ID_PanRealtime", " Mover ", "Mover", "Mover el dibujo con el ratón. ", "mano", GrupoLosas::Vista, false,
     false},
    {"ID_Cuadricula", " Cuadrícula ", "Cuadrícula", "Mostrar la cuadrícula de fondo. ", "cuadricula",
     GrupoLosas::Vista, false, false},
    {"ID_Plotear", " Redibujar ", "Redibujar", "Dibujar de nuevo la vista actual. ", "redibujar",
     GrupoLosas::Vista, false, false},
}};

}  // namespace trabex::losas::ui
