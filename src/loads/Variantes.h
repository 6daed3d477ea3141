#pragma once

#include <cstdint>

namespace trabex::cargas {

/// Title of the reports of load analyses.
inline constexpr const char* TituloReporte = "ANALISIS DE CARGA EN LOSAS";

/// Where an analysis is kept. The windows of both are one implementation over this record and the tables that
/// the store gives for the same place.
enum class Ambito {
    Proyecto,    ///< `AnalisisCargaP`, `AnalisisCargaModificarP`, `NuevoAnalisisCargaP`
    Compartido,  ///< `AnalisisCarga`, `AnalisisCargaModificar`, `NuevoAnalisisCarga`
};

/// What a creating window says when it does not go on.
inline constexpr const char* TextoYaExiste = "Este Registro ya existe en la Base de Datos...";

/// What differs between the two.
struct VarianteAnalisis {
    Ambito Donde;
    /// A new analysis gets a number of the program's; otherwise the database gives it one.
    bool SorteaNumero;
    const char* YaExiste;        ///< the message of a creation that does not go on
    std::int16_t ReporteActual;  ///< its report
    // Names of its windows, and the caption of its list.
    const char* Lista;
    const char* Modificar;
    const char* Nuevo;
    const char* Titulo;
};

inline constexpr VarianteAnalisis AnalisisDeProyecto{.Donde = Ambito::Proyecto,
                                                     .SorteaNumero = true,
                                                     .YaExiste = TextoYaExiste,
                                                     .ReporteActual = 3,
                                                     .Lista = "AnalisisCargaP",
                                                     .Modificar = "AnalisisCargaModificarP",
                                                     .Nuevo = "NuevoAnalisisCargaP",
                                                     .Titulo = "ANÁLISIS DE CARGA DE LAS LOSAS"};
inline constexpr VarianteAnalisis AnalisisCompartido{
    .Donde = Ambito::Compartido,
    .SorteaNumero = false,
    .YaExiste = "¡Este Registro ya existe en la Base de Datos!",
    .ReporteActual = 5,
    .Lista = "AnalisisCarga",
    .Modificar = "AnalisisCargaModificar",
    .Nuevo = "NuevoAnalisisCarga",
    .Titulo = "Base de Datos Análisis de Carga de Losas"};

constexpr const VarianteAnalisis& VarianteDe(Ambito ambito) {
    return ambito == Ambito::Proyecto ? AnalisisDeProyecto : AnalisisCompartido;
}

/// The two lists of unit weights.
struct VariantePesos {
    bool EsVariable;
    const char* Titulo;
    const char* Encabezado;
    const char* PreguntaEliminar;  ///< first line of the question
    const char* TextoCreada;
};

inline constexpr VariantePesos PesosPermanentes{
    false, "BASE DE DATOS DE CARGAS PERMANENTES", "Pesos Unitarios Probables de Elementos Constructivos",
    "Eliminar esta Carga Permanente...       ", "¡La Carga Permanente fue creada con Exito!"};
inline constexpr VariantePesos PesosVariables{
    true, "Base de Datos Cargas Variables", "Pesos Unitarios Probables de Cargas Variables",
    "Eliminar esta Carga Variable...       ", "¡La Carga Variable fue creada con Exito!"};

}  // namespace trabex::cargas
