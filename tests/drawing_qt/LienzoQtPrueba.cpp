#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "drawing/Primitivas.h"
#include "drawing/qt/ImagenDeHoja.h"
#include "drawing/qt/WidgetLienzo.h"

namespace trabex {

using namespace dibujo;
using namespace dibujo::qt;
namespace {

int PixelesDe(const QImage& imagen, QRgb color) {
    int cuenta = 0;
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x) cuenta += imagen.pixel(x, y) == color ? 1 : 0;
    }
    return cuenta;
}

TEST(LienzoQt, LasFigurasCaenEnSusPixeles) {
    const QImage imagen = DibujarImagen(200, 100, 1, [](Lienzo& lienzo) {
        lienzo.Limpiar();
        DibujeFlechaPixel(lienzo, 20, 20, HaciaAbajo, {0, 0, 255});
        DibujeLinea(lienzo, 50, 10, 50, 60, 1, EstiloLinea::Solida, {255, 0, 0});
        const std::array<PuntoLienzo, 4> caja{{{100, 10}, {110, 10}, {110, 20}, {100, 20}}};
        lienzo.Poligono(caja, std::nullopt, Color{0, 255, 0});
    });
    EXPECT_EQ(imagen.pixel(20, 20), qRgb(0, 0, 255));
    EXPECT_EQ(PixelesDe(imagen, qRgb(0, 0, 255)), 25);
    EXPECT_EQ(imagen.pixel(50, 35), qRgb(255, 0, 0));
    EXPECT_NEAR(PixelesDe(imagen, qRgb(255, 0, 0)), 51, 1);
    EXPECT_EQ(PixelesDe(imagen, qRgb(0, 255, 0)), 100);
}

/// Where ink stands: left, top, right, bottom.
QRect Tinta(const QImage& imagen) {
    QRect caja;
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x) {
            if (qGray(imagen.pixel(x, y)) < 128) caja |= QRect(x, y, 1, 1);
        }
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
    const QRect acostado = Tinta(escribir(0));
    EXPECT_GE(acostado.left(), 100);
    EXPECT_GE(acostado.top(), 100);
    const QRect parado = Tinta(escribir(90));
    EXPECT_GE(parado.left(), 100);
    EXPECT_LT(parado.bottom(), 100);
    EXPECT_NEAR(parado.height(), acostado.width(), 2);
}

TEST(LienzoQt, UnaImagenMasFinaTieneElMismoDibujo) {
    const auto dibujar = [](Lienzo& lienzo) {
        const std::array<PuntoLienzo, 4> caja{{{10, 10}, {60, 10}, {60, 40}, {10, 40}}};
        lienzo.Poligono(caja, std::nullopt, Color{0, 0, 0});
    };
    const QImage fina = DibujarImagen(100, 50, 3, dibujar);
    EXPECT_EQ(fina.size(), QSize(300, 150));
    EXPECT_EQ(Tinta(fina), QRect(30, 30, 150, 90));
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
