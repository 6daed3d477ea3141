#include "loads/Creacion.h"

#include <memory>
#include <random>

#include "base/Enteros.h"

namespace trabex::cargas {

FuenteAzar AzarDelSistema() {
    auto motor = std::make_shared<std::mt19937>(std::random_device{}());
    return [motor] { return static_cast<double>((*motor)()) / 4294967296.0; };
}

std::int32_t NumeroDeAnalisis(double azar) {
    return Redondear32(azar * 9000 + 1);
}

std::int32_t NumeroNuevo(const FuenteAzar& azar, const std::function<bool(std::int32_t)>& encontrado) {
    const std::int32_t numero = NumeroDeAnalisis(azar());
    return SigueLaCreacion(encontrado(numero)) ? numero : NumeroDeAnalisis(azar());
}

}  // namespace trabex::cargas
