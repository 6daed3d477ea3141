#include "reports/salidas/ImagenDePaleta.h"

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <utility>

namespace trabex::salidas {

namespace {

constexpr std::size_t Colores = 256;
constexpr std::size_t ColoresFrecuentes = 128;
constexpr std::size_t CabeceraDeArchivo = 14, CabeceraDeImagen = 40;
constexpr std::size_t Rle8 = 1;
constexpr std::size_t MayorTramo = 255;

using Rgb = std::uint32_t;

std::uint32_t Distancia(Rgb a, Rgb b) {
    std::uint32_t suma = 0;
    for (const unsigned corrimiento : {0U, 8U, 16U}) {
        const int d =
            static_cast<int>((a >> corrimiento) & 0xFF) - static_cast<int>((b >> corrimiento) & 0xFF);
        suma += static_cast<std::uint32_t>(d * d);
    }
    return suma;
}

/// Runs accion(first, length, colour) over the stretches of one colour: drawings have long ones.
template <class Accion>
void PorTramos(std::span<const Rgb> pixeles, Accion accion) {
    for (std::size_t i = 0; i < pixeles.size();) {
        const Rgb color = pixeles[i] & 0xFFFFFF;
        std::size_t fin = i + 1;
        while (fin < pixeles.size() && (pixeles[fin] & 0xFFFFFF) == color) ++fin;
        accion(i, fin - i, color);
        i = fin;
    }
}

/// A colour of a picture, with the nearest entry of the palette so far.
struct ColorContado {
    Rgb Color;
    std::size_t Veces;
    std::size_t Cercano = 0;
    std::uint32_t Lejania = std::numeric_limits<std::uint32_t>::max();
};

/// The palette takes a colour in.
void Admitir(std::vector<Rgb>& paleta, std::vector<ColorContado>& colores, Rgb color) {
    for (ColorContado& c : colores) {
        const std::uint32_t distancia = Distancia(c.Color, color);
        if (distancia >= c.Lejania) continue;
        c.Lejania = distancia;
        c.Cercano = paleta.size();
    }
    paleta.push_back(color);
}

/// A value for each colour. Drawings have few, one after another the same: those seen last are found at once.
template <class Valor>
class PorColor {
  public:
    Valor& operator[](Rgb color) {
        Visto& visto = vistos_[(color * 2654435761U) >> 20U];
        if (visto.Donde == nullptr || visto.Color != color) visto = {color, &todos_[color]};
        return *visto.Donde;
    }
    const std::unordered_map<Rgb, Valor>& Todos() const { return todos_; }

