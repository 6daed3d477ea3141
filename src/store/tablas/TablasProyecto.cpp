#include "store/tablas/TablasProyecto.h"

namespace trabex::almacen::tablas {

void LeerProyecto(Conexion& conexion, std::string_view usuario, DatosDelProyecto& datos) {
    datos = {.Proyecto = "",
             .Propietario = "",
             .Calculista = std::string(usuario),
             .Fecha = Hoy(),
             .Cliente = "",
             .Comentario = ""};
    Recordset registros;
    AbrirRecordset(conexion, registros, "Proyecto");
    if (!registros.Abierto()) return;
    if (registros.NumeroRegistros() == 0) AgregarProyecto(registros, datos);
    registros.MoverAlPrimero();
    if (registros.NumeroRegistros() == 0) return;
    datos.Proyecto = registros.Texto("Proyecto");
    datos.Propietario = registros.Texto("Propietario");
    datos.Calculista = registros.Texto("Calculista");
    datos.Fecha = registros.LeerFecha("Fecha");
    datos.Cliente = registros.Texto("Cliente");
    datos.Comentario = registros.Texto("Comentario");
}

bool AgregarProyecto(Recordset& registros, const DatosDelProyecto& datos) {
    registros.AgregarNuevo();
    registros.Poner("Proyecto", datos.Proyecto);
    registros.Poner("Propietario", datos.Propietario);
    registros.Poner("Calculista", datos.Calculista);
    registros.Poner("Fecha", datos.Fecha);
    registros.Poner("Cliente", datos.Cliente);
    registros.Poner("Comentario", datos.Comentario);
    return registros.Actualizar();
}

bool AgregarGenerales(Recordset& registros, const DatosGenerales& generales) {
    registros.AgregarNuevo();
    registros.Poner("FC", generales.FC);
    registros.Poner("FY", generales.FY);
    registros.Poner("D8", generales.D8);
    registros.Poner("FCP", generales.FCP);
    registros.Poner("FCV", generales.FCV);
    registros.Poner("FiMomento", generales.FiMomento);
    registros.Poner("FiCorte", generales.FiCorte);
    return registros.Actualizar();
}

void LeerDatosGenerales(Conexion& conexion, std::string_view usuario, DatosDelProyecto& datos,
                        DatosGenerales& generales) {
    LeerProyecto(conexion, usuario, datos);
    generales = {};
    Recordset registros;
    AbrirRecordset(conexion, registros, "LosaG");
    if (!registros.Abierto()) return;
    if (registros.NumeroRegistros() == 0) AgregarGenerales(registros, generales);
    registros.MoverAlPrimero();
    if (registros.NumeroRegistros() == 0) return;
    generales.FC = registros.Entero16("FC");
    generales.FY = registros.Entero16("FY");
    generales.D8 = registros.Doble("D8");
    generales.FCP = registros.Doble("FCP");
    generales.FCV = registros.Doble("FCV");
    generales.FiMomento = registros.Doble("FiMomento");
    generales.FiCorte = registros.Doble("FiCorte");
}

}  // namespace trabex::almacen::tablas
