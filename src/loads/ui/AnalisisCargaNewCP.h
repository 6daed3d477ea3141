#pragma once

#include <string>

#include "loads/Variantes.h"
#include "loads/ui/Entrada.h"

namespace trabex::cargas::ui {

/// Operations of the window that adds a line to a list of unit weights.
class AnalisisCargaNewCP {
  public:
    AnalisisCargaNewCP(almacen::Recordset& lista, const VariantePesos& variante, programa::CajaMensajes& caja)
        : lista_(lista), variante_(variante), caja_(caja) {}

    /// " Aceptar ": true when the line was created; the list then stands on it and the window closes.
    bool Aceptar(const std::string& descripcion, const std::string& peso, PantallaDeCreacion& pantalla);
    bool Creada() const { return creada_; }

  private:
    almacen::Recordset& lista_;
    const VariantePesos& variante_;
    programa::CajaMensajes& caja_;
    bool creada_ = false;
};

}  // namespace trabex::cargas::ui
