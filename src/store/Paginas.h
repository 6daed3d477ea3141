#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace trabex::almacen {

/// A row as it stands in a page: its number, and of each value its serial type and its bytes, as the engine's
/// file format tells them.
struct FilaCruda {
    struct Dato {
        std::uint64_t Tipo = 0;
        std::string Bytes;

        bool EsNulo() const { return Tipo == 0; }
        bool EsEntero() const { return (Tipo >= 1 && Tipo <= 6) || Tipo == 8 || Tipo == 9; }
        bool EsReal() const { return Tipo == 7; }
        bool EsBinario() const { return Tipo >= 12 && Tipo % 2 == 0; }
        bool EsTexto() const { return Tipo >= 13 && Tipo % 2 == 1; }
        std::int64_t Entero() const;
        double Real() const;
    };
    std::int64_t Numero = 0;
    std::vector<Dato> Datos;
};

/// The pages of a database file, read past the engine: each by itself, whatever became of the others. Nothing
/// in a file makes it read outside of its bytes or go round in circles.
class Paginas {
  public:
    explicit Paginas(std::string bytes);

    std::uint32_t Cuantas() const { return cuantas_; }
    /// How the file writes its texts: 1 UTF-8, 2 and 3 UTF-16. What is not known counts as 1.
    int Codificacion() const;

    /// A page of rows, or one that leads to such pages.
    bool EsHoja(std::uint32_t pagina) const { return Clase(pagina) == Hoja; }
    bool EsRama(std::uint32_t pagina) const { return Clase(pagina) == Rama; }
    /// The pages to which one leads.
    std::vector<std::uint32_t> Hijas(std::uint32_t pagina) const;
    /// The rows of a page. Those that can't be read are counted in `perdidas`.
    std::vector<FilaCruda> Filas(std::uint32_t pagina, int& perdidas) const;
    /// Pages that the file holds in reserve: what stands in them was deleted.
    std::set<std::uint32_t> Libres() const;

  private:
    static constexpr int Hoja = 0x0D;
    static constexpr int Rama = 0x05;

    int Clase(std::uint32_t pagina) const;
    std::string_view Pagina(std::uint32_t pagina) const;
    std::string_view Util(std::uint32_t pagina) const;
    std::optional<FilaCruda> LeerCelda(std::string_view pagina, std::size_t donde) const;
    std::optional<std::string> Contenido(std::string_view pagina, std::size_t donde,
                                         std::uint64_t largo) const;

    std::string bytes_;
    std::size_t tamano_ = 0;      // of a page
    std::size_t reservados_ = 0;  // bytes at the end of each
    std::uint32_t cuantas_ = 0;
};

}  // namespace trabex::almacen
