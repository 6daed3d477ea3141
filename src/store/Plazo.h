#pragma once

#include <chrono>

namespace trabex::almacen {

/// How long the engine may work on something, in processor time of the thread: a loaded machine cuts nothing
/// short.
class Plazo {
  public:
    /// From now on there is so much; nothing ends it when 0.
    void Dar(std::chrono::milliseconds tiempo);
    bool Vencido() const;

  private:
    std::chrono::nanoseconds hasta_{0};
};

}  // namespace trabex::almacen
