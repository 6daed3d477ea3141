#pragma once

#include <chrono>
#include <optional>

namespace trabex::almacen {

/// How long the engine may work on something, in processor time of the thread: a loaded machine cuts nothing
/// short.
class Plazo {
  public:
    /// From the next look on there is so much; nothing ends it when 0. Most statements end before anybody
    /// looks, and asking the system for its clock costs as much as one of them.
    void Dar(std::chrono::milliseconds tiempo) { porDar_ = tiempo; }
    bool Vencido();

  private:
    std::optional<std::chrono::milliseconds> porDar_;
    std::chrono::nanoseconds hasta_{0};
};

}  // namespace trabex::almacen
