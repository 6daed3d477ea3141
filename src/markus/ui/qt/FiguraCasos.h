#pragma once

#include <QWidget>
#include <cstdint>

namespace trabex::marcus::ui::qt {

/// The nine support cases as panels with their fixed edges hatched, one of them highlighted, and that one in
/// words.
class FiguraCasos : public QWidget {
  public:
    explicit FiguraCasos(QWidget* padre);

    /// 0, or a case that does not exist, highlights none.
    void Resaltar(std::int16_t caso);

    QSize sizeHint() const override { return {220, 240}; }
    QSize minimumSizeHint() const override { return {180, 190}; }

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    QRect Lugar(std::int16_t caso) const;
    void DibujarCaso(QPainter& pintor, std::int16_t caso) const;
    int AltoDelPie() const { return 3 * fontMetrics().height() + 4; }

    std::int16_t caso_ = 0;
};

}  // namespace trabex::marcus::ui::qt
