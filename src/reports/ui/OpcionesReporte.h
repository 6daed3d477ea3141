#pragma once

#include <cstdint>
#include <span>

#include "reports/montaje/EstadoReportes.h"

namespace trabex::reportes::ui {

/// Which slabs a results report tells of, and whether with the displacements of their joints.
class OpcionImpreLosas {
  public:
    explicit OpcionImpreLosas(montaje::EstadoReportes& estado) : estado_(estado) {}

    /// " Aceptar ": `opcion` is 0 for the selected slab, 1 for all.
    void Aceptar(std::uint8_t opcion, bool desplazamientos);
    bool Aceptado() const { return aceptado_; }

    static constexpr const char* Titulo = "EXPORTAR LOS RESULTADOS";
    static constexpr const char* LosaSeleccionada = "Losa Seleccionada";
    static constexpr const char* TodasLasLosas = "Todas las Losas del Proyecto";
    static constexpr const char* Desplazamientos = "Exportar los Desplazamientos de las Juntas";

  private:
    montaje::EstadoReportes& estado_;
    bool aceptado_ = false;
};

/// A dialog that asks which drawings to send out: its options are the values of `OpcionGrafico`, from 0.
struct DialogoDeGraficos {
    const char* Nombre;
    const char* Titulo;
    const char* Marco;
    std::span<const char* const> Opciones;
    bool PidePapel;  ///< has frames for the paper's size and orientation
};

inline constexpr const char* OpcionesGraficoLosas[]{
    "Gráfico Losa Seleccionada",      "Gráficos de Todas las Losas", "Geometría de las Losas",
    "Cortes y Momentos de las Losas", "Diseño de las Losas",         "Reacciones sobre las Vigas"};
inline constexpr const char* OpcionesGraficoEscaleras[]{
    "Gráfico Escalera Seleccionada",   "Gráficos de Todas las Escaleras", "Geometría de las Escaleras",
    "Solicitaciones de las Escaleras", "Diseño de las Escaleras",         "Reacciones sobre las Vigas"};

/// Slabs: drawings into a report, and drawings straight to the printer.
inline constexpr DialogoDeGraficos OpcionGraficoE{
    "OpcionGraficoE", "EXPORTAR LOS GRÁFICOS", "Seleccione el Tipo de Reporte", OpcionesGraficoLosas, false};
inline constexpr DialogoDeGraficos OpcionGraficoE1{
    "OpcionGraficoE1", "IMPRIMIR LOS GRÁFICOS", "Seleccione el Tipo de Reporte", OpcionesGraficoLosas, false};
/// Self-supporting stairs. The frame's title is as it stands.
inline constexpr DialogoDeGraficos OpcionGraficoET{"OpcionGraficoET", "EXPORTAR LOS GRÁFICOS",
                                                   "Seleccione lel Tipo de Reporte", OpcionesGraficoEscaleras,
                                                   true};

}  // namespace trabex::reportes::ui
