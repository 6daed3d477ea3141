#pragma once

#include "base/Aviso.h"
#include "lote/Modulo.h"
#include "stairs/ValoresEscaleraT.h"

namespace trabex::escaleras::salida {

/// What the calculation memo says of the method by which self-supporting stairs are calculated.
std::span<const char* const> MetodoDeEscaleras();

/// A stair in the calculation memo.
lote::ParteDeMemoria MemoriaDeEscalera(const EscaleraCalculada& escalera, const Avisos& avisos,
                                       const Separadores& numeros);

/// A stair's rows of the flat tables over many: stations of flights and of landings.
std::vector<std::pair<std::string, documento::Tabla>> TablasDeEscalera(const EscaleraCalculada& escalera);

}  // namespace trabex::escaleras::salida
