#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "shell/Aplicacion.h"
#include "shell/Servicios.h"
#include "slab/Losa.h"
#include "store/antiguo/BaseEnJet.h"

namespace trabex::planex::ui {

/// How the file that takes the slabs is found.
enum class ArchivoCAD { CrearNuevo, AnexarAExistente };

class PantallaExportarCAD {
  public:
    virtual ~PantallaExportarCAD() = default;
    /// The check of a row of the grid, from 1, in the order of the slab list.
    virtual bool Marcada(int fila) const = 0;
    virtual ArchivoCAD Opcion() const = 0;
    virtual void PunteroDeEspera(bool espera) = 0;
    virtual void Cerrar() = 0;
};

/// Operations of the window that hands slabs of the connected project to the drawing program Planex.
///
/// It moves the project's slab list and leaves it at the end where it stood.
class ExportarCAD {
  public:
    ExportarCAD(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                std::uint8_t versionCAD, PantallaExportarCAD& pantalla);
    ~ExportarCAD();
    ExportarCAD(const ExportarCAD&) = delete;
    ExportarCAD& operator=(const ExportarCAD&) = delete;

    /// Names of the grid's rows.
    std::vector<std::string> Nombres();
    /// The slab of a row, for its sketch.
    losas::Losa LosaDe(int fila);

    /// " Aceptar ": exports the checked slabs to a file that the user chooses, tells how many, and closes the
    /// window. The count takes in the slabs of a file that could not be opened: nothing is written there, and
    /// nothing else tells it.
    void ExportarCAD80();
    /// The button with the folder: Planex 8's projects, whatever the edition.
    void AbrirCarpeta();

  private:
    std::vector<int> FilasMarcadas() const;
    std::filesystem::path CarpetaDe(std::uint8_t version) const;
    std::optional<std::filesystem::path> ElegirExistente();
    std::optional<std::filesystem::path> ElegirNuevo();
    void Exportar(const std::vector<int>& filas);
    /// Whether a file may be rewritten that has what the rewriting does not keep; it will stay as `original`.
    bool Preguntar(const std::filesystem::path& archivo, const std::filesystem::path& original,
                   const std::map<jet::Falta, std::size_t>& faltas);
    /// `original` is empty where nothing of the file gets lost.
    int EscribirLosas(const std::vector<int>& filas, const std::filesystem::path& archivo,
                      const std::filesystem::path& original, almacen::antiguo::BaseEnJet& base);

    programa::Aplicacion& aplicacion_;
    programa::Servicios servicios_;
    std::uint8_t version_;
    PantallaExportarCAD& pantalla_;
    int posicion_;  // of the slab list when the window opened
};

}  // namespace trabex::planex::ui
