#include "reports/ui/qt/VentanaVistaPreviaR.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

#include "reports/salidas/qt/VistaPaginas.h"
#include "reports/ui/qt/BarraDeVisor.h"
#include "reports/ui/qt/VentanaImpreVistaPrevia.h"
#include "reports/ui/qt/VentanaOpcionExportar2.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::reportes::ui::qt {

VentanaVistaPreviaR::VentanaVistaPreviaR(EntornoSalida& entorno, const cuadricula::Cuadricula& GrillaPreview,
                                         const std::string& titulo, documento::Alineacion lado, bool apaisada,
                                         QWidget* padre)
    : QDialog(padre),
      entorno_(entorno),
      operaciones_(entorno, GrillaPreview, titulo, lado, apaisada),
      documento_(operaciones_.Paginas()),
      vista_(new salidas::qt::VistaPaginas(documento_, this)) {
    setObjectName("VistaPreviaR");
    setWindowTitle(VistaPreviaR::Titulo);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    Armar();
    programa::qt::TamanoInicial(this, {1000, 760});
    programa::qt::PrepararVentana(this, entorno.LaAplicacion.Preferencias);
    MostrarPagina(0);
    vista_->setFocus();
}

void VentanaVistaPreviaR::Armar() {
    auto* barra = new QToolBar(this);
    barra->setIconSize({20, 20});
    connect(AccionDeBarra(*barra, "impresora", "Imprimir la vista previa", QKeySequence::Print),
            &QAction::triggered, this, [this] { Imprimir(); });
    connect(AccionDeBarra(*barra, "salvar", "Exportar a un archivo", QKeySequence("Ctrl+E")),
            &QAction::triggered, this, [this] { Exportar(); });
    barra->addSeparator();
    pagina_ = new QLabel(barra);
    pagina_->setObjectName("Pagina");
    pagina_->setAlignment(Qt::AlignCenter);
    pagina_->setMinimumWidth(pagina_->fontMetrics().horizontalAdvance("  000  de  000  "));
    PonerAccionesDePaginas(*barra, *vista_, pagina_);
    vista_->AlCambiarPagina = [this](int pagina) { MostrarPagina(pagina); };
    vista_->AlCambiarTamano = [this] { Acercar(); };
    barra->addSeparator();
    ArmarZoom(*barra);
    auto* hueco = new QWidget(barra);
    hueco->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    barra->addWidget(hueco);
    auto* retorno = programa::qt::Boton("Retorno", "salida", barra);
    retorno->setAutoDefault(false);
    programa::qt::PonerAyuda(retorno, "Retorno", "Cerrar la vista previa.");
    connect(retorno, &QPushButton::clicked, this, &QDialog::accept);
    barra->addWidget(retorno);

    titulo_ = new QLineEdit(programa::qt::Q(operaciones_.TituloDelReporte()), this);
    titulo_->setObjectName("Titulo");
    programa::qt::PonerAyuda(titulo_, "Título", "Título del reporte, como sale en cada página.");
    connect(titulo_, &QLineEdit::textEdited, this, [this] { Componer(); });
    auto* rotulo = new QLabel("&Título", this);
    rotulo->setBuddy(titulo_);
    auto* fila = new QHBoxLayout;
    fila->setContentsMargins(8, 4, 8, 4);
    fila->setSpacing(8);
    fila->addWidget(rotulo);
    fila->addWidget(titulo_, 1);

    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(0);
    columna->addWidget(barra);
    columna->addLayout(fila);
    columna->addWidget(vista_, 1);
    setTabOrder(titulo_, vista_);
}

QComboBox* VentanaVistaPreviaR::ListaDePaginas(QToolBar& barra, const char* nombre) {
    auto* lista = new QComboBox(&barra);
    lista->setAccessibleName(nombre);
    programa::qt::PonerAyuda(lista, "Múltiples Páginas", nombre);
    for (int i = 1; i <= MayorCuadriculaDePaginas; ++i) lista->addItem(QString::number(i), i);
    lista->setCurrentIndex(1);
    connect(lista, &QComboBox::activated, this, [this] { Acercar(); });
    return lista;
}

void VentanaVistaPreviaR::ArmarZoom(QToolBar& barra) {
    modo_ = new QComboBox(&barra);
    modo_->setObjectName("Modo");
    modo_->setAccessibleName("Zoom");
    for (const char* modo : ModosDeZoom) modo_->addItem(modo);
    porcentaje_ = new QComboBox(&barra);
    porcentaje_->setObjectName("Porcentaje");
    porcentaje_->setAccessibleName("Porcentaje");
    for (const int porcentaje : PorcentajesDeZoom)
        porcentaje_->addItem(QString::number(porcentaje) + " %", porcentaje);
    porcentaje_->setCurrentIndex(porcentaje_->findData(100));
    columnas_ = ListaDePaginas(barra, "Páginas a lo ancho");
    filas_ = ListaDePaginas(barra, "Páginas a lo alto");
    for (QComboBox* lista : {modo_, porcentaje_})
        connect(lista, &QComboBox::activated, this, [this] { Acercar(); });
    for (QComboBox* lista : {modo_, porcentaje_, columnas_, filas_}) barra.addWidget(lista);
}

/// The pages again, after their title or their settings changed.
void VentanaVistaPreviaR::Componer() {
    operaciones_.PonerTitulo(programa::qt::S(titulo_->text()));
    documento_ = operaciones_.Paginas();
    vista_->PonerDocumento(documento_);
    MostrarPagina(vista_->PaginaActual());
}

/// The zoom that the lists tell; those that the mode does not read are disabled.
void VentanaVistaPreviaR::Acercar() {
    const auto modo = static_cast<ModoDeZoom>(modo_->currentIndex());
    const bool varias = modo == ModoDeZoom::MultiplesPaginas;
    const int columnas = columnas_->currentData().toInt();
    porcentaje_->setEnabled(modo == ModoDeZoom::Porcentaje);
    columnas_->setEnabled(varias);
    filas_->setEnabled(varias);
    vista_->PonerColumnas(varias ? columnas : 1);
    const double zoom = varias ? vista_->ZoomDeCuadricula(columnas, filas_->currentData().toInt())
                        : modo == ModoDeZoom::PaginaEntera    ? vista_->ZoomDePagina()
                        : modo == ModoDeZoom::TamanoNormal    ? 100
                        : modo == ModoDeZoom::PorcentajeAncho ? vista_->ZoomDeAncho()
                        : modo == ModoDeZoom::PorcentajeAlto  ? vista_->ZoomDeAlto()
                                                              : porcentaje_->currentData().toInt();
    vista_->PonerZoom(zoom);
}

void VentanaVistaPreviaR::MostrarPagina(int pagina) {
    pagina_->setText(programa::qt::Q(VistaPreviaR::Rotulo(pagina + 1, vista_->NumeroPaginas())));
}

void VentanaVistaPreviaR::Imprimir() {
    VentanaImpreVistaPrevia(entorno_, operaciones_, vista_->NumeroPaginas(), this).exec();
    Componer();
}

void VentanaVistaPreviaR::Exportar() {
    VentanaOpcionExportar2(entorno_, operaciones_.Grilla(), this).exec();
}

}  // namespace trabex::reportes::ui::qt
