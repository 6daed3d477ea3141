#include "store/proyecto/TablaProyecto.h"

#include "store/Filas.h"
#include "store/Recordset.h"
#include "store/proyecto/CamposProyecto.h"

namespace trabex::almacen::proyecto {

namespace {

constexpr const char* Tabla = "Proyecto";

}  // namespace

void LeerProyecto(Conexion& conexion, std::string_view usuario, DatosDelProyecto& datos) {
    datos = {.Proyecto = "",
             .Propietario = "",
             .Calculista = std::string(usuario),
             .Fecha = Hoy(),
             .Cliente = "",
             .Comentario = ""};
    Recordset registros;
    if (AbrirFila(conexion, registros, Tabla, [&](Recordset& r) { PonerCampos(r, datos, CamposProyecto); }))
        LeerCampos(registros, datos, CamposProyecto);
}

bool GuardarProyecto(Conexion& conexion, const DatosDelProyecto& datos) {
    return ReemplazarFila(conexion, Tabla, [&](Recordset& r) { PonerCampos(r, datos, CamposProyecto); });
}

}  // namespace trabex::almacen::proyecto
