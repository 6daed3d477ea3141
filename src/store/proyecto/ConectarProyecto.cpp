#include "store/proyecto/ConectarProyecto.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "store/Recordset.h"

namespace trabex::almacen::proyecto {

namespace {

constexpr const char* Marca = "1414679635";  // the letters "TRLS"

/// What takes a project from the format of its place in the row to the next; the first had no mark.
constexpr std::array<const char*, 1> Pasos{"PRAGMA application_id = 1414679635"};

std::string Consultar(Conexion& conexion, const std::string& cual) {
    Recordset registros;
    AbrirRecordset(conexion, registros, "SELECT " + cual + " FROM pragma_" + cual);
    return registros.Texto(cual);
}

void ExigirEdicion(Conexion& conexion) {
    if (!conexion.Abierta()) return;
    const std::string marca = Consultar(conexion, "application_id");
    const std::string version = Consultar(conexion, "user_version");
    std::size_t paso = 0;
    while (paso <= Pasos.size() && std::to_string(paso) != version) ++paso;
    if ((marca != Marca && marca != "0") || paso > Pasos.size()) return conexion.Rechazar();
    std::vector<std::string> sentencias(Pasos.begin() + static_cast<std::ptrdiff_t>(paso), Pasos.end());
    if (sentencias.empty()) return;
    sentencias.push_back("PRAGMA user_version = " + std::to_string(Pasos.size()));
    conexion.AntesDeGuardar(std::move(sentencias));
}

}  // namespace

void ConectarProyecto(Conexion& conexion, const std::filesystem::path& camino) {
    AbrirConexion(conexion, camino);
    ExigirEdicion(conexion);
}

void ConectarCopia(Conexion& conexion, const std::filesystem::path& camino) {
    AbrirCopiaEnMemoria(conexion, camino);
    ExigirEdicion(conexion);
}

}  // namespace trabex::almacen::proyecto
