#pragma once

#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "base/Formatos.h"

namespace trabex {

/// What a field or a table's column takes for a number.
struct ClaseNumero {
    bool Entero = false;
    double Minimo = -9999999999.99;
    double Maximo = 9999999999.99;
    int Decimales = 0;                ///< shown at least
    std::optional<double> Vacio = 0;  ///< what an empty entry is; nothing where it is refused
};
inline constexpr ClaseNumero EnteroDe32{true, -2147483648.0, 2147483647.0, 0};
inline constexpr ClaseNumero NaturalDe16{true, 0, 32767, 0};
/// A count or a type whose limit the operation tells, with a message of its own.
inline constexpr ClaseNumero EnteroSinLimite{true, -std::numeric_limits<double>::infinity(),
                                             std::numeric_limits<double>::infinity(), 0};
inline constexpr ClaseNumero NaturalSinLimite{true, 0, std::numeric_limits<double>::infinity(), 0};
inline constexpr ClaseNumero Longitud{false, 0, 9999999999.99, 2};
inline constexpr ClaseNumero Distancia{false, -9999999999.99, 9999999999.99, 2};

/// An entry as it was judged: its number, or why it has none.
struct NumeroJuzgado {
    std::optional<double> Valor;
    std::string Motivo;
};

inline constexpr const char* MotivoNoEsNumero = "No es un número.";

/// The one judgement of typing, paste and files. A whole number takes its thousands
/// where no other reading is whole: "1.250" is then 1250.
NumeroJuzgado JuzgarNumero(std::string_view texto, const ClaseNumero& clase, const Separadores& separadores);

}  // namespace trabex
