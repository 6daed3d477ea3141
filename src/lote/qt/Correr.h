#pragma once

#include "lote/Calculo.h"

namespace trabex::lote::qt {

/// The batch program with the modules it is given: reads the command line and returns the exit status.
///   0  everything that was asked for is written
///   1  an output could not be written; each is told on standard error, and the others are written
///   2  bad usage
///   3  the project can't be opened
int Correr(int argc, char** argv, Modulos modulos);

}  // namespace trabex::lote::qt
