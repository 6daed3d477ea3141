#include "reports/salidas/qt/Piezas.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>
#include <vector>

#include "drawing/Trazos.h"
#include "reports/salidas/qt/PiezaTabla.h"

namespace trabex::salidas::qt {

namespace {

const QColor Tinte(0x1A, 0x1A, 0x1A);
const QColor TinteSuave(0x60, 0x60, 0x60);
const QColor TinteDeTitulo(0x2F, 0x5D, 0x8A);

QString Q(const std::string& texto) {
    return QString::fromStdString(texto);
}

/// Lines of one font: headings and paragraphs.
class PiezaTexto : public Pieza {
  public:
    PiezaTexto(const QString& texto, const TipoDeLetra& letra, const QColor& color, double ancho)
        : letra_(letra), color_(color), lineas_(letra.Lineas(texto, ancho)) {}
    double Antes() const override { return 0.35 * letra_.Alto(); }
    double Despues() const override { return 0.35 * letra_.Alto(); }
    std::size_t Filas() const override { return static_cast<std::size_t>(lineas_.size()); }
    double Alto(std::size_t desde, std::size_t hasta) const override {
        return static_cast<double>(hasta - desde) * letra_.Alto();
    }
    void Pintar(Tinta& tinta, const QPointF& esquina, std::size_t desde, std::size_t hasta) const override {
        for (std::size_t i = desde; i < hasta; ++i)
            tinta.Texto(
                esquina + QPointF(0, static_cast<double>(i - desde) * letra_.Alto() + letra_.Ascenso()),
                lineas_[static_cast<qsizetype>(i)], letra_, color_);
    }

  protected:
    const TipoDeLetra& letra_;
    QColor color_;
    QStringList lineas_;
};

class PiezaTitulo : public PiezaTexto {
  public:
    PiezaTitulo(const documento::Titulo& titulo, const Letras& letras, double ancho)
        : PiezaTexto(Q(titulo.Texto), letras.Titulos[Lugar(titulo)], TinteDeTitulo, ancho),
          subrayado_(titulo.Nivel == 1 ? ancho : 0) {}
    double Antes() const override { return 0.7 * letra_.Alto(); }
    double Despues() const override { return 0.25 * letra_.Alto(); }
    bool ConLaSiguiente() const override { return true; }
    std::size_t FilasDelPrincipio() const override { return Filas(); }
    double Alto(std::size_t desde, std::size_t hasta) const override {
        return PiezaTexto::Alto(desde, hasta) + (subrayado_ > 0 ? 0.2 * letra_.Alto() : 0);
    }
    void Pintar(Tinta& tinta, const QPointF& esquina, std::size_t desde, std::size_t hasta) const override {
        PiezaTexto::Pintar(tinta, esquina, desde, hasta);
        const QPointF pie = esquina + QPointF(0, Alto(desde, hasta));
        if (subrayado_ > 0) tinta.Raya(pie, pie + QPointF(subrayado_, 0), 0.4 * Milimetro, TinteDeTitulo);
    }

  private:
    static std::size_t Lugar(const documento::Titulo& titulo) {
        return static_cast<std::size_t>(std::clamp(titulo.Nivel, 1, 3) - 1);
    }
    double subrayado_;
};

/// Names and values in pairs of columns.
class PiezaFicha : public Pieza {
  public:
    PiezaFicha(const documento::Ficha& ficha, const Separadores& separadores, const Letras& letras,
               double ancho);
    double Despues() const override { return 0.5 * letras_.Normal.Alto(); }
    std::size_t Filas() const override { return altos_.size(); }
    std::size_t FilasDelPrincipio() const override { return Filas(); }
    double Alto(std::size_t desde, std::size_t hasta) const override {
        return std::accumulate(altos_.begin() + static_cast<std::ptrdiff_t>(desde),
                               altos_.begin() + static_cast<std::ptrdiff_t>(hasta), 0.0);
    }
    void Pintar(Tinta& tinta, const QPointF& esquina, std::size_t desde, std::size_t hasta) const override;

