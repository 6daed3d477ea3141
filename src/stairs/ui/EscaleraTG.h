#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "base/DatosGenerales.h"
#include "stairs/ui/CamposEscalera.h"
#include "store/tablas/TablasEscalera.h"

namespace trabex::escaleras::ui {

/// Fields of the design parameters of stairs, in the order in which they stand and are checked.
enum class CampoEscaleraTG : std::size_t { FC, FY, D8, FS, FiMomento, FiCorte };

/// The parameters as they are typed: the strengths may be past what the table holds.
struct EntradaEscaleraTG {
    std::int32_t FC;
    std::int32_t FY;
    double D8;
    double FS;
    double FiMomento;
    double FiCorte;
};

/// Operations of the window that edits the design parameters of all stairs of one kind.
class EscaleraTG {
  public:
    /// `conexion` is the workspace's, `generales` its working values; a save raises `datosCambiados`.
    EscaleraTG(almacen::Conexion& conexion, almacen::tablas::ClaseEscalera clase, DatosGenerales& generales,
               bool& datosCambiados, programa::CajaMensajes& caja,
               PantallaDeCampos<CampoEscaleraTG>& pantalla)
        : conexion_(conexion),
          clase_(clase),
          generales_(generales),
          datosCambiados_(datosCambiados),
          caja_(caja),
          pantalla_(pantalla) {}

    EntradaEscaleraTG Mostrar() const;

    /// The first field that is exactly 0.
    static std::optional<CampoEscaleraTG> PrimerCero(const EntradaEscaleraTG& entrados);

    /// " Aceptar ": whether the window closes. A 0 takes the focus, without a message. A strength past 32767
    /// is an overflow: nothing is stored, and the working values before it in the order of the fields have
    /// changed. A save that did not go through leaves them as they were.
    bool Aceptar(const EntradaEscaleraTG& entrados);

  private:
    void Copiar(const EntradaEscaleraTG& entrados);

    almacen::Conexion& conexion_;
    almacen::tablas::ClaseEscalera clase_;
    DatosGenerales& generales_;
    bool& datosCambiados_;
    programa::CajaMensajes& caja_;
    PantallaDeCampos<CampoEscaleraTG>& pantalla_;
};

}  // namespace trabex::escaleras::ui
