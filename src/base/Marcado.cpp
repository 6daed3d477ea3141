#include "base/Marcado.h"

#include "base/Texto.h"

namespace trabex {

namespace {

constexpr std::string_view Reemplazo = "\xEF\xBF\xBD";

/// U+FFFE and U+FFFF are characters to UTF-8 and none to XML.
bool SinSentido(std::string_view resto) {
    return resto.starts_with("\xEF\xBF\xBE") || resto.starts_with("\xEF\xBF\xBF");
}

}  // namespace

std::string TextoDeMarcado(std::string_view texto) {
    const std::string valido = TextoValido(texto);
    std::string salida;
    salida.reserve(valido.size());
    for (std::size_t i = 0; i < valido.size(); ++i) {
        const char c = valido[i];
        if (c == '&') {
            salida += "&amp;";
        } else if (c == '<') {
            salida += "&lt;";
        } else if (c == '>') {
            salida += "&gt;";
        } else if (c == '"') {
            salida += "&quot;";
        } else if (SinSentido(std::string_view(valido).substr(i))) {
            salida += Reemplazo;
            i += 2;
        } else {
            const bool control =
                (static_cast<unsigned char>(c) < 0x20 && c != '\n' && c != '\t') || c == 0x7F;
            salida += control ? ' ' : c;
        }
    }
    return salida;
}

}  // namespace trabex
