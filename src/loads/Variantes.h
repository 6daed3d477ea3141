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
    bool
        SorteaNumero;  ///< a new analysis gets a number of the program's; otherwise the database gives it one
    const char* YaExiste;        ///< the message of a creation that does not go on
    std::int16_t ReporteActual;  ///< its report
};

inline constexpr VarianteAnalisis AnalisisDeProyecto{Ambito::Proyecto, true, TextoYaExiste, 3};
inline constexpr VarianteAnalisis AnalisisCompartido{Ambito::Compartido, false,
                                                     "¡Este Registro ya existe en la Base de Datos!", 5};

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
