#include "store/tablas/TablasMarcus.h"

#include <cmath>
#include <utility>
#include <variant>

#include "store/Filas.h"
#include "store/tablas/CamposMarcus.h"

namespace trabex::almacen::tablas {

namespace {

constexpr TablaDeFilas TablaPanos{"Marcus", "Numero", true};

bool EstaVacio(const Recordset& registros, const char* campo) {
    return std::holds_alternative<std::monostate>(registros.Leer(campo));
}

/// An empty cell of the grid of panels is no number, and an empty case is the first one.
void LeerVacios(const Recordset& registros, marcus::PanoMarcus& pano) {
    for (const auto& [campo, dato] : {std::pair{"Carga", &pano.Carga}, {"LX", &pano.LX}, {"LY", &pano.LY}})
        if (EstaVacio(registros, campo)) *dato = std::nan("");
    if (EstaVacio(registros, "Caso")) pano.Caso = 1;
}

}  // namespace

void LeerMarcus(ProyectoAbierto& proyecto, marcus::NivelMarcus& nivel) {
    LeerCampos(proyecto.RegistrosProyecto, nivel, CamposNivel);
    Recordset registros;
    AbrirFilas(proyecto.ConexionProyecto, registros, TablaPanos, PorNombre(nivel.Nombre));
    nivel.Filas.assign(static_cast<std::size_t>(registros.NumeroRegistros()), {});
    for (marcus::PanoMarcus& pano : nivel.Filas) {
        LeerCampos(registros, pano, CamposPano);
        LeerVacios(registros, pano);
        registros.MoverAlSiguiente();
    }
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
