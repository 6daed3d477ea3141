#pragma once

#include <QDialog>

#include "shell/CajaMensajes.h"

class QWidget;

namespace trabex::programa::qt {

/// The message box as a window: heading, text, picture, one to three buttons.
class VentanaMensaje : public QDialog {
  public:
    VentanaMensaje(const Mensaje& mensaje, QWidget* padre);
    std::int16_t Respuesta() const { return respuesta_; }

  protected:
    /// Escape and the window's cross: by the layout.
    void reject() override;
    /// A button also answers to the first letter of its caption.
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void Armar(const Mensaje& mensaje);
    void PonerBotones(const Mensaje& mensaje);
    void Responder(std::int16_t boton);

    DisposicionCaja disposicion_;
    std::int16_t respuesta_ = RespuestaAceptarONo;
};

class CajaMensajesQt : public CajaMensajes {
  public:
    std::int16_t Mostrar(const Mensaje& mensaje) override;
};

}  // namespace trabex::programa::qt