  private:
    struct Visto {
        Rgb Color = 0;
        Valor* Donde = nullptr;
    };
    std::unordered_map<Rgb, Valor> todos_;
    std::vector<Visto> vistos_ = std::vector<Visto>(4096);
};

/// Numbers of the colours. The palette holds the most frequent ones, and then those that are farthest from
/// it.
PorColor<std::uint8_t> Numerar(std::span<const Rgb> pixeles, std::vector<Rgb>& paleta) {
    PorColor<std::size_t> veces;
    PorTramos(pixeles, [&](std::size_t, std::size_t largo, Rgb color) { veces[color] += largo; });
    std::vector<ColorContado> colores;
    colores.reserve(veces.Todos().size());
    for (const auto& [color, cuenta] : veces.Todos()) colores.push_back({color, cuenta});
    std::sort(colores.begin(), colores.end(), [](const ColorContado& a, const ColorContado& b) {
        return std::pair(b.Veces, b.Color) < std::pair(a.Veces, a.Color);
    });
    const std::size_t frecuentes = colores.size() <= Colores ? colores.size() : ColoresFrecuentes;
    for (std::size_t i = 0; i < frecuentes; ++i) Admitir(paleta, colores, colores[i].Color);
    while (paleta.size() < std::min(Colores, colores.size())) {
        const auto lejano = std::max_element(
            colores.begin(), colores.end(),
            [](const ColorContado& x, const ColorContado& y) { return x.Lejania < y.Lejania; });
        Admitir(paleta, colores, lejano->Color);
    }
    PorColor<std::uint8_t> numeros;
    for (const ColorContado& c : colores) numeros[c.Color] = static_cast<std::uint8_t>(c.Cercano);
    return numeros;
}

void Escribir(almacen::Bytes& bytes, std::size_t valor, int octetos) {
    for (int i = 0; i < octetos; ++i) bytes.push_back(static_cast<std::byte>((valor >> (8 * i)) & 0xFF));
}

/// The number of equal bytes from one on, at most what a run may hold.
std::size_t Tramo(std::span<const std::uint8_t> fila, std::size_t x) {
    std::size_t fin = x + 1;
    while (fin < fila.size() && fila[fin] == fila[x] && fin - x < MayorTramo) ++fin;
    return fin - x;
}

void EscribirLiteral(almacen::Bytes& bytes, std::span<const std::uint8_t> literal) {
    if (literal.size() < 3) {  // fewer would read as a code
        for (const std::uint8_t pixel : literal) Escribir(bytes, 1U | static_cast<unsigned>(pixel) << 8U, 2);
        return;
    }
    Escribir(bytes, literal.size() << 8U, 2);
    for (const std::uint8_t pixel : literal) Escribir(bytes, pixel, 1);
    if (literal.size() % 2 != 0) Escribir(bytes, 0, 1);
}

void ComprimirFila(almacen::Bytes& bytes, std::span<const std::uint8_t> fila) {
    constexpr std::size_t Vale = 4;  // a shorter run inside a literal stretch would cost more than it saves
    std::size_t pendiente = 0;
    for (std::size_t x = 0; x < fila.size();) {
        const std::size_t tramo = Tramo(fila, x);
        if (tramo < Vale && x + tramo - pendiente <= MayorTramo && x + tramo < fila.size()) {
            x += tramo;
            continue;
        }
        EscribirLiteral(bytes, fila.subspan(pendiente, x - pendiente));
        Escribir(bytes, tramo | static_cast<std::size_t>(fila[x]) << 8U, 2);
        x += tramo;
        pendiente = x;
    }
    Escribir(bytes, 0, 2);  // end of the row
}

std::size_t Leer(const almacen::Bytes& bytes, std::size_t desde, std::size_t octetos) {
    std::size_t valor = 0;
    for (std::size_t i = 0; i < octetos && desde + i < bytes.size(); ++i)
        valor |= static_cast<std::size_t>(bytes[desde + i]) << (8 * i);
    return valor;
}

/// Rows of a plain bitmap, each of whole groups of four bytes, from the bottom.
struct FilasDeMapa {
    std::size_t Ancho;
    std::size_t Alto;
    almacen::Bytes Pixeles;

    std::size_t Paso() const { return (Ancho + 3) / 4 * 4; }
};

/// Undoes the run-length code from a byte on. False when it leaves its picture or runs out of bytes.
bool Descomprimir(const almacen::Bytes& bytes, std::size_t desde, FilasDeMapa& filas) {
    std::size_t x = 0;
    std::size_t fila = 0;
    for (std::size_t i = desde; i + 1 < bytes.size();) {
        const std::size_t cuenta = Leer(bytes, i, 1);
        const std::size_t dato = Leer(bytes, i + 1, 1);
        i += 2;
        if (cuenta == 0 && dato == 1) return true;
        if (cuenta == 0 && dato == 0) {
            x = 0;
            ++fila;
            continue;
        }
        if (cuenta == 0 && dato == 2) {
            x += Leer(bytes, i, 1);
            fila += Leer(bytes, i + 1, 1);
            i += 2;
            continue;
        }
        const std::size_t pixeles = cuenta != 0 ? cuenta : dato;
        if (fila >= filas.Alto || x + pixeles > filas.Ancho || (cuenta == 0 && i + dato > bytes.size()))
            return false;
        const auto destino = filas.Pixeles.begin() + static_cast<std::ptrdiff_t>(fila * filas.Paso() + x);
        if (cuenta != 0)
            std::fill_n(destino, pixeles, static_cast<std::byte>(dato));
        else
            std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(i), pixeles, destino);
        x += pixeles;
        if (cuenta == 0) i += dato + dato % 2;
    }
    return false;
}

}  // namespace

