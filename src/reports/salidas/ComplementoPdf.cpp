#include "reports/salidas/ComplementoPdf.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <map>
#include <optional>
#include <utility>

#include "base/Texto.h"

namespace trabex::salidas {

namespace {

using std::size_t;

/// The number that stands after a word of the file, from a place on.
std::optional<size_t> NumeroTras(std::string_view pdf, std::string_view palabra, size_t desde) {
    size_t lugar = pdf.find(palabra, desde);
    if (lugar == std::string_view::npos) return std::nullopt;
    lugar = pdf.find_first_not_of(" \r\n", lugar + palabra.size());
    if (lugar == std::string_view::npos) return std::nullopt;
    size_t numero = 0;
    const auto leido = std::from_chars(pdf.data() + lugar, pdf.data() + pdf.size(), numero);
    return leido.ec == std::errc() ? std::optional(numero) : std::nullopt;
}

/// A text as PDF takes any: UTF-16 in hexadecimal.
std::string Texto(std::string_view texto) {
    std::string salida = "<FEFF";
    const auto unidad = [&salida](std::uint32_t valor) {
        std::array<char, 5> cifras{};
        std::snprintf(cifras.data(), cifras.size(), "%04X", valor & 0xFFFFU);
        salida += cifras.data();
    };
    while (!texto.empty()) {
        const char32_t c = TomarCaracter(texto);
        if (c >= 0x10000) unidad(0xD7C0 + (c >> 10));
        unidad(c >= 0x10000 ? 0xDC00 + (c & 0x3FF) : c);
    }
    return salida + ">";
}

/// A PDF file as far as additions to it need to know it.
class Archivo {
  public:
    /// False when it is not one with a plain table of objects.
    bool Abrir(std::string_view pdf) {
        pdf_ = pdf;
        const size_t fin = pdf.rfind("startxref");
        const size_t remate = pdf.rfind("trailer");
        if (fin == std::string_view::npos || remate == std::string_view::npos) return false;
        const auto tabla = NumeroTras(pdf, "startxref", fin);
        const auto objetos = NumeroTras(pdf, "/Size", remate);
        const auto raiz = NumeroTras(pdf, "/Root", remate);
        const auto ficha = NumeroTras(pdf, "/Info", remate);
        if (!tabla || !objetos || !raiz || !ficha || *tabla >= pdf.size()) return false;
        Tabla = *tabla;
        Objetos = *objetos;
        Raiz = *raiz;
        Ficha = *ficha;
        const std::string principio = "xref\n0 " + std::to_string(Objetos);
        if (!pdf.substr(Tabla).starts_with(principio)) return false;
        entradas_ = pdf.find('\n', Tabla + principio.size()) + 1;
        return entradas_ != 0 && Paginas();
    }

    /// What stands between the outer brackets of an object. Empty when it is not found.
    std::string_view Contenido(size_t objeto) const {
        constexpr size_t largoDeEntrada = 20;
        const auto lugar = NumeroTras(pdf_, "", entradas_ + objeto * largoDeEntrada);
        if (objeto >= Objetos || !lugar || *lugar >= pdf_.size()) return {};
        const size_t desde = pdf_.find("<<", *lugar);
        const size_t fin = pdf_.find("endobj", *lugar);
        if (desde == std::string_view::npos || fin == std::string_view::npos || desde > fin) return {};
        const size_t hasta = pdf_.rfind(">>", fin);
        return hasta == std::string_view::npos || hasta < desde ? std::string_view()
                                                                : pdf_.substr(desde + 2, hasta - desde - 2);
    }

    size_t Tabla = 0;    ///< where the table of objects stands
    size_t Objetos = 0;  ///< how many it has
    size_t Raiz = 0;     ///< number of the object from which all are reached
    size_t Ficha = 0;    ///< number of that of title and author
    std::vector<size_t> NumerosDePagina;

