#include "shell/qt/TablaDatos.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QStyledItemDelegate>
#include <QTimer>
#include <algorithm>

#include "shell/qt/CampoTexto.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::programa::qt {

/// The cells as their columns read and put them, and what was put into them.
class ModeloTabla : public QAbstractTableModel {
  public:
    ModeloTabla(std::vector<ColumnaDatos> columnas, const Separadores& separadores, QObject* padre)
        : QAbstractTableModel(padre), columnas_(std::move(columnas)), separadores_(separadores) {}

    const ColumnaDatos& Columna(int columna) const { return columnas_[static_cast<std::size_t>(columna)]; }
    void PonerFilas(int filas);
    void PonerEditable(bool editable) { editable_ = editable; }
    bool Editable(int columna) const { return editable_ && Columna(columna).Poner != nullptr; }
    void Refrescar();
    /// The last entry was taken.
    bool Tomada() const { return tomada_; }

    /// The cell whose entry stands refused, and why.
    QModelIndex Rechazada() const { return rechazada_; }
    QString Motivo() const { return rechazada_.isValid() ? motivo_ : QString(); }
    void OlvidarRechazo();

    /// An entry as its column takes it, or why it does not.
    std::pair<QVariant, QString> Juzgar(int columna, const QString& texto) const;

    /// What is put from now on is undone together.
    void AbrirGrupo();
    /// A group that was not taken whole is put back.
    void CerrarGrupo(bool tomado);
    /// Puts back what the last group found, and the other way round. The first of its cells; none without it.
    QModelIndex Deshacer() { return Repetir(hechos_, deshechos_); }
    QModelIndex Rehacer() { return Repetir(deshechos_, hechos_); }
    void OlvidarCambios();

    int rowCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : filas_; }
    int columnCount(const QModelIndex& = {}) const override { return static_cast<int>(columnas_.size()); }
    QVariant data(const QModelIndex& celda, int papel) const override;
    bool setData(const QModelIndex& celda, const QVariant& valor, int papel) override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex& celda) const override;

  private:
    struct Cambio {
        int Fila;
        int Columna;
        QVariant Otro;  ///< what a repetition puts
    };
    using Grupo = std::vector<Cambio>;

    QString Texto(const QModelIndex& celda) const;
    bool Poner(const QModelIndex& celda, const QVariant& valor);
    QModelIndex Repetir(std::vector<Grupo>& de, std::vector<Grupo>& a);

    std::vector<ColumnaDatos> columnas_;
    Separadores separadores_;
    int filas_ = 0;
    bool editable_ = true;
    bool poniendo_ =
        false;  // a message that an entry brings up takes the focus, and the editor tells it again
    bool tomada_ = true;
    QPersistentModelIndex rechazada_;
    QString rechazado_;
    QString motivo_;
    std::vector<Grupo> hechos_;
    std::vector<Grupo> deshechos_;
    bool agrupando_ = false;
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
        const auto perdido = [this](const Grupo& grupo) {
            return std::any_of(grupo.begin(), grupo.end(),
                               [this](const Cambio& c) { return c.Fila >= filas_; });
        };
        std::erase_if(hechos_, perdido);
        std::erase_if(deshechos_, perdido);
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
    const bool rechazada = celda == rechazada_;
    switch (papel) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return rechazada ? rechazado_ : Texto(celda);
        case Qt::ToolTipRole:
            return rechazada ? motivo_.toHtmlEscaped() : QVariant();
        case Qt::TextAlignmentRole:
            return QVariant((columna.Numero ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        case Qt::BackgroundRole:
            if (rechazada) return FondoDeRechazo(QApplication::palette());
            return columna.Poner ? QVariant() : QApplication::palette().brush(QPalette::Window);
        default:
            return {};
    }
}

std::pair<QVariant, QString> ModeloTabla::Juzgar(int columna, const QString& texto) const {
    const ColumnaDatos& como = Columna(columna);
    if (como.Numero) {
        const NumeroJuzgado juzgado = JuzgarNumero(S(texto), *como.Numero, separadores_);
        return {juzgado.Valor.value_or(0), Q(juzgado.Motivo)};
    }
    return {texto, MotivoDeLargo(texto, como.Largo)};
}

