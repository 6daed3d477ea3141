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
        const bool agregado = AgregarFila(generales_, analisis, almacen::tablas::CamposAnalisis);
        const almacen::Clave clave = almacen::PorID(analisis.ID);
        const bool permanentes = Copiar(origen.Conexion, tablas.Permanentes, clave, permanentes_);
        return Copiar(origen.Conexion, tablas.Variables, clave, variables_) && agregado && permanentes;
    }

    /// An analysis with its loads, as a save stores them.
    bool Agregar(const AnalisisCarga& analisis) {
        bool completo = AgregarFila(generales_, analisis, almacen::tablas::CamposAnalisis);
        std::int32_t numero = 0;
        for (const PesoUnitario& item : analisis.Permanentes)
            completo = AgregarPeso(permanentes_, analisis.ID, item, ++numero) && completo;
        if (analisis.Variable.Descripcion.empty()) return completo;
        return AgregarPeso(variables_, analisis.ID, analisis.Variable) && completo;
    }

  private:
    template <class Registro, class Campos>
    static bool AgregarFila(almacen::Recordset& tabla, const Registro& registro, const Campos& campos) {
        tabla.AgregarNuevo();
        almacen::PonerCampos(tabla, registro, campos);
        return tabla.Actualizar();
    }
    static bool AgregarPeso(almacen::Recordset& tabla, std::int32_t id, const PesoUnitario& peso,
                            std::optional<std::int32_t> numero = {}) {
        tabla.AgregarNuevo();
        tabla.Poner("ID", id);
        if (numero) tabla.Poner("Numero", *numero);
        almacen::PonerCampos(tabla, peso, almacen::tablas::CamposPeso);
        return tabla.Actualizar();
    }
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

bool MontarAnalisis(almacen::Conexion& temporal, const std::vector<const AnalisisCarga*>& analisis) {
    MontajeDeCargas montaje(temporal);
    bool completo = true;
    for (const AnalisisCarga* uno : analisis) completo = montaje.Agregar(*uno) && completo;
    return completo;
}

}  // namespace trabex::cargas::salida
