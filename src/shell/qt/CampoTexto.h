#pragma once

#include <QPlainTextEdit>

#include "shell/qt/CampoJuzgado.h"

namespace trabex::programa::qt {

/// Why a text does not go into a column of so many characters; empty when it does.
QString MotivoDeLargo(const QString& texto, int largo);

/// A field for a text that a column keeps. One that is too long for it stays whole and in sight, and is
/// refused; Escape takes back what no longer fits.
class CampoTexto : public CampoJuzgado {
  public:
    CampoTexto(int largo, QWidget* padre);
    QString Motivo() const override { return MotivoDeLargo(text(), largo_); }

  protected:
    void Tomar() override {}
    void Volver() override { setText(cabia_); }

  private:
    int largo_;
    QString cabia_;  // the last that went into the column
};

/// The same for a text of several lines.
class CampoParrafo : public QPlainTextEdit, public EntradaJuzgada {
  public:
    CampoParrafo(int largo, QWidget* padre);
    QString Motivo() const override { return MotivoDeLargo(toPlainText(), largo_); }
    void Terminar() override {}
    void Reclamar() override;

  protected:
    void focusOutEvent(QFocusEvent* evento) override;

  private:
    int largo_;
};

}  // namespace trabex::programa::qt
