// verificacion PAGE [--escribir]: measures, and checks the page or writes it anew. Exit status 1 when a
// difference is past its limit, or the page does not tell what was measured.

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string_view>

#include "Verificacion.h"

using namespace trabex::verificacion;

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("verificacion PAGE [--escribir]\n", stderr);
        return 2;
    }
    Problemas problemas;
    VerificarLosas(problemas);
    VerificarSecciones(problemas);
    VerificarEscaleras(problemas);
    VerificarHelices(problemas);
    VerificarMarcus(problemas);
    bool bien = true;
    for (const Problema& problema : problemas) {
        std::printf("%-9s %8.1e (%.0e) %6zu  %s: %s\n", problema.Cumple() ? "" : "NO CUMPLE", problema.Peor,
                    problema.Limite, problema.Casos, problema.Elemento.c_str(), problema.Que.c_str());
        bien = bien && problema.Cumple();
    }
    const std::string pagina = Pagina(problemas);
    if (argc > 2 && std::string_view(argv[2]) == "--escribir") {
        std::ofstream(argv[1], std::ios::binary) << pagina;
        return bien ? 0 : 1;
    }
    std::ifstream archivo(argv[1], std::ios::binary);
    const std::string escrita{std::istreambuf_iterator<char>(archivo), std::istreambuf_iterator<char>()};
    if (escrita != pagina) std::printf("%s tells other figures: write it anew with --escribir\n", argv[1]);
    return bien && escrita == pagina ? 0 : 1;
}
