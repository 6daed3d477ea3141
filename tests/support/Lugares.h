#pragma once

#include <string>

namespace trabex::prueba {

/// Where the tree's folder `install` is, and the program folder that was built. In one source of their own:
/// no test then depends on where the tree stands, and a compiler's cache serves all copies of it.
std::string Install();
std::string Programa();

}  // namespace trabex::prueba
