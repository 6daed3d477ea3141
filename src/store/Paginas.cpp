#include "store/Paginas.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

namespace trabex::almacen {

namespace {

constexpr std::size_t LargoCabecera = 100;  // of the file, at the beginning of its first page
constexpr std::size_t FilaMayor = 8 << 20;  // bytes that a row is followed for
constexpr std::array<std::size_t, 8> Tamanos{65536, 32768, 16384, 8192, 4096, 2048, 1024, 512};

std::uint64_t EnteroSinSigno(std::string_view bytes) {
    std::uint64_t valor = 0;
    for (const char c : bytes) valor = valor << 8 | static_cast<unsigned char>(c);
    return valor;
}

std::uint32_t Numero32(std::string_view bytes, std::size_t donde) {
    return donde + 4 <= bytes.size() ? static_cast<std::uint32_t>(EnteroSinSigno(bytes.substr(donde, 4))) : 0;
}

std::size_t Numero16(std::string_view bytes, std::size_t donde) {
    return donde + 2 <= bytes.size() ? EnteroSinSigno(bytes.substr(donde, 2)) : 0;
}

/// A number of one to nine bytes; moves `donde` past it.
std::optional<std::uint64_t> Variable(std::string_view bytes, std::size_t& donde) {
    std::uint64_t valor = 0;
    for (int i = 0; i < 9 && donde < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[donde++]);
        if (i == 8) return valor << 8 | byte;
        valor = valor << 7 | (byte & 0x7FU);
        if (byte < 0x80) return valor;
    }
    return std::nullopt;
}

/// Bytes of a value of a serial type; nothing for a type that no file holds.
std::optional<std::size_t> LargoDe(std::uint64_t tipo) {
    constexpr std::array<std::size_t, 10> fijos{0, 1, 2, 3, 4, 6, 8, 8, 0, 0};
    if (tipo < fijos.size()) return fijos[tipo];
    return tipo < 12 ? std::nullopt : std::optional<std::size_t>((tipo - 12) / 2);
}

std::optional<std::vector<FilaCruda::Dato>> LeerDatos(std::string_view contenido) {
    std::size_t tipos = 0;
    const auto encabezado = Variable(contenido, tipos);
    if (!encabezado || *encabezado > contenido.size()) return std::nullopt;
    std::size_t valores = *encabezado;
    std::vector<FilaCruda::Dato> datos;
    while (tipos < *encabezado) {
        const auto tipo = Variable(contenido, tipos);
        const auto largo = tipo ? LargoDe(*tipo) : std::nullopt;
        if (!largo || *largo > contenido.size() - valores) return std::nullopt;
        datos.push_back({*tipo, std::string(contenido.substr(valores, *largo))});
        valores += *largo;
    }
    return datos;
}

}  // namespace

std::int64_t FilaCruda::Dato::Entero() const {
    if (Tipo == 8 || Tipo == 9) return Tipo == 9 ? 1 : 0;
    const std::size_t bits = 64 - 8 * Bytes.size();
    return bits == 64 ? 0 : static_cast<std::int64_t>(EnteroSinSigno(Bytes) << bits) >> bits;
}

double FilaCruda::Dato::Real() const {
    return std::bit_cast<double>(EnteroSinSigno(Bytes));
}

/// The length of a page stands in the file's first one. Where that is lost, it is the length at whose
/// multiples the most pages of rows begin; every shorter one finds the same.
Paginas::Paginas(std::string bytes) : bytes_(std::move(bytes)) {
    const std::size_t declarado = Numero16(bytes_, 16);
    const std::size_t escrito = declarado == 1 ? 65536 : declarado;
    const bool legible = bytes_.starts_with("SQLite format 3") &&
                         std::find(Tamanos.begin(), Tamanos.end(), escrito) != Tamanos.end();
    reservados_ = legible ? static_cast<unsigned char>(bytes_[20]) : 0;
    std::size_t mejor = 0;
    std::size_t elegido = 4096;
    for (const std::size_t tamano : Tamanos) {
        if (legible && tamano != escrito) continue;
        tamano_ = tamano;
        cuantas_ = static_cast<std::uint32_t>(bytes_.size() / tamano_);
        std::size_t hojas = 0;
        for (std::uint32_t pagina = 2; pagina <= cuantas_; ++pagina) hojas += EsHoja(pagina) ? 1 : 0;
        if (legible || hojas > mejor) elegido = tamano;
        mejor = std::max(mejor, hojas);
    }
    tamano_ = elegido;
    cuantas_ = static_cast<std::uint32_t>(bytes_.size() / tamano_);
}

int Paginas::Codificacion() const {
    const std::uint32_t codificacion = Numero32(bytes_, 56);
    return codificacion == 2 || codificacion == 3 ? static_cast<int>(codificacion) : 1;
}

