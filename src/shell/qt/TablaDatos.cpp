#include "shell/qt/TablaDatos.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QStyledItemDelegate>
#include <algorithm>

#include "shell/qt/ComunVentanas.h"

namespace trabex::programa::qt {

/// The cells as their columns read and put them.
class ModeloTabla : public QAbstractTableModel {
  public:
    ModeloTabla(std::vector<ColumnaDatos> columnas, const Separadores& separadores, QObject* padre)
        : QAbstractTableModel(padre), columnas_(std::move(columnas)), separadores_(separadores) {}

    const ColumnaDatos& Columna(int columna) const { return columnas_[static_cast<std::size_t>(columna)]; }
    void PonerFilas(int filas);
    void Refrescar();
    /// The last entry was taken.
    bool Tomada() const { return tomada_; }

    int rowCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : filas_; }
    int columnCount(const QModelIndex& = {}) const override { return static_cast<int>(columnas_.size()); }
    QVariant data(const QModelIndex& celda, int papel) const override;
    bool setData(const QModelIndex& celda, const QVariant& valor, int papel) override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex& celda) const override;

  private:
    QString Texto(const QModelIndex& celda) const;

    std::vector<ColumnaDatos> columnas_;
    Separadores separadores_;
    int filas_ = 0;
    bool poniendo_ =
        false;  // a message that an entry brings up takes the focus, and the editor tells it again
    bool tomada_ = true;
};

void ModeloTabla::PonerFilas(int filas) {
    if (filas > filas_) {
        beginInsertRows({}, filas_, filas - 1);
        filas_ = filas;
        endInsertRows();
    } else if (filas < filas_) {
        beginRemoveRows({}, filas, filas_ - 1);
        filas_ = filas;
        endRemoveRows();
    }
}

void ModeloTabla::Refrescar() {
    if (filas_ == 0) return;
    Q_EMIT dataChanged(index(0, 0), index(filas_ - 1, columnCount() - 1));
    Q_EMIT headerDataChanged(Qt::Vertical, 0, filas_ - 1);
}

QString ModeloTabla::Texto(const QModelIndex& celda) const {
    const ColumnaDatos& columna = Columna(celda.column());
    const QVariant valor = columna.Leer(celda.row() + 1);
    if (!columna.Numero || valor.typeId() != QMetaType::Double) return valor.toString();
    return Q(NumeroParaEditar(valor.toDouble(), columna.Numero->Decimales, separadores_));
}

QVariant ModeloTabla::data(const QModelIndex& celda, int papel) const {
    const ColumnaDatos& columna = Columna(celda.column());
    switch (papel) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return Texto(celda);
        case Qt::TextAlignmentRole:
            return QVariant((columna.Numero ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        case Qt::BackgroundRole:
            return columna.Poner ? QVariant() : QApplication::palette().brush(QPalette::Window);
        default:
            return {};
    }
}

bool ModeloTabla::setData(const QModelIndex& celda, const QVariant& valor, int papel) {
    const ColumnaDatos& columna = Columna(celda.column());
    if (papel != Qt::EditRole || !columna.Poner || poniendo_) return false;
    if (valor.toString() == Texto(celda)) return tomada_ = true;
    QVariant entrado = valor.toString().left(columna.Largo);
    tomada_ = true;
    if (columna.Numero) {
        const auto numero = NumeroDe(valor.toString(), *columna.Numero);
        tomada_ = numero.has_value();
        entrado = numero.value_or(0);
        if (!tomada_) QApplication::beep();
    }
    poniendo_ = true;
    tomada_ = tomada_ && columna.Poner(celda.row() + 1, entrado);
    poniendo_ = false;
    Q_EMIT dataChanged(index(celda.row(), 0), index(celda.row(), columnCount() - 1));
    return tomada_;
}

QVariant ModeloTabla::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
    if (papel == Qt::TextAlignmentRole && orientacion == Qt::Vertical) return Qt::AlignCenter;
    if (papel != Qt::DisplayRole) return {};
    if (orientacion == Qt::Horizontal) return Columna(seccion).Titulo;
    return QString::number(seccion + 1);
}

Qt::ItemFlags ModeloTabla::flags(const QModelIndex& celda) const {
    const Qt::ItemFlags base = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return celda.isValid() && Columna(celda.column()).Poner ? base | Qt::ItemIsEditable : base;
}

