// A project file of any bytes: it opens or fails by its flag, what it gives can be calculated and written,
// reading and repair leave its bytes as they were and take no time to speak of, and repair makes a sound file
// or none.

#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <string>

#include "helical/salida/ModuloEscalerasH.h"
#include "loads/salida/ModuloCargas.h"
#include "lote/Modulo.h"
#include "markus/salida/ModuloMarcus.h"
#include "slab/salida/ModuloLosas.h"
#include "stairs/salida/ModuloEscalerasT.h"
#include "support/CarpetaTemporal.h"
#include "support/ProyectoDePrueba.h"

namespace {

using namespace trabex;
using namespace trabex::almacen;

/// Reads, calculates and writes every element of a kind.
void LeerTodos(proyecto::ProyectoAbierto& abierto, const lote::Modulo& modulo) {
    const lote::Registro generales =
        modulo.LeerGenerales == nullptr ? lote::Registro() : modulo.LeerGenerales(abierto.ConexionProyecto);
    AbrirRecordset(abierto.ConexionProyecto, abierto.RegistrosProyecto, modulo.Consulta);
    for (int i = 1; i <= abierto.RegistrosProyecto.NumeroRegistros(); ++i) {
        abierto.RegistrosProyecto.MoverA(i);
        const lote::Elemento elemento = modulo.Calcular(abierto, generales);
        modulo.Json(elemento);
        modulo.Resumir(elemento);
    }
}

void LeerTodo(const std::filesystem::path& camino) {
    proyecto::ProyectoAbierto abierto;
    prueba::Abrir(abierto, camino);
    for (const lote::Modulo* modulo :
         {&losas::salida::ModuloLosas, &escaleras::salida::ModuloEscalerasT,
          &helices::salida::ModuloEscalerasH, &marcus::salida::ModuloMarcus, &cargas::salida::ModuloCargas})
        LeerTodos(abierto, *modulo);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    static const prueba::CarpetaTemporal carpeta;
    const std::string bytes(reinterpret_cast<const char*>(datos), largo);
    const auto camino = carpeta / "obra.los";
    const auto reparado = carpeta / "reparado.los";
    const auto plantilla = carpeta / "plantilla";
    CrearBaseDatos(plantilla, prueba::EsquemaDeProyecto());
    prueba::EscribirArchivo(camino, bytes);
    const std::clock_t inicio = std::clock();
    LeerTodo(camino);
    const bool hecho = CompactarBaseDatos(camino, reparado, plantilla);
    if (prueba::LeerArchivo(camino) != bytes || std::clock() - inicio > 2 * CLOCKS_PER_SEC) std::abort();

    Conexion conexion;
    AbrirConexion(conexion, reparado);
    if (hecho == conexion.ConexionFallida()) std::abort();
    conexion.Cerrar();
    std::filesystem::remove(reparado);
    OlvidarGuardado(camino);
    return 0;
}
