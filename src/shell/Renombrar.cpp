#include "shell/Renombrar.h"

#include "base/Texto.h"
#include "store/Filas.h"
#include "store/Recordset.h"

namespace trabex::programa {

bool ExisteNombre(almacen::Conexion& conexion, std::string_view tabla, const std::string& nombre) {
    almacen::Recordset registros;
    almacen::AbrirRecordset(conexion, registros, tabla);
    almacen::BuscarRegistro(registros, almacen::Criterio(almacen::PorNombre(nombre)));
    return registros.Encontrado();
}

bool Renombrar::Aceptar(const std::string& entrado) {
    const std::string nombre = Recortar(entrado);
    const std::string titulo(textos_.Encabezado);
    if (nombre.empty()) return false;
    if (ExisteNombre(conexion_, tabla_, nombre)) {
        caja_.Mostrar(Aviso("Nombre: " + nombre + "\n" + std::string(textos_.YaExiste), titulo));
        return false;
    }
    const std::string pregunta =
        std::string(textos_.Pregunta) + actual_ + std::string(textos_.Por) + nombre + "\n¿Esta Usted Seguro?";
    if (caja_.Mostrar(Pregunta(pregunta, titulo)) != RespuestaSi) return false;
    nuevo_ = nombre;
    return true;
}

}  // namespace trabex::programa
