#include "reports/xls/EstilosBiff.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "reports/xls/Biff.h"

namespace trabex::xls {

namespace {

enum Registro : std::uint16_t {
    FONT = 0x0031,
    FORMAT = 0x041E,
    XF = 0x00E0,
    STYLE = 0x0293,
    PALETTE = 0x0092,
};

constexpr std::uint16_t ColorAutomatico = 0x7FFF;
constexpr std::uint16_t ColorDeLetraPropia = 0x40, ColorDeFondoPropio = 0x41;
constexpr std::uint16_t PrimerColor = 8;
constexpr std::uint16_t FormatosDeEstilo = 15;  ///< that stand before those of cells
constexpr std::uint16_t PrimerFormatoPropio = 164;
constexpr std::string_view FormatoDeDia = "dd/mm/yyyy";

constexpr std::array<std::pair<std::string_view, std::uint16_t>, 8> FormatosIncorporados{{
    {"", 0},
    {"0", 1},
    {"0.00", 2},
    {"#,##0", 3},
    {"#,##0.00", 4},
    {"0%", 9},
    {"0.00%", 10},
    {"@", 49},
}};

/// The format's own colours, kept where the book needs no others.
constexpr std::array<std::uint32_t, 56> PaletaUsual{
    0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF, 0x800000, 0x008000,
    0x000080, 0x808000, 0x800080, 0x008080, 0xC0C0C0, 0x808080, 0x9999FF, 0x993366, 0xFFFFCC, 0xCCFFFF,
    0x660066, 0xFF8080, 0x0066CC, 0xCCCCFF, 0x000080, 0xFF00FF, 0xFFFF00, 0x00FFFF, 0x800080, 0x800000,
    0x008080, 0x0000FF, 0x00CCFF, 0xCCFFFF, 0xCCFFCC, 0xFFFF99, 0x99CCFF, 0xFF99CC, 0xCC99FF, 0xFFCC99,
    0x3366FF, 0x33CCCC, 0x99CC00, 0xFFCC00, 0xFF9900, 0xFF6600, 0x666699, 0x969696, 0x003366, 0x339966,
    0x003300, 0x333300, 0x993300, 0x993366, 0x333399, 0x333333};

int Distancia(std::uint32_t a, std::uint32_t b) {
    int suma = 0;
    for (const unsigned corrimiento : {0U, 8U, 16U}) {
        const int d =
            static_cast<int>((a >> corrimiento) & 0xFF) - static_cast<int>((b >> corrimiento) & 0xFF);
        suma += d * d;
    }
    return suma;
}

}  // namespace

EstilosBiff::EstilosBiff(const std::vector<EstiloXls>& estilos) : estilos_(estilos), paleta_(PaletaUsual) {
    // Font 0 measures the columns; the format has no font 4, and those before it must be there.
    fuentes_.assign(4, FuenteXls{.Color = ColorAutomatico});
    for (const EstiloXls& estilo : estilos_) {
        Agregar(estilo, estilo.Formato);
        Agregar(estilo, estilo.Formato.empty() ? std::string(FormatoDeDia) : estilo.Formato);
    }
}

std::uint16_t EstilosBiff::Xf(std::uint16_t estilo, bool fecha) const {
    const std::size_t conocido = estilo < estilos_.size() ? estilo : 0;
    return static_cast<std::uint16_t>(FormatosDeEstilo + 2 * conocido + (fecha ? 1 : 0));
}

double EstilosBiff::AltoDeLinea(std::uint16_t estilo) const {
    return 1.275 * estilos_[estilo < estilos_.size() ? estilo : 0].Puntos;  // Arial 10 stands in 12.75
}

void EstilosBiff::Agregar(const EstiloXls& estilo, const std::string& formato) {
    formateos_.push_back({Fuente(estilo), FormatoDe(formato), &estilo});
    if (estilo.Relleno) Color(*estilo.Relleno);
    Color(estilo.Bordes.Color);
}

std::uint16_t EstilosBiff::Fuente(const EstiloXls& e) {
    const FuenteXls fuente{e.Fuente,  e.Puntos,    e.Negrita,
                           e.Cursiva, e.Subrayado, e.Color ? Color(*e.Color) : ColorAutomatico};
    const auto lugar = std::find(fuentes_.begin(), fuentes_.end(), fuente);
    const auto numero = static_cast<std::uint16_t>(lugar - fuentes_.begin());
    if (lugar == fuentes_.end()) fuentes_.push_back(fuente);
    return static_cast<std::uint16_t>(numero < 4 ? numero : numero + 1);
}

std::uint16_t EstilosBiff::FormatoDe(const std::string& formato) {
    for (const auto& [texto, numero] : FormatosIncorporados) {
        if (texto == formato) return numero;
    }
    const auto lugar = std::find(formatos_.begin(), formatos_.end(), formato);
    const auto numero = static_cast<std::uint16_t>(PrimerFormatoPropio + (lugar - formatos_.begin()));
    if (lugar == formatos_.end()) formatos_.push_back(formato);
    return numero;
}

/// The number of a colour. A new one takes the last free place of the palette; once none is free, the nearest
/// serves.
std::uint16_t EstilosBiff::Color(std::uint32_t rgb) {
    std::size_t lugar = ColorConocido(rgb) - PrimerColor;
    if (paleta_[lugar] != rgb) {
        const auto libre = std::find(usados_.rbegin(), usados_.rend(), false);
        if (libre != usados_.rend()) lugar = static_cast<std::size_t>(usados_.rend() - libre) - 1;
        if (libre != usados_.rend()) paleta_[lugar] = rgb;
    }
    usados_[lugar] = true;
    return static_cast<std::uint16_t>(PrimerColor + lugar);
}

std::uint16_t EstilosBiff::ColorConocido(std::uint32_t rgb) const {
    const auto cercano = std::min_element(paleta_.begin(), paleta_.end(), [rgb](auto a, auto b) {
        return Distancia(a, rgb) < Distancia(b, rgb);
    });
    return static_cast<std::uint16_t>(PrimerColor + (cercano - paleta_.begin()));
}

void EstilosBiff::Escribir(std::string& flujo) const {
    for (const FuenteXls& fuente : fuentes_) {
        AgregarRegistro(flujo, FONT,
                        Octetos()
                            .U16(static_cast<std::size_t>(std::lround(20 * fuente.Puntos)))
                            .U16(fuente.Cursiva ? 2 : 0)
                            .U16(fuente.Color)
                            .U16(fuente.Negrita ? 700 : 400)
                            .U16(0)
                            .U8(fuente.Subrayado ? 1 : 0)
                            .U8(0)
                            .U8(0)
                            .U8(0)
                            .TextoCorto(fuente.Nombre, 31));
    }
    for (std::size_t i = 0; i < formatos_.size(); ++i)
        AgregarRegistro(flujo, FORMAT, Octetos().U16(PrimerFormatoPropio + i).TextoLargo(formatos_[i], 255));
    for (std::uint16_t i = 0; i < FormatosDeEstilo; ++i) {
        AgregarRegistro(flujo, XF,
                        Octetos()
                            .U16(0)
                            .U16(0)
                            .U16(0xFFF5)  // a style's, locked, of no other
                            .U8(0x20)
                            .U8(0)
                            .U8(0)
                            .U8(i == 0 ? 0 : 0xF4)
                            .U32(0)
                            .U32(0)
                            .U16(ColorDeLetraPropia | ColorDeFondoPropio << 7));
    }
    for (const Formateo& formateo : formateos_) EscribirXf(flujo, formateo);
    AgregarRegistro(flujo, STYLE, Octetos().U16(0x8000).U8(0).U8(0xFF));
    Octetos paleta;
    paleta.U16(paleta_.size());
    for (const std::uint32_t rgb : paleta_)
        paleta.U8((rgb >> 16) & 0xFF).U8((rgb >> 8) & 0xFF).U8(rgb & 0xFF).U8(0);
    AgregarRegistro(flujo, PALETTE, paleta);
}

void EstilosBiff::EscribirXf(std::string& flujo, const Formateo& formateo) const {
    const EstiloXls& e = *formateo.Estilo;
    const BordesXls& b = e.Bordes;
    const std::size_t tinta = ColorConocido(b.Color);
    const auto linea = [](BordeXls borde) { return static_cast<std::size_t>(borde); };
    const auto deLinea = [&](BordeXls borde) { return borde == BordeXls::Ninguno ? 0 : tinta; };
    const std::size_t lados = linea(b.Izquierdo) | linea(b.Derecho) << 4 | linea(b.Superior) << 8 |
                              linea(b.Inferior) << 12 | deLinea(b.Izquierdo) << 16 | deLinea(b.Derecho) << 23;
    const std::size_t resto =
        deLinea(b.Superior) | deLinea(b.Inferior) << 7 | (e.Relleno ? std::size_t{1} << 26 : 0);
    const std::size_t trama = e.Relleno ? ColorConocido(*e.Relleno) : ColorDeLetraPropia;
    AgregarRegistro(flujo, XF,
                    Octetos()
                        .U16(formateo.Fuente)
                        .U16(formateo.Formato)
                        .U16(1)  // a cell's, locked, under style format 0
                        .U8(static_cast<std::size_t>(e.Alineacion) | (e.AjustarTexto ? 8 : 0) |
                            static_cast<std::size_t>(e.Vertical) << 4)
                        .U8(0)
                        .U8(0)
                        .U8(0xFC)  // every attribute its own
                        .U32(lados)
                        .U32(resto)
                        .U16(trama | ColorDeFondoPropio << 7));
}

}  // namespace trabex::xls
