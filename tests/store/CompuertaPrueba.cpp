// Files that anybody may have written: what the gate lets in, and that nothing of the rest runs.

#include <ctime>
#include <functional>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "store/Filas.h"
#include "support/CarpetaTemporal.h"
#include "support/LosasDePrueba.h"
#include "support/ProyectoDePrueba.h"

namespace trabex {

using namespace almacen;
using namespace almacen::tablas;
using namespace losas;
namespace {

using prueba::LeerArchivo;

/// What another SQLite tool does to a file, as it likes.
void ConOtraHerramienta(const std::filesystem::path& camino, const std::string& sql) {
    sqlite3* base = nullptr;
    ASSERT_EQ(sqlite3_open(camino.c_str(), &base), SQLITE_OK);
    const std::string sinEsperar = "PRAGMA synchronous = OFF; " + sql;
    EXPECT_EQ(sqlite3_exec(base, sinEsperar.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(base);
    sqlite3_close(base);
}

/// A project with slabs whose names the order of other tools does not tell apart or sorts otherwise.
void CrearProyecto(const std::filesystem::path& camino) {
    std::vector<Losa> losas;
    for (const char* nombre : {"Ñandú", "nube", "Ábaco", "oro", "zeta", "LOSA É"}) {
        losas.push_back(prueba::LosaUniforme(losas.size() + 1, 4, 100));
        losas.back().Nombre = nombre;
    }
    ASSERT_TRUE(prueba::CrearProyecto(camino, losas));
}

struct Caso {
    const char* Nombre;
    bool Entra;
    std::string Sql;
    bool Enteras = true;  ///< of one that is let in, its slabs have their rows and can be stored
};

class Compuerta : public testing::TestWithParam<Caso> {};

TEST_P(Compuerta, EntraLoSimpleYNadaCorre) {
    const prueba::CarpetaTemporal carpeta;
    const auto camino = carpeta / "file:obra.los?mode=memory";
    CrearProyecto(camino);
    ConOtraHerramienta(camino, GetParam().Sql);
    const std::string antes = LeerArchivo(camino);
    const std::clock_t inicio = std::clock();
    {
        ProyectoAbierto proyecto;
        EXPECT_EQ(prueba::Abrir(proyecto, camino), GetParam().Entra);
        EXPECT_EQ(proyecto.ConexionProyecto.ConexionFallida(), !GetParam().Entra);
        for (int i = 1; i <= proyecto.RegistrosProyecto.NumeroRegistros(); ++i) {
            proyecto.RegistrosProyecto.MoverA(i);
            Losa losa;
            LeerLosa(proyecto, losa);
            if (!GetParam().Enteras) continue;
            EXPECT_EQ(losa.Ejes.size(), losa.Tramos.size() + 1);
            EXPECT_GT(losa.Tramos.size(), 1U);
        }
    }
    EXPECT_EQ(LeerArchivo(camino), antes);
    ProyectoAbierto proyecto;
    prueba::Abrir(proyecto, camino);
    BuscarRegistro(proyecto.RegistrosProyecto, Criterio(PorNombre("losa é")));
    Losa losa;
    LeerLosa(proyecto, losa);
    const bool guardada = GuardarLosa(proyecto, losa);
    if (GetParam().Entra && GetParam().Enteras) {
        EXPECT_EQ(losa.Tramos.size(), 7U);
        EXPECT_TRUE(guardada);
    }
    EXPECT_LT(static_cast<double>(std::clock() - inicio) / CLOCKS_PER_SEC, 2);
    EXPECT_EQ(LeerArchivo(camino) != antes, guardada);
}

const std::string SinFin = "WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n) ";
const std::string Catalogo = "PRAGMA writable_schema=ON; UPDATE sqlite_master SET ";
const std::string OtrosTramos = "DROP TABLE LosaTramos; CREATE TABLE LosaTramos ";
const std::string OtroNombre = "UPDATE LosaDatos SET Nombre = ";

/// `una` many times, its # as a number.
std::string Repetida(const std::string& una, int veces) {
    std::string todas;
    for (int n = 0; n < veces; ++n)
        todas += una.substr(0, una.find('#')) + std::to_string(n) + una.substr(una.find('#') + 1);
    return todas;
}

INSTANTIATE_TEST_SUITE_P(
    Archivos, Compuerta,
    testing::Values(
        Caso{"Indice", true,
             "CREATE INDEX a ON LosaTramos (Nombre); CREATE INDEX b ON LosaDatos (Nombre);"
             "CREATE UNIQUE INDEX c ON LosaEjes (Nombre COLLATE BINARY, Numero); ANALYZE"},
        Caso{"TablaAjena", true,
             "CREATE TABLE Fotos (Id TEXT PRIMARY KEY, Foto BLOB DEFAULT (zeroblob(9)),"
             " CHECK (length(Id) > 0)); INSERT INTO Fotos VALUES ('a', zeroblob(90000))"},
        Caso{"Log", true, "PRAGMA journal_mode=WAL"},
        Caso{"OtraVersion", true, "PRAGMA user_version=3; PRAGMA application_id=7"},
        Caso{"VistaSinFin", false,
             "DROP TABLE LosaDatos; CREATE VIEW LosaDatos AS " + SinFin + "SELECT x AS Nombre FROM n"},
        Caso{"VistaDeTramos", false,
             "ALTER TABLE LosaTramos RENAME TO t; CREATE VIEW LosaTramos AS SELECT * FROM t"},
        Caso{"Disparador", false,
             "CREATE TRIGGER d AFTER DELETE ON LosaTramos BEGIN DELETE FROM LosaDatos; END"},
        Caso{"ColumnaGenerada", false,
             "ALTER TABLE LosaTramos ADD COLUMN g TEXT AS (hex(zeroblob(100000000)))"},
        Caso{"IndiceDeExpresion", false, "CREATE INDEX a ON LosaTramos (hex(Nombre))"},
        Caso{"TablaVirtual", false, "CREATE VIRTUAL TABLE v USING fts5(x)"},
        Caso{"ColumnaRowid", false, "ALTER TABLE LosaDatos ADD COLUMN rowid INTEGER DEFAULT 1"},
        Caso{"SinRowid", true, OtrosTramos + "(Nombre PRIMARY KEY, Numero) WITHOUT ROWID", false},
        Caso{"OtroOrden", true, OtrosTramos + "(Nombre COLLATE RTRIM, Numero BLOB)", false},
        Caso{"ValorUsualLargo", true, OtrosTramos + "(Nombre TEXT DEFAULT (randomblob(90000000)), Numero)",
             false},
        Caso{"CondicionLarga", true,
             OtrosTramos + "(Nombre CHECK (length(hex(zeroblob(90000000))) > 0), Numero)", false},
        Caso{"ColumnaConComilla", true, OtrosTramos + "(\"a'b\", Nombre)", false},
        Caso{"MuchasColumnas", false, OtrosTramos + "(" + Repetida("c#, ", 900) + "Nombre)"},
        Caso{"CienTablas", true, Repetida("CREATE TABLE t# (x);", 100)},
        Caso{"MilTablas", false, Repetida("CREATE TABLE t# (x);", 1000)},
        Caso{"NombresEnormes", true, OtroNombre + "hex(zeroblob(20000))", false},
        Caso{"NombresDeBytes", true, OtroNombre + "zeroblob(20000)", false},
        Caso{"NombresNulos", true, OtroNombre + "NULL", false},
        Caso{"NombresNumericos", true, OtroNombre + "1e308", false},
        Caso{"NombresConComillas", true, OtroNombre + "''' OR ''''='''", false},
        Caso{"NombresMalCodificados", true, OtroNombre + "CAST(x'00FFFEC3' AS TEXT)", false},
        Caso{"CatalogoVirtual", false, Catalogo + "sql = replace(sql, 'TABLE', 'VIRTUAL TABLE')"},
        Caso{"CatalogoEnvuelto", false, Catalogo + "sql = 'CREATE TABLE x(' || sql || ')'"},
        Caso{"CatalogoNulo", false, Catalogo + "sql = NULL"},
        Caso{"CatalogoConExpresion", false, Catalogo + "sql = replace(sql, 'DOUBLE', 'DOUBLE AS (1)')"},
        Caso{"TodoEnUnaPagina", false, Catalogo + "rootpage = 4"},
        Caso{"PaginaQueNoHay", false, Catalogo + "rootpage = 4000 WHERE name = 'LosaEjes'"},
        Caso{"CatalogoRepetido", false,
             "PRAGMA writable_schema=ON; INSERT INTO sqlite_master SELECT * FROM sqlite_master"},
        Caso{"CientosDeMilesDeFilas", false,
             "INSERT INTO LosaJuntasD " + SinFin + "SELECT 'x', 1, 0, 0 FROM n LIMIT 300000"},
        Caso{"CientosDeMilesDeLosas", false,
             "INSERT INTO LosaDatos (Nombre) " + SinFin + "SELECT 'x' FROM n LIMIT 300000"}),
    [](const auto& caso) { return caso.param.Nombre; });

/// A log of another file beside a project would be taken for its own.
TEST(CompuertaSola, UnDiarioAjenoNoPasaPorSuyo) {
    const prueba::CarpetaTemporal carpeta;
    const auto camino = carpeta / "obra.los";
    CrearProyecto(camino);
    const std::string antes = LeerArchivo(camino);
    std::string log;
    sqlite3* base = nullptr;
    sqlite3_open(camino.c_str(), &base);
    sqlite3_exec(base, "PRAGMA journal_mode=WAL; DELETE FROM LosaTramos", nullptr, nullptr, nullptr);
    log = LeerArchivo(carpeta / "obra.los-wal");
    sqlite3_close(base);
    ASSERT_FALSE(log.empty());
    prueba::EscribirArchivo(camino, antes);
    prueba::EscribirArchivo(carpeta / "obra.los-wal", log);
    ProyectoAbierto proyecto;
    EXPECT_FALSE(prueba::Abrir(proyecto, camino));
    OlvidarGuardado(camino);
    EXPECT_TRUE(prueba::Abrir(proyecto, camino));
    EXPECT_EQ(LeerArchivo(camino), antes);
}

}  // namespace
}  // namespace trabex
