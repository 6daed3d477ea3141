#include "slab/ui/LosaNueva.h"

#include "base/Texto.h"
#include "store/tablas/TablasLosa.h"

namespace trabex::losas::ui {

bool LosaNueva::Aceptar(const std::string& entrado) {
    const std::string nombre = Recortar(entrado);
    if (nombre.empty() || !losas_.Lista().VerifiqueNombre(nombre)) return false;
    Losa nueva;
    nueva.Nombre = nombre;
    nueva.Ho = losas_.Memoria().UltimoHo;
    nueva.Hm = losas_.Memoria().UltimoHm;
    const auto seccion = [&](almacen::Recordset& lista) { almacen::tablas::PonerSeccion(lista, nueva); };
    if (!losas_.Lista().Agregar(nombre, seccion)) return false;
    losas_.Estado().Abierta = nueva;
    return true;
}

bool LosaSalvarComo::Aceptar(const std::string& entrado) {
    const std::string nombre = Recortar(entrado);
    if (nombre.empty() || !losas_.Lista().VerifiqueNombre(nombre)) return false;
    Losa copia = losas_.Estado().Abierta;
    const std::string pregunta =
        "Crear la Losa: " + nombre + "\n\nA Partir de la Losa: " + copia.Nombre + "\n";
    if (caja_.Mostrar(programa::Pregunta(pregunta, "Salvar Como...")) != programa::RespuestaSi) return false;
    return losas_.Lista().Agregar(
        nombre, [&](almacen::Recordset& lista) { almacen::tablas::PonerSeccion(lista, copia); },
        [&](almacen::Conexion& conexion) { almacen::tablas::EscribirElementos(conexion, nombre, copia); });
}

}  // namespace trabex::losas::ui
