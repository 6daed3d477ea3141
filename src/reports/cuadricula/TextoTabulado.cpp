#include "reports/cuadricula/TextoTabulado.h"

#include "base/Archivos.h"
#include "base/Texto.h"

namespace trabex::cuadricula {

namespace {

/// By it spreadsheets and editors know that the letters are UTF-8.
constexpr std::string_view MarcaUtf8 = "\xEF\xBB\xBF";
constexpr std::string_view FinDeLinea = "\r\n";

std::string Celda(const std::string& texto) {
    std::string valido = TextoValido(texto);
    if (valido.find_first_of("\t\r\n\"") == std::string::npos) return valido;
    std::string salida = "\"";
    for (const char c : valido) salida += c == '"' ? std::string("\"\"") : std::string(1, c);
    return salida + '"';
}

std::string Lineas(const documento::Tabla& tabla, const Separadores& separadores) {
    std::string salida;
    const auto agregar = [&salida](std::size_t columna, const std::string& texto) {
        if (columna > 0) salida += '\t';
        salida += Celda(texto);
    };
    for (std::size_t c = 0; c < tabla.Columnas.size(); ++c) agregar(c, TituloDeColumna(tabla.Columnas[c]));
    salida += FinDeLinea;
    for (std::size_t f = 0; f < tabla.Filas.size(); ++f) {
        for (std::size_t c = 0; c < tabla.Columnas.size(); ++c)
            agregar(c, TextoDeCelda(tabla, f, c, separadores));
        salida += FinDeLinea;
    }
    return salida;
}

}  // namespace

void EscribirTabulado(const Cuadricula& cuadricula, const std::filesystem::path& destino) {
    std::string texto(MarcaUtf8);
    for (std::size_t i = 0; i < cuadricula.Hojas.size(); ++i) {
        if (i > 0) texto += FinDeLinea;
        texto += Lineas(ConCabeceras(cuadricula, cuadricula.Hojas[i]), cuadricula.Locales);
    }
    EscribirArchivo(destino, texto);
}

}  // namespace trabex::cuadricula
