#include "base/Proceso.h"

#include <string>
#include <thread>

#ifdef _WIN32
#include <windows.h>
#else
#include <csignal>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace trabex {

#ifdef _WIN32

std::optional<int> CorrerPrograma(const std::filesystem::path& programa,
                                  const std::vector<std::filesystem::path>& argumentos,
                                  std::chrono::milliseconds plazo) {
    std::wstring orden = L"\"" + programa.wstring() + L"\"";
    for (const std::filesystem::path& argumento : argumentos) orden += L" \"" + argumento.wstring() + L"\"";
    STARTUPINFOW arranque{};
    arranque.cb = sizeof arranque;
    PROCESS_INFORMATION proceso{};
    if (!CreateProcessW(programa.c_str(), orden.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                        nullptr, &arranque, &proceso))
        return std::nullopt;
    const bool acabo =
        WaitForSingleObject(proceso.hProcess, static_cast<DWORD>(plazo.count())) == WAIT_OBJECT_0;
    if (!acabo) TerminateProcess(proceso.hProcess, 1);
    DWORD estado = 0;
    const bool leido = GetExitCodeProcess(proceso.hProcess, &estado);
    CloseHandle(proceso.hThread);
    CloseHandle(proceso.hProcess);
    // A fault of the process is told as a status of the system's, past any of its own.
    return acabo && leido && estado < 0x80 ? std::optional(static_cast<int>(estado)) : std::nullopt;
}

#else

std::optional<int> CorrerPrograma(const std::filesystem::path& programa,
                                  const std::vector<std::filesystem::path>& argumentos,
                                  std::chrono::milliseconds plazo) {
    std::vector<std::string> textos{programa.string()};
    textos.reserve(argumentos.size() + 1);
    for (const std::filesystem::path& argumento : argumentos) textos.push_back(argumento.string());
    std::vector<char*> punteros;
    punteros.reserve(textos.size() + 1);
    for (std::string& texto : textos) punteros.push_back(texto.data());
    punteros.push_back(nullptr);

    posix_spawn_file_actions_t acciones;
    posix_spawn_file_actions_init(&acciones);
    posix_spawn_file_actions_addopen(&acciones, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&acciones, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&acciones, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t proceso = 0;
    const int arranque =
        posix_spawn(&proceso, punteros.front(), &acciones, nullptr, punteros.data(), environ);
    posix_spawn_file_actions_destroy(&acciones);
    if (arranque != 0) return std::nullopt;

    constexpr std::chrono::milliseconds Paso{5};
    const auto hasta = std::chrono::steady_clock::now() + plazo;
    int estado = 0;
    while (waitpid(proceso, &estado, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > hasta) {
            kill(proceso, SIGKILL);
            waitpid(proceso, &estado, 0);
            return std::nullopt;
        }
        std::this_thread::sleep_for(Paso);
    }
    return WIFEXITED(estado) ? std::optional(WEXITSTATUS(estado)) : std::nullopt;
}

#endif

}  // namespace trabex
