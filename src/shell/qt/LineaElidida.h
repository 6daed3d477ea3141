#pragma once

#include <QLabel>

namespace trabex::programa::qt {

/// One line of plain text that takes the place it gets: a longer one shows its beginning and its end, with an
/// ellipsis between, so that what is cut is seen to be, and whole in its tool tip, if it has no other.
class LineaElidida : public QLabel {
  public:
    LineaElidida(const char* nombre, QWidget* padre);

  protected:
    bool event(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
};

}  // namespace trabex::programa::qt
