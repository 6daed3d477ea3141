#pragma once

#include <string>

#include "reports/documento/Documento.h"
#include "reports/xls/LibroXls.h"

namespace trabex::salidas {

/// A value as a workbook's cell: a number or a date as such, with its format; anything else as its text.
struct ValorEnXls {
    xls::ValorXls Valor;
    std::string Formato;
};
ValorEnXls ValorDeCelda(const almacen::Valor& valor, const std::string& formato, const std::string& unidad,
                        const Separadores& separadores);

xls::AlineacionXls LadoEnXls(documento::Alineacion lado);

}  // namespace trabex::salidas
