#pragma once

#include <QSplashScreen>
#include <functional>

namespace trabex {

/// The first window: the edition, for a short while. A click or a key ends it at once.
class VentanaSplash : public QSplashScreen {
  public:
    /// `alTerminar` runs once, when the splash ends.
    explicit VentanaSplash(std::function<void()> alTerminar);

  protected:
    void mousePressEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void Terminar();

    std::function<void()> alTerminar_;
};

}  // namespace trabex
