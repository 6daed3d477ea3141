#include "store/proyecto/TablaProyecto.h"

#include "store/Filas.h"
#include "store/Recordset.h"

namespace trabex::almacen::proyecto {

namespace {

constexpr const char* Tabla = "Proyecto";

void PonerProyecto(Recordset& registros, const DatosDelProyecto& datos) {
    registros.Poner("Proyecto", datos.Proyecto);
    registros.Poner("Propietario", datos.Propietario);
    registros.Poner("Calculista", datos.Calculista);
    registros.Poner("Fecha", datos.Fecha);
    registros.Poner("Cliente", datos.Cliente);
    registros.Poner("Comentario", datos.Comentario);
}

}  // namespace

void LeerProyecto(Conexion& conexion, std::string_view usuario, DatosDelProyecto& datos) {
    datos = {.Proyecto = "",
             .Propietario = "",
             .Calculista = std::string(usuario),
             .Fecha = Hoy(),
             .Cliente = "",
             .Comentario = ""};
    Recordset registros;
    AbrirRecordset(conexion, registros, Tabla);
    if (!SembrarFila(registros, [&](Recordset& r) { PonerProyecto(r, datos); })) return;
    datos.Proyecto = registros.Texto("Proyecto");
    datos.Propietario = registros.Texto("Propietario");
    datos.Calculista = registros.Texto("Calculista");
    datos.Fecha = registros.LeerFecha("Fecha");
    datos.Cliente = registros.Texto("Cliente");
    datos.Comentario = registros.Texto("Comentario");
}

bool GuardarProyecto(Conexion& conexion, const DatosDelProyecto& datos) {
    return ReemplazarFila(conexion, Tabla, [&](Recordset& r) { PonerProyecto(r, datos); });
}

}  // namespace trabex::almacen::proyecto