bool ModeloTabla::setData(const QModelIndex& celda, const QVariant& valor, int papel) {
    const QString texto = valor.toString();
    if (papel != Qt::EditRole || !Editable(celda.column()) || poniendo_) return false;
    if (celda == rechazada_ && texto == rechazado_) return tomada_ = false;
    const bool estaba = texto == Texto(celda);
    OlvidarRechazo();
    if (estaba) return tomada_ = true;
    const auto [entrado, motivo] = Juzgar(celda.column(), texto);
    tomada_ = motivo.isEmpty();
    if (tomada_) {
        const QVariant antes = Columna(celda.column()).Leer(celda.row() + 1);
        tomada_ = Poner(celda, entrado);
        if (tomada_) {
            if (!agrupando_) hechos_.emplace_back();
            hechos_.back().push_back({celda.row(), celda.column(), antes});
            deshechos_.clear();
        }
    } else {
        rechazada_ = celda;
        rechazado_ = texto;
        motivo_ = motivo;
    }
    Q_EMIT dataChanged(index(celda.row(), 0), index(celda.row(), columnCount() - 1));
    return tomada_;
}

bool ModeloTabla::Poner(const QModelIndex& celda, const QVariant& valor) {
    poniendo_ = true;
    const bool tomado = Columna(celda.column()).Poner(celda.row() + 1, valor);
    poniendo_ = false;
    return tomado;
}

void ModeloTabla::OlvidarRechazo() {
    if (!rechazada_.isValid()) return;
    const QModelIndex celda = rechazada_;
    rechazada_ = QPersistentModelIndex();
    motivo_.clear();
    Q_EMIT dataChanged(celda, celda);
}

void ModeloTabla::AbrirGrupo() {
    hechos_.emplace_back();
    agrupando_ = true;
}

void ModeloTabla::CerrarGrupo(bool tomado) {
    agrupando_ = false;
    if (hechos_.back().empty())
        hechos_.pop_back();
    else if (!tomado) {
        Deshacer();
        deshechos_.clear();
    }
}

QModelIndex ModeloTabla::Repetir(std::vector<Grupo>& de, std::vector<Grupo>& a) {
    if (de.empty()) return {};
    const Grupo grupo = std::move(de.back());
    de.pop_back();
    Grupo vuelta;
    for (auto cambio = grupo.rbegin(); cambio != grupo.rend(); ++cambio) {
        const QModelIndex celda = index(cambio->Fila, cambio->Columna);
        const QVariant antes = Columna(cambio->Columna).Leer(cambio->Fila + 1);
        if (!celda.isValid() || !Poner(celda, cambio->Otro)) break;
        vuelta.push_back({cambio->Fila, cambio->Columna, antes});
    }
    if (!vuelta.empty()) a.push_back(std::move(vuelta));
    Refrescar();
    return index(grupo.front().Fila, grupo.front().Columna);
}

void ModeloTabla::OlvidarCambios() {
    OlvidarRechazo();
    hechos_.clear();
    deshechos_.clear();
}

QVariant ModeloTabla::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
    if (papel == Qt::TextAlignmentRole && orientacion == Qt::Vertical) return Qt::AlignCenter;
    if (papel != Qt::DisplayRole) return {};
    if (orientacion == Qt::Horizontal) return Columna(seccion).Titulo;
    return QString::number(seccion + 1);
}

Qt::ItemFlags ModeloTabla::flags(const QModelIndex& celda) const {
    const Qt::ItemFlags base = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return celda.isValid() && Editable(celda.column()) ? base | Qt::ItemIsEditable : base;
}

namespace {

bool EsRellenar(const QKeyEvent& tecla) {
    return tecla.key() == Qt::Key_D && tecla.modifiers() == Qt::ControlModifier;
}

/// The editor of a cell: a line that takes what its column takes.
class EditorDeCelda : public QStyledItemDelegate {
  public:
    EditorDeCelda(TablaDatos& tabla, const ModeloTabla& modelo)
        : QStyledItemDelegate(&tabla), tabla_(tabla), modelo_(modelo) {}

