#include <QTest>
#include <QWheelEvent>
#include <functional>

#include <gtest/gtest.h>

#include "drawing/Primitivas.h"
#include "drawing/qt/ImagenDeHoja.h"
#include "drawing/qt/WidgetLienzo.h"

namespace trabex {

using namespace dibujo;
using namespace dibujo::qt;
namespace {

/// Where ink of a kind stands.
QRect Tinta(const QImage& imagen, const std::function<bool(QRgb)>& es) {
    QRect caja;
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x)
            if (es(imagen.pixel(x, y))) caja |= QRect(x, y, 1, 1);
    }
    return caja;
}

TEST(LienzoQt, ElTextoGiradoSubeDesdeSuEsquina) {
    const auto escribir = [](double angulo) {
        return DibujarImagen(200, 200, 1, [&](Lienzo& lienzo) {
            lienzo.PonerFuente({"Tahoma", 20, false});
            DibujeTexto(lienzo, "HHHH", 100, 100, angulo);
        });
    };
    const auto oscuro = [](QRgb pixel) { return qGray(pixel) < 128; };
    const QRect acostado = Tinta(escribir(0), oscuro);
    EXPECT_GE(acostado.left(), 100);
    EXPECT_GE(acostado.top(), 100);
    const QRect parado = Tinta(escribir(90), oscuro);
    EXPECT_GE(parado.left(), 100);
    EXPECT_LT(parado.bottom(), 100);
    EXPECT_NEAR(parado.height(), acostado.width(), 2);
}

TEST(LienzoQt, LasFigurasCaenEnSusPixelesEnCualquierFinura) {
    for (const int finura : {1, 3}) {
        const QImage imagen = DibujarImagen(200, 100, finura, [](Lienzo& lienzo) {
            const std::array<PuntoLienzo, 4> caja{{{10, 10}, {60, 10}, {60, 40}, {10, 40}}};
            lienzo.Poligono(caja, std::nullopt, Color{0, 255, 0});
            DibujeLinea(lienzo, 90, 10, 90, 60, 1, EstiloLinea::Solida, {255, 0, 0});
            DibujeFlechaPixel(lienzo, 150, 20, HaciaAbajo, {0, 0, 255});
        });
        EXPECT_EQ(imagen.size(), QSize(200, 100) * finura);
        const auto de = [&](QRgb color) {
            return Tinta(imagen, [color](QRgb pixel) { return pixel == color; });
        };
        EXPECT_EQ(de(qRgb(0, 255, 0)), QRect(10 * finura, 10 * finura, 50 * finura, 30 * finura));
        EXPECT_NEAR(de(qRgb(255, 0, 0)).center().x(), 90 * finura, 1);
        EXPECT_NEAR(de(qRgb(255, 0, 0)).height(), 51 * finura, finura);
        EXPECT_EQ(de(qRgb(0, 0, 255)), QRect(146 * finura, 16 * finura, 9 * finura, 5 * finura));
    }
}

TEST(WidgetLienzo, RuedaTeclasYArrastreLleganAlVisor) {
    EstadoVista estado;
    int dibujos = 0;
    WidgetLienzo lienzo(estado, [&](Lienzo& l) {
        l.Limpiar();
        ++dibujos;
    });
    lienzo.resize(300, 200);
    lienzo.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&lienzo));
    EXPECT_EQ(lienzo.Imagen().size(), QSize(300, 200));
    dibujos = 0;
    // A fine wheel gives a step in parts; what it has turned one way does not count for the other.
    const std::array<std::pair<int, double>, 7> giros{
        {{-120, 0.9}, {-40, 0.9}, {-40, 0.9}, {-40, 0.8}, {-100, 0.8}, {60, 0.8}, {60, 0.9}}};
    for (const auto& [giro, zoom] : giros) {
        QWheelEvent rueda(QPointF(10, 10), lienzo.mapToGlobal(QPointF(10, 10)), QPoint(), QPoint(0, giro),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&lienzo, &rueda);
        EXPECT_DOUBLE_EQ(estado.Zoom, zoom) << giro;
    }
    EXPECT_EQ(dibujos, 3);

    QTest::mousePress(&lienzo, Qt::MiddleButton, {}, {50, 50});
    QMouseEvent mover(QEvent::MouseMove, QPointF(70, 45), lienzo.mapToGlobal(QPointF(70, 45)), Qt::NoButton,
                      Qt::MiddleButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&lienzo, &mover);
    EXPECT_EQ(estado.PanX, 20);
    EXPECT_EQ(estado.PanY, -5);
    QTest::keyClick(&lienzo, Qt::Key_Escape);
    EXPECT_EQ(estado.Zoom, 1);
    EXPECT_EQ(estado.PanX, 0);
}

}  // namespace
}  // namespace trabex
