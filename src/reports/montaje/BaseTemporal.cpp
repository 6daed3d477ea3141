#include "reports/montaje/BaseTemporal.h"

#include "base/Archivos.h"
#include "base/Edicion.h"
#include "store/Recordset.h"
#include "store/Vaciado.h"

namespace trabex::montaje {

namespace {

void Reponer(const EntornoReportes& entorno) {
    const std::filesystem::path base = TemporalMdb(entorno);
    try {
        std::error_code error;
        std::filesystem::create_directories(base.parent_path(), error);
        std::filesystem::remove(base, error);
        CopiarArchivo(entorno.CaminoPrograma / "Imagen" / "Temporal.tbx", base);
    } catch (const ErrorEjecucion&) {
        // The report is then empty, or is made over the old rows, which every table's writer deletes first.
    }
}

void EscribirGenerales(const EntornoReportes& entorno, const DatosDelProyecto& datos,
                       const EncabezadoReporte& encabezado, almacen::Conexion& conexion) {
    almacen::VaciarTabla(conexion, "Generales");
    almacen::Recordset registros;
    almacen::AbrirRecordset(conexion, registros, "Generales");
    registros.AgregarNuevo();
    registros.Poner("Usuario", entorno.Usuario);
    registros.Poner("Version", Edicion);
    registros.Poner("Titulo", encabezado.Titulo);
    registros.Poner("Propietario", datos.Propietario);
    registros.Poner("Calculista", datos.Calculista);
    registros.Poner("Fecha", datos.Fecha);
    registros.Poner("Proyecto", datos.Proyecto);
    if (encabezado.Nombre) registros.Poner("Nombre", *encabezado.Nombre);
    if (encabezado.Resumen) registros.Poner("Resumen", *encabezado.Resumen);
    registros.Actualizar();
}

}  // namespace

std::filesystem::path TemporalMdb(const EntornoReportes& entorno) {
    return entorno.Trabajo / "Temporal.mdb";
}

void AbrirTemporal(const EntornoReportes& entorno, const DatosDelProyecto& datos,
                   const EncabezadoReporte& encabezado, almacen::Conexion& conexionTemporal) {
    conexionTemporal.Cerrar();  // of an earlier report, or the file could not be replaced
    Reponer(entorno);
    almacen::AbrirBasePropia(conexionTemporal, TemporalMdb(entorno));
    EscribirGenerales(entorno, datos, encabezado, conexionTemporal);
}

}  // namespace trabex::montaje
