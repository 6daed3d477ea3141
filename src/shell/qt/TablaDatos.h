#pragma once

#include <QTableView>
#include <functional>
#include <optional>
#include <vector>

#include "shell/qt/CampoNumero.h"

namespace trabex::programa::qt {

class ModeloTabla;

/// A column of an entry table. Rows count from 1. What is read and put is a number (double) in a column of
/// numbers and a text in any other.
struct ColumnaDatos {
    QString Titulo;
    std::optional<ClaseNumero> Numero;  ///< nothing in a column of texts
    std::function<QVariant(int fila)> Leer;
    /// False refuses the entry, after its message: the cell shows the old value. Null in a column that can't
    /// be edited.
    std::function<bool(int fila, const QVariant& valor)> Poner = nullptr;
    int Largo = 255;  ///< of a text, in characters
    int Ancho = 0;    ///< of the column, in pixels; 0 shares what the others leave
};

/// Where Enter goes on to from a cell.
enum class Avance { Abajo, Derecha };

/// A table in which data are entered as in a spreadsheet: typing replaces a cell, F2 or a double click edit
/// it, Escape leaves it as it was, Enter, Tab and the arrows take the entry and go on; cells are copied and
/// pasted in blocks, deleted together, and edits inside a cell can be undone. It holds no data: its columns
/// read and put them.
class TablaDatos : public QTableView {
  public:
    TablaDatos(std::vector<ColumnaDatos> columnas, const Separadores& separadores, Avance avance,
               QWidget* padre);

    void PonerFilas(int filas);
    int Filas() const;
    /// Shows again what the columns read.
    void Refrescar();

    /// From 1; 0 when no cell is current.
    int FilaActual() const { return currentIndex().row() + 1; }
    void IrA(int fila, int columna);
    void AlCambiarFila(std::function<void(int fila)> accion) { alCambiarFila_ = std::move(accion); }

    /// Takes what a cell that is being edited holds, as leaving it would.
    void TerminarEdicion();

    void Copiar() const;
    void Pegar();
    void Borrar();

    /// The entry in an open editor is taken, and the next cell in that direction becomes current. A refused
    /// one stays where it is.
    void TomarYSeguir(QWidget* editor, int tecla);

    QSize sizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
    /// Tab walks the cells, and past the last one goes on to the next control.
    bool focusNextPrevChild(bool adelante) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void currentChanged(const QModelIndex& actual, const QModelIndex& anterior) override;

  private:
    void Seguir(int tecla);
    /// The cell that a key leads to; none where the table ends.
    QModelIndex Siguiente(int tecla) const;
    QModelIndex Avanzar(bool atras) const;
    bool Editable(int columna) const;
    QModelIndex EsquinaElegida() const;
    bool PegarBloque(const QStringList& filas, const QModelIndex& esquina);

    ModeloTabla* modelo_;
    Avance avance_;
    std::function<void(int)> alCambiarFila_;
};

}  // namespace trabex::programa::qt
