#include "reports/ui/qt/VentanaSeleccionarImpresora.h"

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include "shell/qt/ComunVentanas.h"
#include "shell/qt/Iconos.h"

namespace trabex::reportes::ui::qt {

VentanaSeleccionarImpresora::VentanaSeleccionarImpresora(EntornoSalida& entorno, QWidget* padre)
    : QDialog(padre), operaciones_(entorno) {
    setObjectName("SeleccionarImpresora");
    setWindowTitle("Cambiar de Impresora");
    Armar();
    resize(460, 300);
    programa::qt::PrepararVentana(this, entorno.LaAplicacion.Preferencias);
}

void VentanaSeleccionarImpresora::Armar() {
    lista_ = new QListWidget(this);
    lista_->setViewMode(QListView::IconMode);
    lista_->setIconSize({40, 40});
    lista_->setGridSize({130, 90});
    lista_->setResizeMode(QListView::Adjust);
    lista_->setMovement(QListView::Static);
    lista_->setWordWrap(true);
    for (const std::string& nombre : operaciones_.Disponibles())
        lista_->addItem(new QListWidgetItem(programa::qt::Icono("impresora"), programa::qt::Q(nombre)));
    if (const auto actual = operaciones_.MarcarImpresoraDefecto())
        lista_->setCurrentRow(static_cast<int>(*actual));
    connect(lista_, &QListWidget::itemActivated, this, [this] { Aceptar(); });

    auto* columna = new QVBoxLayout(this);
    auto* rotulo = new QLabel("Impresoras Disponibles", this);
    columna->addWidget(rotulo);
    columna->addWidget(lista_, 1);
    if (operaciones_.Disponibles().empty()) {
        lista_->hide();
        auto* aviso = new QLabel("No hay impresoras instaladas en el sistema.", this);
        aviso->setObjectName("SinImpresoras");
        aviso->setAlignment(Qt::AlignCenter);
        columna->addWidget(aviso, 1);
    }
    columna->addLayout(programa::qt::FilaAceptarCancelar(this, [this] { Aceptar(); }));
}

void VentanaSeleccionarImpresora::Aceptar() {
    const QListWidgetItem* elegida = lista_->currentItem();
    if (elegida == nullptr) {
        reject();
        return;
    }
    if (operaciones_.Aceptar(programa::qt::S(elegida->text()))) accept();
}

void SeleccionarImpresoraTBX(EntornoSalida& entorno, QWidget* padre) {
    VentanaSeleccionarImpresora(entorno, padre).exec();
}

}  // namespace trabex::reportes::ui::qt
