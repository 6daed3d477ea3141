// A value in another quantity's row is read as a wrong number. Every text of every sheet, on every surface,
// of slabs of any number of spans: in its band, clear of every other text, on the surface, and the same
// wherever the drawing is panned to.

#include <random>

#include "EnHoja.h"
#include "drawing/losa/GruposDeTramos.h"
#include "drawing/losa/LugaresDeHoja.h"
#include "drawing/losa/PerfilDeHoja.h"

namespace trabex {
namespace {

using prueba::Caja;

struct SuperficieDePrueba {
    const char* Nombre;
    std::int32_t Ancho, Alto, PorPulgada;
    bool PorGrupos;
};
constexpr SuperficieDePrueba Superficies[] = {{"ventana de fábrica", 850, 540, 96, false},
                                              {"1280x720", 1280, 720, 96, false},
                                              {"800x600", 800, 600, 96, false},
                                              {"lienzo de 800x600", 550, 440, 96, false},
                                              {"por grupos", 850, 540, 96, true},
                                              {"reporte", 940, 580, 96, true},
                                              {"A4", 6449, 4393, 600, true},
                                              {"carta de pie", 4533, 6033, 600, true}};

/// Spans of 2 to 8 m, some with a point load, a cantilever at the end of some; from its middle axis on it
/// steps by `paso`.
Losa LosaEscalonada(std::size_t tramos, double paso) {
    std::mt19937 azar(static_cast<unsigned>(tramos));
    Losa losa;
    losa.Nombre = "L";
    for (std::size_t i = 0; i < tramos; ++i) {
        const double LT = std::uniform_real_distribution<>(2, 8)(azar);
        losa.Tramos.push_back({LT, 310, 120, i % 4 == 1 ? 900 : 0, LT * 0.45});
    }
    for (std::size_t j = 1; j <= tramos + 1; ++j) {
        losa.Ejes.push_back({std::to_string(j), j == 1 ? ApoyoFijo : RodilloEnX, 0, 0, 0});
        if (paso != 0 && j > tramos / 2 + 1) losa.JuntasD.push_back({static_cast<std::int16_t>(j), 0, paso});
    }
    if (tramos > 2 && tramos % 3 == 0) losa.Ejes.back().Tipo = SinApoyo;
    return losa;
}

/// A point of a label as its text is turned, in units of the label's own box.
PuntoLienzo Esquina(const RotuloDeHoja& r, double x, double y) {
    const double giro = r.Grados * 3.14159265358979 / 180;
    const double dx = (x - 0.5) * r.Caja.Ancho;
    const double dy = (y - 0.5) * r.Caja.Alto;
    return {static_cast<std::int32_t>(
                std::lround(r.Caja.x + r.Caja.Ancho / 2 + dx * std::cos(giro) + dy * std::sin(giro))),
            static_cast<std::int32_t>(
                std::lround(r.Caja.y + r.Caja.Alto / 2 - dx * std::sin(giro) + dy * std::cos(giro)))};
}

/// Of a whole slab of many spans the foot may lie below the canvas: `cabe` tells that it may not.
void Revisar(const HojaLosa& hoja, const LienzoGrabador& lienzo, bool cabe) {
    const int roce = 2 * lienzo.LadoDePixel();
    const PerfilDeHoja perfil(hoja.Ejes, hoja.Tramos, hoja.Vista.Escala);
    ASSERT_EQ(lienzo.Textos.size(), hoja.Rotulos.size());
    std::vector<Caja> cajas;
    for (std::size_t k = 0; k < hoja.Rotulos.size(); ++k) {
        const RotuloDeHoja& r = hoja.Rotulos[k];
        const auto& escrito = lienzo.Textos[k];
        ASSERT_EQ(escrito.Texto, r.Texto);
        ASSERT_NEAR(escrito.Lugar.x, Esquina(r, 0, 0).x, roce) << r.Texto;
        ASSERT_NEAR(escrito.Lugar.y, Esquina(r, 0, 0).y, roce) << r.Texto;
        ASSERT_EQ(escrito.Medida.Ancho, r.Caja.Ancho) << r.Texto;
        ASSERT_EQ(escrito.Medida.Alto, r.Caja.Alto) << r.Texto;
        const auto banda = std::find_if(hoja.Bandas.begin(), hoja.Bandas.end(),
                                        [&](const BandaDeHoja& b) { return b.De == r.De; });
        ASSERT_NE(banda, hoja.Bandas.end());
        for (const auto& [x, y] : {std::pair{0., 0.}, {0., 1.}, {1., 0.}, {1., 1.}, {0.5, 0.}, {0.5, 1.}}) {
            const PuntoLienzo p = Esquina(r, x, y);
            const double fila =
                p.y - hoja.Vista.OrigenY - (banda->SigueALaLosa ? perfil.Nivel(p.x - hoja.Vista.OrigenX) : 0);
            ASSERT_GE(fila, banda->Desde - roce) << r.Texto;
            ASSERT_LE(fila, banda->Hasta + roce) << r.Texto;
        }
        // Whoever points at a value of an axis or a span is told that axis or span, and the value's row.
        const double x = r.Caja.x + r.Caja.Ancho / 2;
        const auto de = [&](std::initializer_list<BandaDe> bandas) {
            return r.Lugar != 0 && std::find(bandas.begin(), bandas.end(), r.De) != bandas.end();
        };
        if (de({BandaDe::Nombres, BandaDe::CP, BandaDe::CV, BandaDe::Total, BandaDe::MuSup,
                BandaDe::AsSup})) {
            ASSERT_NEAR(x, XDeEje(hoja, r.Lugar), roce) << r.Texto;
        }
        if (de({BandaDe::Longitudes, BandaDe::Cotas, BandaDe::MuInf, BandaDe::AsInf})) {
            const auto tramo = TramoEn(hoja, x);
            ASSERT_TRUE(tramo && tramo->Tramo == r.Lugar) << r.Texto;
            ASSERT_NEAR(tramo->d, (hoja.Ejes.EjesX[r.Lugar + 1] - hoja.Ejes.EjesX[r.Lugar]) / 2,
                        roce / hoja.Vista.Escala);
        }
        if (r.Grados == 0) {
            ASSERT_EQ(BandaEn(hoja, x, r.Caja.y + r.Caja.Alto / 2), r.De) << r.Texto;
        }
        const Caja caja = escrito.SuCaja();
        ASSERT_TRUE(caja.x1 >= 0 && caja.x2 <= lienzo.ScaleWidth()) << r.Texto;
        ASSERT_TRUE(!cabe || (caja.y1 >= 0 && caja.y2 <= lienzo.ScaleHeight())) << r.Texto;
        cajas.push_back(caja);
    }
    std::sort(cajas.begin(), cajas.end(), [](const Caja& a, const Caja& b) { return a.x1 < b.x1; });
    for (auto a = cajas.begin(); a != cajas.end(); ++a) {
        for (auto b = a + 1; b != cajas.end() && b->x1 < a->x2; ++b)
            ASSERT_FALSE(a->Pisa(*b, roce)) << a->x1 << ", " << a->y1 << " / " << b->x1 << ", " << b->y1;
    }
    // Bands that do not follow the slab lie below those that do.
    for (std::size_t k = 1; k < hoja.Bandas.size(); ++k) {
        const BandaDeHoja& antes = hoja.Bandas[k - 1];
        const bool sale = antes.SigueALaLosa && !hoja.Bandas[k].SigueALaLosa;
        ASSERT_GE(hoja.Bandas[k].Desde + roce, antes.Hasta + (sale ? perfil.Todos().MasBajo : 0));
    }
}

class BandasPrueba : public testing::TestWithParam<SuperficieDePrueba> {};

TEST_P(BandasPrueba, NingunTextoSaleDeSuBandaNiPisaAOtro) {
    const SuperficieDePrueba& s = GetParam();
    for (const std::size_t tramos : {1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 9U, 12U, 17U, 25U, 40U}) {
        for (const double paso : {0.0, 1.5, -1.5}) {
            EnHoja losa(LosaEscalonada(tramos, paso), {s.Ancho, s.Alto, s.PorPulgada});
            HojaLosa& hoja = losa.Hoja;
            hoja.PorGrupos = s.PorGrupos;
            const std::size_t grupos = s.PorGrupos ? GruposDeTramos(losa.Datos).size() : 1;
            for (std::size_t k = 0; k < 4 * grupos; ++k) {
                hoja.SoloReacciones = k % 4 == 3;
                hoja.Grupo = k / 4 + 1;
                hoja.Vista.PanX = 0;
                SCOPED_TRACE(std::to_string(tramos) + " spans, step " + std::to_string(paso) + ", sheet " +
                             std::to_string(k % 4) + ", group " + std::to_string(hoja.Grupo));
                const auto dibujar = [&] {
                    losa.Dibujar(static_cast<std::uint8_t>(std::min<std::size_t>(k % 4, VistaDiseno)),
                                 s.PorPulgada > 96 ? HojaEnPapel : HojaEnPantalla);
                };
                dibujar();
                Revisar(hoja, losa.Lienzo, s.PorGrupos && s.Alto >= 580);
                if (HasFatalFailure()) return;
                const HojaLosa quieta = hoja;
                hoja.Vista.PanX = 1;
                dibujar();
                for (std::size_t r = 0; r < hoja.Rotulos.size(); ++r) {
                    ASSERT_NEAR(hoja.Rotulos[r].Caja.x - hoja.Vista.OrigenX,
                                quieta.Rotulos[r].Caja.x - quieta.Vista.OrigenX, 1e-9);
                    ASSERT_NEAR(hoja.Rotulos[r].Caja.y, quieta.Rotulos[r].Caja.y, 1e-9);
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Superficies, BandasPrueba, testing::ValuesIn(Superficies));

}  // namespace
}  // namespace trabex
