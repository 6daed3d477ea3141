#include <gtest/gtest.h>

#include "slab/CalcularLosa.h"
#include "slab/ValoresLosa.h"
#include "support/LosasDePrueba.h"

namespace trabex::prueba {
namespace {

struct Caso {
    explicit Caso(Losa datos) : Datos(std::move(datos)) { CalcularLosa(Datos, Generales, Resultados); }
    LosaCalculada Calculada() const { return {Datos, Generales, Resultados}; }

    Losa Datos;
    DatosGenerales Generales;
    ResultadosLosa Resultados;
};

TEST(ValoresLosa, UnTramoMuyCortoOMuyLargoNoTieneEstaciones) {
    const auto estaciones = [](double longitud) {
        return EstacionesDeTramo(Caso(LosaContinua({longitud}, 200)).Calculada(), 1, 0).size();
    };
    EXPECT_EQ(estaciones(0.124), 0U);  // half a strip goes to the even neighbour
    EXPECT_EQ(estaciones(0.125), 0U);
    EXPECT_EQ(estaciones(0.13), 2U);
    EXPECT_EQ(estaciones(1e9), 0U);
}

TEST(ValoresLosa, ResultadosDeOtraLosaCuentanComoCeros) {
    const Caso caso(LosaContinua({5, 4}, 300, 150));
    const Losa otra = LosaContinua({3, 3, 3}, 300);
    for (const ResultadosLosa& ajenos : {ResultadosLosa{}, caso.Resultados}) {
        const LosaCalculada calculada{otra, caso.Generales, ajenos};
        EXPECT_EQ(ReaccionesEnEje(calculada, 2).Total.V, 0);
        EXPECT_EQ(ReaccionMayorada(calculada, 2), 0);
        EXPECT_EQ(ExtremosDe(calculada, 1).VA, 0);
        EXPECT_EQ(MomentoSuperior(calculada, 2), 0);
        EXPECT_EQ(DisenoEnEje(calculada, 2).AS1, 0);
        EXPECT_EQ(DisenoEnTramo(calculada, 1).AS2, 0);
        EXPECT_TRUE(EstacionesDeTramo(calculada, 1, 0).empty());
    }
}

}  // namespace
}  // namespace trabex::prueba
