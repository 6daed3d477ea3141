#include "base/Archivos.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <random>
#include <utility>

#include <fcntl.h>
#ifdef _WIN32
#include <io.h>
#include <sys/stat.h>
#else
#include <unistd.h>
#endif

namespace trabex {

namespace {

constexpr std::array<std::pair<std::errc, CodigoError>, 10> Equivalencias{{
    {std::errc::no_space_on_device, CodigoError::DiscoLleno},
    {std::errc::file_too_large, CodigoError::DiscoLleno},
    {std::errc::not_enough_memory, CodigoError::MemoriaInsuficiente},
    {std::errc::permission_denied, CodigoError::PermisoDenegado},
    {std::errc::operation_not_permitted, CodigoError::PermisoDenegado},
    {std::errc::read_only_file_system, CodigoError::ErrorAccesoRuta},
    {std::errc::is_a_directory, CodigoError::ErrorAccesoRuta},
    {std::errc::not_a_directory, CodigoError::RutaNoEncontrada},
    {std::errc::no_such_file_or_directory, CodigoError::RutaNoEncontrada},
    {std::errc::file_exists, CodigoError::ArchivoYaExiste},
}};

std::error_code UltimoError() {
    return {errno, std::generic_category()};
}

}  // namespace

CodigoError ErrorDeSistema(const std::error_code& error) {
#ifdef EDQUOT
    if (error.value() == EDQUOT) return CodigoError::DiscoLleno;  // the user's part of it
#endif
    for (const auto& [condicion, codigo] : Equivalencias) {
        if (error == condicion) return codigo;
    }
    return CodigoError::ErrorDispositivo;
}

std::error_code LlevarAlDisco(const std::filesystem::path& camino) {
#ifdef _WIN32
    const int archivo = _wopen(camino.c_str(), _O_WRONLY | _O_BINARY);
    const bool hecho = archivo >= 0 && _commit(archivo) == 0;
    const std::error_code error = hecho ? std::error_code() : UltimoError();
    if (archivo >= 0) _close(archivo);
#else
    const int archivo = open(camino.c_str(), O_RDONLY | O_CLOEXEC);
    // EINVAL: a file system that has nothing to wait for.
    const bool hecho = archivo >= 0 && (fsync(archivo) == 0 || errno == EINVAL);
    const std::error_code error = hecho ? std::error_code() : UltimoError();
    if (archivo >= 0) close(archivo);
#endif
    return error;
}

namespace {

/// A new, empty file, or why there is none: a name that is already there is taken by nobody.
std::error_code Crear(const std::filesystem::path& camino) {
#ifdef _WIN32
    const int archivo = _wopen(camino.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL, _S_IREAD | _S_IWRITE);
#else
    const int archivo = open(camino.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
#endif
    if (archivo < 0) return UltimoError();
    close(archivo);
    return {};
}

std::filesystem::path NombreImprevisible(const std::filesystem::path& camino) {
    std::random_device azar;
    std::array<char, 24> cola{};
    std::snprintf(cola.data(), cola.size(), ".%08x%08x.nuevo", azar(), azar());
    return std::filesystem::path(camino) += cola.data();
}

/// Waits until a folder's names are on the disk. Where the system does not let one wait there is nothing to
/// be done.
void LlevarNombresAlDisco(const std::filesystem::path& carpeta) {
#ifndef _WIN32
    LlevarAlDisco(carpeta.empty() ? "." : carpeta);
#else
    static_cast<void>(carpeta);
#endif
}

/// Gives a file another name, which nothing may have yet.
void RenombrarSinPisar(const std::filesystem::path& de, const std::filesystem::path& a,
                       std::error_code& error) {
    std::filesystem::create_hard_link(de, a, error);
    if (!error) {
        std::filesystem::remove(de, error);
    } else if (error != std::errc::file_exists) {  // a file system without such links
        if (Existe(a))
            error = std::make_error_code(std::errc::file_exists);
        else
            std::filesystem::rename(de, a, error);
    }
}

}  // namespace

ArchivoNuevo::ArchivoNuevo(std::filesystem::path camino)
    : camino_(std::move(camino)), provisional_(NombreImprevisible(camino_)), error_(Crear(provisional_)) {}

ArchivoNuevo::~ArchivoNuevo() {
    archivo_.close();
    std::error_code ignorado;
    if (!error_) std::filesystem::remove(provisional_, ignorado);
}

void ArchivoNuevo::Escribir(std::string_view bytes) {
    if (error_) throw ErrorEjecucion(ErrorDeSistema(error_));
    if (bytes.empty()) return;
    errno = 0;
    if (!archivo_.is_open()) archivo_.open(provisional_, std::ios::binary | std::ios::trunc);
    archivo_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!archivo_) throw ErrorEjecucion(ErrorDeSistema(UltimoError()));
}

void ArchivoNuevo::Terminar() {
    if (error_) throw ErrorEjecucion(ErrorDeSistema(error_));
    errno = 0;
    if (archivo_.is_open()) archivo_.close();
    if (!archivo_) throw ErrorEjecucion(ErrorDeSistema(UltimoError()));
    if (const std::error_code error = LlevarAlDisco(provisional_))
        throw ErrorEjecucion(ErrorDeSistema(error));
}

void ArchivoNuevo::Colocar() {
    Terminar();
    std::error_code error;
    std::filesystem::rename(provisional_, camino_, error);
    if (error) throw ErrorEjecucion(ErrorDeSistema(error));
    LlevarNombresAlDisco(camino_.parent_path());
}

void ArchivoNuevo::ColocarSinPisar() {
    Terminar();
    std::error_code error;
    RenombrarSinPisar(provisional_, camino_, error);
    if (error) throw ErrorEjecucion(ErrorDeSistema(error));
    LlevarNombresAlDisco(camino_.parent_path());
}

void EscribirArchivo(const std::filesystem::path& camino, std::string_view bytes) {
    ArchivoNuevo nuevo(camino);
    nuevo.Escribir(bytes);
    nuevo.Colocar();
}

namespace {

void Copiar(const std::filesystem::path& origen, ArchivoNuevo& nuevo) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(origen, error))
        throw ErrorEjecucion(CodigoError::ArchivoNoEncontrado);
    nuevo.Escribir("");
    // Piece by piece: the library's own copy tells a full disk as any other fault.
    errno = 0;
    std::ifstream leido(origen, std::ios::binary);
    if (!leido) throw ErrorEjecucion(ErrorDeSistema(UltimoError()));
    constexpr std::size_t Trozo = 1 << 20;
    std::string bytes(Trozo, '\0');
    while (leido.read(bytes.data(), static_cast<std::streamsize>(Trozo)) || leido.gcount() > 0)
        nuevo.Escribir(std::string_view(bytes).substr(0, static_cast<std::size_t>(leido.gcount())));
    if (leido.bad()) throw ErrorEjecucion(CodigoError::ErrorDispositivo);
    // A delivered file may be read-only where the program is installed; its copy is the engineer's.
    std::filesystem::permissions(
        nuevo.Provisional(),
        std::filesystem::status(origen, error).permissions() | std::filesystem::perms::owner_write, error);
}

}  // namespace

