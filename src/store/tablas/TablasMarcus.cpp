#include "store/tablas/TablasMarcus.h"

#include "store/Filas.h"
#include "store/tablas/CamposMarcus.h"

namespace trabex::almacen::tablas {

namespace {

constexpr TablaDeFilas TablaPanos{"Marcus", "Numero", true};

}  // namespace

void LeerMarcus(ProyectoAbierto& proyecto, marcus::NivelMarcus& nivel) {
    LeerCampos(proyecto.RegistrosProyecto, nivel, CamposNivel);
    LeerFilas(proyecto.ConexionProyecto, TablaPanos, PorNombre(nivel.Nombre), nivel.Filas, 0, CamposPano);
}

bool GuardarMarcus(ProyectoAbierto& proyecto, const marcus::NivelMarcus& nivel) {
    Recordset& lista = proyecto.RegistrosProyecto;
    if (lista.NumeroRegistros() == 0) return false;
    Transaccion guardado(proyecto.ConexionProyecto);
    const Clave clave = PorNombre(nivel.Nombre);
    BuscarRegistro(lista, Criterio(clave));
    if (lista.Encontrado()) {
        lista.Poner("Paños", static_cast<double>(nivel.Filas.size()));
        lista.Actualizar();
    }
    const bool escritas =
        GuardarFilas(proyecto.ConexionProyecto, TablaPanos, clave, nivel.Filas, 0, CamposPano);
    return escritas && guardado.Confirmar();
}

}  // namespace trabex::almacen::tablas
