#include "reports/ui/qt/VentanaVerReportes.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>

#include "reports/salidas/qt/VistaPaginas.h"
#include "reports/ui/qt/BarraDeVisor.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/Iconos.h"

namespace trabex::reportes::ui::qt {

namespace {

constexpr std::array<int, 8> Zooms{50, 75, 100, 125, 150, 200, 300, 400};
constexpr double ZoomInicial = 100;
constexpr double PasoDeZoom = 1.25;
constexpr int OpcionAncho = -1;
constexpr int OpcionPagina = -2;

}  // namespace

VentanaVerReportes::VentanaVerReportes(EntornoSalida& entorno, const documento::Documento& documento,
                                       QWidget* padre)
    : QDialog(padre),
      exportador_(entorno),
      documento_(documento),
      vista_(new salidas::qt::VistaPaginas(documento, this)) {
    setObjectName("VerReportes");
    setWindowTitle("TBX-Visualizador de Reportes");
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    Armar();
    programa::qt::TamanoInicial(this, {1000, 760});
    programa::qt::PrepararVentana(this, entorno.LaAplicacion.Preferencias);
    vista_->PonerZoom(ZoomInicial);
    vista_->setFocus();
}

void VentanaVerReportes::Armar() {
    auto* barra = new QToolBar(this);
    barra->setIconSize({20, 20});
    ArmarSalidas(*barra);
    barra->addSeparator();
    ArmarPaginas(*barra);
    barra->addSeparator();
    ArmarZoom(*barra);
    barra->addSeparator();
    ArmarBusqueda(*barra);
    auto* hueco = new QWidget(barra);
    hueco->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    barra->addWidget(hueco);
    auto* retorno = programa::qt::Boton("Retorno", "salida", barra);
    retorno->setAutoDefault(false);
    programa::qt::PonerAyuda(retorno, "Retorno", "Cerrar el visualizador.");
    connect(retorno, &QPushButton::clicked, this, &QDialog::accept);
    barra->addWidget(retorno);

    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(0);
    columna->addWidget(barra);
    columna->addWidget(vista_, 1);
}

void VentanaVerReportes::ArmarSalidas(QToolBar& barra) {
    QAction* imprimir = AccionDeBarra(barra, "impresora", "Imprimir el reporte", QKeySequence::Print);
    connect(imprimir, &QAction::triggered, this, [this] { Imprimir(); });
    auto* menu = new QMenu(&barra);
    for (std::size_t i = 0; i < Salidas.size(); ++i) {
        if (Salidas[i].Titulo == nullptr) continue;
        connect(menu->addAction(Salidas[i].Opcion), &QAction::triggered, this,
                [this, salida = static_cast<std::uint8_t>(i)] { Exportar(salida); });
    }
    auto* exportar = new QToolButton(&barra);
    exportar->setObjectName("Exportar");
    exportar->setIcon(programa::qt::Icono("salvar"));
    exportar->setPopupMode(QToolButton::InstantPopup);
    exportar->setMenu(menu);
    programa::qt::PonerAyuda(exportar, "Exportar", "Exportar el reporte a un archivo.");
    barra.addWidget(exportar);
    QAction* carpeta = AccionDeBarra(barra, "carpeta", "Abrir la carpeta de los reportes exportados", {});
    connect(carpeta, &QAction::triggered, this, [this] { exportador_.AbrirCarpeta(); });
}

void VentanaVerReportes::ArmarPaginas(QToolBar& barra) {
    auto* lugar = new QWidget(&barra);
    pagina_ = new QSpinBox(lugar);
    pagina_->setRange(1, vista_->NumeroPaginas());
    pagina_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    pagina_->setAlignment(Qt::AlignRight);
    pagina_->setKeyboardTracking(false);
    pagina_->setAccessibleName("Página");
    connect(pagina_, &QSpinBox::valueChanged, this, [this](int numero) {
        if (numero - 1 != vista_->PaginaActual()) vista_->IrAPagina(numero - 1);
    });
    auto* fila = new QHBoxLayout(lugar);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addWidget(pagina_);
    fila->addWidget(new QLabel(" de " + QString::number(vista_->NumeroPaginas()) + " ", lugar));
    PonerAccionesDePaginas(barra, *vista_, lugar);
    vista_->AlCambiarPagina = [this](int pagina) { MostrarPagina(pagina); };
}

void VentanaVerReportes::ArmarZoom(QToolBar& barra) {
    connect(AccionDeBarra(barra, "alejar", "Alejar", QKeySequence("Ctrl+-")), &QAction::triggered, this,
            [this] { vista_->PonerZoom(vista_->Zoom() / PasoDeZoom); });
    zoom_ = new QComboBox(&barra);
    zoom_->setAccessibleName("Zoom");
    zoom_->setFocusPolicy(Qt::ClickFocus);
    for (const int zoom : Zooms) zoom_->addItem(QString::number(zoom) + " %", zoom);
    zoom_->addItem("Ancho de la página", OpcionAncho);
    zoom_->addItem("Página completa", OpcionPagina);
    zoom_->setMinimumWidth(zoom_->sizeHint().width());
    connect(zoom_, &QComboBox::activated, this, [this](int) { PonerZoom(zoom_->currentData().toInt()); });
    barra.addWidget(zoom_);
    connect(AccionDeBarra(barra, "acercar", "Acercar", QKeySequence("Ctrl++")), &QAction::triggered, this,
            [this] { vista_->PonerZoom(vista_->Zoom() * PasoDeZoom); });
    vista_->AlCambiarZoom = [this](double zoom) { MostrarZoom(zoom); };
    MostrarZoom(vista_->Zoom());
}

void VentanaVerReportes::ArmarBusqueda(QToolBar& barra) {
    busqueda_ = new QLineEdit(&barra);
    busqueda_->setObjectName("Busqueda");
    busqueda_->setPlaceholderText("Buscar");
    busqueda_->setClearButtonEnabled(true);
    busqueda_->setMaximumWidth(190);
    busqueda_->addAction(programa::qt::Icono("buscar"), QLineEdit::LeadingPosition);
    barra.addWidget(busqueda_);
    hallazgos_ = new QLabel(&barra);
    hallazgos_->setObjectName("Hallazgos");
    hallazgos_->setMinimumWidth(hallazgos_->fontMetrics().horizontalAdvance(" 0000 de 0000 "));
    barra.addWidget(hallazgos_);
    connect(busqueda_, &QLineEdit::returnPressed, this, [this] { Buscar(true); });
    connect(busqueda_, &QLineEdit::textChanged, this, [this](const QString& texto) {
        if (texto.isEmpty()) Buscar(true);
    });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        busqueda_->setFocus();
        busqueda_->selectAll();
    });
    connect(new QShortcut(QKeySequence("F3"), this), &QShortcut::activated, this, [this] { Buscar(true); });
    connect(new QShortcut(QKeySequence("Shift+F3"), this), &QShortcut::activated, this,
            [this] { Buscar(false); });
}

