#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <string>
#include <string_view>

#include "reports/salidas/qt/TipoDeLetra.h"

class QPainter;

namespace trabex::documento {
struct Imagen;
}

namespace trabex::salidas::qt {

/// The strokes of a picture; empty when it has none.
std::string TrazosDe(const documento::Imagen& imagen);

/// What a page is made of, in hundredths of a millimetre from its corner. A painter puts it on paper or on
/// the screen; a search reads only its texts.
class Tinta {
  public:
    virtual ~Tinta() = default;
    /// One line of text, from the left end of its foot line.
    virtual void Texto(const QPointF& base, const QString& texto, const TipoDeLetra& letra,
                       const QColor& color) = 0;
    /// The same of a text of printable ASCII alone, as most are.
    virtual void TextoLlano(const QPointF& base, std::string_view texto, const TipoDeLetra& letra,
                            const QColor& color) {
        Texto(base, QString::fromLatin1(texto.data(), static_cast<qsizetype>(texto.size())), letra, color);
    }
    virtual void Raya(const QPointF& desde, const QPointF& hasta, double grosor, const QColor& color) = 0;
    virtual void Fondo(const QRectF& donde, const QColor& color) = 0;
    virtual void Mapa(const QRectF& donde, const documento::Imagen& imagen) = 0;
};

/// Ink on any device of the toolkit; the painter's unit must be that of the pages.
class TintaDePintor : public Tinta {
  public:
    explicit TintaDePintor(QPainter& pintor) : pintor_(pintor) {}
    void Texto(const QPointF& base, const QString& texto, const TipoDeLetra& letra,
               const QColor& color) override;
    void Raya(const QPointF& desde, const QPointF& hasta, double grosor, const QColor& color) override;
    void Fondo(const QRectF& donde, const QColor& color) override;
    void Mapa(const QRectF& donde, const documento::Imagen& imagen) override;

  private:
    QPainter& pintor_;
    const TipoDeLetra* letra_ = nullptr;  // that of the painter
};

}  // namespace trabex::salidas::qt
