#pragma once

#include <filesystem>
#include <string>

#include "jet/Receptor.h"
#include "store/Motor.h"

namespace trabex::almacen::antiguo {

/// Receives the tables of a Jet database into a new file of the store's: every column by the store's type
/// nearest to its own, logicals as they are, dates as days since 30 December 1899, what has no equal as
/// bytes: a number too that the column would change. For who writes a Jet database of it again,
/// `TablaDeTipos` keeps the columns' own types, `TablaDeTablas` what else a table has, and `TablaDeFaltas`
/// what the copy lacks.
class CopiaDeJet : public jet::Receptor {
  public:
    static constexpr const char* TablaDeTipos = "trabex_jet";
    static constexpr const char* TablaDeTablas = "trabex_jet_tablas";
    static constexpr const char* TablaDeFaltas = "trabex_jet_faltas";

    explicit CopiaDeJet(const std::filesystem::path& destino);

    void RecibirTabla(const jet::Tabla& tabla) override;
    void RecibirFila(const jet::Fila& fila) override;
    void RecibirFalta(jet::Falta falta) override;
    /// False when the file could not be made or something could not be stored.
    bool Terminar();
    /// The run-time error that stands for why not.
    CodigoError Causa() const { return motor_.Causa(); }

  private:
    void Anotar(const std::string& tabla, std::size_t orden, const jet::Columna& columna);
    void Anotar(const jet::Tabla& tabla);

    Motor motor_;
    SentenciaSqlite anotacion_{nullptr, sqlite3_finalize};
    SentenciaSqlite anotacionDeTabla_{nullptr, sqlite3_finalize};
    SentenciaSqlite insercion_{nullptr, sqlite3_finalize};
    std::vector<jet::Columna> columnas_;
    bool entera_ = true;
};

}  // namespace trabex::almacen::antiguo
