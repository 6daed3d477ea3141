#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>

#include "base/Proyecto.h"
#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"
#include "store/Conexion.h"
#include "store/Insercion.h"
#include "store/antiguo/BaseEnJet.h"

namespace trabex::planex {

// The exchange file of the drawing program Planex: geometry and theoretical steel of slabs, which Planex then
// details. Its tables, columns and default values are a contract with that program (docs/planex.md).

/// What Planex is told of the support at an axis. Lengths in m.
struct EjePlanex {
    bool Apoyo = false;
    double HViga = 0;
    double Lizq = 0, Lder = 0;      ///< half widths of the beam
    double MczIzq = 0, MczDer = 0;  ///< default solid zones, not those of the design
};
/// Axis i of 1 … N + 1.
EjePlanex EjeParaPlanex(const losas::Losa& losa, std::size_t i);

/// A span's transverse rib.
struct NervioPlanex {
    bool Opcion = false;
    const char* Diametro = "";  ///< of its bar, in inches
    double Ancho = 0;           ///< m
};
/// Ribbed spans from 6 m on carry one: it is decided here and not in the design.
NervioPlanex NervioParaPlanex(const losas::Losa& losa, std::size_t i);

/// Where an exchange file is held, beside its place, while it changes.
std::filesystem::path ArchivoDeTrabajo(std::filesystem::path destino);

/// Replaces the one row of the file's table `Proyecto`, as one save. False when it could not be stored.
bool EscribirProyectoPlanex(almacen::Conexion& destino, const DatosDelProyecto& datos,
                            const DatosGenerales& generales);

/// The five tables of slabs, opened to take rows. Must not outlive its connection.
class TablasPlanex {
  public:
    explicit TablasPlanex(almacen::Conexion& destino);
    /// Adds a slab's rows under its name without the blanks around it. Steel that was not calculated is 0.
    /// False when a row could not be stored.
    bool Agregar(const losas::Losa& losa, const losas::ResultadosLosa& resultados);

  private:
    almacen::Insercion datos_, tramos_, nervios_, ejes_, teorico_;
};

/// Writes a slab over its earlier rows, as one save: those of Planex's own tables go too. False when it could
/// not be stored; the file then stands as it stood. A name that holds a quote breaks its own deletions, and
/// its earlier rows stay beside the new ones.
bool ReemplazarLosaPlanex(almacen::Conexion& destino, const losas::Losa& losa,
                          const losas::ResultadosLosa& resultados);

/// A new file with slabs of a project, made from a template of the program folder: whole in the place of what
/// `destino` held, or not at all. Every operation throws ErrorEjecucion when it can't; `destino` then stands
/// as it stood. Nobody is asked: a file that another program has written, or that holds what Planex adds to
/// slabs, stays beside the new one.
class ArchivoNuevoPlanex {
  public:
    ArchivoNuevoPlanex(const std::filesystem::path& programa, const char* plantilla,
                       const std::filesystem::path& destino, const DatosDelProyecto& datos,
                       const DatosGenerales& generales);
    void Agregar(const losas::Losa& losa, const losas::ResultadosLosa& resultados);
    /// Where the file stays whose place it takes; empty where that was the program's own.
    std::filesystem::path Colocar();

  private:
    std::filesystem::path programa_;
    std::filesystem::path destino_;
    almacen::antiguo::BaseEnJet base_;
    std::optional<almacen::Transaccion> guardado_;
    std::optional<TablasPlanex> tablas_;
};

}  // namespace trabex::planex
