#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <array>
#include <string_view>

namespace trabex::salidas::qt {

/// Pages are laid out in hundredths of a millimetre, whatever they are painted on: the same document breaks
/// in the same places on the screen, in a PDF and on a printer.
inline constexpr double Milimetro = 100;
inline constexpr double PuntoTipografico = 25.4 / 72 * Milimetro;

/// A font at a size, with what laying out asks of it again and again.
class TipoDeLetra {
  public:
    TipoDeLetra(double puntos, bool negrita, bool cursiva = false);

    const QFont& Fuente() const { return fuente_; }
    double Ancho(QStringView texto) const;
    /// The same of a text of printable ASCII alone.
    double AnchoLlano(std::string_view texto) const;
    /// From one line to the next, and from a line's top to its foot line.
    double Alto() const { return alto_; }
    double Ascenso() const { return ascenso_; }
    /// The text in lines no wider than `ancho`: broken at its line feeds, else at blanks, else anywhere.
    QStringList Lineas(const QString& texto, double ancho) const;
    /// The widest part of a text that has no blank in it.
    double AnchoDePalabra(const QString& texto) const;

  private:
    QFont fuente_;
    QFontMetricsF metrica_;
    std::array<double, 256> avances_;  // of the Latin-1 characters: numbers are measured by adding them
    double alto_;
    double ascenso_;
};

}  // namespace trabex::salidas::qt
