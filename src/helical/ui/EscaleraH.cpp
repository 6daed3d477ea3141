#include "helical/ui/EscaleraH.h"

#include <utility>

#include "helical/Avisos.h"
#include "helical/CalcularEscaleraH.h"
#include "stairs/ui/ClaseDeEscalera.h"
#include "store/Posicion.h"
#include "store/tablas/TablasEscalera.h"

namespace trabex::helices::ui {

namespace {

constexpr programa::ClaseDeElemento ClaseEscaleraH =
    escaleras::ui::ClaseDeEscalera(almacen::tablas::ConsultaListaEscalerasH,
                                   almacen::tablas::TablasDeEscaleraH, "Titulo", "ESCALERAS HELICOIDALES");

/// Numbers that are not those of the stair that is named must not pass for its own.
constexpr const char* SinCalcular = "   (sin calcular: se ve lo anterior)";

}  // namespace

EscaleraH::EscaleraH(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                     programa::PantallaEspacio& espacio, PantallaEscaleraH& pantalla)
    : aplicacion_(aplicacion),
      espacio_(espacio),
      pantalla_(pantalla),
      lista_(aplicacion, servicios, espacio, ClaseEscaleraH, *this) {
    estado_.Hoja.Numeros = aplicacion.SeparadoresLocales;
}

void EscaleraH::AlConectar() {
    almacen::tablas::LeaDatosGenerales(aplicacion_.Proyecto.ConexionProyecto,
                                       almacen::tablas::ClaseEscalera::Helicoidal, aplicacion_.Usuario,
                                       aplicacion_.Datos, aplicacion_.Generales);
    AlVaciar();  // of another project nothing stays in sight
}

/// The mark of a new stair is that of the one just created: another must not be offered its seeds.
void EscaleraH::AlSeleccionar() {
    estado_.Nueva = false;
    espacio_.RestablecerVista();
    LeaDatosEscalera();
}

void EscaleraH::AlAgregar() {
    estado_.Nueva = true;
    espacio_.RestablecerVista();
    LeaDatosEscalera();
    MostrarDatos();
    LeaDatosEscalera();
}

void EscaleraH::AlVaciar() {
    estado_.Abierta = {};
    estado_.Nueva = false;
    espacio_.PonerAvisos({});
    Mostrar({});
}

/// Each stair is read and calculated on records of its own: an engineer sees at opening which of them fail.
void EscaleraH::AlLlenar() {
    almacen::Recordset& lista = aplicacion_.Proyecto.RegistrosProyecto;
    const auto posicion = almacen::PosicionGuardada(lista);
    for (int fila = 1; fila <= lista.NumeroRegistros(); ++fila) {
        lista.MoverA(fila);
        DatosEscaleraH escalera;
        ResultadosEscaleraH resultados;
        if (!almacen::tablas::LeaDatosEscalera(aplicacion_.Proyecto, escalera)) continue;
        CalcularEscaleraH(escalera, aplicacion_.Generales, resultados);
        espacio_.MarcarFalla(fila, HayFalla(AvisosDe(escalera, aplicacion_.Generales, resultados)));
    }
}

/// A stair without a row of data clears picture and grids. One whose calculation fails leaves them as they
/// were.
void EscaleraH::LeaDatosEscalera() {
    ResultadosEscaleraH resultados;
    if (almacen::tablas::LeaDatosEscalera(aplicacion_.Proyecto, estado_.Abierta))
        CalcularEscaleraH(estado_.Abierta, aplicacion_.Generales, resultados);
    const Avisos avisos = AvisosDe(estado_.Abierta, aplicacion_.Generales, resultados, estado_.Hoja.Numeros);
    espacio_.PonerAvisos(avisos);
    espacio_.MarcarFalla(lista_.Fila(), HayFalla(avisos));
    estado_.Fallo = resultados.Error;
    espacio_.PonerEncabezado("ESCALERA: " + estado_.Abierta.Nombre + (estado_.Fallo ? SinCalcular : ""));
    if (!estado_.Fallo) Mostrar(std::move(resultados));
}

void EscaleraH::Mostrar(ResultadosEscaleraH resultados) {
    estado_.Mostrada = estado_.Abierta;
    estado_.Resultados = std::move(resultados);
    pantalla_.PonerPaneles(Calculada());
    lista_.Redibujar();
}

void EscaleraH::Releer() {
    if (!lista_.Vacia()) LeaDatosEscalera();
}

bool EscaleraH::MostrarDatos() {
    bool cambiados = false;
    pantalla_.MostrarEscaleraHDatos({aplicacion_.Proyecto, estado_.Abierta, estado_.Nueva, cambiados});
    return cambiados;
}

void EscaleraH::Nueva() {
    lista_.Crear([this] { return pantalla_.MostrarEscaleraTNueva(); });
}

void EscaleraH::Editar() {
    if (!lista_.Vacia() && MostrarDatos()) LeaDatosEscalera();
}

/// On return it calculates in any case: a strength that was refused may have left those before it changed.
void EscaleraH::DatosGenerales() {
    pantalla_.MostrarEscaleraTG();
    Releer();
    AlLlenar();
}

void EscaleraH::Titulo() {
    if (!lista_.Vacia() && pantalla_.MostrarEscaleraTitulo()) LeaDatosEscalera();
}

void EscaleraH::Girar(dibujo::helice::ModoGiro modo) {
    dibujo::helice::ModoGiro& actual = estado_.Hoja.ElGiro.Modo;
    actual = actual == modo ? dibujo::helice::ModoGiro::Ninguno : modo;
    pantalla_.MarcarGiro(actual);
}

void EscaleraH::AnguloNormal() {
    dibujo::helice::Enderezar(estado_.Hoja.ElGiro);
    pantalla_.MarcarGiro(estado_.Hoja.ElGiro.Modo);
    lista_.Redibujar();
}

void EscaleraH::AvanzarGiro() {
    if (dibujo::helice::Avanzar(estado_.Hoja.ElGiro)) lista_.Redibujar();
}

dibujo::TeclasDeVista EscaleraH::Teclas() {
    return dibujo::helice::TeclasDeHelice(estado_.Hoja.ElGiro, [this] { lista_.Redibujar(); });
}

}  // namespace trabex::helices::ui
