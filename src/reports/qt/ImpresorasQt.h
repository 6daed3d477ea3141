#pragma once

#include "reports/ui/SalidaReporte.h"

namespace trabex {

/// The system's printers by the toolkit.
class ImpresorasQt : public Impresoras {
  public:
    std::vector<std::string> Disponibles() const override;
    std::string PorDefecto() const override;
    bool Imprimir(const Documento& documento, const std::string& impresora, bool preguntar,
                  int copias) override;
};

}  // namespace trabex
