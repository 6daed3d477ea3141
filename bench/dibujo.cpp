// A full redraw of each sheet, as a pan step does it, beside the time in which the raster fills its own
// pixels.

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include "drawing/helice/GraficoHelice.h"
#include "drawing/losa/GraficoLosa.h"
#include "drawing/qt/ImagenDeHoja.h"
#include "drawing/qt/LienzoQt.h"
#include "helical/CalcularEscaleraH.h"
#include "slab/CalcularLosa.h"
#include "support/LosasDePrueba.h"

namespace {

using namespace trabex;
using namespace losas;
using namespace dibujo;
using namespace dibujo::losa;
using namespace dibujo::qt;

QImage Pantalla(int ancho = 1600, int alto = 1000) {
    QImage imagen(ancho, alto, QImage::Format_RGB32);
    imagen.setDotsPerMeterX(PuntosPorMetro);
    imagen.setDotsPerMeterY(PuntosPorMetro);
    return imagen;
}

void Redibujar(benchmark::State& estado) {
    const Losa losa = prueba::LosaUniforme(static_cast<std::size_t>(estado.range(1)), 5, 300, 90);
    const DatosGenerales generales;
    ResultadosLosa resultados;
    CalcularLosa(losa, generales, resultados);
    HojaLosa hoja;
    hoja.VistaActual = static_cast<std::uint8_t>(estado.range(0));
    QImage imagen = Pantalla();
    MemoriaDeTextos memoria;
    for (auto _ : estado) {
        hoja.Vista.PanX += 1;
        QPainter pintor(&imagen);
        LienzoQt lienzo(pintor, 1600, 1000, &memoria);
        RedibujeVista(lienzo, hoja, {losa, generales, resultados});
    }
}
BENCHMARK(Redibujar)
    ->ArgNames({"hoja", "tramos"})
    ->ArgsProduct({{VistaGeometria, VistaFuerzas, VistaDiseno}, {5, 20, 60, 400, 4000}})
    ->Unit(benchmark::kMillisecond);

/// A tick of the timer that turns a helix, on a canvas of so many pixels of height.
void GirarHelice(benchmark::State& estado) {
    const int alto = static_cast<int>(estado.range(1));
    helices::DatosEscaleraH escalera = helices::EscaleraHNuevaDe("H", "ESCALERA HELICOIDAL");
    escalera.Angulo = static_cast<double>(estado.range(0));
    helices::ResultadosEscaleraH resultados;
    CalcularEscaleraH(escalera, {}, resultados);
    helice::HojaHelice hoja;
    hoja.ElGiro = {0, 30, helice::ModoGiro::Vertical};
    QImage imagen = Pantalla(2 * alto, alto);
    MemoriaDeTextos memoria;
    for (auto _ : estado) {
        helice::Avanzar(hoja.ElGiro);
        QPainter pintor(&imagen);
        LienzoQt lienzo(pintor, 2 * alto, alto, &memoria);
        helice::RedibujeVista(lienzo, hoja, {escalera, resultados});
    }
}
BENCHMARK(GirarHelice)
    ->ArgNames({"angulo", "alto"})
    ->ArgsProduct({{260, 360}, {600, 1200}})
    ->Unit(benchmark::kMillisecond);

/// The reference: the same raster filled once.
void Llenar(benchmark::State& estado) {
    QImage imagen = Pantalla();
    for (auto _ : estado) {
        QPainter pintor(&imagen);
        pintor.fillRect(imagen.rect(), Qt::white);
    }
}
BENCHMARK(Llenar)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    std::string plataforma = "-platform";
    std::string ninguna = "offscreen";
    std::array<char*, 4> argumentos{argv[0], plataforma.data(), ninguna.data(), nullptr};
    int cuantos = 3;
    const QGuiApplication grafica(cuantos, argumentos.data());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
