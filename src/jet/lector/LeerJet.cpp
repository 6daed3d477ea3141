#include "jet/lector/LeerJet.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include <mdbtools.h>

#include "base/Archivos.h"
#include "jet/Texto.h"

namespace trabex::jet::lector {

namespace {

constexpr std::size_t CabeceraLarga = 12;
/// That a table may have.
constexpr unsigned MayorIndices = 32;
constexpr unsigned long PaginaCatalogo = 2;
/// Tables of the system's that every file has.
constexpr std::array<std::string_view, 4> Propias{"MSysObjects", "MSysACEs", "MSysQueries",
                                                  "MSysRelationships"};
/// Of a date, in days: what is beyond is none.
constexpr double MayorFecha = 2958466;
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

/// A text in UTF-8, out of UTF-16 or its compressed form, or of the file's code page.
std::string Texto(MdbHandle* base, std::string_view bytes) {
    if (!IS_JET3(base)) return Descomprimido(bytes);
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
    if (marca & EnLaFila) {
        if (cabecera.size() - CabeceraLarga < largo) return std::nullopt;
        return std::string(cabecera.substr(CabeceraLarga, largo));
    }
    auto donde = Leer<std::uint32_t>(cabecera.data() + 4);
    std::string valor;
    while (valor.size() < largo) {
        void* pagina = nullptr;
        int lugar = 0;
        std::size_t hay = 0;
        if (mdb_find_pg_row(base, static_cast<int>(donde), &pagina, &lugar, &hay)) return std::nullopt;
        std::string_view trozo(static_cast<const char*>(pagina) + lugar, hay);
        if (marca & EnUnaPagina) {
            donde = 0;
        } else {
            if (hay <= 4) return std::nullopt;
            donde = Leer<std::uint32_t>(trozo.data());
            trozo.remove_prefix(4);
        }
        valor += trozo.substr(0, largo - valor.size());
        if (donde == 0) break;
    }
    return valor.size() < largo ? std::nullopt : std::optional(std::move(valor));
}

/// Null where the row says so, and where its bytes are not there.
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
        // The library has the two names the other way round.
        hecha.Precision = static_cast<std::uint8_t>(columna.col_scale);
        hecha.Escala = static_cast<std::uint8_t>(columna.col_prec);
    }
    hecha.Automatica = columna.is_long_auto != 0 || columna.is_uuid_auto != 0;
    return hecha;
}

/// False when a row or value could not be read. A definition may have lost its count of rows; one that has it
/// tells whether pages of them are missing.
bool LeerFilas(MdbHandle* base, MdbTableDef* tabla, std::span<void*> columnas, Receptor& receptor) {
    mdb_rewind_table(tabla);
    Fila fila(columnas.size());
    std::vector<MdbField> campos(columnas.size());
    bool entera = true;
    unsigned leidas = 0;
    while (mdb_fetch_row(tabla)) {
        int lugar = 0;
        std::size_t largo = 0;
        if (mdb_find_row(base, static_cast<int>(tabla->cur_row) - 1, &lugar, &largo) != 0 ||
            mdb_crack_row(tabla, lugar & MascaraLugar, largo, campos.data()) < 0) {
            entera = false;
            continue;
        }
        // A long value is read through another page; the row's own is left where it is.
        for (std::size_t i = 0; i < fila.size(); ++i) {
            fila[i] = ValorDe(base, *static_cast<MdbColumn*>(columnas[i]), campos[i]);
            entera = entera && (campos[i].is_null || !std::holds_alternative<std::monostate>(fila[i]));
        }
        receptor.RecibirFila(fila);
        ++leidas;
    }
    return entera && leidas >= tabla->num_rows;
}

/// False when it could not be read whole.
bool LeerTabla(MdbHandle* base, MdbCatalogEntry& entrada, std::string propiedades, Receptor& receptor) {
    const Definicion tabla(mdb_read_table(&entrada), mdb_free_tabledef);
    if (!tabla) return false;
    Tabla datos{entrada.object_name, {}, std::move(propiedades)};
    datos.UltimoNumero =
        Leer<std::int32_t>(reinterpret_cast<const char*>(base->pg_buf) + base->fmt->tab_num_rows_offset + 4);
    if (mdb_read_columns(tabla.get()) == nullptr) return false;
    const std::span<void*> suyas(tabla->columns->pdata, tabla->columns->len);
    for (void* suya : suyas) datos.Columnas.push_back(ColumnaDe(base, *static_cast<MdbColumn*>(suya)));
    receptor.RecibirTabla(datos);
    for (unsigned i = 0; i < std::min(tabla->num_idxs, MayorIndices); ++i)
        receptor.RecibirFalta(Falta::Indice);
    return LeerFilas(base, tabla.get(), suyas, receptor);
}