  private:
    bool Paginas() {
        const auto arbol = NumeroTras(Contenido(Raiz), "/Pages", 0);
        if (!arbol) return false;
        const std::string_view contenido = Contenido(*arbol);
        const size_t desde = contenido.find('[');
        const size_t hasta = contenido.find(']');
        if (desde == std::string_view::npos || hasta == std::string_view::npos || hasta < desde) return false;
        std::string_view hijas = contenido.substr(desde + 1, hasta - desde - 1);
        for (auto numero = NumeroTras(hijas, "", 0); numero; numero = NumeroTras(hijas, "", 0)) {
            NumerosDePagina.push_back(*numero);
            const size_t fin = hijas.find('R');
            hijas.remove_prefix(fin == std::string_view::npos ? hijas.size() : fin + 1);
        }
        return !NumerosDePagina.empty();
    }

    std::string_view pdf_;
    size_t entradas_ = 0;
};

/// Objects on their way behind a file.
class Agregado {
  public:
    explicit Agregado(size_t largoDelArchivo) : inicio_(largoDelArchivo) {}

    void Objeto(size_t numero, const std::string& contenido) {
        lugares_[numero] = inicio_ + bytes_.size();
        bytes_ += std::to_string(numero) + " 0 obj\n<<" + contenido + ">>\nendobj\n";
    }

    /// Closes it with the table of its objects, which leads on to the file's own.
    std::string Cerrar(const Archivo& archivo, size_t objetos) {
        const size_t tabla = inicio_ + bytes_.size();
        bytes_ += "xref\n";
        for (const auto& [numero, lugar] : lugares_) {
            std::array<char, 24> entrada{};
            std::snprintf(entrada.data(), entrada.size(), "%010zu 00000 n \n", lugar);
            bytes_ += std::to_string(numero) + " 1\n" + entrada.data();
        }
        return std::move(bytes_) + "trailer\n<<\n/Size " + std::to_string(objetos) + "\n/Info " +
               std::to_string(archivo.Ficha) + " 0 R\n/Root " + std::to_string(archivo.Raiz) +
               " 0 R\n/Prev " + std::to_string(archivo.Tabla) + "\n>>\nstartxref\n" + std::to_string(tabla) +
               "\n%%EOF\n";
    }

  private:
    size_t inicio_;
    std::string bytes_ = "\n";
    std::map<size_t, size_t> lugares_;
};

std::string Enlace(const char* nombre, size_t objeto) {
    return "\n/" + std::string(nombre) + " " + std::to_string(objeto) + " 0 R";
}

}  // namespace

std::string ComplementoPdf(std::string_view pdf, const std::string& autor,
                           const std::vector<MarcadorPdf>& marcadores) {
    Archivo archivo;
    if (!archivo.Abrir(pdf) || (autor.empty() && marcadores.empty())) return {};
    Agregado agregado(pdf.size());
    if (!autor.empty())
        agregado.Objeto(archivo.Ficha,
                        std::string(archivo.Contenido(archivo.Ficha)) + "/Author " + Texto(autor) + "\n");
    const size_t indice = archivo.Objetos;
    const size_t primero = indice + 1;
    const size_t ultimo = indice + marcadores.size();
    if (marcadores.empty()) return agregado.Cerrar(archivo, archivo.Objetos);
    agregado.Objeto(archivo.Raiz, std::string(archivo.Contenido(archivo.Raiz)) + Enlace("Outlines", indice) +
                                      "\n/PageMode /UseOutlines\n");
    agregado.Objeto(indice, "\n/Type /Outlines" + Enlace("First", primero) + Enlace("Last", ultimo) +
                                "\n/Count " + std::to_string(marcadores.size()) + "\n");
    for (size_t i = 0; i < marcadores.size(); ++i) {
        const MarcadorPdf& marcador = marcadores[i];
        const size_t pagina =
            archivo.NumerosDePagina[std::min(marcador.Pagina, archivo.NumerosDePagina.size() - 1)];
        const size_t numero = primero + i;
        agregado.Objeto(numero, "\n/Title " + Texto(marcador.Titulo) + Enlace("Parent", indice) +
                                    (numero > primero ? Enlace("Prev", numero - 1) : "") +
                                    (numero < ultimo ? Enlace("Next", numero + 1) : "") + "\n/Dest [" +
                                    std::to_string(pagina) + " 0 R /XYZ 0 " +
                                    std::to_string(std::lround(marcador.Y)) + " 0]\n");
    }
    return agregado.Cerrar(archivo, ultimo + 1);
}

}  // namespace trabex::salidas
