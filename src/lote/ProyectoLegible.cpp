#include "lote/ProyectoLegible.h"

#include <random>

#include "base/ErrorEjecucion.h"
#include "store/antiguo/Convertir.h"

namespace trabex::lote {

namespace {

std::filesystem::path CarpetaNueva() {
    std::random_device azar;
    std::filesystem::path carpeta = std::filesystem::temp_directory_path() /
                                    ("trabex-" + std::to_string(azar()) + std::to_string(azar()));
    if (!std::filesystem::create_directory(carpeta)) throw ErrorEjecucion(CodigoError::ErrorAccesoRuta);
    std::filesystem::permissions(carpeta, std::filesystem::perms::owner_all);
    return carpeta;
}

}  // namespace

ProyectoLegible::ProyectoLegible(const std::filesystem::path& programa, const std::filesystem::path& proyecto)
    : camino_(proyecto) {
    if (!almacen::antiguo::EsBaseAntigua(proyecto)) return;
    try {
        temporal_ = CarpetaNueva();
        const std::filesystem::path convertido = temporal_ / proyecto.filename();
        const auto perdidas = almacen::antiguo::ConvertirBaseAntigua(
            programa, proyecto, programa / "Imagen" / "LosaImagen.tbx", convertido);
        if (!perdidas) return;
        camino_ = convertido;
        if (perdidas->Tablas + perdidas->Valores > 0)
            aviso_ = "el proyecto es del formato anterior: le faltan " + std::to_string(perdidas->Tablas) +
                     " tablas, y " + std::to_string(perdidas->Valores) + " valores no se pudieron leer";
    } catch (const std::exception&) {
        // The project is then what can't be opened.
    }
}

ProyectoLegible::~ProyectoLegible() {
    std::error_code ignorado;
    if (!temporal_.empty()) std::filesystem::remove_all(temporal_, ignorado);
}

}  // namespace trabex::lote
