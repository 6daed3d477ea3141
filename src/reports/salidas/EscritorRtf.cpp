#include "reports/salidas/EscritorRtf.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

#include "base/Archivos.h"
#include "base/Texto.h"
#include "reports/salidas/ImagenPng.h"

namespace trabex::salidas {

namespace {

/// Twips, 1/1440 inch, the format's own unit.
int Twips(double milimetros) {
    return static_cast<int>(std::lround(milimetros / 25.4 * 1440));
}

/// A control word with its number.
std::string Orden(std::string_view palabra, int numero) {
    return "\\" + std::string(palabra) + std::to_string(numero);
}

std::string UnidadUtf16(std::uint32_t unidad) {
    return Orden("u", static_cast<std::int16_t>(unidad)) + "?";
}

std::string Caracter(char32_t c) {
    if (c == '\n') return "\\line ";
    if (c == static_cast<char32_t>(documento::MarcaPagina))
        return "{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}";
    if (c == static_cast<char32_t>(documento::MarcaPaginas))
        return "{\\field{\\*\\fldinst NUMPAGES}{\\fldrslt 1}}";
    if (c == '\\' || c == '{' || c == '}') return {'\\', static_cast<char>(c)};
    if (c < 0x80) return {static_cast<char>(c)};
    if (c >= 0xA0 && c <= 0xFF) {
        constexpr std::string_view cifras = "0123456789abcdef";
        return {'\\', '\'', cifras[c >> 4], cifras[c & 15]};
    }
    if (c < 0x10000) return UnidadUtf16(c);
    return UnidadUtf16(0xD7C0 + (c >> 10)) + UnidadUtf16(0xDC00 + (c & 0x3FF));
}

std::string Escapado(std::string_view texto) {
    std::string salida;
    while (!texto.empty()) salida += Caracter(TomarCaracter(texto));
    return salida;
}

void AgregarLetras(std::string& salida, std::string_view texto) {
    if (EsLlano(texto, "\\{}"))
        salida += texto;
    else
        salida += Escapado(texto);
}

std::string Hexadecimal(const almacen::Bytes& bytes) {
    constexpr std::string_view cifras = "0123456789abcdef";
    std::string salida;
    salida.reserve(bytes.size() * 2 + bytes.size() / 64 + 1);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = std::to_integer<std::size_t>(bytes[i]);
        salida += cifras[byte >> 4];
        salida += cifras[byte & 15];
        if (i % 64 == 63) salida += '\n';
    }
    return salida;
}

/// The document's blocks as Rich Text.
class TextoRico {
  public:
    explicit TextoRico(const documento::Documento& documento)
        : documento_(documento), util_(documento::MedidaUtil(documento.Papel)) {}

    std::string Principio() const;
    std::string Bloque(const trabex::documento::Bloque& bloque) const {
        return std::visit([this](const auto& b) { return De(b); }, bloque);
    }
    std::string De(const documento::Indice& indice) const;
    std::string De(const documento::SaltoDePagina&) const { return "{\\pard\\fs2\\page\\par}\n"; }

  private:
    std::string De(const documento::Titulo& titulo) const;
    std::string De(const documento::Parrafo& parrafo) const {
        return "{\\pard\\sb60\\sa60" + Letra(1) + (parrafo.Destacado ? "\\b " : " ") +
               Escapado(parrafo.Texto) + "\\par}\n";
    }
    std::string De(const documento::Ficha& ficha) const;
    std::string De(const documento::Tabla& tabla) const;
    std::string De(const documento::Imagen& imagen) const;

    std::string Letra(double proporcion) const {
        return "\\f0" + Orden("fs", static_cast<int>(std::lround(2 * documento_.Letra * proporcion)));
    }
    std::string Banda(std::string_view destino, const documento::BandaDePagina& banda) const;
    std::string Cabecera(const documento::Tabla& tabla, const std::vector<int>& limites) const;
    static std::string Bordes(const documento::Tabla& tabla, const documento::FilaDeTabla& fila,
                              const std::vector<int>& limites);
    double AnchoDeRotulos(const documento::Ficha& ficha, std::size_t columna, double paso) const;

