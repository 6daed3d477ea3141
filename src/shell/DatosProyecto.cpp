#include "shell/DatosProyecto.h"

#include "store/proyecto/TablaProyecto.h"

namespace trabex::programa {

const DatosDelProyecto& DatosProyecto::Leer() {
    almacen::Conexion conexion;
    almacen::AbrirConexion(conexion, aplicacion_.ArchivoProyecto);
    almacen::proyecto::LeerProyecto(conexion, aplicacion_.Usuario, aplicacion_.Datos);
    return aplicacion_.Datos;
}

bool DatosProyecto::Salvar(const DatosDelProyecto& datos) {
    almacen::Conexion conexion;
    almacen::AbrirConexion(conexion, aplicacion_.ArchivoProyecto);
    if (!almacen::proyecto::GuardarProyecto(conexion, datos)) {
        caja_.Mostrar(MensajeSinGuardar());
        return false;
    }
    aplicacion_.Datos = datos;
    return true;
}

}  // namespace trabex::programa
