#include "store/Elementos.h"

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

bool RenombrarElemento(Conexion& conexion, const TablasDeElemento& tablas, const std::string& actual,
                       const std::string& nuevo) {
    Transaccion guardado(conexion);
    const auto renombrar = [&](const char* tabla) {
        conexion.Ejecutar(std::string("UPDATE ") + tabla + " SET Nombre=" + EntreComillas(nuevo) +
                          " WHERE Nombre=" + EntreComillas(actual));
    };
    for (const char* hija : tablas.Hijas) renombrar(hija);
    renombrar(tablas.Lista);
    return guardado.Confirmar();
}

bool BorrarElemento(Conexion& conexion, const TablasDeElemento& tablas, Recordset& lista) {
    const std::string nombre = lista.Texto("Nombre");
    Transaccion guardado(conexion);
    for (const char* hija : tablas.Hijas)
        conexion.Ejecutar(std::string("DELETE * FROM ") + hija + " WHERE Nombre=" + EntreComillas(nombre));
    const bool borrado = lista.Borrar();
    return borrado && guardado.Confirmar();
}

}  // namespace trabex::almacen