  private:
    struct Par {
        QString Rotulo;
        QStringList Valor;
    };
    const Letras& letras_;
    std::size_t columnas_;
    double paso_;
    std::vector<double> rotulos_;  // width of each column's names
    std::vector<Par> pares_;
    std::vector<double> altos_;
};

constexpr double Separacion = 2 * Milimetro;

PiezaFicha::PiezaFicha(const documento::Ficha& ficha, const Separadores& separadores, const Letras& letras,
                       double ancho)
    : letras_(letras),
      columnas_(static_cast<std::size_t>(ficha.Columnas)),
      paso_(ancho / ficha.Columnas),
      rotulos_(columnas_, 0) {
    for (std::size_t i = 0; i < ficha.Datos.size(); ++i) {
        double& rotulo = rotulos_[i % columnas_];
        rotulo = std::max(rotulo, std::min(letras.Normal.Ancho(Q(ficha.Datos[i].Rotulo)), 0.7 * paso_));
    }
    for (std::size_t i = 0; i < ficha.Datos.size(); ++i) {
        const documento::Ficha::Dato& dato = ficha.Datos[i];
        std::string valor = documento::TextoDeValor(dato.Contenido, dato.Formato, separadores);
        if (!valor.empty() && !dato.Unidad.empty()) valor += " " + dato.Unidad;
        const double sitio = paso_ - rotulos_[i % columnas_] - 2 * Separacion;
        pares_.push_back({Q(dato.Rotulo), letras.Negrita.Lineas(Q(valor), sitio)});
        const double alto = 1.2 * letras.Normal.Alto() * static_cast<double>(pares_.back().Valor.size());
        if (i % columnas_ == 0) altos_.push_back(0);
        altos_.back() = std::max(altos_.back(), alto);
    }
}

void PiezaFicha::Pintar(Tinta& tinta, const QPointF& esquina, std::size_t desde, std::size_t hasta) const {
    QPointF base = esquina + QPointF(0, 0.1 * letras_.Normal.Alto() + letras_.Normal.Ascenso());
    for (std::size_t fila = desde; fila < hasta; ++fila) {
        for (std::size_t k = 0; k < columnas_ && fila * columnas_ + k < pares_.size(); ++k) {
            const Par& par = pares_[fila * columnas_ + k];
            QPointF donde = base + QPointF(paso_ * static_cast<double>(k), 0);
            tinta.Texto(donde, par.Rotulo, letras_.Normal, TinteSuave);
            donde.rx() += rotulos_[k] + Separacion;
            for (const QString& linea : par.Valor) {
                tinta.Texto(donde, linea, letras_.Negrita, Tinte);
                donde.ry() += 1.2 * letras_.Normal.Alto();
            }
        }
        base.ry() += altos_[fila];
    }
}

/// A picture in the middle, over its caption.
class PiezaImagen : public Pieza {
  public:
    PiezaImagen(const documento::Imagen& imagen, const Letras& letras, const QSizeF& util);
    double Antes() const override { return 0.5 * letras_.Normal.Alto(); }
    double Despues() const override { return letras_.Normal.Alto(); }
    double Alto(std::size_t, std::size_t) const override {
        return medida_.height() + 0.3 * letras_.Normal.Alto() + AltoDelPie();
    }
    void Pintar(Tinta& tinta, const QPointF& esquina, std::size_t desde, std::size_t hasta) const override;

  private:
    double AltoDelPie() const { return static_cast<double>(pie_.size()) * letras_.Cursiva.Alto(); }

    const documento::Imagen& imagen_;
    const Letras& letras_;
    double ancho_;
    QStringList pie_;
    QSizeF medida_;
    bool legible_ = false;
};

/// The size that a picture's strokes or its first bytes tell, in units of its own.
QSize MedidaPropia(const documento::Imagen& imagen) {
    if (const auto medida = dibujo::MedidaDe(TrazosDe(imagen))) return {medida->Ancho, medida->Alto};
    const almacen::Bytes bytes = imagen.Leer();
    QByteArray vista = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                               static_cast<qsizetype>(bytes.size()));
    QBuffer archivo(&vista);
    return QImageReader(&archivo).size();
}

PiezaImagen::PiezaImagen(const documento::Imagen& imagen, const Letras& letras, const QSizeF& util)
    : imagen_(imagen),
      letras_(letras),
      ancho_(util.width()),
      pie_(imagen.Pie.empty() ? QStringList() : letras.Cursiva.Lineas(Q(imagen.Pie), util.width())),
      medida_(util.width(), 2 * letras.Normal.Alto()) {
    const QSize pixeles = MedidaPropia(imagen);
    legible_ = !pixeles.isEmpty();
    if (!legible_) return;
    const double sitio = util.height() - AltoDelPie() - 0.3 * letras.Normal.Alto();
    const documento::MedidaPagina medida = documento::MedidaDe(imagen, pixeles.width(), pixeles.height(),
                                                               {ancho_ / Milimetro, sitio / Milimetro});
    medida_ = QSizeF(medida.Ancho, medida.Alto) * Milimetro;
}

void PiezaImagen::Pintar(Tinta& tinta, const QPointF& esquina, std::size_t, std::size_t) const {
    if (legible_) {
        tinta.Mapa(QRectF(esquina + QPointF((ancho_ - medida_.width()) / 2, 0), medida_), imagen_);
    } else {
        const double izquierda = (ancho_ - letras_.Normal.Ancho(QString(documento::ImagenIlegible))) / 2;
        tinta.Texto(esquina + QPointF(izquierda, letras_.Normal.Ascenso()), documento::ImagenIlegible,
                    letras_.Normal, TinteSuave);
    }
    QPointF base =
        esquina + QPointF(0, medida_.height() + 0.3 * letras_.Normal.Alto() + letras_.Cursiva.Ascenso());
    for (const QString& linea : pie_) {
        tinta.Texto(base + QPointF((ancho_ - letras_.Cursiva.Ancho(linea)) / 2, 0), linea, letras_.Cursiva,
                    Tinte);
        base.ry() += letras_.Cursiva.Alto();
    }
}

/// A line a section, with a dotted line to the number of its page.
class PiezaIndice : public Pieza {
  public:
    PiezaIndice(const documento::Indice& indice, const documento::Documento& documento, const Letras& letras,
                double ancho)
        : letras_(letras), ancho_(ancho), secciones_(documento.SeccionesTras(indice)) {}

