#include "reports/salidas/qt/TextosDePagina.h"

#include <QTransform>
#include <algorithm>

#include "drawing/Trazos.h"

namespace trabex::salidas::qt {

namespace {

class TintaDeTextos : public Tinta {
  public:
    std::vector<TextoDePagina> Textos;

    void Texto(const QPointF& base, const QString& texto, const TipoDeLetra& letra, const QColor&) override {
        Textos.push_back(
            {texto, {base - QPointF(0, letra.Ascenso()), QSizeF(letra.Ancho(texto), letra.Alto())}, &letra});
    }
    void Raya(const QPointF&, const QPointF&, double, const QColor&) override {}
    void Fondo(const QRectF&, const QColor&) override {}
    void Mapa(const QRectF& donde, const documento::Imagen& imagen) override {
        const std::string trazos = TrazosDe(imagen);
        const auto medida = dibujo::MedidaDe(trazos);
        if (!medida) return;
        for (const dibujo::TextoTrazado& texto : dibujo::TextosDe(trazos)) {
            QTransform lugar;
            lugar.translate(donde.x(), donde.y());
            lugar.scale(donde.width() / medida->Ancho, donde.height() / medida->Alto);
            lugar.translate(texto.Lugar.x, texto.Lugar.y);
            lugar.rotate(-texto.DecimasDeGrado / 10.0);
            const QRectF caja = lugar.mapRect(QRectF(0, 0, texto.Medida.Ancho, texto.Medida.Alto));
            if (donde.intersects(caja)) Textos.push_back({QString::fromStdString(texto.Texto), caja});
        }
    }
};

}  // namespace

QRectF TextoDePagina::Parte(qsizetype desde, qsizetype cuantas) const {
    if (Letra == nullptr) return Donde;
    QRectF parte = Donde;
    parte.setLeft(Donde.left() + Letra->Ancho(Texto.left(desde)));
    parte.setWidth(Letra->Ancho(Texto.mid(desde, cuantas)));
    return parte;
}

std::vector<TextoDePagina> TextosDePagina(const Paginador& paginas, int pagina) {
    TintaDeTextos tinta;
    paginas.Pintar(pagina, tinta);
    return std::move(tinta.Textos);
}

QString EnRenglones(std::vector<TextoDePagina> textos) {
    std::stable_sort(textos.begin(), textos.end(), [](const TextoDePagina& a, const TextoDePagina& b) {
        return a.Donde.center().y() < b.Donde.center().y();
    });
    QString todo;
    for (auto desde = textos.begin(); desde != textos.end();) {
        const double pie = desde->Donde.bottom();
        const auto hasta = std::find_if(desde, textos.end(),
                                        [&](const TextoDePagina& t) { return t.Donde.center().y() >= pie; });
        std::stable_sort(desde, hasta, [](const TextoDePagina& a, const TextoDePagina& b) {
            return a.Donde.left() < b.Donde.left();
        });
        for (auto texto = desde; texto != hasta; ++texto) todo += (texto == desde ? "" : "\t") + texto->Texto;
        todo += '\n';
        desde = hasta;
    }
    return todo;
}

}  // namespace trabex::salidas::qt
