#include "drawing/qt/WidgetLienzo.h"

#include <QBitmap>
#include <QCursor>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>
#include <cstdlib>
#include <optional>

#include "drawing/qt/ImagenDeHoja.h"

namespace trabex::dibujo::qt {

namespace {

constexpr QColor ColorDeMira(200, 30, 30);

BotonRaton BotonDe(Qt::MouseButton boton) {
    switch (boton) {
        case Qt::LeftButton:
            return BotonRaton::Izquierdo;
        case Qt::RightButton:
            return BotonRaton::Derecho;
        case Qt::MiddleButton:
            return BotonRaton::Central;
        default:
            return BotonRaton::Ninguno;
    }
}

BotonRaton BotonDe(Qt::MouseButtons botones) {
    if (botones & Qt::LeftButton) return BotonRaton::Izquierdo;
    if (botones & Qt::MiddleButton) return BotonRaton::Central;
    if (botones & Qt::RightButton) return BotonRaton::Derecho;
    return BotonRaton::Ninguno;
}

std::optional<TeclaVista> TeclaDe(const QKeyEvent& evento) {
    switch (evento.key()) {
        case Qt::Key_Plus:
            return TeclaVista::Mas;
        case Qt::Key_Minus:
            return TeclaVista::Menos;
        case Qt::Key_Escape:
            return TeclaVista::Escape;
        case Qt::Key_Left:
            return TeclaVista::Izquierda;
        case Qt::Key_Right:
            return TeclaVista::Derecha;
        case Qt::Key_Up:
            return TeclaVista::Arriba;
        case Qt::Key_Down:
            return TeclaVista::Abajo;
        default:
            return std::nullopt;
    }
}

}  // namespace

WidgetLienzo::WidgetLienzo(EstadoVista& estado, std::function<void(Lienzo&)> dibujar, QWidget* padre,
                           TeclasDeVista teclas)
    : QWidget(padre), visor_(estado, *this, std::move(teclas)), dibujar_(std::move(dibujar)) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void WidgetLienzo::RedibujeVista() {
    const qreal finura = devicePixelRatioF();
    const QSize pixeles = (QSizeF(size()) * finura).toSize();
    if (imagen_.size() != pixeles) {
        imagen_ = QImage(pixeles, QImage::Format_RGB32);
        imagen_.setDotsPerMeterX(PuntosPorMetro);
        imagen_.setDotsPerMeterY(PuntosPorMetro);
        imagen_.setDevicePixelRatio(finura);
    }
    if (imagen_.isNull()) return;
    QPainter pintor(&imagen_);
    LienzoQt lienzo(pintor, width(), height(), &memoria_);
    // Sheets are paper: white, with the platform's colour of text unless it is made for a dark ground.
    const QColor texto = palette().color(QPalette::ButtonText);
    lienzo.PonerColores(Qt::white, texto.lightness() < 128 ? texto : QColor(Qt::black));
    dibujar_(lienzo);
    pintor.end();
    if (lector_ != nullptr) mira_ = lector_->Releer();
    update();
}

void WidgetLienzo::paintEvent(QPaintEvent* evento) {
    if (imagen_.isNull()) RedibujeVista();
    QPainter pintor(this);
    pintor.setClipRegion(evento->region());
    const QRectF parte = evento->rect();
    const qreal finura = imagen_.devicePixelRatio();
    pintor.drawImage(parte, imagen_, {parte.topLeft() * finura, parte.size() * finura});
    if (!mira_) return;
    pintor.setPen(ColorDeMira);
    pintor.drawLine(mira_->Desde.x, mira_->Desde.y, mira_->Hasta.x, mira_->Hasta.y);
}

void WidgetLienzo::PonerMira(const std::optional<LineaDeMira>& mira) {
    if (mira == mira_) return;
    const auto repintar = [this](const LineaDeMira& linea) {
        update(QRect(QPoint(linea.Desde.x, linea.Desde.y), QPoint(linea.Hasta.x, linea.Hasta.y))
                   .normalized()
                   .adjusted(-2, -2, 2, 2));
    };
    if (mira_) repintar(*mira_);
    mira_ = mira;
    if (mira_) repintar(*mira_);
}

void WidgetLienzo::resizeEvent(QResizeEvent*) {
    RedibujeVista();
}

void WidgetLienzo::changeEvent(QEvent* evento) {
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange && !imagen_.isNull()) RedibujeVista();
}

