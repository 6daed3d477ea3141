// What a project withstands, each as often as one likes: resistencia MODE [TIMES [SEED]].
//
//   muertes    the process dies at a random step of random operations, in the middle of a write too
//   fallas     every step of every operation fails: full disk, read-only, locked, a file that disappears
//   mutados    projects with random bytes changed
//   esquemas   databases with random hostile schemas in the place of a project
//   paginas    one page is lost: repair brings back every row of the others
//   costo      what a save and a reading cost in a small and in a large project
//
// It ends with a line of what it saw, and with 1 at the first thing that should not be.

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <iostream>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

#include "resistencia/DiscoQueFalla.h"
#include "store/Filas.h"
#include "support/BaseSqlite.h"
#include "support/CarpetaTemporal.h"
#include "support/LosasDePrueba.h"
#include "support/ProyectoDePrueba.h"

namespace {

using namespace trabex;
using namespace trabex::almacen;
using namespace trabex::almacen::tablas;
using namespace trabex::losas;
using prueba::ConsultarSqlite;
using prueba::DiscoQueFalla;
using prueba::EscribirArchivo;
using prueba::LeerArchivo;
using Azar = std::mt19937_64;

constexpr double SegundosMaximos = 2;

double Procesador() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

[[noreturn]] void Fallo(const std::string& que) {
    std::cerr << "FALLA: " << que << '\n';
    std::exit(1);
}

void Exigir(bool condicion, const std::string& que) {
    if (!condicion) Fallo(que);
}

/// A slab whose every row tells its version, so that halves of two would be seen.
Losa LosaDe(const std::string& nombre, int version) {
    Losa losa = prueba::LosaUniforme(static_cast<std::size_t>(1 + version % 37), 4, version);
    losa.Nombre = nombre;
    losa.Ho = version;
    for (EjeLosa& eje : losa.Ejes) eje.Eje = std::to_string(version);
    return losa;
}

void CrearProyecto(const std::filesystem::path& camino, int losas) {
    std::filesystem::remove(camino);
    Exigir(CrearBaseDatos(camino, prueba::EsquemaDeProyecto()), "no se crea el proyecto");
    ProyectoAbierto proyecto;
    prueba::Abrir(proyecto, camino);
    Transaccion todo(proyecto.ConexionProyecto);
    for (int i = 1; i <= losas; ++i)
        Exigir(prueba::AgregarLosa(proyecto, LosaDe("LOSA Ñ " + std::to_string(i), i)), "no se agrega");
    Exigir(todo.Confirmar(), "no se crean las losas");
}

/// Reads every slab of a project that opens; 0 when it does not.
int LeerLosas(const std::filesystem::path& camino, const std::function<void(const Losa&)>& ver = {}) {
    ProyectoAbierto proyecto;
    prueba::Abrir(proyecto, camino);
    for (int i = 1; i <= proyecto.RegistrosProyecto.NumeroRegistros(); ++i) {
        proyecto.RegistrosProyecto.MoverA(i);
        Losa losa;
        LeerLosa(proyecto, losa);
        if (ver) ver(losa);
    }
    return proyecto.RegistrosProyecto.NumeroRegistros();
}

/// Each slab is one version whole, and no row is without its slab.
void ExigirCoherente(const std::filesystem::path& camino, const std::string& cuando) {
    std::set<std::string> nombres;
    const int losas = LeerLosas(camino, [&](const Losa& losa) {
        const int version = static_cast<int>(losa.Ho);
        Exigir(nombres.insert(losa.Nombre).second, "dos losas de un nombre: " + cuando);
        Exigir(losa.Tramos.size() == static_cast<std::size_t>(2 + version % 37) &&
                   losa.Ejes.size() == losa.Tramos.size() + 1,
               "filas de menos o de más: " + cuando);
        for (std::size_t i = 1; i < losa.Tramos.size(); ++i)
            Exigir(losa.Tramos[i].Wp == version && losa.Ejes[i].Eje == std::to_string(version),
                   "dos versiones en una losa: " + cuando);
    });
    Exigir(losas > 0, "el proyecto no se lee: " + cuando);
    for (const char* hija : HijasDeLosa) {
        const auto sueltas =
            ConsultarSqlite(camino, std::string("SELECT Nombre FROM ") + hija +
                                        " WHERE Nombre NOT IN (SELECT Nombre FROM LosaDatos)");
        Exigir(sueltas.empty(), std::string("filas sin losa en ") + hija + ": " + cuando);
    }
}

/// What the program does to a project. True when it says that it was stored.
using Operacion = std::function<bool(ProyectoAbierto&, int version)>;

bool Agregar(ProyectoAbierto& proyecto, const std::string& nombre, int version) {
    Losa losa = LosaDe(nombre, version);
    Transaccion guardado(proyecto.ConexionProyecto);
    proyecto.RegistrosProyecto.AgregarNuevo();
    proyecto.RegistrosProyecto.Poner("Nombre", nombre);
    PonerSeccion(proyecto.RegistrosProyecto, losa);
    proyecto.RegistrosProyecto.Actualizar();
    EscribirElementos(proyecto.ConexionProyecto, nombre, losa);
    return guardado.Confirmar();
}

const std::array<std::pair<const char*, Operacion>, 5> Operaciones{{
    {"guardar",
     [](ProyectoAbierto& proyecto, int version) {
         Losa losa = LosaDe(proyecto.RegistrosProyecto.Texto("Nombre"), version);
         return GuardarLosa(proyecto, losa);
     }},
    {"agregar",
     [](ProyectoAbierto& proyecto, int version) {
         return Agregar(proyecto, "NUEVA " + std::to_string(getpid()) + " " + std::to_string(version),
                        version);
     }},
    {"renombrar",
     [](ProyectoAbierto& proyecto, int version) {
         const std::string actual = proyecto.RegistrosProyecto.Texto("Nombre");
         const std::string nuevo = "Ñ" + std::to_string(getpid()) + " " + std::to_string(version);
         const bool hecho = RenombrarElemento(proyecto.ConexionProyecto, TablasDeLosa, actual, nuevo);
         AbrirRecordset(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, ConsultaListaLosas);
         return hecho;
     }},
    {"eliminar",
     [](ProyectoAbierto& proyecto, int) {
         return BorrarElemento(proyecto.ConexionProyecto, TablasDeLosa, proyecto.RegistrosProyecto);
     }},
    {"generales",
     [](ProyectoAbierto& proyecto, int version) {
         DatosGenerales generales;
         generales.FC = static_cast<std::int16_t>(version);
         return GuardarGeneralesLosa(proyecto.ConexionProyecto, generales);
     }},
}};

void Muertes(int veces, Azar& azar, const std::filesystem::path& camino) {
    CrearProyecto(camino, 8);
    int aMedias = 0;
    for (int vez = 0; vez < veces; ++vez) {
        const auto semilla = azar();
        const pid_t hijo = fork();
        if (hijo == 0) {
            Azar propio(semilla);
            ProyectoAbierto proyecto;
            prueba::Abrir(proyecto, camino);
            DiscoQueFalla::Instalado().Fallar(DiscoQueFalla::Falla::Muerte,
                                              1 + static_cast<long>(propio() % 120));
            for (int version = static_cast<int>(propio() % 9000); version < 100'000; ++version) {
                Recordset& lista = proyecto.RegistrosProyecto;
                if (lista.NumeroRegistros() == 0) _exit(2);
                lista.MoverA(1 + static_cast<int>(propio() % static_cast<unsigned>(lista.NumeroRegistros())));
                // The project keeps its size.
                std::size_t cual = propio() % Operaciones.size();
                if (cual == 3 && lista.NumeroRegistros() < 6) cual = 1;
                if (cual == 1 && lista.NumeroRegistros() > 12) cual = 3;
                Operaciones[cual].second(proyecto, version);
            }
            _exit(3);
        }
        int estado = 0;
        waitpid(hijo, &estado, 0);
        Exigir(WIFSIGNALED(estado), "el proceso no murió");
        aMedias += std::filesystem::exists(std::filesystem::path(camino) += "-journal") ? 1 : 0;
        ExigirCoherente(camino, "muerte " + std::to_string(vez));
    }
    std::cout << veces << " muertes, " << aMedias
              << " con un guardado a medias: ningún proyecto incoherente\n";
}

/// Everything that a project holds, to compare.
std::string Contenido(const std::filesystem::path& camino) {
    std::string texto;
    for (const char* tabla : {"LosaDatos", "LosaTramos", "LosaEjes", "LosaJuntasD", "LosaG"}) {
        for (const auto& fila : ConsultarSqlite(camino, std::string("SELECT * FROM ") + tabla)) {
            for (const auto& [columna, valor] : fila) texto += columna + "=" + valor + ";";
        }
    }
    return texto;
}

void Fallas(int, Azar&, const std::filesystem::path& camino) {
    using Falla = DiscoQueFalla::Falla;
    struct Clase {
        Falla Cual;
        const char* Nombre;
        CodigoError Causa;
    };
    DiscoQueFalla& disco = DiscoQueFalla::Instalado();
    const auto original = std::filesystem::path(camino) += ".original";
    const auto apartado = std::filesystem::path(camino) += ".apartado";
    CrearProyecto(original, 6);
    disco.AlDesaparecer = [&] { std::filesystem::rename(camino, apartado); };
    int pruebas = 0;
    for (const auto& [nombre, operacion] : Operaciones) {
        for (const Clase& clase :
             {Clase{Falla::Lleno, "disco lleno", CodigoError::DiscoLleno},
              Clase{Falla::SoloLectura, "sólo lectura", CodigoError::ErrorAccesoRuta},
              Clase{Falla::Bloqueado, "bloqueado", CodigoError::PermisoDenegado},
              Clase{Falla::Desaparece, "desaparece", CodigoError::ArchivoNoEncontrado}}) {
            bool falto = true;
            for (long paso = 1; falto; ++paso) {
                const std::string cuando =
                    std::string(nombre) + ", " + clase.Nombre + ", paso " + std::to_string(paso);
                std::filesystem::remove(camino);
                std::filesystem::remove(apartado);
                std::filesystem::copy_file(original, camino);
                const std::string antes = Contenido(camino);
                ProyectoAbierto proyecto;
                prueba::Abrir(proyecto, camino);
                disco.Fallar(clase.Cual, paso);
                const bool hecho = operacion(proyecto, 77);
                falto = disco.Pasos() >= paso;
                disco.Fallar(Falla::Ninguna, 0);
                const CodigoError causa = proyecto.ConexionProyecto.Causa();
                proyecto.RegistrosProyecto.Cerrar();
                proyecto.ConexionProyecto.Cerrar();
                const bool movido = std::filesystem::exists(apartado);
                // A save that was under way when its file got another name ends in that file.
                if (movido && std::filesystem::exists(std::filesystem::path(camino) += "-journal"))
                    std::filesystem::rename(std::filesystem::path(camino) += "-journal",
                                            std::filesystem::path(apartado) += "-journal");
                const auto& donde = movido ? apartado : camino;
                ExigirCoherente(donde, cuando);
                Exigir((Contenido(donde) != antes) == hecho, "lo dicho no es lo guardado: " + cuando);
                Exigir(hecho || causa == clase.Causa,
                       "se dice " + std::to_string(static_cast<int>(causa)) + ": " + cuando);
                ++pruebas;
            }
        }
    }
    std::cout << pruebas << " fallas, una en cada paso de cada operación: se dicen y nada se pierde\n";
}

void Mutados(int veces, Azar& azar, const std::filesystem::path& camino) {
    const auto entero = std::filesystem::path(camino) += ".entero";
    const auto reparado = std::filesystem::path(camino) += ".reparado";
    CrearProyecto(entero, 60);
    const std::string bueno = LeerArchivo(entero);
    int abiertos = 0;
    int reparados = 0;
    double peor = 0;
    for (int vez = 0; vez < veces; ++vez) {
        std::string bytes = bueno;
        for (auto n = 1 + azar() % 3; n > 0 && bytes.size() > 8; --n) {
            const std::size_t donde =
                azar() % (azar() % 3 == 0 ? std::min<std::size_t>(bytes.size(), 5000) : bytes.size());
            const std::size_t largo = std::min<std::size_t>(1 + azar() % 300, bytes.size() - donde);
            switch (azar() % 6) {
                case 0:
                    bytes[donde] = static_cast<char>(bytes[donde] ^ (1 << (azar() % 8)));
                    break;
                case 1:
                    bytes[donde] = static_cast<char>(azar());
                    break;
                case 2:
                    std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(donde), largo,
                                static_cast<char>(azar()));
                    break;
                case 3:
                    bytes.replace(donde, largo, bytes.substr(azar() % bytes.size(), largo));
                    break;
                case 4:
                    bytes.insert(donde, bytes.substr(azar() % bytes.size(), largo));
                    break;
                default:
                    bytes.erase(donde, azar() % 20 == 0 ? std::string::npos : largo);
            }
        }
        EscribirArchivo(camino, bytes);
        const double inicio = Procesador();
        abiertos += LeerLosas(camino) > 0 ? 1 : 0;
        Exigir(LeerArchivo(camino) == bytes, "un proyecto cambió al leerse: " + std::to_string(vez));
        peor = std::max(peor, Procesador() - inicio);
        std::filesystem::remove(reparado);
        reparados += CompactarBaseDatos(camino, reparado, entero.parent_path() / "plantilla") ? 1 : 0;
        Exigir(LeerArchivo(camino) == bytes, "un proyecto cambió al repararse: " + std::to_string(vez));
        OlvidarGuardado(camino);
    }
    Exigir(peor < SegundosMaximos, "uno tardó " + std::to_string(peor) + " s");
    std::cout << veces << " mutados: " << abiertos << " se abren, " << reparados
              << " se reparan; el más lento " << peor << " s\n";
}

