#include "shell/qt/VentanaCalendario.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QPushButton>

#include "shell/qt/ComunVentanas.h"

namespace trabex::programa::qt {

VentanaCalendario::VentanaCalendario(const Fecha& fecha, const Tapiz& preferencias, QWidget* padre)
    : QDialog(padre), mes_(new QCalendarWidget(this)) {
    setObjectName("Calendario");
    setWindowTitle("CALENDARIO DE FECHAS");
    mes_->setLocale(QLocale(QLocale::Spanish));
    mes_->setFirstDayOfWeek(Qt::Monday);
    mes_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    mes_->setSelectedDate(QDate(static_cast<int>(fecha.year()),
                                static_cast<int>(static_cast<unsigned>(fecha.month())),
                                static_cast<int>(static_cast<unsigned>(fecha.day()))));
    connect(mes_, &QCalendarWidget::activated, this, &QDialog::accept);

    setMinimumWidth(340);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(mes_);
    columna->addLayout(FilaAceptarCancelar(this, [this] { accept(); }));
    PrepararVentana(this, preferencias);
}

Fecha VentanaCalendario::Elegida() const {
    const QDate dia = mes_->selectedDate();
    return std::chrono::year(dia.year()) / dia.month() / dia.day();
}

}  // namespace trabex::programa::qt
