#include "slab/ui/LosaGeneral.h"

#include <array>

#include "store/tablas/TablasLosa.h"

namespace trabex::losas::ui {

std::optional<CampoLosaGeneral> LosaGeneral::PrimerCero(const DatosGenerales& e) {
    const std::array<double, 7> valores{
        static_cast<double>(e.FC), static_cast<double>(e.FY), e.D8, e.FCP, e.FCV, e.FiMomento, e.FiCorte};
    for (std::size_t i = 0; i < valores.size(); ++i) {
        if (valores[i] == 0) return static_cast<CampoLosaGeneral>(i);
    }
    return std::nullopt;
}

bool LosaGeneral::Aceptar(const DatosGenerales& entrados) {
    if (!almacen::tablas::GuardarGeneralesLosa(conexion_, entrados)) {
        caja_.Mostrar(programa::MensajeSinGuardar(conexion_.Causa()));
        return false;
    }
    generales_ = entrados;
    return true;
}

}  // namespace trabex::losas::ui
