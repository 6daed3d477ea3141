#include "shell/DatosProyecto.h"

#include "shell/Respaldos.h"
#include "store/proyecto/TablaProyecto.h"

namespace trabex::programa {

const DatosDelProyecto& DatosProyecto::Leer() {
    almacen::Conexion conexion;
    ConectarProyecto(aplicacion_, conexion);
    almacen::proyecto::LeerProyecto(conexion, aplicacion_.Usuario, aplicacion_.Datos);
    return aplicacion_.Datos;
}

bool DatosProyecto::Salvar(const DatosDelProyecto& datos) {
    almacen::Conexion conexion;
    ConectarProyecto(aplicacion_, conexion);
    if (!almacen::proyecto::GuardarProyecto(conexion, datos)) {
        caja_.Mostrar(MensajeSinGuardar());
        return false;
    }
    aplicacion_.Datos = datos;
    return true;
}

}  // namespace trabex::programa
