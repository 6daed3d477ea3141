#pragma once

#include <QImage>
#include <string>

#include "reports/montaje/SuperficieOculta.h"

namespace trabex::montaje::qt {

/// The hidden surface of reports: a picture of 96 units an inch, so that fonts and lines are as on the
/// screen, drawn with `finura` pixels to a unit, so that they stay sharp on paper.
class SuperficieQt : public SuperficieOculta {
  public:
    explicit SuperficieQt(double finura = FinuraDePapel) : finura_(finura) {}

    void Dibujar(std::int32_t ancho, std::int32_t alto,
                 const std::function<void(dibujo::Lienzo&)>& dibujar) override;
    ImagenMontada Imagen() const override;
    almacen::Bytes Foto() const override;

    /// 2820 by 1740 pixels: some 280 to the inch on a page.
    static constexpr double FinuraDePapel = 3;

  private:
    double finura_;
    QImage imagen_;
    std::string trazos_;
};

}  // namespace trabex::montaje::qt
