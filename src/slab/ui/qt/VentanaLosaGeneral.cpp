#include "slab/ui/qt/VentanaLosaGeneral.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "shell/qt/ComunVentanas.h"

namespace trabex {

namespace {

/// A field that takes numbers with comma or point.
QLineEdit* CampoNumerico(QWidget* padre) {
    auto* campo = new QLineEdit(padre);
    campo->setAlignment(Qt::AlignRight);
    campo->setFixedWidth(110);
    campo->setValidator(
        new QRegularExpressionValidator(QRegularExpression("-?\\d{0,10}([.,]\\d{0,8})?"), campo));
    return campo;
}

QLocale SinMiles() {
    QLocale local = QLocale::c();
    local.setNumberOptions(QLocale::RejectGroupSeparator);
    return local;
}

QString TextoDe(double valor, const Separadores& separadores) {
    return QString::number(valor, 'g', 15).replace('.', Q(separadores.Decimal));
}

}  // namespace

VentanaLosaGeneral::VentanaLosaGeneral(Aplicacion& aplicacion, CajaMensajes& caja, QWidget* padre)
    : QDialog(padre),
      aplicacion_(aplicacion),
      caja_(caja),
      operaciones_(aplicacion.Proyecto.ConexionProyecto, aplicacion.Generales) {
    setObjectName("LosaGeneral");
    setWindowTitle("DATOS GENERALES");
    Armar();
    Mostrar(operaciones_.Valores());
    PrepararVentana(this, aplicacion_.Preferencias);
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
            campos_[campo] = CampoNumerico(caja);
            auto* etiqueta = new QLabel(rotulo, caja);
            etiqueta->setMinimumWidth(etiqueta->fontMetrics().horizontalAdvance(marcos[0].Rotulos[0]) + 8);
            formulario->addRow(etiqueta, campos_[campo++]);
        }
        columna->addWidget(caja);
    }
    // Whole numbers of 16 bits, without marks of thousands: "4.200" must not be taken for 4.
    auto* entero16 = new QIntValidator(-32768, 32767, this);
    entero16->setLocale(SinMiles());
    for (const CampoLosaGeneral entero : {CampoLosaGeneral::FC, CampoLosaGeneral::FY})
        campos_[static_cast<std::size_t>(entero)]->setValidator(entero16);
    columna->addStretch(1);
    columna->addLayout(FilaAceptarCancelar(this, [this] { Aceptar(); }));
}

void VentanaLosaGeneral::Mostrar(const DatosGenerales& g) {
    const std::array<double, 7> valores{
        static_cast<double>(g.FC), static_cast<double>(g.FY), g.D8, g.FCP, g.FCV, g.FiMomento, g.FiCorte};
    for (std::size_t i = 0; i < valores.size(); ++i)
        campos_[i]->setText(TextoDe(valores[i], aplicacion_.SeparadoresLocales));
}

/// A field's number; 0, which takes the focus, when it holds none or one out of its range.
double VentanaLosaGeneral::Numero(CampoLosaGeneral campo) const {
    const QLineEdit* entrada = campos_[static_cast<std::size_t>(campo)];
    return entrada->hasAcceptableInput() ? entrada->text().replace(',', '.').toDouble() : 0;
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
        QLineEdit* campo = campos_[static_cast<std::size_t>(*cero)];
        campo->setFocus();
        campo->selectAll();
        return;
    }
    if (!operaciones_.Aceptar(entrados))
        caja_.Mostrar(MensajeDeError(ErrorEjecucion(CodigoError::ErrorAccesoRuta), ErrorInesperado));
    aplicacion_.LosaModificada = true;
    accept();
}

}  // namespace trabex
