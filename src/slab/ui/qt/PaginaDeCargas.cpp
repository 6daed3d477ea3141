#include "slab/ui/qt/PaginaDeCargas.h"

#include <QGroupBox>
#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "shell/qt/ComunVentanas.h"
#include "slab/ui/qt/ComunLosaDatos.h"

namespace trabex::losas::ui::qt {

PaginaDeCargas::PaginaDeCargas(LosaDatos& operaciones, const Separadores& numeros,
                               const std::function<void()>& copiar, QWidget* padre)
    : QWidget(padre), operaciones_(operaciones), marco_(new QGroupBox(this)) {
    const auto entero = [](double valor) { return static_cast<std::int32_t>(valor); };
    std::vector<programa::qt::ColumnaDatos> columnas{
        Columna(
            "Wp (kgf/m)", EnteroDe32, [](const Tramo& t) { return t.Wp; },
            [entero](Tramo& t, double v) { t.Wp = entero(v); }),
        Columna(
            "WV (kgf/m)", EnteroDe32, [](const Tramo& t) { return t.WV; },
            [entero](Tramo& t, double v) { t.WV = entero(v); }),
        Columna(
            "P1 (kgf)", EnteroDe32, [](const Tramo& t) { return t.p1; },
            [entero](Tramo& t, double v) { t.p1 = entero(v); }),
        Columna(
            "L1 (m)", Longitud, [](const Tramo& t) { return t.L1; }, [](Tramo& t, double v) { t.L1 = v; })};
    tabla_ = new programa::qt::TablaDatos(std::move(columnas), numeros, this);
    tabla_->setObjectName("Cargas");
    tabla_->AlCambiarFila([this](int tramo) { MoverATramo(tramo); });
    auto* columna = new QVBoxLayout(marco_);
    columna->addLayout(FilaDeBotones(copiar));
    columna->addWidget(tabla_, 1);
    auto* exterior = new QVBoxLayout(this);
    exterior->addWidget(marco_);
}

QLayout* PaginaDeCargas::FilaDeBotones(const std::function<void()>& copiar) {
    auto* uniforme = BotonDeBarra("carga-uniforme", "Carga &Uniforme", "Entrar la carga uniforme. ", this);
    auto* puntual = BotonDeBarra("carga-puntual", "Carga &Puntual", "Entrar la carga Puntual.  ", this);
    auto* otros = BotonDeBarra("copiar", "&Copiar a...", "Copiar el tramo actual a otros tramos. ", this);
    connect(otros, &QToolButton::clicked, this, copiar);
    connect(uniforme, &QToolButton::clicked, this, [this] { operaciones_.CargaUniforme(); });
    connect(puntual, &QToolButton::clicked, this, [this] { operaciones_.CargaPuntual(); });
    leyenda_ = new QLabel(this);
    leyenda_->setMinimumWidth(fontMetrics().horizontalAdvance("Tramo: 10000"));
    deslizador_ = new QScrollBar(Qt::Horizontal, this);
    deslizador_->setPageStep(1);
    deslizador_->setMinimumWidth(90);
    connect(deslizador_, &QScrollBar::valueChanged, this, [this](int tramo) { MoverATramo(tramo); });
    auto* botones = new QHBoxLayout;
    for (QWidget* control : std::initializer_list<QWidget*>{uniforme, puntual, otros})
        botones->addWidget(control);
    botones->addStretch(1);
    auto* recorrido = new QHBoxLayout;
    recorrido->addWidget(leyenda_);
    recorrido->addWidget(deslizador_, 1);
    auto* fila = new QVBoxLayout;
    fila->addLayout(botones);
    fila->addLayout(recorrido);
    return fila;
}

programa::qt::ColumnaDatos PaginaDeCargas::Columna(const QString& titulo, const ClaseNumero& clase,
                                                   const std::function<double(const Tramo&)>& leer,
                                                   const std::function<void(Tramo&, double)>& poner) {
    return {.Titulo = titulo,
            .Numero = clase,
            .Leer = [this, leer](int i) { return leer(operaciones_.Edicion().Tramos[Indice(i)]); },
            .Poner =
                [this, poner](int i, const QVariant& valor) {
                    Tramo tramo = operaciones_.Edicion().Tramos[Indice(i)];
                    poner(tramo, valor.toDouble());
                    operaciones_.PonerCargas(Indice(i), tramo);
                    return true;
                }};
}

void PaginaDeCargas::MostrarClase() {
    marco_->setTitle(programa::qt::Q(operaciones_.LeyendaDeCargas()));
}

void PaginaDeCargas::PonerTramos(int tramos) {
    tabla_->PonerFilas(tramos);
    const QSignalBlocker quieto(deslizador_);
    deslizador_->setRange(tramos == 0 ? 0 : 1, tramos);
    deslizador_->setEnabled(tramos > 1);
}

void PaginaDeCargas::MoverATramo(int tramo) {
    operaciones_.MoverATramo(Indice(tramo));
    MostrarTramo();
}

void PaginaDeCargas::MostrarTramo() {
    const int tramo = static_cast<int>(operaciones_.TramoActual());
    leyenda_->setText(programa::qt::Q(operaciones_.LeyendaDeTramo()));
    const QSignalBlocker quieto(deslizador_);
    deslizador_->setValue(tramo);
    if (tramo > 0 && tabla_->FilaActual() != tramo)
        tabla_->IrA(tramo, std::max(0, tabla_->currentIndex().column()));
}

}  // namespace trabex::losas::ui::qt
