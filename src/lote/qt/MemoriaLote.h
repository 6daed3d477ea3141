#pragma once

#include <filesystem>

#include "lote/Calculo.h"
#include "lote/Faltas.h"
#include "lote/Marcha.h"

namespace trabex::lote::qt {

/// Writes the calculation memo of a project into a folder, as memoria.pdf, .htm, .rtf and .xls. What can't be
/// written is noted in `faltas`.
void EscribirMemoria(const ProyectoCalculado& calculado, bool dibujos, const std::filesystem::path& carpeta,
                     const Marcha& marcha, Faltas& faltas);

}  // namespace trabex::lote::qt
