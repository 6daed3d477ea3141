#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace trabex::programa::qt {

/// Hands the keyboard back when windows close. Where a message and the window that asked it close at once the
/// desktop may give it to the one that is already gone, and a person would have to click first. One for the
/// program.
class FocoAlCerrar : public QObject {
  public:
    FocoAlCerrar();

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void Comprobar();

    QPointer<QWidget> heredera_;  // the window below those that closed
    QTimer reloj_;
    int faltan_ = 0;
};

}  // namespace trabex::programa::qt
