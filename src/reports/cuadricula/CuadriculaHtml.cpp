#include "reports/cuadricula/CuadriculaHtml.h"

#include <array>
#include <string_view>

#include "base/Archivos.h"
#include "base/Marcado.h"

namespace trabex::cuadricula {

namespace {

constexpr std::string_view Principio =
    "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\" \"http://www.w3.org/TR/html4/strict.dtd\">\n"
    "<html lang=\"es\">\n<head>\n"
    "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\">\n"
    "<title>Reporte</title>\n<style type=\"text/css\">\n"
    "body { font-family: Arial, Helvetica, sans-serif; font-size: 10pt; color: #1a1a1a; margin: 1.5em }\n"
    "table { border-collapse: collapse; margin-bottom: 1.5em }\n"
    "th, td { padding: .15em .5em }\n"
    "thead { display: table-header-group }\n"
    "tr { page-break-inside: avoid }\n"
    "td.i { text-align: left }\ntd.c { text-align: center }\ntd.d { text-align: right }\n"
    "tbody th { text-align: left; font-weight: normal }\n"
    "</style>\n</head>\n<body>\n";

/// A line feed of a cell stays one.
std::string Texto(const std::string& texto) {
    std::string salida;
    for (const char c : TextoDeMarcado(texto)) salida += c == '\n' ? std::string("<br>") : std::string(1, c);
    return salida;
}

std::string Titulos(const documento::Tabla& tabla) {
    std::string salida = "<thead>\n";
    const bool grupos = tabla.TieneGrupos();
    if (grupos) {
        salida += "<tr><th rowspan=\"2\"></th>";
        for (const documento::GrupoDeColumnas& grupo : documento::GruposDe(tabla))
            salida +=
                "<th colspan=\"" + std::to_string(grupo.Cuantas) + "\">" + Texto(grupo.Titulo) + "</th>";
        salida += "</tr>\n";
    }
    salida += grupos ? "<tr>" : "<tr><th></th>";
    for (const documento::ColumnaDeTabla& columna : tabla.Columnas)
        salida += "<th scope=\"col\">" + Texto(columna.Titulo) + "</th>";
    return salida + "</tr>\n</thead>\n";
}

std::string Tabla(const HojaDeCuadricula& hoja, const Separadores& separadores, bool conBorde) {
    constexpr std::array<std::string_view, 3> lados{"<td class=\"i\"", "<td class=\"c\"", "<td class=\"d\""};
    const documento::Tabla& tabla = hoja.Celdas;
    std::string salida = "<table border=\"" + std::string(conBorde ? "1" : "0") + "\" summary=\"" +
                         TextoDeMarcado(hoja.Nombre) + "\">\n" + Titulos(tabla) + "<tbody>\n";
    // A table's body has a row at least.
    if (tabla.Filas.empty())
        salida += "<tr><td colspan=\"" + std::to_string(tabla.Columnas.size() + 1) + "\"></td></tr>\n";
    for (std::size_t f = 0; f < tabla.Filas.size(); ++f) {
        salida += "<tr><th scope=\"row\">" + Texto(hoja.Cabecera(f)) + "</th>";
        const documento::FilaDeTabla& fila = tabla.Filas[f];
        for (std::size_t c = 0; c < tabla.Columnas.size(); c += tabla.Abarca(fila, c)) {
            const std::size_t abarca = tabla.Abarca(fila, c);
            salida += lados[static_cast<std::size_t>(tabla.Lado(fila, c))];
            salida += abarca > 1 ? " colspan=\"" + std::to_string(abarca) + "\">" : ">";
            salida += Texto(TextoDeCelda(tabla, f, c, separadores)) + "</td>";
        }
        salida += "</tr>\n";
    }
    return salida + "</tbody>\n</table>\n";
}

}  // namespace

void EscribirHtml(const Cuadricula& cuadricula, bool conBorde, const std::filesystem::path& destino) {
    std::string texto(Principio);
    for (const HojaDeCuadricula& hoja : cuadricula.Hojas) texto += Tabla(hoja, cuadricula.Locales, conBorde);
    if (cuadricula.Hojas.empty()) texto += "<p>&nbsp;</p>\n";  // a page has something
    EscribirArchivo(destino, texto + "</body>\n</html>\n");
}

}  // namespace trabex::cuadricula
