#include "jet/EscritorJet.h"

#include <array>
#include <bit>
#include <chrono>
#include <numeric>
#include <utility>

#include "base/ErrorEjecucion.h"
#include "jet/MapaDePaginas.h"

namespace trabex::jet {

namespace {

constexpr std::uint32_t PaginaMapas = 1, PaginaCatalogo = 2, PaginaPermisos = 3, PaginaConsultas = 4,
                        PaginaRelaciones = 5;
/// Two gigabytes.
constexpr std::uint32_t MaximoDePaginas = 1U << 19;
constexpr std::size_t MaximoDeColumnas = 255;

constexpr std::int64_t RaizDeTodo = 0x0F000000, Tablas = 0x0F000001, Bases = 0x0F000002,
                       Relaciones = 0x0F000003;
constexpr std::int64_t Base = 0x10000000;
constexpr std::int64_t ClaseTabla = 1, ClaseBase = 2, ClaseContenedor = 3;
constexpr std::int64_t DelSistema = -0x7FFFFFFF - 1;
constexpr std::size_t ColumnaPropiedades = 14;
constexpr std::int64_t TodoPermiso = 0xFFFFF;
const std::string Dueno = "\xA6\x33";

const std::vector<Columna> ColumnasCatalogo{{"Id", Tipo::Largo},
                                            {"ParentId", Tipo::Largo},
                                            {"Name", Tipo::Texto, 255},
                                            {"Type", Tipo::Entero},
                                            {"DateCreate", Tipo::Fecha},
                                            {"DateUpdate", Tipo::Fecha},
                                            {"Owner", Tipo::Binario, 255},
                                            {"Flags", Tipo::Largo},
                                            {"Database", Tipo::Memo},
                                            {"Connect", Tipo::Memo},
                                            {"ForeignName", Tipo::Texto, 255},
                                            {"RmtInfoShort", Tipo::Binario, 255},
                                            {"RmtInfoLong", Tipo::Ole},
                                            {"Lv", Tipo::Ole},
                                            {"LvProp", Tipo::Ole},
                                            {"LvModule", Tipo::Ole},
                                            {"LvExtra", Tipo::Ole}};
const std::vector<Columna> ColumnasPermisos{{"ACM", Tipo::Largo},
                                            {"FInheritable", Tipo::Logico},
                                            {"ObjectId", Tipo::Largo},
                                            {"SID", Tipo::Binario, 255}};
const std::vector<Columna> ColumnasConsultas{{"Attribute", Tipo::Byte},   {"Expression", Tipo::Memo},
                                             {"Flag", Tipo::Entero},      {"LvExtra", Tipo::Ole},
                                             {"Name1", Tipo::Texto, 255}, {"Name2", Tipo::Texto, 255},
                                             {"ObjectId", Tipo::Largo},   {"Order", Tipo::Binario, 255}};
const std::vector<Columna> ColumnasRelaciones{{"ccolumn", Tipo::Largo},
                                              {"grbit", Tipo::Largo},
                                              {"icolumn", Tipo::Largo},
                                              {"szColumn", Tipo::Texto, 255},
                                              {"szObject", Tipo::Texto, 255},
                                              {"szReferencedColumn", Tipo::Texto, 255},
                                              {"szReferencedObject", Tipo::Texto, 255},
                                              {"szRelationship", Tipo::Texto, 255}};

/// The keystream of RC4 that the header lies under.
class Rc4 {
  public:
    Rc4() {
        constexpr std::array<std::uint8_t, 4> clave{0xC7, 0xDA, 0x39, 0x6B};
        std::iota(estado_.begin(), estado_.end(), std::uint8_t{0});
        std::uint8_t j = 0;
        for (std::size_t i = 0; i < estado_.size(); ++i) {
            j = static_cast<std::uint8_t>(j + estado_[i] + clave[i % clave.size()]);
            std::swap(estado_[i], estado_[j]);
        }
    }
    std::uint8_t Siguiente() {
        i_ = static_cast<std::uint8_t>(i_ + 1);
        j_ = static_cast<std::uint8_t>(j_ + estado_[i_]);
        std::swap(estado_[i_], estado_[j_]);
        return estado_[static_cast<std::uint8_t>(estado_[i_] + estado_[j_])];
    }