ImagenDePaleta ReducirColores(std::span<const std::uint32_t> pixeles, std::size_t ancho, std::size_t alto) {
    ImagenDePaleta imagen{ancho, alto, {}, std::vector<std::uint8_t>(ancho * alto), 0};
    PorColor<std::uint8_t> numeros = Numerar(pixeles, imagen.Paleta);
    PorTramos(pixeles, [&](std::size_t desde, std::size_t largo, Rgb color) {
        std::fill_n(imagen.Pixeles.begin() + static_cast<std::ptrdiff_t>(desde), largo, numeros[color]);
    });
    return imagen;
}

almacen::Bytes MapaDeBitsDe(const ImagenDePaleta& imagen) {
    almacen::Bytes pixeles;
    for (std::size_t fila = imagen.Alto; fila-- > 0;)
        ComprimirFila(pixeles, std::span(imagen.Pixeles).subspan(fila * imagen.Ancho, imagen.Ancho));
    Escribir(pixeles, 0x0100, 2);  // end of the picture

    const std::size_t inicio = CabeceraDeArchivo + CabeceraDeImagen + 4 * imagen.Paleta.size();
    almacen::Bytes archivo{std::byte{'B'}, std::byte{'M'}};
    archivo.reserve(inicio + pixeles.size());
    Escribir(archivo, inicio + pixeles.size(), 4);
    Escribir(archivo, 0, 4);
    Escribir(archivo, inicio, 4);
    Escribir(archivo, CabeceraDeImagen, 4);
    Escribir(archivo, imagen.Ancho, 4);
    Escribir(archivo, imagen.Alto, 4);
    Escribir(archivo, 1, 2);
    Escribir(archivo, 8, 2);
    Escribir(archivo, Rle8, 4);
    Escribir(archivo, pixeles.size(), 4);
    Escribir(archivo, static_cast<std::size_t>(imagen.PuntosPorMetro), 4);
    Escribir(archivo, static_cast<std::size_t>(imagen.PuntosPorMetro), 4);
    Escribir(archivo, imagen.Paleta.size(), 4);
    Escribir(archivo, 0, 4);
    for (const Rgb color : imagen.Paleta) Escribir(archivo, color, 4);
    archivo.insert(archivo.end(), pixeles.begin(), pixeles.end());
    return archivo;
}

std::optional<almacen::Bytes> MapaSinComprimir(const almacen::Bytes& archivo) {
    constexpr std::size_t LugarCompresion = 30, LugarTamano = 34, MayorLado = 30000;
    const std::size_t inicio = Leer(archivo, 10, 4);
    FilasDeMapa filas{Leer(archivo, 18, 4), Leer(archivo, 22, 4), {}};
    if (archivo.size() < CabeceraDeArchivo + CabeceraDeImagen || Leer(archivo, 0, 2) != 0x4D42 ||
        Leer(archivo, 28, 2) != 8 || Leer(archivo, LugarCompresion, 4) != Rle8 || inicio > archivo.size() ||
        filas.Ancho == 0 || filas.Ancho > MayorLado || filas.Alto == 0 || filas.Alto > MayorLado)
        return std::nullopt;
    filas.Pixeles.resize(filas.Paso() * filas.Alto);
    if (!Descomprimir(archivo, inicio, filas)) return std::nullopt;
    almacen::Bytes plano(archivo.begin(), archivo.begin() + static_cast<std::ptrdiff_t>(inicio));
    std::fill_n(plano.begin() + LugarCompresion, 4, std::byte{0});
    std::fill_n(plano.begin() + LugarTamano, 4, std::byte{0});
    plano.insert(plano.end(), filas.Pixeles.begin(), filas.Pixeles.end());
    return plano;
}

}  // namespace trabex::salidas
