#pragma once

#include <functional>
#include <string>

#include "drawing/LectorDeVista.h"
#include "drawing/losa/LecturaDeHoja.h"
#include "slab/ui/Losas.h"

namespace trabex::losas::ui {

/// Reads the diagrams of the open slab at a station, and opens its entry window at what is drawn.
class LectorDeLosa : public dibujo::LectorDeVista {
  public:
    /// `decir` shows what is read, and takes it away again with an empty text.
    LectorDeLosa(Losas& losas, std::function<void(const std::string&)> decir)
        : losas_(losas), decir_(std::move(decir)) {}

    std::optional<dibujo::LineaDeMira> Apuntar(std::optional<dibujo::PuntoLienzo> lugar) override;
    std::optional<dibujo::LineaDeMira> Avanzar(int pasos) override;
    std::optional<dibujo::LineaDeMira> Releer() override;
    void Abrir(dibujo::PuntoLienzo lugar) override;

  private:
    std::optional<dibujo::LineaDeMira> Mostrar(std::optional<dibujo::losa::EstacionDeHoja> estacion);

    Losas& losas_;
    std::function<void(const std::string&)> decir_;
    std::optional<dibujo::losa::EstacionDeHoja> estacion_;
};

}  // namespace trabex::losas::ui
