#include <array>
#include <cfenv>
#include <cmath>
#include <functional>

#include <gtest/gtest.h>

#include "base/ErrorEjecucion.h"
#include "base/VigilanciaFlotante.h"

namespace trabex {
namespace {

int CodigoDe(const std::function<void()>& calculo) {
    try {
        calculo();
    } catch (const ErrorEjecucion& error) {
        return error.Codigo();
    }
    return 0;
}

/// Operands of three operations that a compiler can only learn when the program runs.
struct Operandos {
    double Divisor = 2, Factor = 2, Radicando = 2;
};

/// Three fields from operations that don't depend on each other, so that nothing but the steps orders them.
struct Registro {
    double Cociente = -1, Producto = -1, Raiz = -1;
};

void Llenar(const Operandos& o, Registro& r) {
    Vigilar([&r, o](const Pasos& pasos) {
        r = {};
        r.Cociente = pasos([&] { return 1 / o.Divisor; });
        r.Producto = pasos([&] { return 1e300 * o.Factor; });
        r.Raiz = pasos([&] { return std::sqrt(o.Radicando); });
    });
}

TEST(Vigilar, SinFaltaTodoQueda) {
    Registro r;
    EXPECT_EQ(CodigoDe([&] { Llenar({2, 2, 4}, r); }), 0);
    EXPECT_EQ(r.Cociente, 0.5);
    EXPECT_EQ(r.Producto, 2e300);
    EXPECT_EQ(r.Raiz, 2);
}

TEST(Vigilar, ElCodigoEsElDeLaPrimeraFaltaYLoAnteriorQueda) {
    const std::tuple<Operandos, int, Registro> casos[]{
        {{0, 2, 4}, 11, {-1, -1, -1}},     {{2, 1e300, 4}, 6, {0.5, -1, -1}},
        {{2, 2, -1}, 5, {0.5, 2e300, -1}}, {{2, 1e300, -1}, 6, {0.5, -1, -1}},
        {{0, 2, -1}, 11, {-1, -1, -1}},    {{0, 1e300, -1}, 11, {-1, -1, -1}}};
    for (const auto& [operandos, codigo, queda] : casos) {
        Registro r;
        EXPECT_EQ(CodigoDe([&, &o = operandos] { Llenar(o, r); }), codigo);
        EXPECT_EQ(r.Cociente, queda.Cociente);
        EXPECT_EQ(r.Producto, queda.Producto);
        EXPECT_EQ(r.Raiz, queda.Raiz);
    }
}

/// The other way about: 5 before 6 before 11, over values that stand in registers.
int AlReves(double divisor, double factor, double radicando, std::array<double, 3>& r) {
    return CodigoDe([&] {
        Vigilar([&](const Pasos& pasos) {
            r = {-1, -1, -1};
            const double raiz = pasos([=] { return std::sqrt(radicando); });
            r[0] = raiz;
            const double producto = pasos([=] { return 1e300 * factor; });
            r[1] = producto;
            const double cociente = pasos([=] { return factor / divisor; });
            r[2] = cociente + producto - raiz;
        });
    });
}

TEST(Vigilar, UnaFaltaPosteriorNoTapaALaPrimera) {
    std::array<double, 3> r{};
    EXPECT_EQ(AlReves(0, 1e300, -1, r), 5);
    EXPECT_EQ(r, (std::array<double, 3>{-1, -1, -1}));
    EXPECT_EQ(AlReves(0, 1e300, 4, r), 6);
    EXPECT_EQ(r, (std::array<double, 3>{2, -1, -1}));
    EXPECT_EQ(AlReves(0, 2, 4, r), 11);
    EXPECT_EQ(r, (std::array<double, 3>{2, 2e300, -1}));
}

/// A loop whose guarded operation is the same in every turn: nothing may be taken out in front of it.
int EnBucle(double dividendo, double divisor, std::size_t desde, std::array<double, 8>& r) {
    return CodigoDe([&] {
        Vigilar([&](const Pasos& pasos) {
            r = {};
            for (std::size_t i = 0; i < r.size(); ++i)
                r[i] = pasos([&] { return i < desde ? 1 : dividendo / divisor; });
        });
    });
}

TEST(Vigilar, LoQueUnaCondicionGuardaNoSeAdelanta) {
    std::array<double, 8> r{};
    EXPECT_EQ(EnBucle(1, 0, 5, r), 11);
    EXPECT_EQ(r, (std::array<double, 8>{1, 1, 1, 1, 1, 0, 0, 0}));
    EXPECT_EQ(EnBucle(0, 0, 1, r), 5);
    EXPECT_EQ(EnBucle(1, 0, 8, r), 0);
    EXPECT_EQ(r[7], 1);
}

/// Arithmetic of the caller's own, before and after, on the operands of the calculation.
double Alrededor(double a, double b, double& dentro) {
    const double antes = a / b;
    Vigilar([&](const Pasos& pasos) { dentro = pasos([&] { return a + b; }); });
    return antes * (a / b);
}

TEST(Vigilar, LaAritmeticaDeFueraNoEsDelCalculo) {
    double dentro = 0;
    double fuera = 0;
    EXPECT_EQ(CodigoDe([&] { fuera = Alrededor(3, 0, dentro); }), 0);
    EXPECT_EQ(dentro, 3);
    EXPECT_TRUE(std::isinf(fuera));
}

TEST(Vigilar, LasBanderasVuelvenComoEstaban) {
    std::feclearexcept(FE_ALL_EXCEPT);
    Registro r;
    EXPECT_EQ(CodigoDe([&] { Llenar({0, 2, 4}, r); }), 11);
    EXPECT_EQ(std::fetestexcept(FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID), 0);
    std::feraiseexcept(FE_OVERFLOW);
    EXPECT_EQ(CodigoDe([&] { Llenar({2, 2, 4}, r); }), 0);
    EXPECT_NE(std::fetestexcept(FE_OVERFLOW), 0);
    std::feclearexcept(FE_ALL_EXCEPT);
}

/// An error of another kind (a narrowing, an index) counts when it comes first, and not when a fault led to
/// it.
TEST(Vigilar, UnErrorDeOtraClaseValeSiLlegaAntes) {
    double guardado = 0;
    const auto calcular = [&](double divisor, bool errorAntes) {
        return CodigoDe([&] {
            Vigilar([&](const Pasos& pasos) {
                guardado = 0;
                if (errorAntes) throw ErrorEjecucion(CodigoError::SubindiceFueraDeIntervalo);
                guardado = pasos([&] { return 1 / divisor; });
                throw ErrorEjecucion(CodigoError::TiposNoCoinciden);
            });
        });
    };
    EXPECT_EQ(calcular(0, true), 9);
    EXPECT_EQ(calcular(0, false), 11);
    EXPECT_EQ(guardado, 0);
    EXPECT_EQ(calcular(2, false), 13);
    EXPECT_EQ(guardado, 0.5);
    // Within one step too: what a fault leads to is not the first.
    EXPECT_EQ(CodigoDe([&] {
                  Vigilar([&](const Pasos& pasos) {
                      guardado = 0;
                      pasos([&] {
                          guardado = 1 / guardado;
                          throw ErrorEjecucion(CodigoError::TiposNoCoinciden);
                      });
                  });
              }),
              11);
}

}  // namespace
}  // namespace trabex
