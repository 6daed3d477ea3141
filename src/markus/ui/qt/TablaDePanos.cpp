#include "markus/ui/qt/TablaDePanos.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include "shell/qt/ComunVentanas.h"
#include "shell/qt/EncabezadoAgrupado.h"

namespace trabex::marcus::ui::qt {

namespace {

using programa::qt::ColumnaDatos;

constexpr ClaseNumero CasoDeApoyo{true, -32768, 32767, 0, 1};

ColumnaDatos Entrada(Marcus& operaciones, const char* titulo, ColumnaDePano columna,
                     const ClaseNumero& clase) {
    return {
        .Titulo = titulo,
        .Numero = clase,
        .Leer = [&operaciones, columna](
                    int fila) { return operaciones.Panos().Leer(static_cast<std::size_t>(fila), columna); },
        .Poner =
            [&operaciones, columna](int fila, const QVariant& valor) {
                operaciones.PonerPano(fila, columna, valor.toDouble());
                return true;
            }};
}

ColumnaDatos Resultado(Marcus& operaciones, const Separadores& numeros, const char* titulo,
                       double RepartoMarcus::*dato, const char* formato) {
    return {.Titulo = titulo, .Numero = Distancia, .Leer = [&operaciones, numeros, dato, formato](int fila) {
                const double valor =
                    operaciones.Panos().Panos()[static_cast<std::size_t>(fila) - 1].Reparto.*dato;
                return programa::qt::Q(Formato(valor, formato, numeros));
            }};
}

std::vector<ColumnaDatos> ColumnasDePano(Marcus& operaciones, const Separadores& numeros) {
    return {
        Entrada(operaciones, "Carga\n(kgf/m2)", ColumnaDePano::Carga, Distancia),
        Entrada(operaciones, "Markus\nCaso", ColumnaDePano::Caso, CasoDeApoyo),
        Entrada(operaciones, "Lx\n(m)", ColumnaDePano::LX, Distancia),
        Entrada(operaciones, "Ly\n(m)", ColumnaDePano::LY, Distancia),
        Resultado(operaciones, numeros, "Cx", &RepartoMarcus::CX, "0.0000"),
        Resultado(operaciones, numeros, "Cy", &RepartoMarcus::CY, "0.0000"),
        Resultado(operaciones, numeros, "Wx\n(kgf/m)", &RepartoMarcus::WX, "#,##0.00"),
        Resultado(operaciones, numeros, "Wy\n(kgf/m)", &RepartoMarcus::WY, "#,##0.00"),
    };
}

}  // namespace

TablaDePanos::TablaDePanos(Marcus& operaciones, const Separadores& numeros, QWidget* padre)
    : TablaDatos(ColumnasDePano(operaciones, numeros), numeros, padre), operaciones_(operaciones) {
    setObjectName("Panos");
    setHorizontalHeader(new programa::qt::EncabezadoAgrupado(
        {{2, 3, "Longitudes"}, {4, 5, "Coeficientes"}, {6, 7, "En cada Dirección"}}, this));
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this] { ContarBloque(); });
    DeshacerPor([this] { operaciones_.Deshacer(); });
    TitularEsquina();
}

void TablaDePanos::TitularEsquina() {
    auto* esquina = findChild<QAbstractButton*>();
    if (esquina == nullptr) return;
    auto* titulo = new QLabel("No\nPaño", esquina);
    titulo->setAlignment(Qt::AlignCenter);
    titulo->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* lugar = new QVBoxLayout(esquina);
    lugar->setContentsMargins(0, 0, 0, 0);
    lugar->addWidget(titulo);
    verticalHeader()->setMinimumWidth(titulo->sizeHint().width() + 12);
}

void TablaDePanos::mouseReleaseEvent(QMouseEvent* evento) {
    TablaDatos::mouseReleaseEvent(evento);
    ContarBloque();
}

void TablaDePanos::keyPressEvent(QKeyEvent* evento) {
    TablaDatos::keyPressEvent(evento);
    if (evento->key() != Qt::Key_Shift)
        extendiendo_ = evento->modifiers().testFlag(Qt::ShiftModifier) && selectedIndexes().size() > 1;
}

void TablaDePanos::keyReleaseEvent(QKeyEvent* evento) {
    TablaDatos::keyReleaseEvent(evento);
    if (evento->key() != Qt::Key_Shift || !extendiendo_) return;
    extendiendo_ = false;
    ContarBloque();
}

void TablaDePanos::ContarBloque() {
    const QItemSelection elegidas = selectionModel()->selection();
    if (elegidas.size() != 1 || elegidas.front().height() < 2) return;
    const QItemSelectionRange& r = elegidas.front();
    const Bloque bloque{r.top() + 1, r.bottom() + 1, r.left() + 1, r.right() + 1};
    QTimer::singleShot(0, this, [this, bloque] {
        preguntando_ = true;
        operaciones_.EntrarBloque(bloque);
        preguntando_ = false;
        viewport()->update();
    });
}

}  // namespace trabex::marcus::ui::qt
