#include "stairs/ui/EscaleraTitulo.h"

#include "base/Texto.h"
#include "stairs/ui/CamposEscalera.h"

namespace trabex::escaleras::ui {

bool EscaleraTitulo::Aceptar(const std::string& titulo) {
    proyecto_.RegistrosProyecto.Poner("Titulo", Recortar(titulo));
    if (proyecto_.RegistrosProyecto.Actualizar()) return true;
    proyecto_.RegistrosProyecto.CancelarActualizacion();
    caja_.Mostrar(programa::MensajeSinGuardar(proyecto_.ConexionProyecto.Causa()));
    return false;
}

}  // namespace trabex::escaleras::ui
