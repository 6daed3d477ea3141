#include <functional>

#include <gtest/gtest.h>

#include "slab/CalcularLosa.h"
#include "support/DisenoDeReferencia.h"
#include "support/LosasDePrueba.h"

namespace trabex::prueba {
namespace {

/// One rounded digit, with what the factors of a moment make of it.
constexpr double Decima8 = 1.01e-8;
constexpr double Diseno = 1e-7;

void Cerca(double tolerancia, const std::string& que, std::initializer_list<std::pair<double, Real>> pares) {
    for (const auto& [valor, referencia] : pares)
        EXPECT_NEAR(valor, static_cast<double>(referencia), tolerancia) << que;
}

/// The forces of every span and the state of every joint, to the last of their 8 decimals.
void CompararCaso(const Losa& losa, const ResultadosLosa& r, std::size_t caso, const PorticoDenso& p,
                  double tolerancia) {
    for (std::size_t i = 1; i < losa.Tramos.size(); ++i) {
        const EsfuerzosTramo& t = r.ResultadoTramo[caso][i];
        const auto& e = p.ExtremosDeBarras()[i];
        const std::string que = "caso " + std::to_string(caso) + " tramo " + std::to_string(i);
        Cerca(tolerancia, que,
              {{t.MomentoA, e.MA},
               {t.CorteA, e.VA},
               {t.AxialA, e.NA},
               {t.MomentoB, e.MB},
               {t.CorteB, e.VB},
               {t.AxialB, e.NB}});
    }
    for (std::size_t j = 1; j <= losa.Tramos.size(); ++j) {
        const EstadoJunta& junta = r.ResultadoJunta[caso][j];
        const auto d = p.DesplazamientoDe(j);
        const auto [RV, RH] = p.FuerzasEn(j);
        const std::string que = "caso " + std::to_string(caso) + " junta " + std::to_string(j);
        Cerca(0.01 * tolerancia, que, {{junta.DX, d.DX}, {junta.DY, d.DY}, {junta.Giro, d.Giro}});
        const int tipo = losa.Ejes[j].Tipo;
        const bool X = tipo == 1 || tipo == 3 || tipo == 4;
        const bool Y = tipo == 1 || tipo == 2 || tipo == 4;
        EXPECT_EQ(junta.RestringidaX, X) << que;
        EXPECT_EQ(junta.RestringidaY, Y) << que;
        EXPECT_EQ(junta.RestringidoGiro, tipo == 4) << que;
        Cerca(2 * tolerancia, que, {{junta.RV, Y ? RV : 0}, {junta.RH, X ? RH : 0}});
    }
}

/// Every field of the design. Spans that the rules judge by the last digit are left out.
void CompararDiseno(const Losa& losa, const ResultadosLosa& r, const DisenoDeReferencia& d,
                    double tolerancia) {
    for (std::size_t j = 1; j <= losa.Tramos.size(); ++j) {
        const DisenoDeEje& eje = r.DisenoEje[j];
        const std::string que = "junta " + std::to_string(j);
        const auto& suyo = d.Ejes[j];
        Cerca(tolerancia, que,
              {{eje.AS1, suyo.AS1}, {eje.AS2, suyo.AS2}, {eje.MczI, suyo.MczI}, {eje.MczD, suyo.MczD}});
        if (j < losa.Tramos.size() && !d.Dudoso[j]) Cerca(tolerancia, que, {{eje.PtoD, suyo.PtoD}});
        if (!d.Dudoso[j - 1]) Cerca(tolerancia, que, {{eje.PtoI, suyo.PtoI}});
    }
    for (std::size_t i = 1; i < losa.Tramos.size(); ++i) {
        const DisenoDeTramo& tramo = r.DisenoTramo[i];
        const std::string que = "tramo " + std::to_string(i);
        Cerca(tolerancia, que,
              {{tramo.MT, d.Tramos[i].MT}, {tramo.AS1, d.Tramos[i].AS1}, {tramo.AS2, d.Tramos[i].AS2}});
        if (!d.Dudoso[i]) Cerca(tolerancia, que, {{tramo.x, d.Tramos[i].x}});
    }
    Cerca(tolerancia, "máximos",
          {{r.MaxMomentoApoyo, d.MaxMomentoApoyo},
           {r.MaxCorte, d.MaxCorte},
           {r.MaxMomentoTramo, d.MaxMomentoTramo}});
}

/// A slab that hardly holds moves by centimetres, and its forces lose as many digits as it moves more.
double Holgura(const Losa& losa, const PorticoDenso& p) {
    Real mayor = 0;
    for (std::size_t j = 1; j <= losa.Tramos.size(); ++j) {
        const auto d = p.DesplazamientoDe(j);
        mayor = std::max({mayor, std::fabs(d.DX), std::fabs(d.DY)});
    }
    return std::max(1.0, static_cast<double>(mayor) / 0.05);
}

void CompararTodo(const Losa& losa) {
    DatosGenerales g;
    g.FC = losa.OpcionMaciza ? 210 : 350;
    ResultadosLosa r;
    CalcularLosa(losa, g, r);
    ASSERT_FALSE(r.Error);
    const PorticoDenso permanente(losa, g.FC, false);
    const PorticoDenso variable(losa, g.FC, true);
    const double holgura = std::max(Holgura(losa, permanente), Holgura(losa, variable));
    CompararCaso(losa, r, CasoPermanente, permanente, Decima8 * holgura);
    CompararCaso(losa, r, CasoVariable, variable, Decima8 * holgura);
    CompararDiseno(losa, r, DisenoDeReferencia(losa, g, permanente, variable), Diseno * holgura);
}

/// Whether the supports leave the rigid slab no motion: their rows on (X, Y, turn) have rank 3.
bool SeSostiene(const Losa& losa) {
    std::vector<std::array<double, 3>> base;
    double x = 0;
    for (std::size_t j = 1; j < losa.Ejes.size(); ++j) {
        double X = x;
        double Y = 0;
        for (const JuntaD& d : losa.JuntasD) {
            if (static_cast<std::size_t>(d.Junta) == j) X += d.x, Y += d.y;
        }
        if (j < losa.Tramos.size()) x += losa.Tramos[j].LT;
        const int tipo = losa.Ejes[j].Tipo;
        std::vector<std::array<double, 3>> filas;
        if (tipo == 1 || tipo == 3 || tipo == 4) filas.push_back({1, 0, Y});
        if (tipo == 1 || tipo == 2 || tipo == 4) filas.push_back({0, 1, X});
        if (tipo == 4) filas.push_back({0, 0, 1});
        for (auto fila : filas) {
            for (const auto& b : base) {
                const double proyeccion = fila[0] * b[0] + fila[1] * b[1] + fila[2] * b[2];
                for (std::size_t k = 0; k < 3; ++k) fila[k] -= proyeccion * b[k];
            }
            const double norma = std::hypot(fila[0], fila[1], fila[2]);
            if (norma > 1e-6) base.push_back({fila[0] / norma, fila[1] / norma, fila[2] / norma});
        }
    }
    return base.size() == 3;
}

/// Calls `accion` with each row of `juntas` support types.
void CadaFilaDeTipos(std::size_t juntas,
                     const std::function<void(const std::vector<std::int16_t>&)>& accion) {
    std::vector<std::int16_t> tipos(juntas, 1);
    for (;;) {
        accion(tipos);
        std::size_t k = 0;
        while (k < juntas && tipos[k] == 5) tipos[k++] = 1;
        if (k == juntas) return;
        ++tipos[k];
    }
}

TEST(Referencia, CadaTipoDeApoyoEnCadaLugar) {
    std::mt19937 azar(17);
    int sostenidas = 0;
    for (const std::size_t juntas : {std::size_t{2}, std::size_t{3}, std::size_t{4}}) {
        CadaFilaDeTipos(juntas, [&](const std::vector<std::int16_t>& tipos) {
            for (const bool desplazada : {false, true}) {
                const Losa losa = LosaDeTipos(azar, tipos, desplazada);
                SCOPED_TRACE(testing::PrintToString(tipos) + (desplazada ? " desplazada" : ""));
                if (!SeSostiene(losa)) continue;
                ++sostenidas;
                CompararTodo(losa);
            }
        });
    }
    EXPECT_GT(sostenidas, 1000);
}

TEST(Referencia, LosasDeIngenieros) {
    std::mt19937 azar(11);
    for (int vez = 0; vez < 400; ++vez) {
        SCOPED_TRACE(vez);
        CompararTodo(LosaAlAzar(azar, vez % 2 == 0));
    }
}

TEST(Referencia, MuchosTramos) {
    std::mt19937 azar(19);
    std::vector<std::int16_t> tipos(151, RodilloEnX);
    tipos[0] = tipos[150] = SinApoyo;
    tipos[70] = ApoyoFijo;
    CompararTodo(LosaDeTipos(azar, tipos, false));
    // On its two ends alone, the chain is a beam of 40 m.
    CompararTodo(LosaUniforme(8, 5, 30, 10));
}

/// Equal spans without end: at the k-th inner support M = −w·L²/12·(1 − (√3 − 2)^k).
TEST(Referencia, ElMayorNumeroDeTramos) {
    ResultadosLosa r;
    CalcularLosa(LosaUniforme(10919, 5, 300, 200), {}, r);
    for (std::size_t k = 0; k < 12; ++k) {
        const double M = -300 * 25 / 12.0 * (1 - std::pow(std::sqrt(3) - 2, static_cast<double>(k)));
        EXPECT_NEAR(r.ResultadoTramo[1][k + 1].MomentoA, M, 0.02) << k;
        EXPECT_NEAR(r.ResultadoTramo[1][10919 - k].MomentoB, M, 0.02) << k;
    }
}

TEST(Referencia, SoloLoQueNadaSujetaSeNombra) {
    std::mt19937 azar(41);
    std::array<int, 2> cuantas{};
    for (const std::size_t juntas : {std::size_t{2}, std::size_t{3}, std::size_t{5}}) {
        CadaFilaDeTipos(juntas, [&](const std::vector<std::int16_t>& tipos) {
            for (const bool desplazada : {false, true}) {
                const Losa losa = LosaDeTipos(azar, tipos, desplazada);
                ResultadosLosa r;
                CalcularLosa(losa, {}, r);
                EXPECT_EQ(r.DireccionesLibres.empty(), SeSostiene(losa))
                    << testing::PrintToString(tipos) << desplazada;
                ++cuantas[r.DireccionesLibres.empty() ? 0 : 1];
            }
        });
    }
    EXPECT_GT(cuantas[0], 1000);
    EXPECT_GT(cuantas[1], 400);
}

TEST(Referencia, LaDireccionQueNadaSujeta) {
    const auto libres = [](std::vector<std::int16_t> tipos) {
        Losa losa = LosaContinua({4, 5}, 300);
        for (std::size_t j = 0; j < 3; ++j) losa.Ejes[j + 1].Tipo = tipos[j];
        ResultadosLosa r;
        CalcularLosa(losa, {}, r);
        std::vector<std::pair<std::size_t, Direccion>> pares;
        for (const DireccionLibre& libre : r.DireccionesLibres) pares.emplace_back(libre.Junta, libre.En);
        return pares;
    };
    using Pares = std::vector<std::pair<std::size_t, Direccion>>;
    EXPECT_EQ(libres({RodilloEnX, RodilloEnX, RodilloEnX}), (Pares{{3, Direccion::X}}));
    EXPECT_EQ(libres({ApoyoFijo, SinApoyo, SinApoyo}), (Pares{{3, Direccion::Giro}}));
    EXPECT_EQ(libres({RodilloEnY, RodilloEnY, Empotramiento}), Pares{});
    EXPECT_EQ(libres({RodilloEnY, RodilloEnX, SinApoyo}), (Pares{{3, Direccion::Giro}}));
    for (const std::int16_t ninguno : std::vector<std::int16_t>{-1, 0, 6})
        EXPECT_EQ(libres({RodilloEnX, ninguno, RodilloEnX}), (Pares{{3, Direccion::X}})) << ninguno;
    EXPECT_EQ(libres({ApoyoFijo, 0, 6}), (Pares{{3, Direccion::Giro}}));
}

}  // namespace
}  // namespace trabex::prueba
