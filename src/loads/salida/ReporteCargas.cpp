#include "loads/salida/ReporteCargas.h"

#include "reports/montaje/EstadoReportes.h"
#include "store/Posicion.h"
#include "store/Vaciado.h"
#include "store/tablas/CamposCargas.h"
#include "store/tablas/TablasCargas.h"

namespace trabex::cargas::salida {

namespace {

using almacen::tablas::AnalisisDelProyecto;

/// The scratch tables have the names of a project's, wherever the analyses come from.
class MontajeDeCargas {
  public:
    explicit MontajeDeCargas(almacen::Conexion& temporal) {
        Abrir(temporal, generales_, AnalisisDelProyecto.Generales);
        Abrir(temporal, permanentes_, AnalisisDelProyecto.Permanentes.Nombre);
        Abrir(temporal, variables_, AnalisisDelProyecto.Variables.Nombre);
    }

    /// The analysis on which the list stands, rows as they are stored. False when one could not be written.
    bool Agregar(const AnalisisParaReporte& origen) {
        const almacen::tablas::TablasDeAnalisis& tablas = almacen::tablas::TablasDe(origen.Donde);
        AnalisisCarga analisis;
        almacen::LeerCampos(origen.Lista, analisis, almacen::tablas::CamposAnalisis);
        generales_.AgregarNuevo();
        almacen::PonerCampos(generales_, analisis, almacen::tablas::CamposAnalisis);
        const bool agregado = generales_.Actualizar();
        const almacen::Clave clave = almacen::PorID(analisis.ID);
        const bool permanentes = Copiar(origen.Conexion, tablas.Permanentes, clave, permanentes_);
        return Copiar(origen.Conexion, tablas.Variables, clave, variables_) && agregado && permanentes;
    }

  private:
    static void Abrir(almacen::Conexion& temporal, almacen::Recordset& tabla, const char* nombre) {
        almacen::VaciarTabla(temporal, nombre);
        almacen::AbrirRecordset(temporal, tabla, nombre);
    }
    static bool Copiar(almacen::Conexion& conexion, const almacen::TablaDeFilas& tabla,
                       const almacen::Clave& clave, almacen::Recordset& destino) {
        almacen::Recordset filas;
        almacen::AbrirFilas(conexion, filas, tabla, clave);
        return almacen::CopiarFilas(filas, destino);
    }

    almacen::Recordset generales_, permanentes_, variables_;
};

}  // namespace

bool LLeneDatos(const montaje::EntornoReportes& entorno, const AnalisisParaReporte& origen, bool todos) {
    almacen::Conexion temporal;
    montaje::AbrirTemporal(entorno, origen.Datos, {TituloReporte}, temporal);
    if (!temporal.Abierta()) return false;
    almacen::Transaccion guardado(temporal);
    MontajeDeCargas montaje(temporal);
    const auto posicion = almacen::PosicionGuardada(origen.Lista);
    const int primera = todos ? 1 : origen.Lista.Posicion();
    const int ultima = todos ? origen.Lista.NumeroRegistros() : primera;
    bool completo = true;
    for (int fila = primera; fila <= ultima; ++fila) {
        origen.Lista.MoverA(fila);
        completo = montaje.Agregar(origen) && completo;
    }
    return completo && guardado.Confirmar();
}

}  // namespace trabex::cargas::salida
