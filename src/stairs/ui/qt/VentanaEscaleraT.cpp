#include "stairs/ui/qt/VentanaEscaleraT.h"

#include <array>
#include <utility>

#include "shell/qt/ComunVentanas.h"
#include "stairs/ui/ComandosEscaleraT.h"
#include "stairs/ui/qt/VentanaEscaleraTDatos.h"
#include "stairs/ui/qt/VentanaEscaleraTG.h"
#include "stairs/ui/qt/VentanaNombreEscalera.h"

namespace trabex::escaleras::ui::qt {

namespace {

constexpr std::array<const char*, 4> TitulosDeHoja{"&Geometría de la Escalera", "&Cálculo de Solicitaciones",
                                                   "E&nvolvente de Diseño", "Reacc&iones de la Escalera"};

}  // namespace

VentanaEscaleraT::VentanaEscaleraT(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                                   const OperacionesDeEscaleras& otras, QWidget* padre)
    : VentanaEspacio(aplicacion.Preferencias, padre),
      aplicacion_(aplicacion),
      caja_(servicios.Caja),
      operaciones_(aplicacion, servicios, *this, *this) {
    std::map<std::string_view, std::function<void()>> propias{
        {"ID_Generales", [this] { operaciones_.DatosGenerales(); }},
        {"ID_Nueva", [this] { operaciones_.Nueva(); }},
        {"ID_Editar", [this] { operaciones_.Editar(); }},
        {"ID_Titulo", [this] { operaciones_.Titulo(); }},
    };
    for (const auto& [clave, operacion] : otras)
        propias[clave] = [this, operacion = operacion] { operacion(operaciones_, *this); };
    Armar({.Nombre = "EscaleraT",
           .RotuloLista = "Esca&leras",
           .MenuElemento = "&Escalera",
           .Comandos = ComandosEscaleraT,
           .Hojas = TitulosDeHoja,
           .Lista = operaciones_.Lista(),
           .Vista = operaciones_.Estado().Hoja.Vista,
           .Dibujar =
               [this](dibujo::Lienzo& lienzo) {
                   dibujo::escalera::RedibujeVista(lienzo, operaciones_.Estado().Hoja,
                                                   operaciones_.Calculada());
               },
           .AlElegirHoja =
               [this](int hoja) {
                   operaciones_.ElegirHoja(static_cast<dibujo::escalera::VistaEscalera>(hoja));
               },
           .Operaciones = std::move(propias),
           .ListaNumerada = true});
}

bool VentanaEscaleraT::MostrarEscaleraTNueva() {
    EscaleraTNueva operaciones(operaciones_.Lista());
    VentanaEscaleraTNueva ventana(NuevaAutoportante, operaciones, aplicacion_.Preferencias, this);
    programa::qt::MostrarModal(ventana);
    return ventana.result() == QDialog::Accepted;
}

void VentanaEscaleraT::MostrarEscaleraTDatos(const TrabajoEscaleraT& trabajo) {
    VentanaEscaleraTDatos ventana(trabajo, aplicacion_, caja_, this);
    programa::qt::MostrarModal(ventana);
}

bool VentanaEscaleraT::MostrarEscaleraTG() {
    VentanaEscaleraTG ventana(aplicacion_, almacen::tablas::ClaseEscalera::Autoportante, caja_, this);
    programa::qt::MostrarModal(ventana);
    return ventana.result() == QDialog::Accepted;
}

bool VentanaEscaleraT::MostrarEscaleraTitulo() {
    EscaleraTitulo operaciones(aplicacion_.Proyecto, caja_);
    VentanaEscaleraTitulo ventana(operaciones, aplicacion_.Preferencias, this);
    programa::qt::MostrarModal(ventana);
    return ventana.result() == QDialog::Accepted;
}

}  // namespace trabex::escaleras::ui::qt
