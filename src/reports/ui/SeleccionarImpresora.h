#pragma once

#include <optional>
#include <string>
#include <vector>

#include "reports/ui/SalidaReporte.h"

namespace trabex::reportes::ui {

/// Operations of the window that chooses the program's printer until it ends; the system's own default stays.
class SeleccionarImpresora {
  public:
    explicit SeleccionarImpresora(EntornoSalida& entorno)
        : entorno_(entorno), disponibles_(entorno.LasImpresoras.Disponibles()) {}

    /// Device names, in the system's order. None: there is no printer to choose.
    const std::vector<std::string>& Disponibles() const { return disponibles_; }
    /// The place of the current printer. Device names match whatever their case.
    std::optional<std::size_t> MarcarImpresoraDefecto() const;
    /// " Aceptar " on a printer: asks, and on yes it becomes the program's. False when the answer was no.
    bool Aceptar(const std::string& impresora);

  private:
    EntornoSalida& entorno_;
    std::vector<std::string> disponibles_;
};

}  // namespace trabex::reportes::ui