namespace {

/// The editor of a cell: a line that takes what its column takes.
class EditorDeCelda : public QStyledItemDelegate {
  public:
    EditorDeCelda(TablaDatos& tabla, const ModeloTabla& modelo)
        : QStyledItemDelegate(&tabla), tabla_(tabla), modelo_(modelo) {}

    QWidget* createEditor(QWidget* padre, const QStyleOptionViewItem&,
                          const QModelIndex& celda) const override {
        const ColumnaDatos& columna = modelo_.Columna(celda.column());
        auto* linea = new QLineEdit(padre);
        linea->setFrame(false);
        linea->setMaxLength(columna.Largo);
        if (columna.Numero) {
            linea->setAlignment(Qt::AlignRight);
            linea->setValidator(new ValidadorNumero(*columna.Numero, linea));
        }
        return linea;
    }

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() == QEvent::KeyPress) {
            const int tecla = static_cast<QKeyEvent*>(evento)->key();
            for (const int propia :
                 {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Up, Qt::Key_Down}) {
                if (tecla != propia) continue;
                tabla_.TomarYSeguir(static_cast<QWidget*>(objeto), tecla);
                return true;
            }
        }
        return QStyledItemDelegate::eventFilter(objeto, evento);
    }

  private:
    TablaDatos& tabla_;
    const ModeloTabla& modelo_;
};

}  // namespace

