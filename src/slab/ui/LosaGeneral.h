#pragma once

#include <cstddef>
#include <optional>

#include "shell/CajaMensajes.h"
#include "slab/Losa.h"
#include "store/Conexion.h"

namespace trabex::losas::ui {

/// Fields of the design parameters, in the order in which they are checked.
enum class CampoLosaGeneral : std::size_t { FC, FY, D8, FCP, FCV, FiMomento, FiCorte };

/// Operations of the window that edits the design parameters of all slabs.
class LosaGeneral {
  public:
    /// `conexion` is the workspace's; `generales` its working values.
    LosaGeneral(almacen::Conexion& conexion, DatosGenerales& generales, programa::CajaMensajes& caja)
        : conexion_(conexion), generales_(generales), caja_(caja) {}

    const DatosGenerales& Valores() const { return generales_; }

    /// The first field that is 0: it takes the focus and nothing is saved.
    static std::optional<CampoLosaGeneral> PrimerCero(const DatosGenerales& entrados);

    /// " Aceptar " on entries without a zero: they become the working values and the table's one row. False,
    /// with a message, when they could not be stored: the window then keeps them, and nothing else changes.
    bool Aceptar(const DatosGenerales& entrados);

  private:
    almacen::Conexion& conexion_;
    DatosGenerales& generales_;
    programa::CajaMensajes& caja_;
};

}  // namespace trabex::losas::ui
