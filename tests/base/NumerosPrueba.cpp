#include <cmath>
#include <tuple>

#include <gtest/gtest.h>

#include "base/Aviso.h"
#include "base/Enteros.h"
#include "base/LeerFecha.h"
#include "base/LeerNumero.h"
#include "base/Round.h"
#include "base/VigilanciaFlotante.h"
#include "support/Errores.h"

namespace trabex::prueba {
namespace {

TEST(Round, MitadesAlParVecino) {
    EXPECT_EQ(Round(130.5), 130);
    EXPECT_EQ(Round(131.5), 132);
    EXPECT_EQ(Round(-2.5), -2);
    EXPECT_EQ(Round(0.125, 2), 0.12);
    EXPECT_EQ(Round(0.375, 2), 0.38);
    EXPECT_EQ(Round(1.0 / 3, 8), 0.33333333);
}

TEST(Round, LoQueNoTieneDecimalesVuelveIgual) {
    for (const double valor : {1e300, -1e16, 4503599627370497.0, 123456789012.34567, HUGE_VAL})
        EXPECT_EQ(Round(valor, 15), valor);
    EXPECT_TRUE(std::isnan(Round(std::nan(""), 2)));
}

TEST(Round, LoEnormeVuelveIgualYSinFalta) {
    const double enorme = 1e308;
    double uno = 0;
    std::array<double, 3> varios{};
    Vigilar([&](const Pasos& pasos) {
        uno = pasos([&] { return Round(enorme, 8); });
        varios = {-enorme, enorme, 2.5};
        pasos([&] { RoundTodos(varios, 8); });
    });
    EXPECT_EQ(uno, enorme);
    EXPECT_EQ(varios, (std::array<double, 3>{-enorme, enorme, 2.5}));
    // Either side of the limit, 2^51: above it no decimal is left to round.
    EXPECT_EQ(Round(2251799813685247.75, 0), 2251799813685248.0);
    EXPECT_EQ(Round(2251799813685248.5, 0), 2251799813685248.5);
    EXPECT_EQ(Round(-2251799813685248.5, 0), -2251799813685248.5);
}

TEST(Enteros, FueraDelTipoEsDesbordamiento) {
    EXPECT_EQ(Redondear16(32767.4), 32767);
    EXPECT_EQ(Redondear32(-2147483648.5), -2147483647 - 1);
    for (const double valor : {32767.5, -32769.0, std::nan("")})
        EXPECT_EQ(CodigoDe([=] { Redondear16(valor); }), 6) << valor;
    EXPECT_EQ(CodigoDe([] { Entero16(32768); }), 6);
    EXPECT_EQ(CodigoDe([] { Entero32(-2147483649LL); }), 6);
}

TEST(Formato, EscribeComoElPapel) {
    for (const auto& [valor, formato, texto] : {std::tuple{1234.56, "#,##0.00", "1.234,56"},
                                                {999999.995, "#,##0.00", "1.000.000,00"},
                                                {-1234567.4, "#,##0", "-1.234.567"},
                                                {2.675, "0.00", "2,68"},
                                                {-0.004, "0.00", "0,00"},
                                                {0.5, "0", "1"},
                                                {9.995, "0.00", "10,00"},
                                                {1e-9, "0.00", "0,00"},
                                                {0.0, "#,##0", "0"},
                                                {1e17, "#,##0", "100.000.000.000.000.000"},
                                                {HUGE_VAL, "0", ""}})
        EXPECT_EQ(Formato(valor, formato, {".", ","}), texto);
}

TEST(Fecha, SeLeeComoSeEscribe) {
    using namespace std::chrono;
    constexpr Fecha hoy = 2026y / November / 26d;
    using enum OrdenFecha;
    const std::tuple<const char*, OrdenFecha, Fecha> fechas[]{
        {"07/03/2024", DiaMesAno, 2024y / March / 7d},   {" 7-3-24 ", MesDiaAno, 2024y / March / 7d},
        {"7.3.46", DiaMesAno, 2046y / March / 7d},       {"7 3 47", DiaMesAno, 1947y / March / 7d},
        {"31/12/99", DiaMesAno, 1999y / December / 31d}, {"12/31/24", MesDiaAno, 2024y / December / 31d},
        {"24-12-31", AnoMesDia, 2031y / December / 24d}, {"2024-02-29", DiaMesAno, 2024y / February / 29d}};
    for (const auto& [texto, orden, fecha] : fechas) EXPECT_EQ(LeerFecha(texto, orden, hoy), fecha) << texto;
    for (const char* texto : {"", "ayer", "31/02/2024", "12/31/24", "7/3", "7/3/2", "7/3/024", "7/3/2024/1",
                              "1-2-3-4", "00/03/2024", "7//2024", "7/3/0000", "-7/3/2024", "7/3/2024 10"})
        EXPECT_FALSE(LeerFecha(texto, DiaMesAno, hoy)) << texto;
}

TEST(Aviso, SeLeeEnUnaLinea) {
    EXPECT_EQ(EnUnaLinea({Gravedad::Nota, "Acero a compresión.", "Eje B"}), "Eje B: Acero a compresión.");
    EXPECT_EQ(EnUnaLinea({Gravedad::Falla, "No se sostiene.", ""}), "No se sostiene.");
    EXPECT_STREQ(NombreDe(Gravedad::Advertencia), "advertencia");
}

TEST(Numeros, SeLeenComoSeEscribenOSeRechazan) {
    const Separadores punto{".", ","};
    const Separadores coma{",", "."};
    const Separadores blanco{"\u202F", ","};
    const Separadores programa{"", "."};
    constexpr ClaseNumero numero{};
    const std::tuple<const char*, Separadores, double> casos[]{{"5", punto, 5},
                                                               {" 5,25\u00A0", punto, 5.25},
                                                               {"5.25", punto, 5.25},
                                                               {"-,5", coma, -0.5},
                                                               {"\u22127.", punto, -7},
                                                               {"", punto, 0},
                                                               {"1.234", programa, 1.234},
                                                               {"1.234", coma, 1.234},
                                                               {"1,234", punto, 1.234},
                                                               {"0.250", punto, 0.25},
                                                               {"1234.567", punto, 1234.567},
                                                               {"1.250,5", punto, 1250.5},
                                                               {"1.250,5", coma, 1250.5},
                                                               {"1,234,567.5", punto, 1234567.5},
                                                               {"1.234.567", coma, 1234567},
                                                               {"-9999999999,99", punto, -9999999999.99},
                                                               {"12 500,25", blanco, 12500.25},
                                                               {"1’250", {"'", "."}, 1250}};
    for (const auto& [texto, en, valor] : casos) {
        const NumeroJuzgado juzgado = JuzgarNumero(texto, numero, en);
        EXPECT_EQ(juzgado.Valor, valor) << texto;
        EXPECT_EQ(juzgado.Motivo, "") << texto;
    }
    EXPECT_EQ(JuzgarNumero("1.250", EnteroDe32, punto).Valor, 1250);
    EXPECT_EQ(JuzgarNumero("350,00", EnteroDe32, punto).Valor, 350);
    for (const char* texto : {"-", ".", "cinco", "5 m", "1e5", "1,2,3", "1.23.456", "12.34,5", "1.2345,6",
                              "--1", "1,,2", "1 250", "1'250", "nan", "0x1F"})
        EXPECT_EQ(JuzgarNumero(texto, numero, punto).Motivo, "No es un número.") << texto;
    for (const auto& [texto, clase, motivo] :
         {std::tuple{"1.250", numero, "Puede leerse 1250 o 1,25: escríbalo sin separador de miles."},
          {"-1.250", numero, "Puede leerse -1250 o -1,25: escríbalo sin separador de miles."},
          {"350.000", EnteroDe32, "Puede leerse 350000 o 350: escríbalo sin separador de miles."},
          {"350.5", EnteroDe32, "Debe ser un número entero."},
          {"2147483648", EnteroDe32, "Debe estar entre -2147483648 y 2147483647."},
          {"-0,01", Longitud, "Debe estar entre 0 y 9999999999,99."},
          {"-1", NaturalSinLimite, "No puede ser menor que 0."}})
        EXPECT_EQ(JuzgarNumero(texto, clase, punto).Motivo, motivo) << texto;
    EXPECT_EQ(JuzgarNumero(std::string(400, '9'), numero, punto).Motivo, "No es un número.");
    EXPECT_FALSE(LeerNumero("1.250", punto));
    EXPECT_EQ(LeerNumero("1.250"), 1.25);
}

TEST(Numeros, SeEditanConLosDecimalesQueTienen) {
    const Separadores comas{".", ","};
    EXPECT_EQ(NumeroParaEditar(5.2, 2, comas), "5,20");
    EXPECT_EQ(NumeroParaEditar(5.255, 2, comas), "5,255");
    EXPECT_EQ(NumeroParaEditar(12345, 0, comas), "12345");
    EXPECT_EQ(NumeroParaEditar(100, 2, comas), "100,00");
    EXPECT_EQ(NumeroParaEditar(-0.1, 0, {",", "."}), "-0.1");
    EXPECT_EQ(NumeroParaEditar(0, 2, comas), "0,00");
}

}  // namespace
}  // namespace trabex::prueba
