#include "shell/DatosProyecto.h"

namespace trabex::programa {

const DatosDelProyecto& DatosProyecto::Leer() {
    almacen::Conexion conexion;
    almacen::AbrirConexion(conexion, aplicacion_.ArchivoProyecto);
    almacen::tablas::LeerProyecto(conexion, aplicacion_.Usuario, aplicacion_.Datos);
    return aplicacion_.Datos;
}

bool DatosProyecto::Salvar(const DatosDelProyecto& datos) {
    almacen::Conexion conexion;
    almacen::AbrirConexion(conexion, aplicacion_.ArchivoProyecto);
    almacen::Transaccion guardado(conexion);
    conexion.Ejecutar("DELETE * FROM Proyecto");
    almacen::Recordset registros;
    almacen::AbrirRecordset(conexion, registros, "Proyecto");
    const bool agregado = almacen::tablas::AgregarProyecto(registros, datos);
    if (!guardado.Confirmar() || !agregado) {
        caja_.Mostrar(MensajeSinGuardar());
        return false;
    }
    aplicacion_.Datos = datos;
    return true;
}

}  // namespace trabex::programa
