#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QStaticText>
#include <memory>

#include "drawing/Lienzo.h"

namespace trabex::dibujo::qt {

/// The font of a drawing as the toolkit knows it, with others to fall back on where it is not installed.
QFont FuenteDeLienzo(const Fuente& fuente);

/// Shaped texts of earlier redraws: a drawing that is panned shows the same ones again. One per surface. A
/// zoom step brings a new size of each text, so it starts afresh when it is full.
class MemoriaDeTextos {
  public:
    struct Preparado {
        QStaticText Texto;
        double Ancho;
    };
    const Preparado& Buscar(std::string_view texto, const QFont& fuente, const QFontMetricsF& metrica);

  private:
    QHash<QString, QHash<QByteArray, Preparado>> textos_;  // by font and text
    QHash<QByteArray, Preparado>* deFuente_ = nullptr;     // those of the font that was asked for last
    QFont fuente_;
    qsizetype cuantos_ = 0;
};

/// A drawing surface on any painter: a picture, a printer's page, a PDF. The painter's device is `ancho` by
/// `alto` units, and its resolution turns points of fonts into units.
class LienzoQt : public Lienzo {
  public:
    /// What a unit is: one of the device, or one of the screen for which a drawing was made, which the
    /// painter's transformation brings to the device.
    enum class Unidad { DelAparato, DePantalla };

    LienzoQt(QPainter& pintor, std::int32_t ancho, std::int32_t alto, MemoriaDeTextos* memoria = nullptr,
             Unidad unidad = Unidad::DelAparato);

    /// Ground and colour of texts; white and black to begin with.
    void PonerColores(const QColor& fondo, const QColor& textoDeBotones);

    std::int32_t ScaleWidth() const override { return ancho_; }
    std::int32_t ScaleHeight() const override { return alto_; }
    std::int32_t LadoDePixel() const override { return lado_; }
    void Limpiar() override;
    void PonerFuente(const Fuente& fuente) override;
    void PonerColorTexto(Color color) override;
    Color ColorTextoDeBotones() const override;
    MedidaTexto Medir(std::string_view texto) override;
    void Texto(std::string_view texto, PuntoLienzo lugar, std::int32_t decimasDeGrado) override;
    void Linea(PuntoLienzo desde, PuntoLienzo hasta, const Pluma& pluma) override;
    void Poligono(std::span<const PuntoLienzo> puntos, const std::optional<Pluma>& pluma,
                  const std::optional<Color>& relleno) override;
    void Circulo(PuntoLienzo centro, std::int32_t radio, const std::optional<Pluma>& pluma,
                 const std::optional<Color>& relleno) override;
    void Pixel(PuntoLienzo lugar, Color color) override;

  private:
    /// Whether any of a figure between two corners, with a line of `pluma` around it, is on the surface: what
    /// is not costs the painter as much as what is.
    bool ALaVista(PuntoLienzo menor, PuntoLienzo mayor, std::int32_t pluma) const;

    QPainter& pintor_;
    std::int32_t ancho_;
    std::int32_t alto_;
    bool deAparato_;
    std::int32_t lado_;
    double porPunto_;  // size of a font in points of the device, by its points
    MemoriaDeTextos* memoria_;
    QColor fondo_ = Qt::white;
    QColor textoDeBotones_ = Qt::black;
    QColor texto_ = Qt::black;
    QFont fuente_;
    std::unique_ptr<QFontMetricsF> metrica_;
};

}  // namespace trabex::dibujo::qt
