#include "reports/ui/qt/VentanaOpcionesReporte.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include "shell/qt/ComunVentanas.h"

namespace trabex::reportes::ui::qt {

namespace {

/// A frame of options, one a line, of which the one at `elegida` is checked.
QButtonGroup* Marco(QBoxLayout* donde, const QString& titulo, std::span<const char* const> textos,
                    int elegida) {
    auto* marco = new QGroupBox(titulo);
    auto* columna = new QVBoxLayout(marco);
    auto* grupo = new QButtonGroup(marco);
    for (std::size_t i = 0; i < textos.size(); ++i) {
        auto* opcion = new QRadioButton(textos[i], marco);
        grupo->addButton(opcion, static_cast<int>(i));
        columna->addWidget(opcion);
    }
    if (auto* boton = grupo->button(elegida)) boton->setChecked(true);
    columna->addStretch(1);
    donde->addWidget(marco);
    return grupo;
}

constexpr const char* CualesLosas[]{OpcionImpreLosas::LosaSeleccionada, OpcionImpreLosas::TodasLasLosas};
constexpr const char* Papeles[]{"Carta", "A4"};
constexpr const char* Orientaciones[]{"Vertical", "Horizontal"};

}  // namespace

VentanaOpcionImpreLosas::VentanaOpcionImpreLosas(montaje::EstadoReportes& estado,
                                                 const programa::Tapiz& preferencias, QWidget* padre)
    : QDialog(padre), operaciones_(estado) {
    setObjectName("OpcionImpreLosas");
    setWindowTitle(OpcionImpreLosas::Titulo);
    auto* columna = new QVBoxLayout(this);
    auto* losas = Marco(columna, "Losas del Reporte", CualesLosas, estado.OpcionExportarLosas);
    auto* desplazamientos = new QCheckBox(OpcionImpreLosas::Desplazamientos, this);
    desplazamientos->setChecked(estado.ExportarDesplazamientos);
    columna->addWidget(desplazamientos);
    columna->addStretch(1);
    columna->addLayout(programa::qt::FilaAceptarCancelar(this, [this, losas, desplazamientos] {
        operaciones_.Aceptar(static_cast<std::uint8_t>(losas->checkedId()), desplazamientos->isChecked());
        accept();
    }));
    setMinimumWidth(340);
    programa::qt::PrepararVentana(this, preferencias);
}

VentanaOpcionGrafico::VentanaOpcionGrafico(const DialogoDeGraficos& dialogo, montaje::EstadoReportes& estado,
                                           const programa::Tapiz& preferencias, QWidget* padre)
    : QDialog(padre) {
    setObjectName(dialogo.Nombre);
    setWindowTitle(dialogo.Titulo);
    auto* columna = new QVBoxLayout(this);
    auto* graficos = Marco(columna, dialogo.Marco, dialogo.Opciones, estado.OpcionGrafico);
    QButtonGroup* papel = nullptr;
    QButtonGroup* orientacion = nullptr;
    if (dialogo.PidePapel) {
        auto* fila = new QHBoxLayout;
        papel = Marco(fila, "Tamaño del Papel", Papeles, estado.Papel.A4 ? 1 : 0);
        orientacion = Marco(fila, "Orientación del Papel", Orientaciones, estado.Papel.Apaisado ? 1 : 0);
        columna->addLayout(fila);
    }
    columna->addStretch(1);
    columna->addLayout(programa::qt::FilaAceptarCancelar(this, [this, &estado, graficos, papel, orientacion] {
        estado.OpcionGrafico = static_cast<std::uint8_t>(graficos->checkedId());
        if (papel != nullptr) estado.Papel.A4 = papel->checkedId() == 1;
        if (orientacion != nullptr) estado.Papel.Apaisado = orientacion->checkedId() == 1;
        accept();
    }));
    setMinimumWidth(340);
    programa::qt::PrepararVentana(this, preferencias);
}

}  // namespace trabex::reportes::ui::qt
