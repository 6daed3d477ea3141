#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "base/Proyecto.h"
#include "store/Conexion.h"

namespace trabex::montaje {

/// Where reports are staged, and for whom.
struct EntornoReportes {
    std::filesystem::path CaminoPrograma;  ///< holds the template
    std::filesystem::path Trabajo;         ///< holds the scratch database and what is made for one report
    std::string Usuario;                   ///< the user's name, as reports print it
};

/// The scratch database that every report reads.
std::filesystem::path TemporalMdb(const EntornoReportes& entorno);

/// What the one row of `Generales` tells beside the project's data. What an element's report does not write
/// stays null.
struct EncabezadoReporte {
    std::string Titulo;
    std::optional<std::string> Nombre{};
    std::optional<bool> Resumen{};
};

/// Replaces the scratch database by a copy of its template, connects to it and writes `Generales`: the first
/// step of staging any report of any element. The project's connection stays open beside it.
///
/// Never throws: without a template, or on a disk that refuses, the connection is closed and the report is
/// empty.
void AbrirTemporal(const EntornoReportes& entorno, const DatosDelProyecto& datos,
                   const EncabezadoReporte& encabezado, almacen::Conexion& conexionTemporal);

}  // namespace trabex::montaje
