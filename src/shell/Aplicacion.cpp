#include "shell/Aplicacion.h"

#include <cctype>
#include <vector>

#include "base/Archivos.h"
#include "base/Edicion.h"

namespace trabex::programa {

namespace {

constexpr const char* SoloLectura = "   (sólo lectura: lo que se cambie no se podrá salvar)";
constexpr const char* Releido = "   (otro programa lo cambió: se leyó de nuevo)";

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

std::string EstadoDeArchivo(const almacen::Conexion& conexion, bool leido,
                            const std::filesystem::path& archivo, bool releido) {
    const std::string camino = TextoDeCamino(archivo);
    if (!leido) return "No se pudo leer: " + camino;
    return camino + (conexion.SoloLectura() ? SoloLectura : "") + (releido ? Releido : "");
}

std::string TituloConProyecto(const std::string& nombre) {
    return std::string(ProgramaYEdicion) + "   Proyecto:[" + nombre + "]";
}

Separadores LeerSeparadores(const std::string& muestra) {
    const std::vector<std::string> caracteres = Caracteres(muestra);
    if (caracteres.size() < 6 || EsCifra(caracteres[1]) || EsCifra(caracteres[5])) return {};
    return {caracteres[1], caracteres[5]};
}

}  // namespace trabex::programa