TablaDatos::TablaDatos(std::vector<ColumnaDatos> columnas, const Separadores& separadores, Avance avance,
                       QWidget* padre)
    : QTableView(padre), modelo_(new ModeloTabla(std::move(columnas), separadores, this)), avance_(avance) {
    setModel(modelo_);
    setItemDelegate(new EditorDeCelda(*this, *modelo_));
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSelectionMode(ContiguousSelection);
    setAlternatingRowColors(true);
    setCornerButtonEnabled(true);
    setTabKeyNavigation(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    for (int c = 0; c < modelo_->columnCount(); ++c) {
        if (modelo_->Columna(c).Ancho == 0) continue;
        horizontalHeader()->setSectionResizeMode(c, QHeaderView::Fixed);
        setColumnWidth(c, modelo_->Columna(c).Ancho);
    }
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

QSize TablaDatos::sizeHint() const {
    return {110 + 95 * modelo_->columnCount(), 260};
}

void TablaDatos::PonerFilas(int filas) {
    modelo_->PonerFilas(filas);
    modelo_->Refrescar();
    if (filas > 0 && !currentIndex().isValid()) IrA(1, 0);
}

int TablaDatos::Filas() const {
    return modelo_->rowCount();
}

void TablaDatos::Refrescar() {
    modelo_->Refrescar();
}

void TablaDatos::IrA(int fila, int columna) {
    const QModelIndex celda = modelo_->index(fila - 1, columna);
    if (celda.isValid()) setCurrentIndex(celda);
}

void TablaDatos::currentChanged(const QModelIndex& actual, const QModelIndex& anterior) {
    QTableView::currentChanged(actual, anterior);
    if (alCambiarFila_ && actual.isValid() && actual.row() != anterior.row())
        alCambiarFila_(actual.row() + 1);
}

bool TablaDatos::Editable(int columna) const {
    return modelo_->Columna(columna).Poner != nullptr;
}

/// The next cell that can be edited, along the table's way of going on; past its end, none.
QModelIndex TablaDatos::Avanzar(bool atras) const {
    const int filas = modelo_->rowCount();
    const int columnas = modelo_->columnCount();
    const bool abajo = avance_ == Avance::Abajo;
    const int total = filas * columnas;
    const auto lugar = [&](int i) {
        return abajo ? modelo_->index(i % filas, i / filas) : modelo_->index(i / columnas, i % columnas);
    };
    const QModelIndex actual = currentIndex();
    const int desde =
        abajo ? actual.column() * filas + actual.row() : actual.row() * columnas + actual.column();
    const int paso = atras ? -1 : 1;
    for (int i = desde + paso; i >= 0 && i < total; i += paso) {
        if (Editable(lugar(i).column())) return lugar(i);
    }
    return {};
}

QModelIndex TablaDatos::Siguiente(int tecla) const {
    const QModelIndex actual = currentIndex();
    if (!actual.isValid()) return {};
    switch (tecla) {
        case Qt::Key_Up:
            return actual.siblingAtRow(actual.row() - 1);
        case Qt::Key_Down:
            return actual.siblingAtRow(actual.row() + 1);
        default:
            return Avanzar(tecla == Qt::Key_Backtab);
    }
}

void TablaDatos::TomarYSeguir(QWidget* editor, int tecla) {
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
    setFocus();  // a message has taken it from the editor
    if (modelo_->Tomada()) Seguir(tecla);
}

void TablaDatos::Seguir(int tecla) {
    const QModelIndex siguiente = Siguiente(tecla);
    if (siguiente.isValid()) setCurrentIndex(siguiente);
}

void TablaDatos::TerminarEdicion() {
    QWidget* editor = indexWidget(currentIndex());
    if (state() != EditingState || editor == nullptr) return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void TablaDatos::keyPressEvent(QKeyEvent* evento) {
    if (evento->matches(QKeySequence::Copy)) return Copiar();
    if (evento->matches(QKeySequence::Paste)) return Pegar();
    switch (evento->key()) {
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            return Borrar();
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Seguir(evento->key());
        default:
            QTableView::keyPressEvent(evento);
    }
}

bool TablaDatos::focusNextPrevChild(bool adelante) {
    const QModelIndex siguiente = Siguiente(adelante ? Qt::Key_Tab : Qt::Key_Backtab);
    if (!hasFocus() || !siguiente.isValid()) return QTableView::focusNextPrevChild(adelante);
    setCurrentIndex(siguiente);
    return true;
}

void TablaDatos::contextMenuEvent(QContextMenuEvent* evento) {
    QMenu menu(this);
    menu.addAction("&Copiar\tCtrl+C", this, [this] { Copiar(); });
    menu.addAction("&Pegar\tCtrl+V", this, [this] { Pegar(); });
    menu.addAction("&Borrar\tSupr", this, [this] { Borrar(); });
    menu.exec(evento->globalPos());
}

QModelIndex TablaDatos::EsquinaElegida() const {
    const QModelIndexList elegidas = selectedIndexes();
    if (elegidas.isEmpty()) return currentIndex();
    return *std::min_element(elegidas.begin(), elegidas.end());
}

void TablaDatos::Copiar() const {
    QModelIndexList elegidas = selectedIndexes();
    if (elegidas.isEmpty()) return;
    std::sort(elegidas.begin(), elegidas.end());
    QString texto;
    int fila = elegidas.front().row();
    for (const QModelIndex& celda : elegidas) {
        if (celda != elegidas.front()) texto += celda.row() == fila ? '\t' : '\n';
        fila = celda.row();
        texto += celda.data().toString();
    }
    QApplication::clipboard()->setText(texto);
}

/// Puts a block's cells from a corner on, as far as the table reaches. False at the first one that is
/// refused.
bool TablaDatos::PegarBloque(const QStringList& filas, const QModelIndex& esquina) {
    for (int f = 0; f < filas.size(); ++f) {
        const QStringList celdas = filas[f].split('\t');
        for (int c = 0; c < celdas.size(); ++c) {
            const QModelIndex celda = modelo_->index(esquina.row() + f, esquina.column() + c);
            if (!celda.isValid() || !Editable(celda.column())) continue;
            if (!modelo_->setData(celda, celdas[c].trimmed(), Qt::EditRole)) {
                setCurrentIndex(celda);
                return false;
            }
        }
    }
    return true;
}

/// One value fills all the cells that are selected; a block is put from the first of them on.
void TablaDatos::Pegar() {
    QString texto = QApplication::clipboard()->text().remove('\r');
    if (texto.endsWith('\n')) texto.chop(1);
    const QStringList filas = texto.split('\n');
    const QModelIndexList elegidas = selectedIndexes();
    const QModelIndex esquina = EsquinaElegida();
    if (!esquina.isValid()) return;
    if (filas.size() > 1 || filas[0].contains('\t') || elegidas.size() < 2) {
        PegarBloque(filas, esquina);
        return;
    }
    for (const QModelIndex& celda : elegidas) {
        if (!PegarBloque(filas, celda)) return;
    }
}

void TablaDatos::Borrar() {
    for (const QModelIndex& celda : selectedIndexes()) {
        if (Editable(celda.column()) && !modelo_->setData(celda, QString(), Qt::EditRole)) return;
    }
}

}  // namespace trabex::programa::qt
