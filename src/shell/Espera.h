#pragma once

namespace trabex::programa {

/// The pointer of long work on a window's view, for as long as this stands.
template <class Vista>
class Espera {
  public:
    explicit Espera(Vista& vista) : vista_(vista) { vista_.PunteroDeEspera(true); }
    ~Espera() { vista_.PunteroDeEspera(false); }
    Espera(const Espera&) = delete;
    Espera& operator=(const Espera&) = delete;

  private:
    Vista& vista_;
};

}  // namespace trabex::programa
