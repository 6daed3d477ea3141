#include "slab/ui/qt/VentanaLosas.h"

#include <QAction>
#include <QButtonGroup>
#include <QGroupBox>
#include <QRadioButton>
#include <QSettings>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "shell/qt/ComunVentanas.h"
#include "slab/ui/ComandosLosas.h"
#include "slab/ui/LosaNueva.h"
#include "slab/ui/qt/VentanaLosaDatos.h"
#include "slab/ui/qt/VentanaLosaGeneral.h"
#include "slab/ui/qt/VentanaNombreLosa.h"

namespace trabex::losas::ui::qt {

namespace {

constexpr std::array<const char*, 3> TitulosDeHoja{"&Geometría de la Losa", "&Cortes y Momentos",
                                                   "&Diseño y Reacciones"};

constexpr const char* ClaveOpcionCarga = "cargas/Losas";
constexpr const char* ClavePorGrupos = "grupos/Losas";

}  // namespace

VentanaLosas::VentanaLosas(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                           MemoriaLosas& memoria, const OperacionesDeLosas& otras, QWidget* padre)
    : VentanaEspacio(aplicacion.Preferencias, padre),
      aplicacion_(aplicacion),
      caja_(servicios.Caja),
      operaciones_(aplicacion, servicios, *this, *this, memoria),
      lector_(operaciones_, [this](const std::string& lectura) { PonerLectura(lectura); }),
      opcionCarga_(new QButtonGroup(this)) {
    std::map<std::string_view, std::function<void()>> propias{
        {"ID_Generales", [this] { operaciones_.DatosGenerales(); }},
        {"ID_Nueva", [this] { operaciones_.CrearNueva(); }},
        {"ID_Editar", [this] { operaciones_.Modificar(); }},
        {"ID_Copiar", [this] { operaciones_.CrearDesdeSeleccionada(); }},
        {"ID_PorGrupos", [this] { operaciones_.VerPorGrupos(!operaciones_.Estado().Hoja.PorGrupos); }},
        {"ID_GrupoAnterior", [this] { operaciones_.CambiarGrupo(-1); }},
        {"ID_GrupoSiguiente", [this] { operaciones_.CambiarGrupo(1); }},
    };
    for (const auto& [clave, operacion] : otras)
        propias[clave] = [this, operacion = operacion] { operacion(operaciones_, *this); };
    Armar({"Losas",
           "&Losas del Proyecto",
           "L&osa",
           ComandosLosas,
           TitulosDeHoja,
           operaciones_.Lista(),
           operaciones_.Estado().Hoja.Vista,
           [this](dibujo::Lienzo& lienzo) {
               dibujo::losa::RedibujeVista(lienzo, operaciones_.Estado().Hoja, operaciones_.Calculada());
           },
           [this](int hoja) { operaciones_.ElegirHoja(static_cast<dibujo::losa::VistaLosa>(hoja)); },
           std::move(propias),
           OpcionesDeCarga(),
           {},
           {},
           false,
           &lector_});
    Accion("ID_PorGrupos")->setCheckable(true);
    if (QSettings().value(ClavePorGrupos).toBool()) operaciones_.VerPorGrupos(true);
    const int recordada = QSettings().value(ClaveOpcionCarga).toInt();
    if (QAbstractButton* opcion = opcionCarga_->button(recordada)) opcion->click();
}

/// While its operations stand: the canvas tells what reads it that it goes.
VentanaLosas::~VentanaLosas() {
    hide();
}

QWidget* VentanaLosas::OpcionesDeCarga() {
    auto* marco = new QGroupBox("Cargas en los Tramos", this);
    auto* columna = new QVBoxLayout(marco);
    for (const auto& [opcion, texto] : {std::pair{dibujo::losa::CargaTotal, "Mostrar la Carga Total"},
                                        std::pair{dibujo::losa::CargaPorCasos, "Permanente + Variable"}}) {
        auto* boton = new QRadioButton(texto, marco);
        opcionCarga_->addButton(boton, opcion);
        columna->addWidget(boton);
    }
    connect(opcionCarga_, &QButtonGroup::idClicked, this, [this](int opcion) {
        operaciones_.ElegirOpcionCarga(static_cast<dibujo::losa::OpcionDeCarga>(opcion));
        QSettings().setValue(ClaveOpcionCarga, opcion);
    });
    return marco;
}

void VentanaLosas::MarcarOpcionCarga(dibujo::losa::OpcionDeCarga opcion) {
    opcionCarga_->button(opcion)->setChecked(true);
}

void VentanaLosas::MarcarPorGrupos(bool porGrupos) {
    Accion("ID_PorGrupos")->setChecked(porGrupos);
    QSettings().setValue(ClavePorGrupos, porGrupos);
}

bool VentanaLosas::MostrarLosaNueva() {
    LosaNueva operaciones(operaciones_);
    VentanaNombreLosa ventana(
        "CREAR NUEVA LOSA", operaciones_,
        [&](const std::string& nombre) { return operaciones.Aceptar(nombre); }, this);
    programa::qt::MostrarModal(ventana);
    return ventana.result() == QDialog::Accepted;
}

bool VentanaLosas::MostrarLosaSalvarComo() {
    LosaSalvarComo operaciones(operaciones_, caja_);
    VentanaNombreLosa ventana(
        "Salvar Como...", operaciones_,
        [&](const std::string& nombre) { return operaciones.Aceptar(nombre); }, this);
    programa::qt::MostrarModal(ventana);
    return ventana.result() == QDialog::Accepted;
}

bool VentanaLosas::MostrarLosaDatos(const std::optional<dibujo::losa::Toque>& lugar) {
    VentanaLosaDatos ventana(operaciones_, caja_, this);
    if (lugar) ventana.IrA(*lugar);
    programa::qt::MostrarModal(ventana);
    return ventana.LosaModificada();
}

bool VentanaLosas::MostrarLosaGeneral() {
    VentanaLosaGeneral ventana(aplicacion_, caja_, this);
    programa::qt::MostrarModal(ventana);
    return ventana.result() == QDialog::Accepted;
}

}  // namespace trabex::losas::ui::qt
