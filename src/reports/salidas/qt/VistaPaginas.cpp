#include "reports/salidas/qt/VistaPaginas.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace trabex::salidas::qt {

namespace {

constexpr int Hueco = 14;  // pixels around pages
constexpr double ZoomMenor = 5;
constexpr double ZoomMayor = 500;
constexpr int MemoriaDeEstampas = 96 * 1024;  // KB
const QColor ColorDeHallazgo(255, 213, 0, 90);
const QColor ColorDelActual(255, 140, 0, 130);
const QColor ColorDeElegido(51, 122, 204, 90);

/// Letters without case and accents, each in its place.
QString Llano(const QString& texto) {
    QString llano;
    llano.reserve(texto.size());
    for (const QChar c : texto) {
        const QString partes = c.decompositionTag() == QChar::Canonical ? c.decomposition() : QString(c);
        llano += partes.at(0).toLower();
    }
    return llano;
}

}  // namespace

VistaPaginas::VistaPaginas(const documento::Documento& documento, QWidget* padre)
    : QAbstractScrollArea(padre),
      paginas_(std::make_unique<const Paginador>(documento)),
      estampas_(MemoriaDeEstampas) {
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    viewport()->setBackgroundRole(QPalette::Mid);
    viewport()->setAutoFillBackground(true);
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setSingleStep(40);
}

void VistaPaginas::PonerDocumento(const documento::Documento& documento) {
    const int pagina = PaginaActual();
    paginas_ = std::make_unique<const Paginador>(documento);
    estampas_.clear();
    hallazgos_.clear();
    hallazgo_ = -1;
    elegidos_.clear();
    Acomodar();
    IrAPagina(pagina);
    viewport()->update();
}

double VistaPaginas::Escala() const {
    return zoom_ / 100 * logicalDpiX() / (25.4 * Milimetro);
}

QSize VistaPaginas::Lado() const {
    const QSizeF hoja = QSizeF(paginas_->Papel().Ancho, paginas_->Papel().Alto) * Milimetro * Escala();
    return {static_cast<int>(std::lround(hoja.width())), static_cast<int>(std::lround(hoja.height()))};
}

int VistaPaginas::Paso() const {
    return Lado().height() + Hueco;
}

QRect VistaPaginas::Lugar(int pagina) const {
    const QSize lado = Lado();
    const int ancho = columnas_ * (lado.width() + Hueco) - Hueco;
    const int sobra = viewport()->width() - ancho;
    const int x = (sobra > 2 * Hueco ? sobra / 2 : Hueco - horizontalScrollBar()->value()) +
                  pagina % columnas_ * (lado.width() + Hueco);
    return {QPoint(x, Hueco + pagina / columnas_ * Paso() - verticalScrollBar()->value()), lado};
}

int VistaPaginas::PaginaActual() const {
    const int medio = verticalScrollBar()->value() + viewport()->height() / 3;
    return std::clamp((medio - Hueco) / std::max(Paso(), 1) * columnas_, 0, NumeroPaginas() - 1);
}

void VistaPaginas::IrAPagina(int pagina) {
    verticalScrollBar()->setValue(std::clamp(pagina, 0, NumeroPaginas() - 1) / columnas_ * Paso());
}

QSizeF VistaPaginas::LadoAlCien() const {
    return QSizeF(paginas_->Papel().Ancho, paginas_->Papel().Alto) * (logicalDpiX() / 25.4);
}

double VistaPaginas::ZoomDeAncho() const {
    return std::clamp(100 * (viewport()->width() - 2 * Hueco) / LadoAlCien().width(), ZoomMenor, ZoomMayor);
}

double VistaPaginas::ZoomDeAlto() const {
    return std::clamp(100 * (viewport()->height() - 2 * Hueco) / LadoAlCien().height(), ZoomMenor, ZoomMayor);
}

double VistaPaginas::ZoomDePagina() const {
    return std::min(ZoomDeAncho(), ZoomDeAlto());
}

double VistaPaginas::ZoomDeCuadricula(int columnas, int filas) const {
    const double ancho = (viewport()->width() - (columnas + 1) * Hueco) / (columnas * LadoAlCien().width());
    const double alto = (viewport()->height() - (filas + 1) * Hueco) / (filas * LadoAlCien().height());
    return std::clamp(100 * std::min(ancho, alto), ZoomMenor, ZoomMayor);
}

void VistaPaginas::PonerColumnas(int columnas) {
    const int pagina = PaginaActual();
    columnas_ = columnas;
    Acomodar();
    IrAPagina(pagina);
    viewport()->update();
}

