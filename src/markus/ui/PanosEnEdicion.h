#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <vector>

#include "base/Aviso.h"
#include "base/ErrorEjecucion.h"
#include "markus/CalculeMarcus.h"

namespace trabex::marcus::ui {

/// The columns of the grid of panels that are entered, by their numbers in it.
enum class ColumnaDePano { Carga = 1, Caso, LX, LY };

/// The panels of a level while they are edited: always calculated when they are read, and a change can be
/// taken back. Rows count from 1.
class PanosEnEdicion {
  public:
    /// Other panels take the place of these; no change of theirs can be taken back.
    void Cargar(std::vector<PanoMarcus> panos);

    std::size_t Cuantos() const { return panos_.size(); }
    /// With their shares. From the first panel that can't be calculated on, shares are NaN.
    std::span<const PanoMarcus> Panos();
    /// What is to be told of them.
    Avisos LosAvisos();

    double Leer(std::size_t fila, ColumnaDePano columna) const;
    std::int16_t Caso(std::size_t fila) const { return panos_[fila - 1].Caso; }
    void Poner(std::size_t fila, ColumnaDePano columna, double valor);
    /// So many panels: further ones are without load and lengths and of case 1, those beyond go.
    void PonerNumero(std::size_t panos);

    /// All that is changed from the first change on until this is called is taken back as one.
    void CerrarCambio() { abierto_ = false; }
    bool PuedeDeshacer() const { return !anteriores_.empty(); }
    /// False when there is nothing to take back.
    bool Deshacer();

  private:
    void Recordar();
    void Calcular();

    std::vector<PanoMarcus> panos_;
    std::optional<ErrorEjecucion> error_;
    bool calculado_ = true;
    bool abierto_ = false;
    std::deque<std::vector<PanoMarcus>> anteriores_;
    std::size_t recordados_ = 0;  // panels in them
};

}  // namespace trabex::marcus::ui