    QWidget* createEditor(QWidget* padre, const QStyleOptionViewItem&,
                          const QModelIndex& celda) const override {
        auto* linea = new QLineEdit(padre);
        linea->setFrame(false);
        if (modelo_.Columna(celda.column()).Numero) linea->setAlignment(Qt::AlignRight);
        return linea;
    }

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() == QEvent::KeyPress) {
            const auto& tecla = static_cast<QKeyEvent&>(*evento);
            for (const int propia : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Up,
                                     Qt::Key_Down, Qt::Key_D}) {
                if (tecla.key() != propia || (propia == Qt::Key_D && !EsRellenar(tecla))) continue;
                tabla_.TomarYSeguir(static_cast<QWidget*>(objeto), tecla);
                return true;
            }
        }
        return QStyledItemDelegate::eventFilter(objeto, evento);
    }

  protected:
    /// Where the keyboard is elsewhere no cell looks as if it took what is typed.
    void initStyleOption(QStyleOptionViewItem* opcion, const QModelIndex& celda) const override {
        QStyledItemDelegate::initStyleOption(opcion, celda);
        if (!tabla_.EnMano()) opcion->state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
        if (celda != modelo_.Rechazada()) return;  // its mark shows through the selection too
        opcion->palette.setBrush(QPalette::Highlight, opcion->backgroundBrush);
        opcion->palette.setBrush(QPalette::HighlightedText, opcion->palette.text());
    }

  private:
    TablaDatos& tabla_;
    const ModeloTabla& modelo_;
};

}  // namespace

