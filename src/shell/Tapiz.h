#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace trabex::programa {

/// The user's settings: the ten records of `Tapiz.tbx`.
struct Tapiz {
    std::string Imagen;                   ///< 1: path of the wallpaper picture
    std::uint8_t Horizontal = 0;          ///< 2: alignment 0 centred, 1 left, 2 right
    std::uint8_t Vertical = 0;            ///< 3: alignment 0 centred, 1 top, 2 bottom
    bool Ajustar = false;                 ///< 4: the picture fills the window
    std::uint8_t Efecto = 0;              ///< 5: effect of the picture control, 0 to 27
    std::uint8_t TamanoAyuda = 4;         ///< 6: tool-tip size index, 1 to 7
    std::uint32_t FondoAyuda = 0xD6F4FF;  ///< 7: tool-tip back colour, as 0xBBGGRR
    std::uint32_t ColorAyuda = 0;         ///< 8: tool-tip text colour
    bool OcultarAyuda = false;            ///< 9: tool tips are not shown
    bool AyudaEnGlobo = false;            ///< 10: tool tips have a balloon's shape
};

/// Font size in points of a tool-tip size index: 1 to 7, otherwise that of 4.
int PuntosDeAyuda(std::uint8_t indice);

/// The settings of a file's bytes, with what is out of range or missing as its default.
Tapiz LeerRegistros(const std::string& bytes);

/// Puts the settings into a file's bytes: records of 128 bytes, little-endian, the path as a 16-bit length
/// and its UTF-8. Alignments are written as one byte, and what else a record held stays. False when the path
/// does not fit its record, which then stays as it was; the other nine are put all the same.
bool PonerRegistros(const Tapiz& tapiz, std::string& bytes);

/// Reads the settings at start: a file that is missing is made, and a picture that no longer exists brings
/// the defaults back. A file that can't be read gives the defaults and is left alone.
Tapiz LeerTapiz(const std::filesystem::path& archivo, const std::filesystem::path& imagenPorDefecto);

/// Writes the settings. Throws ErrorEjecucion; 59 when all but the picture's path were written, which is too
/// long.
void GuardarTapiz(const std::filesystem::path& archivo, const Tapiz& tapiz);

}  // namespace trabex::programa
