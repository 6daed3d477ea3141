#pragma once

#include <QTableView>
#include <functional>
#include <optional>
#include <utility>
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
    /// The entry below another when a column is filled down; null repeats it.
    std::function<QString(const QString& texto)> Siguiente = nullptr;
    int Largo = 255;  ///< of a text, in characters; a longer one is refused
    int Ancho = 0;    ///< of the column, in pixels; 0 shares what the others leave
};

/// A table in which data are entered as in a spreadsheet: typing replaces a cell, F2 or a double click edit
/// it, Escape leaves it as it was. Tab goes right and, past the last cell, out; Ctrl+Tab goes out at once;
/// Enter goes down, below where a run of Tab began. Cells are copied and pasted in blocks, a block whole or
/// not at all, and deleted together; Ctrl+D fills down from a
/// cell; Ctrl+Z takes entries back, Ctrl+Y brings them again. An entry that is no
/// number of its column stays in its cell, marked and with its reason. It holds no data: its columns read and
/// put them.
class TablaDatos : public QTableView, public EntradaJuzgada {
  public:
    TablaDatos(std::vector<ColumnaDatos> columnas, const Separadores& separadores, QWidget* padre);

    void PonerFilas(int filas);
    int Filas() const;
    /// Whether cells can be edited. While they can't, rows are selected whole.
    void PonerEditable(bool editable);
    /// Shows again what the columns read.
    void Refrescar();

    /// From 1; 0 when no cell is current.
    int FilaActual() const { return currentIndex().row() + 1; }
    void IrA(int fila, int columna);
    void AlCambiarFila(std::function<void(int fila)> accion) { alCambiarFila_ = std::move(accion); }

    /// Other data come on show: what stood refused and what could be undone is forgotten.
    void OlvidarCambios();

    /// Takes what a cell that is being edited holds, as leaving it would.
    void Terminar() override;
    QString Motivo() const override;
    void Reclamar() override;

    void Copiar() const;
    void Pegar();
    void Borrar();
    /// From the current cell on, to the end of the column or of what is selected in it.
    void RellenarAbajo();
    void Deshacer();
    void Rehacer();
    /// Whoever holds the data takes changes back, others than entries among them.
    void DeshacerPor(std::function<void()> accion) { deshacerPor_ = std::move(accion); }

    /// The entry in an open editor is taken, and the next cell that a key leads to becomes current. A refused
    /// one stays where it is.
    void TomarYSeguir(QWidget* editor, const QKeyEvent& tecla);
    /// The keyboard is in the table or in one of its cells.
    virtual bool EnMano() const;

    QSize sizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
    /// Tab walks the cells, and past the last one goes on to the next control.
    bool focusNextPrevChild(bool adelante) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void currentChanged(const QModelIndex& actual, const QModelIndex& anterior) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void initViewItemOption(QStyleOptionViewItem* opcion) const override;

    /// Goes where a key leads once its entry is taken.
    virtual void Seguir(int tecla, Qt::KeyboardModifiers mas);
    /// To the widget behind the table, or the one before it.
    void SalirDeLaTabla(bool adelante);

  private:
    /// The next cell that can be edited; none past the table's end.
    QModelIndex Avanzar(bool atras) const;
    bool Editable(int columna) const;
    QModelIndex EsquinaElegida() const;
    /// Why a block does not go into the table from a corner on, and the cell where it fails; empty when it
    /// does.
    std::pair<QString, QModelIndex> FaltaDelBloque(const QList<QStringList>& bloque,
                                                   const QModelIndex& esquina) const;
    bool PonerBloque(const QList<QStringList>& bloque, const QModelIndex& esquina);
    void PonerTodo(const QList<QStringList>& bloque, const QModelIndexList& esquinas);
    void Mostrar(const QModelIndex& celda);

    ModeloTabla* modelo_;
    int columnaDeEnter_ = -1;  // where the run of Tab began; none when there is no run
    std::function<void(int)> alCambiarFila_;
    std::function<void()> deshacerPor_;
};

}  // namespace trabex::programa::qt