    double Despues() const override { return letras_.Normal.Alto(); }
    std::size_t Filas() const override { return std::max<std::size_t>(secciones_.size(), 1); }
    double Alto(std::size_t desde, std::size_t hasta) const override {
        return static_cast<double>(hasta - desde) * 1.25 * letras_.Normal.Alto();
    }
    /// The last sections are its own: those before it come first in `comienzos`.
    void Numerar(const std::vector<Comienzo>& comienzos) override {
        const std::size_t sobran = comienzos.size() - std::min(comienzos.size(), secciones_.size());
        for (std::size_t i = sobran; i < comienzos.size(); ++i) paginas_.push_back(comienzos[i].Pagina + 1);
    }
    void Pintar(Tinta& tinta, const QPointF& esquina, std::size_t desde, std::size_t hasta) const override {
        const QFontMetricsF metrica(letras_.Normal.Fuente());
        double base = esquina.y() + letras_.Normal.Ascenso();
        for (std::size_t i = desde; i < std::min(hasta, paginas_.size()); ++i) {
            const QString numero = QString::number(paginas_[i]);
            const double derecha = ancho_ - letras_.Normal.Ancho(numero);
            const QString nombre = metrica.elidedText(Q(secciones_[i]), Qt::ElideRight, 0.85 * ancho_);
            const double desdePuntos = letras_.Normal.Ancho(nombre) + 2 * Milimetro;
            const int puntos =
                static_cast<int>((derecha - desdePuntos - 2 * Milimetro) / letras_.Normal.AnchoLlano(" ."));
            tinta.Texto({esquina.x(), base}, nombre, letras_.Normal, Tinte);
            if (puntos > 0) {
                const QString linea = QString(" .").repeated(puntos);
                tinta.Texto({esquina.x() + derecha - 2 * Milimetro - letras_.Normal.Ancho(linea), base},
                            linea, letras_.Normal, TinteSuave);
            }
            tinta.Texto({esquina.x() + derecha, base}, numero, letras_.Normal, Tinte);
            base += Alto(0, 1);
        }
    }

  private:
    const Letras& letras_;
    double ancho_;
    std::vector<std::string> secciones_;
    std::vector<int> paginas_;
};

}  // namespace

Letras::Letras(double puntos)
    : Normal(puntos, false),
      Negrita(puntos, true),
      Cursiva(puntos, false, true),
      Chica(0.88 * puntos, false),
      Titulos{TipoDeLetra(1.5 * puntos, true), TipoDeLetra(1.2 * puntos, true),
              TipoDeLetra(1.05 * puntos, true)} {}

std::unique_ptr<Pieza> PiezaDe(const documento::Bloque& bloque, const documento::Documento& documento,
                               const Letras& letras, const QSizeF& util) {
    if (const auto* titulo = std::get_if<documento::Titulo>(&bloque))
        return std::make_unique<PiezaTitulo>(*titulo, letras, util.width());
    if (const auto* parrafo = std::get_if<documento::Parrafo>(&bloque))
        return std::make_unique<PiezaTexto>(
            Q(parrafo->Texto), parrafo->Destacado ? letras.Negrita : letras.Normal, Tinte, util.width());
    if (const auto* ficha = std::get_if<documento::Ficha>(&bloque))
        return std::make_unique<PiezaFicha>(*ficha, documento.Locales, letras, util.width());
    if (const auto* tabla = std::get_if<documento::Tabla>(&bloque))
        return std::make_unique<PiezaTabla>(*tabla, documento, letras, util.width());
    if (const auto* indice = std::get_if<documento::Indice>(&bloque))
        return std::make_unique<PiezaIndice>(*indice, documento, letras, util.width());
    if (const auto* imagen = std::get_if<documento::Imagen>(&bloque))
        return std::make_unique<PiezaImagen>(*imagen, letras, util);
    return nullptr;
}

}  // namespace trabex::salidas::qt
