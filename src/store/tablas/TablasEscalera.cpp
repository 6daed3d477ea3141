#include "store/tablas/TablasEscalera.h"

#include "store/Filas.h"
#include "store/proyecto/TablaProyecto.h"
#include "store/tablas/CamposEscalera.h"

namespace trabex::almacen::tablas {

namespace {

constexpr TablaDeFilas TablaEscaleraT{"EscaleraT"};
constexpr TablaDeFilas TablaEscaleraH{"EscaleraH"};

const char* TablaDeGenerales(ClaseEscalera clase) {
    return clase == ClaseEscalera::Helicoidal ? "EscaleraHG" : "EscaleraTG";
}

/// The factors of slabs are not the stairs' to change.
DatosGenerales SemillasDeEscalera(const DatosGenerales& actuales) {
    DatosGenerales semillas;
    semillas.FCP = actuales.FCP;
    semillas.FCV = actuales.FCV;
    return semillas;
}

/// The row of data of the stair on which the list stands.
template <class Escalera, class CamposLista, class CamposDatos>
bool LeerEscalera(ProyectoAbierto& proyecto, const TablaDeFilas& tabla, const CamposLista& deLista,
                  const CamposDatos& deDatos, Escalera& escalera) {
    escalera = {};
    LeerCampos(proyecto.RegistrosProyecto, escalera, deLista);
    Recordset registros;
    AbrirFilas(proyecto.ConexionProyecto, registros, tabla, PorNombre(escalera.Nombre));
    if (registros.NumeroRegistros() == 0) return false;
    LeerCampos(registros, escalera, deDatos);
    return true;
}

template <class Escalera, class CamposDatos>
bool GuardarDatos(Conexion& conexion, const char* lista, const TablaDeFilas& tabla, const CamposDatos& campos,
                  const Escalera& escalera) {
    Transaccion guardado(conexion);
    if (!EstaEnLista(conexion, lista, escalera.Nombre)) guardado.Estropear(CodigoError::RegistroCambiado);
    const std::vector<Escalera> unica{escalera};
    const bool escrita = GuardarFilas(conexion, tabla, PorNombre(escalera.Nombre), unica, 0, campos);
    return escrita && guardado.Confirmar();
}

}  // namespace

void LeaDatosGenerales(Conexion& conexion, ClaseEscalera clase, std::string_view usuario,
                       DatosDelProyecto& datos, DatosGenerales& generales) {
    proyecto::LeerProyecto(conexion, usuario, datos);
    generales = SemillasDeEscalera(generales);
    Recordset registros;
    if (AbrirFila(conexion, registros, TablaDeGenerales(clase),
                  [&](Recordset& r) { PonerCampos(r, generales, CamposGeneralesEscalera); }))
        LeerCampos(registros, generales, CamposGeneralesEscalera);
}

bool GuardarGenerales(Conexion& conexion, ClaseEscalera clase, const DatosGenerales& generales) {
    return ReemplazarFila(conexion, TablaDeGenerales(clase),
                          [&](Recordset& r) { PonerCampos(r, generales, CamposGeneralesEscalera); });
}

bool LeaDatosEscalera(ProyectoAbierto& proyecto, escaleras::DatosEscaleraT& escalera) {
    return LeerEscalera(proyecto, TablaEscaleraT, CamposListaT, CamposEscaleraT, escalera);
}

bool LeaDatosEscalera(ProyectoAbierto& proyecto, helices::DatosEscaleraH& escalera) {
    return LeerEscalera(proyecto, TablaEscaleraH, CamposListaH, CamposEscaleraH, escalera);
}

bool GuardarEscalera(Conexion& conexion, const escaleras::DatosEscaleraT& escalera) {
    return GuardarDatos(conexion, TablasDeEscaleraT.Lista, TablaEscaleraT, CamposEscaleraT, escalera);
}

bool GuardarEscalera(Conexion& conexion, const helices::DatosEscaleraH& escalera) {
    return GuardarDatos(conexion, TablasDeEscaleraH.Lista, TablaEscaleraH, CamposEscaleraH, escalera);
}

}  // namespace trabex::almacen::tablas
