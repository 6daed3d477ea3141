#pragma once

#include "base/Aviso.h"
#include "base/DatosGenerales.h"
#include "helical/DatosEscaleraH.h"
#include "helical/ResultadosEscaleraH.h"
#include "lote/Modulo.h"

namespace trabex::helices::salida {

/// What the calculation memo says of the method by which helical stairs are calculated.
std::span<const char* const> MetodoDeHelices();

/// A helical stair in the calculation memo.
lote::ParteDeMemoria MemoriaDeHelice(const DatosEscaleraH& escalera, const DatosGenerales& generales,
                                     const ResultadosEscaleraH& resultados, const Avisos& avisos,
                                     const Separadores& numeros);

/// A helical stair's rows of the flat table over many: its stations.
std::vector<std::pair<std::string, documento::Tabla>> TablasDeHelice(const ResultadosEscaleraH& resultados);

}  // namespace trabex::helices::salida