std::string EsquemaHostil(Azar& azar) {
    const auto uno = [&](std::initializer_list<const char*> textos) -> std::string {
        return *(textos.begin() + azar() % textos.size());
    };
    const std::string tabla =
        uno({"LosaDatos", "LosaTramos", "LosaEjes", "LosaJuntasD", "LosaG", "Proyecto"});
    const std::string sinFin = "WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n) ";
    const std::string expresion =
        uno({"hex(zeroblob(90000000))", "randomblob(90000000)", "printf('%.*c', 90000000, 'x')",
             "length(hex(zeroblob(50000000)))", "Nombre || Nombre", "abs(-9223372036854775807)", "1"});
    switch (azar() % 14) {
        case 0:
            return "DROP TABLE " + tabla + "; CREATE VIEW " + tabla + " AS " + sinFin +
                   "SELECT x AS Nombre, x AS Numero FROM n" + uno({"", " ORDER BY x", " LIMIT 100000000"}) +
                   ";";
        case 1:
            return "CREATE TRIGGER d" + std::to_string(azar() % 9) + uno({" AFTER", " BEFORE"}) +
                   uno({" INSERT", " UPDATE", " DELETE"}) + " ON " + tabla + " BEGIN " +
                   uno({"DELETE FROM LosaDatos;",
                        "INSERT INTO LosaTramos (Nombre) SELECT Nombre FROM LosaTramos;",
                        "UPDATE LosaDatos SET Ho = 0;", "SELECT RAISE(ABORT, 'x');"}) +
                   " END;";
        case 2:
            return "ALTER TABLE " + tabla + " ADD COLUMN g TEXT AS (" + expresion + ");";
        case 3:
            return "CREATE VIRTUAL TABLE v" + std::to_string(azar() % 9) + " USING " +
                   uno({"fts3(x)", "fts4(x)", "fts5(x)", "rtree(a, b, c)", "dbstat"}) + ";";
        case 4:
            return "CREATE INDEX i" + std::to_string(azar() % 9) + " ON " + tabla + " (" + expresion + ");";
        case 5:
            return "DROP TABLE " + tabla + "; CREATE TABLE " + tabla +
                   uno({" (Nombre PRIMARY KEY, Numero) WITHOUT ROWID;",
                        " (Nombre COLLATE RTRIM, Numero BLOB);",
                        " (Nombre TEXT DEFAULT (randomblob(90000000)), Numero);",
                        " (rowid, oid, _rowid_, Nombre);",
                        " (Nombre CHECK (length(hex(zeroblob(90000000))) > 0), Numero);",
                        " (\"a'b\", Nombre);"});
        case 6: {
            std::string columnas = "Nombre";
            for (auto n = azar() % 900; n > 0; --n) columnas += ", c" + std::to_string(n);
            return "DROP TABLE " + tabla + "; CREATE TABLE " + tabla + " (" + columnas + ");";
        }
        case 7: {
            std::string tablas;
            for (auto n = azar() % 700; n > 0; --n) tablas += "CREATE TABLE t" + std::to_string(n) + " (x);";
            return tablas;
        }
        case 8:
            return "INSERT INTO " + tabla + " SELECT * FROM " + tabla + ", (" + sinFin +
                   "SELECT x FROM n LIMIT " + uno({"10", "1000", "30000"}) +
                   ") LIMIT 0; INSERT INTO LosaJuntasD " + sinFin + "SELECT 'x' || x, x, x, x FROM n LIMIT " +
                   uno({"10", "1000", "60000"}) + ";";
        case 9:
            return "UPDATE " + tabla + " SET Nombre = " +
                   uno({"zeroblob(20000)", "hex(zeroblob(20000))", "NULL", "1e308", "''' OR ''''='''",
                        "char(0, 65)", "CAST(x'FFFEC3' AS TEXT)"}) +
                   ";";
        case 10:
            return "PRAGMA writable_schema=ON; UPDATE sqlite_master SET sql = " +
                   uno({"replace(sql, 'TABLE', 'VIRTUAL TABLE')", "sql || ' '",
                        "'CREATE TABLE x(' || sql || ')'", "NULL",
                        "replace(sql, 'DOUBLE', 'DOUBLE AS (1)')"}) +
                   " WHERE name = '" + tabla + "';";
        case 11:
            return "PRAGMA writable_schema=ON; UPDATE sqlite_master SET rootpage = " +
                   std::to_string(azar() % 40) + " WHERE name = '" + tabla + "';";
        case 12:
            return "PRAGMA writable_schema=ON; INSERT INTO sqlite_master SELECT type, name, tbl_name, "
                   "rootpage, sql"
                   " FROM sqlite_master;";
        default:
            return "PRAGMA journal_mode=WAL; PRAGMA user_version=" + std::to_string(azar() % 4) +
                   "; PRAGMA application_id=" + uno({"0", "7", "1414679635"}) + ";";
    }
}

