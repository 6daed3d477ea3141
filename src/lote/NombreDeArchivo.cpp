#include "lote/NombreDeArchivo.h"

#include <string_view>

namespace trabex::lote {

std::string ParaArchivo(std::string nombre) {
    for (char& letra : nombre) {
        if (std::string_view("\\/:*?\"<>|").find(letra) != std::string_view::npos ||
            static_cast<unsigned char>(letra) < ' ')
            letra = '_';
    }
    return nombre;
}

}  // namespace trabex::lote
