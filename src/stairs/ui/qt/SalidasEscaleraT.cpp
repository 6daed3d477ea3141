#include "stairs/ui/qt/SalidasEscaleraT.h"

#include "reports/ui/qt/VentanaExportarGrafico.h"

namespace trabex::escaleras::ui::qt {

OperacionesDeEscaleras SalidasEscaleraT::Operaciones() {
    return {{"ID_ExportarG",
             [this](EscaleraT& escaleras, QWidget& ventana) { ExportarImagen(escaleras, ventana); }}};
}

/// The window's zoom is its own: the workspace's comes back by itself.
void SalidasEscaleraT::ExportarImagen(EscaleraT& escaleras, QWidget& ventana) {
    dibujo::escalera::HojaEscalera hoja = escaleras.Estado().Hoja;
    const auto dibujar = [&](dibujo::Lienzo& lienzo, dibujo::EstadoVista& vista) {
        hoja.Vista = vista;
        dibujo::escalera::RedibujeVista(lienzo, hoja, escaleras.Calculada());
        vista = hoja.Vista;
    };
    reportes::ui::qt::VentanaExportarGrafico({aplicacion_, salida_.Opciones, servicios_}, dibujar, &ventana)
        .exec();
}

}  // namespace trabex::escaleras::ui::qt