void WidgetLienzo::mousePressEvent(QMouseEvent* evento) {
    visor_.BajarBoton(BotonDe(evento->button()), evento->pos().x(), evento->pos().y());
}

void WidgetLienzo::mouseReleaseEvent(QMouseEvent* evento) {
    visor_.SubirBoton(BotonDe(evento->button()));
}

void WidgetLienzo::mouseMoveEvent(QMouseEvent* evento) {
    visor_.Mover(BotonDe(evento->buttons()), evento->pos().x(), evento->pos().y());
    if (lector_ != nullptr && evento->buttons() == Qt::NoButton)
        PonerMira(lector_->Apuntar(PuntoLienzo{evento->pos().x(), evento->pos().y()}));
}

/// Once the click is over: what it opens waits for its end.
void WidgetLienzo::mouseDoubleClickEvent(QMouseEvent* evento) {
    if (lector_ == nullptr || evento->button() != Qt::LeftButton) return mousePressEvent(evento);
    QTimer::singleShot(0, this, [this, lugar = evento->pos()] { lector_->Abrir({lugar.x(), lugar.y()}); });
}

void WidgetLienzo::leaveEvent(QEvent* evento) {
    QWidget::leaveEvent(evento);
    if (lector_ != nullptr) PonerMira(lector_->Apuntar(std::nullopt));
}

void WidgetLienzo::focusOutEvent(QFocusEvent* evento) {
    QWidget::focusOutEvent(evento);
    if (lector_ != nullptr) PonerMira(lector_->Apuntar(std::nullopt));
}

void WidgetLienzo::wheelEvent(QWheelEvent* evento) {
    const int giro = evento->angleDelta().y();
    if (giro == 0) return;
    if ((giro > 0) != (rueda_ > 0)) rueda_ = 0;
    rueda_ += giro;
    for (; std::abs(rueda_) >= QWheelEvent::DefaultDeltasPerStep;
         rueda_ -= giro > 0 ? QWheelEvent::DefaultDeltasPerStep : -QWheelEvent::DefaultDeltasPerStep)
        visor_.ZoomMouseWheel(giro > 0);
    evento->accept();
}

void WidgetLienzo::keyPressEvent(QKeyEvent* evento) {
    const bool aLosLados = evento->key() == Qt::Key_Left || evento->key() == Qt::Key_Right;
    if (lector_ != nullptr && aLosLados && (evento->modifiers() & Qt::ShiftModifier) != 0)
        return PonerMira(lector_->Avanzar(evento->key() == Qt::Key_Right ? 1 : -1));
    if (const auto tecla = TeclaDe(*evento))
        visor_.Teclear(*tecla);
    else
        QWidget::keyPressEvent(evento);
}

void WidgetLienzo::PonerPuntero(PunteroVista puntero) {
    switch (puntero) {
        case PunteroVista::Normal:
            return unsetCursor();
        case PunteroVista::ManoAbierta:
            return setCursor(Qt::OpenHandCursor);
        case PunteroVista::ManoCerrada:
            return setCursor(Qt::ClosedHandCursor);
    }
}

void WidgetLienzo::SoltarPanRealtime() {
    if (alSoltarPan_) alSoltarPan_();
}

void WidgetLienzo::AbrirMenuPantalla(std::int32_t x, std::int32_t y) {
    if (menu_ != nullptr) menu_->popup(mapToGlobal(QPoint(x, y)));
}

}  // namespace trabex::dibujo::qt
