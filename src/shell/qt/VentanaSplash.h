#pragma once

#include <QSplashScreen>
#include <functional>

namespace trabex::programa::qt {

/// The first window: the edition, while the start is prepared. A click or a key ends it at once.
class VentanaSplash : public QSplashScreen {
  public:
    /// `alTerminar` runs once, when the splash ends.
    explicit VentanaSplash(std::function<void()> alTerminar);
    /// Ends by itself a moment after this: the start is prepared.
    void Contar();

  protected:
    void mousePressEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void Terminar();

    std::function<void()> alTerminar_;
};

}  // namespace trabex::programa::qt
