#include "slab/salida/RecorrerLosas.h"

#include "reports/montaje/EstadoReportes.h"
#include "slab/CalcularLosa.h"
#include "store/tablas/TablasLosa.h"

namespace trabex {

namespace {

void Visitar(ProyectoAbierto& proyecto, const ProyectoParaReporte& origen,
             const std::function<void(const LosaDelProyecto&)>& accion) {
    Losa losa;
    ResultadosLosa resultados;
    LeerLosa(proyecto, losa);
    CalcularLosa(losa, origen.Generales, resultados);
    const auto numero = static_cast<std::size_t>(proyecto.RegistrosProyecto.Posicion());
    accion({numero, origen.Datos, losa, origen.Generales, resultados});
}

}  // namespace

void RecorrerLosas(const ProyectoParaReporte& origen, bool todas,
                   const std::function<void(const LosaDelProyecto&)>& accion) {
    Recordset& lista = origen.Proyecto.RegistrosProyecto;
    if (lista.NumeroRegistros() == 0) return;
    if (!todas) {
        lista.MoverA(origen.FilaSeleccionada);
        Visitar(origen.Proyecto, origen, accion);
        return;
    }
    // A file has no index of its names: a copy that has one is read in a time that grows with the slabs, not
    // with their square. The list is the workspace's own in both.
    ProyectoAbierto copia{.ConexionProyecto = {}, .RegistrosProyecto = lista};
    CopiarEnMemoria(origen.Proyecto.ConexionProyecto, copia.ConexionProyecto);
    ProyectoAbierto& leido = copia.ConexionProyecto.Abierta() ? copia : origen.Proyecto;
    const PosicionGuardada posicion(lista);
    for (int k = 1; k <= lista.NumeroRegistros(); ++k) {
        lista.MoverA(k);
        Visitar(leido, origen, accion);
    }
}

bool RecorrerLosas(const std::filesystem::path& camino,
                   const std::function<void(const LosaDelProyecto&)>& accion) {
    ProyectoAbierto proyecto;
    AbrirCopiaEnMemoria(proyecto.ConexionProyecto, camino);
    AbrirRecordset(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, ConsultaListaLosas);
    if (!proyecto.RegistrosProyecto.Abierto()) return false;
    DatosDelProyecto datos;
    DatosGenerales generales;
    LeerDatosGenerales(proyecto.ConexionProyecto, "", datos, generales);
    RecorrerLosas({proyecto, datos, generales}, true, accion);
    return true;
}

}  // namespace trabex
