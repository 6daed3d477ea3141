#include "stairs/ui/EscaleraT.h"

#include "stairs/Avisos.h"
#include "stairs/CalcularEscaleraT.h"
#include "stairs/salida/RecorrerEscaleras.h"
#include "stairs/ui/ClaseDeEscalera.h"
#include "store/tablas/TablasEscalera.h"

namespace trabex::escaleras::ui {

namespace {

constexpr programa::ClaseDeElemento ClaseEscaleraT =
    ClaseDeEscalera(almacen::tablas::ConsultaListaEscalerasT, almacen::tablas::TablasDeEscaleraT);

}  // namespace

EscaleraT::EscaleraT(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                     programa::PantallaEspacio& espacio, PantallaEscaleraT& pantalla)
    : aplicacion_(aplicacion),
      espacio_(espacio),
      pantalla_(pantalla),
      lista_(aplicacion, servicios, espacio, ClaseEscaleraT, *this) {
    estado_.Hoja.Numeros = aplicacion.SeparadoresLocales;
}

void EscaleraT::AlConectar() {
    almacen::tablas::LeaDatosGenerales(aplicacion_.Proyecto.ConexionProyecto,
                                       almacen::tablas::ClaseEscalera::Autoportante, aplicacion_.Usuario,
                                       aplicacion_.Datos, aplicacion_.Generales);
    estado_.Hoja.VistaActual = dibujo::escalera::VistaGeometria;
    espacio_.MarcarHoja(dibujo::escalera::VistaGeometria);
}

void EscaleraT::AlSeleccionar() {
    almacen::tablas::LeaDatosEscalera(aplicacion_.Proyecto, estado_.Abierta);
    PonerEncabezado();
    Calcular();
}

void EscaleraT::AlAgregar() {
    PonerEncabezado();
    const bool salvada = MostrarDatos(true);
    estado_.Abierta.Nombre = aplicacion_.Proyecto.RegistrosProyecto.Texto("Nombre");
    estado_.Abierta.Titulo = aplicacion_.Proyecto.RegistrosProyecto.Texto("Titulo");
    Calcular();
    if (!salvada) espacio_.MarcarFalla(lista_.Fila(), false);  // what is shown is not its own
}

void EscaleraT::AlVaciar() {
    estado_.Abierta = {};
    estado_.Resultados = {};
    espacio_.PonerAvisos({});
    lista_.Redibujar();
}

void EscaleraT::AlLlenar() {
    salida::RecorrerEscaleras(aplicacion_.Proyecto, aplicacion_.Generales,
                              [this](int fila, const EscaleraCalculada& escalera) {
                                  espacio_.MarcarFalla(fila, HayFalla(AvisosDe(escalera)));
                              });
}

void EscaleraT::PonerEncabezado() {
    espacio_.PonerEncabezado("ESCALERA: " + aplicacion_.Proyecto.RegistrosProyecto.Texto("Nombre"));
}

void EscaleraT::Calcular() {
    CalcularEscaleraT(estado_.Abierta, aplicacion_.Generales, estado_.Resultados);
    const Avisos avisos = AvisosDe(Calculada(), estado_.Hoja.Numeros);
    espacio_.PonerAvisos(avisos);
    espacio_.MarcarFalla(lista_.Fila(), HayFalla(avisos));
    lista_.Redibujar();
}

bool EscaleraT::MostrarDatos(bool nueva) {
    bool cambiados = false;
    pantalla_.MostrarEscaleraTDatos({aplicacion_.Proyecto, estado_.Abierta, nueva, cambiados});
    return cambiados;
}

void EscaleraT::Nueva() {
    lista_.Crear([this] { return pantalla_.MostrarEscaleraTNueva(); });
}

void EscaleraT::Editar() {
    if (!lista_.Vacia() && MostrarDatos(false)) Calcular();
}

void EscaleraT::DatosGenerales() {
    if (!pantalla_.MostrarEscaleraTG()) return;
    Calcular();
    AlLlenar();
}

void EscaleraT::Titulo() {
    if (lista_.Vacia() || !pantalla_.MostrarEscaleraTitulo()) return;
    estado_.Abierta.Titulo = aplicacion_.Proyecto.RegistrosProyecto.Texto("Titulo");
    lista_.Redibujar();
}

void EscaleraT::ElegirHoja(dibujo::escalera::VistaEscalera hoja) {
    estado_.Hoja.VistaActual = hoja;
    espacio_.RestablecerVista();
    lista_.Redibujar();
}

}  // namespace trabex::escaleras::ui
