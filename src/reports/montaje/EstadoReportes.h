#pragma once

#include <cstdint>
#include <filesystem>

#include "reports/montaje/PapelDeGraficos.h"
#include "store/Recordset.h"

namespace trabex::montaje {

/// What the dialogs choose for a report, and what is going on while one is made. One instance for the
/// program, passed by reference.
struct EstadoReportes {
    std::uint8_t OpcionExportarLosas = 0;  ///< 0 the selected slab, 1 all slabs
    bool ExportarDesplazamientos = false;  ///< the report shows the joints' displacements
    std::uint8_t OpcionGrafico = 0;        ///< which drawings: see GraficosLosas.h
    PapelDeGraficos Papel{};               ///< of the drawings whose dialog asks for it
    std::filesystem::path
        CarpetaGraficos{};           ///< where a picture was last saved in this run; empty: nowhere yet
    bool GenerandoReporte = false;   ///< calculations must not touch the window
    bool ExportandoGrafico = false;  ///< a drawing is being made for a picture or a report
};

/// Raises a flag for as long as it lives, whichever way it is left.
class BanderaEnAlto {
  public:
    explicit BanderaEnAlto(bool& bandera) : bandera_(bandera) { bandera_ = true; }
    ~BanderaEnAlto() { bandera_ = false; }
    BanderaEnAlto(const BanderaEnAlto&) = delete;
    BanderaEnAlto& operator=(const BanderaEnAlto&) = delete;

  private:
    bool& bandera_;
};

/// Puts a list back on the record it stood on, whichever way it is left.
class PosicionGuardada {
  public:
    explicit PosicionGuardada(almacen::Recordset& lista) : lista_(lista), posicion_(lista.Posicion()) {}
    ~PosicionGuardada() { lista_.MoverA(posicion_); }
    PosicionGuardada(const PosicionGuardada&) = delete;
    PosicionGuardada& operator=(const PosicionGuardada&) = delete;

  private:
    almacen::Recordset& lista_;
    int posicion_;
};

}  // namespace trabex::montaje
