#include "store/Recordset.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <functional>
#include <new>
#include <optional>
#include <system_error>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/AlSalir.h"
#include "base/Formatos.h"
#include "store/Columna.h"
#include "store/Compuerta.h"
#include "store/Conexion.h"
#include "store/Dialecto.h"
#include "store/Ligadura.h"
#include "store/Motor.h"

namespace trabex::almacen {

namespace {

struct Fila {
    std::int64_t Identidad = 0;
    std::vector<Valor> Valores;
};

/// A column's content under its declared type; null when it does not fit.
Valor LeerColumna(sqlite3_stmt* sentencia, int i, const Columna& columna) {
    const auto admitir = [&](const Valor& valor) { return Admitir(columna, valor).value_or(Valor{}); };
    switch (sqlite3_column_type(sentencia, i)) {
        case SQLITE_INTEGER:
        case SQLITE_FLOAT:
            if (columna.Tipo == TipoColumna::Doble) {
                const double numero = sqlite3_column_double(sentencia, i);
                return std::isfinite(numero) ? Valor{numero} : Valor{};
            }
            if (columna.Tipo != TipoColumna::Texto) return admitir(sqlite3_column_double(sentencia, i));
            [[fallthrough]];
        case SQLITE_TEXT: {
            const auto* datos = reinterpret_cast<const char*>(sqlite3_column_text(sentencia, i));
            std::string texto(datos, static_cast<std::size_t>(sqlite3_column_bytes(sentencia, i)));
            if (columna.Tipo == TipoColumna::Texto) return texto;
            if (columna.Tipo != TipoColumna::Dia) return {};
            const auto fecha = FechaDeTexto(texto);
            return fecha ? Valor{*fecha} : Valor{};
        }
        case SQLITE_BLOB: {
            const auto* datos = static_cast<const std::byte*>(sqlite3_column_blob(sentencia, i));
            // Pictures are long: one goes into its column without further copies.
            Valor bytes(std::in_place_type<Bytes>, datos, datos + sqlite3_column_bytes(sentencia, i));
            return columna.Tipo == TipoColumna::Binario ? std::move(bytes) : admitir(bytes);
        }
        default:
            return {};
    }
}

std::uint64_t HuellaDe(const Valor& valor) {
    return std::visit(
        [](const auto& v) -> std::uint64_t {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, std::monostate>)
                return 0;
            else if constexpr (std::is_same_v<T, Fecha>)
                return std::hash<std::string>()(FechaIso(v));
            else if constexpr (std::is_same_v<T, Bytes>)
                return std::hash<std::string_view>()({reinterpret_cast<const char*>(v.data()), v.size()});
            else
                return std::hash<T>()(v);
        },
        valor);
}

/// Why a column refuses a value of its own kind; of another kind, the one is as good as the other.
CodigoError PorQueNo(const Valor& valor) {
    if (std::holds_alternative<std::string>(valor)) return CodigoError::CampoPequeno;
    return std::holds_alternative<double>(valor) ? CodigoError::Desbordamiento
                                                 : CodigoError::TiposNoCoinciden;
}

void Enlistar(std::string& lista, const std::string& parte) {
    if (!lista.empty()) lista += ", ";
    lista += parte;
}

}  // namespace

struct Recordset::Interna : std::enable_shared_from_this<Recordset::Interna> {
    std::weak_ptr<Motor> motor;
    std::string tabla;  // empty when the rows can't be edited
    std::vector<Columna> columnas;
    std::vector<Fila> filas;
    int posicion = 0;
    bool nueva = false;  // AgregarNuevo without its Actualizar
    std::vector<std::optional<Valor>> puestos;

    static std::shared_ptr<Interna> Abrir(Conexion& conexion, std::string_view fuente,
                                          const std::string* texto);
    bool Llenar(Motor& m, const Fuente& fuente, const std::string* texto);
    bool Llenar(Motor& m, const Fuente& fuente, sqlite3_stmt* sentencia);
    Fila LeerFila(sqlite3_stmt* sentencia) const;
    int NumeroDe(std::string_view campo) const;
    bool HayActual() const { return posicion >= 1 && posicion <= static_cast<int>(filas.size()); }
    Fila& Actual() { return filas[static_cast<std::size_t>(posicion - 1)]; }
    void LimpiarPuestos() {
        nueva = false;
        puestos.assign(columnas.size(), std::nullopt);
    }
    template <class Deshacer>
    void Anotar(Motor& m, Deshacer deshacer);
    std::optional<Fila> Releer(Motor& m, std::int64_t identidad) const;
    bool Vigente(Motor& m);
    bool Insertar(Motor& m);
    bool Modificar(Motor& m);
    bool Quitar(Motor& m);
    bool Cumple(const Fila& fila, int columna, const CriterioLeido& criterio,
                const Comparador& comparador) const;
};

