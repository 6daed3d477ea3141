#include "slab/ui/Losas.h"

#include "base/Archivos.h"
#include "base/Texto.h"
#include "slab/CalcularLosa.h"
#include "store/Elementos.h"
#include "store/tablas/TablasLosa.h"

namespace trabex::losas::ui {

Losas::Losas(programa::Aplicacion& aplicacion, VistaLosas& vista, programa::CajaMensajes& caja,
             programa::DialogosArchivo& dialogos)
    : aplicacion_(aplicacion), vista_(vista), caja_(caja), dialogos_(dialogos) {
    estado_.Hoja.Numeros = aplicacion.SeparadoresLocales;
}

void Losas::Abrir() {
    estado_.Cargando = true;
    Conectar();
    estado_.Cargando = false;
    Redibujar();
}

void Losas::Cerrar() {
    aplicacion_.Proyecto.RegistrosProyecto.Cerrar();
    aplicacion_.Proyecto.ConexionProyecto.Cerrar();
}

void Losas::AbrirProyecto() {
    const auto archivo =
        dialogos_.Elegir({"Abrir un Proyecto Existente", "Archivos de Proyectos (.los)|*.los",
                          aplicacion_.CaminoUsuario / "Proyectos", false, false, true});
    if (!archivo) return;
    aplicacion_.ArchivoProyecto = *archivo;
    aplicacion_.NombreProyecto = TextoDeCamino(archivo->filename());
    Conectar();
}

/// A project that can't be read counts as empty.
void Losas::Conectar() {
    almacen::Conexion& conexion = aplicacion_.Proyecto.ConexionProyecto;
    almacen::AbrirConexion(conexion, aplicacion_.ArchivoProyecto);
    almacen::tablas::LeerDatosGenerales(conexion, aplicacion_.Usuario, aplicacion_.Datos,
                                        aplicacion_.Generales);
    estado_.Hoja.OpcionCarga = dibujo::losa::CargaTotal;
    AbrirLista();
    vista_.RestablecerVista();
    MostrarPrimera();
    const std::string camino = TextoDeCamino(aplicacion_.ArchivoProyecto);
    vista_.PonerEstado(conexion.ConexionFallida() ? "No se pudo leer el proyecto: " + camino : camino);
    vista_.PonerTitulo(programa::TituloConProyecto(Mayusculas(aplicacion_.NombreProyecto)));
}

void Losas::AbrirLista() {
    almacen::AbrirRecordset(aplicacion_.Proyecto.ConexionProyecto, Lista(),
                            almacen::tablas::ConsultaListaLosas);
    vista_.LlenarLista(Nombres());
}

std::vector<std::string> Losas::Nombres() {
    almacen::Recordset& lista = Lista();
    const int donde = lista.Posicion();
    std::vector<std::string> nombres;
    for (int fila = 1; fila <= lista.NumeroRegistros(); ++fila) {
        lista.MoverA(fila);
        nombres.push_back(lista.Texto("Nombre"));
    }
    lista.MoverA(donde);
    return nombres;
}

void Losas::MostrarPrimera() {
    if (NumeroDeLosas() > 0)
        Seleccionar(1);
    else
        Limpiar();
}

void Losas::Limpiar() {
    VaciarLosa(estado_.Abierta);
    estado_.Resultados = {};
    vista_.PonerEncabezado("");
    Redibujar();
}

void Losas::Seleccionar(int fila) {
    if (fila < 1 || fila > NumeroDeLosas()) return;
    Lista().MoverA(fila);
    almacen::tablas::LeerLosa(aplicacion_.Proyecto, estado_.Abierta);
    estado_.Resultados = {};  // those of another slab: one that can't be calculated must not show them
    vista_.MarcarFila(fila);
    vista_.PonerEncabezado(dibujo::losa::RotuloDeLosa(estado_.Abierta) + estado_.Abierta.Nombre);
    vista_.RestablecerVista();
    Calcular();
}

void Losas::Calcular() {
    CalcularLosa(estado_.Abierta, aplicacion_.Generales, estado_.Resultados);
    Redibujar();
}

void Losas::Redibujar() {
    if (!estado_.Cargando) vista_.Redibujar();
}

void Losas::ElegirVista(dibujo::losa::VistaLosa vista) {
    estado_.Hoja.VistaActual = vista;
    Redibujar();
}

void Losas::ElegirOpcionCarga(dibujo::losa::OpcionDeCarga opcion) {
    estado_.Hoja.OpcionCarga = opcion;
    Redibujar();
}

void Losas::CalcularSiModificada() {
    if (aplicacion_.LosaModificada) {
        vista_.PonerEncabezado(dibujo::losa::RotuloDeLosa(estado_.Abierta) + estado_.Abierta.Nombre);
        Calcular();
    }
    aplicacion_.LosaModificada = false;
}

/// The slab that a window has just added stands last until the list is next filled.
void Losas::EntrarDatosDeLaNueva() {
    Lista().MoverAlUltimo();
    vista_.AgregarFila(Lista().Texto("Nombre"));
    Seleccionar(Fila());
    vista_.MostrarLosaDatos();
    vista_.PonerEncabezado(dibujo::losa::RotuloDeLosa(estado_.Abierta) + estado_.Abierta.Nombre);
    Calcular();
}

void Losas::CrearNueva() {
    estado_.LosaCreada = false;
    vista_.MostrarLosaNueva();
    if (estado_.LosaCreada) EntrarDatosDeLaNueva();
    estado_.LosaCreada = false;
    aplicacion_.LosaModificada = false;
}

void Losas::CrearDesdeSeleccionada() {
    if (NumeroDeLosas() == 0) return;
    aplicacion_.LosaModificada = false;
    vista_.MostrarLosaSalvarComo();
    if (aplicacion_.LosaModificada) EntrarDatosDeLaNueva();
    aplicacion_.LosaModificada = false;
}

void Losas::Modificar() {
    if (NumeroDeLosas() == 0) return;
    almacen::tablas::LeerLosa(aplicacion_.Proyecto, estado_.Abierta);
    vista_.MostrarLosaDatos();
    CalcularSiModificada();
}

void Losas::DatosGenerales() {
    if (NumeroDeLosas() == 0) return;
    aplicacion_.LosaModificada = false;
    vista_.MostrarLosaGeneral();
    CalcularSiModificada();
}

void Losas::Renombrar() {
    if (NumeroDeLosas() == 0) return;
    const std::string actual = Lista().Texto("Nombre");
    const std::string nuevo = vista_.MostrarRenombrar(actual);
    if (nuevo.empty()) return;
    if (!almacen::RenombrarElemento(aplicacion_.Proyecto.ConexionProyecto, almacen::tablas::TablasDeLosa,
                                    actual, nuevo)) {
        caja_.Mostrar(programa::MensajeSinGuardar());
        return;
    }
    AbrirLista();
    almacen::BuscarRegistro(Lista(), "Nombre=" + almacen::EntreComillas(nuevo));
    if (!Lista().Encontrado()) Lista().MoverAlPrimero();
    Seleccionar(Fila());
}

void Losas::Eliminar() {
    if (NumeroDeLosas() == 0) return;
    const int fila = Fila();
    const std::string pregunta =
        "Losa: " + Lista().Texto("Nombre") + "\n¿Esta Usted Seguro de Eliminar la Losa del Proyecto?";
    if (caja_.Mostrar(programa::Pregunta(pregunta, "Eliminar la Losa...")) != programa::RespuestaSi) return;
    if (!almacen::BorrarElemento(aplicacion_.Proyecto.ConexionProyecto, almacen::tablas::TablasDeLosa,
                                 Lista())) {
        caja_.Mostrar(programa::MensajeSinGuardar());
        return;
    }
    vista_.QuitarFila(fila);
    MostrarPrimera();
}

}  // namespace trabex::losas::ui
