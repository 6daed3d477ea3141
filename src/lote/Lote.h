#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/DatosGenerales.h"
#include "base/Formatos.h"
#include "base/Proyecto.h"
#include "lote/Resumen.h"

namespace trabex::lote {

/// The elements of one kind, in list order: their results as JSON objects, and their summaries.
template <class Resumen>
struct ElementosCalculados {
    std::vector<std::string> Json;
    std::vector<Resumen> Resumenes;
};

/// A whole project, read and calculated.
struct ProyectoCalculado {
    DatosDelProyecto Datos;
    DatosGenerales Generales;           ///< of the slabs
    DatosGenerales GeneralesEscaleraT;  ///< of the self-supporting stairs
    DatosGenerales GeneralesEscaleraH;  ///< of the helical stairs
    ElementosCalculados<ResumenLosa> Losas;
    ElementosCalculados<ResumenEscaleraT> EscalerasT;
    ElementosCalculados<ResumenEscaleraH> EscalerasH;
    ElementosCalculados<ResumenMarcus> Marcus;
};

/// Reads a project and calculates every element of it on `hilos` threads; the project is not written to.
/// Results and their order do not depend on how many threads there are. False when the file is no project;
/// one without the tables of an element has no such elements.
bool CalcularProyecto(const std::filesystem::path& camino, unsigned hilos, ProyectoCalculado& calculado);

/// The results as one JSON document, an element a line.
std::string DocumentoJson(const ProyectoCalculado& calculado);

/// The summary as tables of plain text: one for the slabs, and one for each other kind that there is.
std::string TablaResumen(const ProyectoCalculado& calculado, const Separadores& separadores);

}  // namespace trabex::lote
