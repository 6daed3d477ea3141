#pragma once

#include <QDialog>
#include <functional>

#include "drawing/Lienzo.h"
#include "reports/ui/ExportarGrafico.h"

class QButtonGroup;

namespace trabex::dibujo::qt {
class WidgetLienzo;
}

namespace trabex::reportes::ui::qt {

/// Draws the current drawing of the calling workspace whole, through a viewport that is not the workspace's.
using DibujoDeEspacio = std::function<void(dibujo::Lienzo&, dibujo::EstadoVista&)>;

/// The same from the workspace's sheet: `dibujar` draws a copy of it, which has the other viewport.
template <class Hoja, class Dibujar>
DibujoDeEspacio DibujoDeHoja(Hoja hoja, Dibujar dibujar) {
    return [hoja, dibujar](dibujo::Lienzo& lienzo, dibujo::EstadoVista& vista) mutable {
        hoja.Vista = vista;
        dibujar(lienzo, hoja);
        vista = hoja.Vista;
    };
}

/// The window that shows a drawing with its own zoom and saves it as a picture.
class VentanaExportarGrafico : public QDialog, private PantallaExportarGrafico {
  public:
    VentanaExportarGrafico(EntornoGrafico entorno, DibujoDeEspacio dibujar, QWidget* padre);

  private:
    QLayout* Controles();
    void Guardar(const std::filesystem::path& archivo, const FormatoGrafico& formato) override;

    EntornoGrafico entorno_;
    ExportarGrafico operaciones_;
    DibujoDeEspacio dibujar_;
    dibujo::qt::WidgetLienzo* lienzo_;
    QButtonGroup* formatos_ = nullptr;
};

}  // namespace trabex::reportes::ui::qt
