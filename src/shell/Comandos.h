#pragma once

#include <array>
#include <string_view>

namespace trabex::programa {

/// Menus of the main window, in order.
enum class Menu { Proyecto, Calculo, Mantenimiento, Ayuda };
inline constexpr std::array<std::string_view, 4> TitulosDeMenu{"&Proyecto", "&Cálculo", "&Mantenimiento",
                                                               "A&yuda"};

/// What a command of the main window runs.
enum class Orden { Propia, Espacio, EspacioDelProyecto };

/// A command of the main window, as menu, tool bar and tests know it.
struct Comando {
    std::string_view Clave;
    std::string_view Texto;
    Menu En;
    std::string_view Icono;
    bool EnBarra;  ///< also a button of the tool bar
    /// An operation of the main window itself, or a workspace, on the current project or without any. The
    /// command of a workspace that the program does not have is disabled.
    Orden Ejecuta = Orden::Propia;
};

inline constexpr std::array<Comando, 19> Comandos{{
    {"ID_Nuevo", "&NUEVO PROYECTO...", Menu::Proyecto, "nuevo", true},
    {"ID_Abrir", "&ABRIR PROYECTO...", Menu::Proyecto, "abrir", true},
    {"ID_Modificar", "EDITAR DATOS DEL PROYECTO...", Menu::Proyecto, "editar", true},
    {"ID_SalvarComo", "SALVAR &COMO...", Menu::Proyecto, "salvar", true},
    {"ID_ConfigurarPantalla", "CONFIGURAR PANTALLA...", Menu::Proyecto, "pantalla", false},
    {"ID_Explorador", "Explorador de Windows...", Menu::Proyecto, "carpeta", true},
    {"ID_Salida", "&SALIDA DEL PROGRAMA", Menu::Proyecto, "salida", false},
    {"ID_LosasD", "ANÁLISIS Y DISEÑO DE LOSAS (EN UNA DIRECCIÓN)...", Menu::Calculo, "losa", true,
     Orden::EspacioDelProyecto},
    {"ID_Marcus", "COEFICIENTES DE CARGA (MÉTODO DE MARKUS)...", Menu::Calculo, "markus", true,
     Orden::EspacioDelProyecto},
    {"ID_CargaP", "ANÁLISIS DE CARGA DE LAS LOSAS...", Menu::Calculo, "carga", true,
     Orden::EspacioDelProyecto},
    {"ID_Tijera", "ANÁLISIS Y DISEÑO DE ESCALERAS EN TIJERA...", Menu::Calculo, "escalera", true,
     Orden::EspacioDelProyecto},
    {"ID_EscaleraH", "ANÁLISIS Y DISEÑO DE ESCALERAS HELICOIDALES...", Menu::Calculo, "helice", true,
     Orden::EspacioDelProyecto},
    {"ID_Memoria", "MEMORIA DE CÁLCULO...", Menu::Calculo, "imprimir", false, Orden::EspacioDelProyecto},
    {"ID_Carga", "Base de Datos Análisis de Carga de Losas...", Menu::Mantenimiento, "base", true,
     Orden::Espacio},
    {"ID_Reparar", "REPARAR Y COMPACTAR ARCHIVOS...", Menu::Mantenimiento, "reparar", true},
    {"ID_Restaurar", "Restaurar un Respaldo...", Menu::Mantenimiento, "respaldo", false},
    {"ID_Temas", "TEMAS DE AYUDA...", Menu::Ayuda, "ayuda", false},
    {"ID_Manual", "MANUAL DE LOSAS...", Menu::Ayuda, "manual", true},
    {"ID_Sobre", "ACERCA DE Trabex 2024...", Menu::Ayuda, "sobre", false},
}};

}  // namespace trabex::programa
