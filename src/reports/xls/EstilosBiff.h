#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "reports/xls/LibroXls.h"

namespace trabex::xls {

/// Fonts, number formats, colours and cell formats of a book, numbered as its records refer to them.
class EstilosBiff {
  public:
    explicit EstilosBiff(const std::vector<EstiloXls>& estilos);

    /// The cell format of a style. A date under a style without a format is shown as a day.
    std::uint16_t Xf(std::uint16_t estilo, bool fecha) const;
    /// Height of a line of a style's font, in points.
    double AltoDeLinea(std::uint16_t estilo) const;

    void Escribir(std::string& flujo) const;

  private:
    struct FuenteXls {
        std::string Nombre = "Arial";
        double Puntos = 10;
        bool Negrita = false, Cursiva = false, Subrayado = false;
        std::uint16_t Color;
        bool operator==(const FuenteXls&) const = default;
    };
    struct Formateo {
        std::uint16_t Fuente;
        std::uint16_t Formato;
        const EstiloXls* Estilo;
    };

    std::uint16_t Fuente(const EstiloXls& estilo);
    std::uint16_t FormatoDe(const std::string& formato);
    std::uint16_t Color(std::uint32_t rgb);
    std::uint16_t ColorConocido(std::uint32_t rgb) const;
    void Agregar(const EstiloXls& estilo, const std::string& formato);
    void EscribirXf(std::string& flujo, const Formateo& formateo) const;

    const std::vector<EstiloXls>& estilos_;
    std::vector<FuenteXls> fuentes_;
    std::vector<std::string> formatos_;
    std::array<std::uint32_t, 56> paleta_;
    std::array<bool, 56> usados_{};
    std::vector<Formateo> formateos_;  // two a style: for any value, for a date
};

}  // namespace trabex::xls
