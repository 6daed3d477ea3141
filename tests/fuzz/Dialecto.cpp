// Statements, sources and criteria of the dialect, run on a private copy of a small database.

#include "store/Dialecto.h"

#include <cstdint>
#include <cstdlib>
#include <string>

#include "store/Conexion.h"
#include "store/Recordset.h"
#include "support/CarpetaTemporal.h"
#include "support/ProyectoDePrueba.h"

namespace {

using namespace trabex;
using namespace trabex::almacen;

struct Base {
    Base() {
        CrearBaseDatos(carpeta / "base",
                       "CREATE TABLE T (Nombre TEXT(20) COLLATE NOCASE, x DOUBLE);"
                       "INSERT INTO T VALUES ('L-1', 1), ('Ñ', 2);");
        AbrirConexion(conexion, carpeta / "base");
    }
    prueba::CarpetaTemporal carpeta;
    Conexion conexion;
};

void Exigir(bool condicion) {
    if (!condicion) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    static Base base;
    const std::string texto(reinterpret_cast<const char*>(datos), largo);
    Conexion copia;
    CopiarEnMemoria(base.conexion, copia);
    Exigir(copia.Abierta());

    Recordset registros;
    AbrirRecordset(copia, registros, texto);
    Exigir(registros.Abierto() || registros.NumeroRegistros() == 0);
    AbrirRecordset(copia, registros, "T");
    Exigir(registros.NumeroRegistros() == 2);  // opening a source changes no row
    BuscarRegistro(registros, texto);
    Exigir(!registros.Encontrado() || registros.Posicion() >= 1);
    if (const auto criterio = LeerCriterio(texto)) Exigir(!criterio->Campo.empty());

    // A refused or wrong statement leaves the table as it stands.
    if (!copia.Ejecutar(texto)) {
        AbrirRecordset(copia, registros, "SELECT * FROM T WHERE x > 0");
        Exigir(registros.NumeroRegistros() == 2);
    }
    return 0;
}
