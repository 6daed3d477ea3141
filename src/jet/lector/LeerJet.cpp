#include "jet/lector/LeerJet.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include <mdbtools.h>

#include "base/Archivos.h"

namespace trabex::jet::lector {

namespace {

constexpr std::size_t CabeceraLarga = 12;
constexpr int MascaraLugar = 0x1FFF;
constexpr std::uint32_t EnLaFila = 0x80000000, EnUnaPagina = 0x40000000, MascaraLargo = 0x3FFFFFFF;

using Base = std::unique_ptr<MdbHandle, void (*)(MdbHandle*)>;
using Definicion = std::unique_ptr<MdbTableDef, void (*)(MdbTableDef*)>;

template <class Entero>
Entero Leer(const char* bytes) {
    Entero valor = 0;
    for (std::size_t i = 0; i < sizeof(Entero); ++i)
        valor =
            static_cast<Entero>(valor | static_cast<Entero>(static_cast<unsigned char>(bytes[i])) << 8 * i);
    return valor;
}

/// A text in UTF-8, out of the file's code page, UTF-16 or its compressed form.
std::string Texto(MdbHandle* base, std::string_view bytes) {
    if (bytes.empty()) return {};
    std::string texto(bytes.size() * 4 + 4, '\0');
    const int largo = mdb_unicode2ascii(base, bytes.data(), bytes.size(), texto.data(), texto.size());
    texto.resize(static_cast<std::size_t>(std::max(largo, 0)));
    return texto;
}

/// The bytes of a long value, from what its row holds of it. Null when the file breaks off.
std::optional<std::string> ValorLargo(MdbHandle* base, std::string_view cabecera) {
    if (cabecera.size() < CabeceraLarga) return std::nullopt;
    const auto marca = Leer<std::uint32_t>(cabecera.data());
    const std::size_t largo = marca & MascaraLargo;
    if (marca & EnLaFila) return std::string(cabecera.substr(CabeceraLarga, largo));
    auto donde = Leer<std::uint32_t>(cabecera.data() + 4);
    std::string valor;
    while (valor.size() < largo) {
        void* pagina = nullptr;
        int lugar = 0;
        std::size_t hay = 0;
        if (mdb_find_pg_row(base, static_cast<int>(donde), &pagina, &lugar, &hay)) return std::nullopt;
        const char* trozo = static_cast<const char*>(pagina) + lugar;
        if (marca & EnUnaPagina) return std::string(trozo, std::min(hay, largo));
        if (hay <= 4) return std::nullopt;
        donde = Leer<std::uint32_t>(trozo);
        valor.append(trozo + 4, hay - 4);
        if (donde == 0) break;
    }
    return valor;
}

Valor ValorDe(MdbHandle* base, const MdbColumn& columna, const MdbField& campo) {
    if (columna.col_type == MDB_BOOL) return std::int64_t{campo.is_null ? 0 : 1};
    if (campo.is_null || campo.siz < 0) return {};
    const std::string_view bytes(static_cast<const char*>(campo.value), static_cast<std::size_t>(campo.siz));
    const auto entero = [&](auto cero) { return std::int64_t{Leer<decltype(cero)>(bytes.data())}; };
    switch (columna.col_type) {
        case MDB_BYTE:
            return bytes.empty() ? Valor{} : entero(std::uint8_t{});
        case MDB_INT:
            return bytes.size() < 2 ? Valor{} : entero(std::int16_t{});
        case MDB_LONGINT:
            return bytes.size() < 4 ? Valor{} : entero(std::int32_t{});
        case MDB_MONEY:
            return bytes.size() < 8 ? Valor{} : entero(std::int64_t{});
        case MDB_FLOAT:
            return bytes.size() < 4 ? Valor{}
                                    : double{std::bit_cast<float>(Leer<std::uint32_t>(bytes.data()))};
        case MDB_DOUBLE:
        case MDB_DATETIME:
            return bytes.size() < 8 ? Valor{} : std::bit_cast<double>(Leer<std::uint64_t>(bytes.data()));
        case MDB_TEXT:
            return Texto(base, bytes);
        case MDB_MEMO: {
            const auto valor = ValorLargo(base, bytes);
            return valor ? Valor{Texto(base, *valor)} : Valor{};
        }
        case MDB_OLE: {
            auto valor = ValorLargo(base, bytes);
            return valor ? Valor{std::move(*valor)} : Valor{};
        }
        default:
            return std::string(bytes);
    }
}

Columna ColumnaDe(MdbHandle* base, const MdbColumn& columna) {
    Columna hecha{columna.name, static_cast<Tipo>(columna.col_type)};
    // Widths of texts are told in bytes where a character has two.
    const int porCaracter = hecha.De == Tipo::Texto && !IS_JET3(base) ? 2 : 1;
    if (hecha.De == Tipo::Texto || hecha.De == Tipo::Binario)
        hecha.Ancho = static_cast<std::uint16_t>(columna.col_size / porCaracter);
    if (hecha.De == Tipo::Numerico) {
        hecha.Precision = static_cast<std::uint8_t>(columna.col_prec);
        hecha.Escala = static_cast<std::uint8_t>(columna.col_scale);
    }
    return hecha;
}

void LeerTabla(MdbHandle* base, MdbCatalogEntry* entrada, Receptor& receptor) {
    const Definicion tabla(mdb_read_table(entrada), mdb_free_tabledef);
    if (!tabla || mdb_read_columns(tabla.get()) == nullptr) return;
    const std::span<void*> suyas(tabla->columns->pdata, tabla->columns->len);
    std::vector<Columna> columnas;
    for (void* suya : suyas) columnas.push_back(ColumnaDe(base, *static_cast<MdbColumn*>(suya)));
    receptor.RecibirTabla(entrada->object_name, columnas);
    mdb_rewind_table(tabla.get());
    Fila fila(columnas.size());
    std::vector<MdbField> campos(columnas.size());
    while (mdb_fetch_row(tabla.get())) {
        int lugar = 0;
        std::size_t largo = 0;
        if (mdb_find_row(base, static_cast<int>(tabla->cur_row) - 1, &lugar, &largo)) continue;
        if (mdb_crack_row(tabla.get(), lugar & MascaraLugar, largo, campos.data()) < 0) continue;
        // A long value is read through another page; the row's own is left where it is.
        for (std::size_t i = 0; i < fila.size(); ++i)
            fila[i] = ValorDe(base, *static_cast<MdbColumn*>(suyas[i]), campos[i]);
        receptor.RecibirFila(fila);
    }
}

}  // namespace

bool LeerJet(const std::filesystem::path& archivo, Receptor& receptor) {
    const Base base(mdb_open(TextoDeCamino(archivo).c_str(), MDB_NOFLAGS), mdb_close);
    if (!base) return false;
    GPtrArray* catalogo = mdb_read_catalog(base.get(), MDB_TABLE);
    if (catalogo == nullptr) return false;
    for (void* entrada : std::span(catalogo->pdata, catalogo->len)) {
        auto* tabla = static_cast<MdbCatalogEntry*>(entrada);
        if (mdb_is_user_table(tabla)) LeerTabla(base.get(), tabla, receptor);
    }
    return true;
}

}  // namespace trabex::jet::lector
