#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "lote/Calculo.h"
#include "lote/Marcha.h"
#include "reports/documento/Documento.h"
#include "store/Valor.h"

namespace trabex::lote::qt {

/// The drawings of a project, each drawn once for all that show them: as strokes, and where something takes
/// no strokes, as a picture.
class Pinturas {
  public:
    /// Keeps a drawing that was made for something else: that of an element, by its number from 0.
    void Guardar(const Elemento& elemento, std::size_t numero, almacen::Bytes trazos, almacen::Bytes png);
    /// Draws what is missing of the kinds that the memo tells of.
    void Completar(const ProyectoCalculado& calculado, bool conPixeles, const Marcha& marcha);

    std::vector<documento::Imagen> De(const Elemento& elemento) const;

  private:
    struct Pintura {
        std::string Titulo;
        almacen::Bytes Trazos;
        almacen::Bytes Png;
    };
    std::map<const Elemento*, std::vector<Pintura>> de_;
};

}  // namespace trabex::lote::qt
