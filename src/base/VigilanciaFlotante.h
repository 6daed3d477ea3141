#pragma once

#include <cfenv>

namespace trabex {

/// Turns the processor's floating-point flags into run-time errors.
///
/// A calculation makes one at its start and calls `Comprobar` where a span or a station is done and its
/// values are stored. The flags that were up before are put back at the end.
class VigilanciaFlotante {
  public:
    VigilanciaFlotante();
    ~VigilanciaFlotante();
    VigilanciaFlotante(const VigilanciaFlotante&) = delete;
    VigilanciaFlotante& operator=(const VigilanciaFlotante&) = delete;

    /// Throws ErrorEjecucion 11 after a division by zero, 6 after an overflow and 5 after an invalid
    /// operation.
    void Comprobar() const {
        if (std::fetestexcept(FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID) != 0) Lanzar();
    }

  private:
    [[noreturn]] static void Lanzar();
    std::fexcept_t anteriores_{};
};

}  // namespace trabex
