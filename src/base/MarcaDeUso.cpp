#include "base/MarcaDeUso.h"

#ifndef _WIN32
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace trabex {

#ifdef _WIN32

MarcaDeUso::MarcaDeUso(const std::filesystem::path&) {}
MarcaDeUso::~MarcaDeUso() = default;

bool TieneMarcaDeUso(const std::filesystem::path&) {
    return false;
}

#else

MarcaDeUso::MarcaDeUso(const std::filesystem::path& camino) {
    if (camino.empty()) return;
    archivo_ = open(camino.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (archivo_ >= 0) flock(archivo_, LOCK_SH | LOCK_NB);
}

MarcaDeUso::~MarcaDeUso() {
    if (archivo_ >= 0) close(archivo_);
}

bool TieneMarcaDeUso(const std::filesystem::path& camino) {
    const int archivo = open(camino.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (archivo < 0) return false;
    const bool libre = flock(archivo, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    close(archivo);
    return !libre;
}

#endif

}  // namespace trabex
