#pragma once

#include <QString>

class QColor;
class QFocusEvent;
class QPalette;
class QRect;
class QWidget;

namespace trabex::programa::qt {

/// A control that takes any text while it is typed and judges it when it is left. What it can't take stays in
/// sight, marked and with its reason, and the focus stays on it; nothing of it is stored.
class EntradaJuzgada {
  public:
    virtual ~EntradaJuzgada() = default;
    /// Why what stands there can't be taken; empty when it can.
    virtual QString Motivo() const = 0;
    /// Takes what is being typed, as leaving the control would.
    virtual void Terminar() = 0;
    /// Takes the focus and says why.
    virtual void Reclamar() = 0;
};

/// What is being typed in a window is taken. True when nothing in it stands refused; otherwise the first such
/// control comes up, on whatever page, with its reason. Whoever saves or accepts asks this first.
bool EntradasEnOrden(QWidget* ventana);

/// A cell of such a control is being edited, or what one holds stands refused.
bool SeEscribeEn(QWidget* ventana);

/// Called as such a control loses the focus: it takes it back when what stands there is refused. A press of
/// the mouse does its work first, so that a window can always be left.
void RetenerFoco(QWidget* control, const QFocusEvent& evento);

/// Shows a reason beside a place of a control.
void DecirMotivo(QWidget* control, const QRect& lugar, const QString& motivo);

/// The colour behind a refused entry, in light and dark themes.
QColor FondoDeRechazo(const QPalette& paleta);

}  // namespace trabex::programa::qt
