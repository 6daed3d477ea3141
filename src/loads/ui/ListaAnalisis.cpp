#include "loads/ui/ListaAnalisis.h"

#include "base/Archivos.h"
#include "base/Formatos.h"
#include "loads/salida/ReporteCargas.h"
#include "shell/Respaldos.h"
#include "store/proyecto/TablaProyecto.h"
#include "store/tablas/CamposCargas.h"
#include "store/tablas/TablasCargas.h"

namespace trabex::cargas::ui {

namespace {

constexpr const char* EncabezadoCaptura = "Análisis de Carga...";

}  // namespace

ListaAnalisis::ListaAnalisis(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                             const VarianteAnalisis& variante, FuenteAzar azar, ListaAnalisis* destino)
    : aplicacion_(aplicacion),
      servicios_(servicios),
      variante_(variante),
      azar_(std::move(azar)),
      destino_(destino) {}

almacen::Conexion& ListaAnalisis::Conexion() {
    return DelProyecto() ? aplicacion_.Proyecto.ConexionProyecto : compartida_;
}

void ListaAnalisis::Abrir(PantallaListaAnalisis& pantalla) {
    pantalla_ = &pantalla;
    Conectar();
    pantalla_->MarcarFila(Fila());
    MostrarEstado(false);
}

void ListaAnalisis::NotarCambios() {
    if (!Conexion().CambioPorFuera()) return;
    const std::string criterio = almacen::Criterio(almacen::PorID(Lista().Entero32("ID")));
    Conectar();
    almacen::BuscarRegistro(Lista(), criterio);
    if (!Lista().Encontrado()) Lista().MoverAlPrimero();
    pantalla_->MarcarFila(Fila());
    MostrarEstado(true);
}

void ListaAnalisis::Conectar() {
    almacen::AbrirConexion(compartida_, servicios_.Carpetas.AnalisisCarga());
    if (DelProyecto()) {
        programa::ConectarProyecto(aplicacion_, Conexion());
        almacen::proyecto::LeerProyecto(Conexion(), aplicacion_.Usuario, aplicacion_.Datos);
    } else if (!destino_) {
        // Reports tell the project that is chosen now, if any; opening this list writes nothing to it.
        almacen::Conexion copia;
        almacen::AbrirCopiaEnMemoria(copia, aplicacion_.ArchivoProyecto);
        almacen::proyecto::LeerProyecto(copia, aplicacion_.Usuario, aplicacion_.Datos);
    }
    Reabrir();
}

void ListaAnalisis::MostrarEstado(bool releido) {
    const std::filesystem::path compartido = servicios_.Carpetas.AnalisisCarga();
    const bool sinPesos = Lista().Abierto() && compartida_.ConexionFallida();
    pantalla_->PonerEstado(programa::EstadoDeArchivo(
        Conexion(), Lista().Abierto() && !sinPesos,
        DelProyecto() && !sinPesos ? aplicacion_.ArchivoProyecto : compartido, releido));
}

void ListaAnalisis::Cerrar() {
    Lista().Cerrar();
    Conexion().Cerrar();
    compartida_.Cerrar();
}

void ListaAnalisis::Reabrir() {
    almacen::AbrirRecordset(Conexion(), Lista(), almacen::tablas::TablasDe(variante_.Donde).Lista);
    Rellenar();
}

/// The grid shows the rows of the set in their order: what is edited at a position is the row of that
/// position.
void ListaAnalisis::Rellenar() {
    const int donde = Fila();
    std::vector<LineaDeAnalisis> lineas;
    for (int fila = 1; fila <= NumeroDeAnalisis(); ++fila) {
        Lista().MoverA(fila);
        lineas.push_back({Lista().Texto("Descripcion"), Lista().Doble("Carga")});
    }
    Lista().MoverA(donde);
    pantalla_->LlenarLista(lineas);
}

void ListaAnalisis::Crear() {
    NuevoAnalisisCarga operaciones(Lista(), variante_, azar_, servicios_.Caja);
    pantalla_->MostrarNuevo(operaciones);
    if (!operaciones.Creado()) return;
    const std::string criterio = almacen::Criterio(almacen::PorID(Lista().Entero32("ID")));
    Reabrir();
    Lista().MoverAlUltimo();  // of two of a number, the newer one
    almacen::BuscarRegistro(Lista(), criterio);
    pantalla_->MarcarFila(Fila());
}

void ListaAnalisis::Modificar() {
    if (!EnUnaLinea()) return;
    AnalisisCargaModificar operaciones({variante_.Donde, Conexion(), Lista(), compartida_,
                                        [this](double carga) { pantalla_->PonerCarga(Fila(), carga); }},
                                       servicios_);
    pantalla_->MostrarModificar(operaciones);
    pantalla_->MarcarFila(Fila());
}

void ListaAnalisis::Eliminar() {
    if (!EnUnaLinea()) return;
    const programa::Mensaje pregunta = programa::PreguntaDeEliminar(
        "El Análisis de Carga Seleccionado será Eliminado...\n¿Esta Usted Seguro?",
        "Eliminar Análisis de Carga...");
    if (servicios_.Caja.Mostrar(pregunta) != programa::RespuestaSi) return;
    if (&Conexion() != &compartida_) programa::Respaldar(aplicacion_.Respaldos, aplicacion_.ArchivoProyecto);
    if (!almacen::tablas::BorrarAnalisis(Conexion(), Lista(), variante_.Donde))
        servicios_.Caja.Mostrar(programa::MensajeSinGuardar(Conexion().Causa()));
    Rellenar();
    pantalla_->MarcarFila(Fila());
}

bool ListaAnalisis::ModificarCelda(int fila, CampoDeLinea campo, const std::string& texto) {
    if (fila < 1 || fila > NumeroDeAnalisis()) return false;
    const std::optional<double> carga = LeerNumero(texto);
    if (campo == CampoDeLinea::Carga && !carga) return false;
    Lista().MoverA(fila);
    const bool guardada = campo == CampoDeLinea::Carga ? almacen::tablas::CambiarCarga(Lista(), *carga)
                                                       : almacen::tablas::CambiarDescripcion(Lista(), texto);
    if (!guardada) servicios_.Caja.Mostrar(programa::MensajeSinGuardar(Conexion().Causa()));
    return guardada;
}

void ListaAnalisis::Exportar() {
    if (!EnUnaLinea()) return;
    const std::optional<bool> todos = pantalla_->MostrarOpcion();
    if (!todos) return;
    const programa::Carpetas& carpetas = servicios_.Carpetas;
    salida::LLeneDatos({carpetas.CaminoPrograma, carpetas.Trabajo(), aplicacion_.Usuario},
                       {variante_.Donde, Conexion(), Lista(), aplicacion_.Datos}, *todos);
    pantalla_->MostrarReporte(variante_.ReporteActual);
}

void ListaAnalisis::VerCompartidos() {
    ListaAnalisis compartidos(aplicacion_, servicios_, AnalisisCompartido, azar_, this);
    pantalla_->MostrarCompartidos(compartidos);
}

void ListaAnalisis::Capturar() {
    if (!destino_ || !EnUnaLinea()) return;
    const programa::Mensaje pregunta =
        programa::Pregunta("¿Capturar el Análisis de Carga Seleccionado?", EncabezadoCaptura);
    if (servicios_.Caja.Mostrar(pregunta) != programa::RespuestaSi) return;
    const int seleccionada = destino_->Fila();
    if (almacen::tablas::YaCapturado(lista_, destino_->Lista())) {
        destino_->Seleccionar(seleccionada);
        servicios_.Caja.Mostrar(
            programa::Aviso("¡El Análisis de Carga ya existe en el Proyecto!", EncabezadoCaptura));
        pantalla_->EnfocarLista();
        return;
    }
    if (!almacen::tablas::CapturarAnalisis(compartida_, lista_, destino_->Conexion(), destino_->Lista()))
        servicios_.Caja.Mostrar(programa::MensajeSinGuardar(destino_->Conexion().Causa()));
    destino_->Rellenar();
    destino_->pantalla_->MarcarFila(destino_->Fila());
}

}  // namespace trabex::cargas::ui
