#include "shell/qt/VentanaCompactar.h"

#include <QApplication>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include "base/Archivos.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::programa::qt {

VentanaCompactar::VentanaCompactar(Aplicacion& aplicacion, const Servicios& servicios, QWidget* padre)
    : QDialog(padre),
      aplicacion_(aplicacion),
      operaciones_(aplicacion, servicios, *this),
      modelo_(new QFileSystemModel(this)) {
    setObjectName("Compactar1");
    setWindowTitle("Reparar y Compactar Archivos");
    Armar();
    modelo_->setFilter(QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
    modelo_->setRootPath(QDir::rootPath());
    carpetas_->setModel(modelo_);
    for (int columna = 1; columna < 4; ++columna) carpetas_->hideColumn(columna);
    carpetas_->setHeaderHidden(true);
    const QModelIndex inicio = modelo_->index(Q(TextoDeCamino(servicios.Carpetas.Proyectos())));
    carpetas_->setCurrentIndex(inicio);
    carpetas_->scrollTo(inicio, QAbstractItemView::PositionAtCenter);
    connect(carpetas_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { RefrescarLista(); });
    // The tree fills while the model reads the folders above: each time, the current one is brought back to
    // sight.
    connect(modelo_, &QFileSystemModel::directoryLoaded, this, [this] {
        QTimer::singleShot(50, this, [this] {
            carpetas_->scrollTo(carpetas_->currentIndex(), QAbstractItemView::PositionAtCenter);
        });
    });
    VentanaCompactar::RefrescarLista();
    PrepararVentana(this, aplicacion_.Preferencias);
}

void VentanaCompactar::Armar() {
    auto* division = new QSplitter(this);
    carpetas_ = new QTreeView(division);
    archivos_ = new QListWidget(division);
    archivos_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    division->setStretchFactor(0, 1);
    division->setStretchFactor(1, 1);
    division->setChildrenCollapsible(false);

    panel_ = new QWidget(this);
    barra_ = new QProgressBar(panel_);
    rotulo_ = new QLabel(panel_);
    auto* filaPanel = new QVBoxLayout(panel_);
    filaPanel->setContentsMargins(0, 0, 0, 0);
    filaPanel->addWidget(rotulo_);
    filaPanel->addWidget(barra_);
    panel_->hide();

    auto* columna = new QVBoxLayout(this);
    columna->addWidget(division, 1);
    columna->addWidget(panel_);
    columna->addLayout(CrearBotones());
    resize(640, 420);
}

QLayout* VentanaCompactar::CrearBotones() {
    auto* fila = new QHBoxLayout;
    auto* todos = Boton("Seleccionar &Todos", "todos", this);
    auto* ninguno = Boton("&Ninguno", "ninguno", this);
    auto* aceptar = Boton(" Aceptar ", "reparar", this);
    auto* cerrar = Boton(" Cerrar ", "salida", this);
    aceptar->setDefault(true);
    connect(todos, &QPushButton::clicked, archivos_, &QListWidget::selectAll);
    connect(ninguno, &QPushButton::clicked, archivos_, &QListWidget::clearSelection);
    connect(aceptar, &QPushButton::clicked, this, [this] { Aceptar(); });
    connect(cerrar, &QPushButton::clicked, this, &QDialog::reject);
    fila->addWidget(todos);
    fila->addWidget(ninguno);
    fila->addStretch(1);
    fila->addWidget(aceptar);
    fila->addWidget(cerrar);
    return fila;
}

std::filesystem::path VentanaCompactar::Carpeta() const {
    return CaminoDeTexto(S(modelo_->filePath(carpetas_->currentIndex())));
}

void VentanaCompactar::Aceptar() {
    std::vector<std::string> elegidos;
    for (int i = 0; i < archivos_->count(); ++i) {
        if (archivos_->item(i)->isSelected()) elegidos.push_back(S(archivos_->item(i)->text()));
    }
    operaciones_.Aceptar(Carpeta(), elegidos);
}

void VentanaCompactar::MostrarProgreso(bool visible) {
    panel_->setVisible(visible);
    barra_->setValue(0);
}

void VentanaCompactar::Avanzar(double porcentaje, const std::string& rotulo) {
    barra_->setValue(static_cast<int>(porcentaje));
    rotulo_->setText(Q(rotulo));
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void VentanaCompactar::PunteroDeEspera(bool espera) {
    puntero_.Poner(espera);
}

void VentanaCompactar::RefrescarLista() {
    archivos_->setUpdatesEnabled(false);
    archivos_->clear();
    for (const std::string& nombre : ListarProyectos(Carpeta())) archivos_->addItem(Q(nombre));
    archivos_->setUpdatesEnabled(true);
}

void VentanaCompactar::Cerrar() {
    accept();
}

}  // namespace trabex::programa::qt