/// Makes the hostile file; what has no end of its own stops at a size that the program refuses, or in a
/// while.
void Ensuciar(const std::filesystem::path& camino, const std::string& esquema) {
    constexpr double segundosDeHacerlo = 1;
    sqlite3* base = nullptr;
    sqlite3_open(camino.c_str(), &base);
    double hasta = Procesador() + segundosDeHacerlo;
    sqlite3_progress_handler(
        base, 10, [](void* plazo) { return Procesador() > *static_cast<double*>(plazo) ? 1 : 0; }, &hasta);
    const std::string tope = "PRAGMA max_page_count = 33000; PRAGMA synchronous = OFF;";
    sqlite3_exec(base, (tope + esquema).c_str(), nullptr, nullptr, nullptr);
    sqlite3_close(base);
}

void Esquemas(int veces, Azar& azar, const std::filesystem::path& camino) {
    const auto entero = std::filesystem::path(camino) += ".entero";
    CrearProyecto(entero, 20);
    int abiertos = 0;
    double peor = 0;
    for (int vez = 0; vez < veces; ++vez) {
        std::filesystem::copy_file(entero, camino, std::filesystem::copy_options::overwrite_existing);
        std::string esquema;
        for (auto n = 1 + azar() % 3; n > 0; --n) esquema += EsquemaHostil(azar);
        Ensuciar(camino, esquema);
        const std::string antes = LeerArchivo(camino);
        double inicio = Procesador();
        abiertos += LeerLosas(camino) > 0 ? 1 : 0;
        peor = std::max(peor, Procesador() - inicio);
        Exigir(LeerArchivo(camino) == antes, "cambió al leerse: " + esquema);
        inicio = Procesador();
        ProyectoAbierto proyecto;
        const bool abierto = prueba::Abrir(proyecto, camino);
        if (abierto) {
            for (const auto& [nombre, operacion] : Operaciones) operacion(proyecto, 77);
        }
        peor = std::max(peor, Procesador() - inicio);
        Exigir(abierto || LeerArchivo(camino) == antes, "cambió sin abrirse: " + esquema);
        Exigir(peor < SegundosMaximos, "tardó " + std::to_string(peor) + " s: " + esquema);
        proyecto.RegistrosProyecto.Cerrar();
        proyecto.ConexionProyecto.Cerrar();
        OlvidarGuardado(camino);
    }
    std::cout << veces << " esquemas hostiles: " << abiertos << " se abren; el más lento " << peor << " s\n";
}

