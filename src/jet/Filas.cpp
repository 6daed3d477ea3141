#include "jet/Filas.h"

#include <bit>
#include <limits>

#include "base/ErrorEjecucion.h"
#include "jet/Texto.h"

namespace trabex::jet {

namespace {

/// A long value up to here stands in its row.
constexpr std::size_t MayorEnLaFila = 64;
/// A memo up to here, in characters, may stand compressed.
constexpr std::size_t MayorComprimido = 1024;
constexpr char EnLaFila = '\x80', EnUnaPagina = '\x40';
constexpr std::size_t MayorLargo = 0x3FFFFFFF;
/// A row of a table is no longer than this.
constexpr std::size_t MayorFila = 4060;

void Entero(std::string& fila, std::uint64_t valor, std::size_t bytes) {
    for (std::size_t i = 0; i < bytes; ++i) fila += static_cast<char>(valor >> 8 * i & 0xFF);
}

std::int64_t EnteroDe(const Valor& valor) {
    const auto* entero = std::get_if<std::int64_t>(&valor);
    if (entero == nullptr) throw ErrorEjecucion(CodigoError::TiposNoCoinciden);
    return *entero;
}

double DobleDe(const Valor& valor) {
    if (const auto* entero = std::get_if<std::int64_t>(&valor)) return static_cast<double>(*entero);
    const auto* doble = std::get_if<double>(&valor);
    if (doble == nullptr) throw ErrorEjecucion(CodigoError::TiposNoCoinciden);
    return *doble;
}

const std::string& TextoDe(const Valor& valor) {
    const auto* texto = std::get_if<std::string>(&valor);
    if (texto == nullptr) throw ErrorEjecucion(CodigoError::TiposNoCoinciden);
    return *texto;
}

template <class Entera>
std::uint64_t Dentro(std::int64_t valor) {
    if (valor < std::numeric_limits<Entera>::min() || valor > std::numeric_limits<Entera>::max())
        throw ErrorEjecucion(CodigoError::Desbordamiento);
    return static_cast<std::uint64_t>(valor);
}

void Fijo(std::string& fila, const Columna& columna, const Valor& valor) {
    switch (columna.De) {
        case Tipo::Byte:
            return Entero(fila, Dentro<std::uint8_t>(EnteroDe(valor)), 1);
        case Tipo::Entero:
            return Entero(fila, Dentro<std::int16_t>(EnteroDe(valor)), 2);
        case Tipo::Largo:
            return Entero(fila, Dentro<std::int32_t>(EnteroDe(valor)), 4);
        case Tipo::Moneda:
            return Entero(fila, static_cast<std::uint64_t>(EnteroDe(valor)), 8);
        case Tipo::Simple:
            return Entero(fila, std::bit_cast<std::uint32_t>(static_cast<float>(DobleDe(valor))), 4);
        case Tipo::Doble:
        case Tipo::Fecha:
            return Entero(fila, std::bit_cast<std::uint64_t>(DobleDe(valor)), 8);
        default:
            if (TextoDe(valor).size() != BytesDe(columna.De))
                throw ErrorEjecucion(CodigoError::TiposNoCoinciden);
            fila += TextoDe(valor);
    }
}

std::string Variable(const Columna& columna, std::size_t orden, const Valor& valor, ValoresLargos& largos) {
    const std::string& texto = TextoDe(valor);
    switch (columna.De) {
        case Tipo::Texto:
            if (ComoUtf16(texto).size() > std::size_t{2} * columna.Ancho)
                throw ErrorEjecucion(CodigoError::Desbordamiento);
            return Comprimido(texto);
        case Tipo::Binario:
            if (texto.size() > columna.Ancho) throw ErrorEjecucion(CodigoError::Desbordamiento);
            return texto;
        case Tipo::Memo: {
            const std::string entero = ComoUtf16(texto);
            return largos.Guardar(orden, entero.size() <= 2 * MayorComprimido ? Comprimido(texto) : entero);
        }
        default:
            return largos.Guardar(orden, texto);
    }
}

bool EsVerdad(const Valor& valor) {
    return !std::holds_alternative<std::monostate>(valor) && DobleDe(valor) != 0;
}

}  // namespace

bool EsFija(Tipo tipo) {
    return tipo != Tipo::Texto && tipo != Tipo::Binario && !EsLarga(tipo);
}

bool EsLarga(Tipo tipo) {
    return tipo == Tipo::Memo || tipo == Tipo::Ole;
}

std::size_t BytesDe(Tipo tipo) {
    switch (tipo) {
        case Tipo::Byte:
            return 1;
        case Tipo::Entero:
            return 2;
        case Tipo::Largo:
        case Tipo::Simple:
            return 4;
        case Tipo::Moneda:
        case Tipo::Doble:
        case Tipo::Fecha:
            return 8;
        case Tipo::Guid:
            return 16;
        case Tipo::Numerico:
            return 17;
        default:
            return 0;
    }
}

PaginasDeFilas& ValoresLargos::De(std::size_t columna) {
    return de_.try_emplace(columna, paginas_, PaginasDeFilas::Lval).first->second;
}

const std::deque<std::uint32_t>& ValoresLargos::Numeros(std::size_t columna) {
    return De(columna).Numeros();
}

std::string ValoresLargos::Guardar(std::size_t columna, std::string_view bytes) {
    if (bytes.size() > MayorLargo) throw ErrorEjecucion(CodigoError::Desbordamiento);
    std::string cabecera;
    Entero(cabecera, bytes.size(), 4);
    if (bytes.size() <= MayorEnLaFila) {
        cabecera[3] = static_cast<char>(cabecera[3] | EnLaFila);
        return cabecera.append(8, '\0').append(bytes);
    }
    Puntero primera;
    if (bytes.size() <= PaginasDeFilas::Mayor) {
        cabecera[3] = static_cast<char>(cabecera[3] | EnUnaPagina);
        primera = De(columna).Agregar(bytes);
    } else {
        // Each piece names the next, so they are stored from the last to the first.
        constexpr std::size_t Trozo = PaginasDeFilas::Mayor - 4;
        for (std::size_t quedan = bytes.size(); quedan > 0;) {
            const std::size_t desde = (quedan - 1) / Trozo * Trozo;
            std::string fila;
            Entero(fila, primera.Numero(), 4);
            primera = De(columna).Agregar(fila.append(bytes.substr(desde, quedan - desde)));
            quedan = desde;
        }
    }
    Entero(cabecera, primera.Numero(), 4);
    return cabecera.append(4, '\0');
}

std::string CodificarFila(std::span<const Columna> columnas, std::span<const Valor> valores,
                          ValoresLargos& largos) {
    if (valores.size() != columnas.size()) throw ErrorEjecucion(CodigoError::ArgumentoInvalido);
    std::string fila, mascara((columnas.size() + 7) / 8, '\0');
    Entero(fila, columnas.size(), 2);
    const auto noNulo = [&mascara](std::size_t i) {
        mascara[i / 8] = static_cast<char>(static_cast<unsigned char>(mascara[i / 8]) | 1U << i % 8);
    };
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        if (!EsFija(columnas[i].De)) continue;
        const bool nulo = std::holds_alternative<std::monostate>(valores[i]);
        if (columnas[i].De == Tipo::Logico ? EsVerdad(valores[i]) : !nulo) noNulo(i);
        if (columnas[i].De == Tipo::Logico) continue;
        if (nulo)
            fila.append(BytesDe(columnas[i].De), '\0');
        else
            Fijo(fila, columnas[i], valores[i]);
    }
    std::vector<std::size_t> lugares;
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        if (EsFija(columnas[i].De)) continue;
        lugares.push_back(fila.size());
        if (std::holds_alternative<std::monostate>(valores[i])) continue;
        noNulo(i);
        fila += Variable(columnas[i], i, valores[i], largos);
    }
    if (!lugares.empty()) {
        Entero(fila, fila.size(), 2);
        for (auto lugar = lugares.rbegin(); lugar != lugares.rend(); ++lugar) Entero(fila, *lugar, 2);
        Entero(fila, lugares.size(), 2);
    }
    fila += mascara;
    if (fila.size() > MayorFila) throw ErrorEjecucion(CodigoError::Desbordamiento);
    return fila;
}

}  // namespace trabex::jet
