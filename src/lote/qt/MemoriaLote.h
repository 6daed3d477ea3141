#pragma once

#include <filesystem>
#include <span>

#include "base/Formatos.h"
#include "lote/Calculo.h"
#include "lote/Faltas.h"
#include "lote/Marcha.h"
#include "lote/qt/Pinturas.h"

namespace trabex::lote::qt {

/// A file of the calculation memo; its format is that of its extension: .pdf, .htm, .rtf, .xls.
struct ArchivoDeMemoria {
    std::filesystem::path Camino;
    const char* Extension;
};

/// Writes the calculation memo of a project into files, with the drawings of `hechas` where they were made
/// before. What can't be written is noted in `faltas`. What `marcha.Avance` throws ends it.
void EscribirMemoria(const ProyectoCalculado& calculado, bool dibujos, const Separadores& numeros,
                     std::span<const ArchivoDeMemoria> archivos, const Marcha& marcha, Faltas& faltas,
                     Pinturas* hechas = nullptr);

}  // namespace trabex::lote::qt
