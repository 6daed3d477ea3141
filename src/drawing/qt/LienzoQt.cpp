#include "drawing/qt/LienzoQt.h"

#include <QPolygon>
#include <algorithm>
#include <array>
#include <cmath>

namespace trabex::dibujo::qt {

namespace {

constexpr int PuntosPorPulgadaDePantalla = 96;

QColor ColorQt(Color color) {
    return {color.R, color.G, color.B};
}

/// Fonts to fall back on where the drawings' own are not installed, of like widths.
QStringList FamiliasDe(const QString& nombre) {
    return {nombre, "Arial", "Liberation Sans", "DejaVu Sans"};
}

QPen PlumaQt(const Pluma& pluma, std::int32_t lado) {
    QPen lapiz(ColorQt(pluma.Tinta), pluma.Ancho * lado,
               pluma.Estilo == EstiloLinea::Punteada ? Qt::DotLine : Qt::SolidLine);
    lapiz.setJoinStyle(Qt::MiterJoin);
    lapiz.setCapStyle(Qt::FlatCap);
    return lapiz;
}

/// Smooths what is drawn while it stands, with the points at the middle of their pixels.
class Suavizado {
  public:
    Suavizado(QPainter& pintor, bool suavizar) : pintor_(pintor), suavizar_(suavizar) {
        if (!suavizar_) return;
        pintor_.setRenderHint(QPainter::Antialiasing, true);
        pintor_.translate(0.5, 0.5);
    }
    ~Suavizado() {
        if (!suavizar_) return;
        pintor_.translate(-0.5, -0.5);
        pintor_.setRenderHint(QPainter::Antialiasing, false);
    }
    Suavizado(const Suavizado&) = delete;
    Suavizado& operator=(const Suavizado&) = delete;

  private:
    QPainter& pintor_;
    bool suavizar_;
};

bool DeEjes(PuntoLienzo a, PuntoLienzo b) {
    return a.x == b.x || a.y == b.y;
}

bool DeEjes(std::span<const PuntoLienzo> puntos) {
    for (std::size_t k = 0; k < puntos.size(); ++k) {
        if (!DeEjes(puntos[k], puntos[(k + 1) % puntos.size()])) return false;
    }
    return true;
}

}  // namespace

QFont FuenteDeLienzo(const Fuente& fuente) {
    QFont nueva(FamiliasDe(QString::fromStdString(fuente.Nombre)));
    nueva.setPointSizeF(std::clamp(fuente.Puntos, 0.5, 5000.0));
    nueva.setBold(fuente.Negrita);
    return nueva;
}

const MemoriaDeTextos::Preparado& MemoriaDeTextos::Buscar(std::string_view texto, const QFont& fuente,
                                                          const QFontMetricsF& metrica) {
    constexpr qsizetype limite = 8192;
    if (cuantos_ >= limite) {
        textos_.clear();
        deFuente_ = nullptr;
        cuantos_ = 0;
    }
    if (deFuente_ == nullptr || fuente != fuente_) {
        fuente_ = fuente;
        deFuente_ = &textos_[fuente.key()];
    }
    const auto largo = static_cast<qsizetype>(texto.size());
    const auto hallado = deFuente_->constFind(QByteArray::fromRawData(texto.data(), largo));
    if (hallado != deFuente_->constEnd()) return *hallado;
    const QString escrito = QString::fromUtf8(texto.data(), largo);
    Preparado preparado{QStaticText(escrito), metrica.horizontalAdvance(escrito)};
    preparado.Texto.setTextFormat(Qt::PlainText);
    preparado.Texto.setPerformanceHint(QStaticText::AggressiveCaching);
    preparado.Texto.prepare(QTransform(), fuente);
    ++cuantos_;
    return *deFuente_->insert(QByteArray(texto.data(), largo), preparado);
}

LienzoQt::LienzoQt(QPainter& pintor, std::int32_t ancho, std::int32_t alto, MemoriaDeTextos* memoria,
                   Unidad unidad)
    : pintor_(pintor),
      ancho_(ancho),
      alto_(alto),
      deAparato_(unidad == Unidad::DelAparato),
      lado_(deAparato_ ? std::max(1, pintor.device()->logicalDpiX() / PuntosPorPulgadaDePantalla) : 1),
      porPunto_(deAparato_
                    ? 1.0
                    : static_cast<double>(PuntosPorPulgadaDePantalla) / pintor.device()->logicalDpiY()),
      memoria_(memoria) {
    pintor_.setRenderHint(QPainter::Antialiasing, false);
    pintor_.setRenderHint(QPainter::TextAntialiasing, true);
    LienzoQt::PonerFuente({"Tahoma", 8, false});
}

void LienzoQt::PonerColores(const QColor& fondo, const QColor& textoDeBotones) {
    fondo_ = fondo;
    textoDeBotones_ = textoDeBotones;
}

void LienzoQt::Limpiar() {
    pintor_.fillRect(QRect(0, 0, ancho_, alto_), fondo_);
}

void LienzoQt::PonerFuente(const Fuente& fuente) {
    QFont nueva = FuenteDeLienzo(fuente);
    nueva.setPointSizeF(nueva.pointSizeF() * porPunto_);
    if (!deAparato_) nueva.setHintingPreference(QFont::PreferNoHinting);
    nueva.setBold(fuente.Negrita);
    if (metrica_ && nueva == fuente_) return;
    fuente_ = nueva;
    metrica_ = std::make_unique<QFontMetricsF>(fuente_, pintor_.device());
    pintor_.setFont(fuente_);
}

void LienzoQt::PonerColorTexto(Color color) {
    texto_ = ColorQt(color);
}

Color LienzoQt::ColorTextoDeBotones() const {
    return {static_cast<std::uint8_t>(textoDeBotones_.red()),
            static_cast<std::uint8_t>(textoDeBotones_.green()),
            static_cast<std::uint8_t>(textoDeBotones_.blue())};
}

MedidaTexto LienzoQt::Medir(std::string_view texto) {
    const double ancho = memoria_ != nullptr ? memoria_->Buscar(texto, fuente_, *metrica_).Ancho
                                             : metrica_->horizontalAdvance(QString::fromUtf8(
                                                   texto.data(), static_cast<qsizetype>(texto.size())));
    return {static_cast<std::int32_t>(std::ceil(ancho)),
            static_cast<std::int32_t>(std::ceil(metrica_->height()))};
}

void LienzoQt::Texto(std::string_view texto, PuntoLienzo lugar, std::int32_t decimasDeGrado) {
    const double alcance = metrica_->height() * (static_cast<double>(texto.size()) + 2);
    if (lugar.x + alcance < 0 || lugar.y + alcance < 0 || lugar.x - alcance > ancho_ ||
        lugar.y - alcance > alto_)
        return;
    pintor_.setPen(texto_);
    const bool girado = decimasDeGrado != 0;
    if (girado) {
        pintor_.save();
        pintor_.translate(lugar.x, lugar.y);
        pintor_.rotate(-decimasDeGrado / 10.0);
        lugar = {0, 0};
    }
    if (memoria_ != nullptr)
        pintor_.drawStaticText(QPointF(lugar.x, lugar.y), memoria_->Buscar(texto, fuente_, *metrica_).Texto);
    else
        pintor_.drawText(QPointF(lugar.x, lugar.y + metrica_->ascent()),
                         QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size())));
    if (girado) pintor_.restore();
}

