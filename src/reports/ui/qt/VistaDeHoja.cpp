#include "reports/ui/qt/VistaDeHoja.h"

#include <QAbstractTableModel>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QPainter>
#include <algorithm>
#include <array>
#include <numeric>

#include "shell/qt/ComunVentanas.h"

namespace trabex::reportes::ui::qt {

namespace {

using programa::qt::Q;

constexpr int Holgura = 16;    // pixels beside the widest text of a column
constexpr int MasAncho = 260;  // of one that holds a number of hundreds of digits

Qt::Alignment LadoDe(documento::Alineacion lado) {
    switch (lado) {
        case documento::Alineacion::Izquierda:
            return Qt::AlignLeft;
        case documento::Alineacion::Centro:
            return Qt::AlignHCenter;
        case documento::Alineacion::Derecha:
            break;
    }
    return Qt::AlignRight;
}

int AnchoDe(const QFontMetrics& letra, const QString& texto) {
    return std::min(letra.boundingRect(QRect(), Qt::AlignCenter, texto).width() + Holgura, MasAncho);
}

/// Headings of two levels: neighbours of one group stand below one heading, which each of them paints in its
/// own part.
class CabeceraDeGrupos : public QHeaderView {
  public:
    CabeceraDeGrupos(const documento::Tabla& tabla, QWidget* padre)
        : QHeaderView(Qt::Horizontal, padre), tabla_(tabla) {
        setSectionsClickable(true);
        setHighlightSections(false);
        setSectionResizeMode(QHeaderView::Fixed);
    }

    QSize sizeHint() const override {
        int lineas = 1;
        for (const documento::ColumnaDeTabla& columna : tabla_.Columnas)
            lineas = std::max(lineas, 1 + static_cast<int>(Q(columna.Titulo).count('\n')));
        return {QHeaderView::sizeHint().width(), AltoDeGrupos() + lineas * fontMetrics().height() + 8};
    }

  protected:
    void paintSection(QPainter* pintor, const QRect& sitio, int columna) const override {
        const QString titulo = Q(tabla_.Columnas[static_cast<std::size_t>(columna)].Titulo);
        pintor->save();
        pintor->setClipRect(sitio);
        int alto = 0;
        for (const documento::GrupoDeColumnas& grupo : documento::GruposDe(tabla_)) {
            const int primera = static_cast<int>(grupo.Desde);
            const int ultima = primera + static_cast<int>(grupo.Cuantas) - 1;
            if (grupo.Titulo.empty() || columna < primera || columna > ultima) continue;
            alto = AltoDeGrupos();
            const int izquierda = sectionViewportPosition(primera);
            const int derecha = sectionViewportPosition(ultima) + sectionSize(ultima);
            Pintar(*pintor, {izquierda, sitio.top(), derecha - izquierda, alto}, Q(grupo.Titulo));
        }
        Pintar(*pintor, sitio.adjusted(0, alto, 0, 0), titulo);
        pintor->restore();
    }

  private:
    int AltoDeGrupos() const { return tabla_.TieneGrupos() ? fontMetrics().height() + 8 : 0; }

    void Pintar(QPainter& pintor, const QRect& sitio, const QString& texto) const {
        QStyleOptionHeader opcion;
        initStyleOption(&opcion);
        opcion.rect = sitio;
        opcion.section = 0;
        style()->drawControl(QStyle::CE_HeaderSection, &opcion, &pintor, this);
        pintor.setPen(palette().color(QPalette::ButtonText));
        pintor.drawText(sitio, Qt::AlignCenter, texto);
    }

    const documento::Tabla& tabla_;
};

}  // namespace

class VistaDeHoja::Modelo : public QAbstractTableModel {
  public:
    Modelo(const Separadores& separadores, QObject* padre)
        : QAbstractTableModel(padre), separadores_(separadores) {}

