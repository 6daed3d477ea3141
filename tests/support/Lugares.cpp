#include "support/Lugares.h"

namespace trabex::prueba {

std::string Install() {
    return TRABEX_INSTALL;
}

std::string Programa() {
    return TRABEX_PROGRAMA;
}

}  // namespace trabex::prueba
