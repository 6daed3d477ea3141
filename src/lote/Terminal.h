#pragma once

#include <functional>
#include <string>

namespace trabex::lote {

/// Shows on one line of standard error how far each task is, where that is a terminal; empty elsewhere.
std::function<void(const std::string& tarea, std::size_t hechos, std::size_t total)> AvanceEnTerminal();

}  // namespace trabex::lote
