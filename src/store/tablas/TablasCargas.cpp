#include "store/tablas/TablasCargas.h"

#include "base/Texto.h"
#include "store/tablas/CamposCargas.h"

namespace trabex::almacen::tablas {

namespace {

Clave ClaveDe(const Recordset& lista) {
    return PorID(lista.Entero32("ID"));
}

bool EnUnRegistro(const Recordset& lista) {
    return lista.Posicion() >= 1 && !lista.EOF_();
}

void Recortar(cargas::PesoUnitario& peso) {
    peso.Descripcion = trabex::Recortar(peso.Descripcion);
}

std::vector<cargas::PesoUnitario> FilasVariables(const cargas::AnalisisCarga& analisis) {
    if (analisis.Variable.Descripcion.empty()) return {};
    return {analisis.Variable};
}

/// Sets a field; a value that its column refuses takes back what was set before it.
bool PonerCampo(Recordset& lista, const char* campo, const Valor& valor) {
    const bool puesto = lista.Poner(campo, valor);
    if (!puesto) lista.CancelarActualizacion();
    return puesto;
}

/// Copies a captured analysis's rows of one table, where it has any.
bool CapturarFilas(Conexion& compartida, const TablaDeFilas& origen, Conexion& proyecto,
                   const TablaDeFilas& destino, const Clave& clave) {
    Recordset filas;
    AbrirFilas(compartida, filas, origen, clave);
    if (filas.NumeroRegistros() == 0) return true;
    BorrarFilas(proyecto, destino, clave);
    Recordset copias;
    AbrirRecordset(proyecto, copias, destino.Nombre);
    return CopiarFilas(filas, copias);
}

}  // namespace

void LeerAnalisis(Conexion& conexion, const Recordset& lista, cargas::Ambito ambito,
                  cargas::AnalisisCarga& analisis) {
    analisis = {};
    LeerCampos(lista, analisis, CamposAnalisis);
    const Clave clave = PorID(analisis.ID);
    LeerFilas(conexion, TablasDe(ambito).Permanentes, clave, analisis.Permanentes, 0, CamposPeso);
    std::vector<cargas::PesoUnitario> variables;
    LeerFilas(conexion, TablasDe(ambito).Variables, clave, variables, 0, CamposPeso);
    analisis.Variable = variables.empty() ? cargas::PesoUnitario{"", analisis.CV} : variables.front();
}

bool GuardarAnalisis(Conexion& conexion, Recordset& lista, cargas::Ambito ambito,
                     cargas::AnalisisCarga& analisis) {
    if (!EnUnRegistro(lista)) return false;
    const Clave clave = ClaveDe(lista);
    for (cargas::PesoUnitario& item : analisis.Permanentes) Recortar(item);
    Recortar(analisis.Variable);
    Totalice(analisis);
    Transaccion guardado(conexion);
    const bool permanentes =
        GuardarFilas(conexion, TablasDe(ambito).Permanentes, clave, analisis.Permanentes, 0, CamposPeso);
    const bool variables =
        GuardarFilas(conexion, TablasDe(ambito).Variables, clave, FilasVariables(analisis), 0, CamposPeso);
    PonerCampos(lista, analisis, CamposTotales);
    const bool totales = lista.Actualizar();
    return permanentes && variables && totales && guardado.Confirmar();
}

bool AgregarAnalisis(Recordset& lista, cargas::Ambito ambito, const std::string& descripcion,
                     const cargas::FuenteAzar& azar) {
    cargas::AnalisisCarga nuevo;
    nuevo.Descripcion = trabex::Recortar(descripcion);
    const bool sortea = cargas::VarianteDe(ambito).SorteaNumero;
    if (sortea) {
        nuevo.ID = cargas::NumeroNuevo(azar, [&](std::int32_t numero) {
            BuscarRegistro(lista, Criterio(PorID(numero)));
            return lista.Encontrado();
        });
    }
    lista.AgregarNuevo();
    PonerCampos(lista, nuevo, CamposTotales);
    if (sortea) lista.Poner("ID", nuevo.ID);
    return PonerCampo(lista, "Descripcion", nuevo.Descripcion) && lista.Actualizar();
}

bool CambiarDescripcion(Recordset& lista, const std::string& descripcion) {
    return PonerCampo(lista, "Descripcion", trabex::Recortar(descripcion)) && lista.Actualizar();
}

bool CambiarCarga(Recordset& lista, double carga) {
    return PonerCampo(lista, "Carga", carga) && lista.Actualizar();
}

bool BorrarAnalisis(Conexion& conexion, Recordset& lista, cargas::Ambito ambito) {
    if (!EnUnRegistro(lista)) return false;
    const Clave clave = ClaveDe(lista);
    Transaccion guardado(conexion);
    BorrarFilas(conexion, TablasDe(ambito).Permanentes, clave);
    BorrarFilas(conexion, TablasDe(ambito).Variables, clave);
    const bool borrado = lista.Borrar();
    return borrado && guardado.Confirmar();
}

bool YaCapturado(const Recordset& compartida, Recordset& lista) {
    BuscarRegistro(lista, Criterio(ClaveDe(compartida)));
    return lista.Encontrado();
}

bool CapturarAnalisis(Conexion& compartida, const Recordset& listaCompartida, Conexion& proyecto,
                      Recordset& lista) {
    if (!EnUnRegistro(listaCompartida)) return false;
    const Clave clave = ClaveDe(listaCompartida);
    cargas::AnalisisCarga analisis;
    LeerCampos(listaCompartida, analisis, CamposAnalisis);
    Transaccion guardado(proyecto);
    lista.AgregarNuevo();
    PonerCampos(lista, analisis, CamposAnalisis);
    const bool agregado = lista.Actualizar();
    const bool permanentes = CapturarFilas(compartida, AnalisisCompartidos.Permanentes, proyecto,
                                           AnalisisDelProyecto.Permanentes, clave);
    const bool variables = CapturarFilas(compartida, AnalisisCompartidos.Variables, proyecto,
                                         AnalisisDelProyecto.Variables, clave);
    return agregado && permanentes && variables && guardado.Confirmar();
}

bool AgregarPeso(Recordset& lista, const cargas::PesoUnitario& peso) {
    lista.AgregarNuevo();
    return CambiarPeso(lista, peso);
}

bool CambiarPeso(Recordset& lista, const cargas::PesoUnitario& peso) {
    return PonerCampo(lista, "Descripcion", trabex::Recortar(peso.Descripcion)) &&
           PonerCampo(lista, "Peso", peso.Peso) && lista.Actualizar();
}

}  // namespace trabex::almacen::tablas
