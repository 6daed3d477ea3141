#include "store/Salvamento.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "store/Columna.h"
#include "store/Compuerta.h"
#include "store/Dialecto.h"

namespace trabex::almacen {

namespace {

constexpr const char* TablasDeUsuario =
    "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%' ORDER BY rowid";

/// A table that is looked for.
struct Tabla {
    std::string Nombre;
    std::vector<Columna> Columnas;  // of the damaged database, as far as they are known
    std::uint32_t Raiz = 0;         // 0 while it is not known
    bool Hueco = false;             // a page of it could not be read
    std::vector<int> Lugares;       // of each column in the statement that writes a row; 0 for none
    SentenciaSqlite Escritura{nullptr, sqlite3_finalize};
};

std::vector<std::string> PrimeraColumna(Motor& motor, std::string_view sql) {
    std::vector<std::string> textos;
    const SentenciaSqlite lectura = motor.Preparar(sql);
    bool hayFila = lectura != nullptr;
    while (hayFila && motor.Avanzar(lectura.get(), hayFila) && hayFila) {
        const unsigned char* texto = sqlite3_column_text(lectura.get(), 0);
        textos.emplace_back(texto == nullptr ? "" : reinterpret_cast<const char*>(texto));
    }
    return textos;
}

std::vector<Columna> ColumnasEn(Motor& motor, const std::string& tabla) {
    std::vector<Columna> columnas;
    const SentenciaSqlite lectura = motor.Preparar("SELECT * FROM " + Identificador(tabla));
    for (int i = 0; lectura && i < sqlite3_column_count(lectura.get()); ++i) {
        const char* tipo = sqlite3_column_decltype(lectura.get(), i);
        columnas.push_back(LeerDeclaracion(sqlite3_column_name(lectura.get(), i), tipo ? tipo : ""));
    }
    return columnas;
}

/// A value that the column may hold.
bool Encaja(const FilaCruda::Dato& dato, const Columna& columna) {
    if (dato.EsNulo()) return true;
    switch (columna.Tipo) {
        case TipoColumna::Texto:
        case TipoColumna::Dia:
            return dato.EsTexto();
        case TipoColumna::Booleano:
            return dato.EsEntero() && dato.Entero() >= -1 && dato.Entero() <= 1;
        case TipoColumna::Entero16:
            return dato.EsEntero() && dato.Bytes.size() <= 2;
        case TipoColumna::Entero32:
            return dato.EsEntero() && dato.Bytes.size() <= 4;
        case TipoColumna::Doble:
            return dato.EsEntero() || dato.EsReal();
        case TipoColumna::Binario:
            return dato.EsBinario();
    }
    return false;
}

/// A row of an earlier edition has fewer values.
bool Encaja(const FilaCruda& fila, const std::vector<Columna>& columnas) {
    return fila.Datos.size() <= columnas.size() &&
           std::equal(
               fila.Datos.begin(), fila.Datos.end(), columnas.begin(),
               [](const FilaCruda::Dato& dato, const Columna& columna) { return Encaja(dato, columna); });
}

/// A row of the catalogue: kind, name, table, root, statement.
bool EsDelCatalogo(const FilaCruda& fila) {
    return fila.Datos.size() == 5 && (fila.Datos[0].Bytes == "table" || fila.Datos[0].Bytes == "index") &&
           fila.Datos[3].EsEntero() && fila.Datos[4].EsTexto();
}

class Salvador {
  public:
    Salvador(const Paginas& paginas, Motor& destino)
        : paginas_(paginas), destino_(destino), vistas_(paginas.Cuantas() + 1U) {
        for (const std::uint32_t libre : paginas.Libres()) Ver(libre);
    }

    Salvado Ejecutar() {
        for (const std::string& nombre : PrimeraColumna(destino_, TablasDeUsuario))
            tablas_.push_back(
                Tabla{nombre, ColumnasEn(destino_, nombre), 0, false, {}, {nullptr, sqlite3_finalize}});
        LeerCatalogo();
        for (Tabla& tabla : tablas_) {
            if (tabla.Raiz != 0) Copiar(tabla.Raiz, tabla);
        }
        Repartir(Sueltas());
        return salvado_;
    }

  private:
    bool Ver(std::uint32_t pagina) {
        if (pagina < 1 || pagina >= vistas_.size() || vistas_[pagina]) return false;
        vistas_[pagina] = true;
        return true;
    }