void VistaPaginas::PonerZoom(double porcentaje) {
    const double nuevo = std::clamp(porcentaje, ZoomMenor, ZoomMayor);
    if (nuevo == zoom_) return;
    const double medio = verticalScrollBar()->value() + viewport()->height() / 2.0;
    const double lugar = medio / Paso();
    zoom_ = nuevo;
    estampas_.clear();
    Acomodar();
    verticalScrollBar()->setValue(static_cast<int>(lugar * Paso() - viewport()->height() / 2.0));
    viewport()->update();
    if (AlCambiarZoom) AlCambiarZoom(zoom_);
}

void VistaPaginas::Acomodar() {
    const QSize lado = Lado();
    const QSize vista = viewport()->size();
    const int filas = (NumeroPaginas() + columnas_ - 1) / columnas_;
    verticalScrollBar()->setRange(0, std::max(0, Hueco + filas * Paso() - vista.height()));
    verticalScrollBar()->setPageStep(vista.height());
    horizontalScrollBar()->setRange(0,
                                    std::max(0, columnas_ * (lado.width() + Hueco) + Hueco - vista.width()));
    horizontalScrollBar()->setPageStep(vista.width());
}

const QPixmap& VistaPaginas::Estampa(int pagina) {
    if (const QPixmap* guardada = estampas_.object(pagina)) return *guardada;
    const double finura = devicePixelRatioF();
    QPixmap estampa(Lado() * finura);
    estampa.setDevicePixelRatio(finura);
    estampa.fill(Qt::white);
    QPainter pintor(&estampa);
    pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    pintor.scale(Escala(), Escala());
    TintaDePintor tinta(pintor);
    paginas_->Pintar(pagina, tinta);
    pintor.end();
    suelta_ = estampa;
    const qint64 peso = qint64{4} * estampa.width() * estampa.height() / 1024;
    estampas_.insert(pagina, new QPixmap(estampa), static_cast<int>(peso));
    return suelta_;
}

void VistaPaginas::PintarMarcas(QPainter& pintor, int pagina) const {
    const QPoint esquina = Lugar(pagina).topLeft();
    for (const TextoDePagina& texto : elegidos_) {
        if (pagina != paginaElegida_) break;
        pintor.fillRect(QRectF(esquina + texto.Donde.topLeft() * Escala(), texto.Donde.size() * Escala()),
                        ColorDeElegido);
    }
    for (std::size_t i = 0; i < hallazgos_.size(); ++i) {
        if (hallazgos_[i].Pagina != pagina) continue;
        const QRectF& donde = hallazgos_[i].Donde;
        const QRectF marca(esquina + donde.topLeft() * Escala(), donde.size() * Escala());
        pintor.fillRect(marca.adjusted(-1, -1, 1, 1),
                        static_cast<int>(i) == hallazgo_ ? ColorDelActual : ColorDeHallazgo);
    }
}

/// The texts that a rectangle of a page touches.
void VistaPaginas::Elegir(int pagina, const QRectF& donde) {
    paginaElegida_ = pagina;
    elegidos_ = TextosDePagina(*paginas_, pagina);
    std::erase_if(elegidos_, [&](const TextoDePagina& texto) { return !texto.Donde.intersects(donde); });
    viewport()->update();
}

void VistaPaginas::ElegirTodo() {
    Elegir(PaginaActual(), {0, 0, paginas_->Papel().Ancho * Milimetro, paginas_->Papel().Alto * Milimetro});
}

void VistaPaginas::Copiar() const {
    if (!elegidos_.empty()) QGuiApplication::clipboard()->setText(EnRenglones(elegidos_));
}

QPointF VistaPaginas::EnPagina(int pagina, const QPointF& lugar) const {
    return (lugar - Lugar(pagina).topLeft()) / Escala();
}

void VistaPaginas::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() != Qt::LeftButton) return QAbstractScrollArea::mousePressEvent(evento);
    elegidos_.clear();
    paginaElegida_ = -1;
    for (int i = 0; i < NumeroPaginas() && paginaElegida_ < 0; ++i) {
        if (Lugar(i).contains(evento->pos())) paginaElegida_ = i;
    }
    if (paginaElegida_ >= 0) desdeDonde_ = EnPagina(paginaElegida_, evento->position());
    viewport()->update();
}

void VistaPaginas::mouseMoveEvent(QMouseEvent* evento) {
    if (!(evento->buttons() & Qt::LeftButton) || paginaElegida_ < 0)
        return QAbstractScrollArea::mouseMoveEvent(evento);
    Elegir(paginaElegida_, QRectF(desdeDonde_, EnPagina(paginaElegida_, evento->position())).normalized());
}