/// The rows of a project, each as a text with its table.
std::multiset<std::string> FilasDe(const std::filesystem::path& camino) {
    std::multiset<std::string> filas;
    for (const auto& tabla : ConsultarSqlite(camino, "SELECT name FROM sqlite_master WHERE type = 'table'")) {
        for (const auto& fila :
             ConsultarSqlite(camino, "SELECT rowid, * FROM \"" + tabla.at("name") + "\"")) {
            std::string texto = tabla.at("name");
            for (const auto& [columna, valor] : fila) texto += ";" + columna + "=" + valor;
            filas.insert(texto);
        }
    }
    return filas;
}

void PaginasPerdidas(int veces, Azar& azar, const std::filesystem::path& camino) {
    const auto entero = std::filesystem::path(camino) += ".entero";
    const auto reparado = std::filesystem::path(camino) += ".reparado";
    CrearProyecto(entero, 120);
    const std::string bueno = LeerArchivo(entero);
    const auto filas = FilasDe(entero);
    std::map<std::size_t, std::size_t> enPagina;
    for (const auto& hoja : ConsultarSqlite(
             entero, "SELECT pageno, ncell FROM dbstat WHERE pagetype = 'leaf' AND name NOT LIKE 'sqlite%'"))
        enPagina[std::stoul(hoja.at("pageno"))] = std::stoul(hoja.at("ncell"));
    const std::size_t tamano = 4096;
    const std::size_t paginas = bueno.size() / tamano;
    for (int vez = 0; vez < veces; ++vez) {
        const std::size_t pagina = static_cast<std::size_t>(vez) % paginas + 1;
        std::string bytes = bueno;
        const auto lugar = bytes.begin() + static_cast<std::ptrdiff_t>((pagina - 1) * tamano);
        const auto modo = azar() % 3;
        std::generate_n(lugar, tamano, [&] {
            return static_cast<char>(modo == 0 ? 0 : modo == 1 ? 0xAA : azar());
        });
        EscribirArchivo(camino, bytes);
        std::filesystem::remove(reparado);
        const std::string cual = "página " + std::to_string(pagina) + " de " + std::to_string(paginas);
        Exigir(CompactarBaseDatos(camino, reparado, camino.parent_path() / "plantilla"),
               "no se repara: " + cual);
        const auto salvadas = FilasDe(reparado);
        Exigir(std::includes(filas.begin(), filas.end(), salvadas.begin(), salvadas.end()),
               "filas que no había: " + cual);
        Exigir(salvadas.size() == filas.size() - enPagina[pagina],
               std::to_string(salvadas.size()) + " de " + std::to_string(filas.size()) + " filas: " + cual);
    }
    std::cout << veces << " páginas perdidas: vuelven todas las filas de las demás\n";
}

