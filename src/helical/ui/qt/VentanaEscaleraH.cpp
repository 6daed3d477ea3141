#include "helical/ui/qt/VentanaEscaleraH.h"

#include <QAction>
#include <QApplication>
#include <array>
#include <utility>

#include "drawing/helice/GraficoHelice.h"
#include "helical/salida/PanelesEscaleraH.h"
#include "helical/ui/ComandosEscaleraH.h"
#include "helical/ui/qt/VentanaEscaleraHDatos.h"
#include "reports/ui/qt/VistaDeHoja.h"
#include "shell/qt/ComunVentanas.h"
#include "stairs/ui/qt/VentanaEscaleraTG.h"
#include "stairs/ui/qt/VentanaNombreEscalera.h"

namespace trabex::helices::ui::qt {

namespace {

using dibujo::helice::ModoGiro;

constexpr std::array<const char*, 1> TitulosDeHoja{"&Gráfico de la Escalera"};
constexpr int MilisegundosPorPaso = 60;

}  // namespace

VentanaEscaleraH::VentanaEscaleraH(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                                   const OperacionesDeHelices& otras, QWidget* padre)
    : VentanaEspacio(aplicacion.Preferencias, padre),
      aplicacion_(aplicacion),
      caja_(servicios.Caja),
      operaciones_(aplicacion, servicios, *this, *this),
      solicitaciones_(
          new reportes::ui::qt::VistaDeHoja("Solicitaciones", aplicacion.SeparadoresLocales, this)),
      diseno_(new reportes::ui::qt::VistaDeHoja("Diseno", aplicacion.SeparadoresLocales, this)) {
    std::map<std::string_view, std::function<void()>> propias{
        {"ID_Generales", [this] { operaciones_.DatosGenerales(); }},
        {"ID_Nueva", [this] { operaciones_.Nueva(); }},
        {"ID_Editar", [this] { operaciones_.Editar(); }},
        {"ID_Titulo", [this] { operaciones_.Titulo(); }},
        {"ID_GirarV", [this] { operaciones_.Girar(ModoGiro::Vertical); }},
        {"ID_GirarH", [this] { operaciones_.Girar(ModoGiro::Horizontal); }},
        {"ID_GirarN", [this] { operaciones_.AnguloNormal(); }},
    };
    for (const auto& [clave, operacion] : otras)
        propias[clave] = [this, operacion = operacion] { operacion(operaciones_, *this); };
    Armar({"EscaleraH",
           "Esca&leras",
           "&Escalera",
           ComandosEscaleraH,
           TitulosDeHoja,
           operaciones_.Lista(),
           operaciones_.Estado().Hoja.Vista,
           [this](dibujo::Lienzo& lienzo) {
               dibujo::helice::RedibujeVista(lienzo, operaciones_.Estado().Hoja, operaciones_.Calculada());
           },
           [this](int /*hoja*/) { operaciones_.MostrarDibujo(); },
           std::move(propias),
           nullptr,
           operaciones_.Teclas(),
           {{"&Cálculo de Solicitaciones", solicitaciones_}, {"&Diseño de la Escalera", diseno_}}});
    ConectarGiro();
}

/// The view turns while this window takes the engineer's commands, and stands still behind another.
void VentanaEscaleraH::ConectarGiro() {
    for (const char* clave : {"ID_GirarV", "ID_GirarH"}) Accion(clave)->setCheckable(true);
    reloj_.setInterval(MilisegundosPorPaso);
    connect(&reloj_, &QTimer::timeout, this, [this] {
        const QWidget* encima = QApplication::activeModalWidget();
        if (encima == nullptr || encima == this) operaciones_.AvanzarGiro();
    });
}

void VentanaEscaleraH::MarcarGiro(ModoGiro modo) {
    Accion("ID_GirarV")->setChecked(modo == ModoGiro::Vertical);
    Accion("ID_GirarH")->setChecked(modo == ModoGiro::Horizontal);
    if (modo == ModoGiro::Ninguno)
        reloj_.stop();
    else
        reloj_.start();
}

void VentanaEscaleraH::PonerPaneles(const EscaleraHCalculada& escalera) {
    solicitaciones_->Mostrar(salida::ColoqueSolicitaciones(escalera));
    diseno_->Mostrar(salida::ColoqueDiseno(escalera));
}

bool VentanaEscaleraH::MostrarEscaleraTNueva() {
    escaleras::ui::EscaleraTNueva operaciones(operaciones_.Lista());
    escaleras::ui::qt::VentanaEscaleraTNueva ventana(escaleras::ui::qt::NuevaHelicoidal, operaciones,
                                                     aplicacion_.Preferencias, this);
    programa::qt::MostrarModal(ventana);
    return ventana.result() == QDialog::Accepted;
}

void VentanaEscaleraH::MostrarEscaleraHDatos(const TrabajoEscaleraH& trabajo) {
    VentanaEscaleraHDatos ventana(trabajo, aplicacion_, caja_, this);
    programa::qt::MostrarModal(ventana);
}

void VentanaEscaleraH::MostrarEscaleraTG() {
    escaleras::ui::qt::VentanaEscaleraTG ventana(aplicacion_, almacen::tablas::ClaseEscalera::Helicoidal,
                                                 caja_, this);
    programa::qt::MostrarModal(ventana);
}

bool VentanaEscaleraH::MostrarEscaleraTitulo() {
    escaleras::ui::EscaleraTitulo operaciones(aplicacion_.Proyecto, caja_);
    escaleras::ui::qt::VentanaEscaleraTitulo ventana(operaciones, aplicacion_.Preferencias, this);
    programa::qt::MostrarModal(ventana);
    return ventana.result() == QDialog::Accepted;
}

}  // namespace trabex::helices::ui::qt
