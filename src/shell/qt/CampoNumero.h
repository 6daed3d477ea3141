#pragma once

#include <QLineEdit>
#include <functional>

#include "base/LeerNumero.h"
#include "shell/qt/EntradaJuzgada.h"

namespace trabex::programa::qt {

using trabex::ClaseNumero;
using trabex::Distancia;
using trabex::EnteroDe32;
using trabex::Longitud;
using trabex::NaturalDe16;

/// A field for one number.
class CampoNumero : public QLineEdit, public EntradaJuzgada {
  public:
    CampoNumero(const ClaseNumero& clase, const Separadores& separadores, QWidget* padre);
    /// The number of the entry; while what stands there is none, the one that stood before it was typed.
    double Valor() const { return valor_; }
    void PonerValor(double valor);
    /// Called with the number once it is whole: on Enter and on leaving, when it is another.
    void AlEntrar(std::function<void(double)> accion) { alEntrar_ = std::move(accion); }

    QString Motivo() const override { return motivo_; }
    void Terminar() override;
    void Reclamar() override;

  protected:
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    bool focusNextPrevChild(bool adelante) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

  private:
    void Juzgar();
    /// Marks what is refused with its reason, or takes the mark off.
    void Marcar();

    ClaseNumero clase_;
    Separadores separadores_;
    double valor_ = 0;
    double entrado_ = 0;  // the last one that was whole
    QString motivo_;
    bool marcado_ = false;
    QString ayuda_;          // its tool tip while there is no reason to tell
    bool entrando_ = false;  // a message that the number brings up takes the focus, and tells it again
    std::function<void(double)> alEntrar_;
    bool seleccionarAlSoltar_ = false;
};

}  // namespace trabex::programa::qt