void Costo(int, Azar&, const std::filesystem::path& camino) {
    constexpr int repeticiones = 200;
    std::map<int, std::pair<double, double>> milisegundos;
    for (const int losas : {20, 2000}) {
        CrearProyecto(camino, losas);
        ProyectoAbierto proyecto;
        prueba::Abrir(proyecto, camino);
        Losa losa;
        LeerLosa(proyecto, losa);
        double inicio = Procesador();
        for (int i = 0; i < repeticiones; ++i) LeerLosa(proyecto, losa);
        milisegundos[losas].first = 1000 * (Procesador() - inicio) / repeticiones;
        inicio = Procesador();
        for (int i = 0; i < repeticiones; ++i) Exigir(GuardarLosa(proyecto, losa), "no se guarda");
        milisegundos[losas].second = 1000 * (Procesador() - inicio) / repeticiones;
        std::cout << losas << " losas: leer " << milisegundos[losas].first << " ms, guardar "
                  << milisegundos[losas].second << " ms\n";
    }
    Exigir(milisegundos[2000].first < 3 * milisegundos[20].first + 0.1 &&
               milisegundos[2000].second < 3 * milisegundos[20].second + 0.1,
           "crece con el proyecto");
}

}  // namespace

int main(int argc, char** argv) {
    using Modo = void (*)(int, Azar&, const std::filesystem::path&);
    const std::map<std::string, Modo> modos{{"muertes", Muertes},         {"fallas", Fallas},
                                            {"mutados", Mutados},         {"esquemas", Esquemas},
                                            {"paginas", PaginasPerdidas}, {"costo", Costo}};
    const auto modo = argc >= 2 ? modos.find(argv[1]) : modos.end();
    if (modo == modos.end()) return 2;
    DiscoQueFalla::Instalado();
    const prueba::CarpetaTemporal carpeta;
    CrearBaseDatos(carpeta / "plantilla", prueba::EsquemaDeProyecto());
    Azar azar(argc >= 4 ? std::strtoull(argv[3], nullptr, 10) : 1);
    modo->second(argc >= 3 ? std::atoi(argv[2]) : 100, azar, carpeta / "obra.los");
    return 0;
}
