#include "lote/Terminal.h"

#include <cstdio>
#include <iostream>
#include <memory>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace trabex::lote {

namespace {

bool EsTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace

std::function<void(const std::string&, std::size_t, std::size_t)> AvanceEnTerminal() {
    if (!EsTerminal()) return {};
    return [mostrado = std::make_shared<std::string>()](const std::string& tarea, std::size_t hechos,
                                                        std::size_t total) {
        const std::string linea = tarea + "... " + std::to_string(100 * hechos / total) + " %";
        if (linea == *mostrado) return;
        std::cerr << '\r' << linea << "\x1b[K" << (hechos == total ? "\r\x1b[K" : "") << std::flush;
        *mostrado = linea;
    };
}

}  // namespace trabex::lote
