#include "reports/ui/qt/VentanaImpreVistaPrevia.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>
#include <cmath>

#include "shell/qt/ComunVentanas.h"

namespace trabex::reportes::ui::qt {

namespace {

constexpr double TwipsPorCentimetro = 1440 / 2.54;
constexpr double MayorMargen = 8;  // cm: the sheet keeps room for cells

}  // namespace

VentanaImpreVistaPrevia::VentanaImpreVistaPrevia(EntornoSalida& entorno, VistaPreviaR& operaciones,
                                                 int paginas, QWidget* padre)
    : QDialog(padre), operaciones_(operaciones), ajustes_(operaciones.Ajustes()) {
    setObjectName("ImpreVistaPrevia");
    setWindowTitle("Imprimir la Vista Previa");
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(Margenes());
    izquierda->addWidget(Paginas(paginas));
    izquierda->addStretch(1);
    auto* cuerpo = new QHBoxLayout;
    cuerpo->addLayout(izquierda);
    cuerpo->addWidget(Opciones());
    auto* columna = new QVBoxLayout(this);
    columna->addLayout(cuerpo, 1);
    columna->addLayout(programa::qt::FilaAceptarCancelar(this, [this] { Aceptar(); }));
    programa::qt::PrepararVentana(this, entorno.LaAplicacion.Preferencias);
}

QDoubleSpinBox* VentanaImpreVistaPrevia::Margen(QFormLayout& donde, const char* rotulo, std::int32_t& twips) {
    auto* campo = new QDoubleSpinBox(this);
    campo->setRange(0, MayorMargen);
    campo->setSingleStep(0.1);
    campo->setSuffix(" cm");
    campo->setValue(twips / TwipsPorCentimetro);
    connect(campo, &QDoubleSpinBox::valueChanged, this, [&twips](double centimetros) {
        twips = static_cast<std::int32_t>(std::lround(centimetros * TwipsPorCentimetro));
    });
    donde.addRow(rotulo, campo);
    return campo;
}

QWidget* VentanaImpreVistaPrevia::Margenes() {
    auto* marco = new QGroupBox("Márgenes", this);
    auto* campos = new QFormLayout(marco);
    Margen(*campos, "&Izquierdo", ajustes_.MargenIzquierdo);
    Margen(*campos, "&Derecho", ajustes_.MargenDerecho);
    Margen(*campos, "&Superior", ajustes_.MargenSuperior);
    Margen(*campos, "I&nferior", ajustes_.MargenInferior);
    return marco;
}

QWidget* VentanaImpreVistaPrevia::Paginas(int cuantas) {
    auto* marco = new QGroupBox("Páginas", this);
    todas_ = new QRadioButton("&Todas", marco);
    auto* algunas = new QRadioButton("&Páginas", marco);
    todas_->setChecked(true);
    const auto campo = [marco, cuantas](int valor) {
        auto* numero = new QSpinBox(marco);
        numero->setRange(1, cuantas);
        numero->setValue(valor);
        numero->setEnabled(false);
        return numero;
    };
    primera_ = campo(1);
    ultima_ = campo(cuantas);
    primera_->setAccessibleName("Primera página");
    ultima_->setAccessibleName("Última página");
    connect(algunas, &QRadioButton::toggled, primera_, &QWidget::setEnabled);
    connect(algunas, &QRadioButton::toggled, ultima_, &QWidget::setEnabled);
    auto* fila = new QHBoxLayout;
    fila->addWidget(algunas);
    fila->addWidget(primera_);
    fila->addWidget(new QLabel("a", marco));
    fila->addWidget(ultima_);
    fila->addStretch(1);
    auto* columna = new QVBoxLayout(marco);
    columna->addWidget(todas_);
    columna->addLayout(fila);
    return marco;
}

QCheckBox* VentanaImpreVistaPrevia::Casilla(const char* texto, bool& valor) {
    auto* casilla = new QCheckBox(texto, this);
    casilla->setChecked(valor);
    connect(casilla, &QCheckBox::toggled, this, [&valor](bool puesta) { valor = puesta; });
    return casilla;
}

QWidget* VentanaImpreVistaPrevia::Opciones() {
    auto* marco = new QGroupBox("Opciones", this);
    auto* columna = new QVBoxLayout(marco);
    columna->addWidget(Casilla("Imprimir Encabezados de &Columnas", ajustes_.CabecerasDeColumnas));
    columna->addWidget(Casilla("Imprimir Encabezados de &Filas", ajustes_.CabecerasDeFilas));
    columna->addWidget(Casilla("Imprimir las Líneas de la C&uadrícula", ajustes_.LineasDeCuadricula));
    columna->addWidget(Casilla("Imprimir en C&olor", ajustes_.Color));
    columna->addWidget(Casilla("Imprimir Som&bras", ajustes_.Sombras));
    columna->addWidget(Casilla("Imprimir No. de Pá&gina", ajustes_.NumeroDePagina));
    columna->addStretch(1);
    return marco;
}

void VentanaImpreVistaPrevia::Aceptar() {
    const PaginasAImprimir paginas = todas_->isChecked()
                                         ? PaginasAImprimir{}
                                         : PaginasAImprimir{std::min(primera_->value(), ultima_->value()),
                                                            std::max(primera_->value(), ultima_->value())};
    if (operaciones_.Imprimir(ajustes_, paginas)) accept();
}

}  // namespace trabex::reportes::ui::qt
