// A project file of any bytes: it opens or fails by its flag, what it gives can be calculated and written,
// reading leaves its bytes as they were, and its repair makes a sound file or none.

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "helical/CalcularEscaleraH.h"
#include "lote/EscalerasJson.h"
#include "lote/ResultadosJson.h"
#include "slab/CalcularLosa.h"
#include "stairs/CalcularEscaleraT.h"
#include "store/tablas/TablasEscalera.h"
#include "store/tablas/TablasMarcus.h"
#include "support/CarpetaTemporal.h"
#include "support/ProyectoDePrueba.h"

namespace {

using namespace trabex;
using namespace trabex::almacen;
using namespace trabex::almacen::tablas;
using namespace trabex::losas;
using namespace trabex::lote;

/// Opens a list and does something at each of its rows.
template <class Leer>
void RecorrerLista(ProyectoAbierto& proyecto, std::string_view consulta, Leer leer) {
    AbrirRecordset(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, consulta);
    for (int i = 1; i <= proyecto.RegistrosProyecto.NumeroRegistros(); ++i) {
        proyecto.RegistrosProyecto.MoverA(i);
        leer();
    }
}

void CalcularEscalera(ProyectoAbierto& proyecto) {
    escaleras::DatosEscaleraT escalera;
    escaleras::ResultadosEscaleraT resultados;
    LeaDatosEscalera(proyecto, escalera);
    escaleras::CalcularEscaleraT(escalera, {}, resultados);
    EscaleraTJson(escalera, resultados);
}

void CalcularHelice(ProyectoAbierto& proyecto) {
    helices::DatosEscaleraH escalera;
    helices::ResultadosEscaleraH resultados;
    LeaDatosEscalera(proyecto, escalera);
    helices::CalcularEscaleraH(escalera, {}, resultados);
    EscaleraHJson(escalera, resultados);
}

void CalcularNivel(ProyectoAbierto& proyecto) {
    marcus::NivelMarcus nivel;
    LeerMarcus(proyecto, nivel);
    std::optional<ErrorEjecucion> falta;
    try {
        marcus::CalculePanos(nivel.Filas);
    } catch (const ErrorEjecucion& error) {
        falta = error;
    }
    MarcusJson(nivel, falta);
}

void CalcularUnaLosa(ProyectoAbierto& proyecto) {
    Losa losa;
    ResultadosLosa resultados;
    LeerLosa(proyecto, losa);
    CalcularLosa(losa, {}, resultados);
    LosaJson(losa, resultados);
}

void LeerTodo(const std::filesystem::path& camino) {
    ProyectoAbierto proyecto;
    prueba::Abrir(proyecto, camino);
    RecorrerLista(proyecto, ConsultaListaLosas, [&] { CalcularUnaLosa(proyecto); });
    RecorrerLista(proyecto, ConsultaListaEscalerasT, [&] { CalcularEscalera(proyecto); });
    RecorrerLista(proyecto, ConsultaListaEscalerasH, [&] { CalcularHelice(proyecto); });
    RecorrerLista(proyecto, ConsultaListaMarcus, [&] { CalcularNivel(proyecto); });
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
