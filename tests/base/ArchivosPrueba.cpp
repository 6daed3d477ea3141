#include <csignal>
#include <functional>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/Archivos.h"
#include "base/Texto.h"
#include "support/CarpetaTemporal.h"
#include "support/Errores.h"

namespace trabex::prueba {
namespace {

/// The code of a task in a process of its own, which may lose rights or room.
int EnOtroProceso(const std::function<void()>& antes, const std::function<void()>& tarea) {
    const pid_t hijo = fork();
    if (hijo == 0) {
        antes();
        _exit(CodigoDe(tarea));
    }
    int estado = 0;
    waitpid(hijo, &estado, 0);
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
}

TEST(Archivos, LosFallosTienenSuCodigoYDejanElArchivo) {
    const CarpetaTemporal carpeta;
    const auto archivo = carpeta / "informe.txt";
    EscribirArchivo(archivo, "viejo");
    const auto grande = [&] { EscribirArchivo(archivo, std::string(1 << 20, 'x')); };
    const auto sinSitio = [] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limite{1 << 16, 1 << 16};
        setrlimit(RLIMIT_FSIZE, &limite);
    };
    EXPECT_EQ(EnOtroProceso(sinSitio, grande), 61);
    const CarpetaTemporal otra;
    EscribirArchivo(otra / "grande", std::string(1 << 20, 'x'));
    EXPECT_EQ(EnOtroProceso(sinSitio, [&] { CopiarArchivo(otra / "grande", archivo); }), 61);
    std::filesystem::permissions(carpeta.Camino(), std::filesystem::perms(0555));
    EXPECT_EQ(EnOtroProceso([] { EXPECT_EQ(geteuid() == 0 ? setuid(65534) : 0, 0); }, grande), 70);
    std::filesystem::permissions(carpeta.Camino(), std::filesystem::perms::owner_all);
    EXPECT_EQ(std::filesystem::file_size(archivo), 5U);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(carpeta.Camino()), {}), 1);

    EXPECT_EQ(CodigoDe([&] { EscribirArchivo(carpeta / "no hay" / "x", ""); }), 76);
    EXPECT_EQ(CodigoDe([&] { CopiarArchivo(carpeta / "no hay", archivo); }), 53);
    EXPECT_EQ(CodigoDe([&] { BorrarArchivo(carpeta / "no hay"); }), 53);
    EXPECT_EQ(CodigoDe([&] { BorrarArchivo(carpeta.Camino()); }), 75);
    EXPECT_EQ(std::filesystem::file_size(archivo), 5U);
}

TEST(Texto, MayusculasConAcentos) {
    EXPECT_EQ(Mayusculas("losa ñandú nº 1 ÷"), "LOSA ÑANDÚ Nº 1 ÷");
    EXPECT_EQ(NumeroDeCaracteres("año"), 3U);
    EXPECT_EQ(Recortar("  a b "), "a b");
}

}  // namespace
}  // namespace trabex::prueba
