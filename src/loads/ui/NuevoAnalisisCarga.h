#pragma once

#include <string>

#include "loads/Creacion.h"
#include "loads/Variantes.h"
#include "loads/ui/Entrada.h"

namespace trabex::cargas::ui {

/// Operations of the windows `NuevoAnalisisCargaP` and `NuevoAnalisisCarga`, which ask for a description
/// only.
class NuevoAnalisisCarga {
  public:
    NuevoAnalisisCarga(almacen::Recordset& lista, const VarianteAnalisis& variante, const FuenteAzar& azar,
                       programa::CajaMensajes& caja)
        : lista_(lista), variante_(variante), azar_(azar), caja_(caja) {}

    /// " Aceptar ": true when the analysis was created; the list then stands on it and the window closes.
    bool Aceptar(const std::string& descripcion, PantallaDeCreacion& pantalla);
    bool Creado() const { return creado_; }

  private:
    almacen::Recordset& lista_;
    const VarianteAnalisis& variante_;
    const FuenteAzar& azar_;
    programa::CajaMensajes& caja_;
    bool creado_ = false;
};

}  // namespace trabex::cargas::ui
