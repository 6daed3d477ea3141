#include "base/Fecha.h"

#include <ctime>

namespace trabex {

Fecha Hoy() {
    const std::time_t ahora = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &ahora);
#else
    localtime_r(&ahora, &local);
#endif
    return std::chrono::year(local.tm_year + 1900) / (local.tm_mon + 1) / local.tm_mday;
}

}  // namespace trabex
