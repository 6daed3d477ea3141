#include <algorithm>

#include <gtest/gtest.h>

#include "helical/Avisos.h"
#include "helical/CalcularEscaleraH.h"

namespace trabex {

using namespace helices;
namespace {

Avisos AvisosCon(const DatosEscaleraH& d, const DatosGenerales& g = {}) {
    ResultadosEscaleraH r;
    CalcularEscaleraH(d, g, r);
    return AvisosDe(d, g, r);
}

std::size_t Cuantos(const Avisos& avisos, Gravedad peso, const std::string& linea) {
    return static_cast<std::size_t>(std::count_if(avisos.begin(), avisos.end(), [&](const Aviso& aviso) {
        return aviso.Peso == peso && EnUnaLinea(aviso).starts_with(linea);
    }));
}

TEST(AvisosDeHelice, ElIntervaloQueNoLlega) {
    DatosEscaleraH d = EscaleraHNuevaDe("", "");
    EXPECT_EQ(Cuantos(AvisosCon(d), Gravedad::Advertencia, ""), 0U);
    EXPECT_EQ(Cuantos(AvisosCon(d), Gravedad::Nota, "El apoyo está"), 0U);
    d.Inter = 7;
    d.Angulo = 245;
    Avisos avisos = AvisosCon(d);
    const std::string centro = "Tramo superior: El intervalo no da una estación en el centro.";
    EXPECT_EQ(Cuantos(avisos, Gravedad::Advertencia, centro), 1U);
    EXPECT_EQ(Cuantos(avisos, Gravedad::Advertencia,
                      "Tramo inferior: El intervalo no da una estación en el apoyo."),
              1U);
    EXPECT_EQ(Cuantos(avisos, Gravedad::Nota,
                      "El apoyo está a 122,50° del centro y las estaciones llegan, como mucho, a 122°."),
              1U);
    d.Inter = -100;
    avisos = AvisosCon(d);
    ASSERT_EQ(avisos.size(), 1U);
    EXPECT_EQ(EnUnaLinea(avisos[0]), "El intervalo no da ninguna estación.");
    EXPECT_EQ(avisos[0].Peso, Gravedad::Falla);
}

/// The default helix needs compression steel near its supports, and stirrups that stand.
TEST(AvisosDeHelice, Secciones) {
    DatosEscaleraH d = EscaleraHNuevaDe("", "");
    d.W = 3000;
    Avisos avisos = AvisosCon(d);
    EXPECT_EQ(Cuantos(avisos, Gravedad::Nota, "Tramo superior, θ = -130° a "), 1U);
    EXPECT_EQ(Cuantos(avisos, Gravedad::Nota, "Tramo inferior, θ = "), 2U);
    d.W = 10000;
    avisos = AvisosCon(d);
    EXPECT_EQ(Cuantos(avisos, Gravedad::Advertencia, "Tramo inferior, θ = "), 1U);
    d.T = 0.06;  // 3.5 cm to the steel: a neutral axis above the cover
    d.W = 300;
    avisos = AvisosCon(d);
    EXPECT_EQ(Cuantos(avisos, Gravedad::Falla, "Tramo superior, θ = -130° a -125°: El acero a compresión"),
              1U);
    d.R = 0;
    avisos = AvisosCon(d);
    ASSERT_EQ(avisos.size(), 1U);
    EXPECT_TRUE(avisos[0].Texto.starts_with("El cálculo terminó con el error 11"));
    EXPECT_TRUE(AvisosDe(d, {}, {}).empty());
}

}  // namespace
}  // namespace trabex