void VistaPaginas::contextMenuEvent(QContextMenuEvent* evento) {
    QMenu menu(this);
    QAction* copiar = menu.addAction("&Copiar", QKeySequence::Copy, this, [this] { Copiar(); });
    copiar->setEnabled(!elegidos_.empty());
    menu.addAction("Seleccionar la &Página", QKeySequence::SelectAll, this, [this] { ElegirTodo(); });
    menu.exec(evento->globalPos());
}

void VistaPaginas::paintEvent(QPaintEvent* evento) {
    QPainter pintor(viewport());
    const int primera = std::max(0, (verticalScrollBar()->value() - Hueco) / Paso()) * columnas_;
    for (int i = primera; i < NumeroPaginas() && Lugar(i).top() < viewport()->height(); ++i) {
        const QRect lugar = Lugar(i);
        if (!lugar.intersects(evento->rect())) continue;
        pintor.fillRect(lugar.translated(2, 2), QColor(0, 0, 0, 60));
        pintor.drawPixmap(lugar.topLeft(), Estampa(i));
        PintarMarcas(pintor, i);
    }
}

void VistaPaginas::resizeEvent(QResizeEvent* evento) {
    QAbstractScrollArea::resizeEvent(evento);
    Acomodar();
    if (AlCambiarTamano) AlCambiarTamano();
}

void VistaPaginas::scrollContentsBy(int, int) {
    viewport()->update();
    if (PaginaActual() == paginaAvisada_) return;
    paginaAvisada_ = PaginaActual();
    if (AlCambiarPagina) AlCambiarPagina(paginaAvisada_);
}

void VistaPaginas::wheelEvent(QWheelEvent* evento) {
    if (!(evento->modifiers() & Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(evento);
        return;
    }
    PonerZoom(zoom_ * std::pow(1.1, evento->angleDelta().y() / 120.0));
    evento->accept();
}

void VistaPaginas::keyPressEvent(QKeyEvent* evento) {
    if (evento->matches(QKeySequence::Copy)) return Copiar();
    if (evento->matches(QKeySequence::SelectAll)) return ElegirTodo();
    QScrollBar* barra = verticalScrollBar();
    switch (evento->key()) {
        case Qt::Key_Home:
            barra->setValue(0);
            break;
        case Qt::Key_End:
            barra->setValue(barra->maximum());
            break;
        case Qt::Key_Space:
            barra->triggerAction(QAbstractSlider::SliderPageStepAdd);
            break;
        default:
            QAbstractScrollArea::keyPressEvent(evento);
    }
}

void VistaPaginas::Buscar(const QString& texto) {
    hallazgos_.clear();
    hallazgo_ = -1;
    const QString buscado = Llano(texto);
    for (int pagina = 0; !buscado.isEmpty() && pagina < NumeroPaginas(); ++pagina) {
        for (const TextoDePagina& escrito : TextosDePagina(*paginas_, pagina)) {
            const QString llano = Llano(escrito.Texto);
            for (qsizetype i = llano.indexOf(buscado); i >= 0; i = llano.indexOf(buscado, i + buscado.size()))
                hallazgos_.push_back({pagina, escrito.Parte(i, buscado.size())});
        }
    }
    viewport()->update();
}

int VistaPaginas::IrAlHallazgo(bool adelante) {
    const int cuantos = NumeroHallazgos();
    if (cuantos == 0) return 0;
    if (hallazgo_ < 0) {
        // The search begins at the page in sight.
        const auto desde = std::find_if(hallazgos_.begin(), hallazgos_.end(),
                                        [this](const Hallazgo& h) { return h.Pagina >= PaginaActual(); });
        hallazgo_ = desde == hallazgos_.end() ? 0 : static_cast<int>(desde - hallazgos_.begin());
    } else {
        hallazgo_ = (hallazgo_ + (adelante ? 1 : cuantos - 1)) % cuantos;
    }
    const Hallazgo& actual = hallazgos_[static_cast<std::size_t>(hallazgo_)];
    const int arriba = Hueco + actual.Pagina / columnas_ * Paso();
    const double y = arriba + actual.Donde.y() * Escala();
    verticalScrollBar()->setValue(static_cast<int>(y - viewport()->height() / 3.0));
    horizontalScrollBar()->setValue(
        static_cast<int>(actual.Donde.x() * Escala() - viewport()->width() / 3.0));
    viewport()->update();
    return hallazgo_ + 1;
}

}  // namespace trabex::salidas::qt
