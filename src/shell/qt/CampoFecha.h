#pragma once

#include "base/Fecha.h"
#include "shell/qt/CampoJuzgado.h"

namespace trabex::programa::qt {

/// A field for a date. What is read as one is rewritten as day, month and year when the field is left, so
/// that the engineer sees what was understood.
class CampoFecha : public CampoJuzgado {
  public:
    explicit CampoFecha(QWidget* padre);
    /// The date of the last entry that was one.
    Fecha Valor() const { return fecha_; }
    void PonerValor(const Fecha& fecha);

    QString Motivo() const override;

  protected:
    void Tomar() override;
    void Volver() override { PonerValor(fecha_); }

  private:
    Fecha fecha_;
};

}  // namespace trabex::programa::qt
