#include "store/antiguo/EscribirJet.h"

#include <cstring>
#include <fstream>
#include <iterator>

#include "base/Archivos.h"
#include "base/ErrorEjecucion.h"
#include "base/Fecha.h"
#include "jet/EscritorJet.h"
#include "store/Columna.h"
#include "store/Dialecto.h"
#include "store/antiguo/Tipos.h"

namespace trabex::almacen::antiguo {

namespace {

using jet::Tipo;

double DiasDe(const Fecha& fecha) {
    return jet::DiasDe(static_cast<int>(fecha.year()), static_cast<unsigned>(fecha.month()),
                       static_cast<unsigned>(fecha.day()));
}

/// A cell as the column of a Jet database takes it. What it can't hold is null: a text in a column of
/// numbers.
jet::Valor ValorDe(sqlite3_stmt* lectura, int i, Tipo tipo) {
    const int clase = sqlite3_column_type(lectura, i);
    if (clase == SQLITE_NULL) return {};
    const auto bytes = [&] {
        const void* datos = sqlite3_column_blob(lectura, i);
        const auto largo = static_cast<std::size_t>(sqlite3_column_bytes(lectura, i));
        return largo == 0 ? std::string() : std::string(static_cast<const char*>(datos), largo);
    };
    // A number that its column would have changed is here as its own bytes.
    const auto copiado = [&](auto numero) -> jet::Valor {
        const std::string suyos = bytes();
        if (suyos.size() != sizeof(numero)) return {};
        std::memcpy(&numero, suyos.data(), sizeof(numero));
        return numero;
    };
    switch (tipo) {
        case Tipo::Logico:
        case Tipo::Byte:
        case Tipo::Entero:
        case Tipo::Largo:
            return clase == SQLITE_INTEGER ? jet::Valor{std::int64_t{sqlite3_column_int64(lectura, i)}}
                                           : jet::Valor{};
        case Tipo::Moneda:
            return clase == SQLITE_BLOB ? copiado(std::int64_t{})
                                        : jet::Valor{DiezMilesimasDe(sqlite3_column_double(lectura, i))};
        case Tipo::Fecha:
            if (clase == SQLITE_TEXT) {
                const std::optional<Fecha> fecha = FechaDeTexto(bytes());
                return fecha ? jet::Valor{DiasDe(*fecha)} : jet::Valor{};
            }
            [[fallthrough]];
        case Tipo::Simple:
        case Tipo::Doble:
            if (clase == SQLITE_BLOB) return copiado(0.0);
            return clase == SQLITE_TEXT ? jet::Valor{} : jet::Valor{sqlite3_column_double(lectura, i)};
        default:
            return bytes();
    }
}

void EscribirTabla(Motor& base, const std::string& tabla, jet::EscritorJet& escritor) {
    const jet::Tabla suya = TablaDe(base, tabla);
    const std::vector<jet::Columna>& columnas = suya.Columnas;
    escritor.AgregarTabla(suya);
    const SentenciaSqlite lectura =
        base.Preparar("SELECT * FROM " + Identificador(tabla) + " ORDER BY rowid");
    bool hayFila = false, leida = lectura != nullptr;
    while (leida && (leida = base.Avanzar(lectura.get(), hayFila)) && hayFila) {
        jet::Fila fila;
        for (std::size_t i = 0; i < columnas.size(); ++i)
            fila.push_back(ValorDe(lectura.get(), static_cast<int>(i), columnas[i].De));
        escritor.AgregarFila(fila);
    }
    if (!leida) throw ErrorEjecucion(CodigoError::ErrorAccesoRuta);
}

std::string EnJet(const std::filesystem::path& base, double fecha) {
    Motor motor(base, SQLITE_OPEN_READWRITE);
    if (!motor.Abierto()) throw ErrorEjecucion(CodigoError::ErrorAccesoRuta);
    jet::EscritorJet escritor(fecha);
    for (const std::string& tabla : TablasDe(motor)) EscribirTabla(motor, tabla, escritor);
    return escritor.Terminar();
}

}  // namespace

void EscribirJet(const std::filesystem::path& base, const std::filesystem::path& destino) {
    EscribirArchivo(destino, EnJet(base, DiasDe(Hoy())));
}

bool EsEscrituraDe(const std::filesystem::path& base, const std::filesystem::path& archivo) {
    std::ifstream leido(archivo, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(leido), {}};
    try {
        return EnJet(base, jet::FechaDeEscritura(bytes)) == bytes;
    } catch (const ErrorEjecucion&) {
        return false;
    }
}

}  // namespace trabex::almacen::antiguo
