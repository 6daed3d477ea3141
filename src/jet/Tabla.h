#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace trabex::jet {

/// Types of a column, by their number in a table's definition.
enum class Tipo : std::uint8_t {
    Logico = 0x01,  ///< lives in the row's mask of nulls: never null
    Byte = 0x02,    ///< 8 bits, without sign
    Entero = 0x03,  ///< 16 bits
    Largo = 0x04,   ///< 32 bits
    Moneda = 0x05,  ///< 64 bits, ten-thousandths
    Simple = 0x06,
    Doble = 0x07,
    Fecha = 0x08,     ///< days since 30 December 1899, a double
    Binario = 0x09,   ///< up to 255 bytes
    Texto = 0x0a,     ///< up to 255 characters
    Ole = 0x0b,       ///< bytes without limit
    Memo = 0x0c,      ///< text without limit
    Guid = 0x0f,      ///< 16 bytes
    Numerico = 0x10,  ///< 17 bytes: sign and a whole number of `Precision` figures, `Escala` of them decimals
};

struct Columna {
    std::string Nombre;
    Tipo De = Tipo::Texto;
    std::uint16_t Ancho = 0;  ///< characters of a text, bytes of a binary
    std::uint8_t Precision = 0;
    std::uint8_t Escala = 0;
    bool Automatica = false;  ///< a Largo or Guid that the engine fills in a new row
};

/// The order of texts that files are written in.
inline constexpr std::uint16_t OrdenGeneral = 0x0409;

struct Tabla {
    std::string Nombre;
    std::vector<Columna> Columnas;
    std::string Propiedades{};      ///< the engine's own record of them: defaults, rules, captions
    std::int32_t UltimoNumero = 0;  ///< given by its automatic column
};

/// Null; whole numbers, logicals and ten-thousandths; doubles, singles and dates; texts in UTF-8, and bytes.
using Valor = std::variant<std::monostate, std::int64_t, double, std::string>;

using Fila = std::vector<Valor>;

/// Days since 30 December 1899 of a civil date: 1 January 1900 is 2.
double DiasDe(int ano, unsigned mes, unsigned dia);

}  // namespace trabex::jet