std::string_view Paginas::Pagina(std::uint32_t pagina) const {
    if (pagina < 1 || pagina > cuantas_) return {};
    return std::string_view(bytes_).substr((pagina - 1) * tamano_, tamano_ - reservados_);
}

/// A page's bytes from its own header on.
std::string_view Paginas::Util(std::uint32_t pagina) const {
    std::string_view bytes = Pagina(pagina);
    if (pagina == 1) bytes.remove_prefix(std::min(LargoCabecera, bytes.size()));
    return bytes;
}

/// The kind of a page whose header tells as many cells as can stand in it, in a place where they can.
int Paginas::Clase(std::uint32_t pagina) const {
    const std::string_view bytes = Util(pagina);
    if (bytes.size() < 12 || (bytes[0] != Hoja && bytes[0] != Rama)) return 0;
    const std::size_t celdas = Numero16(bytes, 3);
    const std::size_t contenido = Numero16(bytes, 5) == 0 ? 65536 : Numero16(bytes, 5);
    const std::size_t fin = (bytes[0] == Hoja ? 8 : 12) + 2 * celdas + (pagina == 1 ? LargoCabecera : 0);
    return fin <= contenido && contenido <= Pagina(pagina).size() ? bytes[0] : 0;
}

std::vector<std::uint32_t> Paginas::Hijas(std::uint32_t pagina) const {
    std::vector<std::uint32_t> hijas;
    if (!EsRama(pagina)) return hijas;
    const std::string_view bytes = Util(pagina);
    for (std::size_t celda = 0; celda < Numero16(bytes, 3); ++celda)
        hijas.push_back(Numero32(Pagina(pagina), Numero16(bytes, 12 + 2 * celda)));
    hijas.push_back(Numero32(bytes, 8));
    return hijas;
}

/// What of a row does not find room in its page goes on in a chain of others.
std::optional<std::string> Paginas::Contenido(std::string_view pagina, std::size_t donde,
                                              std::uint64_t largo) const {
    const std::size_t util = pagina.size();
    if (util < 480 || largo > std::min(bytes_.size(), FilaMayor)) return std::nullopt;
    const std::size_t maximo = util - 35;
    std::size_t aqui = largo;
    if (largo > maximo) {
        const std::size_t minimo = (util - 12) * 32 / 255 - 23;
        aqui = minimo + (largo - minimo) % (util - 4);
        if (aqui > maximo) aqui = minimo;
    }
    if (aqui > util - std::min(donde, util)) return std::nullopt;
    std::string contenido(pagina.substr(donde, aqui));
    std::uint32_t siguiente = aqui < largo ? Numero32(pagina, donde + aqui) : 0;
    while (contenido.size() < largo) {
        const std::string_view otra = Pagina(siguiente);
        if (otra.size() <= 4) return std::nullopt;
        contenido += otra.substr(4, largo - contenido.size());
        siguiente = Numero32(otra, 0);
    }
    return contenido;
}

std::optional<FilaCruda> Paginas::LeerCelda(std::string_view pagina, std::size_t donde) const {
    const auto largo = Variable(pagina, donde);
    const auto numero = Variable(pagina, donde);
    if (!largo || !numero) return std::nullopt;
    const auto contenido = Contenido(pagina, donde, *largo);
    auto datos = contenido ? LeerDatos(*contenido) : std::nullopt;
    if (!datos) return std::nullopt;
    return FilaCruda{static_cast<std::int64_t>(*numero), std::move(*datos)};
}

std::vector<FilaCruda> Paginas::Filas(std::uint32_t pagina, int& perdidas) const {
    std::vector<FilaCruda> filas;
    if (!EsHoja(pagina)) return filas;
    const std::string_view bytes = Util(pagina);
    for (std::size_t celda = 0; celda < Numero16(bytes, 3); ++celda) {
        auto fila = LeerCelda(Pagina(pagina), Numero16(bytes, 8 + 2 * celda));
        // The rows of a page stand in the order of their numbers.
        if (fila && (filas.empty() || filas.back().Numero < fila->Numero))
            filas.push_back(std::move(*fila));
        else
            ++perdidas;
    }
    return filas;
}

std::set<std::uint32_t> Paginas::Libres() const {
    std::set<std::uint32_t> libres;
    std::uint32_t tronco = bytes_.starts_with("SQLite format 3") ? Numero32(bytes_, 32) : 0;
    while (tronco >= 2 && tronco <= cuantas_ && libres.insert(tronco).second) {
        const std::string_view bytes = Pagina(tronco);
        const std::size_t cuantas = std::min<std::size_t>(Numero32(bytes, 4), bytes.size() / 4 - 2);
        for (std::size_t i = 0; i < cuantas; ++i) libres.insert(Numero32(bytes, 8 + 4 * i));
        tronco = Numero32(bytes, 0);
    }
    return libres;
}

}  // namespace trabex::almacen
