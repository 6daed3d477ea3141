#include "slab/ui/Losas.h"

#include <algorithm>

#include "slab/Avisos.h"
#include "slab/CalcularLosa.h"
#include "slab/salida/RecorrerLosas.h"
#include "store/tablas/TablasLosa.h"

namespace trabex::losas::ui {

namespace {

constexpr programa::ClaseDeElemento ClaseLosa{
    almacen::tablas::ConsultaListaLosas,
    almacen::tablas::TablasDeLosa,
    {"La Losa: ", "La Losa ya Existe en el Proyecto...", "Creando Nueva Losa..."},
    {"Losa: ", "¿Esta Usted Seguro de Eliminar la Losa del Proyecto?", "Eliminar la Losa..."},
    {"Este Nombre ya Existe en las Losas del Proyecto...", "Renombrar la Losa: "},
};

}  // namespace

Losas::Losas(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
             programa::PantallaEspacio& espacio, PantallaLosas& pantalla, MemoriaLosas& memoria)
    : aplicacion_(aplicacion),
      espacio_(espacio),
      pantalla_(pantalla),
      memoria_(memoria),
      lista_(aplicacion, servicios, espacio, ClaseLosa, *this) {
    estado_.Hoja.Numeros = aplicacion.SeparadoresLocales;
}

void Losas::AlConectar() {
    almacen::tablas::LeerDatosGenerales(aplicacion_.Proyecto.ConexionProyecto, aplicacion_.Usuario,
                                        aplicacion_.Datos, aplicacion_.Generales);
    estado_.Hoja.OpcionCarga = dibujo::losa::CargaTotal;
    pantalla_.MarcarOpcionCarga(estado_.Hoja.OpcionCarga);
}

void Losas::AlSeleccionar() {
    almacen::tablas::LeerLosa(aplicacion_.Proyecto, estado_.Abierta);
    estado_.Resultados = {};  // those of another slab: one that can't be calculated must not show them
    PonerEncabezado();
    espacio_.RestablecerVista();
    estado_.Hoja.Grupo = 1;
    Calcular();
}

void Losas::AlAgregar() {
    AlSeleccionar();
    pantalla_.MostrarLosaDatos({});
    PonerEncabezado();
    Calcular();
}

void Losas::AlVaciar() {
    VaciarLosa(estado_.Abierta);
    estado_.Resultados = {};
    espacio_.PonerAvisos({});
    lista_.Redibujar();
}

/// Each slab is read and calculated on records of its own: an engineer sees at opening which of them fail.
void Losas::AlLlenar() {
    const salida::ProyectoParaReporte proyecto{aplicacion_.Proyecto, aplicacion_.Datos,
                                               aplicacion_.Generales};
    salida::RecorrerLosas(proyecto, true, [this](const salida::LosaDelProyecto& losa) {
        const Avisos avisos = AvisosDe({losa.Datos, losa.Generales, losa.Resultados});
        espacio_.MarcarFalla(static_cast<int>(losa.Numero), HayFalla(avisos));
    });
}

void Losas::PonerEncabezado() {
    espacio_.PonerEncabezado(dibujo::losa::RotuloDeLosa(estado_.Abierta) + estado_.Abierta.Nombre);
}

void Losas::Calcular() {
    CalcularLosa(estado_.Abierta, aplicacion_.Generales, estado_.Resultados);
    const Avisos avisos = AvisosDe(Calculada(), estado_.Hoja.Numeros);
    espacio_.PonerAvisos(avisos);
    espacio_.MarcarFalla(lista_.Fila(), HayFalla(avisos));
    lista_.Redibujar();
}

void Losas::ElegirHoja(dibujo::losa::VistaLosa vista) {
    estado_.Hoja.VistaActual = vista;
    lista_.Redibujar();
}

void Losas::ElegirOpcionCarga(dibujo::losa::OpcionDeCarga opcion) {
    estado_.Hoja.OpcionCarga = opcion;
    lista_.Redibujar();
}

void Losas::VerPorGrupos(bool porGrupos) {
    MostrarGrupo(porGrupos, 1);
}

void Losas::CambiarGrupo(int pasos) {
    if (!estado_.Hoja.PorGrupos) return MostrarGrupo(true, 1);
    const int ultimo = static_cast<int>(dibujo::losa::HojasDe(estado_.Abierta));
    const int grupo = std::clamp(static_cast<int>(estado_.Hoja.Grupo) + pasos, 1, ultimo);
    MostrarGrupo(true, static_cast<std::size_t>(grupo));
}

/// Each group comes into sight whole, wherever the one before had been panned to.
void Losas::MostrarGrupo(bool porGrupos, std::size_t grupo) {
    estado_.Hoja.PorGrupos = porGrupos;
    estado_.Hoja.Grupo = grupo;
    pantalla_.MarcarPorGrupos(porGrupos);
    espacio_.RestablecerVista();
    lista_.Redibujar();
}

void Losas::CrearNueva() {
    lista_.Crear([this] { return pantalla_.MostrarLosaNueva(); });
}

void Losas::CrearDesdeSeleccionada() {
    lista_.Copiar([this] { return pantalla_.MostrarLosaSalvarComo(); });
}

void Losas::Modificar(const std::optional<dibujo::losa::Toque>& lugar) {
    if (lista_.Vacia()) return;
    almacen::tablas::LeerLosa(aplicacion_.Proyecto, estado_.Abierta);
    if (!pantalla_.MostrarLosaDatos(lugar)) return;
    PonerEncabezado();
    Calcular();
}

void Losas::DatosGenerales() {
    if (lista_.Vacia() || !pantalla_.MostrarLosaGeneral()) return;
    Calcular();
    AlLlenar();
}

}  // namespace trabex::losas::ui
