#pragma once

#include <array>

#include "reports/cuadricula/Cuadricula.h"
#include "reports/ui/SalidaReporte.h"

namespace trabex::reportes::ui {

/// A file that a grid is exported to: its option, its save dialog, and what is asked or told afterwards.
struct FormatoDeCuadricula {
    const char* Opcion;
    const char* Titulo;
    const char* Filtro;
    const char* Pregunta;
    const char* EncabezadoPregunta;
    const char* Falla;
    bool ConRegistro;  ///< a log file stands beside it
};

/// By `FormatoSalida`, from 1.
enum FormatoSalidaCuadricula : std::uint8_t {
    CuadriculaExcel = 1,
    CuadriculaHtmlSinBorde,
    CuadriculaHtmlConBorde,
    CuadriculaTexto,
    CuadriculaXml
};
inline constexpr FormatoDeCuadricula FormatoHtmlSinBorde{"HTML  sin Borde",
                                                         "Crear Archivo HTML",
                                                         "Archivos htm (*.htm)|*.htm",
                                                         "¿Desea Abrir el Archivo con el Internet Explorer?",
                                                         "Abrir el Archivo con el Explorer...",
                                                         "Error al Crear el Archivo en HTML...",
                                                         true};
inline constexpr std::array<FormatoDeCuadricula, 5> FormatosDeCuadricula{{
    {"Microsoft Excel (XLS)", "Crear Archivo EXCEL", "Archivos xls (*.xls)|*.xls",
     "¿Desea Abrir el Archivo con el Excel?", "Abrir el Archivo con Excel...",
     "Error Creando el Archivo en Excel...", true},
    FormatoHtmlSinBorde,
    {"HTML con Borde", FormatoHtmlSinBorde.Titulo, FormatoHtmlSinBorde.Filtro, FormatoHtmlSinBorde.Pregunta,
     FormatoHtmlSinBorde.EncabezadoPregunta, FormatoHtmlSinBorde.Falla, true},
    {"Archivo de Texto", "Crear Archivo de Texto", "Archivos txt (*.txt)|*.txt",
     "¿Desea Abrir el Archivo con el Block de Notas?", "Abrir el Archivo...", "Error Creando el Archivo...",
     false},
    {"Archivo XML", "Crear Archivo XML", "Archivos xls (*.xml)|*.xml", "¿Desea Abrir el Archivo XML?",
     "Abrir el Archivo XML...", "Error Creando el Archivo XML...", true},
}};

/// The log of an export: in the file's folder, under its name with "Log" in the place of its last three
/// characters.
std::filesystem::path CaminoDeRegistro(const std::filesystem::path& archivo);

/// What the operations ask of their window.
class PantallaOpcionExportar2 {
  public:
    virtual ~PantallaOpcionExportar2() = default;
    virtual void PunteroDeEspera(bool espera) = 0;
    virtual void Cerrar() = 0;
};

/// Writes a grid to a file and offers to open it.
class OpcionExportar2 {
  public:
    static constexpr const char* Titulo = "Exportar los Reportes";

    OpcionExportar2(EntornoSalida& entorno, PantallaOpcionExportar2& pantalla,
                    const cuadricula::Cuadricula& GrillaPreview)
        : entorno_(entorno), pantalla_(pantalla), grilla_(GrillaPreview) {}

    /// " Aceptar " with a format. The window stays open when the engineer cancels the file.
    void Aceptar(std::uint8_t formatoSalida);

  private:
    bool Escribir(std::uint8_t formatoSalida, const std::filesystem::path& archivo) const;
    void OfrecerAbrir(const FormatoDeCuadricula& formato, const std::filesystem::path& archivo) const;

    EntornoSalida& entorno_;
    PantallaOpcionExportar2& pantalla_;
    const cuadricula::Cuadricula& grilla_;
};

}  // namespace trabex::reportes::ui
