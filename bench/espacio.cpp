// What the engineer waits for in the slab workspace: from the last key of a save to the repainted sheet, and
// from one row of the list to the next.

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QTimer>
#include <chrono>

#include <benchmark/benchmark.h>

#include "slab/ui/qt/VentanaLosaDatos.h"
#include "slab/ui/qt/VentanaLosas.h"
#include "support/LosasGuiadas.h"

namespace {

using namespace trabex;
using namespace dibujo::losa;
using namespace losas;
using namespace losas::ui;
using namespace losas::ui::qt;
using Reloj = std::chrono::steady_clock;

QApplication& Programa() {
    static int argc = 1;
    static std::array<char*, 2> argv{const_cast<char*>("medir_espacio"), nullptr};
    static QApplication programa(argc, argv.data());
    return programa;
}

/// The real window on a project with two slabs of so many spans.
struct Ventana {
    explicit Ventana(std::int64_t tramos)
        : e({Larga(tramos, "L-1"), Larga(tramos, "L-2")}),
          ventana((Programa(), e.espacio.Lista().Cerrar(), e.aplicacion), e.servicios, e.memoria, {},
                  nullptr) {
        ventana.show();
        QApplication::processEvents();
    }
    static Losa Larga(std::int64_t tramos, const std::string& nombre) {
        return prueba::Nombrada(prueba::LosaUniforme(static_cast<std::size_t>(tramos), 5, 290, 90), nombre);
    }
    prueba::EspacioDePrueba e;
    VentanaLosas ventana;
};

void MedirSalvar(benchmark::State& estado) {
    Ventana v(estado.range(0));
    v.ventana.Operaciones().ElegirHoja(static_cast<VistaLosa>(estado.range(1)));
    for (auto _ : estado) {
        Reloj::time_point inicio;
        QTimer::singleShot(0, [&] {
            auto& datos = static_cast<VentanaLosaDatos&>(*QApplication::activeModalWidget());
            for (QAbstractButton* boton : datos.findChildren<QAbstractButton*>()) {
                if (boton->text() != "&Salvar") continue;
                inicio = Reloj::now();
                boton->click();
            }
            datos.reject();
        });
        v.ventana.Accion("ID_Editar")->trigger();
        estado.SetIterationTime(std::chrono::duration<double>(Reloj::now() - inicio).count());
    }
}
BENCHMARK(MedirSalvar)
    ->ArgNames({"tramos", "hoja"})
    ->ArgsProduct({{3, 60}, {VistaGeometria, VistaFuerzas, VistaDiseno}})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void MedirSeleccionar(benchmark::State& estado) {
    Ventana v(estado.range(0));
    int fila = 1;
    for (auto _ : estado) v.ventana.Operaciones().Lista().Seleccionar(fila = 3 - fila);
}
BENCHMARK(MedirSeleccionar)->ArgName("tramos")->Arg(60)->Unit(benchmark::kMillisecond);

}  // namespace
