#include "reports/salidas/EscritorHtml.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <string_view>

#include <glib.h>

#include "base/Archivos.h"
#include "base/Formatos.h"
#include "base/Marcado.h"
#include "base/Texto.h"
#include "reports/salidas/ImagenPng.h"

namespace trabex::salidas {

namespace {

constexpr double PixelesPorMilimetro = 96 / 25.4;

constexpr std::string_view Estilo = R"(
body { font-family: Arial, Helvetica, sans-serif; font-size: 10pt; color: #1a1a1a; margin: 1.5em auto; max-width: 70em; padding: 0 1em }
h1 { font-size: 150%; border-bottom: 2px solid #2f5d8a; padding-bottom: .2em }
h2 { font-size: 120%; color: #2f5d8a; margin-bottom: .4em }
h3 { font-size: 105%; margin-bottom: .3em }
table { border-collapse: collapse; margin: .4em 0 1em 0 }
thead { display: table-header-group }
tr { page-break-inside: avoid }
table.datos th { background-color: #e6edf4; font-weight: bold; text-align: center; vertical-align: bottom; padding: .2em .5em; border: 1px solid #b9c6d3 }
table.datos td { text-align: right; padding: .15em .5em; border-bottom: 1px solid #d9dfe5; white-space: nowrap }
table.datos td.i, table.ficha td { text-align: left; white-space: normal }
table.datos td.c { text-align: center }
tr.total td { font-weight: bold; border-top: 1px solid #1a1a1a }
table.ficha th { text-align: left; font-weight: normal; color: #555555; padding: .1em .8em .1em 0; vertical-align: top }
table.ficha td { padding: .1em 2em .1em 0; font-weight: bold }
ul.indice { column-width: 14em; padding-left: 1.2em }
div.imagen { text-align: center; margin: 1em 0; page-break-inside: avoid }
div.imagen img { max-width: 100%; height: auto }
p.pie { font-style: italic; margin: .3em 0 }
p.banda { color: #555555; font-size: 90%; border-bottom: 1px solid #d9dfe5; padding-bottom: .3em }
@media print {
  body { max-width: none; margin: 0; padding: 0; font-size: 9pt }
  p.banda { break-after: avoid }
  h3 { margin-top: .8em }
  table { margin-bottom: .6em }
  table.datos td { padding: .05em .5em }
  div.pagina { page-break-before: always }
  div.junta { page-break-inside: avoid; break-inside: avoid }
  h1, h2, h3 { page-break-after: avoid; break-after: avoid }
  body > ul.indice { display: none }
}
)";

/// A line feed of a text stays one.
std::string Escapado(std::string_view texto) {
    std::string salida;
    salida.reserve(texto.size());
    for (const char c : TextoDeMarcado(texto)) {
        if (c == '\n')
            salida += "<br>";
        else
            salida += c;
    }
    return salida;
}

void AgregarMarcado(std::string& salida, std::string_view texto) {
    if (EsLlano(texto, "&<>\""))
        salida += texto;
    else
        salida += Escapado(texto);
}

/// The sheet and its margins, for printing.
std::string HojaImpresa(const documento::Pagina& papel) {
    const documento::MedidaPagina hoja = documento::MedidaDe(papel);
    const auto milimetros = [](double medida) { return " " + Formato(medida, "0.0", {"", "."}) + "mm"; };
    return "@page { size:" + milimetros(hoja.Ancho) + milimetros(hoja.Alto) +
           "; margin:" + milimetros(papel.MargenSuperior) + milimetros(papel.MargenDerecho) +
           milimetros(papel.MargenInferior) + milimetros(papel.MargenIzquierdo) + " }\n";
}

/// For an attribute: without markup of line breaks.
std::string Atributo(std::string texto) {
    for (char& c : texto) c = c == '\n' ? ' ' : c;
    return Escapado(texto);
}

std::string Base64(const almacen::Bytes& bytes) {
    const std::unique_ptr<gchar, decltype(&g_free)> texto(
        g_base64_encode(reinterpret_cast<const guchar*>(bytes.data()), bytes.size()), &g_free);
    return texto.get();
}

/// The document's blocks as markup.
class PaginaHtml {
  public:
    explicit PaginaHtml(const documento::Documento& documento) : documento_(documento) {}

    std::string Principio() const;
    std::string Bloque(const trabex::documento::Bloque& bloque) const {
        return std::visit([this](const auto& b) { return De(b); }, bloque);
    }

  private:
    std::string De(const documento::Titulo& titulo) const {
        const std::string nivel = "h" + std::to_string(titulo.Nivel);
        return "<" + nivel + ">" + Escapado(titulo.Texto) + "</" + nivel + ">\n";
    }
    std::string De(const documento::Parrafo& parrafo) const {
        const std::string texto = Escapado(parrafo.Texto);
        return parrafo.Destacado ? "<p><strong>" + texto + "</strong></p>\n" : "<p>" + texto + "</p>\n";
    }
    std::string De(const documento::Indice&) const { return Indice(); }
    std::string De(const documento::SaltoDePagina&) const { return "<div class=\"pagina\"></div>\n"; }
    std::string De(const documento::Ficha& ficha) const;
    std::string De(const documento::Tabla& tabla) const;
    std::string De(const documento::Imagen& imagen) const;
    void Fila(std::string& salida, const documento::Tabla& tabla, const documento::FilaDeTabla& fila) const;
    std::string Banda() const;
    std::string Indice() const;
    bool TieneIndice() const;

    const documento::Documento& documento_;
};

std::string PaginaHtml::Principio() const {
    const std::string titulo = documento_.Titulo.empty() ? "Reporte" : documento_.Titulo;
    return "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\" \"http://www.w3.org/TR/html4/strict.dtd\">\n"
           "<html lang=\"es\">\n<head>\n"
           "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\">\n"
           "<meta name=\"author\" content=\"" +
           Atributo(documento_.Autor) + "\">\n<title>" + Atributo(titulo) +
           "</title>\n<style type=\"text/css\">" + std::string(Estilo) + HojaImpresa(documento_.Papel) +
           "</style>\n</head>\n<body>\n" + Banda() + (TieneIndice() ? "" : Indice());
}

bool PaginaHtml::TieneIndice() const {
    return std::any_of(documento_.Secciones.begin(), documento_.Secciones.end(), [](const auto& seccion) {
        return std::any_of(seccion.Bloques.begin(), seccion.Bloques.end(), [](const auto& bloque) {
            return std::holds_alternative<documento::Indice>(bloque);
        });
    });
}

/// The header's texts, once; those that count pages have no meaning here.
std::string PaginaHtml::Banda() const {
    const documento::BandaDePagina& banda = documento_.Papel.Encabezado;
    std::string salida;
    for (const std::string* texto : {&banda.Izquierda, &banda.Centro, &banda.Derecha}) {
        const bool cuenta = texto->find(documento::MarcaPagina) != std::string::npos ||
                            texto->find(documento::MarcaPaginas) != std::string::npos;
        if (texto->empty() || cuenta) continue;
        if (!salida.empty()) salida += " &mdash; ";
        salida += Escapado(*texto);
    }
    return salida.empty() ? salida : "<p class=\"banda\">" + salida + "</p>\n";
}

std::string PaginaHtml::Indice() const {
    if (documento_.Secciones.size() < 2) return {};
    std::string salida = "<ul class=\"indice\">\n";
    for (std::size_t i = 0; i < documento_.Secciones.size(); ++i)
        salida += "<li><a href=\"#s" + std::to_string(i + 1) + "\">" +
                  Escapado(documento_.Secciones[i].Nombre) + "</a></li>\n";
    return salida + "</ul>\n";
}

std::string PaginaHtml::De(const documento::Ficha& ficha) const {
    if (ficha.Datos.empty()) return {};
    std::string salida = "<table class=\"ficha\" summary=\"Datos\">\n";
    const auto columnas = static_cast<std::size_t>(ficha.Columnas);
    for (std::size_t i = 0; i < ficha.Datos.size(); ++i) {
        const documento::Ficha::Dato& dato = ficha.Datos[i];
        std::string valor =
            Escapado(documento::TextoDeValor(dato.Contenido, dato.Formato, documento_.Locales));
        if (!valor.empty() && !dato.Unidad.empty()) valor += " " + Escapado(dato.Unidad);
        if (i % columnas == 0) salida += i == 0 ? "<tr>" : "</tr>\n<tr>";
        salida += "<th scope=\"row\">" + Escapado(dato.Rotulo) + "</th><td>" + valor + "</td>";
    }
    return salida + "</tr>\n</table>\n";
}

void PaginaHtml::Fila(std::string& salida, const documento::Tabla& tabla,
                      const documento::FilaDeTabla& fila) const {
    constexpr std::array<std::string_view, 3> lados{"<td class=\"i\"", "<td class=\"c\"", "<td"};
    salida += fila.Destacada ? "<tr class=\"total\">" : "<tr>";
    for (std::size_t i = 0; i < tabla.Columnas.size(); i += tabla.Abarca(fila, i)) {
        const std::size_t abarca = tabla.Abarca(fila, i);
        salida += lados[static_cast<std::size_t>(tabla.Lado(fila, i))];
        if (abarca > 1) salida += " colspan=\"" + std::to_string(abarca) + "\"";
        salida += '>';
        if (i < fila.Celdas.size())
            AgregarMarcado(salida, documento::TextoDeValor(fila.Celdas[i], tabla.Columnas[i].Formato,
                                                           documento_.Locales));
        salida += "</td>";
    }
    salida += "</tr>\n";
}

std::string PaginaHtml::De(const documento::Tabla& tabla) const {
    std::string salida = "<table class=\"datos\" summary=\"Resultados\">\n<thead>\n";
    if (tabla.TieneGrupos()) {
        salida += "<tr>";
        for (const documento::GrupoDeColumnas& grupo : documento::GruposDe(tabla))
            salida +=
                "<th colspan=\"" + std::to_string(grupo.Cuantas) + "\">" + Escapado(grupo.Titulo) + "</th>";
        salida += "</tr>\n";
    }
    salida += "<tr>";
    for (const documento::ColumnaDeTabla& columna : tabla.Columnas)
        salida += "<th scope=\"col\">" + Escapado(columna.Titulo) + "</th>";
    salida += "</tr>\n</thead>\n<tbody>\n";
    for (const documento::FilaDeTabla& fila : tabla.Filas) Fila(salida, tabla, fila);
    return salida + "</tbody>\n</table>\n";
}

std::string PaginaHtml::De(const documento::Imagen& imagen) const {
    std::string salida = "<div class=\"imagen\">";
    if (const auto foto = Comprimida(imagen.Leer())) {
        const documento::MedidaPagina medida =
            documento::MedidaDe(imagen, foto->Ancho, foto->Alto, documento::MedidaUtil(documento_.Papel));
        salida += "<img alt=\"" + Atributo(imagen.Pie) + "\" width=\"" +
                  std::to_string(static_cast<int>(medida.Ancho * PixelesPorMilimetro)) + "\" height=\"" +
                  std::to_string(static_cast<int>(medida.Alto * PixelesPorMilimetro)) +
                  "\" src=\"data:image/" + (foto->EsJpeg ? "jpeg" : "png") + ";base64," +
                  Base64(foto->Archivo) + "\">";
    } else {
        salida += documento::ImagenIlegible;
    }
    if (!imagen.Pie.empty()) salida += "<p class=\"pie\">" + Escapado(imagen.Pie) + "</p>";
    return salida + "</div>\n";
}

}  // namespace

void EscribirHtml(const documento::Documento& documento, const std::filesystem::path& destino,
                  const Avance& avance) {
    ArchivoNuevo archivo(destino);
    const PaginaHtml pagina(documento);
    archivo.Escribir(pagina.Principio());
    for (std::size_t i = 0; i < documento.Secciones.size(); ++i) {
        const documento::Seccion& seccion = documento.Secciones[i];
        Avisar(avance, i, documento.Secciones.size());
        const bool aparte = seccion.PaginaNueva && i > 0;
        const std::string clase = std::string(aparte ? " pagina" : "") + (seccion.Junta ? " junta" : "");
        archivo.Escribir("<div id=\"s" + std::to_string(i + 1) +
                         (clase.empty() ? "\">\n" : "\" class=\"" + clase.substr(1) + "\">\n"));
        for (const documento::Bloque& bloque : seccion.Bloques) archivo.Escribir(pagina.Bloque(bloque));
        archivo.Escribir("</div>\n");
    }
    archivo.Escribir("</body>\n</html>\n");
    archivo.Colocar();
}

}  // namespace trabex::salidas
