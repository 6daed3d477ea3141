#pragma once

#include <cmath>
#include <utility>

#include <gtest/gtest.h>

#include "drawing/losa/GraficoLosa.h"
#include "slab/CalcularLosa.h"
#include "support/LienzoGrabador.h"
#include "support/LosasDePrueba.h"

namespace trabex {

using namespace dibujo;
using namespace dibujo::losa;
using namespace losas;
using prueba::LienzoGrabador;

/// A slab calculated, on a canvas of its own.
struct EnHoja {
    explicit EnHoja(Losa datos, LienzoGrabador lienzo = {1280, 720})
        : Datos(std::move(datos)), Lienzo(std::move(lienzo)) {
        CalcularLosa(Datos, Generales, Resultados);
    }
    LosaCalculada Calculada() const { return {Datos, Generales, Resultados}; }
    void Dibujar(std::uint8_t vista, const EstiloHoja& estilo = HojaEnPantalla) {
        Hoja.VistaActual = vista;
        RedibujeVista(Lienzo, Hoja, Calculada(), estilo);
    }

    Losa Datos;
    DatosGenerales Generales;
    ResultadosLosa Resultados;
    HojaLosa Hoja;
    LienzoGrabador Lienzo;
};

}  // namespace trabex
