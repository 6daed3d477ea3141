#include "stairs/ui/qt/VentanaEscaleraTG.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "shell/qt/CampoNumero.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::escaleras::ui::qt {

namespace {

struct Rotulo {
    const char* Marco;  ///< the frame that the field begins; null: it stands in the one before
    const char* Texto;
    bool Entero = false;
};
constexpr std::array<Rotulo, 6> Rotulos{{
    {"Materiales", "Concreto (kgf/cm2)  F'c =", true},
    {nullptr, "Refuerzo (kgf/cm2)  Fy =", true},
    {nullptr, "Recubrimiento (m)  R ="},
    {"Factor de Mayoración", "Factor Mayoración FS ="},
    {"Factores de Minoración", "Por Momentos Fi ="},
    {nullptr, "Por Corte Fi ="},
}};

}  // namespace

VentanaEscaleraTG::VentanaEscaleraTG(programa::Aplicacion& aplicacion, almacen::tablas::ClaseEscalera clase,
                                     programa::CajaMensajes& caja, QWidget* padre)
    : QDialog(padre),
      operaciones_(aplicacion.Proyecto.ConexionProyecto, clase, aplicacion.Generales, guardados_, caja,
                   *this) {
    setObjectName("EscaleraTG");
    setWindowTitle("DATOS GENERALES");
    Armar(aplicacion.SeparadoresLocales);
    Mostrar(operaciones_.Mostrar());
    programa::qt::PrepararVentana(this, aplicacion.Preferencias);
}

void VentanaEscaleraTG::Armar(const Separadores& separadores) {
    auto* columna = new QVBoxLayout(this);
    QFormLayout* formulario = nullptr;
    for (std::size_t i = 0; i < Rotulos.size(); ++i) {
        if (Rotulos[i].Marco != nullptr) {
            auto* marco = new QGroupBox(Rotulos[i].Marco, this);
            formulario = new QFormLayout(marco);
            columna->addWidget(marco);
        }
        campos_[i] = new programa::qt::CampoNumero(
            Rotulos[i].Entero ? programa::qt::EnteroDe32 : programa::qt::ClaseNumero{}, separadores, this);
        auto* etiqueta = new QLabel(Rotulos[i].Texto, this);
        etiqueta->setMinimumWidth(etiqueta->fontMetrics().horizontalAdvance(Rotulos[0].Texto) + 8);
        formulario->addRow(etiqueta, campos_[i]);
    }
    columna->addStretch(1);
    columna->addLayout(programa::qt::FilaAceptarCancelar(this, [this] {
        if (operaciones_.Aceptar(Entrados())) accept();
    }));
}

void VentanaEscaleraTG::Mostrar(const EntradaEscaleraTG& v) {
    const std::array<double, 6> valores{
        static_cast<double>(v.FC), static_cast<double>(v.FY), v.D8, v.FS, v.FiMomento, v.FiCorte};
    for (std::size_t i = 0; i < valores.size(); ++i) campos_[i]->PonerValor(valores[i]);
}

EntradaEscaleraTG VentanaEscaleraTG::Entrados() const {
    using enum CampoEscaleraTG;
    const auto valor = [&](CampoEscaleraTG campo) {
        return campos_[static_cast<std::size_t>(campo)]->Valor();
    };
    return {static_cast<std::int32_t>(valor(FC)),
            static_cast<std::int32_t>(valor(FY)),
            valor(D8),
            valor(FS),
            valor(FiMomento),
            valor(FiCorte)};
}

void VentanaEscaleraTG::Enfocar(CampoEscaleraTG campo) {
    programa::qt::CampoNumero* elegido = campos_[static_cast<std::size_t>(campo)];
    elegido->setFocus();
    elegido->selectAll();
}

}  // namespace trabex::escaleras::ui::qt
