#include <algorithm>

#include <gtest/gtest.h>

#include "stairs/Avisos.h"
#include "stairs/CalcularEscaleraT.h"
#include "support/EscalerasTrabajadas.h"

namespace trabex::prueba {

using namespace escaleras;
namespace {

Avisos AvisosCon(const DatosEscaleraT& d, const DatosGenerales& g = {}) {
    ResultadosEscaleraT r;
    CalcularEscaleraT(d, g, r);
    return AvisosDe({d, g, r});
}

bool Contiene(const Avisos& avisos, Gravedad peso, const std::string& linea) {
    return std::any_of(avisos.begin(), avisos.end(),
                       [&](const Aviso& aviso) { return aviso.Peso == peso && EnUnaLinea(aviso) == linea; });
}

/// The worked stair: a minimum of 8.45 cm² in the flight, 4.68 in the landing, 7.68 kgf/cm² of shear.
TEST(AvisosDeEscalera, EscaleraTrabajada) {
    const Avisos avisos = AvisosCon(EscaleraTTrabajada(), GeneralesTrabajados);
    EXPECT_EQ(avisos.size(), 2U);
    EXPECT_TRUE(Contiene(avisos, Gravedad::Nota,
                         "Tramo, X = 0,28 m a 2,52 m: El acero teórico es menor que el mínimo de 8,45 cm²."));
    EXPECT_TRUE(Contiene(avisos, Gravedad::Falla, "Descanso, θ = 0° a 15°: El descanso falla por corte."));
}

TEST(AvisosDeEscalera, SeccionesQueNoDan) {
    DatosGenerales g = GeneralesTrabajados;
    DatosEscaleraT d = EscaleraTTrabajada();
    d.HT = 0.12;
    d.WT = 3000;
    d.Wd = 3200;
    Avisos avisos = AvisosCon(d, g);
    // c = 0.2·9/0.85² = 2.49 cm, less than the 3 of the cover.
    EXPECT_TRUE(Contiene(avisos, Gravedad::Falla,
                         "Tramo, X = 0,00 m; 2,80 m: El acero a compresión sale negativo: la sección es "
                         "demasiado delgada para su recubrimiento."));
    EXPECT_TRUE(Contiene(avisos, Gravedad::Advertencia,
                         "Tramo, X = 2,52 m a 2,80 m: Los estribos quedan a menos de 5 cm."));
    d.HT = 0.16;  // c = 3.6 cm; 1.33 times the limit at the joint
    d.Wd = 6400;
    avisos = AvisosCon(d, g);
    EXPECT_TRUE(
        Contiene(avisos, Gravedad::Nota, "Tramo, X = 0,00 m: La sección necesita acero a compresión."));
    d.B = 0.2;  // as narrow as that for the lateral moment
    d.HT = 0.5;
    d.WT = 20000;
    avisos = AvisosCon(d, g);
    EXPECT_TRUE(std::any_of(avisos.begin(), avisos.end(), [](const Aviso& aviso) {
        return aviso.Peso == Gravedad::Advertencia && aviso.Lugar.starts_with("Tramo, X = ") &&
               aviso.Texto ==
                   "La flexión lateral necesita acero a compresión, que no está en el acero lateral.";
    }));
}

TEST(AvisosDeEscalera, CalculoInterrumpidoOSinDatos) {
    EXPECT_TRUE(AvisosCon({}).empty());
    DatosGenerales g;
    g.FiMomento = 0;
    const Avisos avisos = AvisosCon(EscaleraTTrabajada(), g);
    ASSERT_EQ(avisos.size(), 1U);
    EXPECT_EQ(avisos[0].Peso, Gravedad::Falla);
    EXPECT_EQ(avisos[0].Texto,
              "El cálculo terminó con el error 11 (División por cero): los resultados están incompletos.");
    // A light stair with stirrups and steel enough: the minimum alone is told.
    for (const Aviso& aviso : AvisosCon({"", "", 2.4, 1.2, 3, 0.15, 0.15, 120, 100, 60}))
        EXPECT_EQ(aviso.Peso, Gravedad::Nota) << EnUnaLinea(aviso);
}

}  // namespace
}  // namespace trabex::prueba
