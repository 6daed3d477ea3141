#include "stairs/ui/EscaleraTNueva.h"

#include "base/Texto.h"

namespace trabex::escaleras::ui {

bool EscaleraTNueva::Aceptar(const std::string& nombre, const std::string& titulo) {
    const std::string propio = Recortar(nombre);
    if (propio.empty() || !lista_.VerifiqueNombre(propio)) return false;
    return lista_.Agregar(propio,
                          [&](almacen::Recordset& lista) { lista.Poner("Titulo", Recortar(titulo)); });
}

}  // namespace trabex::escaleras::ui
