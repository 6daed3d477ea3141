#include "shell/MenuPrincipal.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/Archivos.h"
#include "base/Texto.h"
#include "shell/Arranque.h"
#include "shell/Comandos.h"
#include "shell/Espera.h"
#include "shell/ProyectoAntiguo.h"
#include "shell/Respaldos.h"
#include "store/Comparacion.h"
#include "store/Mantenimiento.h"

namespace trabex::programa {

namespace {

constexpr const char* FiltroProyectos = "Archivos de Proyectos (.los)|*.los";
constexpr const char* FiltroAbrir = "Archivos de Proyectos (.losa)|*.los";

std::string NombreDe(const std::filesystem::path& archivo) {
    return TextoDeCamino(archivo.filename());
}

}  // namespace

MenuPrincipal::MenuPrincipal(Aplicacion& aplicacion, const Servicios& servicios,
                             PantallaMenuPrincipal& pantalla)
    : aplicacion_(aplicacion), servicios_(servicios), pantalla_(pantalla) {}

void MenuPrincipal::Iniciar() {
    pantalla_.HabilitarSalvarComo(false);
    pantalla_.PonerTitulo(TituloConProyecto(""));
    pantalla_.PonerRevision(std::string("Revisión del Programa: ") + VersionPrograma);
    aplicacion_.SeparadoresLocales = LeerSeparadores(servicios_.Sistema.NumeroDeMuestra());
    if (Existe(ArchivoDeAyuda())) aplicacion_.ArchivoAyuda = ArchivoDeAyuda();
    ColoqueTapiz();
    pantalla_.PunteroDeEspera(false);
}

std::filesystem::path MenuPrincipal::ArchivoDeAyuda() const {
    return servicios_.Carpetas.CaminoPrograma / "AyudaLosas2024.chm";
}

void MenuPrincipal::Ejecutar(std::string_view clave) {
    using Operacion = void (MenuPrincipal::*)();
    constexpr std::array<std::pair<std::string_view, Operacion>, 12> operaciones{{
        {"ID_Nuevo", &MenuPrincipal::CrearNuevoProyecto},
        {"ID_Abrir", &MenuPrincipal::AbrirProyecto},
        {"ID_Modificar", &MenuPrincipal::ModificarProyecto},
        {"ID_SalvarComo", &MenuPrincipal::SalvarComo},
        {"ID_ConfigurarPantalla", &MenuPrincipal::ConfigurarTapiz},
        {"ID_Salida", &MenuPrincipal::Salida},
        {"ID_Reparar", &MenuPrincipal::Reparar},
        {"ID_Restaurar", &MenuPrincipal::RestaurarRespaldo},
        {"ID_Temas", &MenuPrincipal::TemasAyuda},
        {"ID_Manual", &MenuPrincipal::ManualLosas},
        {"ID_Sobre", &MenuPrincipal::Sobre},
        {"ID_Explorador", &MenuPrincipal::AbreExplorador},
    }};
    for (const auto& [conocida, operacion] : operaciones) {
        if (conocida == clave) return (this->*operacion)();
    }
    const auto comando = std::find_if(Comandos.begin(), Comandos.end(),
                                      [&](const Comando& conocido) { return conocido.Clave == clave; });
    if (comando == Comandos.end()) return;
    if (comando->Ejecuta == Orden::Espacio) return pantalla_.MostrarEspacio(clave);
    ConProyecto([&] { MostrarEspacio(clave); });
}

void MenuPrincipal::HacerActual(const std::filesystem::path& archivo) {
    aplicacion_.ArchivoProyecto = archivo;
    aplicacion_.NombreProyecto = NombreDe(archivo);
    pantalla_.PonerTitulo(TituloConProyecto(aplicacion_.NombreProyecto));
    pantalla_.RecordarProyecto(archivo);
}

/// The question on replacing an existing file is an announcement: both of its answers go on, and only a third
/// one, which the box does not have, would come back to the dialog.
void MenuPrincipal::CrearNuevoProyecto() {
    std::optional<std::filesystem::path> archivo;
    do {
        archivo = servicios_.Dialogos.Elegir(
            {"Crear un Nuevo Proyecto", FiltroProyectos, servicios_.Carpetas.Proyectos(), true, true, false});
        if (!archivo) return pantalla_.PunteroDeEspera(false);
    } while (Existe(*archivo) &&
             servicios_.Caja.Mostrar(Pregunta(
                 "Proyecto: " + NombreDe(*archivo) + "\n¿Esta Seguro de Reemplazar el Proyecto Existente?",
                 "Crear un Nuevo Proyecto...")) == RespuestaCancelar);
    aplicacion_.Proyecto.RegistrosProyecto.Cerrar();
    aplicacion_.Proyecto.ConexionProyecto.Cerrar();
    try {
        HacerActual(*archivo);
        Reemplazar(*archivo);
    } catch (const ErrorEjecucion& error) {
        servicios_.Caja.Mostrar(MensajeDeError(error, ErrorInesperado));
        return pantalla_.PunteroDeEspera(false);
    }
    const auto espera = Espera(pantalla_);
    pantalla_.MostrarDatosProyecto();
    pantalla_.HabilitarSalvarComo(true);
}

void MenuPrincipal::Reemplazar(const std::filesystem::path& archivo) {
    if (Existe(archivo)) {
        almacen::ExigirLibre(archivo);
        ExigirBorrable(archivo);
        if (!servicios_.Sistema.LlevarAPapelera(archivo)) BorrarArchivo(archivo);
    }
    almacen::OlvidarGuardado(archivo);
    CopiarArchivo(servicios_.Carpetas.CaminoPrograma / "Imagen" / "LosaImagen.tbx", archivo);
}

void MenuPrincipal::AbrirProyecto() {
    const auto archivo = servicios_.Dialogos.Elegir(
        {"Abrir un Proyecto Existente", FiltroAbrir, servicios_.Carpetas.Proyectos(), false, false, true});
    pantalla_.PunteroDeEspera(false);
    if (archivo) Abrir(*archivo);
}

/// Where it can be read shows when a workspace connects.
void MenuPrincipal::Abrir(const std::filesystem::path& archivo) {
    if (!HacerLegible(servicios_, archivo)) return;
    HacerActual(archivo);
    pantalla_.HabilitarSalvarComo(true);
    pantalla_.Repintar();
}

void MenuPrincipal::AbrirDeFuera(const std::filesystem::path& archivo) {
    std::error_code error;
    const std::filesystem::path camino = std::filesystem::absolute(archivo, error);
    if (!error && Existe(camino)) return Abrir(camino);
    servicios_.Caja.Mostrar(
        MensajeDeError(ErrorEjecucion(CodigoError::ArchivoNoEncontrado), "Abrir un Proyecto Existente..."));
}

/// The file that is replaced is kept first; the chosen one is set aside before, for the folder keeps only so
/// many.
void MenuPrincipal::RestaurarRespaldo() {
    const char* titulo = "Restaurar un Respaldo";
    const auto respaldo =
        servicios_.Dialogos.Elegir({titulo, FiltroProyectos, aplicacion_.Respaldos, false, false, true});
    if (!respaldo) return;
    const std::string nombre = NombreRespaldado(*respaldo);
    const bool delActual = nombre == NombreDe(aplicacion_.ArchivoProyecto);
    const auto destino = servicios_.Dialogos.Elegir(
        {titulo, FiltroProyectos,
         delActual ? aplicacion_.ArchivoProyecto.parent_path() : servicios_.Carpetas.Proyectos(), true, true,
         false, nombre});
    if (!destino) return;
    const auto espera = Espera(pantalla_);
    try {
        const std::filesystem::path aparte = servicios_.Carpetas.CaminoTemporales / "Respaldo.los";
        CopiarArchivo(*respaldo, aparte);
        Respaldar(aplicacion_.Respaldos, *destino);
        almacen::OlvidarGuardado(*destino);
        CopiarArchivo(aparte, *destino);
        BorrarArchivo(aparte);
    } catch (const ErrorEjecucion& error) {
        servicios_.Caja.Mostrar(MensajeDeError(error, ErrorInesperado));
        return;
    }
    Abrir(*destino);
}

/// The target of a save-as. An existing file is never taken: the box does not yield the answer that would.
std::optional<std::filesystem::path> MenuPrincipal::ElegirDestino() {
    const auto normal = [](const std::filesystem::path& camino) { return Recortar(TextoDeCamino(camino)); };
    for (;;) {
        auto archivo = servicios_.Dialogos.Elegir({"Salvar el Proyecto Como...", FiltroProyectos,
                                                   servicios_.Carpetas.Proyectos(), true, false, false});
        if (!archivo) return std::nullopt;
        const std::string titulo = NombreDe(*archivo);
        if (almacen::Comparador().Comparar(normal(*archivo), normal(aplicacion_.ArchivoProyecto)) == 0) {
            Mensaje mismo;
            mismo.Texto = "Proyecto: " + titulo + "\n!No se puede Salvar el Proyecto con el mismo Nombre!";
            mismo.Encabezado = "Salvar el Proyecto Como...";
            mismo.Icono = IconoCaja::Advertencia;
            servicios_.Caja.Mostrar(mismo);
            continue;
        }
        if (!Existe(*archivo)) return archivo;
        const Mensaje pregunta =
            Pregunta("El Proyecto: " + titulo + "  Ya Existe...\n¿Desea Usted Reemplazarlo?",
                     "Salvar el Proyecto Como...");
        if (servicios_.Caja.Mostrar(pregunta) == RespuestaQueReemplaza) return archivo;
    }
}

void MenuPrincipal::SalvarComo() {
    const auto archivo = ElegirDestino();
    if (!archivo) return;
    const auto espera = Espera(pantalla_);
    try {
        almacen::CopiarBaseDatos(aplicacion_.ArchivoProyecto, *archivo);
        HacerActual(*archivo);
    } catch (const ErrorEjecucion& error) {
        servicios_.Caja.Mostrar(MensajeDeError(error, ErrorInesperado));
    }
}

template <class Mostrar>
void MenuPrincipal::ConProyecto(Mostrar mostrar) {
    if (Recortar(aplicacion_.NombreProyecto).empty()) AbrirProyecto();
    if (Recortar(aplicacion_.NombreProyecto).empty()) return;
    const auto espera = Espera(pantalla_);
    mostrar();
}

void MenuPrincipal::ModificarProyecto() {
    ConProyecto([this] { pantalla_.MostrarDatosProyecto(); });
}

/// A workspace has its own open command: the title follows it.
void MenuPrincipal::MostrarEspacio(std::string_view clave) {
    pantalla_.MostrarEspacio(clave);
    if (!aplicacion_.NombreProyecto.empty()) HacerActual(aplicacion_.ArchivoProyecto);
}

void MenuPrincipal::ConfigurarTapiz() {
    pantalla_.MostrarConfiguracion();
}

void MenuPrincipal::Reparar() {
    pantalla_.MostrarReparacion();
}

void MenuPrincipal::Sobre() {
    pantalla_.MostrarSobre();
}

void MenuPrincipal::TemasAyuda() {
    const std::filesystem::path paginas =
        servicios_.Carpetas.CaminoPrograma / "Manual" / "ayuda" / "index.html";
    AbrirODecir(servicios_, Existe(ArchivoDeAyuda()) || !Existe(paginas) ? ArchivoDeAyuda() : paginas);
}

void MenuPrincipal::ManualLosas() {
    AbrirODecir(servicios_, servicios_.Carpetas.CaminoPrograma / "Manual" / "ManualLosas2024.pdf");
}

void MenuPrincipal::AbreExplorador() {
    AbrirODecir(servicios_, servicios_.Carpetas.Proyectos());
}

void MenuPrincipal::Salida() {
    pantalla_.Cerrar();
}

void MenuPrincipal::ColoqueTapiz() {
    LeerPreferencias(servicios_.Carpetas, aplicacion_);
    pantalla_.PonerTapiz(aplicacion_.Preferencias);
}

}  // namespace trabex::programa
