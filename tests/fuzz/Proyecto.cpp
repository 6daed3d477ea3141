// A project file of any bytes: it opens or fails by its flag, what it gives can be calculated and written,
// reading leaves its bytes as they were, and its repair makes a sound file or none.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "lote/ResultadosJson.h"
#include "slab/CalcularLosa.h"
#include "support/CarpetaTemporal.h"
#include "support/ProyectoDePrueba.h"

namespace {

using namespace trabex;
using namespace trabex::almacen;
using namespace trabex::almacen::tablas;
using namespace trabex::losas;
using namespace trabex::lote;

void LeerTodo(const std::filesystem::path& camino) {
    ProyectoAbierto proyecto;
    prueba::Abrir(proyecto, camino);
    for (int i = 1; i <= proyecto.RegistrosProyecto.NumeroRegistros(); ++i) {
        proyecto.RegistrosProyecto.MoverA(i);
        Losa losa;
        ResultadosLosa resultados;
        LeerLosa(proyecto, losa);
        CalcularLosa(losa, {}, resultados);
        LosaJson(losa, resultados);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    static const prueba::CarpetaTemporal carpeta;
    const std::string bytes(reinterpret_cast<const char*>(datos), largo);
    const auto camino = carpeta / "obra.los";
    const auto reparado = carpeta / "reparado.los";
    prueba::EscribirArchivo(camino, bytes);
    LeerTodo(camino);
    if (prueba::LeerArchivo(camino) != bytes) std::abort();

    const bool hecho = CompactarBaseDatos(camino, reparado);
    Conexion conexion;
    AbrirConexion(conexion, reparado);
    if (hecho == conexion.ConexionFallida()) std::abort();
    conexion.Cerrar();
    std::filesystem::remove(reparado);
    OlvidarGuardado(camino);
    return 0;
}