    const documento::Documento& documento_;
    documento::MedidaPagina util_;
};

constexpr std::array<std::string_view, 3> Lados{"\\ql", "\\qc", "\\qr"};
constexpr std::string_view FilaNueva = "\\trowd\\trgaph45\\trkeep";
constexpr std::string_view BordesDeTitulo =
    "\\clbrdrt\\brdrs\\brdrw5\\clbrdrl\\brdrs\\brdrw5\\clbrdrb\\brdrs\\brdrw5\\clbrdrr\\brdrs\\brdrw5"
    "\\clcbpat1\\clvertalb";
constexpr std::string_view BordeDeFila = "\\clbrdrb\\brdrs\\brdrw5\\brdrcf2";
constexpr std::string_view BordeDeTotal = "\\clbrdrt\\brdrs\\brdrw10";
constexpr std::string_view Celda = "\\pard\\intbl\\sb15\\sa15";
constexpr std::string_view FinDeTabla = "\\pard\\fs8\\par}\n";
constexpr double AnchoDeCaracter = 0.19;  // of a point of font size, in mm, generously
constexpr std::array<double, 3> ProporcionDeTitulo{1.5, 1.2, 1.05};

std::string TextoRico::Principio() const {
    const documento::Pagina& hoja = documento_.Papel;
    const documento::MedidaPagina medida = documento::MedidaDe(hoja);
    std::string salida =
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\\deflang3082\n"
        "{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}}\n"
        "{\\colortbl;\\red230\\green237\\blue244;\\red185\\green198\\blue211;\\red47\\green93\\blue138;}\n"
        "{\\stylesheet{\\s0 Normal;}{\\s1\\outlinelevel0 heading 1;}{\\s2\\outlinelevel1 heading 2;}"
        "{\\s3\\outlinelevel2 heading 3;}}\n";
    salida += "{\\info{\\title " + Escapado(documento_.Titulo) + "}{\\author " + Escapado(documento_.Autor) +
              "}}\n";
    for (const auto& [palabra, milimetros] :
         {std::pair("paperw", medida.Ancho), std::pair("paperh", medida.Alto),
          std::pair("margl", hoja.MargenIzquierdo), std::pair("margr", hoja.MargenDerecho),
          std::pair("margt", hoja.MargenSuperior), std::pair("margb", hoja.MargenInferior),
          std::pair("headery", hoja.MargenSuperior * 0.6), std::pair("footery", hoja.MargenInferior * 0.6)})
        salida += Orden(palabra, Twips(milimetros));
    if (hoja.Apaisada) salida += "\\landscape";
    return salida + "\n" + Banda("header", hoja.Encabezado) + Banda("footer", hoja.Pie);
}

std::string TextoRico::Banda(std::string_view destino, const documento::BandaDePagina& banda) const {
    if (banda.Izquierda.empty() && banda.Centro.empty() && banda.Derecha.empty()) return {};
    return "{\\" + std::string(destino) + "\\pard" + Orden("tqc\\tx", Twips(util_.Ancho / 2)) +
           Orden("tqr\\tx", Twips(util_.Ancho)) + Letra(0.85) + " " + Escapado(banda.Izquierda) + "\\tab " +
           Escapado(banda.Centro) + "\\tab " + Escapado(banda.Derecha) + "\\par}\n";
}

/// A table of contents that word processors bring up to date, page numbers included; until then, the names.
std::string TextoRico::De(const documento::Indice& indice) const {
    std::string salida = "{\\pard" + Letra(1) + "{\\field{\\*\\fldinst TOC \\\\o \"1-2\"}{\\fldrslt ";
    for (const std::string& nombre : documento_.SeccionesTras(indice)) salida += Escapado(nombre) + "\\par\n";
    return salida + "}}\\par}\n";
}

std::string TextoRico::De(const documento::Titulo& titulo) const {
    return "{\\pard" + Orden("s", titulo.Nivel) + Orden("outlinelevel", titulo.Nivel - 1) +
           "\\keepn\\sb160\\sa60\\b\\cf3" +
           Letra(ProporcionDeTitulo[static_cast<std::size_t>(titulo.Nivel - 1)]) + " " +
           Escapado(titulo.Texto) + "\\par}\n";
}

/// Room for the names of a column of pairs: as the longest needs, less what its values need.
double TextoRico::AnchoDeRotulos(const documento::Ficha& ficha, std::size_t columna, double paso) const {
    double rotulo = 0;
    double valor = 0;
    const double caracter = AnchoDeCaracter * documento_.Letra;
    for (std::size_t i = columna; i < ficha.Datos.size(); i += static_cast<std::size_t>(ficha.Columnas)) {
        const documento::Ficha::Dato& dato = ficha.Datos[i];
        const std::string texto =
            documento::TextoDeValor(dato.Contenido, dato.Formato, documento_.Locales) + dato.Unidad;
        rotulo = std::max(rotulo, caracter * static_cast<double>(NumeroDeCaracteres(dato.Rotulo) + 2));
        valor = std::max(valor, 1.15 * caracter * static_cast<double>(NumeroDeCaracteres(texto) + 2));
    }
    return std::min(rotulo, std::max(paso - valor, 0.4 * paso));
}

std::string TextoRico::De(const documento::Ficha& ficha) const {
    const auto columnas = static_cast<std::size_t>(ficha.Columnas);
    const double paso = util_.Ancho / static_cast<double>(columnas);
    std::string salida = "{" + Letra(1) + "\n";
    for (std::size_t primero = 0; primero < ficha.Datos.size(); primero += columnas) {
        std::string celdas;
        salida += FilaNueva;
        for (std::size_t k = 0; k < columnas; ++k) {
            const double izquierda = paso * static_cast<double>(k);
            salida += Orden("cellx", Twips(izquierda + AnchoDeRotulos(ficha, k, paso))) +
                      Orden("cellx", Twips(izquierda + paso));
            const bool hay = primero + k < ficha.Datos.size();
            const documento::Ficha::Dato dato = hay ? ficha.Datos[primero + k] : documento::Ficha::Dato{};
            std::string valor = documento::TextoDeValor(dato.Contenido, dato.Formato, documento_.Locales);
            if (!valor.empty() && !dato.Unidad.empty()) valor += " " + dato.Unidad;
            celdas += std::string(Celda) + "\\ql " + Escapado(dato.Rotulo) + "\\cell" + std::string(Celda) +
                      "\\ql{\\b " + Escapado(valor) + "}\\cell";
        }
        salida += celdas + "\\row\n";
    }
    return salida + std::string(FinDeTabla);
}

std::string TextoRico::Cabecera(const documento::Tabla& tabla, const std::vector<int>& limites) const {
    std::string salida;
    if (tabla.TieneGrupos()) {
        std::string celdas;
        salida += std::string(FilaNueva) + "\\trhdr";
        for (const documento::GrupoDeColumnas& grupo : documento::GruposDe(tabla)) {
            salida += std::string(BordesDeTitulo) + Orden("cellx", limites[grupo.Desde + grupo.Cuantas - 1]);
            celdas += "\\pard\\intbl\\keepn\\sb15\\sa15\\qc{\\b " + Escapado(grupo.Titulo) + "}\\cell";
        }
        salida += celdas + "\\row\n";
    }
    std::string celdas;
    salida += std::string(FilaNueva) + "\\trhdr";
    for (std::size_t i = 0; i < limites.size(); ++i) {
        salida += std::string(BordesDeTitulo) + Orden("cellx", limites[i]);
        celdas +=
            "\\pard\\intbl\\keepn\\sb15\\sa15\\qc{\\b " + Escapado(tabla.Columnas[i].Titulo) + "}\\cell";
    }
    return salida + celdas + "\\row\n";
}

/// How a row begins: where its cells end, and their rules.
std::string TextoRico::Bordes(const documento::Tabla& tabla, const documento::FilaDeTabla& fila,
                              const std::vector<int>& limites) {
    std::string salida{FilaNueva};
    for (std::size_t i = 0; i < limites.size(); i += tabla.Abarca(fila, i)) {
        salida += fila.Destacada ? BordeDeTotal : BordeDeFila;
        salida += Orden("cellx", limites[i + tabla.Abarca(fila, i) - 1]);
    }
    return salida;
}

std::string TextoRico::De(const documento::Tabla& tabla) const {
    std::vector<int> limites;
    double derecha = 0;
    for (const double ancho : tabla.Anchos(util_.Ancho)) limites.push_back(Twips(derecha += ancho));
    std::string salida = "{" + Letra(0.95) + "\n" + Cabecera(tabla, limites);
    const std::string usuales = Bordes(tabla, {}, limites);
    for (const documento::FilaDeTabla& fila : tabla.Filas) {
        salida += fila.Destacada || fila.Rotulo ? Bordes(tabla, fila, limites) : usuales;
        // A cell is like the one before it, but for what is told: of many rows, most would be told again.
        salida += Celda;
        if (fila.Destacada) salida += "\\b";
        const std::string_view* lado = nullptr;
        for (std::size_t i = 0; i < limites.size(); i += tabla.Abarca(fila, i)) {
            const std::string_view* suyo = &Lados[static_cast<std::size_t>(tabla.Lado(fila, i))];
            if (suyo != lado) salida += *suyo;
            lado = suyo;
            if (i < fila.Celdas.size()) {
                salida += ' ';
                AgregarLetras(salida, documento::TextoDeValor(fila.Celdas[i], tabla.Columnas[i].Formato,
                                                              documento_.Locales));
            }
            salida += "\\cell";
        }
        salida += fila.Destacada ? "\\b0\\row\n" : "\\row\n";
    }
    return salida + std::string(FinDeTabla);
}

std::string TextoRico::De(const documento::Imagen& imagen) const {
    std::string salida = "{\\pard\\qc\\keepn\\sb120" + Letra(1) + " ";
    if (const auto foto = Comprimida(imagen.Leer())) {
        const documento::MedidaPagina medida = documento::MedidaDe(imagen, foto->Ancho, foto->Alto, util_);
        salida += "{\\pict" + std::string(foto->EsJpeg ? "\\jpegblip" : "\\pngblip") +
                  Orden("picw", static_cast<int>(foto->Ancho)) + Orden("pich", static_cast<int>(foto->Alto)) +
                  Orden("picwgoal", Twips(medida.Ancho)) + Orden("pichgoal", Twips(medida.Alto)) + "\n" +
                  Hexadecimal(foto->Archivo) + "}";
    } else {
        salida += Escapado(documento::ImagenIlegible);
    }
    return salida + "\\par}\n{\\pard\\qc\\sa120\\i" + Letra(1) + " " + Escapado(imagen.Pie) + "\\par}\n";
}

}  // namespace

void EscribirRtf(const documento::Documento& documento, const std::filesystem::path& destino,
                 const Avance& avance) {
    ArchivoNuevo archivo(destino);
    const TextoRico texto(documento);
    archivo.Escribir(texto.Principio());
    for (std::size_t i = 0; i < documento.Secciones.size(); ++i) {
        const documento::Seccion& seccion = documento.Secciones[i];
        Avisar(avance, i, documento.Secciones.size());
        // No word processor keeps several tables together: a section that must stay whole begins a page.
        if (i > 0 && (seccion.PaginaNueva || seccion.Junta))
            archivo.Escribir(texto.De(documento::SaltoDePagina{}));
        for (const documento::Bloque& bloque : seccion.Bloques) archivo.Escribir(texto.Bloque(bloque));
    }
    archivo.Escribir("}\n");
    archivo.Colocar();
}

}  // namespace trabex::salidas