    /// Calls `hoja` for each page of rows below one. False when a page on the way is no such page.
    bool Recorrer(std::uint32_t raiz, const std::function<void(std::uint32_t)>& hoja) {
        bool entera = true;
        std::vector<std::uint32_t> pendientes{raiz};
        while (!pendientes.empty()) {
            const std::uint32_t pagina = pendientes.back();
            pendientes.pop_back();
            if (!Ver(pagina) || !(paginas_.EsHoja(pagina) || paginas_.EsRama(pagina))) {
                ++salvado_.PaginasPerdidas;
                entera = false;
                continue;
            }
            if (paginas_.EsHoja(pagina)) hoja(pagina);
            for (const std::uint32_t hija : paginas_.Hijas(pagina)) pendientes.push_back(hija);
        }
        return entera;
    }

    void LeerCatalogo() {
        int perdidas = 0;
        const auto leer = [&](std::uint32_t hoja) {
            for (const FilaCruda& fila : paginas_.Filas(hoja, perdidas)) {
                if (EsDelCatalogo(fila)) Declarar(fila);
            }
        };
        catalogoRoto_ = !Recorrer(1, leer) || perdidas > 0;
        if (!catalogoRoto_) return;
        for (std::uint32_t pagina = 2; pagina <= paginas_.Cuantas(); ++pagina) {
            int ninguna = 0;
            const auto filas = paginas_.Filas(pagina, ninguna);
            if (!filas.empty() && std::all_of(filas.begin(), filas.end(), EsDelCatalogo)) {
                Ver(pagina);
                leer(pagina);
            }
        }
    }

    /// Takes a table's root and columns from the catalogue; one that is not looked for is made where it can
    /// be.
    void Declarar(const FilaCruda& fila) {
        const std::string& nombre = fila.Datos[1].Bytes;
        const std::string& sql = fila.Datos[4].Bytes;
        if (fila.Datos[0].Bytes != "table" || nombre.starts_with("sqlite")) return;
        Motor aparte("", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_MEMORY);
        const bool simple = EsTablaSimple(sql) && aparte.Correr(sql) && SonTablasSimples(aparte);
        auto tabla =
            std::find_if(tablas_.begin(), tablas_.end(), [&](const Tabla& t) { return t.Nombre == nombre; });
        if (tabla == tablas_.end()) {
            if (!simple || !destino_.Correr(sql)) return;
            tabla =
                tablas_.insert(tablas_.end(), Tabla{nombre, {}, 0, false, {}, {nullptr, sqlite3_finalize}});
        }
        tabla->Raiz = static_cast<std::uint32_t>(fila.Datos[3].Entero());
        if (simple) tabla->Columnas = ColumnasEn(aparte, nombre);
    }

    /// Copies the rows below a page.
    void Copiar(std::uint32_t raiz, Tabla& tabla) {
        const bool entera = Recorrer(raiz, [&](std::uint32_t hoja) {
            int perdidas = 0;
            const auto filas = paginas_.Filas(hoja, perdidas);
            if (!EsDe(filas, tabla)) {  // a pointer that leads astray: the page is left to its own table
                vistas_[hoja] = false;
                tabla.Hueco = true;
                return;
            }
            salvado_.FilasPerdidas += perdidas;
            for (const FilaCruda& fila : filas)
                (Escribir(fila, tabla) ? salvado_.Filas : salvado_.FilasPerdidas) += 1;
        });
        if (!entera) tabla.Hueco = true;
    }

    /// Some of a page's rows, if it has any, are such as the table holds.
    static bool EsDe(const std::vector<FilaCruda>& filas, const Tabla& tabla) {
        return filas.empty() || std::any_of(filas.begin(), filas.end(), [&](const FilaCruda& fila) {
                   return Encaja(fila, tabla.Columnas);
               });
    }

    /// The columns that both databases have.
    bool Preparar(Tabla& tabla) {
        std::string nombres = "rowid";
        std::string marcas = "?";
        const auto suyas = ColumnasEn(destino_, tabla.Nombre);
        int lugar = 1;
        for (const Columna& columna : tabla.Columnas) {
            const bool hay = std::any_of(suyas.begin(), suyas.end(),
                                         [&](const Columna& suya) { return suya.Nombre == columna.Nombre; });
            tabla.Lugares.push_back(hay ? ++lugar : 0);
            if (!hay) continue;
            nombres += ", " + Identificador(columna.Nombre);
            marcas += ", ?";
        }
        tabla.Escritura = destino_.Preparar("INSERT OR IGNORE INTO " + Identificador(tabla.Nombre) + " (" +
                                            nombres + ") VALUES (" + marcas + ")");
        return tabla.Escritura != nullptr;
    }

