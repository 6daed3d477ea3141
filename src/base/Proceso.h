#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <vector>

namespace trabex {

/// Runs a program with paths as its arguments, without input, and waits for its end. Its exit status; nothing
/// when it could not be started, died, or was stopped because `plazo` passed.
std::optional<int> CorrerPrograma(const std::filesystem::path& programa,
                                  const std::vector<std::filesystem::path>& argumentos,
                                  std::chrono::milliseconds plazo);

}  // namespace trabex
