#pragma once

#include <string>
#include <vector>

#include "base/Aviso.h"

namespace trabex::programa {

class Renombrar;

/// What the operations of a workspace ask of its window, whatever the element.
class PantallaEspacio {
  public:
    virtual ~PantallaEspacio() = default;
    virtual void PonerTitulo(const std::string& titulo) = 0;
    /// Line at the window's foot.
    virtual void PonerEstado(const std::string& texto) = 0;
    /// Line above the sheets: the selected element; empty without one.
    virtual void PonerEncabezado(const std::string& texto) = 0;
    /// What is to be told of the selected element, beside the foot's line.
    virtual void PonerAvisos(const Avisos& avisos) = 0;

    // The list. Rows count from 1.
    virtual void LlenarLista(const std::vector<std::string>& nombres) = 0;
    virtual void MarcarFila(int fila) = 0;
    /// Shows that the element of a row fails, or no longer.
    virtual void MarcarFalla(int fila, bool falla) = 0;

    /// Shows which tab is in front, from 0, without drawing it.
    virtual void MarcarHoja(int hoja) = 0;
    /// Zoom 1 and no pan.
    virtual void RestablecerVista() = 0;
    /// Draws the sheet on show, now; nothing while no sheet is in front.
    virtual void Redibujar() = 0;

    /// The window of an element's new name, until it closes.
    virtual void MostrarRenombrar(Renombrar& operaciones) = 0;
};

}  // namespace trabex::programa
