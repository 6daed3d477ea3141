#include "store/Filas.h"

namespace trabex::almacen {

std::string ConsultaDe(std::string_view tabla, const std::string& nombre, std::string_view orden) {
    std::string consulta = "SELECT * FROM " + std::string(tabla) + " WHERE Nombre=" + EntreComillas(nombre);
    if (!orden.empty()) consulta += " ORDER BY " + std::string(orden);
    return consulta;
}

bool EscribirFilas(Conexion& conexion, const char* tabla, const std::string& nombre, std::size_t filas,
                   const std::function<void(Recordset&, std::size_t)>& poner) {
    conexion.Ejecutar("DELETE * FROM " + std::string(tabla) + " WHERE Nombre=" + EntreComillas(nombre));
    Recordset registros;
    AbrirRecordset(conexion, registros, tabla);
    bool escritas = true;
    for (std::size_t k = 1; k <= filas; ++k) {
        registros.AgregarNuevo();
        registros.Poner("Nombre", nombre);
        poner(registros, k);
        escritas = registros.Actualizar() && escritas;
    }
    return escritas;
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

Valor NumeroDeFila(std::size_t k) {
    return static_cast<double>(k);
}

}  // namespace trabex::almacen
