#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "reports/xls/Biff.h"

namespace trabex::xls {

/// What a compound file tells of its document.
struct PropiedadesOle {
    std::string Titulo;
    std::string Autor;
};

/// Writes a compound file (the container of the Office 97 formats) with one stream, which `escribir` writes
/// as it comes, and the document's properties. Throws ErrorEjecucion: what the disk answers, or 57.
void EscribirContenedorOle(const std::filesystem::path& archivo, const char* nombreDelFlujo,
                           const std::function<void(const Salida&)>& escribir,
                           const PropiedadesOle& propiedades);

}  // namespace trabex::xls
