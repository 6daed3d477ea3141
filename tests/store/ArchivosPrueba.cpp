// Files that are no project, are damaged or locked.

#include <functional>

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

Losa Version(char letra, std::size_t tramos, const char* nombre = "L-1") {
    Losa losa = prueba::LosaUniforme(tramos, 4, letra);
    losa.Nombre = nombre;
    losa.Ho = letra;
    return losa;
}

/// A project with one slab of two dozen spans and its neighbours.
void CrearProyecto(const std::filesystem::path& camino) {
    ASSERT_TRUE(
        prueba::CrearProyecto(camino, {Version('A', 24), Version('A', 24, "L-2"), Version('A', 24, "L-3")}));
}

int EnOtroProceso(const std::function<int()>& tarea) {
    const pid_t hijo = fork();
    if (hijo == 0) _exit(tarea());
    int estado = 0;
    waitpid(hijo, &estado, 0);
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
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

}  // namespace
}  // namespace trabex
