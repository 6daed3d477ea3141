#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "base/Formatos.h"
#include "base/Proyecto.h"
#include "drawing/escalera/GraficoEscalera.h"
#include "reports/montaje/BaseTemporal.h"
#include "reports/montaje/EstadoReportes.h"
#include "reports/montaje/PanelProgreso.h"
#include "reports/montaje/SuperficieOculta.h"
#include "store/Valor.h"
#include "store/proyecto/ProyectoAbierto.h"

namespace trabex::escaleras::salida {

/// Title of the stairs' report.
inline constexpr const char* TituloReporteEscaleras = "ANALISIS Y DISEÑO DE ESCALERAS AUTOPORTANTES";

/// A sheet of a stair in a report.
struct DibujoDeEscalera {
    dibujo::escalera::VistaEscalera Vista;
    const char* Titulo;  ///< follows the stair's name
};

/// The sheets that a value of `OpcionGrafico` asks for:
///   0  the selected stair: all four      1  every stair: all four
///   2  every stair: geometry             3  every stair: forces
///   4  every stair: design               5  every stair: reactions
/// Another value asks for none.
struct PedidoDeGraficos {
    bool Todas = false;
    std::span<const DibujoDeEscalera> Dibujos;
};
PedidoDeGraficos PedidoDe(std::uint8_t OpcionGrafico);

/// The loads that stand beside each picture, by their column of the scratch table `Grafico`.
std::vector<std::pair<std::string_view, almacen::Valor>> CargasDe(const DatosEscaleraT& escalera);

/// A project whose stairs are to be reported, with the stair that the workspace shows, calculated.
struct ProyectoParaReporte {
    almacen::proyecto::ProyectoAbierto& Proyecto;
    const DatosDelProyecto& Datos;
    EscaleraCalculada Actual;
};

/// Stages the sheets of stairs that `OpcionGrafico` asks for, on surfaces of the paper asked for, in the
/// scratch tables `Generales` and `Grafico`. All stairs are read and calculated anew, on records of their
/// own, and the list comes back to where it stood; the selected one is drawn as it stands. The panel shows
/// meanwhile: a step for each sheet of the selected stair, or for each stair. False when they could not be
/// stored; the report is then empty.
bool GuardeGraficos(const montaje::EntornoReportes& entorno, const ProyectoParaReporte& origen,
                    const Separadores& numeros, montaje::SuperficieOculta& superficie,
                    montaje::PanelProgreso& panel, const montaje::EstadoReportes& estado);

}  // namespace trabex::escaleras::salida
