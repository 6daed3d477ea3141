#pragma once

#include <array>
#include <string_view>

namespace trabex::programa {

/// Groups of a workspace's tool bar, each also a menu, in order.
enum class GrupoComandos { Proyecto, Elemento, Salida, Vista };

/// A command of a workspace, as its tool bar, menus and tests know it.
struct ComandoEspacio {
    std::string_view Clave;
    std::string_view Nombre;  ///< of the button
    std::string_view Titulo;  ///< of its tool tip
    std::string_view Ayuda;   ///< text of its tool tip
    std::string_view Icono;
    GrupoComandos Grupo;
    bool PideElemento;  ///< does nothing while the list is empty
};

/// The commands of the drawing, the same in every workspace.
inline constexpr std::array<ComandoEspacio, 6> ComandosDeVista{{
    {"ID_ZoomIN", " Zoom Más ", "Zoom Más", "Acercar el dibujo. ", "zoom-mas", GrupoComandos::Vista, false},
    {"ID_ZoomOut", " Zoom Menos ", "Zoom Menos", "Alejar el dibujo. ", "zoom-menos", GrupoComandos::Vista,
     false},
    {"ID_ZoomExtents", " Zoom Extents ", "Zoom Extents", "Ver todo el dibujo. ", "zoom-todo",
     GrupoComandos::Vista, false},
    {"ID_PanRealtime", " Mover ", "Mover", "Mover el dibujo con el ratón. ", "mano", GrupoComandos::Vista,
     false},
    {"ID_Cuadricula", " Cuadrícula ", "Cuadrícula", "Mostrar la cuadrícula de fondo. ", "cuadricula",
     GrupoComandos::Vista, false},
    {"ID_Plotear", " Redibujar ", "Redibujar", "Dibujar de nuevo la vista actual. ", "redibujar",
     GrupoComandos::Vista, false},
}};

}  // namespace trabex::programa
