#include "shell/Renombrar.h"

#include "base/Texto.h"
#include "store/Recordset.h"

namespace trabex {

bool ExisteNombre(Conexion& conexion, std::string_view tabla, const std::string& nombre) {
    Recordset registros;
    AbrirRecordset(conexion, registros, tabla);
    BuscarRegistro(registros, "Nombre=" + EntreComillas(nombre));
    return registros.Encontrado();
}

bool Renombrar::Aceptar(const std::string& entrado) {
    const std::string nombre = Recortar(entrado);
    const std::string titulo = "Renombrar...";
    if (nombre.empty()) return false;
    if (ExisteNombre(conexion_, clase_.Tabla, nombre)) {
        caja_.Mostrar(Aviso("Nombre: " + nombre + "\n" + std::string(clase_.YaExiste), titulo));
        return false;
    }
    const std::string pregunta =
        std::string(clase_.Pregunta) + actual_ + "   Por el Nombre: " + nombre + "\n¿Esta Usted Seguro?";
    if (caja_.Mostrar(Pregunta(pregunta, titulo)) != RespuestaSi) return false;
    nuevo_ = nombre;
    return true;
}

}  // namespace trabex
