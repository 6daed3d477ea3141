#include "store/Filas.h"

#include <optional>

#include "store/Comparacion.h"
#include "store/Dialecto.h"
#include "store/Motor.h"

namespace trabex::almacen {

Clave PorNombre(const std::string& nombre) {
    return {"Nombre", nombre};
}

Clave PorID(std::int32_t id) {
    return {"ID", id};
}

std::string Criterio(const Clave& clave) {
    const std::string columna = std::string(clave.Columna) + "=";
    const auto* texto = std::get_if<std::string>(&clave.Dato);
    return texto ? Sentencia(columna + "?", {*texto})
                 : columna + std::to_string(std::get<std::int32_t>(clave.Dato));
}

namespace {

std::string Cuales(const TablaDeFilas& tabla, const Clave& clave) {
    return std::string(tabla.Nombre) + " " + Criterio(clave);
}

void Recordar(Conexion& conexion, const std::string& filas, const Recordset& registros) {
    if (registros.Abierto()) conexion.motor()->Recordar(filas, registros.Huella());
}

/// What was read of some rows is what they hold. Otherwise another program was there: the save is spoilt.
bool Vigentes(Conexion& conexion, const std::string& filas, std::string_view consulta) {
    const auto leidas = conexion.Abierta() ? conexion.motor()->Recordada(filas) : std::nullopt;
    if (!leidas) return true;
    Recordset registros;
    AbrirRecordset(conexion, registros, consulta);
    if (!registros.Abierto() || registros.Huella() == *leidas) return true;
    conexion.motor()->Estropear(CodigoError::RegistroCambiado);
    return false;
}

/// The condition that an element's rows meet, by the shortest way to them.
std::string Condicion(Conexion& conexion, const TablaDeFilas& tabla, const Clave& clave) {
    std::string criterio = Criterio(clave);
    if (!conexion.Abierta() || !std::holds_alternative<std::string>(clave.Dato)) return criterio;
    return conexion.motor()->Nombres().Condicion(tabla.Nombre, criterio).value_or(criterio);
}

std::string ConsultaDe(Conexion& conexion, const TablaDeFilas& tabla, const Clave& clave) {
    return std::string("SELECT * FROM ") + tabla.Nombre + " WHERE " + Condicion(conexion, tabla, clave);
}

/// The same for whichever name is put into it.
std::string ConsultaDe(Conexion& conexion, const TablaDeFilas& tabla, const char* columna) {
    const std::string criterio = std::string(columna) + "=?1";
    const auto indice =
        conexion.Abierta() ? conexion.motor()->Nombres().Condicion(tabla.Nombre, criterio) : std::nullopt;
    return std::string("SELECT * FROM ") + tabla.Nombre + " WHERE " + indice.value_or(criterio) +
           " COLLATE " + OrdenDelAlmacen;
}

/// A set of a table that reads none of its rows: to add some.
void AbrirVacio(Conexion& conexion, Recordset& registros, const char* tabla) {
    AbrirRecordset(conexion, registros, "SELECT * FROM " + std::string(tabla) + " WHERE 0");
}

}  // namespace

void AbrirFilas(Conexion& conexion, Recordset& registros, const TablaDeFilas& tabla, const Clave& clave) {
    const Lectura lectura(conexion);
    const std::string orden = tabla.Orden ? std::string(" ORDER BY ") + tabla.Orden : "";
    const auto* texto = std::get_if<std::string>(&clave.Dato);
    // A text that would break its statement breaks this one too.
    if (texto != nullptr && texto->find_first_of(std::string_view("'\0", 2)) == std::string::npos)
        AbrirRecordset(conexion, registros, ConsultaDe(conexion, tabla, clave.Columna) + orden, *texto);
    else
        AbrirRecordset(conexion, registros, ConsultaDe(conexion, tabla, clave) + orden);
    Recordar(conexion, Cuales(tabla, clave), registros);
}

void BorrarFilas(Conexion& conexion, const TablaDeFilas& tabla, const Clave& clave) {
    conexion.Ejecutar(std::string("DELETE * FROM ") + tabla.Nombre + " WHERE " +
                      Condicion(conexion, tabla, clave));
    OlvidarFilas(conexion, tabla, clave);
}

void OlvidarFilas(Conexion& conexion, const TablaDeFilas& tabla, const Clave& clave) {
    if (conexion.Abierta()) conexion.motor()->Recordar(Cuales(tabla, clave), std::nullopt);
}

bool EscribirFilas(Conexion& conexion, const TablaDeFilas& tabla, const Clave& clave, std::size_t filas,
                   const std::function<void(Recordset&, std::size_t)>& poner) {
    const std::string filasSuyas = Cuales(tabla, clave);
    if (!Vigentes(conexion, filasSuyas, ConsultaDe(conexion, tabla, clave))) return false;
    BorrarFilas(conexion, tabla, clave);
    Recordset registros;
    AbrirVacio(conexion, registros, tabla.Nombre);
    bool escritas = true;
    for (std::size_t k = 1; k <= filas; ++k) {
        registros.AgregarNuevo();
        registros.Poner(clave.Columna, clave.Dato);
        // A number past the column's 16 bits is refused there.
        if (tabla.Numerada) registros.Poner(tabla.Orden, static_cast<double>(k));
        poner(registros, k);
        escritas = registros.Actualizar() && escritas;
    }
    if (!Criterio(clave).empty()) Recordar(conexion, filasSuyas, registros);
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
    if (!Vigentes(conexion, tabla, tabla)) return false;
    conexion.Ejecutar("DELETE * FROM " + std::string(tabla));
    Recordset registros;
    AbrirRecordset(conexion, registros, tabla);
    registros.AgregarNuevo();
    poner(registros);
    const bool agregada = registros.Actualizar();
    Recordar(conexion, tabla, registros);
    return agregada && guardado.Confirmar();
}

bool AbrirFila(Conexion& conexion, Recordset& registros, const char* tabla,
               const std::function<void(Recordset&)>& poner) {
    AbrirRecordset(conexion, registros, tabla);
    if (registros.NumeroRegistros() == 0) {
        registros.AgregarNuevo();
        poner(registros);
        registros.Actualizar();
    }
    Recordar(conexion, tabla, registros);
    registros.MoverAlPrimero();
    return registros.NumeroRegistros() > 0;
}

}  // namespace trabex::almacen