    /// A row of an earlier edition has fewer values than its table has columns now.
    bool Escribir(const FilaCruda& fila, Tabla& tabla) {
        if (fila.Datos.size() > tabla.Columnas.size() || (!tabla.Escritura && !Preparar(tabla))) return false;
        sqlite3_stmt* escritura = tabla.Escritura.get();
        sqlite3_clear_bindings(escritura);
        sqlite3_bind_int64(escritura, 1, fila.Numero);
        for (std::size_t i = 0; i < fila.Datos.size(); ++i) {
            if (tabla.Lugares[i] != 0) Ligar(escritura, tabla.Lugares[i], fila.Datos[i]);
        }
        bool hayFila = false;
        const bool escrita = destino_.Avanzar(escritura, hayFila) && sqlite3_changes(destino_.base()) == 1;
        sqlite3_reset(escritura);
        return escrita;
    }

    void Ligar(sqlite3_stmt* escritura, int i, const FilaCruda::Dato& dato) const {
        constexpr unsigned char codificaciones[]{SQLITE_UTF8, SQLITE_UTF8, SQLITE_UTF16LE, SQLITE_UTF16BE};
        if (dato.EsEntero()) sqlite3_bind_int64(escritura, i, dato.Entero());
        if (dato.EsReal()) sqlite3_bind_double(escritura, i, dato.Real());
        if (dato.EsBinario())
            sqlite3_bind_blob64(escritura, i, dato.Bytes.data(), dato.Bytes.size(), SQLITE_STATIC);
        if (dato.EsTexto())
            sqlite3_bind_text64(escritura, i, dato.Bytes.data(), dato.Bytes.size(), SQLITE_STATIC,
                                codificaciones[paginas_.Codificacion()]);
    }

    /// Pages of rows to which nothing led, and to which none of the others leads.
    std::vector<std::uint32_t> Sueltas() const {
        std::vector<bool> hijas(vistas_.size());
        std::vector<std::uint32_t> sueltas;
        for (std::uint32_t pagina = 2; pagina <= paginas_.Cuantas(); ++pagina) {
            if (vistas_[pagina]) continue;
            for (const std::uint32_t hija : paginas_.Hijas(pagina)) {
                if (hija < hijas.size()) hijas[hija] = true;
            }
        }
        for (std::uint32_t pagina = 2; pagina <= paginas_.Cuantas(); ++pagina) {
            if (!vistas_[pagina] && !hijas[pagina] && (paginas_.EsHoja(pagina) || paginas_.EsRama(pagina)))
                sueltas.push_back(pagina);
        }
        return sueltas;
    }

    /// The first row below a page tells whose it may be; where there is none, it may be anyone's.
    bool PuedeSer(std::uint32_t pagina, const Tabla& tabla) const {
        for (int paso = 0; paso < 20 && paginas_.EsRama(pagina); ++paso)
            pagina = paginas_.Hijas(pagina).front();
        int ninguna = 0;
        const auto filas = paginas_.Filas(pagina, ninguna);
        return std::all_of(filas.begin(), filas.end(), [&](const FilaCruda& fila) {
            return fila.Datos.size() == tabla.Columnas.size() && Encaja(fila, tabla.Columnas);
        });
    }

    /// Gives each loose page to a table: first to those whose root nobody told, in the order in which tables
    /// are made, then to those that have a hole.
    void Repartir(const std::vector<std::uint32_t>& sueltas) {
        std::vector<Tabla*> sinRaiz;
        for (Tabla& tabla : tablas_) {
            if (catalogoRoto_ && tabla.Raiz == 0) sinRaiz.push_back(&tabla);
        }
        auto candidata = sinRaiz.begin();
        std::vector<std::uint32_t> quedan;
        for (const std::uint32_t pagina : sueltas) {
            const auto hallada = std::find_if(candidata, sinRaiz.end(),
                                              [&](const Tabla* tabla) { return PuedeSer(pagina, *tabla); });
            if (hallada == sinRaiz.end()) {
                quedan.push_back(pagina);
                continue;
            }
            Copiar(pagina, **hallada);
            (*hallada)->Hueco = true;  // its root may be another page that is lost
            candidata = hallada + 1;
        }
        for (const std::uint32_t pagina : quedan) {
            const auto hallada = std::find_if(tablas_.begin(), tablas_.end(), [&](const Tabla& tabla) {
                return tabla.Hueco && PuedeSer(pagina, tabla);
            });
            if (hallada != tablas_.end()) Copiar(pagina, *hallada);
        }
    }

    const Paginas& paginas_;
    Motor& destino_;
    std::vector<bool> vistas_;
    std::vector<Tabla> tablas_;
    bool catalogoRoto_ = false;
    Salvado salvado_;
};

}  // namespace

Salvado Salvar(const Paginas& paginas, Motor& destino) {
    return Salvador(paginas, destino).Ejecutar();
}

}  // namespace trabex::almacen
