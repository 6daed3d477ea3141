#pragma once

#include <string>
#include <string_view>

#include "shell/Aplicacion.h"
#include "shell/CajaMensajes.h"
#include "shell/DialogosArchivo.h"
#include "shell/Plataforma.h"

namespace trabex::programa {

/// The windows in which the elements of a project are worked on.
enum class Espacio { Losas, Marcus, AnalisisCargaP, EscaleraT, EscaleraH, AnalisisCarga };

/// What the main window's operations ask of the window.
class VistaMenuPrincipal {
  public:
    virtual ~VistaMenuPrincipal() = default;
    virtual void PonerTitulo(const std::string& titulo) = 0;
    virtual void PonerRevision(const std::string& texto) = 0;
    virtual void HabilitarSalvarComo(bool habilitado) = 0;
    virtual void PunteroDeEspera(bool espera) = 0;
    virtual void PonerTapiz(const Tapiz& tapiz) = 0;
    virtual void Repintar() = 0;
    virtual void Cerrar() = 0;

    // Windows, each modal: the call returns when it closes.
    virtual void MostrarDatosProyecto() = 0;
    virtual void MostrarConfiguracion() = 0;
    virtual void MostrarReparacion() = 0;
    virtual void MostrarSobre() = 0;
    virtual void MostrarEspacio(Espacio espacio) = 0;
};

/// Operations of the main window. A project is a path to it: the file on disk is the document, every
/// workspace writes to it as the engineer works, and closing asks nothing.
class MenuPrincipal {
  public:
    MenuPrincipal(Aplicacion& aplicacion, VistaMenuPrincipal& vista, CajaMensajes& caja,
                  DialogosArchivo& dialogos, Plataforma& plataforma);

    /// First title, status, locale, help file and wallpaper.
    void Iniciar();
    /// Runs the command of a key; a key that is not dispatched does nothing.
    void Ejecutar(std::string_view clave);

    void CrearNuevoProyecto();
    void AbrirProyecto();
    void SalvarComo();
    void ModificarProyecto();
    void ConfigurarTapiz();
    void AnalisisLosas();
    void CoeficientesMarcus();
    void VerAnalisisCargaP();
    void EjecutarEscalerasTijera();
    void EjecutarEscaleraH();
    void VerAnalisisCarga();
    void Reparar();
    void TemasAyuda();
    void ManualLosas();
    void Sobre();
    void AbreExplorador();
    void Salida();

    /// Reads the settings again and shows the wallpaper.
    void ColoqueTapiz();

  private:
    std::filesystem::path CarpetaProyectos() const;
    /// Runs `mostrar` with a project: with none it first lets the user open one.
    template <class Mostrar>
    void ConProyecto(Mostrar mostrar);
    void MostrarEspacio(Espacio espacio);
    void HacerActual(const std::filesystem::path& archivo);
    void Reemplazar(const std::filesystem::path& archivo);

    std::optional<std::filesystem::path> ElegirDestino();

    Aplicacion& aplicacion_;
    VistaMenuPrincipal& vista_;
    CajaMensajes& caja_;
    DialogosArchivo& dialogos_;
    Plataforma& plataforma_;
};

}  // namespace trabex::programa
