#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/Formatos.h"
#include "base/Proyecto.h"
#include "slab/Losa.h"

namespace trabex {

/// What the summary says of one slab: its extremes, moments in kgf·m, shear in kgf, steel in cm².
struct ResumenLosa {
    std::string Nombre;
    bool OpcionMaciza = false;
    std::size_t Tramos = 0;
    double Longitud = 0;  ///< sum of the span lengths, m
    double MaxMomentoApoyo = 0;
    double MaxMomentoTramo = 0;
    double MaxCorte = 0;
    double AceroSuperior = 0;  ///< the largest at an axis
    double AceroInferior = 0;  ///< the largest of a span
    std::string Error;         ///< text of the run-time error that ended the calculation
};

/// A whole project, read and calculated.
struct ProyectoCalculado {
    DatosDelProyecto Datos;
    DatosGenerales Generales;
    std::vector<std::string> LosasJson;  ///< in list order
    std::vector<ResumenLosa> Losas;
};

/// Reads a project and calculates every element of it on `hilos` threads; the project is not written to.
/// Results and their order do not depend on how many threads there are. False when the file is no project.
bool CalcularProyecto(const std::filesystem::path& camino, unsigned hilos, ProyectoCalculado& calculado);

/// The results as one JSON document, a slab a line.
std::string DocumentoJson(const ProyectoCalculado& calculado);

/// The summary as a table of plain text, a slab a line.
std::string TablaResumen(const ProyectoCalculado& calculado, const Separadores& separadores);

}  // namespace trabex
