#include "base/VigilanciaFlotante.h"

#include "base/ErrorEjecucion.h"

namespace trabex {

VigilanciaFlotante::VigilanciaFlotante() {
    std::fegetexceptflag(&anteriores_, FE_ALL_EXCEPT);
    std::feclearexcept(FE_ALL_EXCEPT);
}

VigilanciaFlotante::~VigilanciaFlotante() {
    std::fesetexceptflag(&anteriores_, FE_ALL_EXCEPT);
}

void VigilanciaFlotante::Lanzar() {
    if (std::fetestexcept(FE_DIVBYZERO) != 0) throw ErrorEjecucion(CodigoError::DivisionPorCero);
    if (std::fetestexcept(FE_OVERFLOW) != 0) throw ErrorEjecucion(CodigoError::Desbordamiento);
    throw ErrorEjecucion(CodigoError::ArgumentoInvalido);
}

}  // namespace trabex
