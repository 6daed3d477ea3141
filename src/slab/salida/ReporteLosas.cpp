#include "slab/salida/ReporteLosas.h"

#include <algorithm>
#include <array>

#include "slab/DisenoSeccion.h"
#include "slab/EsfuerzosTramo.h"
#include "slab/ValoresLosa.h"
#include "store/Posicion.h"
#include "store/Vaciado.h"
#include "store/tablas/TablasLosa.h"

namespace trabex::losas::salida {

namespace {

/// A record of an array that counts from 1; what a calculation that ended early left out is zero.
template <class Registro>
Registro En(const std::vector<Registro>& arreglo, std::size_t i) {
    return i < arreglo.size() ? arreglo[i] : Registro{};
}

void EscribirGenerales(almacen::Conexion& conexion, const DatosGenerales& generales) {
    almacen::VaciarTabla(conexion, "LosaG");
    almacen::Recordset registros;
    almacen::AbrirRecordset(conexion, registros, "LosaG");
    almacen::tablas::AgregarGenerales(registros, generales);
}

almacen::Conexion& SinFilas(almacen::Conexion& conexion, const char* tabla) {
    almacen::VaciarTabla(conexion, tabla);
    return conexion;
}

void EscribirDatos(almacen::Insercion& tabla, const Losa& losa) {
    tabla.Poner("Nombre", losa.Nombre);
    tabla.Poner("OpcionMaciza", losa.OpcionMaciza);
    tabla.Poner("Bo", losa.Bo);
    tabla.Poner("Ho", losa.Ho);
    tabla.Poner("So", losa.So);
    tabla.Poner("Bm", losa.Bm);
    tabla.Poner("Hm", losa.Hm);
    tabla.Agregar();
}

/// A row's number; one past the column's 16 bits is left null there.
almacen::Valor Numero(std::size_t i) {
    return static_cast<double>(i);
}

void EscribirEje(almacen::Insercion& tabla, const Losa& losa, const ResultadosLosa& r, std::size_t i) {
    const EstadoJunta permanente = En(r.ResultadoJunta[CasoPermanente], i);
    const EstadoJunta variable = En(r.ResultadoJunta[CasoVariable], i);
    const DisenoDeEje diseno = En(r.DisenoEje, i);
    const EjeLosa eje = En(losa.Ejes, i);
    tabla.Poner("Nombre", losa.Nombre);
    tabla.Poner("Numero", Numero(i));
    tabla.Poner("Eje", eje.Eje);
    tabla.Poner("Tipo", eje.Tipo);
    tabla.Poner("x", permanente.x);
    tabla.Poner("y", permanente.y);
    tabla.Poner("DX", permanente.DX + variable.DX);
    tabla.Poner("DY", permanente.DY + variable.DY);
    tabla.Poner("Giro", permanente.Giro + variable.Giro);
    tabla.Poner("AS1", diseno.AS1);
    tabla.Poner("AS2", diseno.AS2);
    tabla.Poner("MczI", MacizadoVisible(diseno.MczI));
    tabla.Poner("MczD", MacizadoVisible(diseno.MczD));
    tabla.Poner("PtoI", diseno.PtoI);
    tabla.Poner("PtoD", diseno.PtoD);
    tabla.Poner("RV", permanente.RV + variable.RV);
    tabla.Poner("RH", permanente.RH + variable.RH);
    tabla.Agregar();
}

/// Columns of the reactions at one end of a span: in all, and by load case.
struct ColumnasDeReaccion {
    std::array<const char*, 2> Total;
    std::array<const char*, 2> Permanente;
    std::array<const char*, 2> Variable;
};
constexpr ColumnasDeReaccion ReaccionesA{{"VA", "FA"}, {"VACP", "FACP"}, {"VACV", "FACV"}};
constexpr ColumnasDeReaccion ReaccionesB{{"VB", "FB"}, {"VBCP", "FBCP"}, {"VBCV", "FBCV"}};

/// Reactions of an axis as its beam takes them.
void EscribirReacciones(almacen::Insercion& tabla, const ColumnasDeReaccion& columnas,
                        const LosaCalculada& losa, std::size_t eje) {
    const auto poner = [&](const std::array<const char*, 2>& nombres, const Reaccion& reaccion) {
        tabla.Poner(nombres[0], reaccion.V);
        tabla.Poner(nombres[1], reaccion.H);
    };
    const ReaccionesPorMetro reacciones = ReaccionesEnEje(losa, eje);
    poner(columnas.Total, reacciones.Total);
    poner(columnas.Permanente, reacciones.Permanente);
    poner(columnas.Variable, reacciones.Variable);
}

void EscribirEsfuerzos(almacen::Insercion& tabla, const DatosGenerales& g, const ResultadosLosa& r,
                       std::size_t i) {
    const EsfuerzosTramo permanente = En(r.ResultadoTramo[CasoPermanente], i);
    const EsfuerzosTramo variable = En(r.ResultadoTramo[CasoVariable], i);
    tabla.Poner("MuA", Mayorar(g, permanente.MomentoA, variable.MomentoA));
    tabla.Poner("MuB", Mayorar(g, permanente.MomentoB, variable.MomentoB));
    tabla.Poner("VuA", Mayorar(g, permanente.CorteA, variable.CorteA));
    tabla.Poner("VuB", Mayorar(g, permanente.CorteB, variable.CorteB));
}

void EscribirDiseno(almacen::Insercion& tabla, const ResultadosLosa& r, std::size_t i) {
    const DisenoDeTramo tramo = En(r.DisenoTramo, i);
    const DisenoDeEje a = En(r.DisenoEje, i);
    const DisenoDeEje b = En(r.DisenoEje, i + 1);
    tabla.Poner("MT", tramo.MT);
    tabla.Poner("x", tramo.x);
    tabla.Poner("AS1", tramo.AS1);
    tabla.Poner("AS2", tramo.AS2);
    tabla.Poner("AS1A", a.AS1);
    tabla.Poner("AS2A", a.AS2);
    tabla.Poner("AS1B", b.AS1);
    tabla.Poner("AS2B", b.AS2);
    tabla.Poner("PtoA", a.PtoD);
    tabla.Poner("PtoB", b.PtoI);
    tabla.Poner("MczA", MacizadoVisible(a.MczD));
    tabla.Poner("Mczb", MacizadoVisible(b.MczI));
}

void EscribirTramo(almacen::Insercion& tabla, const Losa& losa, const DatosGenerales& generales,
                   const ResultadosLosa& r, std::size_t i) {
    const EjeLosa ejeA = En(losa.Ejes, i);
    const EjeLosa ejeB = En(losa.Ejes, i + 1);
    tabla.Poner("Nombre", losa.Nombre);
    tabla.Poner("Numero", Numero(i));
    tabla.Poner("EjeA", ejeA.Eje);
    tabla.Poner("EjeB", ejeB.Eje);
    tabla.Poner("TipoA", ejeA.Tipo);
    tabla.Poner("TipoB", ejeB.Tipo);
    EscribirEsfuerzos(tabla, generales, r, i);
    EscribirReacciones(tabla, ReaccionesA, {losa, generales, r}, i);
    EscribirReacciones(tabla, ReaccionesB, {losa, generales, r}, i + 1);
    EscribirDiseno(tabla, r, i);
    tabla.Poner("L", losa.Tramos[i].LT);
    tabla.Agregar();
}

}  // namespace

MontajeDeLosas::MontajeDeLosas(almacen::Conexion& temporal, const DatosGenerales& generales)
    : datos_(SinFilas(temporal, "LosaDatos"), "LosaDatos"),
      ejes_(SinFilas(temporal, "LosaEjes"), "LosaEjes"),
      tramos_(SinFilas(temporal, "LosaTramos"), "LosaTramos") {
    EscribirGenerales(temporal, generales);
}

void MontajeDeLosas::Agregar(const LosaCalculada& losa) {
    EscribirDatos(datos_, losa.Datos);
    const std::size_t tramos = losa.Datos.Tramos.size() - 1;
    if (tramos == 0) return;
    for (std::size_t i = 1; i <= tramos + 1; ++i) EscribirEje(ejes_, losa.Datos, losa.Resultados, i);
    for (std::size_t i = 1; i <= tramos; ++i)
        EscribirTramo(tramos_, losa.Datos, losa.Generales, losa.Resultados, i);
}

bool LLeneResultados(const montaje::EntornoReportes& entorno, const ProyectoParaReporte& origen,
                     const montaje::EstadoReportes& estado, const Avance& avance) {
    almacen::Recordset& lista = origen.Proyecto.RegistrosProyecto;
    const bool todas = estado.OpcionExportarLosas == 1;
    std::string nombre;
    {
        const auto posicion = almacen::PosicionGuardada(lista);
        lista.MoverA(origen.FilaSeleccionada);
        nombre = lista.Texto("Nombre");
    }
    almacen::Conexion temporal;
    montaje::AbrirTemporal(entorno, origen.Datos,
                           {TituloReporteLosas, nombre, estado.ExportarDesplazamientos}, temporal);
    if (!temporal.Abierta()) return false;
    almacen::Transaccion guardado(temporal);
    MontajeDeLosas montaje(temporal, origen.Generales);
    const auto losas = static_cast<std::size_t>(std::max(1, lista.NumeroRegistros()));
    RecorrerLosas(origen, todas, [&](const LosaDelProyecto& losa) {
        Avisar(avance, todas ? losa.Numero - 1 : 0, losas);
        montaje.Agregar({losa.Datos, losa.Generales, losa.Resultados});
    });
    return guardado.Confirmar();
}

}  // namespace trabex::losas::salida
