#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/Plano.h"
#include "drawing/losa/EstiloHoja.h"
#include "drawing/losa/FigurasLosa.h"
#include "drawing/losa/HojaLosa.h"
#include "drawing/losa/PerfilDeHoja.h"
#include "slab/ValoresLosa.h"

namespace trabex::dibujo::losa {

inline constexpr double LetraNormal = 8.5;  ///< points

/// A sheet of a slab while it is drawn: the canvas in metres, and what it shows. Labels are placed in canvas
/// units from the world's origin, unrounded, so that a pan moves all of them alike.
struct Trazado {
    Plano EnMetros;
    HojaLosa& Hoja;
    const losas::LosaCalculada& Calculada;
    const losas::Losa& Losa;
    const EstiloHoja& Estilo;
    PerfilDeHoja Perfil;
    double Pie = 0;  ///< of what the slab itself takes, below the line through its axes

    std::size_t PrimerTramo() const { return Hoja.Tramos.Primero; }
    std::size_t UltimoTramo() const { return Hoja.Tramos.Ultimo; }
    std::size_t PrimerEje() const { return Hoja.Tramos.Primero; }
    std::size_t UltimoEje() const { return Hoja.Tramos.Ultimo + 1; }
    double EjeX(std::size_t eje) const { return Hoja.Ejes.EjesX[eje]; }
    double EjeY(std::size_t eje) const { return Hoja.Ejes.EjesY[eje]; }
    /// Column of an axis from the origin.
    double Columna(std::size_t eje) const { return EnMetros.Escala() * EjeX(eje); }
    double MitadDeTramo(std::size_t i) const { return (Columna(i) + Columna(i + 1)) / 2; }
    MedidaTexto Medir(std::string_view texto) const { return EnMetros.ElLienzo().Medir(texto); }
    /// Height of a line in the current font.
    std::int32_t Renglon() const { return Medir("WW").Alto; }
    /// Left end of what is seen at zoom 1 without pan.
    double BordeIzquierdo() const;

    std::string Numero(double valor, std::string_view formato) const;
    /// Depth of the slab, m, as the titles show it.
    std::string Espesor() const;
    /// The slab's name, with the axes that the sheet shows where it does not show all.
    std::string Nombre() const;

    /// Writes a label, its box given from the origin, and keeps it in the sheet.
    void Escribir(RotuloDeHoja rotulo) const;
    void Anotar(const BandaDeHoja& banda) const { Hoja.Bandas.push_back(banda); }
};

/// What a sheet needs under the world's origin: so many metres from the lowest axis and then lines of title.
struct PieDeHoja {
    double Metros = 0;
    std::size_t Titulos = 0;
};

/// Where the slab lies on its surface, by its length and its highest axis. Of a slab with steps whose sheet's
/// foot would fall off the surface the scale is the largest at which it does not.
Encuadre EncuadreDeLosa(Lienzo& lienzo, const EjesDeHoja& ejes, const EstiloHoja& estilo,
                        const PieDeHoja& pie);

/// The common part of the three sheets: clears, sets scale and origin, draws the slab with its loads, axes,
/// displaced joints and supports. Nothing of a slab without spans.
std::optional<Trazado> DibujeBaseLosa(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                                      const EstiloHoja& estilo, const PieDeHoja& pie);

/// Bold lines of the sheet's title, centred below each other from a row under the origin on. One that is
/// wider than the surface goes on in another line.
void DibujeTitulos(const Trazado& t, double fila, const std::vector<std::string>& lineas);

}  // namespace trabex::dibujo::losa
