#include "loads/ui/qt/ColumnasDePesos.h"

#include "loads/ui/qt/ClaseDePeso.h"
#include "loads/ui/qt/Mandos.h"
#include "loads/ui/qt/VentanasDeCreacion.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::cargas::ui::qt {

std::vector<programa::qt::ColumnaDatos> ColumnasDePesos(
    const std::vector<PesoUnitario>& lineas,
    const std::function<bool(int, CampoDePeso, const std::string&)>& poner) {
    // While rows go, the table may still ask for those that went.
    const auto linea = [&lineas](int fila) {
        const auto i = static_cast<std::size_t>(fila) - 1;
        return i < lineas.size() ? lineas[i] : PesoUnitario{};
    };
    const auto alPoner = [poner](CampoDePeso campo) {
        return [poner, campo](int fila, const QVariant& valor) {
            return poner(fila, campo, TextoEntrado(valor));
        };
    };
    return {{.Titulo = "Descripción",
             .Numero = std::nullopt,
             .Leer = [linea](int fila) { return programa::qt::Q(linea(fila).Descripcion); },
             .Poner = alPoner(CampoDePeso::Descripcion),
             .Largo = LargoDeDescripcion},
            {.Titulo = "Peso (kgf/m²)",
             .Numero = PesoEntrado,
             .Leer = [linea](int fila) { return static_cast<double>(linea(fila).Peso); },
             .Poner = alPoner(CampoDePeso::Peso),
             .Ancho = 120}};
}

}  // namespace trabex::cargas::ui::qt
