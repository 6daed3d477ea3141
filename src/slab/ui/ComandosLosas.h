#pragma once

#include <array>

#include "shell/ComandosEspacio.h"

namespace trabex::losas::ui {

/// The commands of the slab workspace, beside those of the drawing that every workspace has.
inline constexpr std::array<programa::ComandoEspacio, 16> ComandosLosas{{
    {"ID_Abrir", " Abrir Proyecto ", "Abrir Proyecto", "Abrir un proyecto existente. ", "abrir",
     programa::GrupoComandos::Proyecto, false},
    {"ID_Generales", " Datos Generales ", "Datos Proyecto", "Datos generales del proyecto. ", "generales",
     programa::GrupoComandos::Proyecto, true},
    {"ID_Nueva", " Crear Nueva Losa ", "Crear Losa", "Crear una nueva losa en el proyecto. ", "losa-nueva",
     programa::GrupoComandos::Elemento, false},
    {"ID_Editar", " Modificar la Losa Seleccionada ", "Editar Losa", "Editar la losa seleccionada. ",
     "editar", programa::GrupoComandos::Elemento, true},
    {"ID_Copiar", " Crear Losa a partir de la Seleccionada ", "Crear Losa",
     "Crear una losa a partir de la seleccionada. ", "copiar", programa::GrupoComandos::Elemento, true},
    {"ID_Renombrar", " Renombrar la Losa Seleccionada ", "Renombrar Losa", "Renombrar la losa seleccionada. ",
     "renombrar", programa::GrupoComandos::Elemento, true},
    {"ID_Eliminar", " Eliminar la Losa Seleccionada ", "Eliminar Losa", "Eliminar la losa seleccionada. ",
     "eliminar", programa::GrupoComandos::Elemento, true},
    {"ID_Graficos", " Gráficos de las Losas ", "Gráficos Losa", "Exportar los gráficos de las losas. ",
     "graficos", programa::GrupoComandos::Salida, true},
    {"ID_Exportar", " Exportar los Resultados ", "Exportar Resultados",
     "Exportar los resultados del análisis y diseño. ", "exportar", programa::GrupoComandos::Salida, true},
    {"ID_Imprimir", " Imprimir los Resultados ", "Imprimir Resultados",
     "Imprimir los resultados del análisis y diseño. ", "imprimir", programa::GrupoComandos::Salida, true},
    {"ID_Impresora", " Cambiar de Impresora ", "Cambiar de Impresora", "Cambiar de impresora. ",
     "cambiar-impresora", programa::GrupoComandos::Salida, false},
    {"ID_Planex", " Exportar a Planex ", "Exportar a Planex Estructural",
     "Exportar las losas la programa de dibujo \nPlanex Estructural 2023. ", "planex",
     programa::GrupoComandos::Salida, true},
    {"ID_ExportarG", " Exportar la Imagen ", "Exportar Imagen Seleccionada",
     "Exportar la imagen de loa losa seleccionada \na formato BMP o JPG. ", "imagen",
     programa::GrupoComandos::Salida, true},
    {"ID_PorGrupos", " Ver por Grupos de Tramos ", "Ver por Grupos",
     "Ver un grupo de tramos a la vez, como en las hojas de papel. ", "grupos",
     programa::GrupoComandos::Vista, true},
    {"ID_GrupoAnterior", " Tramos Anteriores ", "Tramos Anteriores", "Ver el grupo de tramos anterior. ",
     "anterior", programa::GrupoComandos::Vista, true},
    {"ID_GrupoSiguiente", " Tramos Siguientes ", "Tramos Siguientes", "Ver el grupo de tramos siguiente. ",
     "siguiente", programa::GrupoComandos::Vista, true},
}};

}  // namespace trabex::losas::ui
