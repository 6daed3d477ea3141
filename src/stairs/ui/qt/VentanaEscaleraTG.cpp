#include "stairs/ui/qt/VentanaEscaleraTG.h"

#include <array>

#include "shell/qt/ComunVentanas.h"

namespace trabex::escaleras::ui::qt {

namespace {

using programa::qt::ClaseNumero;
using programa::qt::EnteroDe32;

constexpr std::array<RotuloDeCampo, 6> Rotulos{{
    {"Materiales", "Concreto (kgf/cm2)  F'c =", EnteroDe32},
    {nullptr, "Refuerzo (kgf/cm2)  Fy =", EnteroDe32},
    {nullptr, "Recubrimiento (m)  R =", ClaseNumero{}},
    {"Factor de Mayoración", "Factor Mayoración FS =", ClaseNumero{}},
    {"Factores de Minoración", "Por Momentos Fi =", ClaseNumero{}},
    {nullptr, "Por Corte Fi =", ClaseNumero{}},
}};

}  // namespace

VentanaEscaleraTG::VentanaEscaleraTG(programa::Aplicacion& aplicacion, almacen::tablas::ClaseEscalera clase,
                                     programa::CajaMensajes& caja, QWidget* padre)
    : QDialog(padre),
      operaciones_(aplicacion.Proyecto.ConexionProyecto, clase, aplicacion.Generales, guardados_, caja,
                   *this) {
    setObjectName("EscaleraTG");
    setWindowTitle("DATOS GENERALES");
    auto* columna = new QVBoxLayout(this);
    campos_.emplace(Rotulos, aplicacion.SeparadoresLocales, *columna, this);
    columna->addLayout(programa::qt::FilaAceptarCancelar(this, [this] {
        if (operaciones_.Aceptar(Entrados())) accept();
    }));
    const EntradaEscaleraTG v = operaciones_.Mostrar();
    campos_->Poner({1.0 * v.FC, 1.0 * v.FY, v.D8, v.FS, v.FiMomento, v.FiCorte});
    programa::qt::PrepararVentana(this, aplicacion.Preferencias);
}

EntradaEscaleraTG VentanaEscaleraTG::Entrados() const {
    using enum CampoEscaleraTG;
    const CamposDeEscalera& c = *campos_;
    return {c.Entero(FC), c.Entero(FY), c.Valor(D8), c.Valor(FS), c.Valor(FiMomento), c.Valor(FiCorte)};
}

}  // namespace trabex::escaleras::ui::qt
