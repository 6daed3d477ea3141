#include "reports/salidas/qt/HojaPdf.h"

#include <QImage>
#include <QPainter>
#include <cmath>
#include <numbers>

#include "drawing/Trazos.h"
#include "drawing/qt/LienzoQt.h"
#include "reports/documento/Documento.h"
#include "reports/salidas/CabeceraJpeg.h"

namespace trabex::salidas::qt {

namespace {

constexpr double PuntosPorPulgada = 72;
constexpr unsigned DecimalesDeEscala = 6;
constexpr unsigned DecimalesDeColor = 3;
constexpr double PulgadaDePantalla = 96;  // units of a drawing to an inch, by which its fonts are told

dibujo::Color Tono(const QColor& color) {
    return {static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
            static_cast<std::uint8_t>(color.blue())};
}

/// How many decimals tell a place to a thousandth of a millimetre.
unsigned DecimalesPara(double puntosPorUnidad) {
    constexpr double milesima = PuntosPorPulgada / 25.4 / 1000;
    unsigned decimales = 0;
    for (double error = puntosPorUnidad; error > 1.01 * milesima && decimales < DecimalesDeEscala;
         error /= 10)
        ++decimales;
    return decimales;
}

/// Strokes on a page.
class LienzoPdf : public dibujo::Lienzo {
  public:
    LienzoPdf(OrdenesPdf& ordenes, LetrasPdf& letras, const dibujo::MedidaDeTrazos& medida)
        : ordenes_(ordenes), letras_(letras), medida_(medida) {}

    std::int32_t ScaleWidth() const override { return medida_.Ancho; }
    std::int32_t ScaleHeight() const override { return medida_.Alto; }
    void Limpiar() override {}  // the page is white
    void PonerFuente(const dibujo::Fuente& fuente) override {
        fuente_ = dibujo::qt::FuenteDeLienzo(fuente);
        cuerpo_ = fuente.Puntos * PulgadaDePantalla / PuntosPorPulgada;
    }
    void PonerColorTexto(dibujo::Color color) override { texto_ = color; }
    dibujo::Color ColorTextoDeBotones() const override { return {}; }
    dibujo::MedidaTexto Medir(std::string_view) override {
        return {};
    }  // strokes are measured where they are made
    void Texto(std::string_view texto, dibujo::PuntoLienzo lugar, std::int32_t decimasDeGrado) override {
        const double grados = decimasDeGrado / 10.0;
        const double radianes = grados * std::numbers::pi / 180;
        const double bajada = letras_.Ascenso(fuente_) * cuerpo_;
        ordenes_.Tintar(texto_);
        ordenes_.Texto(
            letras_.Componer(fuente_, QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()))),
            cuerpo_, {lugar.x + bajada * std::sin(radianes), lugar.y + bajada * std::cos(radianes)}, grados);
    }
    void Linea(dibujo::PuntoLienzo desde, dibujo::PuntoLienzo hasta, const dibujo::Pluma& pluma) override {
        Trazar(pluma);
        ordenes_.Linea(QPointF(desde.x, desde.y), QPointF(hasta.x, hasta.y));
    }
    void Poligono(std::span<const dibujo::PuntoLienzo> puntos, const std::optional<dibujo::Pluma>& pluma,
                  const std::optional<dibujo::Color>& relleno) override {
        if (pluma) Trazar(*pluma);
        if (relleno) ordenes_.Tintar(*relleno);
        ordenes_.Poligono(puntos, relleno.has_value(), pluma.has_value());
    }
    void Circulo(dibujo::PuntoLienzo centro, std::int32_t radio, const std::optional<dibujo::Pluma>& pluma,
                 const std::optional<dibujo::Color>& relleno) override {
        if (pluma) Trazar(*pluma);
        if (relleno) ordenes_.Tintar(*relleno);
        ordenes_.Circulo(centro.x, centro.y, radio, relleno.has_value(), pluma.has_value());
    }
    void Pixel(dibujo::PuntoLienzo lugar, dibujo::Color color) override {
        constexpr double lado = 1.1;  // neighbours leave no seam
        ordenes_.Tintar(color);
        ordenes_.Rectangulo({lugar.x - 0.5, lugar.y - 0.5, lado, lado});
    }

