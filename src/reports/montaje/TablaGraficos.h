#pragma once

#include <string>
#include <string_view>

#include "reports/montaje/BaseTemporal.h"
#include "reports/montaje/SuperficieOculta.h"
#include "store/Insercion.h"

namespace trabex::montaje {

/// The scratch table `Grafico` while a report's pictures are written into it, numbered from 1, for any
/// element.
class TablaGraficos {
  public:
    /// Empties the table. Must not outlive its connection.
    explicit TablaGraficos(almacen::Conexion& temporal);
    /// Sets a further column of the picture to come.
    void Poner(std::string_view campo, const almacen::Valor& valor) { tabla_.Poner(campo, valor); }
    /// `nombre` is the element's, `titulo` the caption.
    void Agregar(const std::string& nombre, const std::string& titulo, ImagenMontada imagen);
    std::size_t Cuantos() const { return numero_; }

  private:
    almacen::Insercion tabla_;
    std::size_t numero_ = 0;
};

/// Leaves a JPEG file's bytes as the file `Foto` of the scratch folder: a copy of a report's last picture,
/// which no report reads. The disk's errors are ignored.
void DejarFoto(const EntornoReportes& entorno, const almacen::Bytes& foto);

}  // namespace trabex::montaje
