#pragma once

#include <functional>

#include "base/LeerNumero.h"
#include "shell/qt/CampoJuzgado.h"

namespace trabex::programa::qt {

using trabex::ClaseNumero;
using trabex::Distancia;
using trabex::EnteroDe32;
using trabex::Longitud;
using trabex::NaturalDe16;

/// A field for one number.
class CampoNumero : public CampoJuzgado {
  public:
    CampoNumero(const ClaseNumero& clase, const Separadores& separadores, QWidget* padre);
    /// The number of the entry; while what stands there is none, the one that stood before it was typed.
    double Valor() const { return valor_; }
    void PonerValor(double valor);
    /// Called with the number once it is whole: on Enter and on leaving, when it is another.
    void AlEntrar(std::function<void(double)> accion) { alEntrar_ = std::move(accion); }

    QString Motivo() const override { return motivo_; }

  protected:
    void Tomar() override;
    void Volver() override { PonerValor(entrado_); }

  private:
    void Juzgar();

    ClaseNumero clase_;
    Separadores separadores_;
    double valor_ = 0;
    double entrado_ = 0;  // the last one that was whole
    QString motivo_;
    bool entrando_ = false;  // a message that the number brings up takes the focus, and tells it again
    std::function<void(double)> alEntrar_;
};

}  // namespace trabex::programa::qt
