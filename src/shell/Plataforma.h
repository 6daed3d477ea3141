#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace trabex::programa {

/// What differs by operating system, in one small place.
class Plataforma {
  public:
    virtual ~Plataforma() = default;

    /// Folder of the executable.
    virtual std::filesystem::path CarpetaDelPrograma() const = 0;
    /// The user's documents folder.
    virtual std::filesystem::path CarpetaDeDocumentos() const = 0;
    /// A root that, when it holds a folder "Nodara Software", is the base of the user's data in the place of
    /// the documents folder: "C:" on Windows, nothing elsewhere.
    virtual std::optional<std::filesystem::path> RaizComun() const = 0;
    /// Full name of the account's user.
    virtual std::string NombreDelUsuario() const = 0;
    /// 1234.56 as the locale writes it with two decimals and separated thousands.
    virtual std::string NumeroDeMuestra() const = 0;

    /// Opens a file with the desktop's program, or a folder in its file manager. False when it could not.
    virtual bool AbrirArchivo(const std::filesystem::path& archivo) = 0;
    virtual bool AbrirCarpeta(const std::filesystem::path& carpeta) = 0;
    /// Moves a file to the desktop's trash. False when there is none, or it does not take it.
    virtual bool LlevarAPapelera(const std::filesystem::path& archivo) = 0;
    /// Starts the desktop's system-information tool. False when there is none.
    virtual bool InformacionDelSistema() = 0;
};

}  // namespace trabex::programa
