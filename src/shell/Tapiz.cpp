#include "shell/Tapiz.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>

#include "base/Archivos.h"

namespace trabex::programa {

namespace {

constexpr std::size_t LargoRegistro = 128;
constexpr std::size_t Registros = 10;
constexpr std::uint8_t AlineacionMayor = 2;
constexpr std::uint8_t EfectoMayor = 27;
constexpr std::uint8_t TamanoPorDefecto = 4;
constexpr std::array<int, 7> Puntos{7, 8, 9, 10, 11, 12, 14};

std::size_t Inicio(std::size_t registro) {
    return (registro - 1) * LargoRegistro;
}

/// A little-endian number of `ancho` bytes at the start of a record; bytes past the file's end are 0.
std::uint32_t Numero(const std::string& bytes, std::size_t registro, std::size_t ancho) {
    std::uint32_t valor = 0;
    for (std::size_t k = 0; k < ancho; ++k) {
        const std::size_t donde = Inicio(registro) + k;
        const std::uint32_t byte = donde < bytes.size() ? static_cast<unsigned char>(bytes[donde]) : 0;
        valor |= byte << (8 * k);
    }
    return valor;
}

void PonerNumero(std::string& bytes, std::size_t registro, std::size_t ancho, std::uint32_t valor) {
    for (std::size_t k = 0; k < ancho; ++k)
        bytes[Inicio(registro) + k] = static_cast<char>((valor >> (8 * k)) & 0xFF);
}

void PonerBandera(std::string& bytes, std::size_t registro, bool bandera) {
    PonerNumero(bytes, registro, 2, bandera ? 0xFFFF : 0);
}

std::uint8_t HastaOCero(std::uint32_t valor, std::uint8_t mayor) {
    return valor <= mayor ? static_cast<std::uint8_t>(valor) : std::uint8_t{0};
}

std::string LeerBytes(const std::filesystem::path& archivo) {
    std::ifstream entrada(archivo, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

}  // namespace

int PuntosDeAyuda(std::uint8_t indice) {
    return Puntos[(indice >= 1 && indice <= Puntos.size() ? indice : TamanoPorDefecto) - 1U];
}

Tapiz LeerRegistros(const std::string& bytes) {
    Tapiz tapiz;
    const std::size_t largo = std::min<std::size_t>(Numero(bytes, 1, 2), LargoRegistro - 2);
    if (bytes.size() > 2) tapiz.Imagen = bytes.substr(2, largo);
    tapiz.Horizontal = HastaOCero(Numero(bytes, 2, 2), AlineacionMayor);
    tapiz.Vertical = HastaOCero(Numero(bytes, 3, 2), AlineacionMayor);
    tapiz.Ajustar = Numero(bytes, 4, 2) != 0;
    tapiz.Efecto = HastaOCero(Numero(bytes, 5, 1), EfectoMayor);
    const std::uint32_t tamano = Numero(bytes, 6, 1);
    tapiz.TamanoAyuda =
        tamano >= 1 && tamano <= Puntos.size() ? static_cast<std::uint8_t>(tamano) : TamanoPorDefecto;
    if (const std::uint32_t fondo = Numero(bytes, 7, 4); fondo != 0) tapiz.FondoAyuda = fondo;
    tapiz.ColorAyuda = Numero(bytes, 8, 4);
    tapiz.OcultarAyuda = Numero(bytes, 9, 2) != 0;
    tapiz.AyudaEnGlobo = Numero(bytes, 10, 2) != 0;
    return tapiz;
}

bool PonerRegistros(const Tapiz& tapiz, std::string& bytes) {
    const bool cabe = tapiz.Imagen.size() <= LargoRegistro - 2;
    if (bytes.size() < Registros * LargoRegistro) bytes.resize(Registros * LargoRegistro, '\0');
    if (cabe) {
        PonerNumero(bytes, 1, 2, static_cast<std::uint32_t>(tapiz.Imagen.size()));
        std::copy(tapiz.Imagen.begin(), tapiz.Imagen.end(), bytes.begin() + 2);
    }
    PonerNumero(bytes, 2, 1, tapiz.Horizontal);
    PonerNumero(bytes, 3, 1, tapiz.Vertical);
    PonerBandera(bytes, 4, tapiz.Ajustar);
    PonerNumero(bytes, 5, 1, tapiz.Efecto);
    PonerNumero(bytes, 6, 1, tapiz.TamanoAyuda);
    PonerNumero(bytes, 7, 4, tapiz.FondoAyuda);
    PonerNumero(bytes, 8, 4, tapiz.ColorAyuda);
    PonerBandera(bytes, 9, tapiz.OcultarAyuda);
    PonerBandera(bytes, 10, tapiz.AyudaEnGlobo);
    return cabe;
}

Tapiz LeerTapiz(const std::filesystem::path& archivo, const std::filesystem::path& imagenPorDefecto) {
    Tapiz porDefecto;
    porDefecto.Imagen = TextoDeCamino(imagenPorDefecto);
    std::error_code error;
    const bool existe = std::filesystem::exists(archivo, error);
    const std::string bytes = LeerBytes(archivo);
    Tapiz tapiz = bytes.empty() ? porDefecto : LeerRegistros(bytes);
    const bool imagenPerdida =
        !tapiz.Imagen.empty() && !std::filesystem::exists(CaminoDeTexto(tapiz.Imagen), error);
    if (existe && imagenPerdida) tapiz = porDefecto;
    if (!existe || imagenPerdida) {
        try {
            GuardarTapiz(archivo, porDefecto);
        } catch (const ErrorEjecucion&) {
            return tapiz;  // a folder that can't be written to: the settings hold for this run
        }
    }
    return tapiz;
}

void GuardarTapiz(const std::filesystem::path& archivo, const Tapiz& tapiz) {
    std::string bytes = LeerBytes(archivo);
    const bool cabe = PonerRegistros(tapiz, bytes);
    EscribirArchivo(archivo, bytes);
    if (!cabe) throw ErrorEjecucion(CodigoError::LongitudDeRegistro);
}

}  // namespace trabex::programa