void CopiarArchivo(const std::filesystem::path& origen, const std::filesystem::path& destino) {
    ArchivoNuevo nuevo(destino);
    Copiar(origen, nuevo);
    nuevo.Colocar();
}

void CopiarSinPisar(const std::filesystem::path& origen, const std::filesystem::path& destino) {
    ArchivoNuevo nuevo(destino);
    Copiar(origen, nuevo);
    nuevo.ColocarSinPisar();
}

void ExigirBorrable(const std::filesystem::path& camino) {
    std::error_code error;
    const std::filesystem::file_status estado = std::filesystem::status(camino, error);
    if (!std::filesystem::exists(estado)) throw ErrorEjecucion(CodigoError::ArchivoNoEncontrado);
    const bool escribible =
        (estado.permissions() & std::filesystem::perms::owner_write) != std::filesystem::perms::none;
    if (!std::filesystem::is_regular_file(estado) || !escribible)
        throw ErrorEjecucion(CodigoError::ErrorAccesoRuta);
}

void BorrarArchivo(const std::filesystem::path& camino) {
    ExigirBorrable(camino);
    std::error_code error;
    if (!std::filesystem::remove(camino, error)) throw ErrorEjecucion(ErrorDeSistema(error));
}

bool Existe(const std::filesystem::path& camino) {
    std::error_code error;
    return std::filesystem::exists(camino, error);
}

std::vector<std::filesystem::path> ArchivosDe(const std::filesystem::path& carpeta) {
    std::vector<std::filesystem::path> archivos;
    std::error_code error;
    std::filesystem::directory_iterator entrada(carpeta, error);
    for (; !error && entrada != std::filesystem::directory_iterator(); entrada.increment(error)) {
        std::error_code ignorado;
        if (entrada->is_regular_file(ignorado)) archivos.push_back(entrada->path());
    }
    return archivos;
}

std::string TextoDeCamino(const std::filesystem::path& camino) {
    const std::u8string texto = camino.u8string();
    return {texto.begin(), texto.end()};
}

std::filesystem::path CaminoDeTexto(std::string_view texto) {
    return std::filesystem::path(std::u8string(texto.begin(), texto.end()));
}

}  // namespace trabex
