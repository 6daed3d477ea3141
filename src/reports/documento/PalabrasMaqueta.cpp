#include "reports/documento/PalabrasMaqueta.h"

#include <algorithm>
#include <fstream>
#include <string_view>
#include <utility>

#include "base/Archivos.h"
#include "reports/documento/MaquetaReporte.h"

namespace trabex::documento {

namespace {

constexpr std::string_view Blancos = " \t\r";

/// A text between double quotes, from its opening quote on; `i` ends past the closing one. A backslash brings
/// in a quote or itself, and `\n` breaks the line. False when it does not close.
bool LeerCitada(std::string_view linea, std::size_t& i, std::string& texto) {
    for (++i; i < linea.size() && linea[i] != '"'; ++i) {
        if (linea[i] == '\\' && i + 1 < linea.size()) {
            ++i;
            texto += linea[i] == 'n' ? '\n' : linea[i];
        } else {
            texto += linea[i];
        }
    }
    return i++ < linea.size();
}

/// The words of a line; what follows a `#` is a comment. False when a text does not close.
bool Separar(std::string_view linea, std::vector<Palabra>& palabras) {
    for (std::size_t i = 0; i < linea.size();) {
        if (Blancos.find(linea[i]) != std::string_view::npos) {
            ++i;
        } else if (linea[i] == '#') {
            break;
        } else if (linea[i] == '"') {
            Palabra citada{{}, true};
            if (!LeerCitada(linea, i, citada.Texto)) return false;
            palabras.push_back(std::move(citada));
        } else {
            const std::size_t fin = std::min(linea.find_first_of(" \t\r\"#", i), linea.size());
            palabras.push_back({std::string(linea.substr(i, fin - i)), false});
            i = fin;
        }
    }
    return true;
}

}  // namespace

std::vector<Linea> LeerLineas(const std::filesystem::path& camino) {
    std::vector<Linea> lineas;
    std::ifstream archivo(camino, std::ios::binary);
    if (!archivo || !std::filesystem::is_regular_file(camino))
        throw ErrorEjecucion(
            CodigoError::ArchivoNoEncontrado,
            std::string(TextoDeError(CodigoError::ArchivoNoEncontrado)) + ": " + TextoDeCamino(camino));
    std::string texto;
    for (int numero = 1; std::getline(archivo, texto); ++numero) {
        if (numero == 1 && texto.starts_with("\xEF\xBB\xBF")) texto.erase(0, 3);
        Linea linea{numero, {}};
        if (!Separar(texto, linea.Palabras))
            throw ErrorDeMaqueta(camino, numero, "faltan las comillas que cierran");
        if (!linea.Palabras.empty()) lineas.push_back(std::move(linea));
    }
    return lineas;
}

}  // namespace trabex::documento
