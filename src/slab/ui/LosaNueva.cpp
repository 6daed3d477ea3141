#include "slab/ui/LosaNueva.h"

#include "base/Texto.h"
#include "shell/Renombrar.h"
#include "store/tablas/TablasLosa.h"

namespace trabex::losas::ui {

namespace {

/// The name is not taken; otherwise says so.
bool VerifiqueNombre(Losas& losas, programa::CajaMensajes& caja, const std::string& nombre) {
    if (!programa::ExisteNombre(losas.Programa().Proyecto.ConexionProyecto, "LosaDatos", nombre)) return true;
    caja.Mostrar(programa::Aviso("La Losa: " + nombre + "\nLa Losa ya Existe en el Proyecto...",
                                 "Creando Nueva Losa..."));
    return false;
}

/// Adds a record to the slab list. What its columns refuse spoils the save that must be under way.
void AgregarRegistro(almacen::Recordset& lista, const std::string& nombre, Losa& losa) {
    lista.AgregarNuevo();
    lista.Poner("Nombre", nombre);
    almacen::tablas::PonerSeccion(lista, losa);
    lista.Actualizar();
}

}  // namespace

bool LosaNueva::Aceptar(const std::string& entrado) {
    const std::string nombre = Recortar(entrado);
    if (nombre.empty() || !VerifiqueNombre(losas_, caja_, nombre)) return false;
    programa::Aplicacion& aplicacion = losas_.Programa();
    Losa nueva;
    nueva.Nombre = nombre;
    nueva.Ho = aplicacion.UltimoHo;
    nueva.Hm = aplicacion.UltimoHm;
    almacen::Transaccion guardado(aplicacion.Proyecto.ConexionProyecto);
    AgregarRegistro(aplicacion.Proyecto.RegistrosProyecto, nombre, nueva);
    if (!guardado.Confirmar()) {
        caja_.Mostrar(programa::MensajeSinGuardar());
        return false;
    }
    losas_.Estado().Abierta = nueva;
    losas_.Estado().LosaCreada = true;
    return true;
}

bool LosaSalvarComo::Aceptar(const std::string& entrado) {
    const std::string nombre = Recortar(entrado);
    if (nombre.empty() || !VerifiqueNombre(losas_, caja_, nombre)) return false;
    const std::string pregunta =
        "Crear la Losa: " + nombre + "\n\nA Partir de la Losa: " + losas_.Estado().Abierta.Nombre + "\n";
    if (caja_.Mostrar(programa::Pregunta(pregunta, "Salvar Como...")) != programa::RespuestaSi) return false;
    if (!Copiar(nombre)) {
        caja_.Mostrar(programa::MensajeSinGuardar());
        return false;
    }
    losas_.Programa().LosaModificada = true;
    return true;
}

bool LosaSalvarComo::Copiar(const std::string& nombre) {
    almacen::tablas::ProyectoAbierto& proyecto = losas_.Programa().Proyecto;
    Losa copia = losas_.Estado().Abierta;
    almacen::Transaccion guardado(proyecto.ConexionProyecto);
    AgregarRegistro(proyecto.RegistrosProyecto, nombre, copia);
    almacen::tablas::EscribirElementos(proyecto.ConexionProyecto, nombre, copia);
    return guardado.Confirmar();
}

}  // namespace trabex::losas::ui
