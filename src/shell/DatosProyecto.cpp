#include "shell/DatosProyecto.h"

#include "shell/Respaldos.h"
#include "store/proyecto/TablaProyecto.h"

namespace trabex::programa {

const DatosDelProyecto& DatosProyecto::Leer() {
    ConectarProyecto(aplicacion_, conexion_);
    almacen::proyecto::LeerProyecto(conexion_, aplicacion_.Usuario, aplicacion_.Datos);
    return aplicacion_.Datos;
}

bool DatosProyecto::Salvar(const DatosDelProyecto& datos) {
    if (!almacen::proyecto::GuardarProyecto(conexion_, datos)) {
        caja_.Mostrar(MensajeSinGuardar(conexion_.Causa()));
        return false;
    }
    aplicacion_.Datos = datos;
    return true;
}

}  // namespace trabex::programa
