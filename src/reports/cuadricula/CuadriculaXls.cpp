#include "reports/cuadricula/CuadriculaXls.h"

#include "reports/salidas/ValorEnXls.h"

namespace trabex::cuadricula {

namespace {

constexpr double PuntosPorMilimetro = 72 / 25.4;
constexpr xls::BordesXls Finos{xls::BordeXls::Fino, xls::BordeXls::Fino, xls::BordeXls::Fino,
                               xls::BordeXls::Fino};

xls::EstiloXls EstiloDeTitulo() {
    return {.Negrita = true,
            .Alineacion = xls::AlineacionXls::Centro,
            .Vertical = xls::VerticalXls::Centro,
            .AjustarTexto = true,
            .Bordes = Finos};
}

/// Titles of groups over their columns; a column without group takes the height of both rows. Tells how many
/// rows they take.
std::size_t PonerTitulos(xls::LibroXls& libro, xls::HojaXls& hoja, const documento::Tabla& tabla) {
    const std::uint16_t estilo = xls::EstiloDe(libro, EstiloDeTitulo());
    const std::size_t filas = tabla.TieneGrupos() ? 2 : 1;
    for (std::size_t c = 0; c < tabla.Columnas.size(); ++c) {
        for (std::size_t f = 0; f < filas; ++f) xls::CeldaEn(hoja, f, c).Estilo = estilo;
        const bool sinGrupo = tabla.Columnas[c].Grupo.empty();
        xls::CeldaEn(hoja, sinGrupo ? 0 : filas - 1, c).Valor = tabla.Columnas[c].Titulo;
        if (sinGrupo && filas > 1) hoja.Combinadas.push_back({0, c, 1, c});
    }
    if (filas == 1) return filas;
    for (const documento::GrupoDeColumnas& grupo : documento::GruposDe(tabla)) {
        if (grupo.Titulo.empty()) continue;
        xls::CeldaEn(hoja, 0, grupo.Desde).Valor = grupo.Titulo;
        if (grupo.Cuantas > 1)
            hoja.Combinadas.push_back({0, grupo.Desde, 0, grupo.Desde + grupo.Cuantas - 1});
    }
    return filas;
}

void PonerFilas(xls::LibroXls& libro, xls::HojaXls& hoja, const documento::Tabla& tabla, std::size_t desde,
                const Separadores& separadores) {
    for (std::size_t f = 0; f < tabla.Filas.size(); ++f) {
        const documento::FilaDeTabla& fila = tabla.Filas[f];
        for (std::size_t c = 0; c < tabla.Columnas.size(); ++c) {
            const documento::ColumnaDeTabla& columna = tabla.Columnas[c];
            const std::vector<almacen::Valor>& celdas = fila.Celdas;
            salidas::ValorEnXls contenido = salidas::ValorDeCelda(
                c < celdas.size() ? celdas[c] : almacen::Valor(), columna.Formato, "", separadores);
            xls::EstiloXls estilo;
            estilo.Formato = contenido.Formato;
            estilo.Alineacion = salidas::LadoEnXls(tabla.Lado(fila, c));
            estilo.AjustarTexto = true;
            estilo.Bordes = Finos;
            xls::CeldaXls& celda = xls::CeldaEn(hoja, desde + f, c);
            celda.Valor = std::move(contenido.Valor);
            celda.Estilo = xls::EstiloDe(libro, estilo);
            if (const std::size_t abarca = tabla.Abarca(fila, c); abarca > 1)
                hoja.Combinadas.push_back({desde + f, c, desde + f, c + abarca - 1});
        }
    }
}

}  // namespace

xls::LibroXls LibroDe(const Cuadricula& cuadricula) {
    xls::LibroXls libro;
    for (std::size_t i = 0; i < cuadricula.Hojas.size(); ++i) {
        const documento::Tabla tabla = ConCabeceras(cuadricula, cuadricula.Hojas[i]);
        xls::HojaXls hoja;
        hoja.Nombre = i == 0 ? NombreDeHojaXls : "Hoja" + std::to_string(i + 1);
        for (const documento::ColumnaDeTabla& columna : tabla.Columnas)
            hoja.Anchos.push_back(columna.Ancho * PuntosPorMilimetro);
        hoja.FilasFijas = PonerTitulos(libro, hoja, tabla);
        PonerFilas(libro, hoja, tabla, hoja.FilasFijas, cuadricula.Locales);
        libro.Hojas.push_back(std::move(hoja));
    }
    return libro;
}

void EscribirXls(const Cuadricula& cuadricula, const std::filesystem::path& destino) {
    xls::GuardarXls(LibroDe(cuadricula), destino);
}

}  // namespace trabex::cuadricula
