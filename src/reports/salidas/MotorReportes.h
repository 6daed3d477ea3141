#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>

#include "base/Avance.h"
#include "reports/documento/Documento.h"
#include "reports/documento/MaquetaReporte.h"

namespace trabex::salidas {

/// Codes by which an export names its format.
enum CodigoFormato { FormatoPdf = 31, FormatoHtml = 32, FormatoRtf = 35, FormatoXls = 36 };

/// A layout that was opened for reading. It holds no data of its own: where they are read from is set by the
/// program. What was composed once serves every output until it is discarded.
class Reporte {
  public:
    /// Throws ErrorEjecucion as LeerMaqueta does.
    Reporte(const std::filesystem::path& archivo, Separadores separadores);

    std::vector<documento::TablaDeMaqueta>& Tablas() { return maqueta_.Tablas; }
    std::vector<documento::MaquetaReporte>& Subreportes() { return maqueta_.Subreportes; }
    /// Sets the database of every table, those of the subreports included, whatever the layout stores.
    void Ubicar(const std::filesystem::path& base);
    /// Sets the page of every output, whatever the layout says.
    void PonerPapel(documento::TamanoPagina tamano, bool apaisado);
    /// The next output reads the database again.
    void DescartarDatos() { compuesto_.reset(); }

    /// What the layout and its database say. Throws ErrorEjecucion as Componer does.
    const documento::Documento& Contenido();

  private:
    documento::MaquetaReporte maqueta_;
    Separadores separadores_;
    std::optional<documento::Documento> compuesto_;
};

/// Writes a document to a file. Throws ErrorEjecucion, or TrabajoCancelado; an older file then stays.
using EscritorReporte =
    std::function<void(const documento::Documento&, const std::filesystem::path&, const Avance&)>;

/// The report engine: opens layouts and writes reports to files by the format's code.
class MotorReportes {
  public:
    /// Knows the formats that need no toolkit.
    MotorReportes();

    /// Adds a format, or replaces one.
    void Registrar(int codigo, EscritorReporte escritor);

    /// Throws ErrorEjecucion: 5 when no writer has the code, and as the writers do.
    void Exportar(const documento::Documento& documento, int codigo, const std::filesystem::path& destino,
                  const Avance& avance = {}) const;

  private:
    std::map<int, EscritorReporte> escritores_;
};

}  // namespace trabex::salidas
