#include "reports/planex/ui/qt/VentanaExportarCAD.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "drawing/losa/GraficoLosaDatos.h"
#include "drawing/losa/TextosDeLosa.h"
#include "drawing/qt/WidgetLienzo.h"
#include "reports/planex/ui/qt/VentanaCuadroCAD.h"

namespace trabex::planex::ui::qt {

namespace {

enum ColumnaLista { ColumnaMarca = 0, ColumnaNombre = 1 };

/// Grid rows count from 0, the slab list's from 1.
int FilaDeLista(int filaDeTabla) {
    return filaDeTabla + 1;
}

}  // namespace

VentanaExportarCAD::VentanaExportarCAD(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                                       std::uint8_t versionCAD, QWidget* padre)
    : QDialog(padre), aplicacion_(aplicacion), operaciones_(aplicacion, servicios, versionCAD, *this) {
    setObjectName("ExportarCAD");
    setWindowTitle("EXPORTAR A Planex ESTRUCTURAL");
    Armar();
    LlenarLista();
    programa::qt::PrepararVentana(this, aplicacion_.Preferencias);
}

void VentanaExportarCAD::Armar() {
    auto* division = new QSplitter(this);
    division->addWidget(CrearLista(division));
    division->addWidget(CrearVista(division));
    division->setStretchFactor(0, 2);
    division->setStretchFactor(1, 3);
    division->setChildrenCollapsible(false);

    auto* columna = new QVBoxLayout(this);
    columna->addWidget(division, 1);
    columna->addLayout(CrearOpciones());
    columna->addLayout(programa::qt::FilaAceptarCancelar(this, [this] { operaciones_.ExportarCAD80(); }));
    programa::qt::TamanoInicial(this, {820, 480});
}

QWidget* VentanaExportarCAD::CrearLista(QWidget* padre) {
    auto* panel = new QWidget(padre);
    lista_ = new QTableWidget(0, 2, panel);
    lista_->setHorizontalHeaderLabels({"", "Losa"});
    lista_->horizontalHeader()->setSectionResizeMode(ColumnaMarca, QHeaderView::ResizeToContents);
    lista_->horizontalHeader()->setSectionResizeMode(ColumnaNombre, QHeaderView::Stretch);
    lista_->horizontalHeaderItem(ColumnaNombre)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    lista_->horizontalHeader()->setHighlightSections(false);
    lista_->verticalHeader()->hide();
    lista_->setShowGrid(false);
    lista_->setSelectionBehavior(QAbstractItemView::SelectRows);
    lista_->setSelectionMode(QAbstractItemView::SingleSelection);
    lista_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lista_->setTabKeyNavigation(false);
    connect(lista_, &QTableWidget::currentCellChanged, this, [this](int fila) { MostrarLosa(fila); });
    connect(lista_, &QTableWidget::cellDoubleClicked, this, [this](int fila, int columna) {
        if (columna == ColumnaNombre) CambiarMarca(fila);
    });
    auto* espacio = new QShortcut(Qt::Key_Space, lista_);
    espacio->setContext(Qt::WidgetShortcut);
    connect(espacio, &QShortcut::activated, this, [this] { CambiarMarca(lista_->currentRow()); });

    auto* todas = programa::qt::Boton("Seleccionar &Todas", "todos", panel);
    auto* ninguna = programa::qt::Boton("&Ninguna", "ninguno", panel);
    connect(todas, &QPushButton::clicked, this, [this] { MarcarTodas(true); });
    connect(ninguna, &QPushButton::clicked, this, [this] { MarcarTodas(false); });
    auto* botones = new QHBoxLayout;
    botones->addWidget(todas);
    botones->addWidget(ninguna);
    botones->addStretch(1);
    auto* columna = new QVBoxLayout(panel);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(lista_, 1);
    columna->addLayout(botones);
    return panel;
}

QWidget* VentanaExportarCAD::CrearVista(QWidget* padre) {
    auto* panel = new QWidget(padre);
    titulo_ = new QLabel(panel);
    titulo_->setTextFormat(Qt::PlainText);
    croquis_ = new dibujo::qt::WidgetLienzo(
        vistaCroquis_,
        [this](dibujo::Lienzo& lienzo) {
            dibujo::losa::DibujeLosaExportar(lienzo, vistaCroquis_, losa_, aplicacion_.SeparadoresLocales);
        },
        panel);
    auto* columna = new QVBoxLayout(panel);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(titulo_);
    columna->addWidget(croquis_, 1);
    return panel;
}

QLayout* VentanaExportarCAD::CrearOpciones() {
    auto* nuevo = new QRadioButton("&Crear un Nuevo Proyecto", this);
    anexar_ = new QRadioButton("&Anexar a un Proyecto Existente", this);
    nuevo->setChecked(true);
    auto* carpeta = programa::qt::Boton("", "carpeta", this);
    programa::qt::PonerAyuda(carpeta, "Proyectos de Planex",
                             "Abrir la carpeta de los proyectos de Planex Estructural. ");
    carpeta->setAccessibleName("Carpeta de proyectos de Planex");
    connect(carpeta, &QPushButton::clicked, this, [this] { operaciones_.AbrirCarpeta(); });
    auto* fila = new QHBoxLayout;
    fila->addWidget(nuevo);
    fila->addSpacing(16);
    fila->addWidget(anexar_);
    fila->addStretch(1);
    fila->addWidget(carpeta);
    return fila;
}

void VentanaExportarCAD::LlenarLista() {
    const int elegida = aplicacion_.Proyecto.RegistrosProyecto.Posicion();
    const std::vector<std::string> nombres = operaciones_.Nombres();
    lista_->setRowCount(static_cast<int>(nombres.size()));
    for (int fila = 0; fila < lista_->rowCount(); ++fila) {
        auto* marca = new QTableWidgetItem;
        marca->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        marca->setCheckState(Qt::Unchecked);
        lista_->setItem(fila, ColumnaMarca, marca);
        lista_->setItem(fila, ColumnaNombre,
                        new QTableWidgetItem(programa::qt::Q(nombres[static_cast<std::size_t>(fila)])));
    }
    if (lista_->rowCount() > 0) lista_->setCurrentCell(std::max(elegida - 1, 0), ColumnaNombre);
}

bool VentanaExportarCAD::Marcada(int fila) const {
    const QTableWidgetItem* marca = lista_->item(fila - 1, ColumnaMarca);
    return marca != nullptr && marca->checkState() == Qt::Checked;
}

ArchivoCAD VentanaExportarCAD::Opcion() const {
    return anexar_->isChecked() ? ArchivoCAD::AnexarAExistente : ArchivoCAD::CrearNuevo;
}

void VentanaExportarCAD::PunteroDeEspera(bool espera) {
    puntero_.Poner(espera);
}

void VentanaExportarCAD::Cerrar() {
    accept();
}

void VentanaExportarCAD::MarcarTodas(bool marcadas) {
    for (int fila = 0; fila < lista_->rowCount(); ++fila)
        lista_->item(fila, ColumnaMarca)->setCheckState(marcadas ? Qt::Checked : Qt::Unchecked);
}

void VentanaExportarCAD::CambiarMarca(int fila) {
    if (fila < 0) return;
    lista_->item(fila, ColumnaMarca)->setCheckState(Marcada(FilaDeLista(fila)) ? Qt::Unchecked : Qt::Checked);
}

void VentanaExportarCAD::MostrarLosa(int fila) {
    if (fila < 0) return;
    losa_ = operaciones_.LosaDe(FilaDeLista(fila));
    titulo_->setText(programa::qt::Q(dibujo::losa::RotuloDeLosa(losa_) + losa_.Nombre));
    croquis_->Comandos().Restablecer();
    croquis_->RedibujeVista();
}

void MostrarExportarCAD(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                        QWidget* padre) {
    DestinoCAD destino;
    VentanaCuadroCAD(aplicacion, destino, padre).exec();
    if (!destino.Aceptado) return;
    VentanaExportarCAD(aplicacion, servicios, destino.VersionCAD, padre).exec();
}

}  // namespace trabex::planex::ui::qt
