#include "shell/ListaElementos.h"

#include "base/Archivos.h"
#include "base/Texto.h"
#include "shell/ProyectoAntiguo.h"
#include "shell/Respaldos.h"
#include "store/Filas.h"

namespace trabex::programa {

namespace {

std::string Con(const TextoDeElemento& texto, const std::string& nombre) {
    return std::string(texto.Antes) + nombre + "\n" + std::string(texto.Despues);
}

}  // namespace

ListaElementos::ListaElementos(Aplicacion& aplicacion, const Servicios& servicios, PantallaEspacio& pantalla,
                               const ClaseDeElemento& clase, ElementoDeLista& elemento)
    : aplicacion_(aplicacion),
      servicios_(servicios),
      pantalla_(pantalla),
      clase_(clase),
      elemento_(elemento) {}

void ListaElementos::Abrir() {
    cargando_ = true;
    Conectar();
    cargando_ = false;
    Redibujar();
}

void ListaElementos::Cerrar() {
    aplicacion_.Proyecto.RegistrosProyecto.Cerrar();
    aplicacion_.Proyecto.ConexionProyecto.Cerrar();
}

void ListaElementos::AbrirProyecto() {
    const auto archivo =
        servicios_.Dialogos.Elegir({"Abrir un Proyecto Existente", "Archivos de Proyectos (.los)|*.los",
                                    servicios_.Carpetas.Proyectos(), false, false, true});
    if (!archivo || !HacerLegible(servicios_, *archivo)) return;
    aplicacion_.ArchivoProyecto = *archivo;
    aplicacion_.NombreProyecto = TextoDeCamino(archivo->filename());
    Conectar();
}

void ListaElementos::Conectar() {
    almacen::Conexion& conexion = aplicacion_.Proyecto.ConexionProyecto;
    ConectarProyecto(aplicacion_, conexion);
    elemento_.AlConectar();
    AbrirLista();
    pantalla_.RestablecerVista();
    MostrarPrimera();
    MostrarEstado(false);
    pantalla_.PonerTitulo(clase_.TituloVentana.empty()
                              ? TituloConProyecto(Mayusculas(aplicacion_.NombreProyecto))
                              : std::string(clase_.TituloVentana));
}

void ListaElementos::MostrarEstado(bool releido) {
    pantalla_.PonerEstado(EstadoDeArchivo(aplicacion_.Proyecto.ConexionProyecto, Lista().Abierto(),
                                          aplicacion_.ArchivoProyecto, releido));
}

void ListaElementos::AbrirLista() {
    almacen::AbrirRecordset(aplicacion_.Proyecto.ConexionProyecto, Lista(), clase_.Consulta);
    Llenar();
}

void ListaElementos::Llenar() {
    pantalla_.LlenarLista(Nombres());
    elemento_.AlLlenar();
}

std::vector<std::string> ListaElementos::Nombres() {
    return almacen::Nombres(Lista());
}

void ListaElementos::MostrarPrimera() {
    if (!Vacia()) return Seleccionar(1);
    pantalla_.PonerEncabezado("");
    elemento_.AlVaciar();
}

void ListaElementos::Seleccionar(int fila) {
    if (fila < 1 || fila > NumeroDeElementos()) return;
    Lista().MoverA(fila);
    pantalla_.MarcarFila(fila);
    elemento_.AlSeleccionar();
}

void ListaElementos::Redibujar() {
    if (!cargando_) pantalla_.Redibujar();
}

void ListaElementos::Crear(const std::function<bool()>& nombrar) {
    if (!nombrar()) return;
    Lista().MoverAlUltimo();
    Llenar();
    pantalla_.MarcarFila(Fila());
    elemento_.AlAgregar();
}

void ListaElementos::Copiar(const std::function<bool()>& nombrar) {
    if (!Vacia()) Crear(nombrar);
}

bool ListaElementos::VerifiqueNombre(const std::string& nombre) {
    if (!ExisteNombre(aplicacion_.Proyecto.ConexionProyecto, clase_.Tablas.Lista, nombre)) return true;
    servicios_.Caja.Mostrar(Aviso(Con(clase_.YaExiste, nombre), std::string(clase_.YaExiste.Encabezado)));
    return false;
}

bool ListaElementos::Agregar(const std::string& nombre,
                             const std::function<void(almacen::Recordset&)>& columnas,
                             const std::function<void(almacen::Conexion&)>& hijas) {
    almacen::Transaccion guardado(aplicacion_.Proyecto.ConexionProyecto);
    Lista().AgregarNuevo();
    Lista().Poner("Nombre", nombre);
    columnas(Lista());
    Lista().Actualizar();  // what the columns refuse spoils the save
    if (hijas) hijas(aplicacion_.Proyecto.ConexionProyecto);
    if (guardado.Confirmar()) return true;
    AvisarSinGuardar();
    return false;
}

void ListaElementos::AvisarSinGuardar() {
    const CodigoError causa = aplicacion_.Proyecto.ConexionProyecto.Causa();
    servicios_.Caja.Mostrar(MensajeSinGuardar(causa));
    if (causa == CodigoError::RegistroCambiado || causa == CodigoError::ArchivoNoEncontrado) Releer();
}

void ListaElementos::Releer() {
    const std::string nombre = Lista().Texto("Nombre");
    Conectar();
    almacen::BuscarRegistro(Lista(), almacen::Criterio(almacen::PorNombre(nombre)));
    if (Lista().Encontrado()) Seleccionar(Fila());
    MostrarEstado(true);
}

void ListaElementos::NotarCambios() {
    if (!cargando_ && aplicacion_.Proyecto.ConexionProyecto.CambioPorFuera()) Releer();
}

void ListaElementos::Renombrar() {
    if (Vacia()) return;
    almacen::Conexion& conexion = aplicacion_.Proyecto.ConexionProyecto;
    const std::string actual = Lista().Texto("Nombre");
    programa::Renombrar operaciones(conexion, servicios_.Caja, clase_.Tablas.Lista, clase_.Renombrar, actual);
    pantalla_.MostrarRenombrar(operaciones);
    const std::string& nuevo = operaciones.NombreNuevo();
    if (nuevo.empty()) return;
    if (!almacen::RenombrarElemento(conexion, clase_.Tablas, actual, nuevo)) {
        AvisarSinGuardar();
        return;
    }
    AbrirLista();
    almacen::BuscarRegistro(Lista(), almacen::Criterio(almacen::PorNombre(nuevo)));
    if (!Lista().Encontrado()) return MostrarPrimera();
    pantalla_.MarcarFila(Fila());
    elemento_.AlRenombrar();
}

void ListaElementos::Eliminar() {
    if (Vacia()) return;
    std::string cual = Lista().Texto("Nombre");
    if (!clase_.EntreParentesis.empty()) cual += "  (" + Lista().Texto(clase_.EntreParentesis) + ")";
    const std::string pregunta = Con(clase_.Eliminar, cual);
    if (servicios_.Caja.Mostrar(PreguntaDeEliminar(pregunta, std::string(clase_.Eliminar.Encabezado))) !=
        RespuestaSi)
        return;
    Respaldar(aplicacion_.Respaldos, aplicacion_.ArchivoProyecto);
    if (!almacen::BorrarElemento(aplicacion_.Proyecto.ConexionProyecto, clase_.Tablas, Lista())) {
        AvisarSinGuardar();
        return;
    }
    Llenar();
    MostrarPrimera();
}

}  // namespace trabex::programa
