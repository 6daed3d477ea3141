#pragma once

#include <filesystem>

#include "base/Proyecto.h"
#include "lote/Faltas.h"
#include "lote/Marcha.h"
#include "lote/Modulo.h"

namespace trabex::lote::qt {

/// Writes the drawings of every element of a list as `<number>-<name>-<drawing>.png` into a folder, on the
/// surface of reports, and its pages as `<number>-<name>-papel.pdf`. One that can't be written is noted and
/// the others are written. Needs the toolkit's application.
void EscribirHojas(const Lista& lista, const DatosDelProyecto& datos, const std::filesystem::path& carpeta,
                   const Marcha& marcha, Faltas& faltas);

/// The same drawings as `<number>-<name>-<drawing>.svg` and `.dxf`.
void EscribirVectores(const Lista& lista, const std::filesystem::path& carpeta, const Marcha& marcha,
                      Faltas& faltas);

}  // namespace trabex::lote::qt
