#include "slab/ui/qt/VentanaLosas.h"

#include <QAction>
#include <QButtonGroup>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>
#include <utility>

#include "drawing/qt/WidgetLienzo.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/Iconos.h"
#include "shell/qt/VentanaRenombrar.h"
#include "slab/ui/LosaNueva.h"
#include "slab/ui/qt/VentanaLosaDatos.h"
#include "slab/ui/qt/VentanaLosaGeneral.h"
#include "slab/ui/qt/VentanaNombreLosa.h"

namespace trabex::losas::ui::qt {

namespace {

constexpr std::array<const char*, 3> TitulosDeHoja{"&Geometría de la Losa", "&Cortes y Momentos",
                                                   "&Diseño y Reacciones"};

QString Texto(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

}  // namespace

VentanaLosas::VentanaLosas(programa::Aplicacion& aplicacion, programa::CajaMensajes& caja,
                           programa::DialogosArchivo& dialogos, const EnchufesLosas& enchufes, QWidget* padre)
    : QDialog(padre), aplicacion_(aplicacion), caja_(caja), operaciones_(aplicacion, *this, caja, dialogos) {
    setObjectName("Losas");
    setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
    auto* partes = new QSplitter(Qt::Horizontal, this);
    partes->addWidget(PanelDeLista());
    partes->addWidget(PanelDeHojas());
    partes->setStretchFactor(1, 1);
    partes->setChildrenCollapsible(false);
    partes->setSizes({230, 870});
    pie_ = new QLabel(this);
    pie_->setTextFormat(Qt::PlainText);
    pie_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    CrearAcciones(enchufes);
    CrearMenus();
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(6, 4, 6, 4);
    columna->setSpacing(4);
    columna->addWidget(Barra());
    columna->addWidget(partes, 1);
    columna->addWidget(pie_);
    programa::qt::TamanoInicial(this, {1100, 700});
    operaciones_.Abrir();
    programa::qt::PrepararVentana(this, aplicacion_.Preferencias);
    lista_->setFocus();
}

VentanaLosas::~VentanaLosas() {
    operaciones_.Cerrar();
}

void VentanaLosas::CrearAcciones(const EnchufesLosas& enchufes) {
    for (const ComandoLosas& comando : ComandosLosas) {
        auto* accion =
            new QAction(programa::qt::Icono(Texto(comando.Icono)), Texto(comando.Nombre).trimmed(), this);
        accion->setObjectName(Texto(comando.Clave));
        accion->setToolTip(programa::qt::TextoDeAyuda(Texto(comando.Titulo), Texto(comando.Ayuda)));
        acciones_[comando.Clave] = accion;
        Conectar(comando.Clave, enchufes);
    }
    for (const std::string_view clave : {"ID_PanRealtime", "ID_Cuadricula"})
        Accion(clave)->setCheckable(true);
    Accion("ID_Cuadricula")->setChecked(operaciones_.Estado().Hoja.Vista.CuadriculaVisible);
    lienzo_->AlSoltarPan([this] { Accion("ID_PanRealtime")->setChecked(false); });
    Accion("ID_Abrir")->setShortcut(QKeySequence::Open);
    Accion("ID_Nueva")->setShortcut(QKeySequence::New);
    AtajosDeLista();
}

void VentanaLosas::Conectar(std::string_view clave, const EnchufesLosas& enchufes) {
    dibujo::Visor& visor = lienzo_->Comandos();
    const std::map<std::string_view, std::function<void(bool)>> propias{
        {"ID_Abrir", [this](bool) { operaciones_.AbrirProyecto(); }},
        {"ID_Generales", [this](bool) { operaciones_.DatosGenerales(); }},
        {"ID_Nueva", [this](bool) { operaciones_.CrearNueva(); }},
        {"ID_Editar", [this](bool) { operaciones_.Modificar(); }},
        {"ID_Copiar", [this](bool) { operaciones_.CrearDesdeSeleccionada(); }},
        {"ID_Renombrar", [this](bool) { operaciones_.Renombrar(); }},
        {"ID_Eliminar", [this](bool) { operaciones_.Eliminar(); }},
        {"ID_ZoomIN", [&visor](bool) { visor.EjecuteZoomIn(); }},
        {"ID_ZoomOut", [&visor](bool) { visor.EjecuteZoomOut(); }},
        {"ID_ZoomExtents", [&visor](bool) { visor.EjecuteZoomExtents(); }},
        {"ID_PanRealtime", [&visor](bool activo) { visor.EjecutePanRealtime(activo); }},
        {"ID_Cuadricula", [&visor](bool activo) { visor.CuadriculaFondo(activo); }},
        {"ID_Plotear", [&visor](bool) { visor.EjecutePlotear(); }},
    };
    QAction* accion = Accion(clave);
    if (const auto propia = propias.find(clave); propia != propias.end()) {
        connect(accion, &QAction::triggered, this, propia->second);
    } else if (const auto enchufe = enchufes.find(clave); enchufe != enchufes.end()) {
        connect(accion, &QAction::triggered, this,
                [this, operacion = enchufe->second] { operacion(operaciones_, *this); });
    } else {
        accion->setEnabled(false);
        accion->setToolTip(accion->toolTip() + "<br>(no disponible en esta edición)");
        accion->setData("sin operacion");
    }
}

/// Keys that act on the list alone.
void VentanaLosas::AtajosDeLista() {
    const std::array<std::pair<std::string_view, QKeySequence>, 3> atajos{
        {{"ID_Renombrar", Qt::Key_F2},
         {"ID_Eliminar", QKeySequence::Delete},
         {"ID_Copiar", QKeySequence::Copy}}};
    for (const auto& [clave, tecla] : atajos) {
        Accion(clave)->setShortcut(tecla);
        Accion(clave)->setShortcutContext(Qt::WidgetShortcut);
        lista_->addAction(Accion(clave));
    }
}

QWidget* VentanaLosas::Barra() {
    auto* barra = new QToolBar(this);
    barra->setIconSize({24, 24});
    GrupoLosas anterior = GrupoLosas::Proyecto;
    for (const ComandoLosas& comando : ComandosLosas) {
        if (comando.Grupo != anterior) barra->addSeparator();
        anterior = comando.Grupo;
        barra->addAction(Accion(comando.Clave));
    }
    auto* hueco = new QWidget(barra);
    hueco->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    barra->addWidget(hueco);
    auto* retorno = programa::qt::Boton(" &Retorno ", "salida", barra);
    retorno->setAutoDefault(false);
    programa::qt::PonerAyuda(retorno, "Retorno", "Volver al menú principal. ");
    connect(retorno, &QPushButton::clicked, this, &QDialog::accept);
    barra->addWidget(retorno);
    return barra;
}

void VentanaLosas::CrearMenus() {
    auto* pantalla = new QMenu(this);
    pantalla->setObjectName("ID_Pantalla");
    lista_->setContextMenuPolicy(Qt::CustomContextMenu);
    auto* deLista = new QMenu(lista_);
    for (const ComandoLosas& comando : ComandosLosas) {
        if (comando.Grupo == GrupoLosas::Vista) pantalla->addAction(Accion(comando.Clave));
        if (comando.Grupo == GrupoLosas::Losa) deLista->addAction(Accion(comando.Clave));
    }
    lienzo_->PonerMenuPantalla(pantalla);
    connect(lista_, &QWidget::customContextMenuRequested, this,
            [this, deLista](const QPoint& lugar) { deLista->popup(lista_->mapToGlobal(lugar)); });
}

QWidget* VentanaLosas::PanelDeLista() {
    auto* panel = new QWidget(this);
    auto* titulo = new QLabel("&Losas del Proyecto", panel);
    lista_ = new QListWidget(panel);
    lista_->setObjectName("Lista");
    lista_->setAlternatingRowColors(true);
    lista_->setSpacing(1);
    titulo->setBuddy(lista_);
    connect(lista_, &QListWidget::currentRowChanged, this,
            [this](int fila) { operaciones_.Seleccionar(fila + 1); });
    connect(lista_, &QListWidget::itemActivated, this, [this] { operaciones_.Modificar(); });
    auto* columna = new QVBoxLayout(panel);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(titulo);
    columna->addWidget(lista_, 1);
    columna->addWidget(OpcionesDeCarga());
    return panel;
}

QWidget* VentanaLosas::OpcionesDeCarga() {
    auto* marco = new QGroupBox("Cargas en los Tramos", this);
    auto* columna = new QVBoxLayout(marco);
    opcionCarga_ = new QButtonGroup(this);
    for (const auto& [opcion, texto] : {std::pair{dibujo::losa::CargaTotal, "Mostrar la Carga Total"},
                                        std::pair{dibujo::losa::CargaPorCasos, "Permanente + Variable"}}) {
        auto* boton = new QRadioButton(texto, marco);
        opcionCarga_->addButton(boton, opcion);
        columna->addWidget(boton);
    }
    opcionCarga_->button(dibujo::losa::CargaTotal)->setChecked(true);
    connect(opcionCarga_, &QButtonGroup::idClicked, this, [this](int opcion) {
        operaciones_.ElegirOpcionCarga(static_cast<dibujo::losa::OpcionDeCarga>(opcion));
    });
    return marco;
}

QWidget* VentanaLosas::PanelDeHojas() {
    auto* panel = new QWidget(this);
    encabezado_ = new QLabel(panel);
    encabezado_->setObjectName("Encabezado");
    encabezado_->setTextFormat(Qt::PlainText);
    encabezado_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QFont fuente = encabezado_->font();
    fuente.setBold(true);
    fuente.setPointSize(fuente.pointSize() + 2);
    encabezado_->setFont(fuente);
    hojas_ = new QTabBar(panel);
    hojas_->setExpanding(false);
    for (const char* titulo : TitulosDeHoja) hojas_->addTab(titulo);
    connect(hojas_, &QTabBar::currentChanged, this,
            [this](int hoja) { operaciones_.ElegirVista(static_cast<dibujo::losa::VistaLosa>(hoja)); });
    lienzo_ = new dibujo::qt::WidgetLienzo(
        operaciones_.Estado().Hoja.Vista,
        [this](dibujo::Lienzo& lienzo) {
            dibujo::losa::RedibujeVista(lienzo, operaciones_.Estado().Hoja, operaciones_.Calculada());
        },
        panel);
    auto* columna = new QVBoxLayout(panel);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(2);
    columna->addWidget(encabezado_);
    columna->addWidget(hojas_);
    columna->addWidget(lienzo_, 1);
    return panel;
}

void VentanaLosas::HabilitarComandos() {
    const bool hay = operaciones_.NumeroDeLosas() > 0;
    for (const ComandoLosas& comando : ComandosLosas) {
        QAction* accion = Accion(comando.Clave);
        if (comando.PideLosa && !accion->data().isValid()) accion->setEnabled(hay);
    }
}

void VentanaLosas::PonerTitulo(const std::string& titulo) {
    setWindowTitle(programa::qt::Q(titulo));
    opcionCarga_->button(operaciones_.Estado().Hoja.OpcionCarga)->setChecked(true);
}

void VentanaLosas::PonerEstado(const std::string& texto) {
    pie_->setText(programa::qt::Q(texto));
    pie_->setToolTip(programa::qt::Q(texto));
}

void VentanaLosas::PonerEncabezado(const std::string& texto) {
    encabezado_->setText(programa::qt::Q(texto));
}

void VentanaLosas::LlenarLista(const std::vector<std::string>& nombres) {
    const QSignalBlocker quieta(lista_);
    lista_->clear();
    for (const std::string& nombre : nombres) lista_->addItem(programa::qt::Q(nombre));
    HabilitarComandos();
}

void VentanaLosas::AgregarFila(const std::string& nombre) {
    const QSignalBlocker quieta(lista_);
    lista_->addItem(programa::qt::Q(nombre));
    HabilitarComandos();
}

void VentanaLosas::QuitarFila(int fila) {
    const QSignalBlocker quieta(lista_);
    delete lista_->takeItem(fila - 1);
    HabilitarComandos();
}

void VentanaLosas::MarcarFila(int fila) {
    const QSignalBlocker quieta(lista_);
    lista_->setCurrentRow(fila - 1);
}

void VentanaLosas::RestablecerVista() {
    lienzo_->Comandos().Restablecer();
}

/// At once: what the calculation left is on the screen when it returns.
void VentanaLosas::Redibujar() {
    lienzo_->RedibujeVista();
    lienzo_->repaint();
}

void VentanaLosas::MostrarLosaNueva() {
    LosaNueva operaciones(operaciones_, caja_);
    VentanaNombreLosa ventana(
        "CREAR NUEVA LOSA", operaciones_,
        [&](const std::string& nombre) { return operaciones.Aceptar(nombre); }, this);
    programa::qt::MostrarModal(ventana);
}

void VentanaLosas::MostrarLosaSalvarComo() {
    LosaSalvarComo operaciones(operaciones_, caja_);
    VentanaNombreLosa ventana(
        "Salvar Como...", operaciones_,
        [&](const std::string& nombre) { return operaciones.Aceptar(nombre); }, this);
    programa::qt::MostrarModal(ventana);
}

void VentanaLosas::MostrarLosaDatos() {
    VentanaLosaDatos ventana(operaciones_, caja_, this);
    programa::qt::MostrarModal(ventana);
}

void VentanaLosas::MostrarLosaGeneral() {
    VentanaLosaGeneral ventana(aplicacion_, caja_, this);
    programa::qt::MostrarModal(ventana);
}

std::string VentanaLosas::MostrarRenombrar(const std::string& actual) {
    programa::Renombrar operaciones(aplicacion_.Proyecto.ConexionProyecto, caja_, programa::RenombrarLosa,
                                    actual);
    programa::qt::VentanaRenombrar ventana(operaciones, aplicacion_.Preferencias, this);
    programa::qt::MostrarModal(ventana);
    return operaciones.NombreNuevo();
}

void VentanaLosas::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape) return lienzo_->Comandos().EjecuteZoomExtents();
    QDialog::keyPressEvent(evento);
}

}  // namespace trabex::losas::ui::qt
