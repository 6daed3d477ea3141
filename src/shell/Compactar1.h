#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "shell/Aplicacion.h"
#include "shell/Servicios.h"

namespace trabex::programa {

class PantallaCompactar {
  public:
    virtual ~PantallaCompactar() = default;
    virtual void MostrarProgreso(bool visible) = 0;
    /// `porcentaje` of the work is done; `rotulo` tells the file in hand.
    virtual void Avanzar(double porcentaje, const std::string& rotulo) = 0;
    virtual void PunteroDeEspera(bool espera) = 0;
    virtual void RefrescarLista() = 0;
    virtual void Cerrar() = 0;
};

/// Files of projects in a folder, by name.
std::vector<std::string> ListarProyectos(const std::filesystem::path& carpeta);

/// Repairs and compacts project files, each through a new file in the scratch folder that then takes its
/// place.
///
/// The steps after a failed compaction run all the same: the source is deleted and the copy of what was not
/// made fails. Each file is copied into the folder of backups before, for that case. The desktop's trash,
/// where there is one, takes what is deleted. What another running program has open is not deleted.
class Compactar1 {
  public:
    Compactar1(Aplicacion& aplicacion, const Servicios& servicios, PantallaCompactar& pantalla)
        : aplicacion_(aplicacion), servicios_(servicios), pantalla_(pantalla) {}

    /// Accepts: handles the chosen files of a folder, in list order, and closes the window.
    void Aceptar(const std::filesystem::path& carpeta, const std::vector<std::string>& elegidos);

  private:
    void VaciarTemporales() const;
    void Compactar(const std::filesystem::path& archivo);
    int CompactarTodos(const std::filesystem::path& carpeta, const std::vector<std::string>& elegidos);
    void Avisar(const std::string& texto, const std::string& encabezado);

    Aplicacion& aplicacion_;
    Servicios servicios_;
    PantallaCompactar& pantalla_;
    std::vector<std::string> danados_;  // what was lost of which file
};

}  // namespace trabex::programa
