#include "shell/qt/VentanaMenuPrincipal.h"

#include <QApplication>
#include <QDropEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "base/Archivos.h"
#include "shell/Arranque.h"
#include "shell/Comandos.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/Iconos.h"
#include "shell/qt/VentanaCompactar.h"
#include "shell/qt/VentanaConfigurar.h"
#include "shell/qt/VentanaDatosProyecto.h"
#include "shell/qt/VentanaSobre.h"

namespace trabex::programa::qt {

namespace {

constexpr const char* PaginaDelMenu = "01-primer-trabajo";

QString Texto(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

constexpr const char* ClaveRecientes = "proyectos/recientes";

QStringList Recientes() {
    return QSettings().value(ClaveRecientes).toStringList();
}

/// The one project among what is dragged; empty when there is none.
QString ProyectoSoltado(const QMimeData* soltado) {
    const QList<QUrl> archivos = soltado->urls();
    const QString camino = archivos.size() == 1 ? archivos[0].toLocalFile() : QString();
    return camino.endsWith(".los", Qt::CaseInsensitive) ? camino : QString();
}

}  // namespace

VentanaMenuPrincipal::VentanaMenuPrincipal(Aplicacion& aplicacion, const Servicios& servicios,
                                           std::vector<Espacio> espacios)
    : aplicacion_(aplicacion),
      servicios_(servicios),
      espacios_(std::move(espacios)),
      operaciones_(aplicacion, servicios, *this),
      ayuda_(servicios_),
      recientes_(new QMenu("Proyectos &Recientes", this)),
      tapiz_(new LienzoTapiz(this)) {
    setObjectName("MenuPrincipal");
    ayuda_.PonerPagina(PaginaDelMenu);
    setAcceptDrops(true);
    resize(1100, 700);
    setCentralWidget(tapiz_);
    CrearAcciones();
    CrearMenus();
    LlenarRecientes();
    CrearBarra();
    CrearPanelEstado();
    PrepararVentana(this, aplicacion_.Preferencias);
    operaciones_.Iniciar();
}

const Espacio* VentanaMenuPrincipal::EspacioDe(std::string_view clave) const {
    const auto hallado = std::find_if(espacios_.begin(), espacios_.end(),
                                      [&](const Espacio& espacio) { return espacio.Clave == clave; });
    return hallado == espacios_.end() ? nullptr : &*hallado;
}

void VentanaMenuPrincipal::CrearAcciones() {
    for (const Comando& comando : Comandos) {
        auto* accion = new QAction(Icono(Texto(comando.Icono)), Texto(comando.Texto), this);
        accion->setObjectName(Texto(comando.Clave));
        const bool existe = comando.Ejecuta == Orden::Propia || EspacioDe(comando.Clave) != nullptr;
        accion->setEnabled(existe);
        QString rotulo = Texto(comando.Texto).remove('&');
        if (!existe) rotulo += "\n(no disponible en esta edición)";
        accion->setToolTip(rotulo);
        connect(accion, &QAction::triggered, this,
                [this, clave = comando.Clave] { operaciones_.Ejecutar(clave); });
        acciones_[comando.Clave] = accion;
    }
    Accion("ID_Nuevo")->setShortcut(QKeySequence::New);
    Accion("ID_Abrir")->setShortcut(QKeySequence::Open);
    Accion("ID_SalvarComo")->setShortcut(QKeySequence("Ctrl+Shift+S"));
    Accion("ID_Temas")->setShortcut(QKeySequence("F1"));
}

void VentanaMenuPrincipal::CrearMenus() {
    for (std::size_t m = 0; m < TitulosDeMenu.size(); ++m) {
        QMenu* menu = menuBar()->addMenu(Texto(TitulosDeMenu[m]));
        for (const Comando& comando : Comandos) {
            if (comando.En != static_cast<Menu>(m)) continue;
            if (comando.Clave == "ID_Salida") menu->addSeparator();
            menu->addAction(Accion(comando.Clave));
            if (comando.Clave == "ID_Abrir") menu->addMenu(recientes_);
        }
    }
}

void VentanaMenuPrincipal::CrearBarra() {
    QToolBar* barra = addToolBar("Comandos");
    barra->setObjectName("Comandos");
    barra->setMovable(false);
    barra->setIconSize({24, 24});
    Menu anterior = Menu::Proyecto;
    for (const Comando& comando : Comandos) {
        if (!comando.EnBarra) continue;
        if (comando.En != anterior) barra->addSeparator();
        anterior = comando.En;
        barra->addAction(Accion(comando.Clave));
    }
}

void VentanaMenuPrincipal::CrearPanelEstado() {
    revision_ = new QLabel(this);
    proyecto_ = new QLabel(this);
    statusBar()->addWidget(proyecto_, 1);
    statusBar()->addPermanentWidget(revision_);
}

QAction* VentanaMenuPrincipal::Accion(std::string_view clave) const {
    const auto hallada = acciones_.find(clave);
    return hallada == acciones_.end() ? nullptr : hallada->second;
}

void VentanaMenuPrincipal::PonerTitulo(const std::string& titulo) {
    setWindowTitle(Q(titulo));
    proyecto_->setText(Q(TextoDeCamino(aplicacion_.ArchivoProyecto)));
}

void VentanaMenuPrincipal::PonerRevision(const std::string& texto) {
    revision_->setText(Q(texto));
}

void VentanaMenuPrincipal::HabilitarSalvarComo(bool habilitado) {
    Accion("ID_SalvarComo")->setEnabled(habilitado);
}

void VentanaMenuPrincipal::PunteroDeEspera(bool espera) {
    puntero_.Poner(espera);
}

/// A picture that can't be loaded brings the default one back.
void VentanaMenuPrincipal::PonerTapiz(const Tapiz& tapiz) {
    if (tapiz_->Poner(tapiz)) return;
    Tapiz porDefecto = tapiz;
    porDefecto.Imagen = TextoDeCamino(ImagenPorDefecto(servicios_.Carpetas));
    aplicacion_.Preferencias = porDefecto;
    tapiz_->Poner(porDefecto);
    try {
        GuardarTapiz(ArchivoTapiz(servicios_.Carpetas), porDefecto);
    } catch (const ErrorEjecucion&) {
        return;  // the default holds for this run
    }
}

void VentanaMenuPrincipal::Repintar() {
    update();
}

void VentanaMenuPrincipal::RecordarProyecto(const std::filesystem::path& archivo) {
    constexpr qsizetype cuantos = 9;  // as many as have a digit for their mnemonic
    const QString camino = Q(TextoDeCamino(archivo));
    QStringList recientes = Recientes();
    recientes.removeAll(camino);
    recientes.prepend(camino);
    QSettings().setValue(ClaveRecientes, recientes.mid(0, cuantos));
    LlenarRecientes();
}

void VentanaMenuPrincipal::LlenarRecientes() {
    recientes_->clear();
    for (const QString& camino : Recientes()) {
        const QString rotulo =
            QString("&%1  ").arg(recientes_->actions().size() + 1) + QString(camino).replace('&', "&&");
        recientes_->addAction(rotulo, this, [this, camino] { AbrirProyecto(CaminoDeTexto(S(camino))); });
    }
    recientes_->setEnabled(!recientes_->isEmpty());
}

void VentanaMenuPrincipal::dragEnterEvent(QDragEnterEvent* evento) {
    if (!ProyectoSoltado(evento->mimeData()).isEmpty()) evento->acceptProposedAction();
}

void VentanaMenuPrincipal::dropEvent(QDropEvent* evento) {
    const QString proyecto = ProyectoSoltado(evento->mimeData());
    if (proyecto.isEmpty()) return;
    evento->acceptProposedAction();
    AbrirProyecto(CaminoDeTexto(S(proyecto)));
}

void VentanaMenuPrincipal::Cerrar() {
    close();
}

void VentanaMenuPrincipal::MostrarDatosProyecto() {
    VentanaDatosProyecto ventana(aplicacion_, servicios_.Caja, this);
    PunteroDeEspera(false);
    ventana.exec();
}

void VentanaMenuPrincipal::MostrarConfiguracion() {
    VentanaConfigurar ventana(aplicacion_, servicios_, this);
    ventana.exec();
    if (ventana.Guardada()) {
        AplicarAyudas(aplicacion_.Preferencias);
        PonerTapiz(aplicacion_.Preferencias);
    }
}

void VentanaMenuPrincipal::MostrarReparacion() {
    VentanaCompactar ventana(aplicacion_, servicios_, this);
    ventana.exec();
}

void VentanaMenuPrincipal::MostrarSobre() {
    VentanaSobre ventana(aplicacion_, servicios_.Sistema, this);
    ventana.exec();
}

void VentanaMenuPrincipal::MostrarEspacio(std::string_view clave) {
    PunteroDeEspera(false);
    const Espacio* espacio = EspacioDe(clave);
    if (espacio == nullptr) return;
    ayuda_.PonerPagina(espacio->Ayuda);
    espacio->Abrir(aplicacion_, servicios_, this);
    ayuda_.PonerPagina(PaginaDelMenu);
}

}  // namespace trabex::programa::qt
