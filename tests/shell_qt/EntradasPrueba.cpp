#include <QWidget>

#include <gtest/gtest.h>

#include "shell/qt/EntradaJuzgada.h"

namespace trabex {

using namespace programa::qt;
namespace {

/// As an entry that says why it is refused while another's tip goes out.
struct QuitaOtra : QWidget, EntradaJuzgada {
    using QWidget::QWidget;
    void Terminar() override { delete Otra; }
    QString Motivo() const override { return {}; }
    void Reclamar() override {}
    QWidget* Otra = nullptr;
};

TEST(Entradas, UnaQueTerminaPuedeQuitarALasQueSiguen) {
    QWidget ventana;
    auto* entrada = new QuitaOtra(&ventana);
    entrada->Otra = new QWidget(&ventana);
    entrada->show();
    EXPECT_TRUE(EntradasEnOrden(&ventana));
}

}  // namespace
}  // namespace trabex