Fila Recordset::Interna::LeerFila(sqlite3_stmt* sentencia) const {
    const int primera = tabla.empty() ? 0 : 1;
    Fila fila{tabla.empty() ? 0 : sqlite3_column_int64(sentencia, 0), {}};
    fila.Valores.reserve(columnas.size());
    for (std::size_t i = 0; i < columnas.size(); ++i)
        fila.Valores.push_back(LeerColumna(sentencia, primera + static_cast<int>(i), columnas[i]));
    return fila;
}

bool Recordset::Interna::Llenar(Motor& m, const Fuente& fuente, const std::string* texto) {
    if (texto == nullptr) {
        const SentenciaSqlite propia = m.Preparar(fuente.Sentencia);
        return propia && Llenar(m, fuente, propia.get());
    }
    sqlite3_stmt* guardada = m.Guardada(fuente.Sentencia);
    if (guardada == nullptr) return false;
    const AlSalir soltar([guardada] {
        sqlite3_reset(guardada);
        sqlite3_clear_bindings(guardada);
    });
    sqlite3_bind_text(guardada, 1, texto->data(), static_cast<int>(texto->size()), SQLITE_STATIC);
    return Llenar(m, fuente, guardada);
}

bool Recordset::Interna::Llenar(Motor& m, const Fuente& fuente, sqlite3_stmt* sentencia) {
    if (sqlite3_stmt_readonly(sentencia) == 0) return false;
    bool hayFila = true;
    if (!m.Avanzar(sentencia, hayFila)) return false;
    // What the columns are is known from the first step on: a statement that was kept may only then see that
    // its table has changed.
    tabla = fuente.Tabla;
    for (int i = tabla.empty() ? 0 : 1; i < sqlite3_column_count(sentencia); ++i) {
        const char* tipo = sqlite3_column_decltype(sentencia, i);
        columnas.push_back(LeerDeclaracion(sqlite3_column_name(sentencia, i), tipo ? tipo : ""));
    }
    while (hayFila) {
        filas.push_back(LeerFila(sentencia));
        if (m.EsAjena() && filas.size() > FilasMaximas) return false;
        if (!m.Avanzar(sentencia, hayFila)) return false;
    }
    posicion = filas.empty() ? 0 : 1;
    LimpiarPuestos();
    return true;
}

int Recordset::Interna::NumeroDe(std::string_view campo) const {
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        const std::string& nombre = columnas[i].Nombre;
        if (nombre.size() == campo.size() &&
            sqlite3_strnicmp(nombre.data(), campo.data(), static_cast<int>(campo.size())) == 0)
            return static_cast<int>(i);
    }
    return -1;
}

/// Notes how the set comes to stand again as it stands, for a save that is taken back.
template <class Deshacer>
void Recordset::Interna::Anotar(Motor& m, Deshacer deshacer) {
    m.AlDeshacer([este = weak_from_this(), donde = posicion, deshacer] {
        if (const auto set = este.lock()) {
            deshacer(set->filas);
            set->posicion = donde;
            set->LimpiarPuestos();
        }
    });
}

std::optional<Fila> Recordset::Interna::Releer(Motor& m, std::int64_t identidad) const {
    const SentenciaSqlite lectura =
        m.Preparar("SELECT rowid, * FROM " + Identificador(tabla) + " WHERE rowid = ?");
    if (!lectura) return std::nullopt;
    sqlite3_bind_int64(lectura.get(), 1, identidad);
    bool hayFila = false;
    if (!m.Avanzar(lectura.get(), hayFila) || !hayFila) return std::nullopt;
    return LeerFila(lectura.get());
}