  private:
    void Trazar(const dibujo::Pluma& pluma) {
        ordenes_.Trazar(pluma.Ancho, pluma.Estilo == dibujo::EstiloLinea::Punteada, pluma.Tinta);
    }

    OrdenesPdf& ordenes_;
    LetrasPdf& letras_;
    dibujo::MedidaDeTrazos medida_;
    QFont fuente_;
    double cuerpo_ = 1;
    dibujo::Color texto_;
};

/// The pixels as they are stored: three bytes each, on white where they let it through.
std::string PixelesDe(const QImage& imagen) {
    QImage sobreBlanco(imagen.size(), QImage::Format_RGB888);
    sobreBlanco.fill(Qt::white);
    QPainter(&sobreBlanco).drawImage(0, 0, imagen);
    std::string pixeles;
    for (int y = 0; y < sobreBlanco.height(); ++y)
        pixeles.append(reinterpret_cast<const char*>(sobreBlanco.constScanLine(y)),
                       static_cast<std::size_t>(sobreBlanco.width()) * 3);
    return pixeles;
}

}  // namespace

std::string ImagenesPdf::Agregar(const almacen::Bytes& bytes) {
    const auto jpeg = LeerCabeceraJpeg(bytes);
    const bool talCual = jpeg && (jpeg->Componentes == 1 || jpeg->Componentes == 3);
    QImage imagen;
    if (!talCual)
        imagen.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()));
    if (!talCual && imagen.isNull()) return {};
    const std::size_t numero = archivo_.Reservar();
    const std::uint32_t ancho = talCual ? jpeg->Ancho : static_cast<std::uint32_t>(imagen.width());
    const std::uint32_t alto = talCual ? jpeg->Alto : static_cast<std::uint32_t>(imagen.height());
    const std::string medida = "/Type/XObject/Subtype/Image/BitsPerComponent 8/Width " +
                               std::to_string(ancho) + "/Height " + std::to_string(alto);
    if (talCual)
        archivo_.Flujo(numero,
                       medida +
                           (jpeg->Componentes == 1 ? "/ColorSpace/DeviceGray" : "/ColorSpace/DeviceRGB") +
                           "/Filter/DCTDecode",
                       {reinterpret_cast<const char*>(bytes.data()), bytes.size()}, false);
    else
        archivo_.Flujo(numero, medida + "/ColorSpace/DeviceRGB", PixelesDe(imagen));
    std::string nombre = "/I" + std::to_string(++cuantas_);
    nombres_ += nombre + " " + ArchivoPdf::Enlace(numero);
    return nombre;
}

OrdenesPdf& OrdenesPdf::Unidades(std::int64_t valor, unsigned decimales) {
    AgregarNumeroPdf(bytes_, valor, decimales);
    bytes_ += ' ';
    return *this;
}

OrdenesPdf& OrdenesPdf::Orden(const char* orden) {
    bytes_ += orden;
    bytes_ += '\n';
    return *this;
}

void OrdenesPdf::Entrar(double escalaX, double escalaY, double x0, double y0) {
    SalirDeTexto();
    guardados_.push_back(estado_);
    Orden("q").Numero(escalaX, DecimalesDeEscala).Numero(0).Numero(0).Numero(escalaY, DecimalesDeEscala);
    Numero(x0).Numero(y0).Orden("cm");
    estado_.Escala *= std::fabs(escalaX);
    estado_.Decimales = DecimalesPara(estado_.Escala);
}

void OrdenesPdf::Recortar(double ancho, double alto) {
    Numero(0).Numero(0).Numero(ancho).Numero(alto).Orden("re W n");
}

void OrdenesPdf::Salir() {
    SalirDeTexto();
    estado_ = guardados_.back();
    guardados_.pop_back();
    Orden("Q");
}

