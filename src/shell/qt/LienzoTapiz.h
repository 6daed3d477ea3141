#pragma once

#include <QPixmap>
#include <QWidget>

#include "shell/Tapiz.h"

namespace trabex::programa::qt {

/// Shows the wallpaper picture: aligned as the settings say, or filling the widget.
class LienzoTapiz : public QWidget {
  public:
    explicit LienzoTapiz(QWidget* padre = nullptr);

    /// `imagen` stands for a picture that has no file yet. False when the picture could not be loaded; the
    /// plain ground then shows.
    bool Poner(const Tapiz& tapiz, const QPixmap& imagen = {});
    /// Shows, at its scale, what a window of that size would: for previews.
    void Representar(const QSize& ventana);

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    QRect Lugar(const QSize& ventana) const;

    QPixmap imagen_;
    QSize ventana_;  // empty when it shows itself
    Tapiz tapiz_;
};

}  // namespace trabex::programa::qt
