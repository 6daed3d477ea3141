// What a project withstands, each as often as one likes: resistencia MODE [TIMES [SEED]].
//
//   muertes    the process dies at a random step of random operations, in the middle of a write too
//   paginas    each page is lost in turn: repair brings back every row of the others
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

double Procesador() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

void Exigir(bool condicion, const std::string& que) {
    if (condicion) return;
    std::cerr << "FALLA: " << que << '\n';
    std::exit(1);
}

/// A slab whose every row tells its version, so that halves of two would be seen.
Losa LosaDe(const std::string& nombre, int version) {
    Losa losa = prueba::LosaUniforme(static_cast<std::size_t>(1 + version % 37), 4, version);
    losa.Nombre = nombre;
    losa.Ho = version;
    for (EjeLosa& eje : losa.Ejes) eje.Eje = std::to_string(version);
    return losa;
}

void CrearProyecto(const std::filesystem::path& camino, int cuantas) {
    std::vector<Losa> losas;
    for (int i = 1; i <= cuantas; ++i) losas.push_back(LosaDe("LOSA Ñ " + std::to_string(i), i));
    std::filesystem::remove(camino);
    Exigir(prueba::CrearProyecto(camino, losas), "no se crea el proyecto");
}

/// Each slab is one version whole, and no row is without its slab.
void ExigirCoherente(const std::filesystem::path& camino, const std::string& cuando) {
    ProyectoAbierto proyecto;
    Exigir(prueba::Abrir(proyecto, camino), "el proyecto no se lee: " + cuando);
    std::set<std::string> nombres;
    for (int i = 1; i <= proyecto.RegistrosProyecto.NumeroRegistros(); ++i) {
        proyecto.RegistrosProyecto.MoverA(i);
        Losa losa;
        LeerLosa(proyecto, losa);
        const int version = static_cast<int>(losa.Ho);
        Exigir(nombres.insert(losa.Nombre).second, "dos losas de un nombre: " + cuando);
        Exigir(losa.Tramos.size() == static_cast<std::size_t>(2 + version % 37) &&
                   losa.Ejes.size() == losa.Tramos.size() + 1,
               "filas de menos o de más: " + cuando);
        for (std::size_t k = 1; k < losa.Tramos.size(); ++k)
            Exigir(losa.Tramos[k].Wp == version && losa.Ejes[k].Eje == std::to_string(version),
                   "dos versiones en una losa: " + cuando);
    }
    Exigir(!nombres.empty(), "no queda ninguna: " + cuando);
    for (const char* hija : HijasDeLosa) {
        const auto sueltas =
            ConsultarSqlite(camino, std::string("SELECT Nombre FROM ") + hija +
                                        " WHERE Nombre NOT IN (SELECT Nombre FROM LosaDatos)");
        Exigir(sueltas.empty(), std::string("filas sin losa en ") + hija + ": " + cuando);
    }
}

/// What the program does to a project: it saves a slab, adds one, deletes one.
const std::array<std::function<void(ProyectoAbierto&, int version)>, 3> Operaciones{
    [](ProyectoAbierto& proyecto, int version) {
        Losa losa = LosaDe(proyecto.RegistrosProyecto.Texto("Nombre"), version);
        GuardarLosa(proyecto, losa);
    },
    [](ProyectoAbierto& proyecto, int version) {
        const std::string nombre = "Ñ " + std::to_string(getpid()) + " " + std::to_string(version);
        Transaccion guardado(proyecto.ConexionProyecto);
        prueba::AgregarLosa(proyecto, LosaDe(nombre, version));
        guardado.Confirmar();
    },
    [](ProyectoAbierto& proyecto, int) {
        BorrarElemento(proyecto.ConexionProyecto, TablasDeLosa, proyecto.RegistrosProyecto);
    },
};

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
                if (cual == 2 && lista.NumeroRegistros() < 6) cual = 1;
                if (cual == 1 && lista.NumeroRegistros() > 12) cual = 2;
                Operaciones[cual](proyecto, version);
            }
            _exit(3);
        }
        int estado = 0;
        waitpid(hijo, &estado, 0);
        Exigir(WIFSIGNALED(estado), "el proceso no murió");
        aMedias += std::filesystem::exists(std::filesystem::path(camino) += "-journal") ? 1 : 0;
        ExigirCoherente(camino, "muerte " + std::to_string(vez));
    }
    {
        ProyectoAbierto proyecto;
        prueba::Abrir(proyecto, camino);
        Operaciones[0](proyecto, 1);
    }
    Exigir(!std::filesystem::exists(std::filesystem::path(camino) += "-journal"), "algo queda al lado");
    std::cout << veces << " muertes, " << aMedias
              << " con un guardado a medias: ningún proyecto incoherente\n";
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

void PaginasPerdidas(int, Azar& azar, const std::filesystem::path& camino) {
    const auto entero = std::filesystem::path(camino) += ".entero";
    const auto reparado = std::filesystem::path(camino) += ".reparado";
    CrearProyecto(entero, 40);
    const std::string bueno = LeerArchivo(entero);
    const auto filas = FilasDe(entero);
    std::map<std::size_t, std::size_t> enPagina;
    for (const auto& hoja : ConsultarSqlite(
             entero, "SELECT pageno, ncell FROM dbstat WHERE pagetype = 'leaf' AND name NOT LIKE 'sqlite%'"))
        enPagina[std::stoul(hoja.at("pageno"))] = std::stoul(hoja.at("ncell"));
    const std::size_t tamano = 4096;
    const std::size_t paginas = bueno.size() / tamano;
    for (std::size_t pagina = 1; pagina <= paginas; ++pagina) {
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
    std::cout << paginas << " páginas perdidas: vuelven todas las filas de las demás\n";
}

void Costo(int, Azar&, const std::filesystem::path& camino) {
    constexpr int repeticiones = 60;
    std::map<int, std::pair<double, double>> milisegundos;
    for (const int losas : {20, 500}) {
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
    Exigir(milisegundos[500].first < 3 * milisegundos[20].first + 0.1 &&
               milisegundos[500].second < 3 * milisegundos[20].second + 0.1,
           "crece con el proyecto");
}

}  // namespace

int main(int argc, char** argv) {
    using Modo = void (*)(int, Azar&, const std::filesystem::path&);
    const std::map<std::string, Modo> modos{
        {"muertes", Muertes}, {"paginas", PaginasPerdidas}, {"costo", Costo}};
    const auto modo = argc >= 2 ? modos.find(argv[1]) : modos.end();
    if (modo == modos.end()) return 2;
    DiscoQueFalla::Instalado();
    const prueba::CarpetaTemporal carpeta;
    CrearBaseDatos(carpeta / "plantilla", prueba::EsquemaDeProyecto());
    Azar azar(argc >= 4 ? std::strtoull(argv[3], nullptr, 10) : 1);
    modo->second(argc >= 3 ? std::atoi(argv[2]) : 100, azar, carpeta / "obra.los");
    return 0;
}