/// The current row still holds what was read of it. Otherwise another program was there: the save is spoilt.
bool Recordset::Interna::Vigente(Motor& m) {
    const auto ahora = Releer(m, Actual().Identidad);
    if (ahora && ahora->Valores == Actual().Valores) return true;
    m.Estropear(CodigoError::RegistroCambiado);
    return false;
}

bool Recordset::Interna::Insertar(Motor& m) {
    std::string campos;
    std::string marcas;
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        if (!puestos[i]) continue;
        Enlistar(campos, Identificador(columnas[i].Nombre));
        Enlistar(marcas, "?");
    }
    const std::string valores =
        campos.empty() ? " DEFAULT VALUES" : " (" + campos + ") VALUES (" + marcas + ")";
    const SentenciaSqlite sentencia = m.Preparar("INSERT INTO " + Identificador(tabla) + valores);
    if (!sentencia) return false;
    int n = 0;
    for (const auto& puesto : puestos) {
        if (puesto) Ligar(sentencia.get(), ++n, *puesto);
    }
    bool hayFila = false;
    if (!m.Avanzar(sentencia.get(), hayFila)) return false;

    // What the engine fills by itself, such as a key of its own, is read back.
    auto escrita = Releer(m, sqlite3_last_insert_rowid(m.base()));
    if (!escrita) return false;
    Anotar(m, [](std::vector<Fila>& lasFilas) { lasFilas.pop_back(); });
    filas.push_back(std::move(*escrita));
    posicion = static_cast<int>(filas.size());
    return true;
}

bool Recordset::Interna::Modificar(Motor& m) {
    std::string campos;
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        if (puestos[i]) Enlistar(campos, Identificador(columnas[i].Nombre) + " = ?");
    }
    if (campos.empty()) return true;
    if (!Vigente(m)) return false;
    const SentenciaSqlite sentencia =
        m.Preparar("UPDATE " + Identificador(tabla) + " SET " + campos + " WHERE rowid = ?");
    if (!sentencia) return false;
    int n = 0;
    for (const auto& puesto : puestos) {
        if (puesto) Ligar(sentencia.get(), ++n, *puesto);
    }
    sqlite3_bind_int64(sentencia.get(), ++n, Actual().Identidad);
    bool hayFila = false;
    if (!m.Avanzar(sentencia.get(), hayFila) || sqlite3_changes(m.base()) != 1) return false;
    Anotar(m, [cual = posicion - 1, antes = Actual()](std::vector<Fila>& lasFilas) {
        lasFilas[static_cast<std::size_t>(cual)] = antes;
    });
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        if (puestos[i]) Actual().Valores[i] = *puestos[i];
    }
    return true;
}

bool Recordset::Interna::Quitar(Motor& m) {
    if (!Vigente(m)) return false;
    const SentenciaSqlite sentencia = m.Preparar("DELETE FROM " + Identificador(tabla) + " WHERE rowid = ?");
    if (!sentencia) return false;
    sqlite3_bind_int64(sentencia.get(), 1, Actual().Identidad);
    bool hayFila = false;
    if (!m.Avanzar(sentencia.get(), hayFila)) return false;
    const auto cual = filas.begin() + (posicion - 1);
    Anotar(m, [lugar = posicion - 1, antes = *cual](std::vector<Fila>& lasFilas) {
        lasFilas.insert(lasFilas.begin() + lugar, antes);
    });
    filas.erase(cual);
    posicion = std::min(posicion, static_cast<int>(filas.size()));
    return true;
}

bool Recordset::Interna::Cumple(const Fila& fila, int columna, const CriterioLeido& criterio,
                                const Comparador& comparador) const {
    const Valor& valor = fila.Valores[static_cast<std::size_t>(columna)];
    if (const auto* texto = std::get_if<std::string>(&valor))
        return criterio.EsTexto && comparador.Comparar(*texto, criterio.Valor) == 0;
    double numero = 0;
    const char* fin = criterio.Valor.data() + criterio.Valor.size();
    if (criterio.EsTexto) return false;
    const auto [resto, error] = std::from_chars(criterio.Valor.data(), fin, numero);
    if (resto != fin || error != std::errc{}) return false;
    const auto guardado = Admitir({"", TipoColumna::Doble, 0}, valor);
    return guardado && std::holds_alternative<double>(*guardado) && std::get<double>(*guardado) == numero;
}

