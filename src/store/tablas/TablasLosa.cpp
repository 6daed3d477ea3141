#include "store/tablas/TablasLosa.h"

#include "store/Filas.h"
#include "store/proyecto/TablaProyecto.h"
#include "store/tablas/CamposLosa.h"

namespace trabex::almacen::tablas {

namespace {

constexpr const char* TablaDeGenerales = "LosaG";
constexpr TablaDeFilas TablaDatos{"LosaDatos"};
constexpr TablaDeFilas TablaTramos{"LosaTramos", "Numero", true};
constexpr TablaDeFilas TablaEjes{"LosaEjes", "Numero", true};
constexpr TablaDeFilas TablaJuntasD{"LosaJuntasD", "Junta"};
constexpr double LosetaPorDefecto = 0.05;

void LeerSeccion(Conexion& conexion, losas::Losa& losa) {
    Recordset registros;
    AbrirFilas(conexion, registros, TablaDatos, PorNombre(losa.Nombre));
    if (registros.NumeroRegistros() == 0) return;
    LeerCampos(registros, losa, CamposSeccion);
    if (losa.Loseta == 0) losa.Loseta = LosetaPorDefecto;
}

}  // namespace

bool AgregarGenerales(Recordset& registros, const DatosGenerales& generales) {
    registros.AgregarNuevo();
    PonerCampos(registros, generales, CamposGeneralesLosa);
    return registros.Actualizar();
}

bool GuardarGeneralesLosa(Conexion& conexion, const DatosGenerales& generales) {
    return ReemplazarFila(conexion, TablaDeGenerales,
                          [&](Recordset& r) { PonerCampos(r, generales, CamposGeneralesLosa); });
}

void LeerDatosGenerales(Conexion& conexion, std::string_view usuario, DatosDelProyecto& datos,
                        DatosGenerales& generales) {
    proyecto::LeerProyecto(conexion, usuario, datos);
    generales = {};
    Recordset registros;
    if (AbrirFila(conexion, registros, TablaDeGenerales,
                  [&](Recordset& r) { PonerCampos(r, generales, CamposGeneralesLosa); }))
        LeerCampos(registros, generales, CamposGeneralesLosa);
}

void PonerSeccion(Recordset& registros, losas::Losa& losa) {
    if (losa.Loseta == 0) losa.Loseta = LosetaPorDefecto;
    PonerCampos(registros, losa, CamposSeccion);
}

void EscribirElementos(Conexion& conexion, const std::string& nombre, const losas::Losa& losa) {
    std::vector<losas::EjeLosa> ejes = losa.Ejes;
    ejes.resize(losa.Tramos.size() + 1);  // one joint more than spans, whatever the record holds
    GuardarFilas(conexion, TablaTramos, PorNombre(nombre), losa.Tramos, 1, CamposTramo);
    GuardarFilas(conexion, TablaEjes, PorNombre(nombre), ejes, 1, CamposEje);
    GuardarFilas(conexion, TablaJuntasD, PorNombre(nombre), losa.JuntasD, 1, CamposJuntaD);
}

void LeerLosa(ProyectoAbierto& proyecto, losas::Losa& losa) {
    losas::VaciarLosa(losa);
    Conexion& conexion = proyecto.ConexionProyecto;
    const Lectura lectura(conexion);
    losa.Nombre = proyecto.RegistrosProyecto.Texto("Nombre");
    const Clave clave = PorNombre(losa.Nombre);
    LeerSeccion(conexion, losa);
    LeerFilas(conexion, TablaTramos, clave, losa.Tramos, 1, CamposTramo);
    LeerFilas(conexion, TablaEjes, clave, losa.Ejes, 1, CamposEje);
    LeerFilas(conexion, TablaJuntasD, clave, losa.JuntasD, 1, CamposJuntaD);
}

bool GuardarLosa(ProyectoAbierto& proyecto, losas::Losa& losa) {
    Recordset& lista = proyecto.RegistrosProyecto;
    if (lista.Posicion() < 1 || lista.EOF_()) return false;
    Transaccion guardado(proyecto.ConexionProyecto);
    if (lista.Texto("Nombre") != losa.Nombre) guardado.Estropear(CodigoError::RegistroCambiado);
    PonerSeccion(lista, losa);
    lista.Actualizar();
    EscribirElementos(proyecto.ConexionProyecto, losa.Nombre, losa);
    return guardado.Confirmar();
}

}  // namespace trabex::almacen::tablas
