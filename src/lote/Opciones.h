#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>

#include "lote/Calculo.h"

namespace trabex::lote {

/// What a command line asks for.
struct Opciones {
    std::filesystem::path Proyecto;
    std::filesystem::path Carpeta;
    bool SinDibujos = false;       ///< nothing is drawn: neither sheets nor the reports' drawings
    std::set<std::string> Solo{};  ///< outputs beside the results; empty: all

    bool Pide(std::string_view salida) const;
};

inline constexpr const char* SalidaHojas = "hojas";
inline constexpr const char* SalidaReportes = "reportes";
// Only where they are asked for by name.
inline constexpr const char* SalidaMemoria = "memoria";
inline constexpr const char* SalidaVectores = "vectores";

/// The arguments after the program's name. Nothing when they are not
/// `[--sin-dibujos] [--solo=SALIDA,…] PROYECTO CARPETA`, or name an output that neither the program nor a
/// module knows.
std::optional<Opciones> LeerOpciones(std::span<const char* const> argumentos, Modulos modulos);

/// How the program is used, in one line.
std::string Uso(Modulos modulos);

}  // namespace trabex::lote
