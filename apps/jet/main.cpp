// Reads a database of the older format into a new file of the program's: apart from the program, for the
// library that reads it trusts what it is given.
//
//     trabex-jet OLD.mdb NEW.db
//
// Exit status 0 done, 2 bad usage, 3 it can't be read, 4 the new file can't be written, 5 the disk is full.

#include "base/Archivos.h"
#include "jet/lector/LeerJet.h"
#include "store/antiguo/CopiaDeJet.h"

#ifndef _WIN32
#include <sys/resource.h>
#endif

namespace {

/// What a damaged file may cost: memory and seconds of processor. Its end is then the process's. The
/// sanitizers need more memory than any file.
void Limitar() {
#if !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__)
    constexpr rlim_t Memoria = rlim_t{2} << 30, Segundos = 60;
    const rlimit memoria{Memoria, Memoria}, segundos{Segundos, Segundos}, sinVolcado{0, 0};
    setrlimit(RLIMIT_AS, &memoria);
    setrlimit(RLIMIT_CPU, &segundos);
    setrlimit(RLIMIT_CORE, &sinVolcado);
#endif
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    Limitar();
    trabex::almacen::antiguo::CopiaDeJet copia(trabex::CaminoDeTexto(argv[2]));
    if (!trabex::jet::lector::LeerJet(trabex::CaminoDeTexto(argv[1]), copia)) return 3;
    if (copia.Terminar()) return 0;
    return copia.Causa() == trabex::CodigoError::DiscoLleno ? 5 : 4;
}
