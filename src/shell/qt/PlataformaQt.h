#pragma once

#include "shell/Plataforma.h"

namespace trabex::programa::qt {

/// The operating system by the toolkit's means.
class PlataformaQt : public Plataforma {
  public:
    std::filesystem::path CarpetaDelPrograma() const override;
    std::filesystem::path CarpetaDeDocumentos() const override;
    std::optional<std::filesystem::path> RaizComun() const override;
    std::string NombreDelUsuario() const override;
    std::string NumeroDeMuestra() const override;
    bool AbrirArchivo(const std::filesystem::path& archivo) override;
    bool AbrirCarpeta(const std::filesystem::path& carpeta) override;
    bool LlevarAPapelera(const std::filesystem::path& archivo) override;
    bool InformacionDelSistema() override;
};

}  // namespace trabex::programa::qt
