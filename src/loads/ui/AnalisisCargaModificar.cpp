#include "loads/ui/AnalisisCargaModificar.h"

#include "store/tablas/TablasCargas.h"

namespace trabex::cargas::ui {

void AnalisisCargaModificar::Abrir(PantallaDeAnalisis& pantalla) {
    pantalla_ = &pantalla;
    Mostrar();
}

void AnalisisCargaModificar::Mostrar() {
    almacen::tablas::LeerAnalisis(edicion_.Conexion, edicion_.Lista, edicion_.Donde, trabajo_);
    modificado_ = false;
    pantalla_->PonerAnalisis(trabajo_, edicion_.Lista.Posicion(), edicion_.Lista.NumeroRegistros());
    Sumar();
}

void AnalisisCargaModificar::Sumar() {
    pantalla_->PonerSumas(Recalcule(trabajo_));
}

void AnalisisCargaModificar::Modificar() {
    modificado_ = true;
    Sumar();
}

bool AnalisisCargaModificar::CambiarItem(int fila, CampoDePeso campo, const std::string& texto) {
    if (fila < 1 || static_cast<std::size_t>(fila) > trabajo_.Permanentes.size()) return false;
    if (!PonerCelda(trabajo_.Permanentes[static_cast<std::size_t>(fila) - 1], campo, texto)) return false;
    Modificar();
    return true;
}

bool AnalisisCargaModificar::CambiarVariable(CampoDePeso campo, const std::string& texto) {
    if (!PonerCelda(trabajo_.Variable, campo, texto)) return false;
    if (campo == CampoDePeso::Peso) Modificar();
    return true;
}

void AnalisisCargaModificar::CrearLinea() {
    RecibirPermanente({});
}

void AnalisisCargaModificar::EliminarLinea(int fila) {
    if (fila < 1 || static_cast<std::size_t>(fila) > trabajo_.Permanentes.size()) return;
    const programa::Mensaje pregunta =
        programa::PreguntaDeEliminar("¿Eliminar la Fila Seleccionada?", "Eliminar Filas...");
    if (servicios_.Caja.Mostrar(pregunta) != programa::RespuestaSi) return;
    trabajo_.Permanentes.erase(trabajo_.Permanentes.begin() + (fila - 1));
    pantalla_->LlenarItems(trabajo_.Permanentes);
    pantalla_->MarcarItem(std::min(fila, static_cast<int>(trabajo_.Permanentes.size())));
    Modificar();
}

void AnalisisCargaModificar::BuscarPesos(const VariantePesos& variante) {
    AnalisisCargaBDCP operaciones(edicion_.Compartida, variante, *this, servicios_);
    pantalla_->MostrarPesos(operaciones);
}

void AnalisisCargaModificar::RecibirPermanente(const PesoUnitario& peso) {
    trabajo_.Permanentes.push_back(peso);
    pantalla_->LlenarItems(trabajo_.Permanentes);
    pantalla_->MarcarItem(static_cast<int>(trabajo_.Permanentes.size()));
    Modificar();
}

void AnalisisCargaModificar::RecibirVariable(const PesoUnitario& peso) {
    trabajo_.Variable = peso;
    pantalla_->PonerVariable(peso);
    Modificar();
}

bool AnalisisCargaModificar::Salvar() {
    AnalisisCarga guardado = trabajo_;
    if (!almacen::tablas::GuardarAnalisis(edicion_.Conexion, edicion_.Lista, edicion_.Donde, guardado)) {
        servicios_.Caja.Mostrar(programa::MensajeSinGuardar(edicion_.Conexion.Causa()));
        return false;
    }
    trabajo_ = std::move(guardado);
    edicion_.AlTotalizar(trabajo_.Carga);
    modificado_ = false;
    return true;
}

/// Asks what becomes of the changes, where there are any. False when a save of them did not go through.
bool AnalisisCargaModificar::ResolverCambios() {
    if (!modificado_) return true;
    const programa::Mensaje pregunta = programa::Pregunta(
        "El Análisis de Carga a sido Modificado...\n¿Desea Salvar los Cambios?", "Análisis de Carga...");
    if (servicios_.Caja.Mostrar(pregunta) == programa::RespuestaSi) return Salvar();
    modificado_ = false;
    return true;
}

bool AnalisisCargaModificar::Desplazar(int posicion) {
    const int cuantos = edicion_.Lista.NumeroRegistros();
    if (posicion < 1 || posicion > cuantos || !ResolverCambios()) return false;
    edicion_.Lista.MoverA(posicion);
    Mostrar();
    return true;
}

bool AnalisisCargaModificar::Cerrar() {
    return ResolverCambios();
}

}  // namespace trabex::cargas::ui
