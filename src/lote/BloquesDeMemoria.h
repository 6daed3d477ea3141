#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/Aviso.h"
#include "base/DatosGenerales.h"
#include "base/Formatos.h"
#include "base/Relato.h"
#include "reports/documento/Documento.h"

namespace trabex::lote {

// What the chapters of the calculation memo are made of, whatever their element.

/// The steps of the design of a section: symbol, formula, the same with numbers, value.
documento::Tabla TablaDePasos(const Relato& relato, const Separadores& numeros);

/// The notices of an element, or a line that says that there are none.
documento::Bloque BloqueDeAvisos(const Avisos& avisos);

/// Materials, cover and reduction factors.
documento::Ficha FichaDeMateriales(const DatosGenerales& generales, bool deLosas);

/// A column of numbers in a format of base/Formatos.h; without one, of texts.
documento::ColumnaDeTabla ColumnaDeMemoria(const std::string& titulo, const std::string& formato = "",
                                           const std::string& grupo = "");

}  // namespace trabex::lote