TablaDatos::TablaDatos(std::vector<ColumnaDatos> columnas, const Separadores& separadores, QWidget* padre)
    : QTableView(padre), modelo_(new ModeloTabla(std::move(columnas), separadores, this)) {
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

void TablaDatos::PonerEditable(bool editable) {
    Terminar();
    if (!editable) OlvidarCambios();
    modelo_->PonerEditable(editable);
    setSelectionBehavior(editable ? SelectItems : SelectRows);
    if (currentIndex().isValid())
        selectionModel()->select(currentIndex(),
                                 editable ? QItemSelectionModel::ClearAndSelect
                                          : QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

int TablaDatos::Filas() const {
    return modelo_->rowCount();
}

void TablaDatos::Refrescar() {
    modelo_->Refrescar();
}

void TablaDatos::IrA(int fila, int columna) {
    Mostrar(modelo_->index(fila - 1, columna));
}

void TablaDatos::Mostrar(const QModelIndex& celda) {
    if (celda.isValid()) setCurrentIndex(celda);
}

void TablaDatos::OlvidarCambios() {
    modelo_->OlvidarCambios();
}

void TablaDatos::currentChanged(const QModelIndex& actual, const QModelIndex& anterior) {
    QTableView::currentChanged(actual, anterior);
    columnaDeEnter_ = -1;
    if (alCambiarFila_ && actual.isValid() && actual.row() != anterior.row())
        alCambiarFila_(actual.row() + 1);
    const QModelIndex rechazada = modelo_->Rechazada();
    if (rechazada.isValid() && actual != rechazada)
        QTimer::singleShot(0, this, [this] {
            if (modelo_->Rechazada().isValid() && currentIndex() != modelo_->Rechazada()) Reclamar();
        });
}

/// The row below a cell is painted by the view, with the view's palette.
void TablaDatos::initViewItemOption(QStyleOptionViewItem* opcion) const {
    QTableView::initViewItemOption(opcion);
    if (!EnMano()) opcion->palette.setBrush(QPalette::Highlight, Qt::transparent);
}

bool TablaDatos::EnMano() const {
    return hasFocus() || isAncestorOf(QApplication::focusWidget());
}

bool TablaDatos::Editable(int columna) const {
    return modelo_->Editable(columna);
}

QModelIndex TablaDatos::Avanzar(bool atras) const {
    const int columnas = modelo_->columnCount();
    const int total = modelo_->rowCount() * columnas;
    const int paso = atras ? -1 : 1;
    for (int i = currentIndex().row() * columnas + currentIndex().column() + paso; i >= 0 && i < total;
         i += paso)
        if (Editable(i % columnas)) return modelo_->index(i / columnas, i % columnas);
    return {};
}

void TablaDatos::TomarYSeguir(QWidget* editor, const QKeyEvent& tecla) {
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
    setFocus();  // a message has taken it from the editor
    if (modelo_->Tomada() && EsRellenar(tecla))
        RellenarAbajo();
    else if (modelo_->Tomada())
        Seguir(tecla.key(), tecla.modifiers());
    else if (!Motivo().isEmpty())
        Reclamar();
}

void TablaDatos::Seguir(int tecla, Qt::KeyboardModifiers mas) {
    const QModelIndex actual = currentIndex();
    const bool tabulador = tecla == Qt::Key_Tab || tecla == Qt::Key_Backtab;
    const bool atras = tecla == Qt::Key_Backtab || (tabulador && mas.testFlag(Qt::ShiftModifier));
    if (tabulador) {
        const QModelIndex siguiente = mas.testFlag(Qt::ControlModifier) ? QModelIndex() : Avanzar(atras);
        if (!siguiente.isValid()) {
            SalirDeLaTabla(!atras);
            return;
        }
        const int empezo = columnaDeEnter_ >= 0 ? columnaDeEnter_ : actual.column();
        setCurrentIndex(siguiente);
        columnaDeEnter_ = siguiente.row() == actual.row() ? empezo : siguiente.column();
        return;
    }
    const bool enter = tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
    const int columna = enter && columnaDeEnter_ >= 0 ? columnaDeEnter_ : actual.column();
    const QModelIndex siguiente = actual.sibling(actual.row() + (tecla == Qt::Key_Up ? -1 : 1), columna);
    if (siguiente.isValid()) setCurrentIndex(siguiente);
}

void TablaDatos::Terminar() {
    QWidget* editor = indexWidget(currentIndex());
    if (state() != EditingState || editor == nullptr) return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

QString TablaDatos::Motivo() const {
    return modelo_->Motivo();
}

void TablaDatos::Reclamar() {
    const QModelIndex celda = modelo_->Rechazada();
    setFocus();
    setCurrentIndex(celda);
    DecirMotivo(viewport(), visualRect(celda), Motivo());
}

void TablaDatos::focusOutEvent(QFocusEvent* evento) {
    QTableView::focusOutEvent(evento);
    viewport()->update();
    RetenerFoco(this, *evento);
}

void TablaDatos::keyPressEvent(QKeyEvent* evento) {
    if (evento->matches(QKeySequence::Copy)) return Copiar();
    if (evento->matches(QKeySequence::Paste)) return Pegar();
    if (evento->matches(QKeySequence::Undo)) return Deshacer();
    if (evento->matches(QKeySequence::Redo) || evento->keyCombination() == (Qt::CTRL | Qt::Key_Y))
        return Rehacer();
    if (EsRellenar(*evento)) return RellenarAbajo();
    switch (evento->key()) {
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            return Borrar();
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (Motivo().isEmpty()) Seguir(evento->key(), evento->modifiers());
            return;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return Seguir(evento->key(), evento->modifiers());
        case Qt::Key_Escape:
            if (!Motivo().isEmpty()) return modelo_->OlvidarRechazo();
            [[fallthrough]];
        default:
            QTableView::keyPressEvent(evento);
    }
}

void TablaDatos::SalirDeLaTabla(bool adelante) {
    QTableView::focusNextPrevChild(adelante);
}

bool TablaDatos::focusNextPrevChild(bool adelante) {
    if (!Motivo().isEmpty()) {
        Reclamar();
    } else if (hasFocus() && currentIndex().isValid()) {
        Seguir(adelante ? Qt::Key_Tab : Qt::Key_Backtab, Qt::NoModifier);
    } else {
        return QTableView::focusNextPrevChild(adelante);
    }
    return true;
}

void TablaDatos::contextMenuEvent(QContextMenuEvent* evento) {
    QMenu menu(this);
    menu.addAction("&Copiar\tCtrl+C", this, [this] { Copiar(); });
    menu.addAction("&Pegar\tCtrl+V", this, [this] { Pegar(); });
    menu.addAction("&Borrar\tSupr", this, [this] { Borrar(); });
    menu.addAction("&Rellenar hacia Abajo\tCtrl+D", this, [this] { RellenarAbajo(); });
    menu.addAction("&Deshacer\tCtrl+Z", this, [this] { Deshacer(); });
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

std::pair<QString, QModelIndex> TablaDatos::FaltaDelBloque(const QList<QStringList>& bloque,
                                                           const QModelIndex& esquina) const {
    const qsizetype filas = modelo_->rowCount() - esquina.row();
    if (bloque.size() > filas)
        return {QString("El bloque tiene %1 filas y desde aquí caben %2.").arg(bloque.size()).arg(filas),
                esquina};
    for (int f = 0; f < bloque.size(); ++f) {
        for (int c = 0; c < bloque[f].size(); ++c) {
            const QModelIndex celda = modelo_->index(esquina.row() + f, esquina.column() + c);
            if (!celda.isValid())
                return {"El bloque tiene más columnas que las que caben desde aquí.", esquina};
            if (!Editable(celda.column())) continue;
            const QString motivo = modelo_->Juzgar(celda.column(), bloque[f][c]).second;
            if (!motivo.isEmpty()) return {"«" + bloque[f][c] + "»: " + motivo, celda};
        }
    }
    return {};
}

bool TablaDatos::PonerBloque(const QList<QStringList>& bloque, const QModelIndex& esquina) {
    for (int f = 0; f < bloque.size(); ++f) {
        for (int c = 0; c < bloque[f].size(); ++c) {
            const QModelIndex celda = modelo_->index(esquina.row() + f, esquina.column() + c);
            if (Editable(celda.column()) && !modelo_->setData(celda, bloque[f][c], Qt::EditRole)) {
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
    QList<QStringList> bloque;
    for (const QString& fila : texto.split('\n')) {
        bloque.append(fila.split('\t'));
        for (QString& celda : bloque.last()) celda = celda.trimmed();
    }
    const QModelIndexList elegidas = selectedIndexes();
    const bool unValor = bloque.size() == 1 && bloque[0].size() == 1;
    const QModelIndexList esquinas =
        unValor && elegidas.size() > 1 ? elegidas : QModelIndexList{EsquinaElegida()};
    PonerTodo(bloque, esquinas);
}

void TablaDatos::Borrar() {
    PonerTodo({{QString()}}, selectedIndexes());
}

/// A block, whole or not at all, at each of some corners; what was put is undone together.
void TablaDatos::PonerTodo(const QList<QStringList>& bloque, const QModelIndexList& esquinas) {
    for (const QModelIndex& esquina : esquinas) {
        if (!esquina.isValid()) return;
        const auto [motivo, celda] = FaltaDelBloque(bloque, esquina);
        if (motivo.isEmpty()) continue;
        setCurrentIndex(celda);
        DecirMotivo(viewport(), visualRect(celda), motivo);
        return;
    }
    modelo_->AbrirGrupo();
    const bool todo = std::all_of(esquinas.begin(), esquinas.end(),
                                  [&](const QModelIndex& esquina) { return PonerBloque(bloque, esquina); });
    modelo_->CerrarGrupo(todo);
}

void TablaDatos::RellenarAbajo() {
    const QModelIndexList elegidas = selectedIndexes();
    const QModelIndex primera = elegidas.size() > 1 ? EsquinaElegida() : currentIndex();
    if (!primera.isValid() || !Editable(primera.column()) || !Motivo().isEmpty()) return;
    const ColumnaDatos& columna = modelo_->Columna(primera.column());
    const int ultima = elegidas.size() > 1 ? elegidas.last().row() : modelo_->rowCount() - 1;
    QString texto = primera.data(Qt::EditRole).toString();
    QList<QStringList> bloque;
    for (int fila = primera.row() + 1; fila <= ultima; ++fila) {
        if (columna.Siguiente) texto = columna.Siguiente(texto);
        bloque.append(QStringList{texto});
    }
    if (!bloque.isEmpty()) PonerTodo(bloque, {primera.siblingAtRow(primera.row() + 1)});
}

void TablaDatos::Deshacer() {
    if (deshacerPor_) return deshacerPor_();
    Mostrar(modelo_->Deshacer());
}

void TablaDatos::Rehacer() {
    Mostrar(modelo_->Rehacer());
}

}  // namespace trabex::programa::qt
