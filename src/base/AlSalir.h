#pragma once

#include <utility>

namespace trabex {

/// Runs an action when it goes out of scope, whichever way that is left. The action does not throw.
template <class Accion>
class [[nodiscard]] AlSalir {
  public:
    explicit AlSalir(Accion accion) : accion_(std::move(accion)) {}
    ~AlSalir() { accion_(); }
    AlSalir(const AlSalir&) = delete;
    AlSalir& operator=(const AlSalir&) = delete;

  private:
    Accion accion_;
};

}  // namespace trabex
