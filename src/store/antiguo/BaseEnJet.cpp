#include "store/antiguo/BaseEnJet.h"

#include <fstream>
#include <utility>

#include "base/AlSalir.h"
#include "base/Archivos.h"
#include "base/ErrorEjecucion.h"
#include "store/DeTrabajo.h"
#include "store/Mantenimiento.h"
#include "store/antiguo/Convertir.h"
#include "store/antiguo/EscribirJet.h"
#include "store/antiguo/Tipos.h"

namespace trabex::almacen::antiguo {

BaseEnJet::BaseEnJet(const std::filesystem::path& programa, const std::filesystem::path& archivo,
                     std::filesystem::path trabajo)
    : archivo_(archivo), trabajo_(std::move(trabajo)) {
    if (EsBaseAntigua(archivo) && CopiarBaseAntigua(programa, archivo, trabajo_)) {
        Motor copia(trabajo_, SQLITE_OPEN_READWRITE);
        if (copia.Abierto()) faltas_ = FaltasDe(copia);
    }
    AbrirDeTrabajo(conexion_, trabajo_);
}

BaseEnJet::~BaseEnJet() {
    conexion_.Cerrar();
    std::error_code ignorado;
    std::filesystem::remove(trabajo_, ignorado);
    OlvidarGuardado(trabajo_);
}

bool BaseEnJet::EsDelPrograma() {
    if (!conexion_.Abierta() || !faltas_.empty()) return false;
    conexion_.Cerrar();
    return EsEscrituraDe(trabajo_, archivo_);
}

void BaseEnJet::Guardar(const std::filesystem::path& destino, const std::filesystem::path& original) {
    // A file takes another's place without being written, whatever its permissions are.
    if (Existe(destino) && !std::ofstream(destino, std::ios::binary | std::ios::app))
        throw ErrorEjecucion(CodigoError::ErrorAccesoRuta);
    conexion_.Cerrar();
    if (!original.empty()) CopiarSinPisar(destino, original);
    bool escrito = original.empty();
    const AlSalir retirar([&] {
        std::error_code ignorado;
        if (!escrito) std::filesystem::remove(original, ignorado);
    });
    EscribirJet(trabajo_, destino);
    escrito = true;
}

}  // namespace trabex::almacen::antiguo
