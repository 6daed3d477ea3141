#include "store/Plazo.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <ctime>
#endif

namespace trabex::almacen {

namespace {

std::chrono::nanoseconds ProcesadorDelHilo() {
#ifdef _WIN32
    FILETIME inicio, fin, nucleo, usuario;
    if (GetThreadTimes(GetCurrentThread(), &inicio, &fin, &nucleo, &usuario) == 0) return {};
    const auto cuenta = [](const FILETIME& t) {
        return (static_cast<unsigned long long>(t.dwHighDateTime) << 32) | t.dwLowDateTime;
    };
    return std::chrono::nanoseconds(100 * static_cast<long long>(cuenta(nucleo) + cuenta(usuario)));
#else
    timespec tiempo{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &tiempo);
    return std::chrono::seconds(tiempo.tv_sec) + std::chrono::nanoseconds(tiempo.tv_nsec);
#endif
}

}  // namespace

bool Plazo::Vencido() {
    if (porDar_) {
        hasta_ = porDar_->count() == 0 ? std::chrono::nanoseconds(0) : ProcesadorDelHilo() + *porDar_;
        porDar_.reset();
        return false;
    }
    return hasta_.count() != 0 && ProcesadorDelHilo() > hasta_;
}

}  // namespace trabex::almacen
