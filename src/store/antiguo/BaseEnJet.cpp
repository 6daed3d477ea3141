#include "store/antiguo/BaseEnJet.h"

#include <fstream>
#include <utility>

#include "base/Archivos.h"
#include "base/ErrorEjecucion.h"
#include "store/DeTrabajo.h"
#include "store/Mantenimiento.h"
#include "store/antiguo/Convertir.h"
#include "store/antiguo/EscribirJet.h"

namespace trabex::almacen::antiguo {

BaseEnJet::BaseEnJet(const std::filesystem::path& programa, const std::filesystem::path& archivo,
                     std::filesystem::path trabajo)
    : trabajo_(std::move(trabajo)) {
    if (EsBaseAntigua(archivo)) CopiarBaseAntigua(programa, archivo, trabajo_);
    AbrirDeTrabajo(conexion_, trabajo_);
}

BaseEnJet::~BaseEnJet() {
    conexion_.Cerrar();
    std::error_code ignorado;
    std::filesystem::remove(trabajo_, ignorado);
    OlvidarGuardado(trabajo_);
}

void BaseEnJet::Guardar(const std::filesystem::path& destino) {
    // A file takes another's place without being written, whatever its permissions are.
    if (Existe(destino) && !std::ofstream(destino, std::ios::binary | std::ios::app))
        throw ErrorEjecucion(CodigoError::ErrorAccesoRuta);
    conexion_.Cerrar();
    EscribirJet(trabajo_, destino);
}

}  // namespace trabex::almacen::antiguo
