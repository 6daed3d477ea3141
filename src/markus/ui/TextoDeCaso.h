#pragma once

#include <cstdint>
#include <string>

namespace trabex::marcus::ui {

/// What a support case is, in words: "Caso 4: apoyado en X; un borde empotrado en Y".
std::string TextoDeCaso(std::int16_t caso);

}  // namespace trabex::marcus::ui
