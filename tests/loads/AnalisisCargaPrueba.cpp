#include <gtest/gtest.h>

#include "loads/AnalisisCarga.h"
#include "loads/Creacion.h"

namespace trabex {

using namespace cargas;
namespace {

TEST(AnalisisDeCarga, TotalesHechosAMano) {
    struct Caso {
        std::vector<PesoUnitario> Permanentes;
        PesoUnitario Variable;
        double CP, Carga, REL;
    };
    const std::vector<Caso> casos{
        {{}, {"Oficinas", 250}, 0, 250, 0},
        {{{"Losa", 150}, {"Friso", 100}}, {"Viviendas", 175}, 250, 425, 0.7},
        {{{"Losa", 400}}, {"", 100}, 400, 500, 0.25},               // without a name it counts all the same
        {{{"Losa", 100}, {"Hueco", -100}}, {"Uso", 80}, 0, 80, 0},  // nothing is divided by a sum of 0
        {{{"Empuje", -50}}, {"Uso", 80}, -50, 30, 0},               // nor by one below it
        {{{"A", 2000000000}, {"B", 2000000000}}, {"Uso", 2000000000}, 4e9, 6e9, 0.5},
    };
    for (const Caso& caso : casos) {
        AnalisisCarga analisis;
        analisis.Permanentes = caso.Permanentes;
        analisis.Variable = caso.Variable;
        EXPECT_EQ(Recalcule(analisis).Permanente, caso.CP);
        EXPECT_EQ(Recalcule(analisis).Total, caso.Carga);
        Totalice(analisis);
        EXPECT_EQ(analisis.CP, caso.CP);
        EXPECT_EQ(analisis.CV, caso.Variable.Peso);
        EXPECT_EQ(analisis.Carga, caso.Carga);
        EXPECT_DOUBLE_EQ(analisis.REL, caso.REL);
    }
}

TEST(AnalisisDeCarga, ElNumeroRedondeaLasMitadesAlPar) {
    EXPECT_EQ(NumeroDeAnalisis(0), 1);
    EXPECT_EQ(NumeroDeAnalisis(0.5 / 9000), 2);
    EXPECT_EQ(NumeroDeAnalisis(0.25), 2251);
    EXPECT_EQ(NumeroDeAnalisis(0.99999999), 9001);
    const FuenteAzar azar = AzarDelSistema();
    for (int vez = 0; vez < 1000; ++vez) {
        const double valor = azar();
        EXPECT_TRUE(valor >= 0 && valor < 1);
    }
}

}  // namespace
}  // namespace trabex
