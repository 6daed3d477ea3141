#pragma once

#include <string>
#include <string_view>

namespace trabex::xls {

/// What a compound file tells of its document.
struct PropiedadesOle {
    std::string Titulo;
    std::string Autor;
};

/// A compound file (the container of the Office 97 formats) with one stream and the document's properties.
/// Throws ErrorEjecucion 57 when the container can't be built.
std::string ContenedorOle(const char* nombreDelFlujo, std::string_view flujo,
                          const PropiedadesOle& propiedades);

}  // namespace trabex::xls
