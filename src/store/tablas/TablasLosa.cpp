#include "store/tablas/TablasLosa.h"

#include <functional>

#include "store/Filas.h"
#include "store/proyecto/TablaProyecto.h"

namespace trabex::almacen::tablas {

namespace {

constexpr const char* TablaDeGenerales = "LosaG";
constexpr double LosetaPorDefecto = 0.05;

void PonerGenerales(Recordset& registros, const DatosGenerales& generales) {
    registros.Poner("FC", generales.FC);
    registros.Poner("FY", generales.FY);
    registros.Poner("D8", generales.D8);
    registros.Poner("FCP", generales.FCP);
    registros.Poner("FCV", generales.FCV);
    registros.Poner("FiMomento", generales.FiMomento);
    registros.Poner("FiCorte", generales.FiCorte);
}

/// Reads a slab's rows of one table into an array that counts from 1.
template <class Registro>
void LeerFilas(Conexion& conexion, const std::string& consulta, std::vector<Registro>& arreglo,
               const std::function<Registro(const Recordset&)>& leer) {
    Recordset registros;
    AbrirRecordset(conexion, registros, consulta);
    arreglo.assign(static_cast<std::size_t>(registros.NumeroRegistros()) + 1, {});
    for (int k = 1; k <= registros.NumeroRegistros(); ++k) {
        registros.MoverA(k);
        arreglo[static_cast<std::size_t>(k)] = leer(registros);
    }
}

void LeerSeccion(Conexion& conexion, losas::Losa& losa) {
    Recordset registros;
    AbrirRecordset(conexion, registros, ConsultaDe("LosaDatos", losa.Nombre));
    if (registros.NumeroRegistros() == 0) return;
    losa.OpcionMaciza = registros.Booleano("OpcionMaciza");
    losa.Bo = registros.Doble("Bo");
    losa.Ho = registros.Doble("Ho");
    losa.So = registros.Doble("So");
    losa.Bm = registros.Doble("Bm");
    losa.Hm = registros.Doble("Hm");
    losa.Loseta = registros.Doble("Loseta");
    if (losa.Loseta == 0) losa.Loseta = LosetaPorDefecto;
}

}  // namespace

bool AgregarGenerales(Recordset& registros, const DatosGenerales& generales) {
    registros.AgregarNuevo();
    PonerGenerales(registros, generales);
    return registros.Actualizar();
}

bool GuardarGeneralesLosa(Conexion& conexion, const DatosGenerales& generales) {
    return ReemplazarFila(conexion, TablaDeGenerales, [&](Recordset& r) { PonerGenerales(r, generales); });
}

void LeerDatosGenerales(Conexion& conexion, std::string_view usuario, DatosDelProyecto& datos,
                        DatosGenerales& generales) {
    proyecto::LeerProyecto(conexion, usuario, datos);
    generales = {};
    Recordset registros;
    AbrirRecordset(conexion, registros, TablaDeGenerales);
    if (!SembrarFila(registros, [&](Recordset& r) { PonerGenerales(r, generales); })) return;
    generales.FC = registros.Entero16("FC");
    generales.FY = registros.Entero16("FY");
    generales.D8 = registros.Doble("D8");
    generales.FCP = registros.Doble("FCP");
    generales.FCV = registros.Doble("FCV");
    generales.FiMomento = registros.Doble("FiMomento");
    generales.FiCorte = registros.Doble("FiCorte");
}

void PonerSeccion(Recordset& registros, losas::Losa& losa) {
    if (losa.Loseta == 0) losa.Loseta = LosetaPorDefecto;
    registros.Poner("OpcionMaciza", losa.OpcionMaciza);
    registros.Poner("Bo", losa.Bo);
    registros.Poner("Ho", losa.Ho);
    registros.Poner("So", losa.So);
    registros.Poner("Bm", losa.Bm);
    registros.Poner("Hm", losa.Hm);
    registros.Poner("Loseta", losa.Loseta);
}

void EscribirElementos(Conexion& conexion, const std::string& nombre, const losas::Losa& losa) {
    EscribirFilas(conexion, "LosaTramos", nombre, losa.Tramos.size() - 1, [&](Recordset& r, std::size_t k) {
        const losas::Tramo& tramo = losa.Tramos[k];
        r.Poner("Numero", NumeroDeFila(k));
        r.Poner("LT", tramo.LT);
        r.Poner("Wp", tramo.Wp);
        r.Poner("WV", tramo.WV);
        r.Poner("p1", tramo.p1);
        r.Poner("L1", tramo.L1);
    });
    EscribirFilas(conexion, "LosaEjes", nombre, losa.Tramos.size(), [&](Recordset& r, std::size_t k) {
        const losas::EjeLosa eje = k < losa.Ejes.size() ? losa.Ejes[k] : losas::EjeLosa{};
        r.Poner("Numero", NumeroDeFila(k));
        r.Poner("Eje", eje.Eje);
        r.Poner("Tipo", eje.Tipo);
        r.Poner("Lizq", eje.Lizq);
        r.Poner("Lder", eje.Lder);
        r.Poner("HV", eje.HV);
    });
    EscribirFilas(conexion, "LosaJuntasD", nombre, losa.JuntasD.size() - 1, [&](Recordset& r, std::size_t k) {
        r.Poner("Junta", losa.JuntasD[k].Junta);
        r.Poner("x", losa.JuntasD[k].x);
        r.Poner("y", losa.JuntasD[k].y);
    });
}

void LeerLosa(ProyectoAbierto& proyecto, losas::Losa& losa) {
    losas::VaciarLosa(losa);
    Conexion& conexion = proyecto.ConexionProyecto;
    losa.Nombre = proyecto.RegistrosProyecto.Texto("Nombre");
    LeerSeccion(conexion, losa);
    LeerFilas<losas::Tramo>(conexion, ConsultaDe("LosaTramos", losa.Nombre, "Numero"), losa.Tramos,
                            [](const Recordset& r) {
                                return losas::Tramo{r.Doble("LT"), r.Entero32("Wp"), r.Entero32("WV"),
                                                    r.Entero32("p1"), r.Doble("L1")};
                            });
    LeerFilas<losas::EjeLosa>(conexion, ConsultaDe("LosaEjes", losa.Nombre, "Numero"), losa.Ejes,
                              [](const Recordset& r) {
                                  return losas::EjeLosa{r.Texto("Eje"), r.Entero16("Tipo"), 0, 0, 0};
                              });
    LeerFilas<losas::JuntaD>(conexion, ConsultaDe("LosaJuntasD", losa.Nombre, "Junta"), losa.JuntasD,
                             [](const Recordset& r) {
                                 return losas::JuntaD{r.Entero16("Junta"), r.Doble("x"), r.Doble("y")};
                             });
}

bool GuardarLosa(ProyectoAbierto& proyecto, losas::Losa& losa) {
    Recordset& lista = proyecto.RegistrosProyecto;
    if (lista.Posicion() < 1 || lista.EOF_()) return false;
    Transaccion guardado(proyecto.ConexionProyecto);
    PonerSeccion(lista, losa);
    lista.Actualizar();
    EscribirElementos(proyecto.ConexionProyecto, losa.Nombre, losa);
    return guardado.Confirmar();
}

}  // namespace trabex::almacen::tablas