bool Recordset::Abierto() const {
    return interna_ != nullptr;
}

int Recordset::NumeroRegistros() const {
    return interna_ ? static_cast<int>(interna_->filas.size()) : 0;
}

bool Recordset::BOF() const {
    return Posicion() == 0;
}

bool Recordset::EOF_() const {
    return Posicion() > NumeroRegistros() || NumeroRegistros() == 0;
}

int Recordset::Posicion() const {
    return interna_ ? interna_->posicion : 0;
}

void Recordset::MoverA(int posicion) {
    if (posicion < 1 || posicion > NumeroRegistros()) return;
    interna_->posicion = posicion;
    interna_->LimpiarPuestos();
}

void Recordset::MoverAlPrimero() {
    MoverA(1);
}

void Recordset::MoverAlUltimo() {
    MoverA(NumeroRegistros());
}

void Recordset::MoverAlSiguiente() {
    if (!interna_) return;
    interna_->posicion = std::min(interna_->posicion, NumeroRegistros()) + 1;
    interna_->LimpiarPuestos();
}

void Recordset::MoverAlAnterior() {
    if (!interna_) return;
    interna_->posicion = std::max(interna_->posicion, 1) - 1;
    interna_->LimpiarPuestos();
}

void Recordset::Buscar(std::string_view criterio, int saltar, Direccion direccion) {
    if (!interna_) return;
    const auto leido = LeerCriterio(criterio);
    const int columna = leido ? interna_->NumeroDe(leido->Campo) : -1;
    const auto motor = interna_->motor.lock();
    if (columna < 0 || !motor) return;
    const int paso = static_cast<int>(direccion);
    const int n = NumeroRegistros();
    // A search from past one end starts at the record there.
    int donde = std::clamp(interna_->posicion, paso > 0 ? 1 : 0, paso > 0 ? n + 1 : n) + paso * saltar;
    while (donde >= 1 && donde <= n &&
           !interna_->Cumple(interna_->filas[static_cast<std::size_t>(donde - 1)], columna, *leido,
                             motor->comparador()))
        donde += paso;
    interna_->posicion = std::clamp(donde, 0, n + 1);
    interna_->LimpiarPuestos();
}

const std::vector<Columna>& Recordset::Columnas() const {
    static const std::vector<Columna> ninguna;
    return interna_ ? interna_->columnas : ninguna;
}

Valor Recordset::Leer(std::string_view campo) const {
    const int columna = interna_ && interna_->HayActual() ? interna_->NumeroDe(campo) : -1;
    return columna < 0 ? Valor{} : interna_->Actual().Valores[static_cast<std::size_t>(columna)];
}

std::string Recordset::Texto(std::string_view campo) const {
    const Valor valor = Leer(campo);
    const auto* texto = std::get_if<std::string>(&valor);
    return texto ? *texto : std::string();
}

bool Recordset::Booleano(std::string_view campo) const {
    const Valor valor = Leer(campo);
    const auto* booleano = std::get_if<bool>(&valor);
    return booleano && *booleano;
}

std::int16_t Recordset::Entero16(std::string_view campo) const {
    const Valor valor = Leer(campo);
    const auto* entero = std::get_if<std::int16_t>(&valor);
    return entero ? *entero : std::int16_t{0};
}

std::int32_t Recordset::Entero32(std::string_view campo) const {
    const Valor valor = Leer(campo);
    const auto* entero = std::get_if<std::int32_t>(&valor);
    return entero ? *entero : 0;
}

double Recordset::Doble(std::string_view campo) const {
    const Valor valor = Leer(campo);
    const auto* doble = std::get_if<double>(&valor);
    return doble ? *doble : 0;
}

Fecha Recordset::LeerFecha(std::string_view campo) const {
    using namespace std::chrono;
    const Valor valor = Leer(campo);
    const auto* fecha = std::get_if<Fecha>(&valor);
    return fecha ? *fecha : Fecha{1900y / January / 1d};
}

void Recordset::AgregarNuevo() {
    if (!interna_ || interna_->tabla.empty()) return;
    interna_->LimpiarPuestos();
    interna_->nueva = true;
}

