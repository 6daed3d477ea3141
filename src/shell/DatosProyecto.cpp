#include "shell/DatosProyecto.h"

namespace trabex {

const DatosDelProyecto& DatosProyecto::Leer() {
    Conexion conexion;
    AbrirConexion(conexion, aplicacion_.ArchivoProyecto);
    LeerProyecto(conexion, aplicacion_.Usuario, aplicacion_.Datos);
    return aplicacion_.Datos;
}

bool DatosProyecto::Salvar(const DatosDelProyecto& datos) {
    Conexion conexion;
    AbrirConexion(conexion, aplicacion_.ArchivoProyecto);
    Transaccion guardado(conexion);
    conexion.Ejecutar("DELETE * FROM Proyecto");
    Recordset registros;
    AbrirRecordset(conexion, registros, "Proyecto");
    const bool agregado = AgregarProyecto(registros, datos);
    if (!guardado.Confirmar() || !agregado) {
        caja_.Mostrar(MensajeSinGuardar());
        return false;
    }
    aplicacion_.Datos = datos;
    return true;
}

}  // namespace trabex
