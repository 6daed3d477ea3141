#include "shell/qt/VentanaEspacio.h"

#include <QAbstractButton>
#include <QAction>
#include <QFont>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "drawing/qt/WidgetLienzo.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/FilaNumerada.h"
#include "shell/qt/Iconos.h"
#include "shell/qt/LineaElidida.h"
#include "shell/qt/VentanaRenombrar.h"

namespace trabex::programa::qt {

namespace {

constexpr QSize TamanoDeEspacio(1100, 700);
constexpr int AnchoDeLista = 230;

QString Texto(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

}  // namespace

VentanaEspacio::VentanaEspacio(const Tapiz& preferencias, QWidget* padre)
    : QDialog(padre), preferencias_(preferencias) {
    setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
}

void VentanaEspacio::Armar(const DatosDeEspacio& datos) {
    setObjectName(datos.Nombre);
    operaciones_ = &datos.Lista;
    auto* partes = Partes(datos);
    pie_ = new LineaElidida("Pie", this);
    avisos_ = new LineaElidida("Avisos", this);
    auto* lineaDelPie = new QHBoxLayout;
    lineaDelPie->setSpacing(16);
    lineaDelPie->addWidget(pie_, 1);
    lineaDelPie->addWidget(avisos_, 2);
    CrearAcciones(datos);
    CrearMenusDeContexto();
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(6, 4, 6, 4);
    columna->setSpacing(4);
    columna->setMenuBar(BarraDeMenus(datos));
    columna->addLayout(BarraDeMandos());
    columna->addWidget(partes, 1);
    columna->addLayout(lineaDelPie);
    TamanoInicial(this, TamanoDeEspacio);
    datos.Lista.Abrir();
    hojas_->setCurrentIndex(QSettings().value("hoja/" + objectName()).toInt());
    PrepararVentana(this, preferencias_);
    AlVenirAlFrente(this, [this] { operaciones_->NotarCambios(); });
    PonerOrdenDeTab(datos);
    lista_->setFocus();
}

/// What stands below the list is made before it.
void VentanaEspacio::PonerOrdenDeTab(const DatosDeEspacio& datos) {
    if (datos.BajoLaLista == nullptr) return;
    QWidget* antes = lista_;
    for (auto* opcion : datos.BajoLaLista->findChildren<QAbstractButton*>()) {
        setTabOrder(antes, opcion);
        antes = opcion;
    }
}

QSplitter* VentanaEspacio::Partes(const DatosDeEspacio& datos) {
    partes_ = new QSplitter(Qt::Horizontal, this);
    partes_->addWidget(PanelDeLista(datos));
    partes_->addWidget(PanelDeHojas(datos));
    partes_->setStretchFactor(1, 1);
    partes_->setChildrenCollapsible(false);
    partes_->setSizes({AnchoDeLista, TamanoDeEspacio.width() - AnchoDeLista});
    partes_->restoreState(QSettings().value("partes/" + objectName()).toByteArray());
    return partes_;
}

void VentanaEspacio::CrearAcciones(const DatosDeEspacio& datos) {
    comandos_.assign(datos.Comandos.begin(), datos.Comandos.end());
    comandos_.insert(comandos_.end(), ComandosDeVista.begin(), ComandosDeVista.end());
    for (const ComandoEspacio& comando : comandos_) CrearAccion(comando, datos);
    ConectarVista();
    Accion("ID_Cuadricula")->setChecked(datos.Vista.CuadriculaVisible);
    PonerAtajos();
}

void VentanaEspacio::CrearAccion(const ComandoEspacio& comando, const DatosDeEspacio& datos) {
    const std::map<std::string_view, std::function<void()>> deLista{
        {"ID_Abrir", [this] { operaciones_->AbrirProyecto(); }},
        {"ID_Renombrar", [this] { operaciones_->Renombrar(); }},
        {"ID_Eliminar", [this] { operaciones_->Eliminar(); }},
        {"ID_Anterior", [this] { operaciones_->Anterior(); }},
        {"ID_Siguiente", [this] { operaciones_->Siguiente(); }},
    };
    auto* accion = new QAction(Icono(Texto(comando.Icono)), Texto(comando.Nombre).trimmed(), this);
    accion->setObjectName(Texto(comando.Clave));
    accion->setToolTip(TextoDeAyuda(Texto(comando.Titulo), Texto(comando.Ayuda)));
    acciones_[comando.Clave] = accion;
    if (const auto comun = deLista.find(comando.Clave); comun != deLista.end()) {
        connect(accion, &QAction::triggered, this, comun->second);
    } else if (const auto propia = datos.Operaciones.find(comando.Clave); propia != datos.Operaciones.end()) {
        connect(accion, &QAction::triggered, this, propia->second);
    } else if (comando.Grupo != GrupoComandos::Vista) {
        accion->setEnabled(false);
        accion->setToolTip(accion->toolTip() + "<br>(no disponible en esta edición)");
        accion->setData("sin operacion");
    }
}

void VentanaEspacio::ConectarVista() {
    dibujo::Visor& visor = lienzo_->Comandos();
    const std::map<std::string_view, std::function<void(bool)>> operaciones{
        {"ID_ZoomIN", [&visor](bool) { visor.EjecuteZoomIn(); }},
        {"ID_ZoomOut", [&visor](bool) { visor.EjecuteZoomOut(); }},
        {"ID_ZoomExtents", [&visor](bool) { visor.EjecuteZoomExtents(); }},
        {"ID_PanRealtime", [&visor](bool activo) { visor.EjecutePanRealtime(activo); }},
        {"ID_Cuadricula", [&visor](bool activo) { visor.CuadriculaFondo(activo); }},
        {"ID_Plotear", [&visor](bool) { visor.EjecutePlotear(); }},
    };
    for (const auto& [clave, operacion] : operaciones)
        connect(Accion(clave), &QAction::triggered, this, operacion);
    for (const char* clave : {"ID_PanRealtime", "ID_Cuadricula"}) Accion(clave)->setCheckable(true);
    lienzo_->AlSoltarPan([this] { Accion("ID_PanRealtime")->setChecked(false); });
}

void VentanaEspacio::PonerAtajos() {
    struct Atajo {
        std::string_view Clave;
        QKeySequence Tecla;
        bool SoloEnLaLista = false;
    };
    const std::array<Atajo, 22> atajos{{{"ID_Abrir", QKeySequence::Open},
                                        {"ID_Generales", QKeySequence("Ctrl+G")},
                                        {"ID_Nueva", QKeySequence::New},
                                        {"ID_Editar", QKeySequence("F4")},
                                        {"ID_Copiar", QKeySequence("Ctrl+D")},
                                        {"ID_Renombrar", Qt::Key_F2, true},
                                        {"ID_Eliminar", QKeySequence::Delete, true},
                                        {"ID_Anterior", Qt::CTRL | Qt::Key_PageUp},
                                        {"ID_Siguiente", Qt::CTRL | Qt::Key_PageDown},
                                        {"ID_Graficos", QKeySequence("Ctrl+Shift+G")},
                                        {"ID_Exportar", QKeySequence("Ctrl+E")},
                                        {"ID_Imprimir", QKeySequence::Print},
                                        {"ID_ImprimirP", QKeySequence("Ctrl+Shift+P")},
                                        {"ID_Planex", QKeySequence("Ctrl+L")},
                                        {"ID_ExportarG", QKeySequence("Ctrl+I")},
                                        {"ID_ZoomIN", QKeySequence::ZoomIn},
                                        {"ID_ZoomOut", QKeySequence::ZoomOut},
                                        {"ID_ZoomExtents", QKeySequence("Ctrl+0")},
                                        {"ID_Plotear", QKeySequence("F5")},
                                        {"ID_PorGrupos", QKeySequence("Ctrl+T")},
                                        {"ID_GrupoAnterior", Qt::CTRL | Qt::Key_Left},
                                        {"ID_GrupoSiguiente", Qt::CTRL | Qt::Key_Right}}};
    for (const Atajo& atajo : atajos) {
        const auto hallada = acciones_.find(atajo.Clave);
        if (hallada == acciones_.end()) continue;
        hallada->second->setShortcut(atajo.Tecla);
        if (!atajo.SoloEnLaLista) continue;
        hallada->second->setShortcutContext(Qt::WidgetShortcut);
        lista_->addAction(hallada->second);
    }
}

void VentanaEspacio::AgregarComandos(QWidget& destino, GrupoComandos grupo) const {
    for (const ComandoEspacio& comando : comandos_) {
        if (comando.Grupo == grupo) destino.addAction(Accion(comando.Clave));
    }
}

QMenuBar* VentanaEspacio::BarraDeMenus(const DatosDeEspacio& datos) {
    auto* barra = new QMenuBar(this);
    const std::array<std::pair<GrupoComandos, const char*>, 4> menus{
        {{GrupoComandos::Proyecto, "&Proyecto"},
         {GrupoComandos::Elemento, datos.MenuElemento},
         {GrupoComandos::Salida, "&Salida"},
         {GrupoComandos::Vista, "&Vista"}}};
    for (const auto& [grupo, titulo] : menus) {
        QMenu* menu = barra->addMenu(titulo);
        AgregarComandos(*menu, grupo);
        if (grupo == GrupoComandos::Proyecto) {
            menu->addSeparator();
            menu->addAction(Icono("salida"), "Retorno", this, &QDialog::accept);
        }
        PonerMnemonicos(*menu);
    }
    return barra;
}

/// The way out stays in sight where the commands do not all find room.
QLayout* VentanaEspacio::BarraDeMandos() {
    auto* barra = new QToolBar(this);
    barra->setIconSize({24, 24});
    for (const GrupoComandos grupo :
         {GrupoComandos::Proyecto, GrupoComandos::Elemento, GrupoComandos::Salida, GrupoComandos::Vista}) {
        if (grupo != GrupoComandos::Proyecto) barra->addSeparator();
        AgregarComandos(*barra, grupo);
    }
    auto* retorno = Boton(" &Retorno ", "salida", this);
    retorno->setAutoDefault(false);
    PonerAyuda(retorno, "Retorno", "Volver al menú principal. ");
    connect(retorno, &QPushButton::clicked, this, &QDialog::accept);
    for (auto* boton : barra->findChildren<QToolButton*>()) boton->setFocusPolicy(Qt::TabFocus);
    auto* fila = new QHBoxLayout;
    fila->addWidget(barra, 1);
    fila->addWidget(retorno);
    return fila;
}

void VentanaEspacio::CrearMenusDeContexto() {
    auto* pantalla = new QMenu(this);
    pantalla->setObjectName("ID_Pantalla");
    AgregarComandos(*pantalla, GrupoComandos::Vista);
    lienzo_->PonerMenuPantalla(pantalla);
    auto* deLista = new QMenu(lista_);
    AgregarComandos(*deLista, GrupoComandos::Elemento);
    lista_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(lista_, &QWidget::customContextMenuRequested, this,
            [this, deLista](const QPoint& lugar) { deLista->popup(lista_->mapToGlobal(lugar)); });
}

QWidget* VentanaEspacio::PanelDeLista(const DatosDeEspacio& datos) {
    auto* panel = new QWidget(this);
    auto* titulo = new QLabel(datos.RotuloLista, panel);
    lista_ = new QListWidget(panel);
    lista_->setObjectName("Lista");
    lista_->setAlternatingRowColors(true);
    lista_->setSpacing(1);
    const int letra = lista_->fontMetrics().height();
    lista_->setIconSize({letra, letra});  // a row that is marked is as high as the others
    titulo->setBuddy(lista_);
    connect(lista_, &QListWidget::currentRowChanged, this,
            [this](int fila) { operaciones_->Seleccionar(fila + 1); });
    connect(lista_, &QListWidget::itemActivated, this, [this] { Accion("ID_Editar")->trigger(); });
    auto* titulos = new QHBoxLayout;
    if (datos.ListaNumerada) {
        lista_->setItemDelegate(new FilaNumerada(lista_));
        auto* numero = new QLabel("No", panel);
        numero->setFixedWidth(FilaNumerada::Ancho(lista_->fontMetrics()));
        numero->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        titulos->addWidget(numero);
    }
    titulos->addWidget(titulo, 1);
    auto* columna = new QVBoxLayout(panel);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addLayout(titulos);
    columna->addWidget(lista_, 1);
    if (datos.BajoLaLista != nullptr) columna->addWidget(datos.BajoLaLista);
    return panel;
}

QWidget* VentanaEspacio::PanelDeHojas(const DatosDeEspacio& datos) {
    auto* panel = new QWidget(this);
    encabezado_ = new LineaElidida("Encabezado", panel);
    QFont fuente = encabezado_->font();
    fuente.setBold(true);
    fuente.setPointSize(fuente.pointSize() + 2);
    encabezado_->setFont(fuente);
    hojas_ = new QTabBar(panel);
    hojas_->setExpanding(false);
    frente_ = new QStackedWidget(panel);
    lienzo_ = new dibujo::qt::WidgetLienzo(datos.Vista, datos.Dibujar, frente_, datos.Teclas);
    lienzo_->setObjectName("Lienzo");
    lienzo_->PonerLector(datos.Lector);
    frente_->addWidget(lienzo_);
    for (const char* titulo : datos.Hojas) hojas_->addTab(titulo);
    for (const PaginaDeEspacio& pagina : datos.Paginas) {
        hojas_->addTab(pagina.Titulo);
        frente_->addWidget(pagina.Contenido);
    }
    connect(hojas_, &QTabBar::currentChanged, this, [this, elegir = datos.AlElegirHoja](int hoja) {
        PonerAlFrente(hoja);
        elegir(hoja);
    });
    auto* columna = new QVBoxLayout(panel);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(2);
    columna->addWidget(encabezado_);
    columna->addWidget(hojas_);
    columna->addWidget(frente_, 1);
    PonerAlFrente(0);
    return panel;
}

bool VentanaEspacio::HojaAlFrente() const {
    return frente_->currentWidget() == lienzo_;
}

/// The keyboard stays where it was, but that what goes behind hands it to what comes to the front.
void VentanaEspacio::PonerAlFrente(int hoja) {
    const int hojas = hojas_->count() - (frente_->count() - 1);
    const bool conTeclado = frente_->currentWidget()->hasFocus();
    frente_->setCurrentIndex(std::max(0, hoja - hojas + 1));
    if (conTeclado) frente_->currentWidget()->setFocus();
    HabilitarComandos();
}

void VentanaEspacio::HabilitarComandos() {
    for (const ComandoEspacio& comando : comandos_) {
        QAction* accion = Accion(comando.Clave);
        if (!accion->data().isValid()) accion->setEnabled(Habilitado(comando));
    }
}

bool VentanaEspacio::Habilitado(const ComandoEspacio& comando) const {
    if (comando.Grupo == GrupoComandos::Vista && !HojaAlFrente()) return false;
    if (comando.Clave == "ID_Anterior") return lista_->currentRow() > 0;
    if (comando.Clave == "ID_Siguiente")
        return lista_->currentRow() >= 0 && lista_->currentRow() + 1 < lista_->count();
    return !comando.PideElemento || lista_->count() > 0;
}

void VentanaEspacio::PonerTitulo(const std::string& titulo) {
    setWindowTitle(Q(titulo));
}

void VentanaEspacio::PonerEstado(const std::string& texto) {
    estado_ = texto;
    if (leyendo_) return;
    pie_->setText(Q(texto));
}

void VentanaEspacio::PonerLectura(const std::string& texto) {
    leyendo_ = !texto.empty();
    pie_->setText(Q(leyendo_ ? texto : estado_));
    pie_->setToolTip(Q(leyendo_ ? texto : estado_));
    avisos_->setVisible(!leyendo_ && !avisos_->text().isEmpty());
}

void VentanaEspacio::PonerEncabezado(const std::string& texto) {
    encabezado_->setText(Q(texto));
}

void VentanaEspacio::PonerAvisos(const Avisos& avisos) {
    QStringList lineas;
    for (const trabex::Aviso& aviso : avisos) lineas += Q(EnUnaLinea(aviso));
    avisos_->setText(Q(Resumen(avisos)));
    avisos_->setToolTip(lineas.join('\n'));
    avisos_->setVisible(!leyendo_ && !avisos.empty());
}

void VentanaEspacio::LlenarLista(const std::vector<std::string>& nombres) {
    const QSignalBlocker quieta(lista_);
    lista_->clear();
    for (const std::string& nombre : nombres) lista_->addItem(Q(nombre));
    HabilitarComandos();
}

void VentanaEspacio::MarcarFila(int fila) {
    const QSignalBlocker quieta(lista_);
    lista_->setCurrentRow(fila - 1);
    HabilitarComandos();
}

void VentanaEspacio::MarcarFalla(int fila, bool falla) {
    QListWidgetItem* const renglon = lista_->item(fila - 1);
    if (renglon == nullptr) return;
    renglon->setIcon(falla ? style()->standardIcon(QStyle::SP_MessageBoxWarning) : QIcon());
    renglon->setToolTip(falla ? "Falla: véanse sus avisos al pie." : "");
}

void VentanaEspacio::MarcarHoja(int hoja) {
    const QSignalBlocker quietas(hojas_);
    hojas_->setCurrentIndex(hoja);
    PonerAlFrente(hoja);
}

void VentanaEspacio::RestablecerVista() {
    lienzo_->Comandos().Restablecer();
}

/// At once: what the calculation left is on the screen when it returns. Behind a page there is nothing to
/// see.
void VentanaEspacio::Redibujar() {
    if (!HojaAlFrente()) return;
    lienzo_->RedibujeVista();
    lienzo_->repaint();
}

void VentanaEspacio::MostrarRenombrar(Renombrar& operaciones) {
    VentanaRenombrar ventana(operaciones, preferencias_, this);
    MostrarModal(ventana);
}

void VentanaEspacio::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape) {
        if (HojaAlFrente()) lienzo_->Comandos().EjecuteZoomExtents();
        return;
    }
    QDialog::keyPressEvent(evento);
}

void VentanaEspacio::hideEvent(QHideEvent* evento) {
    QSettings().setValue("partes/" + objectName(), partes_->saveState());
    QSettings().setValue("hoja/" + objectName(), hojas_->currentIndex());
    QDialog::hideEvent(evento);
}

}  // namespace trabex::programa::qt
