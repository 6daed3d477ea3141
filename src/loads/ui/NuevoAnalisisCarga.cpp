#include "loads/ui/NuevoAnalisisCarga.h"

#include "base/Texto.h"
#include "store/tablas/TablasCargas.h"

namespace trabex::cargas::ui {

bool NuevoAnalisisCarga::Aceptar(const std::string& descripcion, PantallaDeCreacion& pantalla) {
    const std::string nombre = Recortar(descripcion);
    if (nombre.empty()) {
        pantalla.Rechazar(CampoDePeso::Descripcion);
        return false;
    }
    if (!VerifiqueDescripcion(lista_, nombre, variante_.YaExiste, caja_)) return false;
    creado_ = almacen::tablas::AgregarAnalisis(lista_, variante_.Donde, nombre, azar_);
    if (!creado_) caja_.Mostrar(programa::MensajeSinGuardar(lista_.Causa()));
    return creado_;
}

}  // namespace trabex::cargas::ui
