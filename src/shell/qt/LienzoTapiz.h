#pragma once

#include <QPixmap>
#include <QWidget>

#include "shell/Tapiz.h"

namespace trabex {

/// Shows the wallpaper picture: aligned as the settings say, or filling the widget.
class LienzoTapiz : public QWidget {
  public:
    explicit LienzoTapiz(QWidget* padre = nullptr);

    /// False when the picture could not be loaded; the plain ground then shows.
    bool Poner(const Tapiz& tapiz);

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    QRect Lugar() const;

    QPixmap imagen_;
    Tapiz tapiz_;
};

}  // namespace trabex
