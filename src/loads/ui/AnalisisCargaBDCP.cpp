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
        almacen::LeerCampos(lista_, linea, almacen::tablas::CamposPeso);
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
    PesoUnitario peso;
    almacen::LeerCampos(lista_, peso, almacen::tablas::CamposPeso);
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
    const std::string nombre = lista_.Texto("Descripcion");
    Reabrir();
    almacen::BuscarRegistro(lista_, almacen::Criterio({"Descripcion", nombre}));
    pantalla_->MarcarFila(lista_.Posicion());
}

void AnalisisCargaBDCP::Eliminar(int fila) {
    if (!MoverA(fila)) return;
    const std::string pregunta = std::string(variante_.PreguntaEliminar) + "\n¿Esta Usted Seguro?";
    if (servicios_.Caja.Mostrar(programa::Pregunta(pregunta, "Eliminar Cargas...")) != programa::RespuestaSi)
        return;
    if (!lista_.Borrar()) servicios_.Caja.Mostrar(programa::MensajeSinGuardar(compartida_.Causa()));
    Rellenar();
    pantalla_->MarcarFila(lista_.Posicion());
}

bool AnalisisCargaBDCP::ModificarCelda(int fila, CampoDePeso campo, const std::string& texto) {
    if (!MoverA(fila)) return false;
    PesoUnitario peso;
    almacen::LeerCampos(lista_, peso, almacen::tablas::CamposPeso);
    if (!PonerCelda(peso, campo, texto)) return false;
    if (almacen::tablas::CambiarPeso(lista_, peso)) return true;
    servicios_.Caja.Mostrar(programa::MensajeSinGuardar(compartida_.Causa()));
    return false;
}

}  // namespace trabex::cargas::ui
