#pragma once

#include <QLineEdit>
#include <QValidator>
#include <optional>

#include "base/Formatos.h"

namespace trabex::programa::qt {

/// What a field or a table's column takes for a number.
struct ClaseNumero {
    bool Entero = false;
    double Minimo = -9999999999.99;
    double Maximo = 9999999999.99;
    int Decimales = 0;  ///< shown at least
};
inline constexpr ClaseNumero EnteroDe32{true, -2147483648.0, 2147483647.0, 0};
inline constexpr ClaseNumero NaturalDe16{true, 0, 32767, 0};
inline constexpr ClaseNumero Longitud{false, 0, 9999999999.99, 2};
inline constexpr ClaseNumero Distancia{false, -9999999999.99, 9999999999.99, 2};

/// The number of an entry; an empty one is 0. Nothing when it is no number, has decimals where it must be
/// whole, or is out of range.
std::optional<double> NumeroDe(const QString& texto, const ClaseNumero& clase);

/// Lets only what may become such a number be typed, with comma or point.
class ValidadorNumero : public QValidator {
  public:
    ValidadorNumero(const ClaseNumero& clase, QObject* padre) : QValidator(padre), clase_(clase) {}
    State validate(QString& texto, int& lugar) const override;

  private:
    ClaseNumero clase_;
};

/// A field for one number.
class CampoNumero : public QLineEdit {
  public:
    CampoNumero(const ClaseNumero& clase, const Separadores& separadores, QWidget* padre);
    double Valor() const;
    void PonerValor(double valor);

  protected:
    void focusInEvent(QFocusEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

  private:
    ClaseNumero clase_;
    Separadores separadores_;
    bool seleccionarAlSoltar_ = false;
};

}  // namespace trabex::programa::qt
