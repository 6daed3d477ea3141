#pragma once

#include <string>
#include <string_view>

#include "shell/Aplicacion.h"
#include "shell/Servicios.h"

namespace trabex::programa {

/// What the main window's operations ask of the window.
class PantallaMenuPrincipal {
  public:
    virtual ~PantallaMenuPrincipal() = default;
    virtual void PonerTitulo(const std::string& titulo) = 0;
    virtual void PonerRevision(const std::string& texto) = 0;
    virtual void HabilitarSalvarComo(bool habilitado) = 0;
    virtual void PunteroDeEspera(bool espera) = 0;
    virtual void PonerTapiz(const Tapiz& tapiz) = 0;
    virtual void Repintar() = 0;
    /// The project goes to the head of the recent ones.
    virtual void RecordarProyecto(const std::filesystem::path& archivo) = 0;
    virtual void Cerrar() = 0;

    // Windows, each modal: the call returns when it closes.
    virtual void MostrarDatosProyecto() = 0;
    virtual void MostrarConfiguracion() = 0;
    virtual void MostrarReparacion() = 0;
    virtual void MostrarSobre() = 0;
    /// The workspace of a command.
    virtual void MostrarEspacio(std::string_view clave) = 0;
};

/// Operations of the main window. A project is a path to it: the file on disk is the document, every
/// workspace writes to it as the engineer works, and closing asks nothing.
class MenuPrincipal {
  public:
    MenuPrincipal(Aplicacion& aplicacion, const Servicios& servicios, PantallaMenuPrincipal& pantalla);

    /// First title, status, locale, help file and wallpaper.
    void Iniciar();
    /// Runs the command of a key; a key that is not dispatched does nothing.
    void Ejecutar(std::string_view clave);

    void CrearNuevoProyecto();
    void AbrirProyecto();
    /// A project that was named elsewhere: in the program's argument, among the recent ones, or dropped on
    /// the window. One that is not there is said so, and the current one stays.
    void AbrirDeFuera(const std::filesystem::path& archivo);
    /// Brings a backup back to a place that the user chooses, and makes it the current project.
    void RestaurarRespaldo();
    void SalvarComo();
    void ModificarProyecto();
    void ConfigurarTapiz();
    void Reparar();
    void TemasAyuda();
    void ManualLosas();
    void Sobre();
    void AbreExplorador();
    void Salida();

    /// Reads the settings again and shows the wallpaper.
    void ColoqueTapiz();

  private:
    /// Runs `mostrar` with a project: with none it first lets the user open one.
    template <class Mostrar>
    void ConProyecto(Mostrar mostrar);
    void MostrarEspacio(std::string_view clave);
    void HacerActual(const std::filesystem::path& archivo);
    void Abrir(const std::filesystem::path& archivo);
    std::filesystem::path ArchivoDeAyuda() const;
    void Reemplazar(const std::filesystem::path& archivo);

    std::optional<std::filesystem::path> ElegirDestino();

    Aplicacion& aplicacion_;
    Servicios servicios_;
    PantallaMenuPrincipal& pantalla_;
};

}  // namespace trabex::programa
