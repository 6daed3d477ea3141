#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "reports/xls/Biff.h"
#include "reports/xls/LibroXls.h"

namespace trabex::xls {

/// Where a picture lies: the cells of its corners, and how far into them, in 1/1024 of a width and 1/256 of a
/// height.
struct AnclaXls {
    std::size_t ColumnaIzquierda, DentroIzquierda;
    std::size_t FilaSuperior, DentroSuperior;
    std::size_t ColumnaDerecha, DentroDerecha;
    std::size_t FilaInferior, DentroInferior;
};

/// What lies over the cells of a book: pictures, whose bytes stand once for all sheets, and the buttons that
/// open a column's filter.
class ImagenesBiff {
  public:
    /// Takes in a sheet's pictures, in order, before anything is written.
    std::size_t Agregar(const std::vector<const ImagenXls*>& deHoja, std::size_t filtros);

    std::size_t Cuantas() const { return imagenes_.size(); }
    /// The book's part: how long it is, and itself.
    std::size_t LargoDelGrupo() const;
    void EscribirGrupo(const Salida& salida,
                       const std::function<void(std::size_t hechas)>& antesDeCada) const;
    /// The part of the sheet that `Agregar` numbered: its pictures' places, then its buttons'.
    void EscribirHoja(std::string& flujo, std::size_t hoja, const std::vector<AnclaXls>& anclas) const;

  private:
    struct Dibujo {
        std::size_t PrimerGrupo;   ///< its block of 1024 shape numbers
        std::size_t PrimerImagen;  ///< place of its first picture in the book, from 1
        std::size_t Imagenes;
        std::size_t Filtros;
    };
    std::string PrincipioDelGrupo() const;

    std::vector<const ImagenXls*> imagenes_;
    std::vector<Dibujo> dibujos_;
    std::size_t grupos_ = 0;
    std::size_t formas_ = 0;
};

}  // namespace trabex::xls
