#pragma once

#include <array>
#include <cstdio>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <sqlite3.h>

namespace trabex::prueba {

/// A row as any program that knows SQLite reads it: column name to text, numbers in full, "NULL" for null.
using FilaSqlite = std::map<std::string, std::string>;

inline std::string TextoSqlite(sqlite3_stmt* sentencia, int i) {
    if (sqlite3_column_type(sentencia, i) == SQLITE_NULL) return "NULL";
    if (sqlite3_column_type(sentencia, i) == SQLITE_FLOAT) {
        std::array<char, 40> texto{};
        std::snprintf(texto.data(), texto.size(), "%.17g", sqlite3_column_double(sentencia, i));
        return texto.data();
    }
    return reinterpret_cast<const char*>(sqlite3_column_text(sentencia, i));
}

inline std::vector<FilaSqlite> ConsultarSqlite(const std::filesystem::path& camino, const std::string& sql) {
    std::vector<FilaSqlite> filas;
    sqlite3* base = nullptr;
    sqlite3_stmt* sentencia = nullptr;
    if (sqlite3_open_v2(camino.string().c_str(), &base, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK &&
        sqlite3_prepare_v2(base, sql.c_str(), -1, &sentencia, nullptr) == SQLITE_OK) {
        while (sqlite3_step(sentencia) == SQLITE_ROW) {
            FilaSqlite& fila = filas.emplace_back();
            for (int i = 0; i < sqlite3_column_count(sentencia); ++i)
                fila[sqlite3_column_name(sentencia, i)] = TextoSqlite(sentencia, i);
        }
    }
    sqlite3_finalize(sentencia);
    sqlite3_close(base);
    return filas;
}

}  // namespace trabex::prueba