/// What the catalogue says beside names and pages: the properties of each table, and what is there that is
/// neither a table of users nor in every file.
class Catalogo : public Receptor {
  public:
    explicit Catalogo(Receptor& receptor) : receptor_(receptor) {}

    std::string PropiedadesDe(unsigned long pagina) {
        return propiedades_[static_cast<std::int64_t>(pagina)];
    }

    void RecibirTabla(const Tabla& tabla) override {
        for (std::size_t i = 0; i < tabla.Columnas.size(); ++i) lugares_[tabla.Columnas[i].Nombre] = i;
    }
    void RecibirFila(const Fila& fila) override {
        const auto* id = std::get_if<std::int64_t>(Campo(fila, "Id"));
        const auto* clase = std::get_if<std::int64_t>(Campo(fila, "Type"));
        if (id == nullptr || clase == nullptr) return;
        const auto* propiedades = std::get_if<std::string>(Campo(fila, "LvProp"));
        const bool tabla = *clase == MDB_TABLE && !EsDeOtroPrograma(fila);
        if (tabla && propiedades != nullptr) propiedades_[*id] = *propiedades;
        const bool deTodas = (*clase == ClaseBase || *clase == ClaseContenedor) && propiedades == nullptr;
        if (!tabla && !deTodas) receptor_.RecibirFalta(Falta::Objeto);
    }
    void RecibirFalta(Falta /*falta*/) override {}

  private:
    static constexpr std::int64_t ClaseBase = 2, ClaseContenedor = 3;
    static constexpr std::int64_t DelSistema = 0x80000002;

    /// A table of the system's that the engine does not make of itself: of forms, of import rules.
    bool EsDeOtroPrograma(const Fila& fila) const {
        const auto* marcas = std::get_if<std::int64_t>(Campo(fila, "Flags"));
        const auto* nombre = std::get_if<std::string>(Campo(fila, "Name"));
        return marcas != nullptr && nombre != nullptr && (*marcas & DelSistema) != 0 &&
               std::find(Propias.begin(), Propias.end(), *nombre) == Propias.end();
    }

    const Valor* Campo(const Fila& fila, const char* nombre) const {
        const auto lugar = lugares_.find(nombre);
        return lugar == lugares_.end() ? nullptr : &fila[lugar->second];
    }

    Receptor& receptor_;
    std::map<std::string, std::size_t> lugares_;
    std::map<std::int64_t, std::string> propiedades_;
};

/// Whether the header, that stands in the page read last, tells of a password or a key of the pages.
bool TieneClave(MdbHandle* base) {
    constexpr std::size_t Lugar = 0x42, Largo3 = 20, Largo4 = 40, LugarFecha = 0x72;
    const char* cabeza = reinterpret_cast<const char*>(base->pg_buf);
    // From format 4 on it stands under a mask: the date as a whole number, over and over.
    std::uint32_t mascara = 0;
    if (!IS_JET3(base)) {
        const double fecha = std::bit_cast<double>(Leer<std::uint64_t>(cabeza + LugarFecha));
        if (fecha > 0 && fecha < MayorFecha) mascara = static_cast<std::uint32_t>(fecha);
    }
    bool hay = base->f->db_key != 0;
    for (std::size_t i = 0; i < (IS_JET3(base) ? Largo3 : Largo4); i += sizeof(mascara))
        hay = hay || Leer<std::uint32_t>(cabeza + Lugar + i) != mascara;
    return hay;
}

}  // namespace

bool LeerJet(const std::filesystem::path& archivo, Receptor& receptor) {
    const Base base(mdb_open(TextoDeCamino(archivo).c_str(), MDB_NOFLAGS), mdb_close);
    if (!base) return false;
    if (IS_JET3(base.get())) receptor.RecibirFalta(Falta::Formato);
    if (TieneClave(base.get())) receptor.RecibirFalta(Falta::Clave);
    if (base->f->lang_id != OrdenGeneral) receptor.RecibirFalta(Falta::Orden);
    const GPtrArray* entradas = mdb_read_catalog(base.get(), MDB_TABLE);
    if (entradas == nullptr) return false;
    Catalogo catalogo(receptor);
    MdbCatalogEntry suya{};
    suya.mdb = base.get();
    suya.object_type = MDB_TABLE;
    suya.table_pg = PaginaCatalogo;
    if (!LeerTabla(base.get(), suya, {}, catalogo)) receptor.RecibirFalta(Falta::Ilegible);
    for (void* cual : std::span(entradas->pdata, entradas->len)) {
        auto& tabla = *static_cast<MdbCatalogEntry*>(cual);
        // Those of format 3 are of another form.
        const std::string propiedades = IS_JET3(base.get()) ? "" : catalogo.PropiedadesDe(tabla.table_pg);
        if (mdb_is_user_table(&tabla) && !LeerTabla(base.get(), tabla, propiedades, receptor))
            receptor.RecibirFalta(Falta::Ilegible);
    }
    return true;
}

}  // namespace trabex::jet::lector
