#include "base/Archivos.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <utility>

namespace trabex {

namespace {

constexpr std::array<std::pair<std::errc, CodigoError>, 9> Equivalencias{{
    {std::errc::no_space_on_device, CodigoError::DiscoLleno},
    {std::errc::file_too_large, CodigoError::DiscoLleno},
    {std::errc::permission_denied, CodigoError::PermisoDenegado},
    {std::errc::operation_not_permitted, CodigoError::PermisoDenegado},
    {std::errc::read_only_file_system, CodigoError::ErrorAccesoRuta},
    {std::errc::is_a_directory, CodigoError::ErrorAccesoRuta},
    {std::errc::not_a_directory, CodigoError::RutaNoEncontrada},
    {std::errc::no_such_file_or_directory, CodigoError::RutaNoEncontrada},
    {std::errc::file_exists, CodigoError::ArchivoYaExiste},
}};

[[noreturn]] void Abandonar(const std::filesystem::path& aMedias, const std::error_code& causa) {
    std::error_code ignorado;
    std::filesystem::remove(aMedias, ignorado);
    throw ErrorEjecucion(ErrorDeSistema(causa));
}

std::error_code UltimoError() {
    return {errno, std::generic_category()};
}

}  // namespace

CodigoError ErrorDeSistema(const std::error_code& error) {
    for (const auto& [condicion, codigo] : Equivalencias) {
        if (error == condicion) return codigo;
    }
    return CodigoError::ErrorDispositivo;
}

void EscribirArchivo(const std::filesystem::path& camino, std::string_view bytes) {
    std::filesystem::path nuevo = camino;
    nuevo += ".nuevo";
    errno = 0;
    std::ofstream archivo(nuevo, std::ios::binary | std::ios::trunc);
    if (!archivo) throw ErrorEjecucion(ErrorDeSistema(UltimoError()));
    archivo.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    archivo.close();
    if (!archivo) Abandonar(nuevo, UltimoError());
    std::error_code error;
    std::filesystem::rename(nuevo, camino, error);
    if (error) Abandonar(nuevo, error);
}

}  // namespace trabex