bool LienzoQt::ALaVista(PuntoLienzo menor, PuntoLienzo mayor, std::int32_t pluma) const {
    const std::int32_t aire = 2 * pluma * lado_;  // mitres stand out
    return mayor.x >= -aire && mayor.y >= -aire && menor.x <= ancho_ + aire && menor.y <= alto_ + aire;
}

void LienzoQt::Linea(PuntoLienzo desde, PuntoLienzo hasta, const Pluma& pluma) {
    const auto [x1, x2] = std::minmax(desde.x, hasta.x);
    const auto [y1, y2] = std::minmax(desde.y, hasta.y);
    if (!ALaVista({x1, y1}, {x2, y2}, pluma.Ancho)) return;
    const Suavizado suave(pintor_, !DeEjes(desde, hasta));
    pintor_.setPen(PlumaQt(pluma, lado_));
    pintor_.drawLine(desde.x, desde.y, hasta.x, hasta.y);
}

void LienzoQt::Poligono(std::span<const PuntoLienzo> puntos, const std::optional<Pluma>& pluma,
                        const std::optional<Color>& relleno) {
    if (puntos.empty()) return;
    PuntoLienzo menor = puntos.front();
    PuntoLienzo mayor = menor;
    for (const PuntoLienzo& p : puntos) {
        menor = {std::min(menor.x, p.x), std::min(menor.y, p.y)};
        mayor = {std::max(mayor.x, p.x), std::max(mayor.y, p.y)};
    }
    if (!ALaVista(menor, mayor, pluma ? pluma->Ancho : 0)) return;
    const Suavizado suave(pintor_, !DeEjes(puntos));
    pintor_.setPen(pluma ? PlumaQt(*pluma, lado_) : QPen(Qt::NoPen));
    pintor_.setBrush(relleno ? QBrush(ColorQt(*relleno)) : QBrush(Qt::NoBrush));
    QPolygon figura;
    figura.reserve(static_cast<qsizetype>(puntos.size()));
    for (const PuntoLienzo& punto : puntos) figura << QPoint(punto.x, punto.y);
    pintor_.drawPolygon(figura);
}

void LienzoQt::Circulo(PuntoLienzo centro, std::int32_t radio, const std::optional<Pluma>& pluma,
                       const std::optional<Color>& relleno) {
    if (!ALaVista({centro.x - radio, centro.y - radio}, {centro.x + radio, centro.y + radio},
                  pluma ? pluma->Ancho : 0))
        return;
    const Suavizado suave(pintor_, true);
    pintor_.setPen(pluma ? PlumaQt(*pluma, lado_) : QPen(Qt::NoPen));
    pintor_.setBrush(relleno ? QBrush(ColorQt(*relleno)) : QBrush(Qt::NoBrush));
    pintor_.drawEllipse(QPoint(centro.x, centro.y), radio, radio);
}

void LienzoQt::Pixel(PuntoLienzo lugar, Color color) {
    if (!ALaVista(lugar, lugar, 1)) return;
    // Neighbours drawn elsewhere in another size would show the seam between them.
    const double solape = deAparato_ ? 0 : 0.1;
    pintor_.fillRect(QRectF(lugar.x, lugar.y, lado_ + solape, lado_ + solape), ColorQt(color));
}

}  // namespace trabex::dibujo::qt
