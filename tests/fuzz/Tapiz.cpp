// The settings file: whatever its bytes, what is read is in range and reads back as it was written.

#include "shell/Tapiz.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <tuple>

namespace {

using namespace trabex;
using namespace trabex::programa;

auto Campos(const Tapiz& t) {
    return std::tie(t.Imagen, t.Horizontal, t.Vertical, t.Ajustar, t.Efecto, t.TamanoAyuda, t.FondoAyuda,
                    t.ColorAyuda, t.OcultarAyuda, t.AyudaEnGlobo);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    std::string bytes(reinterpret_cast<const char*>(datos), largo);
    const Tapiz leido = LeerRegistros(bytes);
    const bool enRango = leido.Horizontal <= 2 && leido.Vertical <= 2 && leido.Efecto <= 27 &&
                         leido.TamanoAyuda >= 1 && leido.TamanoAyuda <= 7 && leido.FondoAyuda != 0;
    PonerRegistros(leido, bytes);
    const Tapiz otraVez = LeerRegistros(bytes);
    if (!enRango || bytes.size() < 1280 || Campos(leido) != Campos(otraVez)) std::abort();
    return 0;
}