    const documento::Tabla& Tabla() const { return hoja_.Celdas; }
    const documento::FilaDeTabla& Fila(int fila) const {
        return Tabla().Filas[static_cast<std::size_t>(fila)];
    }
    const documento::ColumnaDeTabla& Columna(int columna) const {
        return Tabla().Columnas[static_cast<std::size_t>(columna)];
    }
    void Poner(cuadricula::HojaDeCuadricula hoja) {
        beginResetModel();
        hoja_ = std::move(hoja);
        endResetModel();
    }
    QString Texto(int fila, int columna, const std::string& formato) const {
        const std::vector<almacen::Valor>& celdas = Fila(fila).Celdas;
        const auto lugar = static_cast<std::size_t>(columna);
        if (lugar >= celdas.size()) return {};
        return Q(documento::TextoDeValor(celdas[lugar], formato, separadores_));
    }

    /// Rows whose cells are the widest of a column: its least and its greatest number, or its longest text.
    /// Only these are measured, so that a sheet of many rows opens at once.
    std::array<int, 2> FilasExtremas(int columna) const {
        std::array<int, 2> filas{-1, -1};
        double menor = 0, mayor = 0;
        for (int f = 0; f < rowCount(); ++f) {
            if (Fila(f).Rotulo || Fila(f).Celdas.size() <= static_cast<std::size_t>(columna)) continue;
            const almacen::Valor& celda = Fila(f).Celdas[static_cast<std::size_t>(columna)];
            const auto* texto = std::get_if<std::string>(&celda);
            const double medida = texto != nullptr ? static_cast<double>(texto->size())
                                                   : documento::NumeroDe(celda).value_or(0);
            if (filas[0] < 0 || medida < menor) filas[0] = f;
            if (filas[1] < 0 || medida > mayor) filas[1] = f;
            menor = std::min(menor, medida);
            mayor = std::max(mayor, medida);
        }
        return filas;
    }

    int rowCount(const QModelIndex& padre = {}) const override {
        return padre.isValid() ? 0 : static_cast<int>(Tabla().Filas.size());
    }
    int columnCount(const QModelIndex& padre = {}) const override {
        return padre.isValid() ? 0 : static_cast<int>(Tabla().Columnas.size());
    }
    QVariant data(const QModelIndex& celda, int papel) const override {
        const documento::FilaDeTabla& fila = Fila(celda.row());
        const documento::ColumnaDeTabla& columna = Columna(celda.column());
        if (papel == Qt::DisplayRole) return Texto(celda.row(), celda.column(), columna.Formato);
        if (papel == Qt::TextAlignmentRole)
            return QVariant((fila.Rotulo ? Qt::AlignLeft : LadoDe(columna.Lado)) | Qt::AlignVCenter);
        if (papel == Qt::FontRole && fila.Destacada) {
            QFont letra;
            letra.setBold(true);
            return letra;
        }
        if (papel == Qt::BackgroundRole && fila.Rotulo && fila.Destacada)
            return QApplication::palette().brush(QPalette::Window);
        return {};
    }

