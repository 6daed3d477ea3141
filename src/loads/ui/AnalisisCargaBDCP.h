#pragma once

#include <vector>

#include "loads/Variantes.h"
#include "loads/ui/Entrada.h"
#include "loads/ui/Normas.h"
#include "shell/Servicios.h"
#include "store/Conexion.h"

namespace trabex::cargas::ui {

class AnalisisCargaNewCP;

/// The edit window that opened a list of unit weights and takes lines of it.
class ReceptorDePesos {
  public:
    virtual ~ReceptorDePesos() = default;
    /// A new line at the end of its items.
    virtual void RecibirPermanente(const PesoUnitario& peso) = 0;
    /// The one variable load, over what stood there.
    virtual void RecibirVariable(const PesoUnitario& peso) = 0;
    /// The list was closed.
    virtual void AlCerrarPesos() = 0;
};

/// What the operations ask of their window. Rows count from 1.
class PantallaDePesos {
  public:
    virtual ~PantallaDePesos() = default;
    virtual void LlenarLista(const std::vector<PesoUnitario>& lineas) = 0;
    virtual void MarcarFila(int fila) = 0;
    /// The window of a new line, until it closes.
    virtual void MostrarNueva(AnalisisCargaNewCP& operaciones) = 0;
    virtual void MostrarNormas(Normas& operaciones) = 0;
};

/// Operations of the window that browses and maintains a list of unit weights, which all projects share.
class AnalisisCargaBDCP {
  public:
    /// `compartida`: the connection of the window that stands below. `receptor`: the edit window.
    AnalisisCargaBDCP(almacen::Conexion& compartida, const VariantePesos& variante, ReceptorDePesos& receptor,
                      const programa::Servicios& servicios)
        : compartida_(compartida),
          variante_(variante),
          receptor_(receptor),
          servicios_(servicios),
          normas_(servicios) {}

    const VariantePesos& Variante() const { return variante_; }

    void Abrir(PantallaDePesos& pantalla);
    /// Closes the list; the edit window then sums again.
    void Cerrar();

    /// "Captura la Carga Seleccionada": the selected line goes to the edit window.
    void Capturar(int fila);
    /// "Crear Nueva Carga".
    void Crear();
    /// "Eliminar la Carga Seleccionada", after its question. An empty list does nothing.
    void Eliminar(int fila);
    /// "Modificar las Celdas": a changed cell goes back to the row at the same position. False when it is no
    /// weight, or, with a message, when it could not be stored.
    bool ModificarCelda(int fila, CampoDePeso campo, const std::string& texto);
    void VerNorma() { pantalla_->MostrarNormas(normas_); }

  private:
    bool MoverA(int fila);
    PesoUnitario Actual() const;
    void Rellenar();
    void Reabrir();

    almacen::Conexion& compartida_;
    const VariantePesos& variante_;
    ReceptorDePesos& receptor_;
    programa::Servicios servicios_;
    Normas normas_;
    PantallaDePesos* pantalla_ = nullptr;
    almacen::Recordset lista_;
};

}  // namespace trabex::cargas::ui
