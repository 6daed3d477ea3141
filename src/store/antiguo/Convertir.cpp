#include "store/antiguo/Convertir.h"

#include <array>
#include <cmath>
#include <fstream>
#include <string>
#include <vector>

#include "base/AlSalir.h"
#include "base/Archivos.h"
#include "base/Proceso.h"
#include "store/Columna.h"
#include "store/Dialecto.h"
#include "store/Ligadura.h"
#include "store/Mantenimiento.h"
#include "store/antiguo/Tipos.h"

namespace trabex::almacen::antiguo {

namespace {

constexpr std::chrono::seconds Plazo{60};
constexpr std::string_view Cabecera("\0\1\0\0Standard Jet DB\0", 20);
/// Of its serial number, behind the name: Jet 3 and Jet 4.
constexpr char MayorVersion = 1;

/// The days that a date may have: 1 January 100 to 31 December 9999.
constexpr double PrimerDia = -657434, UltimoDia = 2958465;

void Quitar(const std::filesystem::path& camino) {
    std::error_code ignorado;
    std::filesystem::remove(camino, ignorado);
    OlvidarGuardado(camino);
}

std::optional<Fecha> FechaDeDias(double dias) {
    using namespace std::chrono;
    if (!(dias >= PrimerDia && dias <= UltimoDia)) return std::nullopt;
    return year_month_day(sys_days(1899y / December / 30d) + days(static_cast<int>(std::floor(dias))));
}

/// The columns that a table of the template and one of the copy share.
struct Pareja {
    std::string Suya;
    Columna Propia;
    jet::Tipo Tipo;
};

std::vector<Pareja> Comunes(Motor& origen, const std::string& suya, Motor& destino,
                            const std::string& propia) {
    std::vector<Pareja> parejas;
    const std::vector<jet::Columna> suyas = ColumnasDe(origen, suya);
    const SentenciaSqlite lectura = destino.Preparar("PRAGMA table_info(" + Identificador(propia) + ")");
    const auto texto = [&](int i) {
        return std::string(reinterpret_cast<const char*>(sqlite3_column_text(lectura.get(), i)));
    };
    bool hayFila = false;
    while (lectura && destino.Avanzar(lectura.get(), hayFila) && hayFila) {
        const Columna columna = LeerDeclaracion(texto(1), texto(2));
        for (const jet::Columna& otra : suyas)
            if (destino.comparador().Comparar(otra.Nombre, columna.Nombre) == 0)
                parejas.push_back({otra.Nombre, columna, otra.De});
    }
    return parejas;
}

/// Nothing where the value is of no kind that the program has.
std::optional<Valor> Leer(sqlite3_stmt* lectura, int i, jet::Tipo tipo) {
    switch (sqlite3_column_type(lectura, i)) {
        case SQLITE_NULL:
            return Valor{};
        case SQLITE_INTEGER:
            return static_cast<double>(sqlite3_column_int64(lectura, i));
        case SQLITE_FLOAT:
            if (tipo == jet::Tipo::Fecha) {
                const std::optional<Fecha> fecha = FechaDeDias(sqlite3_column_double(lectura, i));
                return fecha ? std::optional<Valor>(*fecha) : std::nullopt;
            }
            return sqlite3_column_double(lectura, i);
        case SQLITE_TEXT:
            return std::string(reinterpret_cast<const char*>(sqlite3_column_text(lectura, i)),
                               static_cast<std::size_t>(sqlite3_column_bytes(lectura, i)));
        default:
            return std::nullopt;
    }
}

/// A value as the program's column takes it: a text of a date column as a date, and a date of a text column
/// as its text.
std::optional<Valor> Tomar(const Columna& columna, const Valor& valor) {
    if (columna.Tipo == TipoColumna::Dia)
        if (const auto* texto = std::get_if<std::string>(&valor)) {
            const std::optional<Fecha> fecha = FechaDeTexto(*texto);
            return fecha ? std::optional<Valor>(*fecha) : std::nullopt;
        }
    return Admitir(columna, valor);
}

/// Copies a table's rows. False when they can't be read or written to the end.
bool CopiarTabla(Motor& origen, const std::string& suya, Motor& destino, const std::string& propia,
                 Perdidas& perdidas) {
    if (!destino.Correr("DELETE FROM " + Identificador(propia))) return false;
    const std::vector<Pareja> parejas = Comunes(origen, suya, destino, propia);
    if (parejas.empty()) return true;
    std::string leidas, escritas, marcas;
    for (const Pareja& pareja : parejas) {
        const char* coma = leidas.empty() ? "" : ", ";
        leidas += coma + Identificador(pareja.Suya);
        escritas += coma + Identificador(pareja.Propia.Nombre);
        marcas += std::string(coma) + "?";
    }
    const SentenciaSqlite lectura =
        origen.Preparar("SELECT " + leidas + " FROM " + Identificador(suya) + " ORDER BY rowid");
    const SentenciaSqlite escritura = destino.Preparar("INSERT INTO " + Identificador(propia) + " (" +
                                                       escritas + ") VALUES (" + marcas + ")");
    if (!lectura || !escritura) return false;
    bool hayFila = false, seguida = false;
    while (origen.Avanzar(lectura.get(), hayFila)) {
        if (!hayFila) return true;
        std::vector<Valor> fila;
        for (std::size_t i = 0; i < parejas.size(); ++i) {
            const std::optional<Valor> leido = Leer(lectura.get(), static_cast<int>(i), parejas[i].Tipo);
            const std::optional<Valor> valor = leido ? Tomar(parejas[i].Propia, *leido) : std::nullopt;
            if (!valor) ++perdidas.Valores;
            fila.push_back(valor.value_or(Valor{}));
        }
        sqlite3_reset(escritura.get());
        for (std::size_t i = 0; i < fila.size(); ++i)
            Ligar(escritura.get(), static_cast<int>(i) + 1, fila[i]);
        if (!destino.Avanzar(escritura.get(), seguida)) return false;
    }
    return false;
}

bool Llenar(const std::filesystem::path& copia, const std::filesystem::path& nueva, Perdidas& perdidas) {
    Motor origen(copia, SQLITE_OPEN_READWRITE), destino(nueva, SQLITE_OPEN_READWRITE);
    if (!origen.Abierto() || !destino.Abierto()) return false;
    const std::vector<std::string> suyas = TablasDe(origen);
    destino.EmpezarGuardado();
    bool escrita = true;
    for (const std::string& propia : TablasDe(destino)) {
        const auto suya = std::find_if(suyas.begin(), suyas.end(), [&](const std::string& otra) {
            return destino.comparador().Comparar(otra, propia) == 0;
        });
        if (suya == suyas.end())
            ++perdidas.Tablas;
        else
            escrita = escrita && CopiarTabla(origen, *suya, destino, propia, perdidas);
    }
    perdidas.Valores += FaltasDe(origen)[jet::Falta::Ilegible];
    return destino.TerminarGuardado(escrita) && escrita;
}

}  // namespace

bool EsBaseAntigua(const std::filesystem::path& camino) {
    std::array<char, Cabecera.size() + 1> principio{};
    std::ifstream(camino, std::ios::binary).read(principio.data(), principio.size());
    return std::string_view(principio.data(), Cabecera.size()) == Cabecera && principio.back() >= 0 &&
           principio.back() <= MayorVersion;
}

bool CopiarBaseAntigua(const std::filesystem::path& programa, const std::filesystem::path& antigua,
                       const std::filesystem::path& destino) {
    Quitar(destino);
    constexpr int Hecho = 0, NoSePuedeEscribir = 4, DiscoLleno = 5;
    const std::optional<int> estado = CorrerPrograma(programa / "trabex-jet", {antigua, destino}, Plazo);
    if (estado == Hecho) return true;
    Quitar(destino);
    if (estado == NoSePuedeEscribir) throw ErrorEjecucion(CodigoError::ErrorAccesoRuta);
    if (estado == DiscoLleno) throw ErrorEjecucion(CodigoError::DiscoLleno);
    return false;
}

std::optional<Perdidas> ConvertirBaseAntigua(const std::filesystem::path& programa,
                                             const std::filesystem::path& antigua,
                                             const std::filesystem::path& plantilla,
                                             const std::filesystem::path& nueva) {
    if (Existe(nueva)) return std::nullopt;
    const std::filesystem::path copia = std::filesystem::path(nueva) += ".copia";
    const AlSalir quitar([&] { Quitar(copia); });
    Perdidas perdidas;
    try {
        if (!CopiarBaseAntigua(programa, antigua, copia)) return std::nullopt;
        CopiarArchivo(plantilla, nueva);
    } catch (const ErrorEjecucion&) {
        return std::nullopt;
    }
    if (Llenar(copia, nueva, perdidas)) return perdidas;
    Quitar(nueva);
    return std::nullopt;
}

std::filesystem::path NombreDeAntigua(const std::filesystem::path& antigua, std::string_view cual) {
    for (int i = 1;; ++i) {
        const std::string numero = i == 1 ? "" : " " + std::to_string(i);
        std::filesystem::path nombre = antigua.parent_path() / antigua.stem();
        nombre += " (" + std::string(cual) + numero + ")";
        nombre += antigua.extension();
        if (!Existe(nombre)) return nombre;
    }
}

std::optional<Perdidas> ConvertirEnSuSitio(const std::filesystem::path& programa,
                                           const std::filesystem::path& antigua,
                                           const std::filesystem::path& plantilla) {
    const std::filesystem::path nueva = std::filesystem::path(antigua) += ".convertido";
    const std::filesystem::path apartada = NombreDeAntigua(antigua);
    Quitar(nueva);
    std::optional<Perdidas> perdidas = ConvertirBaseAntigua(programa, antigua, plantilla, nueva);
    if (!perdidas) return std::nullopt;
    std::error_code error;
    std::filesystem::rename(antigua, apartada, error);
    if (!error) {
        std::filesystem::rename(nueva, antigua, error);
        if (!error) return perdidas;
        std::filesystem::rename(apartada, antigua, error);
    }
    Quitar(nueva);
    return std::nullopt;
}

}  // namespace trabex::almacen::antiguo
