#pragma once

#include <array>
#include <filesystem>

#include "drawing/Visor.h"
#include "reports/montaje/EstadoReportes.h"
#include "shell/Aplicacion.h"
#include "shell/Servicios.h"

namespace trabex::reportes::ui {

/// Kinds of picture file: option of the window, filter of the save dialog.
struct FormatoGrafico {
    const char* Opcion;
    const char* Filtro;
    const char* Clase;  ///< of a picture, as image libraries name it
};
inline constexpr std::array<FormatoGrafico, 4> FormatosGrafico{{
    {"Imagen en Formato de Mapa de Bits (BMP)", "Image (*.bmp)|*.bmp", "BMP"},
    {"Imagen en Formato (JPG)", "Image (*.jpg)|*.jpg", "JPG"},
    {"Dibujo Vectorial (SVG)", "Dibujo (*.svg)|*.svg", "SVG"},
    {"Dibujo para Programas de CAD (DXF)", "Dibujo (*.dxf)|*.dxf", "DXF"},
}};

/// What the operations ask of the window that shows the drawing.
class PantallaExportarGrafico {
  public:
    virtual ~PantallaExportarGrafico() = default;
    /// Saves the window's picture, a JPEG in quality 100, or its drawing. Throws ErrorEjecucion.
    virtual void Guardar(const std::filesystem::path& archivo, const FormatoGrafico& formato) = 0;
};

/// What the window works with.
struct EntornoGrafico {
    programa::Aplicacion& LaAplicacion;
    montaje::EstadoReportes& Estado;
    programa::Servicios Servicios;
};

/// Shows the current drawing of a workspace in a window of its own and saves it as a picture. The viewport is
/// the window's: the workspace's zoom stays as it is, and no grid is in the picture.
class ExportarGrafico {
  public:
    ExportarGrafico(EntornoGrafico& entorno, PantallaExportarGrafico& pantalla)
        : entorno_(entorno), pantalla_(pantalla) {
        visor_.ExportandoGrafico = true;
    }

    dibujo::EstadoVista& Viewport() { return visor_; }
    /// Asks for a file, beginning in the folder of the last one, and saves the picture in it.
    void ExportarPantalla(const FormatoGrafico& formato);
    void AbrirCarpeta();

  private:
    std::filesystem::path Carpeta() const;

    EntornoGrafico& entorno_;
    PantallaExportarGrafico& pantalla_;
    dibujo::EstadoVista visor_;
};

}  // namespace trabex::reportes::ui
