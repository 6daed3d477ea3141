#include "base/VigilanciaFlotante.h"

#include <cfenv>

#include "base/ErrorEjecucion.h"

namespace trabex {

namespace {

constexpr int Faltas = FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID;

/// The flags down, and back as they were at the end.
class BanderasBajas {
  public:
    BanderasBajas() {
        std::fegetexceptflag(&anteriores_, FE_ALL_EXCEPT);
        std::feclearexcept(FE_ALL_EXCEPT);
    }
    ~BanderasBajas() { std::fesetexceptflag(&anteriores_, FE_ALL_EXCEPT); }
    BanderasBajas(const BanderasBajas&) = delete;
    BanderasBajas& operator=(const BanderasBajas&) = delete;

  private:
    std::fexcept_t anteriores_{};
};

void LanzarFalta() {
    if (std::fetestexcept(FE_DIVBYZERO) != 0) throw ErrorEjecucion(CodigoError::DivisionPorCero);
    if (std::fetestexcept(FE_OVERFLOW) != 0) throw ErrorEjecucion(CodigoError::Desbordamiento);
    if (std::fetestexcept(FE_INVALID) != 0) throw ErrorEjecucion(CodigoError::ArgumentoInvalido);
}

}  // namespace

namespace vigilancia {

bool HuboError(Tarea tarea, void* datos) {
    const BanderasBajas banderas;
    const volatile Tarea opaca = tarea;
    try {
        opaca(datos);
    } catch (const ErrorEjecucion&) {
        return true;
    }
    return std::fetestexcept(Faltas) != 0;
}

void CorrerVigilada(Tarea tarea, void* datos) {
    const BanderasBajas banderas;
    const volatile Tarea opaca = tarea;
    try {
        opaca(datos);
    } catch (...) {
        LanzarFalta();
        throw;
    }
    LanzarFalta();
}

}  // namespace vigilancia

}  // namespace trabex
