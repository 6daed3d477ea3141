#include "slab/ui/qt/ComunLosaDatos.h"

#include <QToolButton>
#include <algorithm>

#include "shell/qt/ComunVentanas.h"
#include "shell/qt/Iconos.h"

namespace trabex::losas::ui::qt {

std::size_t Indice(int fila) {
    return static_cast<std::size_t>(fila);
}

std::int64_t Entero64(double valor) {
    constexpr double cabe = 9e18;
    return static_cast<std::int64_t>(std::clamp(valor, -cabe, cabe));
}

QToolButton* BotonDeBarra(const QString& icono, const QString& texto, const QString& ayuda, QWidget* padre) {
    auto* boton = new QToolButton(padre);
    boton->setIcon(programa::qt::Icono(icono));
    boton->setIconSize({24, 24});
    boton->setText(texto);
    boton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    boton->setAutoRaise(true);
    boton->setFocusPolicy(Qt::TabFocus);
    programa::qt::PonerAyuda(boton, texto.trimmed().remove('&'), ayuda);
    return boton;
}

}  // namespace trabex::losas::ui::qt