void OrdenesPdf::Color(dibujo::Color color, const char* orden) {
    constexpr double lleno = 255;
    for (const double parte : {color.R / lleno, color.G / lleno, color.B / lleno})
        Numero(parte, DecimalesDeColor);
    Orden(orden);
}

void OrdenesPdf::Tintar(dibujo::Color color) {
    if (estado_.Tinta == color) return;
    estado_.Tinta = color;
    Color(color, "rg");
}

void OrdenesPdf::Trazar(double grosor, bool punteada, dibujo::Color color) {
    if (estado_.Trazo != color) Color(color, "RG");
    if (estado_.Grosor != grosor) Numero(grosor).Orden("w");
    if (estado_.Punteada != punteada) {
        bytes_ += '[';
        if (punteada) Numero(grosor).Numero(2 * grosor);
        Orden("] 0 d");
    }
    estado_.Trazo = color;
    estado_.Grosor = grosor;
    estado_.Punteada = punteada;
}

void OrdenesPdf::Linea(QPointF desde, QPointF hasta) {
    SalirDeTexto();
    Numero(desde.x()).Numero(desde.y()).Orden("m").Numero(hasta.x()).Numero(hasta.y()).Orden("l S");
}

void OrdenesPdf::Rectangulo(const QRectF& donde) {
    SalirDeTexto();
    Numero(donde.x()).Numero(donde.y()).Numero(donde.width()).Numero(donde.height()).Orden("re f");
}

void OrdenesPdf::Pintar(bool relleno, bool contorno) {
    Orden(relleno ? (contorno ? "b*" : "f*") : (contorno ? "s" : "n"));
}

void OrdenesPdf::Poligono(std::span<const dibujo::PuntoLienzo> puntos, bool relleno, bool contorno) {
    SalirDeTexto();
    for (std::size_t i = 0; i < puntos.size(); ++i)
        Numero(puntos[i].x).Numero(puntos[i].y).Orden(i == 0 ? "m" : "l");
    Pintar(relleno, contorno);
}

void OrdenesPdf::Circulo(double x, double y, double radio, bool relleno, bool contorno) {
    SalirDeTexto();
    constexpr double tirante = 0.5522847498;  // of the curve that is a quarter of a circle but for 1/3000
    const double t = tirante * radio;
    const auto curva = [&](double ax, double ay, double bx, double by, double cx, double cy) {
        for (const double valor : {x + ax, y + ay, x + bx, y + by, x + cx, y + cy}) Numero(valor);
        Orden("c");
    };
    Numero(x + radio).Numero(y).Orden("m");
    curva(radio, t, t, radio, 0, radio);
    curva(-t, radio, -radio, t, -radio, 0);
    curva(-radio, -t, -t, -radio, 0, -radio);
    curva(t, -radio, radio, -t, radio, 0);
    Pintar(relleno, contorno);
}

void OrdenesPdf::Texto(const std::vector<LetrasPdf::Tramo>& tramos, double cuerpo, QPointF base,
                       double grados) {
    const double radianes = grados * std::numbers::pi / 180;
    const bool derecho = grados == 0;  // as most texts
    const double C = derecho ? 1 : std::cos(radianes);
    const double S = derecho ? 0 : std::sin(radianes);
    for (const LetrasPdf::Tramo& tramo : tramos) {
        if (tramo.Glifos.empty()) continue;
        const double x = cuerpo * tramo.x;
        const double y = cuerpo * tramo.y;
        EntrarEnTexto(tramo.Letra, cuerpo);
        if (derecho) {
            Lugar(base.x() + x, base.y() + y);
        } else {
            for (const double parte : {C, -S, -S, -C}) Numero(parte, DecimalesDeEscala);
            Numero(base.x() + C * x + S * y).Numero(base.y() - S * x + C * y);
            bytes_ += "Tm";
            renglon_.reset();
        }
        bytes_ += '(';
        bytes_ += tramo.Glifos;
        bytes_ += ")Tj\n";
    }
}

