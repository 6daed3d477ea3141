#include "reports/ui/qt/PanelProgresoQt.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/qt/ComunVentanas.h"

namespace trabex::reportes::ui::qt {

PanelProgresoQt::PanelProgresoQt(QWidget* ventana)
    : panel_(ventana, Qt::Dialog | Qt::FramelessWindowHint),
      rotulo_(new QLabel(&panel_)),
      barra_(new QProgressBar(&panel_)) {
    panel_.setWindowModality(Qt::ApplicationModal);
    panel_.setObjectName("PanelProgreso");
    rotulo_->setMinimumWidth(380);
    auto* columna = new QVBoxLayout(&panel_);
    columna->setContentsMargins(18, 14, 18, 16);
    columna->setSpacing(10);
    columna->addWidget(rotulo_);
    columna->addWidget(barra_);
    auto* cancelar = programa::qt::Boton(" Cancelar ", "", &panel_);
    QObject::connect(cancelar, &QPushButton::clicked, &panel_, &QDialog::reject);
    columna->addWidget(cancelar, 0, Qt::AlignRight);
    // A frameless window needs an edge of its own, in the colours of the theme.
    panel_.setStyleSheet("QDialog#PanelProgreso { border: 1px solid palette(mid); }");
}

void PanelProgresoQt::Mostrar() {
    barra_->setValue(0);
    panel_.Cancelado = false;
    rotulo_->clear();
    panel_.adjustSize();
    if (const QWidget* ventana = panel_.parentWidget()) {
        const QRect lugar(ventana->mapToGlobal(QPoint(0, 0)), ventana->size());
        panel_.move(lugar.center() - panel_.rect().center());
    }
    panel_.show();
    QCoreApplication::processEvents();
}

void PanelProgresoQt::Avanzar(double porcentaje, const std::string& rotulo) {
    barra_->setValue(static_cast<int>(porcentaje));
    rotulo_->setText(
        rotulo_->fontMetrics().elidedText(programa::qt::Q(rotulo), Qt::ElideMiddle, rotulo_->width()));
    QCoreApplication::processEvents();
}

void PanelProgresoQt::Ocultar() {
    panel_.hide();
}

}  // namespace trabex::reportes::ui::qt
