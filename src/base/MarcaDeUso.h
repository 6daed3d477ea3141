#pragma once

#include <filesystem>

namespace trabex {

/// Tells other running copies of the program, for as long as it stands, that a file is open here. It keeps
/// nobody from reading or writing. On Windows an open file says so by itself.
class MarcaDeUso {
  public:
    /// With an empty path, or one that can't be opened, it marks nothing.
    explicit MarcaDeUso(const std::filesystem::path& camino);
    ~MarcaDeUso();
    MarcaDeUso(const MarcaDeUso&) = delete;
    MarcaDeUso& operator=(const MarcaDeUso&) = delete;

  private:
    int archivo_ = -1;
};

/// Another running copy of the program, or another mark of this one, stands on a file.
bool TieneMarcaDeUso(const std::filesystem::path& camino);

}  // namespace trabex
