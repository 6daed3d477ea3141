// Databases of the older format, written by the program and read by mdbtools: its library in the program's
// own reader, and its commands.

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "base/Archivos.h"
#include "base/ErrorEjecucion.h"
#include "jet/EscritorJet.h"
#include "jet/Texto.h"
#include "store/Conexion.h"
#include "store/Mantenimiento.h"
#include "store/antiguo/BaseEnJet.h"
#include "store/antiguo/Convertir.h"
#include "store/antiguo/EscribirJet.h"
#include "support/BaseSqlite.h"
#include "support/CarpetaTemporal.h"
#include "support/Lugares.h"
#include "support/ProyectoDePrueba.h"

namespace {

using namespace trabex;
using namespace trabex::almacen::antiguo;
using jet::Tipo;
using prueba::CarpetaTemporal;
using prueba::ConsultarSqlite;
using prueba::FilaSqlite;

const std::filesystem::path Programa = prueba::Programa();

/// What one of mdbtools' commands prints.
std::string Mdb(const std::string& orden) {
    std::string texto;
    FILE* salida = popen(orden.c_str(), "r");
    std::array<char, 4096> trozo{};
    while (const std::size_t leidos = std::fread(trozo.data(), 1, trozo.size(), salida))
        texto.append(trozo.data(), leidos);
    return pclose(salida) == 0 ? texto : "(" + orden + " fails)";
}

std::vector<std::string> Tablas(const std::filesystem::path& base) {
    std::vector<std::string> nombres;
    for (const FilaSqlite& fila : ConsultarSqlite(
             base,
             "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%' ORDER BY name"))
        nombres.push_back(fila.at("name"));
    return nombres;
}

std::vector<FilaSqlite> Filas(const std::filesystem::path& base, const std::string& tabla) {
    return ConsultarSqlite(base, "SELECT * FROM \"" + tabla + "\"");
}

/// A project as the older database: of format 4 by the program's own writer, of format 3 by the tests'.
void EscribirAntigua(int formato, const std::filesystem::path& base, const std::filesystem::path& destino,
                     const std::string& clave = "") {
    if (formato == 4) return EscribirJet(base, destino);
    ASSERT_EQ(Mdb("python3 '" + prueba::Install() + "/../tests/antiguo/escribir_jet3.py' '" + base.string() +
                  "' '" + destino.string() + "' " + clave),
              "");
}

class JetDe : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(, JetDe, testing::Values(3, 4));

/// A project goes out as a Jet database and comes back the same, table by table and value by value.
TEST_P(JetDe, UnProyectoVaYVuelve) {
    const CarpetaTemporal carpeta;
    const std::filesystem::path ejemplo = carpeta / "ejemplo.los", viejo = carpeta / "viejo.los";
    CopiarArchivo(Programa / "Imagen" / "Ejemplo Demostrativo.tbx", ejemplo);
    {
        almacen::Conexion propia;
        almacen::AbrirConexion(propia, ejemplo);
        // Every character of the code page, rows of several hundred bytes, nulls, ends of ranges, and pages.
        std::string letras;
        for (char32_t c = 0xA0; c <= 0xFF; ++c)
            (letras += static_cast<char>(0xC0 | c >> 6)) += static_cast<char>(0x80 | (c & 0x3F));
        letras += "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ";
        for (const std::string& sentencia :
             {"UPDATE Proyecto SET Proyecto='" + letras.substr(0, 200) + "', Comentario='" + letras + letras +
                  "'",
              "INSERT INTO Proyecto (Propietario, Fecha, Cliente) VALUES ('" + std::string(120, 'x') +
                  "', '1899-12-30', ''), (NULL, '0100-01-01', NULL), ('Ñ', '9999-12-31', '')",
              std::string(
                  "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1500) "
                  "INSERT INTO LosaTramos SELECT 'Peña Nº ' || i, i - 700, 1.0 / i, i * 1000000, "
                  "-2147483648 + i, CASE WHEN i % 3 THEN i END, CASE WHEN i % 7 THEN -1e300 / i END FROM n")})
            ASSERT_TRUE(propia.Ejecutar(sentencia)) << sentencia;
    }
    for (const char* clave : {"", "0x1F2E3D4C"}) {
        if (GetParam() == 4 && *clave != 0) break;
        EscribirAntigua(GetParam(), ejemplo, viejo, clave);
        const std::string archivo = " '" + viejo.string() + "'";
        EXPECT_EQ(Mdb("mdb-ver" + archivo), "JET" + std::to_string(GetParam()) + "\n");
        EXPECT_EQ(Mdb("mdb-count" + archivo + " LosaTramos"),
                  std::to_string(Filas(ejemplo, "LosaTramos").size()) + "\n");
        EXPECT_NE(Mdb("mdb-export" + archivo + " LosaTramos")
                      .find("\n\"Peña Nº 1\",-699,1,1000000,-2147483647,1,-1e+300"),
                  std::string::npos);
        EXPECT_NE(Mdb("mdb-schema -T LosaTramos" + archivo).find("[Nombre]\t\t\tText (60)"),
                  std::string::npos);
        EXPECT_TRUE(EsBaseAntigua(viejo));
        EXPECT_FALSE(EsBaseAntigua(ejemplo));
        const std::optional<Perdidas> perdidas = ConvertirBaseAntigua(
            Programa, viejo, Programa / "Imagen" / "LosaImagen.tbx", carpeta / "nuevo.los");
        ASSERT_TRUE(perdidas);
        EXPECT_EQ(perdidas->Tablas + perdidas->Valores, 0U);
        for (const std::string& tabla : Tablas(ejemplo))
            EXPECT_EQ(Filas(carpeta / "nuevo.los", tabla), Filas(ejemplo, tabla)) << tabla;
        EXPECT_FALSE(Existe(carpeta / "nuevo.los.copia"));
        std::filesystem::remove(carpeta / "nuevo.los");
    }
}

/// Every type at its ends, nulls, texts of any script, long values over many pages, more columns than a
/// definition's page holds and more pages than a map's row.
TEST(Jet, TodoTipoDeValorSeLeeComoSeEscribio) {
    const CarpetaTemporal carpeta;
    constexpr int Cuantas = 400;
    jet::EscritorJet escritor(jet::DiasDe(2026, 11, 26));
    std::vector<jet::Columna> columnas{
        {"L", Tipo::Logico}, {"T", Tipo::Texto, 255},   {"By", Tipo::Byte},  {"E", Tipo::Entero},
        {"La", Tipo::Largo}, {"M", Tipo::Moneda},       {"D", Tipo::Doble},  {"F", Tipo::Fecha},
        {"Me", Tipo::Memo},  {"Bi", Tipo::Binario, 20}, {"S", Tipo::Simple}, {"O", Tipo::Ole}};
    columnas.insert(columnas.end(), {{"Id", Tipo::Largo, 0, 0, 0, true},
                                     {"G", Tipo::Guid, 0, 0, 0, true},
                                     {"N", Tipo::Numerico, 0, 28, 6}});
    const std::size_t propias = columnas.size();
    for (int i = 0; i < 100; ++i)
        columnas.push_back({"Una columna de nombre largo " + std::to_string(i), Tipo::Entero});
    escritor.AgregarTabla({"sqliteVacia", columnas});
    using namespace std::string_literals;
    const std::string propiedades = "MR2\0\x20\0\0\0\x80\0\x18\0"s + jet::ComoUtf16("DefaultValue") +
                                    "\x6E\2\0\0\1\0\x08\0\0\0\2\0E\0\x60\2\0\x0A\0\0\x58\2"s +
                                    jet::ComoUtf16(std::string(300, '7'));
    escritor.AgregarTabla({"Todo", columnas, propiedades, 70});
    const auto memo = [](int i) { return std::string(static_cast<std::size_t>(i * 97 % 14000), 'x') + "ñ€"; };
    const std::array<std::string, 4> textos{"", "ñandú ¿1/2?", "Ω漢字😀", std::string(255, 'z')};
    for (int i = 0; i < Cuantas; ++i) {
        jet::Fila fila(columnas.size());
        fila[0] = std::int64_t{i % 2};
        if (i % 5 != 0) {
            fila[1] = textos[static_cast<std::size_t>(i) % textos.size()];
            fila[2] = std::int64_t{i % 2 == 0 ? 255 : 0};
            fila[3] = std::int64_t{i % 2 == 0 ? -32768 : 32767};
            fila[4] = std::int64_t{i % 2 == 0 ? -2147483648LL : 2147483647LL};
            fila[5] = i == 399 ? std::numeric_limits<std::int64_t>::max() : std::int64_t{12345} * i;
            fila[6] = i == 398 ? std::numeric_limits<double>::quiet_NaN() : 1.0 / 3 * i;
            fila[7] = jet::DiasDe(1900, 1, 1) + i;
            fila[8] = memo(i);
            fila[9] = std::string(static_cast<std::size_t>(i % 20), '\x7f');
            fila[10] = 0.1F;
            fila[11] = std::string(static_cast<std::size_t>(i), '\0');
            fila[13] = std::string(16, '\x9c');
            fila[14] = '\x80' + std::string(16, '\x11');
            fila[propias + 99] = std::int64_t{i};
        }
        escritor.AgregarFila(fila);
    }
    EXPECT_THROW(escritor.AgregarFila(jet::Fila(3)), ErrorEjecucion);
    jet::Fila pasada(columnas.size());
    pasada[3] = std::int64_t{32768};
    EXPECT_THROW(escritor.AgregarFila(pasada), ErrorEjecucion);
    prueba::EscribirArchivo(carpeta / "todo.mdb", escritor.Terminar());
    EXPECT_GT(std::filesystem::file_size(carpeta / "todo.mdb"), 600U * 4096);

    ASSERT_TRUE(CopiarBaseAntigua(Programa, carpeta / "todo.mdb", carpeta / "todo.db"));
    const std::vector<FilaSqlite> filas = Filas(carpeta / "todo.db", "Todo");
    ASSERT_EQ(filas.size(), static_cast<std::size_t>(Cuantas));
    for (int i = 0; i < Cuantas; ++i) {
        const FilaSqlite& fila = filas[static_cast<std::size_t>(i)];
        EXPECT_EQ(fila.at("L"), std::to_string(i % 2));
        const auto es = [&](const char* columna, const std::string& valor) {
            EXPECT_EQ(fila.at(columna), i % 5 == 0 ? "NULL" : valor) << i << " " << columna;
        };
        const auto numero = [](double valor) {
            std::array<char, 40> texto{};
            std::snprintf(texto.data(), texto.size(), "%.17g", valor);
            return std::string(texto.data());
        };
        es("T", textos[static_cast<std::size_t>(i) % textos.size()]);
        EXPECT_EQ(fila.at("Id"), std::to_string(71 + i));
        if (i >= 398) continue;  // as bytes there
        es("M", numero(12345.0 * i / 10000));
        es("D", numero(1.0 / 3 * i));
        es("F", numero(2 + i));
        es("Me", memo(i));
        es("Una columna de nombre largo 99", std::to_string(i));
    }
    for (const auto& [orden, dicho] : {std::pair{"mdb-count", "400\n"},
                                       {"mdb-export -b hex", ",-22685491128062564230891640495451.214097"},
                                       {"mdb-export", ",255,-32768,-2147483648,"},
                                       {"mdb-export", ",0,32767,2147483647,"},
                                       {"mdb-prop", "DefaultValue: 777"}})
        EXPECT_NE(Mdb(std::string(orden) + " '" + (carpeta / "todo.mdb").string() + "' Todo").find(dicho),
                  std::string::npos);
    EXPECT_TRUE(BaseEnJet(Programa, carpeta / "todo.mdb", carpeta / "trabajo.db").EsDelPrograma());
}

/// What a file has that its rewriting does not keep is told, and the rest of it stays.
TEST(Jet, LoQueNoSeConservaSeDice) {
    using jet::Falta;
    const CarpetaTemporal carpeta;
    const std::filesystem::path base = carpeta / "ajena.db", uno = carpeta / "uno.cad";
    const auto faltas = [&] { return BaseEnJet(Programa, uno, carpeta / "trabajo.db").Faltas(); };
    ASSERT_TRUE(almacen::CrearBaseDatos(
        base,
        "CREATE TABLE Ajena (Id INTEGER PRIMARY KEY, M MONEY, Me TEXT, De INTEGER REFERENCES Ajena (Id));"
        "INSERT INTO Ajena VALUES (7, 12345, 'original', 7), (8, NULL, NULL, NULL);"
        "CREATE TABLE MSysQueries (A INTEGER); CREATE TABLE MSysDeOtro (A INTEGER);"
        "CREATE VIEW Consulta AS SELECT Id FROM Ajena"));
    EscribirAntigua(3, base, uno, "0x1F2E3D4C");
    EXPECT_EQ(faltas(), (std::map<Falta, std::size_t>{
                            {Falta::Indice, 1}, {Falta::Objeto, 3}, {Falta::Clave, 1}, {Falta::Formato, 1}}));
    const std::string filas = Mdb("mdb-export '" + uno.string() + "' Ajena");
    BaseEnJet(Programa, uno, carpeta / "trabajo.db").Guardar(uno, carpeta / "original.cad");
    EXPECT_EQ(Mdb("mdb-export '" + uno.string() + "' Ajena"), filas);
    EXPECT_TRUE(faltas().empty());
    std::string roto = prueba::LeerArchivo(uno);
    roto[0x44] ^= 1;  // its password
    roto[0x6E] ^= 3;  // its order of texts
    roto[roto.find("original") / 4096 * 4096] = 9;
    prueba::EscribirArchivo(uno, roto);
    EXPECT_EQ(faltas(),
              (std::map<Falta, std::size_t>{{Falta::Clave, 1}, {Falta::Orden, 1}, {Falta::Ilegible, 1}}));
}

/// What the old file has that the program's columns refuse is null and counted; a table that it has not is
/// counted.
TEST(Jet, LoQueNoCabeSeCuenta) {
    const CarpetaTemporal carpeta;
    jet::EscritorJet escritor(40000);
    escritor.AgregarTabla(
        {"losadatos", {{"NOMBRE", Tipo::Memo}, {"Bo", Tipo::Texto, 20}, {"Otra", Tipo::Entero}}});
    escritor.AgregarFila({std::string("L-1"), std::string("ancha"), std::int64_t{1}});
    escritor.AgregarFila({std::string(300, 'n'), {}, std::int64_t{1}});
    escritor.AgregarTabla({"Proyecto", {{"Proyecto", Tipo::Texto, 50}, {"Fecha", Tipo::Fecha}}});
    escritor.AgregarFila({std::string("Torre"), jet::DiasDe(2003, 2, 28) + 0.75});
    prueba::EscribirArchivo(carpeta / "viejo.los", escritor.Terminar());
    const auto perdidas = ConvertirBaseAntigua(Programa, carpeta / "viejo.los",
                                               Programa / "Imagen" / "LosaImagen.tbx", carpeta / "nuevo.los");
    ASSERT_TRUE(perdidas);
    EXPECT_EQ(perdidas->Valores, 2U);
    EXPECT_EQ(perdidas->Tablas, Tablas(carpeta / "nuevo.los").size() - 2);
    const std::vector<FilaSqlite> losas = Filas(carpeta / "nuevo.los", "LosaDatos");
    ASSERT_EQ(losas.size(), 2U);
    EXPECT_EQ(losas[0].at("Nombre") + losas[0].at("Bo") + losas[1].at("Nombre"), "L-1NULLNULL");
    EXPECT_EQ(Filas(carpeta / "nuevo.los", "Proyecto").at(0).at("Fecha"), "2003-02-28");
}

/// Files cut short and with bytes changed: each ends in time, as a project or not at all, and is itself
/// untouched. TRABEX_VUELTAS says how many.
TEST_P(JetDe, ArchivosDanadosNoPasanDeSuProceso) {
    const CarpetaTemporal carpeta;
    EscribirAntigua(GetParam(), Programa / "Imagen" / "Ejemplo Demostrativo.tbx", carpeta / "sano.los");
    const std::string sano = prueba::LeerArchivo(carpeta / "sano.los");
    const char* pedidas = std::getenv("TRABEX_VUELTAS");
    std::mt19937 azar(7);
    const auto cual = [&](std::size_t hasta) {
        return std::uniform_int_distribution<std::size_t>(0, hasta - 1)(azar);
    };
    for (int i = 0; i < (pedidas == nullptr ? 60 : std::atoi(pedidas)); ++i) {
        std::string roto = sano;
        for (std::size_t golpes = 1 + cual(40); golpes > 0; --golpes)
            roto[21 + cual(roto.size() - 21)] = static_cast<char>(cual(256));
        if (i % 10 == 0) roto.resize(cual(roto.size()));
        prueba::EscribirArchivo(carpeta / "roto.los", roto);
        const auto antes = std::chrono::steady_clock::now();
        const auto hecho = ConvertirBaseAntigua(
            Programa, carpeta / "roto.los", Programa / "Imagen" / "LosaImagen.tbx", carpeta / "nuevo.los");
        EXPECT_LT(std::chrono::steady_clock::now() - antes, std::chrono::seconds(70)) << i;
        EXPECT_EQ(Existe(carpeta / "nuevo.los"), hecho.has_value()) << i;
        EXPECT_EQ(prueba::LeerArchivo(carpeta / "roto.los"), roto) << i;
        std::filesystem::remove(carpeta / "nuevo.los");
    }
}

}  // namespace
