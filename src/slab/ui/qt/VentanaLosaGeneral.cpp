#include "slab/ui/qt/VentanaLosaGeneral.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/qt/CampoNumero.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::losas::ui::qt {

namespace {

constexpr programa::qt::ClaseNumero EnteroDe16{true, -32768, 32767, 0};

bool EsEntero(std::size_t campo) {
    return campo <= static_cast<std::size_t>(CampoLosaGeneral::FY);
}

}  // namespace

VentanaLosaGeneral::VentanaLosaGeneral(programa::Aplicacion& aplicacion, programa::CajaMensajes& caja,
                                       QWidget* padre)
    : QDialog(padre),
      aplicacion_(aplicacion),
      operaciones_(aplicacion.Proyecto.ConexionProyecto, aplicacion.Generales, caja) {
    setObjectName("LosaGeneral");
    setWindowTitle("DATOS GENERALES");
    Armar();
    Mostrar(operaciones_.Valores());
    programa::qt::PrepararVentana(this, aplicacion_.Preferencias);
}

void VentanaLosaGeneral::Armar() {
    struct Marco {
        const char* Titulo;
        std::array<const char*, 3> Rotulos;
    };
    constexpr std::array<Marco, 3> marcos{{
        {"Materiales", {"Concreto (kgf/cm2)  F'c =", "Refuerzo (kgf/cm2)  Fy =", "Recubrimiento (m)  R ="}},
        {"Factores de Mayoración", {"Carga Permanente FCP =", "Carga Variable FCV =", nullptr}},
        {"Factores de Minoración", {"Por Momentos Fi =", "Por Corte Fi =", nullptr}},
    }};
    auto* columna = new QVBoxLayout(this);
    std::size_t campo = 0;
    for (const Marco& marco : marcos) {
        auto* caja = new QGroupBox(marco.Titulo, this);
        auto* formulario = new QFormLayout(caja);
        for (const char* rotulo : marco.Rotulos) {
            if (rotulo == nullptr) continue;
            campos_[campo] =
                new programa::qt::CampoNumero(EsEntero(campo) ? EnteroDe16 : programa::qt::ClaseNumero{},
                                              aplicacion_.SeparadoresLocales, caja);
            auto* etiqueta = new QLabel(rotulo, caja);
            etiqueta->setMinimumWidth(etiqueta->fontMetrics().horizontalAdvance(marcos[0].Rotulos[0]) + 8);
            formulario->addRow(etiqueta, campos_[campo++]);
        }
        columna->addWidget(caja);
    }
    columna->addStretch(1);
    columna->addLayout(programa::qt::FilaAceptarCancelar(this, [this] { Aceptar(); }));
}

void VentanaLosaGeneral::Mostrar(const DatosGenerales& g) {
    const std::array<double, 7> valores{
        static_cast<double>(g.FC), static_cast<double>(g.FY), g.D8, g.FCP, g.FCV, g.FiMomento, g.FiCorte};
    for (std::size_t i = 0; i < valores.size(); ++i) campos_[i]->PonerValor(valores[i]);
}

double VentanaLosaGeneral::Numero(CampoLosaGeneral campo) const {
    return campos_[static_cast<std::size_t>(campo)]->Valor();
}

DatosGenerales VentanaLosaGeneral::Entrados() const {
    using enum CampoLosaGeneral;
    return {static_cast<std::int16_t>(Numero(FC)),
            static_cast<std::int16_t>(Numero(FY)),
            Numero(D8),
            Numero(FCP),
            Numero(FCV),
            Numero(FiMomento),
            Numero(FiCorte)};
}

void VentanaLosaGeneral::Aceptar() {
    const DatosGenerales entrados = Entrados();
    if (const auto cero = LosaGeneral::PrimerCero(entrados)) {
        programa::qt::CampoNumero* campo = campos_[static_cast<std::size_t>(*cero)];
        campo->setFocus();
        campo->selectAll();
        return;
    }
    if (operaciones_.Aceptar(entrados)) accept();
}

}  // namespace trabex::losas::ui::qt