void VentanaVerReportes::Imprimir() {
    try {
        exportador_.Imprimir(documento_);
    } catch (const ErrorEjecucion& error) {
        exportador_.Avisar(error);
    }
}

void VentanaVerReportes::Exportar(std::uint8_t salida) {
    if (!exportador_.PedirArchivo(salida)) return;
    try {
        exportador_.Exportar(documento_, salida);
    } catch (const ErrorEjecucion& error) {
        exportador_.Avisar(error);
    }
}

void VentanaVerReportes::PonerZoom(int opcion) {
    const double zoom = opcion == OpcionAncho    ? vista_->ZoomDeAncho()
                        : opcion == OpcionPagina ? vista_->ZoomDePagina()
                                                 : opcion;
    vista_->PonerZoom(zoom);
    MostrarZoom(vista_->Zoom());
    vista_->setFocus();
}

/// A zoom that is none of the list's shows as the box's own text.
void VentanaVerReportes::MostrarZoom(double porcentaje) {
    const int redondo = static_cast<int>(std::lround(porcentaje));
    zoom_->setCurrentIndex(zoom_->findData(redondo));
    zoom_->setPlaceholderText(QString::number(redondo) + " %");
}

void VentanaVerReportes::MostrarPagina(int pagina) {
    pagina_->setValue(pagina + 1);
}

void VentanaVerReportes::Buscar(bool adelante) {
    const QString texto = busqueda_->text();
    if (texto != buscado_) vista_->Buscar(texto);
    buscado_ = texto;
    const int cual = vista_->IrAlHallazgo(adelante);
    if (texto.isEmpty())
        hallazgos_->clear();
    else if (cual == 0)
        hallazgos_->setText(" No se encontró ");
    else
        hallazgos_->setText(QString(" %1 de %2 ").arg(cual).arg(vista_->NumeroHallazgos()));
}

}  // namespace trabex::reportes::ui::qt