bool Recordset::Poner(std::string_view campo, const Valor& valor) {
    if (!interna_ || interna_->tabla.empty() || !(interna_->nueva || interna_->HayActual())) return false;
    const int columna = interna_->NumeroDe(campo);
    auto admitido =
        columna < 0 ? std::nullopt : Admitir(interna_->columnas[static_cast<std::size_t>(columna)], valor);
    if (!admitido) {
        if (const auto motor = interna_->motor.lock()) motor->Estropear(PorQueNo(valor));
        return false;
    }
    interna_->puestos[static_cast<std::size_t>(columna)] = std::move(admitido);
    return true;
}

bool Recordset::Poner(std::string_view campo, const char* texto) {
    return Poner(campo, Valor{std::string(texto)});
}

bool Recordset::Actualizar() {
    const auto motor = interna_ ? interna_->motor.lock() : nullptr;
    if (!motor || !(interna_->nueva || interna_->HayActual())) return false;
    motor->EmpezarGuardado();
    const bool hecho = interna_->nueva ? interna_->Insertar(*motor) : interna_->Modificar(*motor);
    interna_->LimpiarPuestos();
    return motor->TerminarGuardado(hecho);
}

void Recordset::CancelarActualizacion() {
    if (interna_) interna_->LimpiarPuestos();
}

bool Recordset::Borrar() {
    const auto motor = interna_ ? interna_->motor.lock() : nullptr;
    if (!motor || interna_->tabla.empty() || !interna_->HayActual()) return false;
    motor->EmpezarGuardado();
    const bool hecho = interna_->Quitar(*motor);
    interna_->LimpiarPuestos();
    return motor->TerminarGuardado(hecho);
}

CodigoError Recordset::Causa() const {
    const auto motor = interna_ ? interna_->motor.lock() : nullptr;
    return motor ? motor->Causa() : CodigoError::ErrorAccesoRuta;
}

std::uint64_t Recordset::Huella() const {
    std::uint64_t suma = 0;
    if (!interna_) return suma;
    for (const Fila& fila : interna_->filas) {
        std::uint64_t deFila = 14695981039346656037U;
        for (const Valor& valor : fila.Valores)
            deFila = (deFila ^ (HuellaDe(valor) + valor.index())) * 1099511628211U;
        suma += deFila;
    }
    return suma;
}

void Recordset::Cerrar() {
    interna_.reset();
}

std::vector<std::vector<Valor>> Recordset::Entregar() {
    std::vector<std::vector<Valor>> valores;
    if (interna_) {
        valores.reserve(interna_->filas.size());
        for (Fila& fila : interna_->filas) valores.push_back(std::move(fila.Valores));
    }
    Cerrar();
    return valores;
}

bool Recordset::Encontrado() const {
    return encontrado_;
}

auto Recordset::Interna::Abrir(Conexion& conexion, std::string_view fuente, const std::string* texto)
    -> std::shared_ptr<Interna> {
    const auto traducida = TraducirFuente(fuente);
    if (!conexion.Abierta() || !traducida) return nullptr;
    auto interna = std::make_shared<Interna>();
    interna->motor = conexion.motor();
    try {
        return interna->Llenar(*conexion.motor(), *traducida, texto) ? interna : nullptr;
    } catch (const std::bad_alloc&) {
        conexion.motor()->Estropear(CodigoError::MemoriaInsuficiente);
        return nullptr;
    }
}

void AbrirRecordset(Conexion& conexion, Recordset& registros, std::string_view fuente) {
    registros.interna_.reset();
    registros.encontrado_ = false;
    registros.interna_ = Recordset::Interna::Abrir(conexion, fuente, nullptr);
}

void AbrirRecordset(Conexion& conexion, Recordset& registros, std::string_view fuente,
                    const std::string& texto) {
    registros.interna_.reset();
    registros.encontrado_ = false;
    registros.interna_ = Recordset::Interna::Abrir(conexion, fuente, &texto);
}

void BuscarRegistro(Recordset& registros, std::string_view criterio) {
    registros.encontrado_ = false;
    registros.Buscar(criterio, 0, Direccion::Adelante);
    if (registros.EOF_()) {
        registros.Buscar(criterio, 0, Direccion::Atras);
        if (registros.BOF()) return;
    }
    registros.encontrado_ = registros.Posicion() >= 1 && registros.Posicion() <= registros.NumeroRegistros();
}

}  // namespace trabex::almacen