/// Texts that follow one another stand together, and the font stays until there is another.
void OrdenesPdf::EntrarEnTexto(std::size_t letra, double cuerpo) {
    if (!enTexto_) Orden("BT");
    enTexto_ = true;
    if (estado_.Letra == letra && estado_.Cuerpo == cuerpo) return;
    estado_.Letra = letra;
    estado_.Cuerpo = cuerpo;
    bytes_ += LetrasPdf::Nombre(letra) + ' ';
    Numero(cuerpo, DecimalesDeEscala).Orden("Tf");
}

void OrdenesPdf::SalirDeTexto() {
    if (enTexto_) Orden("ET");
    enTexto_ = false;
    renglon_.reset();
}

/// The first text's place is told whole, turned as the unit's y is; that of the others from the one before,
/// as it was rounded.
void OrdenesPdf::Lugar(double x, double y) {
    const unsigned decimales = estado_.Decimales;
    const Renglon nuevo{UnidadesPdf(x, decimales), UnidadesPdf(y, decimales)};
    if (renglon_) {
        Unidades(nuevo.x - renglon_->x, decimales).Unidades(renglon_->y - nuevo.y, decimales);
        bytes_ += "Td";
    } else {
        bytes_ += "1 0 0 -1 ";
        Unidades(nuevo.x, decimales).Unidades(nuevo.y, decimales);
        bytes_ += "Tm";
    }
    renglon_ = nuevo;
}

void OrdenesPdf::Imagen(const std::string& nombre, const QRectF& donde) {
    // Pictures have their own y, upward from the lower edge.
    Entrar(donde.width(), -donde.height(), donde.x(), donde.bottom());
    bytes_ += nombre + " ";
    Orden("Do");
    Salir();
}

TintaPdf::TintaPdf(LetrasPdf& letras, ImagenesPdf& imagenes, double altoDeHoja)
    : letras_(letras), imagenes_(imagenes) {
    constexpr double puntos = 1 / PuntoTipografico;
    ordenes_.Entrar(puntos, -puntos, 0, altoDeHoja * puntos);
}

std::string TintaPdf::Terminar() {
    ordenes_.Salir();
    return ordenes_.Bytes();
}

void TintaPdf::Texto(const QPointF& base, const QString& texto, const TipoDeLetra& letra,
                     const QColor& color) {
    ordenes_.Tintar(Tono(color));
    ordenes_.Texto(letras_.Componer(letra.Fuente(), texto), letra.Fuente().pixelSize(), base, 0);
}

void TintaPdf::TextoLlano(const QPointF& base, std::string_view texto, const TipoDeLetra& letra,
                          const QColor& color) {
    const std::vector<LetrasPdf::Tramo>* tramos = letras_.ComponerLlano(letra.Fuente(), texto);
    if (tramos == nullptr) return Tinta::TextoLlano(base, texto, letra, color);
    ordenes_.Tintar(Tono(color));
    ordenes_.Texto(*tramos, letra.Fuente().pixelSize(), base, 0);
}

void TintaPdf::Raya(const QPointF& desde, const QPointF& hasta, double grosor, const QColor& color) {
    ordenes_.Trazar(grosor, false, Tono(color));
    ordenes_.Linea(desde, hasta);
}

void TintaPdf::Fondo(const QRectF& donde, const QColor& color) {
    ordenes_.Tintar(Tono(color));
    ordenes_.Rectangulo(donde);
}

void TintaPdf::Mapa(const QRectF& donde, const documento::Imagen& imagen) {
    const std::string trazos = TrazosDe(imagen);
    const auto medida = dibujo::MedidaDe(trazos);
    if (!medida) {
        const std::string nombre = imagenes_.Agregar(imagen.Leer());
        if (!nombre.empty()) ordenes_.Imagen(nombre, donde);
        return;
    }
    ordenes_.Entrar(donde.width() / medida->Ancho, donde.height() / medida->Alto, donde.x(), donde.y());
    ordenes_.Recortar(medida->Ancho, medida->Alto);
    LienzoPdf lienzo(ordenes_, letras_, *medida);
    dibujo::Repetir(trazos, lienzo);
    ordenes_.Salir();
}

}  // namespace trabex::salidas::qt
