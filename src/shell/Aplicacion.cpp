#include "shell/Aplicacion.h"

#include <cctype>
#include <vector>

#include "base/Edicion.h"

namespace trabex::programa {

namespace {

/// The characters of a UTF-8 text, one by one.
std::vector<std::string> Caracteres(const std::string& texto) {
    std::vector<std::string> salida;
    for (const char c : texto) {
        if ((c & 0xC0) != 0x80) salida.emplace_back();
        if (!salida.empty()) salida.back() += c;
    }
    return salida;
}

bool EsCifra(const std::string& caracter) {
    return caracter.size() == 1 && std::isdigit(static_cast<unsigned char>(caracter[0])) != 0;
}

}  // namespace

std::string TituloConProyecto(const std::string& nombre) {
    return std::string(ProgramaYEdicion) + "   Proyecto:[" + nombre + "]";
}

Separadores LeerSeparadores(const std::string& muestra) {
    const std::vector<std::string> caracteres = Caracteres(muestra);
    if (caracteres.size() < 6 || EsCifra(caracteres[1]) || EsCifra(caracteres[5])) return {};
    return {caracteres[1], caracteres[5]};
}

}  // namespace trabex::programa
