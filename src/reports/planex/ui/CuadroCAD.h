#pragma once

#include <cstdint>

namespace trabex::planex::ui {

/// For which edition of the drawing program Planex a file is made.
enum VersionDePlanex : std::uint8_t { Planex8 = 0, Planex2023 = 1 };

/// What the window that asks for the edition leaves to its caller.
struct DestinoCAD {
    std::uint8_t VersionCAD = Planex8;
    bool Aceptado = false;
};

/// Its first button. The second leaves both values as they are.
inline void AceptarCuadroCAD(DestinoCAD& destino) {
    destino = {Planex2023, true};
}

}  // namespace trabex::planex::ui
