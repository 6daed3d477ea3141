#include "markus/ui/qt/VentanaMarcus.h"

#include <QAction>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "markus/ui/ComandosMarcus.h"
#include "markus/ui/qt/FiguraCasos.h"
#include "markus/ui/qt/TablaDeNiveles.h"
#include "markus/ui/qt/TablaDePanos.h"
#include "markus/ui/qt/VentanaMarcusNuevo.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/Iconos.h"
#include "shell/qt/LineaElidida.h"
#include "shell/qt/VentanaRenombrar.h"

namespace trabex::marcus::ui::qt {

namespace {

using programa::GrupoComandos;
using programa::qt::Q;

constexpr int AnchoDeNiveles = 250;
constexpr qsizetype AvisosALaVista = 25;  // in the tool tip

QString Texto(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

}  // namespace

VentanaMarcus::VentanaMarcus(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                             SalidasDeMarcus salidas, QWidget* padre)
    : QDialog(padre),
      aplicacion_(aplicacion),
      salidas_(std::move(salidas)),
      operaciones_(aplicacion, servicios, *this, *this) {
    setObjectName("Marcus");
    setWindowTitle("COEFICIENTES DE REPARTICIÓN DE LA CARGA POR EL MÉTODO DE MARKUS");
    setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
    cambio_.setSingleShot(true);
    connect(&cambio_, &QTimer::timeout, this, [this] { AsentarCambio(); });
    auto* partes = new QSplitter(Qt::Horizontal, this);
    partes->addWidget(PanelDeNiveles());
    partes->addWidget(PanelDePanos());
    partes->setStretchFactor(1, 1);
    partes->setChildrenCollapsible(false);
    partes->setSizes({AnchoDeNiveles, 4 * AnchoDeNiveles});
    CrearAcciones();
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(6, 4, 6, 4);
    columna->setSpacing(4);
    columna->setMenuBar(BarraDeMenus());
    columna->addWidget(BarraDeMandos());
    columna->addWidget(partes, 1);
    columna->addLayout(LineaDelPie());
    programa::qt::TamanoInicial(this, {1060, 620});
    operaciones_.Lista().Abrir();
    programa::qt::PrepararVentana(this, aplicacion.Preferencias);
    programa::qt::AlVenirAlFrente(this, [this] { operaciones_.NotarCambios(); });
    niveles_->setFocus();
}

QWidget* VentanaMarcus::PanelDeNiveles() {
    auto* panel = new QWidget(this);
    niveles_ = new TablaDeNiveles(operaciones_, aplicacion_.SeparadoresLocales, panel);
    niveles_->AlCambiarFila([this](int fila) {
        if (!mostrando_) operaciones_.SeleccionarNivel(fila);
    });
    niveles_->AlEntrar([this] {
        if (panos_->Filas() == 0) return;
        panos_->setFocus();
        panos_->IrA(1, 0);
    });
    casos_ = new FiguraCasos(panel);
    auto* columna = new QVBoxLayout(panel);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(niveles_, 1);
    columna->addWidget(casos_);
    return panel;
}

QWidget* VentanaMarcus::PanelDePanos() {
    auto* panel = new QWidget(this);
    encabezado_ = new programa::qt::LineaElidida("Encabezado", panel);
    panos_ = new TablaDePanos(operaciones_, aplicacion_.SeparadoresLocales, panel);
    panos_->AlCambiarFila([this](int) { MostrarCaso(); });
    auto* columna = new QVBoxLayout(panel);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(encabezado_);
    columna->addWidget(panos_, 1);
    return panel;
}

QLayout* VentanaMarcus::LineaDelPie() {
    pie_ = new programa::qt::LineaElidida("Pie", this);
    avisos_ = new programa::qt::LineaElidida("Avisos", this);
    auto* linea = new QHBoxLayout;
    linea->setSpacing(16);
    linea->addWidget(pie_, 1);
    linea->addWidget(avisos_, 2);
    return linea;
}

void VentanaMarcus::CrearAcciones() {
    const std::map<std::string_view, std::function<void()>> operaciones{
        {"ID_Nueva", [this] { operaciones_.Crear(); }},
        {"ID_Renombrar", [this] { operaciones_.Lista().Renombrar(); }},
        {"ID_Eliminar", [this] { operaciones_.Lista().Eliminar(); }},
        {"ID_Salvar", [this] { operaciones_.Salvar(); }},
        {"ID_Deshacer", [this] { operaciones_.Deshacer(); }},
        {"ID_Exportar", [this] { operaciones_.Imprimir(); }},
        {"ID_ImprimirP", [this] { salidas_.Pantalla(*panos_, operaciones_.Nivel(), *this); }},
    };
    const std::map<std::string_view, QKeySequence> atajos{{"ID_Nueva", QKeySequence::New},
                                                          {"ID_Salvar", QKeySequence::Save},
                                                          {"ID_Deshacer", QKeySequence::Undo},
                                                          {"ID_Exportar", QKeySequence::Print},
                                                          {"ID_ImprimirP", QKeySequence("Ctrl+Shift+P")}};
    for (const programa::ComandoEspacio& comando : ComandosMarcus) {
        auto* accion =
            new QAction(programa::qt::Icono(Texto(comando.Icono)), Texto(comando.Nombre).trimmed(), this);
        accion->setObjectName(Texto(comando.Clave));
        accion->setToolTip(programa::qt::TextoDeAyuda(Texto(comando.Titulo), Texto(comando.Ayuda)));
        if (const auto atajo = atajos.find(comando.Clave); atajo != atajos.end())
            accion->setShortcut(atajo->second);
        connect(accion, &QAction::triggered, this, [this, operacion = operaciones.at(comando.Clave)] {
            if (programa::qt::EntradasEnOrden(this)) operacion();
        });
        acciones_[comando.Clave] = accion;
    }
}

QMenuBar* VentanaMarcus::BarraDeMenus() {
    auto* barra = new QMenuBar(this);
    const std::array<std::pair<GrupoComandos, const char*>, 3> menus{{{GrupoComandos::Elemento, "&Nivel"},
                                                                      {GrupoComandos::Vista, "&Edición"},
                                                                      {GrupoComandos::Salida, "&Salida"}}};
    for (const auto& [grupo, titulo] : menus) {
        QMenu* menu = barra->addMenu(titulo);
        for (const programa::ComandoEspacio& comando : ComandosMarcus)
            if (comando.Grupo == grupo) menu->addAction(Accion(comando.Clave));
        if (grupo == GrupoComandos::Elemento) {
            menu->addSeparator();
            menu->addAction(programa::qt::Icono("salida"), "Retorno", this, &QDialog::reject);
        }
        programa::qt::PonerMnemonicos(*menu);
    }
    return barra;
}

QWidget* VentanaMarcus::BarraDeMandos() {
    auto* barra = new QToolBar(this);
    barra->setIconSize({24, 24});
    for (const programa::ComandoEspacio& comando : ComandosMarcus) {
        if (comando.Grupo != GrupoComandos::Elemento && !barra->actions().isEmpty() &&
            comando.Clave == "ID_Deshacer")
            barra->addSeparator();
        barra->addAction(Accion(comando.Clave));
    }
    auto* hueco = new QWidget(barra);
    hueco->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    barra->addWidget(hueco);
    auto* retorno = programa::qt::Boton(" &Retorno ", "salida", barra);
    retorno->setAutoDefault(false);
    programa::qt::PonerAyuda(retorno, "Retorno", "Volver al menú principal. ");
    connect(retorno, &QPushButton::clicked, this, &QDialog::reject);
    barra->addWidget(retorno);
    return barra;
}

void VentanaMarcus::PonerEstado(const std::string& texto) {
    pie_->setText(Q(texto));
}

void VentanaMarcus::PonerAvisos(const Avisos& avisos) {
    QStringList lineas;
    for (const trabex::Aviso& aviso : avisos) {
        if (lineas.size() < AvisosALaVista) lineas += Q(EnUnaLinea(aviso));
    }
    avisos_->setText(Q(Resumen(avisos)));
    avisos_->setToolTip(lineas.join('\n'));
    avisos_->setVisible(!avisos.empty());
}

void VentanaMarcus::MarcarFila(int fila) {
    niveles_->IrA(fila, 1);
}

void VentanaMarcus::MostrarRenombrar(programa::Renombrar& operaciones) {
    programa::qt::VentanaRenombrar ventana(operaciones, aplicacion_.Preferencias, this);
    programa::qt::MostrarModal(ventana);
}

void VentanaMarcus::MostrarNiveles() {
    mostrando_ = true;
    niveles_->PonerFilas(static_cast<int>(operaciones_.Niveles().size()));
    mostrando_ = false;
    for (const programa::ComandoEspacio& comando : ComandosMarcus)
        if (comando.PideElemento) Accion(comando.Clave)->setEnabled(!operaciones_.Niveles().empty());
}

void VentanaMarcus::MostrarNivel() {
    const std::string& nivel = operaciones_.Nivel();
    encabezado_->setText(nivel.empty() ? QString() : "Paños del nivel: " + Q(nivel));
    panos_->OlvidarCambios();
    MostrarPanos();
}

void VentanaMarcus::MostrarPanos() {
    panos_->PonerFilas(static_cast<int>(operaciones_.Panos().Cuantos()));
    cambio_.start(0);
}

void VentanaMarcus::AsentarCambio() {
    operaciones_.Panos().CerrarCambio();
    PonerAvisos(operaciones_.Panos().LosAvisos());
    Accion("ID_Deshacer")->setEnabled(operaciones_.Panos().PuedeDeshacer());
    MostrarCaso();
}

void VentanaMarcus::MostrarCaso() {
    const int fila = panos_->FilaActual();
    const bool hay = fila >= 1 && static_cast<std::size_t>(fila) <= operaciones_.Panos().Cuantos();
    casos_->Resaltar(hay ? operaciones_.Panos().Caso(static_cast<std::size_t>(fila)) : std::int16_t{0});
}

void VentanaMarcus::SoltarBloque() {
    panos_->clearSelection();
}

std::string VentanaMarcus::Pedir(const std::string& texto, const std::string& encabezado) {
    QInputDialog dialogo(this);
    dialogo.setWindowTitle(Q(encabezado));
    dialogo.setLabelText(Q(texto));
    dialogo.setOkButtonText(" Aceptar ");
    dialogo.setCancelButtonText(" Cancelar ");
    programa::qt::MostrarModal(dialogo);
    return dialogo.result() == QDialog::Accepted ? programa::qt::S(dialogo.textValue()) : "";
}

bool VentanaMarcus::MostrarMarcusNuevo() {
    MarcusNuevo operaciones(operaciones_.Lista());
    VentanaMarcusNuevo ventana(operaciones, aplicacion_.Preferencias, this);
    programa::qt::MostrarModal(ventana);
    if (ventana.result() != QDialog::Accepted) return false;
    niveles_->setFocus();
    return true;
}

void VentanaMarcus::reject() {
    if (programa::qt::EntradasEnOrden(this) && operaciones_.PuedeCerrar()) QDialog::reject();
}

void VentanaMarcus::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() != Qt::Key_Escape) QDialog::keyPressEvent(evento);
}

}  // namespace trabex::marcus::ui::qt
