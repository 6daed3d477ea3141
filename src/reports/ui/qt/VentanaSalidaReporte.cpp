#include "reports/ui/qt/VentanaSalidaReporte.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "reports/ui/qt/VentanaVerReportes.h"

namespace trabex::reportes::ui::qt {

VentanaSalidaReporte::VentanaSalidaReporte(EntornoSalida& entorno, Clase clase, QWidget* padre)
    : QDialog(padre), entorno_(entorno) {
    if (clase == Clase::Tabular)
        operaciones_ = std::make_unique<ImpreReport>(entorno, *this);
    else
        operaciones_ = std::make_unique<ImpreGrafico>(entorno, *this);
    setObjectName(clase == Clase::Tabular ? "ImpreReport" : "ImpreGrafico");
    setWindowTitle(clase == Clase::Tabular ? "IMPRIMIR Y EXPORTAR EL REPORTE"
                                           : "IMPRIMIR Y EXPORTAR LOS GRÁFICOS");
    Armar();
    programa::qt::PrepararVentana(this, entorno.LaAplicacion.Preferencias);
}

void VentanaSalidaReporte::Armar() {
    auto* marco = new QGroupBox("Enviar el Reporte a", this);
    auto* lista = new QVBoxLayout(marco);
    opciones_ = new QButtonGroup(this);
    for (std::size_t i = 0; i < Salidas.size(); ++i) {
        auto* opcion = new QRadioButton(Salidas[i].Opcion, marco);
        opciones_->addButton(opcion, static_cast<int>(i));
        lista->addWidget(opcion);
    }
    const int anterior = entorno_.Estado.FormatoSalida;
    opciones_->button(anterior < static_cast<int>(Salidas.size()) ? anterior : SalidaPantalla)
        ->setChecked(true);

    auto* carpeta = programa::qt::Boton("", "carpeta", this);
    carpeta->setObjectName("Carpeta");
    carpeta->setAutoDefault(false);
    programa::qt::PonerAyuda(carpeta, "Carpeta", "Abrir la carpeta de los reportes exportados.");
    connect(carpeta, &QPushButton::clicked, this, [this] { operaciones_->AbrirCarpeta(); });
    auto* pie = new QHBoxLayout;
    pie->addWidget(carpeta);
    pie->addStretch(1);
    pie->addLayout(programa::qt::FilaAceptarCancelar(
        this, [this] { operaciones_->Aceptar(static_cast<std::uint8_t>(opciones_->checkedId())); }));

    auto* columna = new QVBoxLayout(this);
    columna->addWidget(marco);
    columna->addStretch(1);
    columna->addLayout(pie);
    setMinimumWidth(380);
}

void VentanaSalidaReporte::Ver(const documento::Documento& documento) {
    VentanaVerReportes(entorno_, documento, this).exec();
}

}  // namespace trabex::reportes::ui::qt
