#pragma once

#include <QString>
#include <functional>
#include <string>

#include "shell/Tapiz.h"

class QDialog;
class QLayout;
class QMenu;
class QPushButton;
class QSize;
class QWidget;

namespace trabex::programa::qt {

inline QString Q(const std::string& texto) {
    return QString::fromStdString(texto);
}
inline std::string S(const QString& texto) {
    return texto.toStdString();
}

/// A tool tip: a title over its text.
QString TextoDeAyuda(const QString& titulo, const QString& texto);

/// Sets a control's tool tip.
void PonerAyuda(QWidget* control, const QString& titulo, const QString& texto);

/// The set-up that every window calls when it loads: the user's tool-tip settings on all that the window
/// holds, and the geometry that a window of the same name had when it last closed.
void PrepararVentana(QWidget* ventana, const Tapiz& preferencias);

/// Gives the tool tips of every open window the settings that were chosen.
void AplicarAyudas(const Tapiz& preferencias);

/// Tool tips in the user's settings, as a style sheet.
QString EstiloDeAyudas(const Tapiz& preferencias);

/// The size of a window that was never opened before, as far as the screen gives it.
void TamanoInicial(QWidget* ventana, const QSize& tamano);

/// Shows a window until it closes, and gives the keyboard back to the one below: where a message and the
/// window that asked it close at once, the desktop may leave neither with it.
void MostrarModal(QDialog& ventana);

/// Runs `hacer` whenever a window comes to the front with the keyboard, once what was going on under one that
/// has just closed is over; not while something is being typed into it or stands refused in it.
void AlVenirAlFrente(QWidget* ventana, std::function<void()> hacer);

/// A button with a line icon.
QPushButton* Boton(const QString& texto, const QString& icono, QWidget* padre);

/// Gives each entry of a menu a letter of its own.
void PonerMnemonicos(const QMenu& menu);

/// The row of " Aceptar " and " Cancelar " at a dialog's foot: the first accepts once no entry stands
/// refused, the second closes it without change.
QLayout* FilaAceptarCancelar(QDialog* dialogo, const std::function<void()>& alAceptar);

/// The pointer of long work, on or off, however often it is asked for.
class PunteroDeTrabajo {
  public:
    void Poner(bool espera);

  private:
    bool esperando_ = false;
};

}  // namespace trabex::programa::qt
