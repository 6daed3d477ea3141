#include "reports/ui/OpcionExportar2.h"

#include "base/Archivos.h"
#include "base/Texto.h"
#include "reports/cuadricula/CuadriculaHtml.h"
#include "reports/cuadricula/CuadriculaXls.h"
#include "reports/cuadricula/CuadriculaXml.h"
#include "reports/cuadricula/TextoTabulado.h"

namespace trabex::reportes::ui {

namespace {

constexpr const char* EncabezadoFalla = "Reportes Exportados...";

void EscribirCuadricula(const cuadricula::Cuadricula& grilla, std::uint8_t formatoSalida,
                        const std::filesystem::path& archivo) {
    switch (formatoSalida) {
        case CuadriculaExcel:
            return cuadricula::EscribirXls(grilla, archivo);
        case CuadriculaTexto:
            return cuadricula::EscribirTabulado(grilla, archivo);
        case CuadriculaXml:
            return cuadricula::EscribirXml(grilla, archivo);
        default:
            return cuadricula::EscribirHtml(grilla, formatoSalida == CuadriculaHtmlConBorde, archivo);
    }
}

/// Says in the log what went wrong; an export without fault leaves it empty. A log that can't be written is
/// no fault of the export.
void Registrar(const std::filesystem::path& archivo, const std::string& falta) {
    try {
        EscribirArchivo(CaminoDeRegistro(archivo), falta);
    } catch (const ErrorEjecucion&) {
        return;
    }
}

}  // namespace

std::filesystem::path CaminoDeRegistro(const std::filesystem::path& archivo) {
    std::string titulo = TextoDeCamino(archivo.filename());
    for (int i = 0; i < 3 && !titulo.empty(); ++i) {
        do titulo.pop_back();
        while (!titulo.empty() && NumeroDeCaracteres(titulo) != NumeroDeCaracteres(TextoValido(titulo)));
    }
    return archivo.parent_path() / CaminoDeTexto(titulo + "Log");
}

bool OpcionExportar2::Escribir(std::uint8_t formatoSalida, const std::filesystem::path& archivo) const {
    std::string falta;
    pantalla_.PunteroDeEspera(true);
    try {
        EscribirCuadricula(grilla_, formatoSalida, archivo);
    } catch (const ErrorEjecucion& error) {
        falta = error.what();
    }
    pantalla_.PunteroDeEspera(false);
    if (FormatosDeCuadricula[formatoSalida - 1U].ConRegistro) Registrar(archivo, falta);
    return falta.empty();
}

void OpcionExportar2::OfrecerAbrir(const FormatoDeCuadricula& formato,
                                   const std::filesystem::path& archivo) const {
    if (entorno_.Servicios.Caja.Mostrar(programa::Pregunta(formato.Pregunta, formato.EncabezadoPregunta)) !=
        programa::RespuestaSi)
        return;
    if (!entorno_.Servicios.Sistema.AbrirArchivo(archivo))
        entorno_.Servicios.Caja.Mostrar(
            programa::MensajeDeError(programa::SinProgramaQueAbra(), EncabezadoFalla));
}

void OpcionExportar2::Aceptar(std::uint8_t formatoSalida) {
    const FormatoDeCuadricula& formato = FormatosDeCuadricula[formatoSalida - 1U];
    entorno_.Estado.FormatoSalida = formatoSalida;
    const auto archivo =
        entorno_.Servicios.Dialogos.Elegir({.Titulo = formato.Titulo,
                                            .Filtro = formato.Filtro,
                                            .Carpeta = entorno_.Servicios.Carpetas.ReportesExportados(),
                                            .Guardar = true,
                                            .AvisarReemplazo = true});
    if (!archivo) return;
    if (Escribir(formatoSalida, *archivo))
        OfrecerAbrir(formato, *archivo);
    else
        entorno_.Servicios.Caja.Mostrar(programa::Aviso(formato.Falla, EncabezadoFalla));
    pantalla_.Cerrar();
}

}  // namespace trabex::reportes::ui
