// Files that are no project, are damaged, locked or cut short while they are written.

#include <array>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>
#include <utility>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/CarpetaTemporal.h"
#include "support/LosasDePrueba.h"
#include "support/ProyectoDePrueba.h"

namespace trabex {

using namespace almacen;
using namespace almacen::tablas;
using namespace losas;
namespace {

using prueba::EscribirArchivo;
using prueba::LeerArchivo;

Losa Version(char letra, std::size_t tramos) {
    Losa losa = prueba::LosaUniforme(tramos, 4, letra);
    losa.Nombre = "L-1";
    for (EjeLosa& eje : losa.Ejes) eje.Eje = std::string(1, letra);
    losa.Ho = letra;
    return losa;
}

/// A project with one slab of two dozen spans and its neighbours.
void CrearProyecto(const std::filesystem::path& camino) {
    ASSERT_TRUE(CrearBaseDatos(camino, prueba::EsquemaDeProyecto()));
    ProyectoAbierto proyecto;
    ASSERT_TRUE(prueba::Abrir(proyecto, camino));
    for (const char* nombre : {"L-1", "L-2", "L-3"}) {
        Losa losa = Version('A', 24);
        losa.Nombre = nombre;
        ASSERT_TRUE(prueba::AgregarLosa(proyecto, losa));
    }
}

int EnOtroProceso(const std::function<int()>& tarea) {
    const pid_t hijo = fork();
    if (hijo == 0) _exit(tarea());
    int estado = 0;
    waitpid(hijo, &estado, 0);
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
}

/// Waits until a process has told of so many saves, and says how long the last took.
std::chrono::duration<double> DuracionDelUltimo(int tubo, int guardados) {
    auto anterior = std::chrono::steady_clock::now();
    auto ultimo = anterior;
    for (int vez = 0; vez < guardados; ++vez) {
        char listo = 0;
        EXPECT_EQ(read(tubo, &listo, 1), 1);
        anterior = std::exchange(ultimo, std::chrono::steady_clock::now());
    }
    return ultimo - anterior;
}

TEST(Archivos, UnProcesoMuertoAlGuardarDejaLaViejaOLaNueva) {
    const prueba::CarpetaTemporal carpeta;
    const auto camino = carpeta / "obra.los";
    CrearProyecto(camino);
    std::mt19937 azar(1);
    int versionB = 0;
    int aMedias = 0;
    for (int vez = 0; vez < 60; ++vez) {
        std::array<int, 2> tubo{};
        ASSERT_EQ(pipe(tubo.data()), 0);
        const pid_t hijo = fork();
        if (hijo == 0) {
            ProyectoAbierto proyecto;
            prueba::Abrir(proyecto, camino);
            std::array<Losa, 2> versiones{Version('A', 24), Version('B', 37)};
            for (std::size_t k = 0;; ++k) {
                GuardarLosa(proyecto, versiones[k % 2]);
                if (write(tubo[1], "", 1) != 1) _exit(1);
            }
        }
        // Some saves are seen to end, however slow the machine, and one more is cut where it may be.
        const int completos = std::uniform_int_distribution<>(2, 3)(azar);
        const std::chrono::duration<double> unGuardado = DuracionDelUltimo(tubo[0], completos);
        std::this_thread::sleep_for(unGuardado * std::uniform_real_distribution<>(0, 1)(azar));
        kill(hijo, SIGKILL);
        close(tubo[0]);
        close(tubo[1]);
        waitpid(hijo, nullptr, 0);
        aMedias += std::filesystem::exists(carpeta / "obra.los-journal") ? 1 : 0;

        ProyectoAbierto proyecto;
        ASSERT_TRUE(prueba::Abrir(proyecto, camino));
        Losa losa;
        LeerLosa(proyecto, losa);
        const char letra = static_cast<char>(losa.Ho);
        versionB += letra == 'B' ? 1 : 0;
        ASSERT_TRUE(letra == 'A' || letra == 'B');
        ASSERT_EQ(losa.Tramos.size(), letra == 'A' ? 25U : 38U);
        ASSERT_EQ(losa.Ejes.size(), losa.Tramos.size() + 1);
        for (std::size_t i = 1; i < losa.Tramos.size(); ++i) {
            ASSERT_EQ(losa.Tramos[i].Wp, letra);
            ASSERT_EQ(losa.Ejes[i].Eje, std::string(1, letra));
        }
    }
    EXPECT_GT(versionB, 5);
    EXPECT_LT(versionB, 55);
    EXPECT_GT(aMedias, 5);
    ProyectoAbierto proyecto;
    ASSERT_TRUE(prueba::Abrir(proyecto, camino));
    Losa a = Version('A', 24);
    EXPECT_TRUE(GuardarLosa(proyecto, a));
    proyecto.ConexionProyecto.Cerrar();
    EXPECT_FALSE(std::filesystem::exists(carpeta / "obra.los-journal"));  // nothing stays beside the project
}

TEST(Archivos, LoQueNoEsUnProyectoQuedaComoEstaba) {
    const prueba::CarpetaTemporal carpeta;
    CrearProyecto(carpeta / "bueno.los");
    const std::string bueno = LeerArchivo(carpeta / "bueno.los");
    EscribirArchivo(carpeta / "vacio", "");
    EscribirArchivo(carpeta / "texto", std::string(9000, 'x'));
    EscribirArchivo(carpeta / "trunco", bueno.substr(0, bueno.size() / 2));
    EscribirArchivo(carpeta / "cabecera", bueno.substr(0, 16));
    std::filesystem::create_directory(carpeta / "carpeta");
    for (const char* nombre : {"vacio", "texto", "trunco", "cabecera", "carpeta", "no existe"}) {
        const auto camino = carpeta / nombre;
        const std::string antes = LeerArchivo(camino);
        const bool existia = std::filesystem::exists(camino);
        ProyectoAbierto proyecto;
        EXPECT_FALSE(prueba::Abrir(proyecto, camino)) << nombre;
        EXPECT_TRUE(proyecto.ConexionProyecto.ConexionFallida()) << nombre;
        EXPECT_FALSE(proyecto.ConexionProyecto.Ejecutar("DELETE * FROM LosaDatos"));
        Losa losa = Version('B', 2);
        EXPECT_FALSE(GuardarLosa(proyecto, losa));
        AbrirCopiaEnMemoria(proyecto.ConexionProyecto, camino);
        EXPECT_TRUE(proyecto.ConexionProyecto.ConexionFallida()) << nombre;
        EXPECT_EQ(LeerArchivo(camino), antes) << nombre;
        EXPECT_EQ(std::filesystem::exists(camino), existia) << nombre;
    }
    // A sound database without the tables: it opens, and its sets stay closed.
    ASSERT_TRUE(CrearBaseDatos(carpeta / "ajeno", "CREATE TABLE Otra (x INTEGER);"));
    ProyectoAbierto proyecto;
    EXPECT_FALSE(prueba::Abrir(proyecto, carpeta / "ajeno"));
    EXPECT_FALSE(proyecto.ConexionProyecto.ConexionFallida());
}

TEST(Archivos, LosBitsVolteadosNoRompenNiSeEscriben) {
    const prueba::CarpetaTemporal carpeta;
    const auto camino = carpeta / "obra.los";
    CrearProyecto(camino);
    const std::string bueno = LeerArchivo(camino);
    std::mt19937 azar(2);
    int fallidas = 0;
    for (int vez = 0; vez < 400; ++vez) {
        std::string bytes = bueno;
        for (int n = vez % 8; n >= 0; --n) {
            const std::size_t donde = azar() % (vez % 3 == 0 ? 200 : bytes.size());
            bytes[donde] = static_cast<char>(bytes[donde] ^ (1 << (azar() % 8)));
        }
        EscribirArchivo(camino, bytes);
        {
            ProyectoAbierto proyecto;
            prueba::Abrir(proyecto, camino);
            fallidas += proyecto.ConexionProyecto.ConexionFallida() ? 1 : 0;
            for (int i = 1; i <= proyecto.RegistrosProyecto.NumeroRegistros(); ++i) {
                proyecto.RegistrosProyecto.MoverA(i);
                Losa losa;
                LeerLosa(proyecto, losa);
            }
        }
        ASSERT_EQ(LeerArchivo(camino), bytes) << vez;
        std::filesystem::remove(carpeta / "copia");
        CompactarBaseDatos(camino, carpeta / "copia");
        std::filesystem::remove(carpeta / "obra.los-journal");
    }
    EXPECT_GT(fallidas, 20);
}

TEST(Archivos, BloqueadoOSoloLectura) {
    const prueba::CarpetaTemporal carpeta;
    const auto camino = carpeta / "obra.los";
    CrearProyecto(camino);
    const std::string antes = LeerArchivo(camino);
    ProyectoAbierto dueno;
    ASSERT_TRUE(prueba::Abrir(dueno, camino));
    Losa losa;
    {
        // Another program writes: opening and reading go on, saving gives up and loses nothing.
        Transaccion escritura(dueno.ConexionProyecto);
        ProyectoAbierto otro;
        EXPECT_TRUE(prueba::Abrir(otro, camino));
        LeerLosa(otro, losa);
        EXPECT_EQ(losa.Tramos.size(), 25U);
        losa.Ho = 9;
        EXPECT_FALSE(GuardarLosa(otro, losa));
        EXPECT_EQ(otro.RegistrosProyecto.Doble("Ho"), 'A');
    }
    ASSERT_TRUE(dueno.ConexionProyecto.Ejecutar("BEGIN EXCLUSIVE"));
    ProyectoAbierto tercero;
    EXPECT_FALSE(prueba::Abrir(tercero, camino));
    EXPECT_TRUE(tercero.ConexionProyecto.ConexionFallida());
    ASSERT_TRUE(dueno.ConexionProyecto.Ejecutar("ROLLBACK"));
    dueno.ConexionProyecto.Cerrar();

    std::filesystem::permissions(camino, std::filesystem::perms(0444));
    std::filesystem::permissions(carpeta.Camino(), std::filesystem::perms(0555));
    const int codigo = EnOtroProceso([&] {
        if (geteuid() == 0 && setuid(65534) != 0) return 1;
        ProyectoAbierto proyecto;
        if (!prueba::Abrir(proyecto, camino)) return 2;
        Losa leida;
        LeerLosa(proyecto, leida);
        if (leida.Tramos.size() != 25) return 3;
        if (GuardarLosa(proyecto, leida)) return 4;
        DatosDelProyecto datos;
        DatosGenerales generales;
        LeerDatosGenerales(proyecto.ConexionProyecto, "YO", datos, generales);
        return generales.FC == 250 ? 0 : 5;
    });
    EXPECT_EQ(codigo, 0);
    std::filesystem::permissions(carpeta.Camino(), std::filesystem::perms::owner_all);
    EXPECT_EQ(LeerArchivo(camino), antes);
}

TEST(Archivos, LaCopiaEnMemoriaNuncaLlegaAlArchivo) {
    const prueba::CarpetaTemporal carpeta;
    const auto camino = carpeta / "obra.los";
    CrearProyecto(camino);
    const std::string antes = LeerArchivo(camino);
    ProyectoAbierto proyecto;
    AbrirCopiaEnMemoria(proyecto.ConexionProyecto, camino);
    AbrirRecordset(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, ConsultaListaLosas);
    ASSERT_EQ(proyecto.RegistrosProyecto.NumeroRegistros(), 3);
    Losa losa = Version('B', 3);
    EXPECT_TRUE(GuardarLosa(proyecto, losa));
    LeerLosa(proyecto, losa);
    EXPECT_EQ(losa.Tramos.size(), 4U);
    EXPECT_EQ(LeerArchivo(camino), antes);
}

TEST(CompactarBaseDatos, ReescribeLoSano) {
    const prueba::CarpetaTemporal carpeta;
    CrearProyecto(carpeta / "obra.los");
    {
        ProyectoAbierto proyecto;
        prueba::Abrir(proyecto, carpeta / "obra.los");
        Losa larga = Version('C', 3000);
        GuardarLosa(proyecto, larga);
        Losa corta = Version('A', 24);
        GuardarLosa(proyecto, corta);
    }
    ASSERT_TRUE(CompactarBaseDatos(carpeta / "obra.los", carpeta / "nueva.mdb"));
    EXPECT_LT(std::filesystem::file_size(carpeta / "nueva.mdb"),
              std::filesystem::file_size(carpeta / "obra.los") / 2);
    ProyectoAbierto proyecto;
    ASSERT_TRUE(prueba::Abrir(proyecto, carpeta / "nueva.mdb"));
    EXPECT_EQ(proyecto.RegistrosProyecto.NumeroRegistros(), 3);

    EXPECT_FALSE(CompactarBaseDatos(carpeta / "obra.los", carpeta / "nueva.mdb"));  // it exists
    EscribirArchivo(carpeta / "carta.los", "Estimado ingeniero: " + std::string(5000, ' '));
    EXPECT_FALSE(CompactarBaseDatos(carpeta / "carta.los", carpeta / "otra.mdb"));
    EXPECT_FALSE(CompactarBaseDatos(carpeta / "no existe", carpeta / "otra.mdb"));
    EXPECT_FALSE(std::filesystem::exists(carpeta / "otra.mdb"));
}

TEST(CompactarBaseDatos, SalvaLoQueSePuedeLeer) {
    const prueba::CarpetaTemporal carpeta;
    const auto camino = carpeta / "obra.los";
    ASSERT_TRUE(CrearBaseDatos(camino, prueba::EsquemaDeProyecto()));
    constexpr int losas = 250;
    {
        ProyectoAbierto proyecto;
        ASSERT_TRUE(prueba::Abrir(proyecto, camino));
        Transaccion todo(proyecto.ConexionProyecto);
        for (int i = 0; i < losas; ++i) {
            Losa losa = Version('A', 8);
            losa.Nombre = "LOSA " + std::to_string(i);
            ASSERT_TRUE(prueba::AgregarLosa(proyecto, losa));
        }
        ASSERT_TRUE(todo.Confirmar());
    }
    // Two pages of spans far from each other are lost.
    std::string bytes = LeerArchivo(camino);
    for (const char* marca : {"LOSA 90", "LOSA 190"}) {
        const std::size_t pagina = bytes.rfind(marca) / 4096 * 4096;
        std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(pagina), 4096, '\xAA');
    }
    EscribirArchivo(camino, bytes);
    ProyectoAbierto proyecto;
    EXPECT_FALSE(prueba::Abrir(proyecto, camino));
    ASSERT_TRUE(CompactarBaseDatos(camino, carpeta / "salvado"));
    ASSERT_TRUE(prueba::Abrir(proyecto, carpeta / "salvado"));
    EXPECT_GT(proyecto.RegistrosProyecto.NumeroRegistros(), losas * 3 / 4);
    int enteras = 0;
    for (int i = 1; i <= proyecto.RegistrosProyecto.NumeroRegistros(); ++i) {
        proyecto.RegistrosProyecto.MoverA(i);
        Losa losa;
        LeerLosa(proyecto, losa);
        enteras += losa.Tramos.size() == 9 && losa.Ejes.size() == 10 ? 1 : 0;
    }
    EXPECT_GT(enteras, losas / 2);
}

}  // namespace
}  // namespace trabex