  private:
    std::array<std::uint8_t, 256> estado_{};
    std::uint8_t i_ = 0, j_ = 0;
};

/// Where the header lies under the keystream, how much of it, and its date.
constexpr std::size_t Oculto = 0x18, Cuanto = 128, LugarFecha = 0x72;

/// The file's first page: its format, and under the keystream the first pages of the system's own tables, the
/// code page, the order of texts, an empty password under its mask, and the date.
void Encabezar(Pagina& pagina, double ahora) {
    constexpr std::size_t LugarClave = 0x42, LugarOrden = 0x6E;
    Pagina clara;
    const std::array<std::uint32_t, 6> primeras{0x100,          0x101,           PaginaCatalogo,
                                                PaginaPermisos, PaginaConsultas, PaginaRelaciones};
    for (std::size_t i = 0; i < primeras.size(); ++i) clara.Largo(Oculto + 4 * i, primeras[i]);
    clara.Corto(0x3C, 1252);
    // The mask of the password is the date as a whole number, over and over; the password has forty zero
    // bytes.
    const auto mascara = static_cast<std::uint32_t>(ahora);
    for (std::size_t i = 0; i < 40; i += 4) clara.Largo(LugarClave + i, mascara);
    clara.Largo(LugarOrden, OrdenGeneral);
    const auto fecha = std::bit_cast<std::uint64_t>(ahora);
    clara.Largo(LugarFecha, static_cast<std::uint32_t>(fecha));
    clara.Largo(LugarFecha + 4, static_cast<std::uint32_t>(fecha >> 32));

    pagina.Bytes(0, std::string_view("\x00\x01\x00\x00Standard Jet DB\x00\x01", 21));
    Rc4 flujo;
    for (std::size_t i = Oculto; i < Oculto + Cuanto; ++i)
        pagina.Byte(
            i, static_cast<std::uint8_t>(static_cast<unsigned char>(clara.Todo()[i]) ^ flujo.Siguiente()));
}

}  // namespace

double DiasDe(int ano, unsigned mes, unsigned dia) {
    using namespace std::chrono;
    return static_cast<double>(
        (sys_days(year(ano) / month(mes) / day(dia)) - sys_days(1899y / December / 30d)).count());
}

double FechaDeEscritura(std::string_view archivo) {
    constexpr double Pasada = 2958466;  // 1 January 10000
    if (archivo.size() < Oculto + Cuanto) return 0;
    Rc4 flujo;
    std::uint64_t bits = 0;
    for (std::size_t i = Oculto; i < LugarFecha + sizeof(bits); ++i) {
        const std::uint64_t claro = static_cast<unsigned char>(archivo[i]) ^ flujo.Siguiente();
        if (i >= LugarFecha) bits |= claro << 8 * (i - LugarFecha);
    }
    const auto fecha = std::bit_cast<double>(bits);
    return fecha > 0 && fecha < Pasada ? fecha : 0;
}

EscritorJet::EscritorJet(double ahora) : ahora_(ahora) {
    for (std::uint32_t i = 0; i <= PaginaRelaciones; ++i) paginas_.Nueva();
    Encabezar(paginas_[0], ahora);
}

void EscritorJet::AgregarTabla(const Tabla& tabla) {
    if (tabla.Columnas.empty() || tabla.Columnas.size() > MaximoDeColumnas)
        throw ErrorEjecucion(CodigoError::ArgumentoInvalido);
    const std::uint32_t pagina = paginas_.Nueva();
    tablas_.emplace_back(paginas_, pagina, tabla.Columnas, TablaEnObra::Clase::Usuario);
    tablas_.back().Numerar(tabla.UltimoNumero);
    objetos_.push_back({tabla.Nombre, pagina, tabla.Propiedades});
}

void EscritorJet::AgregarFila(const Fila& fila) {
    if (paginas_.Cuantas() > MaximoDePaginas) throw ErrorEjecucion(CodigoError::Desbordamiento);
    tablas_.back().Agregar(fila);
}

std::string EscritorJet::Terminar() {
    for (TablaEnObra& tabla : tablas_) tabla.Cerrar();

    using Clase = TablaEnObra::Clase;
    TablaEnObra catalogo(paginas_, PaginaCatalogo, ColumnasCatalogo, Clase::Sistema,
                         {{.Nombre = "Id", .Columnas = {0}, .Unico = true},
                          {.Nombre = "ParentIdName", .Columnas = {1, 2}, .Unico = true}});
    TablaEnObra permisos(paginas_, PaginaPermisos, ColumnasPermisos, Clase::Sistema,
                         {{.Nombre = "ObjectId", .Columnas = {2}}});
    TablaEnObra consultas(paginas_, PaginaConsultas, ColumnasConsultas, Clase::Sistema);
    TablaEnObra relaciones(paginas_, PaginaRelaciones, ColumnasRelaciones, Clase::Sistema);
    const auto objeto = [&](std::int64_t id, std::int64_t padre, const std::string& nombre,
                            std::int64_t clase, std::int64_t marcas, const std::string& propiedades = {}) {
        Fila fila(ColumnasCatalogo.size());
        fila[0] = id;
        fila[1] = padre;
        fila[2] = nombre;
        fila[3] = clase;
        fila[4] = fila[5] = ahora_;
        fila[6] = Dueno;
        fila[7] = marcas;
        if (!propiedades.empty()) fila[ColumnaPropiedades] = propiedades;
        catalogo.Agregar(fila);
        permisos.Agregar({TodoPermiso, std::int64_t{0}, id, Dueno});
    };
    objeto(Tablas, RaizDeTodo, "Tables", ClaseContenedor, DelSistema);
    objeto(Bases, RaizDeTodo, "Databases", ClaseContenedor, DelSistema);
    objeto(Relaciones, RaizDeTodo, "Relationships", ClaseContenedor, DelSistema);
    objeto(Base, Bases, "MSysDb", ClaseBase, DelSistema);
    objeto(PaginaCatalogo, Tablas, "MSysObjects", ClaseTabla, DelSistema);
    objeto(PaginaPermisos, Tablas, "MSysACEs", ClaseTabla, DelSistema);
    objeto(PaginaConsultas, Tablas, "MSysQueries", ClaseTabla, DelSistema);
    objeto(PaginaRelaciones, Tablas, "MSysRelationships", ClaseTabla, DelSistema);
    for (const Objeto& tabla : objetos_)
        objeto(tabla.Id, Tablas, tabla.Nombre, ClaseTabla, 0, tabla.Propiedades);
    for (TablaEnObra* tabla : {&catalogo, &permisos, &consultas, &relaciones}) tabla->Cerrar();

    PaginasDeFilas globales(paginas_, 0, PaginaMapas);
    globales.Agregar(MapaDeLibres(paginas_));
    globales.Agregar(MapaDePaginas(paginas_, {}));
    return paginas_.Todo();
}

}  // namespace trabex::jet
