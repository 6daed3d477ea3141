#pragma once

#include <QAbstractScrollArea>
#include <QCache>
#include <QPixmap>
#include <functional>
#include <memory>
#include <vector>

#include "reports/salidas/qt/TextosDePagina.h"

namespace trabex::salidas::qt {

/// The pages of a document on the screen, one below another or in rows. The same pages as on paper, with the
/// same ink.
class VistaPaginas : public QAbstractScrollArea {
  public:
    explicit VistaPaginas(const documento::Documento& documento, QWidget* padre = nullptr);

    /// Shows another document, or the same one changed. It must outlive the view.
    void PonerDocumento(const documento::Documento& documento);

    int NumeroPaginas() const { return paginas_->NumeroPaginas(); }
    /// The page that fills most of the view, from 0.
    int PaginaActual() const;
    void IrAPagina(int pagina);

    /// In percent, 100 being the size of the paper by the screen's resolution. Keeps the middle of the view.
    void PonerZoom(double porcentaje);
    double Zoom() const { return zoom_; }
    double ZoomDeAncho() const;
    double ZoomDeAlto() const;
    double ZoomDePagina() const;

    /// Pages beside one another; one at the beginning.
    void PonerColumnas(int columnas);
    /// The zoom at which so many pages beside and below one another fill the view.
    double ZoomDeCuadricula(int columnas, int filas) const;

    /// Looks for a text without regard to case and accents; the answers are marked.
    void Buscar(const QString& texto);
    int NumeroHallazgos() const { return static_cast<int>(hallazgos_.size()); }
    /// Shows the next answer, or the one before. Its number, from 1; 0 when there is none.
    int IrAlHallazgo(bool adelante);

    /// Texts are chosen with the mouse, by the rectangle that it draws on a page, or all of the page in
    /// sight; Ctrl+C and the menu copy them.
    void ElegirTodo();
    void Copiar() const;

    std::function<void(int pagina)> AlCambiarPagina;
    std::function<void(double porcentaje)> AlCambiarZoom;
    std::function<void()> AlCambiarTamano;  ///< of the view

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;

  private:
    struct Hallazgo {
        int Pagina;
        QRectF Donde;  // in the units of the pages
    };
    QSizeF LadoAlCien() const;  // of a page at 100 %, in pixels of the screen
    double Escala() const;      // pixels of the screen in a unit of the pages
    QSize Lado() const;         // of a page on the screen
    int Paso() const;
    QRect Lugar(int pagina) const;
    QPointF EnPagina(int pagina, const QPointF& lugar) const;
    void Elegir(int pagina, const QRectF& donde);
    void Acomodar();
    const QPixmap& Estampa(int pagina);
    void PintarMarcas(QPainter& pintor, int pagina) const;

    std::unique_ptr<const Paginador> paginas_;
    int columnas_ = 1;
    double zoom_ = 100;
    QCache<int, QPixmap> estampas_;
    QPixmap suelta_;  // a page too large to be kept
    std::vector<Hallazgo> hallazgos_;
    int hallazgo_ = -1;
    int paginaAvisada_ = 0;
    std::vector<TextoDePagina> elegidos_;  // of one page
    int paginaElegida_ = -1;
    QPointF desdeDonde_;  // where the mouse began to choose, in the units of the pages
};

}  // namespace trabex::salidas::qt
