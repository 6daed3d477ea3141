#include "reports/ui/qt/VentanaOpcionExportar2.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace trabex::reportes::ui::qt {

VentanaOpcionExportar2::VentanaOpcionExportar2(EntornoSalida& entorno, const cuadricula::Cuadricula& grilla,
                                               QWidget* padre)
    : QDialog(padre), operaciones_(entorno, *this, grilla), opciones_(new QButtonGroup(this)) {
    setObjectName("OpcionExportar2");
    setWindowTitle(OpcionExportar2::Titulo);
    auto* marco = new QGroupBox("Exportar a", this);
    auto* lista = new QVBoxLayout(marco);
    for (std::size_t i = 0; i < FormatosDeCuadricula.size(); ++i) {
        auto* opcion = new QRadioButton(FormatosDeCuadricula[i].Opcion, marco);
        opciones_->addButton(opcion, static_cast<int>(i) + 1);
        lista->addWidget(opcion);
    }
    const int anterior = entorno.Estado.FormatoSalida;
    QAbstractButton* elegido = opciones_->button(anterior);
    (elegido != nullptr ? elegido : opciones_->button(CuadriculaExcel))->setChecked(true);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(marco);
    columna->addStretch(1);
    columna->addLayout(programa::qt::FilaAceptarCancelar(
        this, [this] { operaciones_.Aceptar(static_cast<std::uint8_t>(opciones_->checkedId())); }));
    setMinimumWidth(340);
    programa::qt::PrepararVentana(this, entorno.LaAplicacion.Preferencias);
}

}  // namespace trabex::reportes::ui::qt
