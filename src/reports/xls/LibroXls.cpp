#include "reports/xls/LibroXls.h"

#include <algorithm>
#include <set>

#include "base/Archivos.h"
#include "base/ErrorEjecucion.h"
#include "base/Texto.h"
#include "reports/xls/Biff.h"
#include "reports/xls/ContenedorOle.h"
#include "reports/xls/HojaBiff.h"

namespace trabex::xls {

namespace {

enum Registro : std::uint16_t {
    BOF = 0x0809,
    FIN = 0x000A,
    CODEPAGE = 0x0042,
    WINDOW1 = 0x003D,
    DATEMODE = 0x0022,
    BOUNDSHEET = 0x0085,
    SUPBOOK = 0x01AE,
    EXTERNSHEET = 0x0017,
    NAME = 0x0018,
};

constexpr std::size_t MaximoDeEstilos = 2000;  // two cell formats each, of the 4050 that a file may have
constexpr std::size_t MaximoDeNombre = 31;
constexpr std::size_t MenorFlujo = 4096;  // a shorter one would stand elsewhere in its container

/// `nombre` without what the format refuses, at most `maximo` characters long.
std::string NombreAdmitido(const std::string& nombre, std::size_t maximo) {
    std::string admitido;
    for (const char c : nombre) {
        if ((c & 0xC0) != 0x80 && NumeroDeCaracteres(admitido) == maximo) break;
        admitido += std::string_view("[]:*?/\\").find(c) == std::string_view::npos ? c : ' ';
    }
    if (admitido.starts_with('\'')) admitido[0] = ' ';
    if (admitido.ends_with('\'')) admitido.back() = ' ';
    return admitido;
}

/// A name of a sheet that the book does not have yet, in any case.
std::string NombreNuevo(const std::string& deseado, std::set<std::string>& tomados) {
    const bool sinNombre = deseado.empty();
    std::string nombre = sinNombre ? "Hoja1" : NombreAdmitido(deseado, MaximoDeNombre);
    for (int n = 2; !tomados.insert(Mayusculas(nombre)).second; ++n) {
        const std::string numero = sinNombre ? std::to_string(n) : " (" + std::to_string(n) + ")";
        nombre = NombreAdmitido(sinNombre ? "Hoja" : deseado, MaximoDeNombre - numero.size()) + numero;
    }
    return nombre;
}

/// The sheets of the file: one for each of the book, or more where its rows are too many.
std::vector<HojaBiff> Repartir(const std::vector<HojaXls>& hojas) {
    std::vector<HojaBiff> repartidas;
    std::set<std::string> tomados;
    for (const HojaXls& hoja : hojas) {
        std::size_t desde = 0;
        do {
            const std::size_t repetidas = desde == 0 ? 0 : FilasFijasDe(hoja);
            const std::size_t hasta = std::min(hoja.Filas.size(), desde + FilasPorHojaXls - repetidas);
            repartidas.emplace_back(hoja, NombreNuevo(hoja.Nombre, tomados), desde, hasta);
            desde = hasta;
        } while (desde < hoja.Filas.size());
    }
    return repartidas;
}

/// A built-in name of a sheet's rows.
void EscribirNombre(std::string& flujo, std::size_t hoja, std::size_t marcas, std::size_t cual,
                    const RangoXls& rango) {
    const std::string area = Octetos()
                                 .U8(0x3B)  // an area of a sheet
                                 .U16(hoja)
                                 .U16(rango.Fila)
                                 .U16(rango.FilaFinal)
                                 .U16(rango.Columna)
                                 .U16(rango.ColumnaFinal)
                                 .Bytes();
    Octetos nombre;
    nombre.U16(marcas).U8(0).U8(1).U16(area.size()).U16(0).U16(hoja + 1).U32(0);
    nombre.U8(0).U8(cual);
    AgregarRegistro(flujo, NAME, nombre.Crudo(area));
}

/// The heading rows of each sheet as those that its printed pages repeat, and the rows that it filters.
void EscribirNombres(std::string& flujo, const std::vector<HojaBiff>& hojas) {
    const bool hay =
        std::any_of(hojas.begin(), hojas.end(), [](const auto& h) { return h.FilasFijas() > 0; });
    if (!hay) return;
    AgregarRegistro(flujo, SUPBOOK, Octetos().U16(hojas.size()).U16(0x0401));  // this book itself
    Octetos referencias;
    referencias.U16(hojas.size());
    for (std::size_t i = 0; i < hojas.size(); ++i) referencias.U16(0).U16(i).U16(i);
    AgregarRegistro(flujo, EXTERNSHEET, referencias);
    for (std::size_t i = 0; i < hojas.size(); ++i) {
        if (hojas[i].FilasFijas() == 0) continue;
        constexpr std::size_t DelPrograma = 0x20, Oculto = 1, TitulosDePagina = 7, RangoDeFiltro = 13;
        EscribirNombre(flujo, i, DelPrograma, TitulosDePagina,
                       {0, 0, hojas[i].FilasFijas() - 1, ColumnasXls - 1});
        if (const auto filtro = hojas[i].Filtro())
            EscribirNombre(flujo, i, DelPrograma | Oculto, RangoDeFiltro, *filtro);
    }
}

std::string Comienzo(const EstilosBiff& estilos) {
    std::string flujo;
    AgregarRegistro(flujo, BOF,
                    Octetos().U16(0x0600).U16(0x0005).U16(0x0DBB).U16(0x07CC).U32(0xC1).U32(0x0306));
    AgregarRegistro(flujo, CODEPAGE, Octetos().U16(1200));
    AgregarRegistro(flujo, WINDOW1,
                    Octetos().U16(360).U16(270).U16(14940).U16(9150).U16(0x38).U16(0).U16(0).U16(1).U16(600));
    AgregarRegistro(flujo, DATEMODE, Octetos().U16(0));
    estilos.Escribir(flujo);
    return flujo;
}

std::string Directorio(const std::vector<HojaBiff>& hojas, const std::vector<std::size_t>& lugares,
                       std::size_t corrimiento) {
    std::string flujo;
    for (std::size_t i = 0; i < hojas.size(); ++i)
        AgregarRegistro(
            flujo, BOUNDSHEET,
            Octetos().U32(lugares[i] + corrimiento).U16(0).TextoCorto(hojas[i].Nombre(), MaximoDeNombre));
    return flujo;
}

using AntesDeCada = std::function<void(std::size_t hechas, std::size_t total)>;

/// The book's stream, whose directory tells where its sheets begin: all lengths are known before the pictures
/// are read.
void EscribirLibro(const LibroXls& libro, const Salida& salida, const AntesDeCada& antesDeCada) {
    const std::vector<HojaBiff> hojas = Repartir(libro.Hojas);
    const EstilosBiff estilos(libro.Estilos);
    CadenasBiff cadenas;
    ImagenesBiff imagenes;
    for (const HojaBiff& hoja : hojas)
        imagenes.Agregar(hoja.Imagenes(), hoja.Filtro() ? hoja.Filtro()->ColumnaFinal + 1 : 0);

    // Sheets come first, since they make the table of texts that stands before them.
    std::string cuerpo;
    std::vector<std::size_t> lugares;
    lugares.reserve(hojas.size());
    for (std::size_t i = 0; i < hojas.size(); ++i) {
        lugares.push_back(cuerpo.size());
        hojas[i].Escribir(cuerpo, estilos, cadenas, imagenes, i);
    }
    const std::string comienzo = Comienzo(estilos);
    std::string nombres;
    EscribirNombres(nombres, hojas);
    std::string resto;
    cadenas.Escribir(resto);
    AgregarRegistro(resto, FIN, {});
    const std::size_t antes = comienzo.size() + Directorio(hojas, lugares, 0).size() + nombres.size() +
                              imagenes.LargoDelGrupo() + resto.size();
    salida(comienzo + Directorio(hojas, lugares, antes) + nombres);
    imagenes.EscribirGrupo(salida, [&](std::size_t hechas) {
        if (antesDeCada) antesDeCada(hechas, imagenes.Cuantas());
    });
    salida(resto + cuerpo);
    const std::size_t largo = antes + cuerpo.size();
    if (largo < MenorFlujo) salida(std::string(MenorFlujo - largo, '\0'));
}

}  // namespace

std::uint16_t EstiloDe(LibroXls& libro, const EstiloXls& estilo) {
    const auto lugar = std::find(libro.Estilos.begin(), libro.Estilos.end(), estilo);
    const auto numero = static_cast<std::uint16_t>(lugar - libro.Estilos.begin());
    if (lugar == libro.Estilos.end()) libro.Estilos.push_back(estilo);
    return numero;
}

CeldaXls& CeldaEn(HojaXls& hoja, std::size_t fila, std::size_t columna) {
    if (hoja.Filas.size() <= fila) hoja.Filas.resize(fila + 1);
    std::vector<CeldaXls>& celdas = hoja.Filas[fila].Celdas;
    if (celdas.size() <= columna) celdas.resize(columna + 1);
    return celdas[columna];
}

void GuardarXls(const LibroXls& libro, const std::filesystem::path& camino, const AntesDeCada& antesDeCada) {
    if (libro.Estilos.size() > MaximoDeEstilos) throw ErrorEjecucion(CodigoError::Desbordamiento);
    if (libro.Hojas.empty() || libro.Estilos.empty()) {
        LibroXls completo = libro;
        if (completo.Hojas.empty()) completo.Hojas.emplace_back();
        if (completo.Estilos.empty()) completo.Estilos.emplace_back();
        GuardarXls(completo, camino, antesDeCada);
        return;
    }
    ArchivoNuevo archivo(camino);
    archivo.Escribir("");
    EscribirContenedorOle(archivo.Provisional(), "Workbook",
                          [&](const Salida& salida) { EscribirLibro(libro, salida, antesDeCada); },
                          {libro.Titulo, libro.Autor});
    archivo.Colocar();
}

}  // namespace trabex::xls
