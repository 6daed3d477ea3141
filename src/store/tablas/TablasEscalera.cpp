#include "store/tablas/TablasEscalera.h"

#include "store/Filas.h"
#include "store/proyecto/TablaProyecto.h"

namespace trabex::almacen::tablas {

namespace {

const char* TablaDeGenerales(ClaseEscalera clase) {
    return clase == ClaseEscalera::Helicoidal ? "EscaleraHG" : "EscaleraTG";
}

void PonerGeneralesEscalera(Recordset& registros, const DatosGenerales& generales) {
    registros.Poner("FC", generales.FC);
    registros.Poner("FY", generales.FY);
    registros.Poner("D8", generales.D8);
    registros.Poner("FS", generales.FS);
    registros.Poner("FiMomento", generales.FiMomento);
    registros.Poner("FiCorte", generales.FiCorte);
}

/// The factors of slabs are not the stairs' to change.
void CopiarDeEscalera(const DatosGenerales& origen, DatosGenerales& destino) {
    const double FCP = destino.FCP;
    const double FCV = destino.FCV;
    destino = origen;
    destino.FCP = FCP;
    destino.FCV = FCV;
}

}  // namespace

void LeaDatosGenerales(Conexion& conexion, ClaseEscalera clase, std::string_view usuario,
                       DatosDelProyecto& datos, DatosGenerales& generales) {
    proyecto::LeerProyecto(conexion, usuario, datos);
    CopiarDeEscalera({}, generales);
    Recordset registros;
    AbrirRecordset(conexion, registros, TablaDeGenerales(clase));
    if (!SembrarFila(registros, [&](Recordset& r) { PonerGeneralesEscalera(r, generales); })) return;
    generales.FC = registros.Entero16("FC");
    generales.FY = registros.Entero16("FY");
    generales.D8 = registros.Doble("D8");
    generales.FiMomento = registros.Doble("FiMomento");
    generales.FiCorte = registros.Doble("FiCorte");
    generales.FS = registros.Doble("FS");
}

bool GuardarGenerales(Conexion& conexion, ClaseEscalera clase, const DatosGenerales& generales) {
    return ReemplazarFila(conexion, TablaDeGenerales(clase),
                          [&](Recordset& r) { PonerGeneralesEscalera(r, generales); });
}

bool LeaDatosEscalera(ProyectoAbierto& proyecto, escaleras::DatosEscaleraT& escalera) {
    escalera = {};
    escalera.Nombre = proyecto.RegistrosProyecto.Texto("Nombre");
    escalera.Titulo = proyecto.RegistrosProyecto.Texto("Titulo");
    Recordset registros;
    AbrirRecordset(proyecto.ConexionProyecto, registros, ConsultaDe("EscaleraT", escalera.Nombre));
    if (registros.NumeroRegistros() == 0) return false;
    escalera.L = registros.Doble("L");
    escalera.B = registros.Doble("B");
    escalera.H = registros.Doble("H");
    escalera.HT = registros.Doble("HT");
    escalera.Hd = registros.Doble("Hd");
    escalera.WT = registros.Entero32("WT");
    escalera.Wd = registros.Entero32("Wd");
    escalera.WpD = registros.Entero32("WpD");
    return true;
}

bool LeaDatosEscalera(ProyectoAbierto& proyecto, helices::DatosEscaleraH& escalera) {
    escalera = {};
    escalera.Nombre = proyecto.RegistrosProyecto.Texto("Nombre");
    escalera.Titulo = proyecto.RegistrosProyecto.Texto("Titulo");
    Recordset registros;
    AbrirRecordset(proyecto.ConexionProyecto, registros, ConsultaDe("EscaleraH", escalera.Nombre));
    if (registros.NumeroRegistros() == 0) return false;
    escalera.H = registros.Doble("H");
    escalera.B = registros.Doble("B");
    escalera.T = registros.Doble("T");
    escalera.R = registros.Doble("R");
    escalera.Angulo = registros.Doble("Angulo");
    escalera.W = registros.Entero32("W");
    escalera.Inter = registros.Entero16("Inter");
    return true;
}

bool GuardarEscalera(Conexion& conexion, const escaleras::DatosEscaleraT& escalera) {
    Transaccion guardado(conexion);
    const bool escrita =
        EscribirFilas(conexion, "EscaleraT", escalera.Nombre, 1, [&](Recordset& r, std::size_t) {
            r.Poner("L", escalera.L);
            r.Poner("B", escalera.B);
            r.Poner("H", escalera.H);
            r.Poner("HT", escalera.HT);
            r.Poner("Hd", escalera.Hd);
            r.Poner("WT", escalera.WT);
            r.Poner("Wd", escalera.Wd);
            r.Poner("WpD", escalera.WpD);
        });
    return escrita && guardado.Confirmar();
}

bool GuardarEscalera(Conexion& conexion, const helices::DatosEscaleraH& escalera) {
    Transaccion guardado(conexion);
    const bool escrita =
        EscribirFilas(conexion, "EscaleraH", escalera.Nombre, 1, [&](Recordset& r, std::size_t) {
            r.Poner("B", escalera.B);
            r.Poner("T", escalera.T);
            r.Poner("H", escalera.H);
            r.Poner("R", escalera.R);
            r.Poner("Angulo", escalera.Angulo);
            r.Poner("W", escalera.W);
            r.Poner("Inter", escalera.Inter);
        });
    return escrita && guardado.Confirmar();
}

}  // namespace trabex::almacen::tablas
