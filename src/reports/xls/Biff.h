#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace trabex::xls {

/// Little-endian bytes, as every part of the format is made of.
class Octetos {
  public:
    Octetos& U8(std::size_t valor) { return Entero<1>(valor); }
    Octetos& U16(std::size_t valor) { return Entero<2>(valor); }
    Octetos& U32(std::size_t valor) { return Entero<4>(valor); }
    Octetos& F64(double valor);
    Octetos& Crudo(std::string_view bytes) {
        bytes_ += bytes;
        return *this;
    }
    /// A text after its length in 8 or 16 bits, cut to `maximo` characters.
    Octetos& TextoCorto(std::string_view utf8, std::size_t maximo = 255);
    Octetos& TextoLargo(std::string_view utf8, std::size_t maximo);

    const std::string& Bytes() const { return bytes_; }

  private:
    template <std::size_t octetos>
    Octetos& Entero(std::uint64_t valor) {
        std::array<char, octetos> propios;
        for (char& octeto : propios) {
            octeto = static_cast<char>(valor & 0xFF);
            valor >>= 8;
        }
        bytes_.append(propios.data(), octetos);
        return *this;
    }
    std::string bytes_;
};

/// A text as the format keeps it: 8 bits a character where all of them lie in Latin-1, or else 16.
class TextoBiff {
  public:
    explicit TextoBiff(std::string_view utf8, std::size_t maximo);
    std::size_t Caracteres() const { return utf16_.size(); }
    std::size_t OctetosPorCaracter() const { return ancho_; }
    /// The flag byte, and `cuantos` characters from one on.
    std::size_t Marca() const { return ancho_ - 1; }
    std::string Trozo(std::size_t desde, std::size_t cuantos) const;

  private:
    std::u16string utf16_;
    std::size_t ancho_;
};

inline constexpr std::size_t DatosPorRegistro = 8224;  ///< bytes that a record holds
inline constexpr std::uint16_t Continuacion = 0x003C;

/// Takes the bytes of the book's stream, in order.
using Salida = std::function<void(std::string_view)>;

/// Appends a record; data past its limit go into continuation records.
void AgregarRegistro(std::string& flujo, std::uint16_t tipo, const Octetos& datos);

/// A record whose data come bit by bit, so that those of many pictures are never together in memory.
class RegistroPorPartes {
  public:
    RegistroPorPartes(const Salida& salida, std::uint16_t tipo) : salida_(salida), tipo_(tipo) {}
    void Agregar(std::string_view bytes);
    /// Writes what is left.
    void Terminar();
    /// What one of so many bytes of data takes in the stream.
    static std::size_t Largo(std::size_t datos);

  private:
    const Salida& salida_;
    std::uint16_t tipo_;
    std::string parte_;
};

}  // namespace trabex::xls
