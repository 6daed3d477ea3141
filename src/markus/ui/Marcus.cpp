#include "markus/ui/Marcus.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/LeerNumero.h"
#include "base/Texto.h"
#include "markus/salida/ReporteMarcus.h"
#include "store/Posicion.h"
#include "store/proyecto/TablaProyecto.h"
#include "store/tablas/CamposMarcus.h"
#include "store/tablas/TablasMarcus.h"

namespace trabex::marcus::ui {

namespace {

constexpr const char* Encabezado = "Método de Markus...";

constexpr programa::ClaseDeElemento ClaseNivel{
    almacen::tablas::ConsultaListaMarcus,
    almacen::tablas::TablasDeMarcus,
    {"Nivel: ", "El Nivel ya Existe en el Proyecto...", "Creando Nuevo Nivel..."},
    {"Nivel: ", "¿Esta Usted Seguro de Eliminar El Nivel del Proyecto?", "Eliminar Nivel en Marcus..."},
    {"Este Nombre ya Existe en el Proyecto de Marcus...", "Renombrar ", "\nPor ", "Renombrar Nivel..."},
};

/// How the number of a block is asked for. A block of any other column asks nothing.
struct PreguntaDeBloque {
    ColumnaDePano Columna;
    const char* Texto;
    const char* Encabezado;
};
constexpr std::array<PreguntaDeBloque, 3> PreguntasDeBloque{{
    {ColumnaDePano::Carga, "Entre la Carga de la Losa (tf/m2):", "Carga de la Losa"},
    {ColumnaDePano::LX, "Entre la Longitud en Dirección X (m):", "Método de Markus"},
    {ColumnaDePano::LY, "Entre la Longitud en Dirección Y (m):", "Método de Markus"},
}};

bool FaltaUnNumero(const PanoMarcus& pano) {
    return std::isnan(pano.Carga) || std::isnan(pano.LX) || std::isnan(pano.LY);
}

}  // namespace

Marcus::Marcus(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
               programa::PantallaEspacio& espacio, PantallaMarcus& pantalla)
    : aplicacion_(aplicacion),
      servicios_(servicios),
      pantalla_(pantalla),
      lista_(aplicacion, servicios, espacio, ClaseNivel, *this) {}

void Marcus::AlConectar() {
    almacen::proyecto::LeerProyecto(aplicacion_.Proyecto.ConexionProyecto, aplicacion_.Usuario,
                                    aplicacion_.Datos);
}

void Marcus::AlLlenar() {
    almacen::Recordset& lista = aplicacion_.Proyecto.RegistrosProyecto;
    const auto posicion = almacen::PosicionGuardada(lista);
    niveles_.clear();
    for (int fila = 1; fila <= lista_.NumeroDeElementos(); ++fila) {
        lista.MoverA(fila);
        NivelMarcus nivel;
        almacen::LeerCampos(lista, nivel, almacen::tablas::CamposNivel);
        niveles_.push_back({nivel.Nombre, nivel.Panos});
    }
    pantalla_.MostrarNiveles();
}

/// ColoquePaños.
void Marcus::AlSeleccionar() {
    NivelMarcus nivel;
    almacen::tablas::LeerMarcus(aplicacion_.Proyecto, nivel);
    Cargar(std::move(nivel));
}

void Marcus::AlAgregar() {
    Cargar({aplicacion_.Proyecto.RegistrosProyecto.Texto("Nombre"), 0, {}});
}

void Marcus::AlVaciar() {
    Cargar({});
}

/// Panels that were not saved stay: they are the same level's.
void Marcus::AlRenombrar() {
    FilaDeNivel& fila = niveles_[static_cast<std::size_t>(lista_.Fila()) - 1];
    nivel_ = fila.Nombre;
    if (modificado_) fila.Panos = static_cast<int>(panos_.Cuantos());
    pantalla_.MostrarNiveles();
    pantalla_.MostrarNivel();
}

void Marcus::Cargar(NivelMarcus nivel) {
    nivel_ = std::move(nivel.Nombre);
    panos_.Cargar(std::move(nivel.Filas));
    pantalla_.MostrarNivel();
}

void Marcus::SeleccionarNivel(int fila) {
    if (fila != lista_.Fila()) lista_.Seleccionar(fila);
}

void Marcus::Cambiado() {
    modificado_ = true;
    pantalla_.MostrarPanos();
}

void Marcus::PonerNumeroDePanos(int panos) {
    if (lista_.Vacia()) return;
    niveles_[static_cast<std::size_t>(lista_.Fila()) - 1].Panos = panos;
    panos_.PonerNumero(static_cast<std::size_t>(panos));
    Cambiado();
}

void Marcus::PonerPano(int fila, ColumnaDePano columna, double valor) {
    panos_.Poner(static_cast<std::size_t>(fila), columna, valor);
    Cambiado();
}

void Marcus::EntrarBloque(const Bloque& bloque) {
    const auto pregunta = std::find_if(
        PreguntasDeBloque.begin(), PreguntasDeBloque.end(), [&](const PreguntaDeBloque& conocida) {
            return static_cast<int>(conocida.Columna) == bloque.PrimeraColumna &&
                   bloque.PrimeraColumna == bloque.UltimaColumna;
        });
    if (pregunta == PreguntasDeBloque.end()) return;
    const std::string respuesta = Recortar(pantalla_.Pedir(pregunta->Texto, pregunta->Encabezado));
    if (respuesta.empty()) return;
    const NumeroJuzgado juzgado = JuzgarNumero(respuesta, Distancia, aplicacion_.SeparadoresLocales);
    if (juzgado.Valor) {
        for (int fila = bloque.PrimeraFila; fila <= bloque.UltimaFila; ++fila)
            panos_.Poner(static_cast<std::size_t>(fila), pregunta->Columna, *juzgado.Valor);
        panos_.CerrarCambio();
        Cambiado();
    } else {
        // A number that could be two, or is past the range, says which.
        const bool alguno = juzgado.Motivo != MotivoNoEsNumero;
        servicios_.Caja.Mostrar(
            programa::Aviso(alguno ? juzgado.Motivo : "Debe Introducir un Número...", "Error en Cargas..."));
    }
    pantalla_.SoltarBloque();
}

void Marcus::Deshacer() {
    if (!panos_.Deshacer()) return;
    niveles_[static_cast<std::size_t>(lista_.Fila()) - 1].Panos = static_cast<int>(panos_.Cuantos());
    pantalla_.MostrarNiveles();
    Cambiado();
}

/// SalveMarcus. An empty number is none, which a row can't be stored with.
bool Marcus::Salvar() {
    if (lista_.Vacia()) return true;
    const std::span<const PanoMarcus> panos = panos_.Panos();
    NivelMarcus guardado{nivel_, 0, {panos.begin(), panos.end()}};
    if (std::any_of(panos.begin(), panos.end(), FaltaUnNumero)) {
        const ErrorEjecucion error(CodigoError::TiposNoCoinciden);
        servicios_.Caja.Mostrar(programa::MensajeDeError(error, Encabezado));
        return false;
    }
    if (!almacen::tablas::GuardarMarcus(aplicacion_.Proyecto, guardado)) {
        servicios_.Caja.Mostrar(programa::MensajeSinGuardar(aplicacion_.Proyecto.ConexionProyecto.Causa()));
        return false;
    }
    niveles_[static_cast<std::size_t>(lista_.Fila()) - 1].Panos = static_cast<int>(panos.size());
    pantalla_.MostrarNiveles();
    modificado_ = false;
    return true;
}

void Marcus::Crear() {
    lista_.Crear([this] { return pantalla_.MostrarMarcusNuevo(); });
}

void Marcus::Imprimir() {
    const programa::Carpetas& carpetas = servicios_.Carpetas;
    salida::LLeneDatos({carpetas.CaminoPrograma, carpetas.Trabajo(), aplicacion_.Usuario}, aplicacion_.Datos,
                       nivel_, panos_.Panos());
    pantalla_.MostrarReporte();
}

void Marcus::NotarCambios() {
    if (!modificado_) lista_.NotarCambios();
}

bool Marcus::PuedeCerrar() {
    if (!modificado_) return true;
    programa::Mensaje pregunta = programa::Pregunta("¿Desea Salvar las Modificaciones?", Encabezado);
    pregunta.Botones = programa::BotonesCaja::SiNoCancelar;
    const std::int16_t respuesta = servicios_.Caja.Mostrar(pregunta);
    if (respuesta == programa::RespuestaCancelar) return false;
    return respuesta != programa::RespuestaSi || Salvar();
}

bool MarcusNuevo::Aceptar(const std::string& entrado) {
    const std::string nombre = Recortar(entrado);
    if (nombre.empty() || !lista_.VerifiqueNombre(nombre)) return false;
    return lista_.Agregar(nombre, [](almacen::Recordset& lista) { lista.Poner("Paños", 0.0); });
}

}  // namespace trabex::marcus::ui
