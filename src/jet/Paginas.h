#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

namespace trabex::jet {

inline constexpr std::size_t TamanoPagina = 4096;

/// A page of the file; whole numbers stand in it with their low byte first.
class Pagina {
  public:
    void Byte(std::size_t donde, std::uint8_t valor) { bytes_[donde] = static_cast<char>(valor); }
    void Corto(std::size_t donde, std::size_t valor);
    void Largo(std::size_t donde, std::uint32_t valor);
    void Bytes(std::size_t donde, std::string_view bytes);
    std::uint16_t Corto(std::size_t donde) const;
    void Encender(std::size_t byte, unsigned bit);

    std::string_view Todo() const { return {bytes_.data(), bytes_.size()}; }

  private:
    std::array<char, TamanoPagina> bytes_{};
};

/// A row of a page, as another place points to it.
struct Puntero {
    std::uint32_t Pagina = 0;
    std::uint8_t Fila = 0;

    std::uint32_t Numero() const { return Pagina << 8 | Fila; }
};

/// The pages of a file under construction.
class Paginas {
  public:
    /// A new page at the end, all zero.
    std::uint32_t Nueva();
    Pagina& operator[](std::uint32_t numero) { return paginas_[numero]; }
    std::uint32_t Cuantas() const { return static_cast<std::uint32_t>(paginas_.size()); }

    std::string Todo() const;

  private:
    std::deque<Pagina> paginas_;
};

/// Pages that hold rows from their end upwards, behind a table of their places: rows of a table, long values
/// and maps of pages. `duena` is what such a page names as its owner: a table's page, or the word LVAL.
class PaginasDeFilas {
  public:
    /// What fits in a page, with its place in the table.
    static constexpr std::size_t Cabecera = 14;
    static constexpr std::size_t Mayor = TamanoPagina - Cabecera - 2;
    static constexpr std::uint32_t Lval = 0x4C41564C;

    /// `primera` is its first page, where that is there already.
    PaginasDeFilas(Paginas& paginas, std::uint32_t duena, std::uint32_t primera = 0)
        : paginas_(paginas), duena_(duena), primera_(primera) {}

    Puntero Agregar(std::string_view fila);
    const std::deque<std::uint32_t>& Numeros() const { return numeros_; }

  private:
    Paginas& paginas_;
    std::uint32_t duena_;
    std::uint32_t primera_;
    std::deque<std::uint32_t> numeros_;
    std::size_t libre_ = 0;  // of the last page
    std::size_t filas_ = 0;
};

}  // namespace trabex::jet
