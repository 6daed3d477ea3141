#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Fecha.h"

namespace trabex {

/// The marks with which the locale writes numbers, in UTF-8.
struct Separadores {
    std::string Miles = ".";
    std::string Decimal = ",";
};

/// `valor` in one of the formats "0", "0.00", "#,##0", "#,##0.00" (any count of decimals after the point).
///
/// Halves of the last digit shown go away from zero, as printed numbers do, and are judged on the 15
/// significant digits that a double holds: 2.675 shows as 2.68. A value that rounds to zero has no sign.
/// An infinity or NaN shows as an empty text.
std::string Formato(double valor, std::string_view formato, const Separadores& separadores);

/// A number as it is typed into a field, pasted or read from a file: comma or point before the decimals, and
/// thousands by groups of three where comma and point both stand, where one of them stands more than once, or
/// behind the locale's own mark. Nothing when it is no number, and nothing when it could be two: "1.250"
/// where the point is the mark of thousands. Without such a mark, as in numbers that programs write, a mark
/// that stands alone is the decimal one.
std::optional<double> LeerNumero(std::string_view texto, const Separadores& separadores = {"", "."});

/// `valor` as a field shows it for editing: up to 10 decimals, as many as it has and at least `decimales`; no
/// thousands.
std::string NumeroParaEditar(double valor, int decimales, const Separadores& separadores);

/// `fecha` in the format "dd/MM/yyyy".
std::string FormatoFecha(const Fecha& fecha);

/// `fecha` as ISO 8601, "yyyy-MM-dd": for files that programs read.
std::string FechaIso(const Fecha& fecha);

}  // namespace trabex
