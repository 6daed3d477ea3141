#pragma once

#include <map>
#include <optional>
#include <string>

#include "drawing/Lienzo.h"
#include "reports/salidas/qt/LetrasPdf.h"
#include "reports/salidas/qt/Tinta.h"
#include "store/Valor.h"

namespace trabex::salidas::qt {

/// The pictures of a PDF file, written as they come.
class ImagenesPdf {
  public:
    explicit ImagenesPdf(ArchivoPdf& archivo) : archivo_(archivo) {}
    /// Writes a picture's bytes; its name in a page's resources, empty when it can't be read.
    std::string Agregar(const almacen::Bytes& bytes);
    /// The inside of the dictionary in which pages find them.
    const std::string& Nombres() const { return nombres_; }

  private:
    ArchivoPdf& archivo_;
    std::string nombres_;
    std::size_t cuantas_ = 0;
};

/// What a page of a PDF says, as the commands of its language. The unit is that of whoever draws, y goes
/// down.
class OrdenesPdf {
  public:
    /// All of them; what was entered must have been left.
    std::string Bytes() { return std::move(bytes_); }

    /// The unit and the place of what is drawn until `Salir`: x' = x · escalaX + x0, and likewise for y.
    void Entrar(double escalaX, double escalaY, double x0, double y0);
    void Recortar(double ancho, double alto);
    void Salir();

    void Tintar(dibujo::Color color);
    void Trazar(double grosor, bool punteada, dibujo::Color color);
    void Linea(QPointF desde, QPointF hasta);
    void Rectangulo(const QRectF& donde);
    /// A closed figure, filled, outlined or both, in what was set last.
    void Poligono(std::span<const dibujo::PuntoLienzo> puntos, bool relleno, bool contorno);
    void Circulo(double x, double y, double radio, bool relleno, bool contorno);
    /// The text's foot line begins at a point and rises by so many degrees.
    void Texto(const std::vector<LetrasPdf::Tramo>& tramos, double cuerpo, QPointF base, double grados);
    void Imagen(const std::string& nombre, const QRectF& donde);

  private:
    struct Estado {
        std::optional<dibujo::Color> Tinta;
        std::optional<dibujo::Color> Trazo;
        double Grosor = -1;
        bool Punteada = false;
        std::optional<std::size_t> Letra;
        double Cuerpo = 0;
        double Escala = 1;       // points to the unit
        unsigned Decimales = 2;  // of a place
    };
    /// Where the last text of those that stand together begins, in units of the places' last decimal.
    struct Renglon {
        std::int64_t x;
        std::int64_t y;
    };
    OrdenesPdf& Numero(double valor) { return Numero(valor, estado_.Decimales); }
    OrdenesPdf& Numero(double valor, unsigned decimales) {
        return Unidades(UnidadesPdf(valor, decimales), decimales);
    }
    OrdenesPdf& Unidades(std::int64_t valor, unsigned decimales);
    OrdenesPdf& Orden(const char* orden);
    void EntrarEnTexto(std::size_t letra, double cuerpo);
    void SalirDeTexto();
    void Lugar(double x, double y);
    void Color(dibujo::Color color, const char* orden);
    void Pintar(bool relleno, bool contorno);

    std::string bytes_;
    Estado estado_;
    std::vector<Estado> guardados_;
    bool enTexto_ = false;
    std::optional<Renglon> renglon_;  // of upright text
};

/// Ink on a page of a PDF.
class TintaPdf : public Tinta {
  public:
    TintaPdf(LetrasPdf& letras, ImagenesPdf& imagenes, double altoDeHoja);
    /// All that was painted.
    std::string Terminar();

    void Texto(const QPointF& base, const QString& texto, const TipoDeLetra& letra,
               const QColor& color) override;
    void TextoLlano(const QPointF& base, std::string_view texto, const TipoDeLetra& letra,
                    const QColor& color) override;
    void Raya(const QPointF& desde, const QPointF& hasta, double grosor, const QColor& color) override;
    void Fondo(const QRectF& donde, const QColor& color) override;
    void Mapa(const QRectF& donde, const documento::Imagen& imagen) override;

  private:
    LetrasPdf& letras_;
    ImagenesPdf& imagenes_;
    OrdenesPdf ordenes_;
};

}  // namespace trabex::salidas::qt
