#include "store/Vaciado.h"

#include <string>

namespace trabex::almacen {

bool VaciarTabla(Conexion& conexion, std::string_view tabla) {
    return conexion.Ejecutar("DELETE * FROM " + std::string(tabla));
}

}  // namespace trabex::almacen
