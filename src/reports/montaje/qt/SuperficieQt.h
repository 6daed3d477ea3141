#pragma once

#include <QImage>
#include <string>

#include "reports/montaje/SuperficieOculta.h"
#include "reports/salidas/ImagenDePaleta.h"

namespace trabex::montaje::qt {

/// The hidden surface of reports: a picture of 96 units an inch, so that fonts and lines are as on the
/// screen, drawn with `finura` pixels to a unit, so that they stay sharp where outputs have no strokes.
class SuperficieQt : public SuperficieOculta {
  public:
    explicit SuperficieQt(double finura = FinuraDePapel) : finura_(finura) {}

    void Dibujar(std::int32_t ancho, std::int32_t alto,
                 const std::function<void(dibujo::Lienzo&)>& dibujar) override;
    ImagenMontada Imagen() const override;
    almacen::Bytes Foto() const override;
    /// The picture as a PNG file's bytes, of at most 256 colours.
    almacen::Bytes Png() const;
    /// The strokes that it was drawn with.
    almacen::Bytes Trazos() const;

    /// 1880 by 1160 pixels: some 270 to the inch where two drawings share an upright page.
    static constexpr double FinuraDePapel = 2;

  private:
    salidas::ImagenDePaleta Reducida() const;

    double finura_;
    QImage imagen_;
    std::string trazos_;
};

}  // namespace trabex::montaje::qt
