#pragma once

#include <optional>
#include <string>
#include <vector>

#include "reports/xls/CadenasBiff.h"
#include "reports/xls/EstilosBiff.h"
#include "reports/xls/ImagenesBiff.h"
#include "reports/xls/LibroXls.h"

namespace trabex::xls {

/// Heading rows of a sheet; more than half of what a sheet of the file holds are none.
inline std::size_t FilasFijasDe(const HojaXls& hoja) {
    return hoja.FilasFijas < FilasPorHojaXls / 2 ? hoja.FilasFijas : 0;
}

/// A sheet of the file: a sheet of the book, or a run of its rows below its heading rows.
class HojaBiff {
  public:
    /// Rows `desde` … `hasta` - 1 of a sheet, after its heading rows when it begins past them.
    HojaBiff(const HojaXls& hoja, std::string nombre, std::size_t desde, std::size_t hasta)
        : hoja_(hoja),
          nombre_(std::move(nombre)),
          repetidas_(desde == 0 ? 0 : FilasFijasDe(hoja)),
          desde_(desde),
          hasta_(hasta) {}

    const std::string& Nombre() const { return nombre_; }
    std::size_t FilasFijas() const { return FilasFijasDe(hoja_); }
    /// The row whose cells open filters, and those below it; nothing when they do not.
    std::optional<RangoXls> Filtro() const;
    /// Its pictures of a known kind.
    std::vector<const ImagenXls*> Imagenes() const;

    /// The sheet's records, from its beginning to its end.
    void Escribir(std::string& flujo, const EstilosBiff& estilos, CadenasBiff& cadenas,
                  const ImagenesBiff& imagenes, std::size_t numero) const;

  private:
    std::size_t Filas() const { return repetidas_ + hasta_ - desde_; }
    const FilaXls& Fila(std::size_t fila) const;
    /// Where a row of the book's sheet stands here; nothing when it is not here.
    std::optional<std::size_t> Lugar(std::size_t filaDelLibro) const;
    double Ancho(std::size_t columna) const;
    double Alto(const FilaXls& fila, const EstilosBiff& estilos) const;
    double AltoEn(std::size_t fila, const EstilosBiff& estilos) const;

    void EscribirPagina(std::string& flujo) const;
    void EscribirColumnas(std::string& flujo) const;
    void EscribirFilas(std::string& flujo, const EstilosBiff& estilos, CadenasBiff& cadenas) const;
    void EscribirCelda(std::string& flujo, std::size_t fila, std::size_t columna, const CeldaXls& celda,
                       const EstilosBiff& estilos, CadenasBiff& cadenas) const;
    void EscribirVista(std::string& flujo, bool primera) const;
    void EscribirCombinadas(std::string& flujo) const;
    AnclaXls Ancla(const ImagenXls& imagen, const EstilosBiff& estilos) const;

    const HojaXls& hoja_;
    std::string nombre_;
    std::size_t repetidas_, desde_, hasta_;
};

}  // namespace trabex::xls
