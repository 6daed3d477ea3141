#pragma once

#include <cfenv>
#include <cstddef>

#if defined(__SSE2__) || defined(_M_X64)
#include <xmmintrin.h>
#endif

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
        if (Levantadas()) Lanzar();
    }

    /// Runs guardar(i, calcular(i)) for i = desde … hasta, and throws as Comprobar does where a fault arises:
    /// the records before it are stored, that one and those after it are not.
    ///
    /// Reading the flags halts the processor's pipeline, so they are read once at the end; only when a fault
    /// shows does `borrar` undo the run, and a second run looks for its place.
    template <class Calcular, class Guardar, class Borrar>
    void Recorrer(std::size_t desde, std::size_t hasta, Calcular calcular, Guardar guardar,
                  Borrar borrar) const {
        for (std::size_t i = desde; i <= hasta; ++i) guardar(i, calcular(i));
        if (!Levantadas()) return;
        borrar();
        std::feclearexcept(FE_ALL_EXCEPT);
        for (std::size_t i = desde; i <= hasta; ++i) {
            const auto calculado = calcular(i);
            Comprobar();
            guardar(i, calculado);
        }
    }

  private:
    /// On x86-64 doubles are the vector unit's, whose flags alone are read: several times cheaper.
    static bool Levantadas() {
#if defined(__SSE2__) || defined(_M_X64)
        return (_mm_getcsr() & (_MM_EXCEPT_INVALID | _MM_EXCEPT_DIV_ZERO | _MM_EXCEPT_OVERFLOW)) != 0;
#else
        return std::fetestexcept(FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID) != 0;
#endif
    }
    [[noreturn]] static void Lanzar();
    std::fexcept_t anteriores_{};
};

}  // namespace trabex
