#pragma once

#include <filesystem>
#include <string>

#include "base/DatosGenerales.h"
#include "base/Formatos.h"
#include "base/Proyecto.h"
#include "shell/Tapiz.h"
#include "store/proyecto/ProyectoAbierto.h"

namespace trabex::programa {

/// The state of the program, one instance for the life of the process, passed by reference.
struct Aplicacion {
    std::filesystem::path ArchivoProyecto;  ///< the current project's file
    std::string NombreProyecto;             ///< its name with extension; empty while no project is chosen
    std::filesystem::path ArchivoAyuda;     ///< the help file, where there is one
    std::string Usuario;                    ///< the user's name, as reports print it
    std::filesystem::path Respaldos;        ///< folder of the projects' backups; empty where none are taken
    Separadores SeparadoresLocales;
    Tapiz Preferencias;

    almacen::proyecto::ProyectoAbierto Proyecto;  ///< connected while a workspace is up
    DatosDelProyecto Datos;
    DatosGenerales Generales;
};

/// Version of the program, "24.0.0".
inline constexpr const char* VersionPrograma = TRABEX_VERSION;

/// The title bar, "Trabex 2024   Proyecto:[" and the project's name in brackets.
std::string TituloConProyecto(const std::string& nombre);

/// What a workspace's foot tells of the file from which its list was read: where it stands, that it could not
/// be, that it can't be written, and `releido`, that another program changed it and it was read again.
std::string EstadoDeArchivo(const almacen::Conexion& conexion, bool leido,
                            const std::filesystem::path& archivo, bool releido);

/// Separators of the locale, from 1234.56 as it writes it: its second and its sixth character.
Separadores LeerSeparadores(const std::string& muestra);

}  // namespace trabex::programa
