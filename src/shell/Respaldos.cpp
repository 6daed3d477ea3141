#include "shell/Respaldos.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <functional>
#include <vector>

#include "base/Archivos.h"
#include "base/Fecha.h"
#include "base/Formatos.h"
#include "store/AntesDeCambiar.h"
#include "store/Mantenimiento.h"
#include "store/proyecto/ConectarProyecto.h"

namespace trabex::programa {

namespace {

constexpr std::size_t LargoDeMomento = std::string_view(" 2024-03-07 10.15.30").size();

/// " 2024-03-07 10.15.30": as a text it sorts as time goes.
std::string Momento() {
    const std::time_t ahora = std::time(nullptr);
    std::array<char, 32> texto{};
    std::strftime(texto.data(), texto.size(), " %Y-%m-%d %H.%M.%S", std::localtime(&ahora));
    return texto.data();
}

/// The backups of a project's name, the oldest first.
std::vector<std::filesystem::path> RespaldosDe(const std::filesystem::path& carpeta,
                                               const std::filesystem::path& proyecto) {
    std::vector<std::filesystem::path> respaldos = ArchivosDe(carpeta);
    const std::string nombre = TextoDeCamino(proyecto.filename());
    std::erase_if(respaldos, [&](const std::filesystem::path& r) { return NombreRespaldado(r) != nombre; });
    std::sort(respaldos.begin(), respaldos.end());
    return respaldos;
}

bool HayDeHoy(const std::filesystem::path& carpeta, const std::filesystem::path& proyecto) {
    const auto respaldos = RespaldosDe(carpeta, proyecto);
    return !respaldos.empty() &&
           TextoDeCamino(respaldos.back().filename()).find(" " + FechaIso(Hoy()) + " ") != std::string::npos;
}

}  // namespace

void Respaldar(const std::filesystem::path& carpeta, const std::filesystem::path& proyecto) {
    if (carpeta.empty() || !Existe(proyecto)) return;
    try {
        std::error_code ignorado;
        std::filesystem::create_directories(carpeta, ignorado);
        const std::string nombre = TextoDeCamino(proyecto.stem()) + Momento();
        const auto respaldo = carpeta / CaminoDeTexto(nombre + TextoDeCamino(proyecto.extension()));
        if (Existe(respaldo)) return;  // of this second: it holds what stood before more changes
        almacen::AsentarBaseDatos(proyecto);
        CopiarArchivo(proyecto, respaldo);
        auto respaldos = RespaldosDe(carpeta, proyecto);
        if (respaldos.size() <= RespaldosQueQuedan) return;
        respaldos.resize(respaldos.size() - RespaldosQueQuedan);
        for (const std::filesystem::path& viejo : respaldos) BorrarArchivo(viejo);
    } catch (const ErrorEjecucion&) {
        return;
    }
}

std::string NombreRespaldado(const std::filesystem::path& respaldo) {
    const std::string nombre = TextoDeCamino(respaldo.stem());
    const std::size_t largo = nombre.size() > LargoDeMomento ? nombre.size() - LargoDeMomento : nombre.size();
    return nombre.substr(0, largo) + TextoDeCamino(respaldo.extension());
}

void ConectarProyecto(const Aplicacion& aplicacion, almacen::Conexion& conexion) {
    const std::filesystem::path& carpeta = aplicacion.Respaldos;
    const std::filesystem::path proyecto = aplicacion.ArchivoProyecto;
    almacen::proyecto::ConectarProyecto(conexion, proyecto);
    if (carpeta.empty()) return;
    almacen::AntesDeCambiar(conexion, [carpeta, proyecto, visto = Fecha()]() mutable {
        if (visto == Hoy()) return;
        visto = Hoy();
        if (!HayDeHoy(carpeta, proyecto)) Respaldar(carpeta, proyecto);
    });
}

}  // namespace trabex::programa
