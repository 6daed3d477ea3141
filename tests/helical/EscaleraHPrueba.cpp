#include <cmath>

#include <gtest/gtest.h>

#include "helical/CalcularEscaleraH.h"
#include "helical/EstacionesHelice.h"

namespace trabex {

using namespace helices;
namespace {

DatosEscaleraH Modelo() {
    return EscaleraHNuevaDe("H-1", "");
}

ResultadosEscaleraH Calculada(const DatosEscaleraH& escalera, const DatosGenerales& generales = {}) {
    ResultadosEscaleraH r;
    CalcularEscaleraH(escalera, generales, r);
    EXPECT_FALSE(r.Error);
    return r;
}

TEST(EscaleraH, UnErrorDejaLoQueHabia) {
    const auto codigoDe = [](const DatosEscaleraH& e, ResultadosEscaleraH& r, const DatosGenerales& g = {}) {
        CalcularEscaleraH(e, g, r);
        return r.Error ? r.Error->Codigo() : 0;
    };
    ResultadosEscaleraH r = Calculada(Modelo());
    DatosEscaleraH e = Modelo();
    e.R = 0;
    EXPECT_EQ(codigoDe(e, r), 11);
    EXPECT_EQ(r.NEst, 27U);  // nothing was dimensioned anew

    e = Modelo();
    e.Inter = 0;
    EXPECT_EQ(codigoDe(e, r), 11);
    e.Inter = 5;
    e.Angulo = -100;
    EXPECT_EQ(codigoDe(e, r), 9);
    EXPECT_EQ(r.NEst, 0U);
    e = Modelo();
    e.R = 2.5e6;
    EXPECT_EQ(codigoDe(e, r), 6);  // a reaction past 32 bits
    EXPECT_NE(r.TramoInferior[27].QX, 0);
    EXPECT_EQ(r.TramoInferior[27].ASMin, 0);
    e = Modelo();
    e.W = 2000000;  // the stirrups of the support come to a spacing of 0
    EXPECT_EQ(codigoDe(e, r), 11);
    EXPECT_GT(r.TramoInferior[27].AsY, 0);
    EXPECT_EQ(r.TramoInferior[1].AsT, 0);
    DatosGenerales g;
    g.FiMomento = 0;
    EXPECT_EQ(codigoDe(Modelo(), r, g), 11);
    EXPECT_NE(r.TramoSuperior[1].TU, 0);
    EXPECT_EQ(r.TramoSuperior[1].ASMin, 0);
    EXPECT_EQ(codigoDe(Modelo(), r), 0);
}

/// However the interval and the development come out of a damaged file, no array is read past its end.
TEST(EscaleraH, CuantasEstaciones) {
    struct Caso {
        double Angulo;
        std::int16_t Inter;
        std::size_t NEst, Registros;
        int Codigo;
    };
    for (const Caso& caso : {Caso{260, 5, 27, 29, 0},   Caso{245, 9, 14, 17, 0},
                             Caso{1, 1, 1, 3, 0},       Caso{3, 2, 2, 4, 0},
                             Caso{245, 1, 123, 125, 0}, Caso{247, 1, 125, 127, 0},
                             Caso{260, 7, 19, 22, 0},   Caso{260, 32767, 1, 3, 0},
                             Caso{260, -100, 0, 2, 0},  Caso{260, -32768, 0, 3, 0},
                             Caso{-10, 5, 0, 2, 0},     Caso{-15, 5, 0, 2, 0},
                             Caso{260, -5, 0, 0, 9},    Caso{-100, 5, 0, 0, 9},
                             Caso{260, 0, 0, 0, 11},    Caso{65530, 1, 32766, 32768, 0},
                             Caso{65534, 1, 0, 0, 6},   Caso{1e6, 5, 0, 0, 6},
                             Caso{1e306, 5, 0, 0, 6},   Caso{HUGE_VAL, 5, 0, 0, 5}}) {
        DatosEscaleraH e = Modelo();
        e.Angulo = caso.Angulo;
        e.Inter = caso.Inter;
        e.W = 0;
        ResultadosEscaleraH r;
        CalcularEscaleraH(e, {}, r);
        EXPECT_EQ(r.Error ? r.Error->Codigo() : 0, caso.Codigo) << caso.Angulo << " " << caso.Inter;
        EXPECT_EQ(r.NEst, caso.NEst) << caso.Angulo << " " << caso.Inter;
        ASSERT_EQ(r.TramoSuperior.size(), caso.Registros) << caso.Angulo << " " << caso.Inter;
        ASSERT_EQ(r.TramoInferior.size(), caso.Registros);
        if (r.TramoInferior.empty()) continue;
        EXPECT_EQ(r.TramoInferior.at(r.NEst + 1).MT, 0);  // the empty record
        EXPECT_EQ(r.TramoSuperior.at(1).SEP > 0, r.NEst > 0);
    }
    EXPECT_NEAR(EmpujeEstatico(Modelo(), Calculada(Modelo())), 7400.93, 5e-3);  // beside the prescribed 10639
}

}  // namespace
}  // namespace trabex
