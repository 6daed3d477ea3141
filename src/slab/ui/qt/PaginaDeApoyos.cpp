#include "slab/ui/qt/PaginaDeApoyos.h"

#include <QToolButton>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "shell/qt/ComunVentanas.h"
#include "shell/qt/Iconos.h"
#include "shell/qt/TablaDatos.h"
#include "slab/ui/qt/ComunLosaDatos.h"

namespace trabex::losas::ui::qt {

namespace {

/// The five support types as their buttons tell them.
constexpr std::array<const char*, 5> TextosDeApoyo{
    "Junta con apoyo fijo en X y en Y. ", "Junta con rodillo en dirección X. ",
    "Junta con rodillo en dirección Y. ", "Junta totalmente restringida. ",
    "Junta sin nigún tipo de apoyo. "};

}  // namespace

PaginaDeApoyos::PaginaDeApoyos(LosaDatos& operaciones, const Separadores& numeros, QWidget* padre)
    : QWidget(padre), operaciones_(operaciones) {
    const auto eje = [this](int j) -> const EjeLosa& { return operaciones_.Edicion().Ejes[Indice(j)]; };
    std::vector<programa::qt::ColumnaDatos> columnas{
        {.Titulo = "Eje",
         .Numero = std::nullopt,
         .Leer = [eje](int j) { return programa::qt::Q(eje(j).Eje); },
         .Ancho = 70},
        {.Titulo = "Tipo",
         .Numero = EnteroSinLimite,
         .Leer = [eje](int j) { return static_cast<double>(eje(j).Tipo); },
         .Poner =
             [this](int j, const QVariant& tipo) {
                 return operaciones_.PonerTipo(Indice(j), Entero64(tipo.toDouble()));
             },
         .Ancho = 60},
        {.Titulo = "Apoyo", .Numero = std::nullopt, .Leer = [eje](int j) {
             const int tipo = eje(j).Tipo;
             return tipo < ApoyoFijo || tipo > SinApoyo ? QString()
                                                        : QString(TextosDeApoyo[Indice(tipo - 1)]).trimmed();
         }}};
    tabla_ = new programa::qt::TablaDatos(std::move(columnas), numeros, this);
    tabla_->setObjectName("Apoyos");
    auto* columna = new QVBoxLayout(this);
    columna->addLayout(FilaDeTipos());
    columna->addWidget(tabla_, 1);
}

QLayout* PaginaDeApoyos::FilaDeTipos() {
    auto* fila = new QHBoxLayout;
    for (std::int16_t tipo = ApoyoFijo; tipo <= SinApoyo; ++tipo) {
        auto* boton = new QToolButton(this);
        boton->setIcon(programa::qt::Icono("apoyo-" + QString::number(tipo)));
        boton->setIconSize({32, 32});
        boton->setText(QString::number(tipo));
        boton->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        boton->setFocusPolicy(Qt::TabFocus);
        programa::qt::PonerAyuda(boton, "Tipo " + QString::number(tipo), TextosDeApoyo[Indice(tipo - 1)]);
        connect(boton, &QToolButton::clicked, this, [this, tipo] { operaciones_.PulsarTipo(tipo); });
        fila->addWidget(boton);
    }
    fila->addStretch(1);
    return fila;
}

}  // namespace trabex::losas::ui::qt
