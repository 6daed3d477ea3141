#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "base/ErrorEjecucion.h"

namespace trabex {

/// The run-time error that stands for what the operating system answered.
CodigoError ErrorDeSistema(const std::error_code& error);

/// Waits until what was written to a file is on the disk, out of a power cut's reach.
std::error_code LlevarAlDisco(const std::filesystem::path& camino);

/// A file that is written beside its place, under a name that nobody foresees, and then takes it: `camino`
/// holds its old bytes or the new ones, never a part, also after a power cut. What was not placed is removed
/// at the end.
class ArchivoNuevo {
  public:
    explicit ArchivoNuevo(std::filesystem::path camino);
    ~ArchivoNuevo();
    ArchivoNuevo(const ArchivoNuevo&) = delete;
    ArchivoNuevo& operator=(const ArchivoNuevo&) = delete;

    /// Where it is written until then.
    const std::filesystem::path& Provisional() const { return provisional_; }
    /// Adds bytes to it. Throws ErrorEjecucion when it can't.
    void Escribir(std::string_view bytes);
    /// Throws ErrorEjecucion when it can't.
    void Colocar();
    /// The same, and with 58 when something stands there.
    void ColocarSinPisar();

  private:
    void Terminar();

    std::filesystem::path camino_;
    std::filesystem::path provisional_;
    std::error_code error_;  // of making it
    std::ofstream archivo_;  // open from the first bytes on
};

/// Writes a whole file in that way. Throws ErrorEjecucion when it can't.
void EscribirArchivo(const std::filesystem::path& camino, std::string_view bytes);

/// Copies a whole file in the same way. Throws ErrorEjecucion 53 when `origen` is no file, and as above.
void CopiarArchivo(const std::filesystem::path& origen, const std::filesystem::path& destino);
/// The same, and with 58 when something stands at `destino`.
void CopiarSinPisar(const std::filesystem::path& origen, const std::filesystem::path& destino);

/// Throws ErrorEjecucion when a file may not be deleted: 53 when there is none, 75 when it is read-only or a
/// folder.
void ExigirBorrable(const std::filesystem::path& camino);

/// Deletes a file, under the same conditions.
void BorrarArchivo(const std::filesystem::path& camino);

/// There is a file or a folder at `camino`; one that can't be looked at counts as missing.
bool Existe(const std::filesystem::path& camino);

/// The files of a folder, in no order; none where it can't be read.
std::vector<std::filesystem::path> ArchivosDe(const std::filesystem::path& carpeta);

/// A path as the UTF-8 that texts are made of, and back.
std::string TextoDeCamino(const std::filesystem::path& camino);
std::filesystem::path CaminoDeTexto(std::string_view texto);

}  // namespace trabex
