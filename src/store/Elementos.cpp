#include "store/Elementos.h"

#include "store/Dialecto.h"
#include "store/Filas.h"
#include "store/Posicion.h"

namespace trabex::almacen {

std::vector<std::string> Nombres(Recordset& lista) {
    const auto posicion = PosicionGuardada(lista);
    std::vector<std::string> nombres;
    for (int fila = 1; fila <= lista.NumeroRegistros(); ++fila) {
        lista.MoverA(fila);
        nombres.push_back(lista.Texto("Nombre"));
    }
    return nombres;
}

bool EstaEnLista(Conexion& conexion, const char* lista, const std::string& nombre) {
    Recordset registros;
    AbrirRecordset(conexion, registros,
                   std::string("SELECT * FROM ") + lista + " WHERE " + Criterio(PorNombre(nombre)));
    return !registros.Abierto() || registros.NumeroRegistros() > 0;
}

bool RenombrarElemento(Conexion& conexion, const TablasDeElemento& tablas, const std::string& actual,
                       const std::string& nuevo) {
    Transaccion guardado(conexion);
    if (!EstaEnLista(conexion, tablas.Lista, actual)) guardado.Estropear(CodigoError::RegistroCambiado);
    const auto renombrar = [&](const char* tabla) {
        conexion.Ejecutar(
            Sentencia(std::string("UPDATE ") + tabla + " SET Nombre=? WHERE Nombre=?", {nuevo, actual}));
        for (const std::string& nombre : {actual, nuevo}) OlvidarFilas(conexion, {tabla}, PorNombre(nombre));
    };
    for (const char* hija : tablas.Hijas) renombrar(hija);
    renombrar(tablas.Lista);
    return guardado.Confirmar();
}

bool BorrarElemento(Conexion& conexion, const TablasDeElemento& tablas, Recordset& lista) {
    const std::string nombre = lista.Texto("Nombre");
    Transaccion guardado(conexion);
    for (const char* hija : tablas.Hijas) BorrarFilas(conexion, {hija}, PorNombre(nombre));
    const bool borrado = lista.Borrar();
    return borrado && guardado.Confirmar();
}

}  // namespace trabex::almacen
