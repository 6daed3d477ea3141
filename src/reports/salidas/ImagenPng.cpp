#include "reports/salidas/ImagenPng.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>
#include <unordered_map>
#include <utility>

#include <png.h>

#include "reports/salidas/CabeceraJpeg.h"

namespace trabex::salidas {

namespace {

constexpr std::uint32_t LadoMaximo = 30000;
constexpr std::size_t InicioInformacion = 14;  // after the file's own header

std::uint32_t Entero(const almacen::Bytes& archivo, std::size_t lugar, std::size_t bytes) {
    std::uint32_t valor = 0;
    for (std::size_t i = 0; i < bytes && lugar + i < archivo.size(); ++i)
        valor |= std::to_integer<std::uint32_t>(archivo[lugar + i]) << (8 * i);
    return valor;
}

/// The parts of a bitmap's header that its pixels need.
struct CabeceraMapa {
    std::uint32_t Ancho;
    std::uint32_t Alto;
    bool DesdeArriba;
    std::uint32_t Bits;
    std::size_t Paleta;
    std::size_t Colores;
    std::size_t Pixeles;
    std::size_t Renglon;
};

std::optional<CabeceraMapa> LeerCabecera(const almacen::Bytes& archivo) {
    if (archivo.size() < InicioInformacion + 40 || Entero(archivo, 0, 2) != 0x4D42) return std::nullopt;
    const std::uint32_t tamano = Entero(archivo, InicioInformacion, 4);
    const auto alto = static_cast<std::int32_t>(Entero(archivo, InicioInformacion + 8, 4));
    CabeceraMapa c{};
    c.Ancho = Entero(archivo, InicioInformacion + 4, 4);
    c.DesdeArriba = alto < 0;
    c.Alto = c.DesdeArriba ? 0U - static_cast<std::uint32_t>(alto) : static_cast<std::uint32_t>(alto);
    c.Bits = Entero(archivo, InicioInformacion + 14, 2);
    const std::uint32_t compresion = Entero(archivo, InicioInformacion + 16, 4);
    const std::uint32_t colores = Entero(archivo, InicioInformacion + 32, 4);
    constexpr std::array<std::uint32_t, 5> conocidos{1, 4, 8, 24, 32};
    const bool conocido = std::find(conocidos.begin(), conocidos.end(), c.Bits) != conocidos.end();
    if (tamano < 40 || compresion != 0 || !conocido || c.Ancho == 0 || c.Alto == 0 || c.Ancho > LadoMaximo ||
        c.Alto > LadoMaximo)
        return std::nullopt;
    c.Paleta = InicioInformacion + tamano;
    c.Colores =
        c.Bits > 8 ? 0 : std::min<std::size_t>(colores == 0 ? 256 : colores, std::size_t{1} << c.Bits);
    c.Pixeles = Entero(archivo, 10, 4);
    c.Renglon = (static_cast<std::size_t>(c.Ancho) * c.Bits + 31) / 32 * 4;
    const bool cabe = c.Paleta + 4 * c.Colores <= archivo.size() && c.Pixeles <= archivo.size() &&
                      c.Renglon * c.Alto <= archivo.size() - c.Pixeles;
    return cabe ? std::optional(c) : std::nullopt;
}

/// Where the blue, green and red bytes of a pixel stand.
std::size_t LugarDelColor(const almacen::Bytes& archivo, const CabeceraMapa& c, std::size_t renglon,
                          std::uint32_t x) {
    if (c.Bits >= 24) return renglon + static_cast<std::size_t>(x) * (c.Bits / 8);
    const std::uint32_t porByte = 8 / c.Bits;
    const auto byte = std::to_integer<std::uint32_t>(archivo[renglon + x / porByte]);
    const std::uint32_t indice = byte >> (8 - c.Bits * (x % porByte + 1)) & ((1U << c.Bits) - 1);
    return c.Paleta + 4 * std::min<std::size_t>(indice, c.Colores - 1);
}

/// A picture of few colours: the number of each pixel's colour, and the colours.
struct ConPaleta {
    std::vector<std::uint8_t> Indices;
    std::vector<std::uint8_t> Colores;
};

std::optional<ConPaleta> Empaletar(const MapaDeBits& mapa) {
    ConPaleta salida;
    salida.Indices.reserve(mapa.Pixeles.size() / 3);
    std::unordered_map<std::uint32_t, std::uint8_t> numeros;
    std::uint32_t anterior = 0xFFFFFFFF;
    std::uint8_t numero = 0;
    for (std::size_t i = 0; i + 2 < mapa.Pixeles.size(); i += 3) {
        const std::uint32_t color = static_cast<std::uint32_t>(mapa.Pixeles[i]) << 16 |
                                    static_cast<std::uint32_t>(mapa.Pixeles[i + 1]) << 8 |
                                    mapa.Pixeles[i + 2];
        if (color != anterior) {
            const auto [lugar, nuevo] = numeros.try_emplace(color, static_cast<std::uint8_t>(numeros.size()));
            if (nuevo && numeros.size() > 256) return std::nullopt;
            if (nuevo) salida.Colores.insert(salida.Colores.end(), &mapa.Pixeles[i], &mapa.Pixeles[i] + 3);
            anterior = color;
            numero = lugar->second;
        }
        salida.Indices.push_back(numero);
    }
    return salida;
}

/// Pixels as the bytes of a PNG: of one byte each with `colores` (three bytes an entry), or of three without.
/// Empty when the library refuses.
almacen::Bytes Comprimir(std::uint32_t ancho, std::uint32_t alto, std::span<const std::uint8_t> pixeles,
                         std::span<const std::uint8_t> colores) {
    png_image imagen{};
    imagen.version = PNG_IMAGE_VERSION;
    imagen.width = ancho;
    imagen.height = alto;
    imagen.format = colores.empty() ? PNG_FORMAT_RGB : PNG_FORMAT_RGB_COLORMAP;
    imagen.colormap_entries = static_cast<png_uint_32>(colores.size() / 3);
    imagen.flags = PNG_IMAGE_FLAG_FAST;  // of drawings half the time, for some 30 kB
    png_alloc_size_t bytes = PNG_IMAGE_PNG_SIZE_MAX(imagen);
    almacen::Bytes archivo(bytes);
    const void* paleta = colores.empty() ? nullptr : colores.data();
    if (png_image_write_to_memory(&imagen, archivo.data(), &bytes, 0, pixeles.data(), 0, paleta) == 0)
        return {};
    archivo.resize(bytes);
    archivo.shrink_to_fit();
    return archivo;
}

std::optional<ImagenComprimida> EscribirPng(const MapaDeBits& mapa) {
    const auto paleta = Empaletar(mapa);
    almacen::Bytes archivo = paleta ? Comprimir(mapa.Ancho, mapa.Alto, paleta->Indices, paleta->Colores)
                                    : Comprimir(mapa.Ancho, mapa.Alto, mapa.Pixeles, {});
    if (archivo.empty()) return std::nullopt;
    return ImagenComprimida{mapa.Ancho, mapa.Alto, std::move(archivo)};
}

constexpr std::array<unsigned char, 8> FirmaPng{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

std::uint32_t EnteroDeRed(const almacen::Bytes& archivo, std::size_t lugar) {
    std::uint32_t valor = 0;
    for (std::size_t i = 0; i < 4; ++i)
        valor = valor << 8 | std::to_integer<std::uint32_t>(archivo[lugar + i]);
    return valor;
}

}  // namespace

std::optional<MapaDeBits> LeerMapaDeBits(const almacen::Bytes& archivo) {
    if (const auto plano = MapaSinComprimir(archivo)) return LeerMapaDeBits(*plano);
    const auto cabecera = LeerCabecera(archivo);
    if (!cabecera) return std::nullopt;
    MapaDeBits mapa{cabecera->Ancho, cabecera->Alto, {}};
    mapa.Pixeles.reserve(static_cast<std::size_t>(mapa.Ancho) * mapa.Alto * 3);
    for (std::uint32_t y = 0; y < mapa.Alto; ++y) {
        const std::uint32_t guardado = cabecera->DesdeArriba ? y : mapa.Alto - 1 - y;
        const std::size_t renglon = cabecera->Pixeles + guardado * cabecera->Renglon;
        for (std::uint32_t x = 0; x < mapa.Ancho; ++x) {
            const std::size_t color = LugarDelColor(archivo, *cabecera, renglon, x);
            for (const std::size_t parte : {2U, 1U, 0U})
                mapa.Pixeles.push_back(std::to_integer<std::uint8_t>(archivo[color + parte]));
        }
    }
    return mapa;
}

almacen::Bytes PngDe(const ImagenDePaleta& imagen) {
    std::vector<std::uint8_t> colores;
    for (const std::uint32_t color : imagen.Paleta) {
        for (const unsigned corrimiento : {16U, 8U, 0U})
            colores.push_back(static_cast<std::uint8_t>(color >> corrimiento & 0xFF));
    }
    return Comprimir(static_cast<std::uint32_t>(imagen.Ancho), static_cast<std::uint32_t>(imagen.Alto),
                     imagen.Pixeles, colores);
}

std::optional<ImagenComprimida> Comprimida(const almacen::Bytes& archivo) {
    constexpr std::size_t medidas = 16;  // after the signature and the first chunk's length and name
    if (archivo.size() >= medidas + 8 && std::memcmp(archivo.data(), FirmaPng.data(), FirmaPng.size()) == 0)
        return ImagenComprimida{EnteroDeRed(archivo, medidas), EnteroDeRed(archivo, medidas + 4), archivo};
    if (const auto jpeg = LeerCabeceraJpeg(archivo))
        return ImagenComprimida{jpeg->Ancho, jpeg->Alto, archivo, true};
    const auto mapa = LeerMapaDeBits(archivo);
    return mapa ? EscribirPng(*mapa) : std::nullopt;
}

}  // namespace trabex::salidas
