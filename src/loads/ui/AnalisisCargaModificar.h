#pragma once

#include <functional>
#include <string>
#include <vector>

#include "loads/Variantes.h"
#include "loads/ui/AnalisisCargaBDCP.h"
#include "loads/ui/Entrada.h"
#include "loads/ui/Normas.h"
#include "shell/Servicios.h"
#include "store/Conexion.h"

namespace trabex::cargas::ui {

/// What the operations ask of their window. Rows count from 1.
class PantallaDeAnalisis {
  public:
    virtual ~PantallaDeAnalisis() = default;
    /// The whole analysis, and its position of `cuantos` on the scroll bar.
    virtual void PonerAnalisis(const AnalisisCarga& analisis, int posicion, int cuantos) = 0;
    virtual void LlenarItems(const std::vector<PesoUnitario>& items) = 0;
    virtual void MarcarItem(int fila) = 0;
    virtual void PonerVariable(const PesoUnitario& variable) = 0;
    virtual void PonerSumas(const SumasDeCarga& sumas) = 0;
    /// The windows of a list of weights and of the norm, until they close.
    virtual void MostrarPesos(AnalisisCargaBDCP& operaciones) = 0;
    virtual void MostrarNormas(Normas& operaciones) = 0;
};

/// The list of analyses whose selected one is edited. It and both connections outlive the edit window.
struct AnalisisEnEdicion {
    Ambito Donde;
    almacen::Conexion& Conexion;
    almacen::Recordset& Lista;
    almacen::Conexion& Compartida;            ///< where the lists of weights are
    std::function<void(double)> AlTotalizar;  ///< a save set the total of the selected line
};

/// Operations of the windows `AnalisisCargaModificarP` and `AnalisisCargaModificar`. Nothing is stored before
/// a save.
class AnalisisCargaModificar : public ReceptorDePesos {
  public:
    AnalisisCargaModificar(AnalisisEnEdicion edicion, const programa::Servicios& servicios)
        : edicion_(std::move(edicion)), servicios_(servicios), normas_(servicios) {}

    /// Shows the analysis on which the list stands.
    void Abrir(PantallaDeAnalisis& pantalla);

    /// A changed cell of the items, or the variable load, `Text1` and `Long1`. False when it is no weight;
    /// what stood before then counts. The name of the variable load alone is no modification.
    bool CambiarItem(int fila, CampoDePeso campo, const std::string& texto);
    bool CambiarVariable(CampoDePeso campo, const std::string& texto);

    /// A blank line at the end.
    void CrearLinea();
    /// Deletes the selected line, after its question.
    void EliminarLinea(int fila);
    void BuscarPesos(const VariantePesos& variante);
    void VerNorma() { pantalla_->MostrarNormas(normas_); }

    bool Modificado() const { return modificado_; }
    /// " Salvar ". False, with a message, when it could not be stored; the changes then stand in the window.
    bool Salvar();
    /// The scroll bar: another analysis of the list, after the question on changes. False when it stays.
    bool Desplazar(int posicion);
    /// Whether the window may close; asks when there are changes.
    bool Cerrar();

    void RecibirPermanente(const PesoUnitario& peso) override;
    void RecibirVariable(const PesoUnitario& peso) override;
    void AlCerrarPesos() override { Sumar(); }

  private:
    void Mostrar();
    void Modificar();
    void Sumar();
    bool ResolverCambios();

    AnalisisEnEdicion edicion_;
    programa::Servicios servicios_;
    Normas normas_;
    PantallaDeAnalisis* pantalla_ = nullptr;
    AnalisisCarga trabajo_;
    bool modificado_ = false;
};

}  // namespace trabex::cargas::ui
