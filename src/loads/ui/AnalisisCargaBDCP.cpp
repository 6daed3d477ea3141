#include "loads/ui/AnalisisCargaBDCP.h"

#include "base/Texto.h"
#include "loads/ui/AnalisisCargaNewCP.h"
#include "store/tablas/CamposCargas.h"
#include "store/tablas/TablasCargas.h"

namespace trabex::cargas::ui {

void AnalisisCargaBDCP::Abrir(PantallaDePesos& pantalla) {
    pantalla_ = &pantalla;
    Reabrir();
    pantalla_->MarcarFila(lista_.Posicion());
}

void AnalisisCargaBDCP::Cerrar() {
    lista_.Cerrar();
    receptor_.AlCerrarPesos();
}

void AnalisisCargaBDCP::Reabrir() {
    almacen::AbrirRecordset(compartida_, lista_, almacen::tablas::ConsultaDePesos(variante_.EsVariable));
    Rellenar();
}

/// The grid shows the rows of the set in their order: what is edited at a position is the row of that
/// position.
void AnalisisCargaBDCP::Rellenar() {
    const int donde = lista_.Posicion();
    std::vector<PesoUnitario> lineas(static_cast<std::size_t>(lista_.NumeroRegistros()));
    lista_.MoverAlPrimero();
    for (PesoUnitario& linea : lineas) {
        linea = Actual();
        lista_.MoverAlSiguiente();
    }
    lista_.MoverA(donde);
    pantalla_->LlenarLista(lineas);
}

bool AnalisisCargaBDCP::MoverA(int fila) {
    lista_.MoverA(fila);
    return fila >= 1 && fila <= lista_.NumeroRegistros();
}

void AnalisisCargaBDCP::Capturar(int fila) {
    if (!MoverA(fila)) return;
    const PesoUnitario peso = Actual();
    if (variante_.EsVariable)
        receptor_.RecibirVariable(peso);
    else
        receptor_.RecibirPermanente(peso);
    programa::Mensaje mensaje;
    mensaje.Texto = "¡La Carga Seleccionada fue copiada con Exito!";
    mensaje.Encabezado = "Capturar Carga Permanente...";
    servicios_.Caja.Mostrar(mensaje);
}

void AnalisisCargaBDCP::Crear() {
    AnalisisCargaNewCP operaciones(lista_, variante_, servicios_.Caja);
    pantalla_->MostrarNueva(operaciones);
    if (!operaciones.Creada()) return;
    const PesoUnitario creada = Actual();
    Reabrir();
    // Of several lines of its name, the new one.
    lista_.MoverAlUltimo();
    while (lista_.Posicion() > 1 && Actual() != creada) lista_.MoverAlAnterior();
    pantalla_->MarcarFila(lista_.Posicion());
}

PesoUnitario AnalisisCargaBDCP::Actual() const {
    PesoUnitario peso;
    almacen::LeerCampos(lista_, peso, almacen::tablas::CamposPeso);
    return peso;
}

void AnalisisCargaBDCP::Eliminar(int fila) {
    if (!MoverA(fila)) return;
    const std::string pregunta = std::string(variante_.PreguntaEliminar) + "\n¿Esta Usted Seguro?";
    if (servicios_.Caja.Mostrar(programa::PreguntaDeEliminar(pregunta, "Eliminar Cargas...")) !=
        programa::RespuestaSi)
        return;
    if (!lista_.Borrar()) servicios_.Caja.Mostrar(programa::MensajeSinGuardar(compartida_.Causa()));
    Rellenar();
    pantalla_->MarcarFila(lista_.Posicion());
}

bool AnalisisCargaBDCP::ModificarCelda(int fila, CampoDePeso campo, const std::string& texto) {
    if (!MoverA(fila)) return false;
    PesoUnitario peso = Actual();
    if (!PonerCelda(peso, campo, texto)) return false;
    if (almacen::tablas::CambiarPeso(lista_, peso)) return true;
    servicios_.Caja.Mostrar(programa::MensajeSinGuardar(compartida_.Causa()));
    return false;
}

}  // namespace trabex::cargas::ui
