#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <string>

namespace trabex::prueba {

/// A new folder, removed with all it holds at the end.
class CarpetaTemporal {
  public:
    CarpetaTemporal() {
        static std::atomic<int> cuenta{0};
        const auto sello = std::chrono::steady_clock::now().time_since_epoch().count();
        camino_ = std::filesystem::temp_directory_path() /
                  ("trabex ñ " + std::to_string(sello) + "-" + std::to_string(cuenta++));
        std::filesystem::create_directories(camino_);
    }
    ~CarpetaTemporal() {
        std::error_code error;
        std::filesystem::permissions(camino_, std::filesystem::perms::owner_all, error);
        std::filesystem::remove_all(camino_, error);
    }
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

    std::filesystem::path operator/(const std::string& nombre) const { return camino_ / nombre; }
    const std::filesystem::path& Camino() const { return camino_; }

  private:
    std::filesystem::path camino_;
};

}  // namespace trabex::prueba
