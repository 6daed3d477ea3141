#include "reports/planex/ui/ExportarCAD.h"

#include <array>

#include "base/Archivos.h"
#include "reports/planex/ArchivoPlanex.h"
#include "reports/planex/ui/CuadroCAD.h"
#include "shell/Arranque.h"
#include "shell/Espera.h"
#include "slab/CalcularLosa.h"
#include "store/DeTrabajo.h"
#include "store/Elementos.h"
#include "store/antiguo/Convertir.h"
#include "store/tablas/TablasLosa.h"

namespace trabex::planex::ui {

namespace {

constexpr const char* FiltroPlanex = "Planex|*.Cad";
constexpr const char* EncabezadoPlanex = "Planex Estructural...";

/// What an edition of Planex changes: the file's template, the folder of its projects, the dialogs' titles.
struct EdicionPlanex {
    const char* Plantilla;
    const char* Carpeta;
    const char* TituloAbrir;
    const char* TituloCrear;
};
constexpr std::array<EdicionPlanex, 2> Ediciones{{
    {"ImagenCAD8.tbx", "Planex8", "Abrir un Proyecto en Planex Estructural 8.0",
     "Crear Nuevo Proyecto en Planex Estructural 8.0"},
    {"ImagenCAD23.tbx", "Planex23", "Abrir un Proyecto en Planex Estructural 2023",
     "Crear Nuevo Proyecto en Planex Estructural 2023"},
}};

/// How the question names what a file loses that is written anew.
struct NoConservado {
    jet::Falta Falta;
    const char* Texto;
    bool SeCuenta = true;
};
constexpr std::array<NoConservado, 6> NoConservados{{
    {jet::Falta::Indice, "Índices y Claves de sus Tablas"},
    {jet::Falta::Objeto, "Relaciones, Consultas, Formularios y otros Objetos"},
    {jet::Falta::Clave, "Su Contraseña o Cifrado", false},
    {jet::Falta::Orden, "El Orden Alfabético de sus Textos", false},
    {jet::Falta::Formato, "Su Formato Anterior y los Valores por Defecto de sus Columnas", false},
    {jet::Falta::Ilegible, "Tablas que no se pudieron Leer Completas"},
}};

std::string TituloDe(const std::filesystem::path& archivo) {
    return TextoDeCamino(archivo.filename());
}

/// The project's file name with another extension of three letters: "obra.los" gives "obra.cad".
std::string NombrePropuesto(const std::string& proyecto) {
    constexpr std::size_t letras = 3;
    return proyecto.size() < letras ? "cad" : proyecto.substr(0, proyecto.size() - letras) + "cad";
}

programa::Mensaje Aviso(const std::string& texto, const std::string& encabezado, programa::IconoCaja icono) {
    programa::Mensaje mensaje;
    mensaje.Texto = texto;
    mensaje.Encabezado = encabezado;
    mensaje.Icono = icono;
    return mensaje;
}

/// A file that could not be opened takes nothing in silence; one that refuses a save is an error.
void Exigir(bool escrito, const almacen::Conexion& destino) {
    if (!escrito && !destino.ConexionFallida()) throw ErrorEjecucion(destino.Causa());
}

}  // namespace

ExportarCAD::ExportarCAD(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                         std::uint8_t versionCAD, PantallaExportarCAD& pantalla)
    : aplicacion_(aplicacion),
      servicios_(servicios),
      version_(versionCAD),
      pantalla_(pantalla),
      posicion_(aplicacion.Proyecto.RegistrosProyecto.Posicion()) {}

ExportarCAD::~ExportarCAD() {
    aplicacion_.Proyecto.RegistrosProyecto.MoverA(posicion_);
}

std::vector<std::string> ExportarCAD::Nombres() {
    return almacen::Nombres(aplicacion_.Proyecto.RegistrosProyecto);
}

losas::Losa ExportarCAD::LosaDe(int fila) {
    losas::Losa losa;
    aplicacion_.Proyecto.RegistrosProyecto.MoverA(fila);
    almacen::tablas::LeerLosa(aplicacion_.Proyecto, losa);
    return losa;
}

std::vector<int> ExportarCAD::FilasMarcadas() const {
    std::vector<int> filas;
    for (int fila = 1; fila <= aplicacion_.Proyecto.RegistrosProyecto.NumeroRegistros(); ++fila) {
        if (pantalla_.Marcada(fila)) filas.push_back(fila);
    }
    return filas;
}

/// The folder is fixed: below the root that machines share where there is one, whether or not this program
/// keeps its own data there.
std::filesystem::path ExportarCAD::CarpetaDe(std::uint8_t version) const {
    const auto raiz = servicios_.Sistema.RaizComun();
    return (raiz ? *raiz : servicios_.Sistema.CarpetaDeDocumentos()) / programa::CarpetaComun /
           Ediciones[version].Carpeta / "Proyectos";
}

std::optional<std::filesystem::path> ExportarCAD::ElegirExistente() {
    return servicios_.Dialogos.Elegir({Ediciones[version_].TituloAbrir, FiltroPlanex, CarpetaDe(version_),
                                       false, false, true, NombrePropuesto(aplicacion_.NombreProyecto)});
}

/// The target of a new project. An existing file is never taken: the box does not yield the answer that
/// would.
std::optional<std::filesystem::path> ExportarCAD::ElegirNuevo() {
    for (;;) {
        auto archivo =
            servicios_.Dialogos.Elegir({Ediciones[version_].TituloCrear, FiltroPlanex, CarpetaDe(version_),
                                        true, false, false, NombrePropuesto(aplicacion_.NombreProyecto)});
        if (!archivo || !Existe(*archivo)) return archivo;
        const programa::Mensaje pregunta = programa::Pregunta(
            TituloDe(*archivo) + " Ya Existe...\n¿Desea Usted Reemplazarlo?", EncabezadoPlanex);
        if (servicios_.Caja.Mostrar(pregunta) != programa::RespuestaQueReemplaza) continue;
        BorrarArchivo(*archivo);
        return archivo;
    }
}

void ExportarCAD::ExportarCAD80() {
    const std::vector<int> filas = FilasMarcadas();
    if (filas.empty()) {
        servicios_.Caja.Mostrar(Aviso("No ha Seleccionado Losas para Exportar a Planex Estructural...",
                                      "Planex Estructural 2023", programa::IconoCaja::Advertencia));
        return;
    }
    try {
        Exportar(filas);
    } catch (const ErrorEjecucion& error) {
        servicios_.Caja.Mostrar(programa::MensajeDeError(error, programa::ErrorInesperado));
    }
}

void ExportarCAD::Exportar(const std::vector<int>& filas) {
    const auto archivo = pantalla_.Opcion() == ArchivoCAD::CrearNuevo ? ElegirNuevo() : ElegirExistente();
    if (!archivo) return;
    if (!Existe(*archivo))
        CopiarArchivo(servicios_.Carpetas.CaminoPrograma / "Imagen" / Ediciones[version_].Plantilla,
                      *archivo);
    // The question names one edition, whichever the file is for.
    const programa::Mensaje pregunta = programa::Pregunta(
        TituloDe(*archivo) + "\n¿Anexar las Losas Seleccionadas a Planex Estructural 2023?",
        EncabezadoPlanex);
    if (servicios_.Caja.Mostrar(pregunta) != programa::RespuestaSi) return;
    std::optional<almacen::antiguo::BaseEnJet> base;
    const auto leer = [&] {
        const auto espera = programa::Espera(pantalla_);
        base.emplace(servicios_.Carpetas.CaminoPrograma, *archivo, ArchivoDeTrabajo(*archivo));
    };
    leer();
    std::filesystem::path original;
    if (const auto faltas = base->Faltas(); !faltas.empty()) {
        base.reset();
        original = almacen::antiguo::NombreDeAntigua(*archivo, "original");
        if (!Preguntar(*archivo, original, faltas)) return;
        leer();  // the other program may have written it while the question stood
    }
    const int exportadas = EscribirLosas(filas, *archivo, original, *base);
    base.reset();
    servicios_.Caja.Mostrar(
        Aviso("¡Se Exportaron ( " + std::to_string(exportadas) + " ) Losa(s) con Exito a Planex Estructural!",
              EncabezadoPlanex, programa::IconoCaja::Informacion));
    pantalla_.Cerrar();
}

bool ExportarCAD::Preguntar(const std::filesystem::path& archivo, const std::filesystem::path& original,
                            const std::map<jet::Falta, std::size_t>& faltas) {
    std::string texto = TituloDe(archivo) + "\nAl Anexar no se Conservan:";
    for (const NoConservado& cosa : NoConservados) {
        const auto suyas = faltas.find(cosa.Falta);
        if (suyas == faltas.end()) continue;
        texto += std::string("\n- ") + cosa.Texto;
        if (cosa.SeCuenta) texto += ": " + std::to_string(suyas->second);
    }
    programa::Mensaje pregunta = programa::PreguntaDeEliminar(
        texto + "\nEl Archivo Original quedará como: " + TituloDe(original) + "\n¿Desea Usted Continuar?",
        EncabezadoPlanex);
    pregunta.Botones = programa::BotonesCaja::SiNoCancelar;  // Escape answers it
    return servicios_.Caja.Mostrar(pregunta) == programa::RespuestaSi;
}

int ExportarCAD::EscribirLosas(const std::vector<int>& filas, const std::filesystem::path& archivo,
                               const std::filesystem::path& original, almacen::antiguo::BaseEnJet& base) {
    const auto espera = programa::Espera(pantalla_);
    almacen::Conexion& destino = base.Conexion();
    almacen::IndexarNombres(destino);
    int exportadas = 0;
    try {
        if (pantalla_.Opcion() == ArchivoCAD::CrearNuevo)
            Exigir(EscribirProyectoPlanex(destino, aplicacion_.Datos, aplicacion_.Generales), destino);
        // A copy with its names indexed is read in a time that grows with the slabs, not with their square.
        almacen::Recordset& lista = aplicacion_.Proyecto.RegistrosProyecto;
        almacen::tablas::ProyectoAbierto copia{.ConexionProyecto = {}, .RegistrosProyecto = lista};
        almacen::CopiarEnMemoria(aplicacion_.Proyecto.ConexionProyecto, copia.ConexionProyecto);
        for (const int fila : filas) {
            losas::Losa losa;
            lista.MoverA(fila);
            almacen::tablas::LeerLosa(copia.ConexionProyecto.Abierta() ? copia : aplicacion_.Proyecto, losa);
            losas::ResultadosLosa resultados;
            losas::CalcularLosa(losa, aplicacion_.Generales, resultados);
            Exigir(ReemplazarLosaPlanex(destino, losa, resultados), destino);
            ++exportadas;
        }
    } catch (const ErrorEjecucion&) {
        // What was written before the fault stays; where that is nothing so does the file.
        if (exportadas > 0 || pantalla_.Opcion() == ArchivoCAD::CrearNuevo) base.Guardar(archivo, original);
        throw;
    }
    if (!destino.ConexionFallida()) base.Guardar(archivo, original);
    return exportadas;
}

void ExportarCAD::AbrirCarpeta() {
    programa::AbrirODecir(servicios_, CarpetaDe(Planex8));
}

}  // namespace trabex::planex::ui
