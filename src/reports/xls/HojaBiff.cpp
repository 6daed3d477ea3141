#include "reports/xls/HojaBiff.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "base/Formatos.h"
#include "reports/xls/Biff.h"

namespace trabex::xls {

namespace {

enum Registro : std::uint16_t {
    BOF = 0x0809,
    FIN = 0x000A,
    GRIDSET = 0x0082,
    WSBOOL = 0x0081,
    HORIZONTALPAGEBREAKS = 0x001B,
    HEADER = 0x0014,
    FOOTER = 0x0015,
    LEFTMARGIN = 0x0026,
    RIGHTMARGIN = 0x0027,
    TOPMARGIN = 0x0028,
    BOTTOMMARGIN = 0x0029,
    SETUP = 0x00A1,
    AUTOFILTERINFO = 0x009D,
    DEFCOLWIDTH = 0x0055,
    COLINFO = 0x007D,
    DIMENSIONS = 0x0200,
    ROW = 0x0208,
    LABELSST = 0x00FD,
    NUMBER = 0x0203,
    BLANK = 0x0201,
    WINDOW2 = 0x023E,
    PANE = 0x0041,
    SELECTION = 0x001D,
    MERGEDCELLS = 0x00E5,
};

constexpr double AnchoDeCaracter = 5.25;  ///< of a figure in Arial 10, in points: 7 pixels of 96 an inch
constexpr double AnchoUsual = 8.43 * AnchoDeCaracter + 3.75;  ///< 8.43 figures and 5 pixels around them
constexpr double AltoUsual = 12.75;
constexpr std::size_t FilasPorBloque = 32;
constexpr std::size_t CombinadasPorRegistro = 1027;
constexpr std::size_t MaximoDeBanda = 255;

/// Days as the format counts them: 1 is the first of 1900, and a 29 of February of that year is counted that
/// was none.
std::optional<double> NumeroDeDia(const Fecha& fecha) {
    using namespace std::chrono;
    if (!fecha.ok() || fecha < year(1900) / 1 / 1) return std::nullopt;
    const sys_days origen = fecha < year(1900) / 3 / 1 ? year(1899) / 12 / 31 : year(1899) / 12 / 30;
    return (sys_days(fecha) - origen).count();
}

std::size_t Veinteavos(double puntos) {
    return static_cast<std::size_t>(std::lround(20 * puntos));
}

/// The cell that lies `largo` past the edge of cell `celda`, and how far into it, in parts of its size.
template <class Tamano>
std::pair<std::size_t, double> Extremo(std::size_t celda, std::size_t ultima, double largo, Tamano tamano) {
    while (celda < ultima && largo >= tamano(celda)) largo -= tamano(celda++);
    return {celda, std::min(largo / tamano(celda), 1.0)};
}

}  // namespace

std::vector<const ImagenXls*> HojaBiff::Imagenes() const {
    std::vector<const ImagenXls*> suyas;
    for (const ImagenXls& imagen : hoja_.Imagenes) {
        // One that stands past the last row belongs to the last sheet of the run.
        const bool alFinal = imagen.Fila >= hoja_.Filas.size() && hasta_ == hoja_.Filas.size();
        if (imagen.Ficha.Clase && (Lugar(imagen.Fila) || alFinal)) suyas.push_back(&imagen);
    }
    return suyas;
}

std::optional<RangoXls> HojaBiff::Filtro() const {
    if (!hoja_.Filtro || FilasFijas() == 0) return std::nullopt;
    const std::size_t fila = FilasFijas() - 1;
    const std::size_t columnas = std::min(Fila(fila).Celdas.size(), ColumnasXls);
    if (columnas == 0) return std::nullopt;
    return RangoXls{fila, 0, Filas() - 1, columnas - 1};
}

const FilaXls& HojaBiff::Fila(std::size_t fila) const {
    return hoja_.Filas[fila < repetidas_ ? fila : fila - repetidas_ + desde_];
}

std::optional<std::size_t> HojaBiff::Lugar(std::size_t filaDelLibro) const {
    if (filaDelLibro < desde_ || filaDelLibro >= hasta_) return std::nullopt;
    return filaDelLibro - desde_ + repetidas_;
}

double HojaBiff::Ancho(std::size_t columna) const {
    const double ancho = columna < hoja_.Anchos.size() ? hoja_.Anchos[columna] : 0;
    return ancho > 0 ? ancho : AnchoUsual;
}

double HojaBiff::Alto(const FilaXls& fila, const EstilosBiff& estilos) const {
    if (fila.Alto > 0) return fila.Alto;
    double alto = AltoUsual;
    for (const CeldaXls& celda : fila.Celdas) alto = std::max(alto, estilos.AltoDeLinea(celda.Estilo));
    return alto;
}

double HojaBiff::AltoEn(std::size_t fila, const EstilosBiff& estilos) const {
    return fila < Filas() ? Alto(Fila(fila), estilos) : AltoUsual;
}

void HojaBiff::Escribir(std::string& flujo, const EstilosBiff& estilos, CadenasBiff& cadenas,
                        const ImagenesBiff& imagenes, std::size_t numero) const {
    AgregarRegistro(flujo, BOF,
                    Octetos().U16(0x0600).U16(0x0010).U16(0x0DBB).U16(0x07CC).U32(0xC1).U32(0x0306));
    EscribirPagina(flujo);
    EscribirColumnas(flujo);
    const auto filtro = Filtro();
    const std::size_t filtros = filtro ? filtro->ColumnaFinal + 1 : 0;
    if (filtro) AgregarRegistro(flujo, AUTOFILTERINFO, Octetos().U16(filtros));
    EscribirFilas(flujo, estilos, cadenas);
    std::vector<AnclaXls> anclas;
    for (const ImagenXls* imagen : Imagenes()) anclas.push_back(Ancla(*imagen, estilos));
    for (std::size_t c = 0; c < filtros; ++c)
        anclas.push_back({c, 0, filtro->Fila, 0, c + 1, 0, filtro->Fila + 1, 0});
    imagenes.EscribirHoja(flujo, numero, anclas);
    EscribirVista(flujo, numero == 0);
    EscribirCombinadas(flujo);
    AgregarRegistro(flujo, FIN, {});
}

void HojaBiff::EscribirPagina(std::string& flujo) const {
    const PaginaXls& p = hoja_.Pagina;
    const std::size_t vertical = p.Horizontal ? 0 : 2;
    AgregarRegistro(flujo, GRIDSET, Octetos().U16(1));
    AgregarRegistro(flujo, WSBOOL, Octetos().U16(p.AjustarAlAncho ? 0x05C1 : 0x04C1));
    std::vector<std::size_t> saltos;
    for (const std::size_t fila : hoja_.SaltosDePagina) {
        if (Lugar(fila).value_or(0) > 0) saltos.push_back(*Lugar(fila));
    }
    Octetos lista;
    lista.U16(saltos.size());
    for (const std::size_t fila : saltos) lista.U16(fila).U16(0).U16(ColumnasXls - 1);
    if (!saltos.empty()) AgregarRegistro(flujo, HORIZONTALPAGEBREAKS, lista);
    AgregarRegistro(flujo, HEADER,
                    p.Encabezado.empty() ? Octetos() : Octetos().TextoLargo(p.Encabezado, MaximoDeBanda));
    AgregarRegistro(flujo, FOOTER, p.Pie.empty() ? Octetos() : Octetos().TextoLargo(p.Pie, MaximoDeBanda));
    AgregarRegistro(flujo, LEFTMARGIN, Octetos().F64(p.Izquierdo / 72));
    AgregarRegistro(flujo, RIGHTMARGIN, Octetos().F64(p.Derecho / 72));
    AgregarRegistro(flujo, TOPMARGIN, Octetos().F64(p.Superior / 72));
    AgregarRegistro(flujo, BOTTOMMARGIN, Octetos().F64(p.Inferior / 72));
    AgregarRegistro(flujo, SETUP,
                    Octetos()
                        .U16(static_cast<std::size_t>(p.Papel))
                        .U16(100)
                        .U16(1)
                        .U16(1)
                        .U16(p.AjustarAlAncho ? 0 : 1)  // as many pages down as it takes
                        .U16(vertical)
                        .U16(600)
                        .U16(600)
                        .F64(0.5)
                        .F64(0.5)
                        .U16(1));
}

void HojaBiff::EscribirColumnas(std::string& flujo) const {
    AgregarRegistro(flujo, DEFCOLWIDTH, Octetos().U16(8));
    for (std::size_t c = 0; c < std::min(hoja_.Anchos.size(), ColumnasXls); ++c) {
        const auto ancho = static_cast<std::size_t>(std::lround(256 * Ancho(c) / AnchoDeCaracter));
        const std::size_t sinFormato = 15;
        AgregarRegistro(
            flujo, COLINFO,
            Octetos().U16(c).U16(c).U16(std::min<std::size_t>(ancho, 0xFF00)).U16(sinFormato).U32(0));
    }
}

void HojaBiff::EscribirFilas(std::string& flujo, const EstilosBiff& estilos, CadenasBiff& cadenas) const {
    std::size_t columnas = 0;
    for (std::size_t f = 0; f < Filas(); ++f) columnas = std::max(columnas, Fila(f).Celdas.size());
    columnas = std::min(columnas, ColumnasXls);
    AgregarRegistro(flujo, DIMENSIONS, Octetos().U32(0).U32(Filas()).U16(0).U16(columnas).U16(0));
    for (std::size_t bloque = 0; bloque < Filas(); bloque += FilasPorBloque) {
        const std::size_t fin = std::min(Filas(), bloque + FilasPorBloque);
        for (std::size_t f = bloque; f < fin; ++f) {
            const FilaXls& fila = Fila(f);
            AgregarRegistro(flujo, ROW,
                            Octetos()
                                .U16(f)
                                .U16(0)
                                .U16(std::min(fila.Celdas.size(), ColumnasXls))
                                .U16(Veinteavos(Alto(fila, estilos)))
                                .U32(0)
                                .U32(fila.Alto > 0 ? 0x000F0140 : 0x000F0100));
        }
        for (std::size_t f = bloque; f < fin; ++f) {
            const FilaXls& fila = Fila(f);
            for (std::size_t c = 0; c < std::min(fila.Celdas.size(), ColumnasXls); ++c)
                EscribirCelda(flujo, f, c, fila.Celdas[c], estilos, cadenas);
        }
    }
}

void HojaBiff::EscribirCelda(std::string& flujo, std::size_t fila, std::size_t columna, const CeldaXls& celda,
                             const EstilosBiff& estilos, CadenasBiff& cadenas) const {
    const auto* fecha = std::get_if<Fecha>(&celda.Valor);
    const auto* texto = std::get_if<std::string>(&celda.Valor);
    const auto* numero = std::get_if<double>(&celda.Valor);
    const std::optional<double> dia = fecha != nullptr ? NumeroDeDia(*fecha) : std::nullopt;
    const auto empezar = [&](bool deFecha) {
        return Octetos().U16(fila).U16(columna).U16(estilos.Xf(celda.Estilo, deFecha));
    };
    if (dia)
        AgregarRegistro(flujo, NUMBER, empezar(true).F64(*dia));
    else if (numero != nullptr && std::isfinite(*numero))
        AgregarRegistro(flujo, NUMBER, empezar(false).F64(*numero));
    else if (texto != nullptr || fecha != nullptr)
        AgregarRegistro(flujo, LABELSST,
                        empezar(false).U32(cadenas.Indice(texto != nullptr ? *texto : FormatoFecha(*fecha))));
    else if (celda.Estilo != 0)
        AgregarRegistro(flujo, BLANK, empezar(false));
}

void HojaBiff::EscribirVista(std::string& flujo, bool primera) const {
    const bool fija = FilasFijas() > 0;
    const std::size_t marcas =
        (hoja_.Cuadricula ? 0xB6 : 0xB4) | (fija ? 0x0108 : 0) | (primera ? 0x0600 : 0);
    AgregarRegistro(flujo, WINDOW2, Octetos().U16(marcas).U16(0).U16(0).U32(0x40).U16(0).U16(0).U32(0));
    if (fija)
        AgregarRegistro(flujo, PANE, Octetos().U16(0).U16(FilasFijas()).U16(FilasFijas()).U16(0).U16(2));
    const std::size_t tablero = fija ? 2 : 3;
    const std::size_t fila = fija ? FilasFijas() : 0;
    AgregarRegistro(flujo, SELECTION,
                    Octetos().U8(tablero).U16(fila).U16(0).U16(0).U16(1).U16(fila).U16(fila).U8(0).U8(0));
}

void HojaBiff::EscribirCombinadas(std::string& flujo) const {
    std::vector<RangoXls> rangos;
    for (const RangoXls& r : hoja_.Combinadas) {
        const bool repetida = repetidas_ > 0 && r.Fila < repetidas_;
        const auto inicio = repetida ? std::optional(r.Fila) : Lugar(r.Fila);
        if (!inicio || r.Columna >= ColumnasXls) continue;
        const std::size_t fin = std::min(*inicio + r.FilaFinal - r.Fila, Filas() - 1);
        rangos.push_back({*inicio, r.Columna, fin, std::min(r.ColumnaFinal, ColumnasXls - 1)});
    }
    for (std::size_t i = 0; i < rangos.size(); i += CombinadasPorRegistro) {
        const std::size_t cuantos = std::min(CombinadasPorRegistro, rangos.size() - i);
        Octetos lista;
        lista.U16(cuantos);
        for (std::size_t k = i; k < i + cuantos; ++k) {
            const RangoXls& r = rangos[k];
            lista.U16(r.Fila).U16(r.FilaFinal).U16(r.Columna).U16(r.ColumnaFinal);
        }
        AgregarRegistro(flujo, MERGEDCELLS, lista);
    }
}

AnclaXls HojaBiff::Ancla(const ImagenXls& imagen, const EstilosBiff& estilos) const {
    const std::size_t fila = Lugar(imagen.Fila)
                                 .value_or(std::min(imagen.Fila - std::min(imagen.Fila, desde_) + repetidas_,
                                                    FilasPorHojaXls - 1));
    const std::size_t columna = std::min(imagen.Columna, ColumnasXls - 1);
    const auto [derecha, dentroX] =
        Extremo(columna, ColumnasXls - 1, imagen.Ancho, [&](std::size_t c) { return Ancho(c); });
    const auto [abajo, dentroY] =
        Extremo(fila, FilasPorHojaXls - 1, imagen.Alto, [&](std::size_t f) { return AltoEn(f, estilos); });
    return {columna, 0,
            fila,    0,
            derecha, static_cast<std::size_t>(1023 * dentroX),
            abajo,   static_cast<std::size_t>(255 * dentroY)};
}

}  // namespace trabex::xls
