#pragma once

#include <QKeySequence>
#include <functional>
#include <string>
#include <vector>

class QDialog;
class QVBoxLayout;
class QVariant;

namespace trabex::programa::qt {
class TablaDatos;
}

namespace trabex::cargas::ui::qt {

/// A command of a window: an entry of its menu, a button of its tool bar, and its keys.
struct Mando {
    const char* Nombre;
    const char* Icono;
    const char* Texto;  ///< with its mnemonic
    const char* Ayuda;
    const char* Teclas;
    std::function<void()> Hacer;
};

/// Puts a menu bar and a tool bar with a window's commands, and " Retorno ", on top of its column.
void PonerMandos(QDialog& ventana, QVBoxLayout& columna, const char* menu, const std::vector<Mando>& mandos);

/// A list that is chosen from, and whose cells can be edited only where its window says so: the check
/// "Modificar las Celdas" below `tabla`. While it is off, Enter and a double click run `alElegir`.
void PonerModificarCeldas(programa::qt::TablaDatos& tabla, QVBoxLayout& columna,
                          const std::function<void()>& alElegir);

/// What a table's column puts, as the operations read it.
std::string TextoEntrado(const QVariant& valor);

}  // namespace trabex::cargas::ui::qt
