#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "drawing/losa/GraficoLosa.h"
#include "reports/montaje/PanelProgreso.h"
#include "reports/montaje/SuperficieOculta.h"
#include "slab/salida/ReporteLosas.h"

namespace trabex::losas::salida {

/// A drawing of a slab in a report.
struct DibujoDeLosa {
    dibujo::losa::VistaLosa Vista;
    bool SoloReacciones;
    const char* Titulo;  ///< follows the slab's name
};

/// The drawings that a value of `OpcionGrafico` asks for:
///   0  the selected slab: geometry, forces, design
///   1  every slab: geometry, forces, design
///   2  every slab: geometry      3  every slab: forces      4  every slab: design
///   5  every slab: reactions on the beams
/// Another value asks for none.
struct PedidoDeGraficos {
    bool Todas = false;
    std::span<const DibujoDeLosa> Dibujos;
};
PedidoDeGraficos PedidoDe(std::uint8_t OpcionGrafico);

/// Caption of a drawing; of a slab that is too long for one sheet, with the sheet's number.
std::string TituloDe(const std::string& nombre, const DibujoDeLosa& dibujo, std::size_t hoja,
                     std::size_t hojas);

/// Stages the drawings of slabs that `OpcionGrafico` asks for, in the scratch tables `Generales` and
/// `Grafico`; a slab that is too long for one sheet goes on in further ones. Each slab is read and calculated
/// anew. Drawings are whole, whatever the screen's zoom; of `hoja`, the workspace's, they take the loads
/// shown and the separators of numbers. The panel shows meanwhile. False when they could not be stored; the
/// report is then empty.
bool GuardeGraficos(const montaje::EntornoReportes& entorno, const ProyectoParaReporte& origen,
                    const dibujo::losa::HojaLosa& hoja, montaje::SuperficieOculta& superficie,
                    montaje::PanelProgreso& panel, const montaje::EstadoReportes& estado);

}  // namespace trabex::losas::salida
