#pragma once

#include <QLabel>

namespace trabex::programa::qt {

/// One line of plain text that takes the place it gets: a longer one shows its beginning and its end, with an
/// ellipsis between, so that what is cut is seen to be.
class LineaElidida : public QLabel {
  public:
    LineaElidida(const char* nombre, QWidget* padre);

  protected:
    void paintEvent(QPaintEvent* evento) override;
};

}  // namespace trabex::programa::qt
