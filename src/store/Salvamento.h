#pragma once

#include "store/Mantenimiento.h"
#include "store/Motor.h"
#include "store/Paginas.h"

namespace trabex::almacen {

/// Adds to `destino` the rows that stand in the pages of a damaged database, whatever became of its catalogue
/// and of the pages that led to them. The tables of `destino` are what is looked for; further plain tables
/// that the catalogue still tells are made there. Where it tells nothing, tables are known by their order and
/// by the shape of their rows.
Salvado Salvar(const Paginas& paginas, Motor& destino);

}  // namespace trabex::almacen
