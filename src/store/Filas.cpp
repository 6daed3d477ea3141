#include "store/Filas.h"

namespace trabex::almacen {

Clave PorNombre(const std::string& nombre) {
    return {"Nombre", nombre};
}

Clave PorID(std::int32_t id) {
    return {"ID", id};
}

std::string Criterio(const Clave& clave) {
    const auto* texto = std::get_if<std::string>(&clave.Dato);
    return std::string(clave.Columna) + "=" +
           (texto ? EntreComillas(*texto) : std::to_string(std::get<std::int32_t>(clave.Dato)));
}

void AbrirFilas(Conexion& conexion, Recordset& registros, const TablaDeFilas& tabla, const Clave& clave) {
    std::string consulta = std::string("SELECT * FROM ") + tabla.Nombre + " WHERE " + Criterio(clave);
    if (tabla.Orden) consulta += std::string(" ORDER BY ") + tabla.Orden;
    AbrirRecordset(conexion, registros, consulta);
}

void BorrarFilas(Conexion& conexion, const TablaDeFilas& tabla, const Clave& clave) {
    conexion.Ejecutar(std::string("DELETE * FROM ") + tabla.Nombre + " WHERE " + Criterio(clave));
}

bool EscribirFilas(Conexion& conexion, const TablaDeFilas& tabla, const Clave& clave, std::size_t filas,
                   const std::function<void(Recordset&, std::size_t)>& poner) {
    BorrarFilas(conexion, tabla, clave);
    Recordset registros;
    AbrirRecordset(conexion, registros, tabla.Nombre);
    bool escritas = true;
    for (std::size_t k = 1; k <= filas; ++k) {
        registros.AgregarNuevo();
        registros.Poner(clave.Columna, clave.Dato);
        // A number past the column's 16 bits is refused there.
        if (tabla.Numerada) registros.Poner(tabla.Orden, static_cast<double>(k));
        poner(registros, k);
        escritas = registros.Actualizar() && escritas;
    }
    return escritas;
}

bool CopiarFilas(Recordset& origen, Recordset& destino) {
    bool copiadas = true;
    for (int k = 1; k <= origen.NumeroRegistros(); ++k) {
        origen.MoverA(k);
        destino.AgregarNuevo();
        for (const Columna& columna : origen.Columnas())
            destino.Poner(columna.Nombre, origen.Leer(columna.Nombre));
        copiadas = destino.Actualizar() && copiadas;
    }
    return copiadas;
}

bool ReemplazarFila(Conexion& conexion, const char* tabla, const std::function<void(Recordset&)>& poner) {
    Transaccion guardado(conexion);
    conexion.Ejecutar("DELETE * FROM " + std::string(tabla));
    Recordset registros;
    AbrirRecordset(conexion, registros, tabla);
    registros.AgregarNuevo();
    poner(registros);
    const bool agregada = registros.Actualizar();
    return agregada && guardado.Confirmar();
}

bool SembrarFila(Recordset& registros, const std::function<void(Recordset&)>& poner) {
    if (registros.NumeroRegistros() == 0) {
        registros.AgregarNuevo();
        poner(registros);
        registros.Actualizar();
    }
    registros.MoverAlPrimero();
    return registros.NumeroRegistros() > 0;
}

}  // namespace trabex::almacen
