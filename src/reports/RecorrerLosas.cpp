#include "reports/RecorrerLosas.h"

#include "slab/CalcularLosa.h"
#include "store/TablasLosa.h"

namespace trabex {

bool RecorrerLosas(const std::filesystem::path& camino,
                   const std::function<void(const LosaDelProyecto&)>& accion) {
    ProyectoAbierto proyecto;
    AbrirCopiaEnMemoria(proyecto.ConexionProyecto, camino);
    AbrirRecordset(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, ConsultaListaLosas);
    if (!proyecto.RegistrosProyecto.Abierto()) return false;
    DatosDelProyecto datos;
    DatosGenerales generales;
    LeerDatosGenerales(proyecto.ConexionProyecto, "", datos, generales);
    const int losas = proyecto.RegistrosProyecto.NumeroRegistros();
    for (int numero = 1; numero <= losas; ++numero) {
        proyecto.RegistrosProyecto.MoverA(numero);
        Losa losa;
        ResultadosLosa resultados;
        LeerLosa(proyecto, losa);
        CalcularLosa(losa, generales, resultados);
        accion({static_cast<std::size_t>(numero), datos, losa, generales, resultados});
    }
    return true;
}

}  // namespace trabex
