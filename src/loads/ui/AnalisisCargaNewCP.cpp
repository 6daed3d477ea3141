#include "loads/ui/AnalisisCargaNewCP.h"

#include "base/Texto.h"
#include "store/tablas/TablasCargas.h"

namespace trabex::cargas::ui {

bool AnalisisCargaNewCP::Aceptar(const std::string& descripcion, const std::string& peso,
                                 PantallaDeCreacion& pantalla) {
    const PesoUnitario nueva{Recortar(descripcion), PesoDeTexto(peso).value_or(0)};
    if (nueva.Descripcion.empty() || nueva.Peso == 0) {
        pantalla.Rechazar(nueva.Descripcion.empty() ? CampoDePeso::Descripcion : CampoDePeso::Peso);
        return false;
    }
    if (!VerifiqueDescripcion(lista_, nueva.Descripcion, TextoYaExiste, caja_)) return false;
    creada_ = almacen::tablas::AgregarPeso(lista_, nueva);
    programa::Mensaje mensaje;
    mensaje.Texto = variante_.TextoCreada;
    mensaje.Encabezado = EncabezadoCrear;
    caja_.Mostrar(creada_ ? mensaje : programa::MensajeSinGuardar(lista_.Causa()));
    return creada_;
}

}  // namespace trabex::cargas::ui