  private:
    cuadricula::HojaDeCuadricula hoja_;
    Separadores separadores_;
};

VistaDeHoja::VistaDeHoja(const char* nombre, const Separadores& separadores, QWidget* padre)
    : QTableView(padre), modelo_(new Modelo(separadores, this)) {
    setObjectName(nombre);
    setHorizontalHeader(new CabeceraDeGrupos(modelo_->Tabla(), this));
    setModel(modelo_);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    CrearMenu();
}

void VistaDeHoja::CrearMenu() {
    const auto agregar = [this](const char* nombre, const char* texto, const QKeySequence& tecla,
                                auto accion) {
        auto* nueva = new QAction(texto, this);
        nueva->setObjectName(nombre);
        nueva->setShortcut(tecla);
        nueva->setShortcutContext(Qt::WidgetShortcut);
        connect(nueva, &QAction::triggered, this, accion);
        addAction(nueva);
    };
    agregar("Copiar", "&Copiar", QKeySequence::Copy, [this] { Copiar(); });
    agregar("CopiarTodo", "Copiar &Todo con Encabezados", QKeySequence("Ctrl+Shift+C"),
            [this] { CopiarTodo(); });
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void VistaDeHoja::Mostrar(cuadricula::HojaDeCuadricula hoja) {
    clearSpans();
    modelo_->Poner(std::move(hoja));
    for (int fila = 0; fila < modelo_->rowCount(); ++fila) {
        if (modelo_->Fila(fila).Rotulo) setSpan(fila, 0, 1, modelo_->columnCount());
    }
    MedirColumnas();
    Repartir();
}

void VistaDeHoja::MedirColumnas() {
    const QFontMetrics letra = fontMetrics();
    minimos_.clear();
    for (int c = 0; c < modelo_->columnCount(); ++c) {
        minimos_.push_back(AnchoDe(letra, Q(modelo_->Columna(c).Titulo)));
        for (const int fila : modelo_->FilasExtremas(c)) {
            if (fila < 0) continue;
            minimos_.back() =
                std::max(minimos_.back(), AnchoDe(letra, modelo_->index(fila, c).data().toString()));
        }
    }
    for (const documento::GrupoDeColumnas& grupo : documento::GruposDe(modelo_->Tabla())) {
        const auto primera = minimos_.begin() + static_cast<std::ptrdiff_t>(grupo.Desde);
        const auto fin = primera + static_cast<std::ptrdiff_t>(grupo.Cuantas);
        const int cuantas = static_cast<int>(grupo.Cuantas);
        const int faltan = AnchoDe(letra, Q(grupo.Titulo)) - std::accumulate(primera, fin, 0);
        for (auto c = primera; c != fin && faltan > 0; ++c) *c += (faltan + cuantas - 1) / cuantas;
    }
}

void VistaDeHoja::Repartir() {
    double proporcion = 0;
    for (const documento::ColumnaDeTabla& columna : modelo_->Tabla().Columnas) proporcion += columna.Ancho;
    const int sobra = viewport()->width() - std::accumulate(minimos_.begin(), minimos_.end(), 0);
    for (std::size_t c = 0; c < minimos_.size(); ++c) {
        const double parte = sobra > 0 ? sobra * modelo_->Tabla().Columnas[c].Ancho / proporcion : 0;
        setColumnWidth(static_cast<int>(c), minimos_[c] + static_cast<int>(parte));
    }
}

void VistaDeHoja::resizeEvent(QResizeEvent* evento) {
    QTableView::resizeEvent(evento);
    Repartir();
}

QString VistaDeHoja::Linea(int fila, int primera, int ultima) const {
    QStringList textos;
    for (int c = primera; c <= ultima; ++c) {
        std::string formato = modelo_->Columna(c).Formato;
        if (formato.rfind("#,##", 0) == 0) formato.erase(0, 4);
        textos += modelo_->Texto(fila, c, formato);
    }
    return textos.join('\t');
}

void VistaDeHoja::Copiar() const {
    const QItemSelection elegidas = selectionModel()->selection();
    if (elegidas.isEmpty()) return;
    const QItemSelectionRange& bloque = elegidas.front();
    QStringList lineas;
    for (int f = bloque.top(); f <= bloque.bottom(); ++f) lineas += Linea(f, bloque.left(), bloque.right());
    QApplication::clipboard()->setText(lineas.join('\n'));
}

void VistaDeHoja::CopiarTodo() const {
    QStringList titulos;
    for (const documento::ColumnaDeTabla& columna : modelo_->Tabla().Columnas)
        titulos += Q(cuadricula::TituloDeColumna(columna));
    QStringList lineas{titulos.join('\t')};
    for (int f = 0; f < modelo_->rowCount(); ++f) lineas += Linea(f, 0, modelo_->columnCount() - 1);
    QApplication::clipboard()->setText(lineas.join('\n'));
}

}  // namespace trabex::reportes::ui::qt
