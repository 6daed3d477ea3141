#pragma once

#include <QString>
#include <vector>

#include "reports/cuadricula/Cuadricula.h"
#include "reports/ui/SalidaReporte.h"

class QTableView;
class QWidget;

namespace trabex::reportes::ui::qt {

/// A table on the screen, and the name of its sheet.
struct TablaEnPantalla {
    const QTableView* Tabla;
    QString Nombre;
};

/// The tables as they stand on the screen, a sheet each: headings, texts, sides and widths. A right-aligned
/// text that is a number as the locale writes it becomes one, with the most decimals that its column shows.
/// Hidden rows and columns stay out.
cuadricula::Cuadricula CuadriculaDe(const std::vector<TablaEnPantalla>& tablas,
                                    const Separadores& separadores);

/// "Imprimir la Pantalla Actual": previews, prints and exports what tables show, until the preview closes.
/// Any window's command is this one line:
///     ImprimirPantallaActual(entorno, {{tabla, "Cargas"}}, "TÍTULO DEL REPORTE", this);
void ImprimirPantallaActual(EntornoSalida& entorno, const std::vector<TablaEnPantalla>& tablas,
                            const std::string& titulo, QWidget* padre, bool apaisada = false);

/// The same for a window whose tables are sheets of cells already.
void ImprimirPantallaActual(EntornoSalida& entorno, std::vector<cuadricula::HojaDeCuadricula> hojas,
                            const std::string& titulo, QWidget* padre, bool apaisada = false);

}  // namespace trabex::reportes::ui::qt
