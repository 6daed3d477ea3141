#pragma once

#include <filesystem>
#include <string>

#include "jet/Receptor.h"
#include "store/Motor.h"

namespace trabex::almacen::antiguo {

/// Receives the tables of a Jet database into a new file of the store's: every column by the store's type
/// nearest to its own, logicals as they are, dates as days since 30 December 1899, what has no equal as
/// bytes. The table `TablaDeTipos` keeps the columns' own types, for who writes a Jet database of it again.
class CopiaDeJet : public jet::Receptor {
  public:
    static constexpr const char* TablaDeTipos = "trabex_jet";

    explicit CopiaDeJet(const std::filesystem::path& destino);

    void RecibirTabla(const std::string& nombre, const std::vector<jet::Columna>& columnas) override;
    void RecibirFila(const jet::Fila& fila) override;
    /// False when the file could not be made or something could not be stored.
    bool Terminar();

  private:
    void Anotar(const std::string& tabla, std::size_t orden, const jet::Columna& columna);

    Motor motor_;
    SentenciaSqlite anotacion_{nullptr, sqlite3_finalize};
    SentenciaSqlite insercion_{nullptr, sqlite3_finalize};
    std::vector<jet::Columna> columnas_;
    bool entera_ = true;
};

}  // namespace trabex::almacen::antiguo
