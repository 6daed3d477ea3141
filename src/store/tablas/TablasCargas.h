#pragma once

#include <string>
#include <string_view>

#include "loads/AnalisisCarga.h"
#include "loads/Creacion.h"
#include "loads/Variantes.h"
#include "store/Filas.h"

namespace trabex::almacen::tablas {

/// The tables that keep analyses in one place.
struct TablasDeAnalisis {
    const char* Lista;  ///< opens the list on whose position an analysis is selected
    const char* Generales;
    TablaDeFilas Permanentes;
    TablaDeFilas Variables;
};

inline constexpr TablasDeAnalisis AnalisisDelProyecto{
    "AnalisisCargaG", "AnalisisCargaG", {"AnalisisCargaCP", "Numero", true}, {"AnalisisCargaCV"}};
inline constexpr TablasDeAnalisis AnalisisCompartidos{"SELECT * FROM Generales ORDER BY Descripcion",
                                                      "Generales",
                                                      {"CargaPermanente", "Numero", true},
                                                      {"CargaVariable"}};

constexpr const TablasDeAnalisis& TablasDe(cargas::Ambito ambito) {
    return ambito == cargas::Ambito::Proyecto ? AnalisisDelProyecto : AnalisisCompartidos;
}

/// The texts that open the lists of unit weights of the shared database.
inline constexpr std::string_view ConsultaPesosPermanentes =
    "SELECT * FROM BDPermanente ORDER BY Descripcion";
inline constexpr std::string_view ConsultaPesosVariables = "SELECT * FROM BDVariable ORDER BY Descripcion";

constexpr std::string_view ConsultaDePesos(bool esVariable) {
    return esVariable ? ConsultaPesosVariables : ConsultaPesosPermanentes;
}

/// Loads the analysis on which its list stands. Where no variable row is stored, the variable load is the
/// list's CV without a name: a save of items alone then leaves it as it is.
void LeerAnalisis(Conexion& conexion, const Recordset& lista, cargas::Ambito ambito,
                  cargas::AnalisisCarga& analisis);

/// Writes items and variable load over the stored ones of the analysis on which its list stands, and sets its
/// totals, as one save. Names are trimmed; a variable load without one stores no row and counts all the same.
/// The description of the analysis itself stays. False when it could not be stored; what was stored then
/// stands, in the list too.
bool GuardarAnalisis(Conexion& conexion, Recordset& lista, cargas::Ambito ambito,
                     cargas::AnalisisCarga& analisis);

/// Adds an analysis without loads to its list, which then stands on it. In a project it gets its number of
/// `azar`. False when it could not be stored.
bool AgregarAnalisis(Recordset& lista, cargas::Ambito ambito, const std::string& descripcion,
                     const cargas::FuenteAzar& azar);

/// Sets the description or the total of the analysis on which its list stands; neither touches CP, CV or REL.
/// False when it could not be stored.
bool CambiarDescripcion(Recordset& lista, const std::string& descripcion);
bool CambiarCarga(Recordset& lista, double carga);

/// Deletes the analysis on which its list stands, its loads first, as one save. False when it could not be
/// deleted; it then stands.
bool BorrarAnalisis(Conexion& conexion, Recordset& lista, cargas::Ambito ambito);

/// Whether the project's list holds the analysis on which the shared list stands: it does by its number,
/// under whatever description. The project's list then stands on it.
bool YaCapturado(const Recordset& compartida, Recordset& lista);

/// Copies the analysis on which the shared list stands into the project, number and all, as one save. Loads
/// replace those of its number only where there are any. The project's list then stands on it. False when it
/// could not be stored.
bool CapturarAnalisis(Conexion& compartida, const Recordset& listaCompartida, Conexion& proyecto,
                      Recordset& lista);

/// Adds a line to an opened list of unit weights, or sets the one on which it stands; names are trimmed.
/// False when it could not be stored.
bool AgregarPeso(Recordset& lista, const cargas::PesoUnitario& peso);
bool CambiarPeso(Recordset& lista, const cargas::PesoUnitario& peso);

}  // namespace trabex::almacen::tablas
