#pragma once

#include <string>

#include "reports/montaje/PanelProgreso.h"
#include "reports/montaje/TablaGraficos.h"

namespace trabex::montaje {

/// The pictures of a report on their way into the scratch table `Grafico`, for any element: numbered from 1,
/// each with a step of the progress panel.
class AlbumGraficos {
  public:
    /// `total` is the number of pictures to come; the panel takes a step after each `porPaso` of them. What
    /// it refers to must outlive it.
    AlbumGraficos(almacen::Conexion& temporal, const EntornoReportes& entorno, SuperficieOculta& superficie,
                  PanelProgreso& panel, std::size_t total, const TamanoGrafico& tamano = {},
                  std::size_t porPaso = 1);
    /// Leaves the last picture in the file `Foto` of the scratch folder, in quality 100.
    ~AlbumGraficos();
    AlbumGraficos(const AlbumGraficos&) = delete;
    AlbumGraficos& operator=(const AlbumGraficos&) = delete;

    /// Sets a further column of the picture to come.
    void Poner(std::string_view campo, const almacen::Valor& valor) { tabla_.Poner(campo, valor); }
    /// Draws a picture and adds it: `nombre` is the element's, `titulo` the caption. `avance` is what the
    /// panel tells. Throws TrabajoCancelado once the panel is.
    void Agregar(const std::string& nombre, const std::string& titulo, const std::string& avance,
                 const std::function<void(dibujo::Lienzo&)>& dibujar);

  private:
    const EntornoReportes& entorno_;
    SuperficieOculta& superficie_;
    PanelProgreso& panel_;
    std::size_t total_;
    TamanoGrafico tamano_;
    std::size_t porPaso_;
    TablaGraficos tabla_;
};

}  // namespace trabex::montaje
