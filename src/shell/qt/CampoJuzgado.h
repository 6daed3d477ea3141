#pragma once

#include <QLineEdit>

#include "shell/qt/EntradaJuzgada.h"

namespace trabex::programa::qt {

/// A field of one line that is judged when it is left. Whichever way the focus comes, typing replaces what
/// stands; Escape gives up what is refused.
class CampoJuzgado : public QLineEdit, public EntradaJuzgada {
  public:
    explicit CampoJuzgado(QWidget* padre) : QLineEdit(padre) {}
    void Terminar() override;
    void Reclamar() override;

  protected:
    /// What stands there was judged good, and the field is left or Enter pressed.
    virtual void Tomar() = 0;
    /// Shows again what stood before.
    virtual void Volver() = 0;
    /// Marks what is refused with its reason, or takes the mark off.
    void Marcar();
    bool Marcado() const { return marcado_; }

    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    bool focusNextPrevChild(bool adelante) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

  private:
    bool marcado_ = false;
    QString ayuda_;  // its tool tip while there is no reason to tell
    bool seleccionarAlSoltar_ = false;
};

}  // namespace trabex::programa::qt
