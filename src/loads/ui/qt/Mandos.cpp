#include "loads/ui/qt/Mandos.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QToolBar>
#include <QVBoxLayout>

#include "shell/qt/ComunVentanas.h"
#include "shell/qt/Iconos.h"
#include "shell/qt/TablaDatos.h"

namespace trabex::cargas::ui::qt {

void PonerMandos(QDialog& ventana, QVBoxLayout& columna, const char* menu, const std::vector<Mando>& mandos) {
    auto* menus = new QMenuBar(&ventana);
    QMenu* lista = menus->addMenu(menu);
    auto* barra = new QToolBar(&ventana);
    barra->setIconSize({24, 24});
    for (const Mando& mando : mandos) {
        auto* accion = new QAction(programa::qt::Icono(mando.Icono), mando.Texto, &ventana);
        accion->setObjectName(mando.Nombre);
        accion->setShortcut(QKeySequence(mando.Teclas));
        accion->setToolTip(programa::qt::TextoDeAyuda(QString(mando.Texto).remove('&'), mando.Ayuda));
        QObject::connect(accion, &QAction::triggered, &ventana, mando.Hacer);
        lista->addAction(accion);
        barra->addAction(accion);
    }
    lista->addSeparator();
    lista->addAction(programa::qt::Icono("salida"), "Re&torno", &ventana, &QDialog::reject);
    auto* hueco = new QWidget(barra);
    hueco->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    barra->addWidget(hueco);
    auto* retorno = programa::qt::Boton(" &Retorno ", "salida", barra);
    retorno->setAutoDefault(false);
    QObject::connect(retorno, &QPushButton::clicked, &ventana, &QDialog::reject);
    barra->addWidget(retorno);
    columna.setContentsMargins(8, 4, 8, 6);
    columna.setMenuBar(menus);
    columna.addWidget(barra);
}

void PonerModificarCeldas(programa::qt::TablaDatos& tabla, QVBoxLayout& columna,
                          const std::function<void()>& alElegir) {
    auto* modificar = new QCheckBox("Modificar las Cel&das", tabla.parentWidget());
    modificar->setObjectName("ModificarCeldas");
    programa::qt::PonerAyuda(modificar, "Modificar las Celdas",
                             "Lo que se escribe en una celda se guarda al salir de ella.");
    auto* elegir = new QShortcut(Qt::Key_Return, &tabla, alElegir, Qt::WidgetShortcut);
    auto* elegirTambien = new QShortcut(Qt::Key_Enter, &tabla, alElegir, Qt::WidgetShortcut);
    const auto poner = [&tabla, elegir, elegirTambien](bool editable) {
        tabla.PonerEditable(editable);
        elegir->setEnabled(!editable);
        elegirTambien->setEnabled(!editable);
    };
    QWidget::setTabOrder(&tabla, modificar);
    QObject::connect(modificar, &QCheckBox::toggled, &tabla, poner);
    QObject::connect(&tabla, &QTableView::doubleClicked, &tabla, [modificar, alElegir] {
        if (!modificar->isChecked()) alElegir();
    });
    poner(false);
    columna.addWidget(modificar);
}

std::string TextoEntrado(const QVariant& valor) {
    const bool numero = valor.typeId() == QMetaType::Double;
    return programa::qt::S(numero ? QString::number(valor.toDouble(), 'f', 10) : valor.toString());
}

}  // namespace trabex::cargas::ui::qt
