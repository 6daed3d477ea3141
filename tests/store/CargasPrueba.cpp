// Load analyses in a project and in the shared database, as both are delivered.

#include <set>

#include <gtest/gtest.h>

#include "store/tablas/TablasCargas.h"
#include "support/CarpetaTemporal.h"
#include "support/Lugares.h"
#include "support/ProyectoDePrueba.h"

namespace trabex {

using namespace almacen;
using namespace almacen::tablas;
using namespace cargas;
namespace {

constexpr Ambito Ambitos[] = {Ambito::Proyecto, Ambito::Compartido};

class Cargas : public testing::Test {
  protected:
    Cargas() {
        const std::string imagen = prueba::Install() + "/Imagen/";
        CrearBaseDatos(carpeta_ / "p.los", prueba::EsquemaDeProyecto() +
                                               prueba::LeerArchivo(imagen + "Ejemplo Demostrativo.sql"));
        CrearBaseDatos(carpeta_ / "c.mdb", prueba::LeerArchivo(imagen + "AnalisisCarga.sql"));
        AbrirConexion(proyecto_, carpeta_ / "p.los");
        AbrirConexion(compartida_, carpeta_ / "c.mdb");
        Reabrir();
    }

    void Reabrir() {
        AbrirRecordset(proyecto_, delProyecto_, TablasDe(Ambito::Proyecto).Lista);
        AbrirRecordset(compartida_, compartidos_, TablasDe(Ambito::Compartido).Lista);
    }
    Conexion& En(Ambito ambito) { return ambito == Ambito::Proyecto ? proyecto_ : compartida_; }
    Recordset& Lista(Ambito ambito) { return ambito == Ambito::Proyecto ? delProyecto_ : compartidos_; }
    AnalisisCarga Leido(Ambito ambito) {
        AnalisisCarga analisis;
        LeerAnalisis(En(ambito), Lista(ambito), ambito, analisis);
        return analisis;
    }
    Recordset Filas(Ambito ambito, const TablaDeFilas& tabla, std::int32_t id) {
        Recordset filas;
        AbrirFilas(En(ambito), filas, tabla, PorID(id));
        return filas;
    }

    prueba::CarpetaTemporal carpeta_;
    Conexion proyecto_;
    Conexion compartida_;
    Recordset delProyecto_;
    Recordset compartidos_;
};

/// What a save of an untouched analysis would store is what is delivered.
TEST_F(Cargas, LoEntregadoEstaCompletoYSumado) {
    for (const Ambito ambito : Ambitos) {
        ASSERT_GT(Lista(ambito).NumeroRegistros(), 2);
        for (int fila = 1; fila <= Lista(ambito).NumeroRegistros(); ++fila) {
            Lista(ambito).MoverA(fila);
            const AnalisisCarga analisis = Leido(ambito);
            AnalisisCarga sumado = analisis;
            Totalice(sumado);
            EXPECT_GT(analisis.Permanentes.size(), 1U);
            EXPECT_FALSE(analisis.Variable.Descripcion.empty());
            EXPECT_EQ(analisis.Carga, sumado.Carga) << analisis.Descripcion;
            EXPECT_EQ(analisis.CV, sumado.CV);
            EXPECT_EQ(analisis.REL, sumado.REL);
        }
    }
    const std::pair<bool, int> listas[] = {{false, 60}, {true, 30}};
    for (const auto& [esVariable, minimo] : listas) {
        Recordset pesos;
        AbrirRecordset(compartida_, pesos, ConsultaDePesos(esVariable));
        EXPECT_GE(pesos.NumeroRegistros(), minimo);
        std::set<std::string> nombres;
        for (; !pesos.EOF_(); pesos.MoverAlSiguiente()) {
            EXPECT_TRUE(nombres.insert(pesos.Texto("Descripcion")).second) << pesos.Texto("Descripcion");
            EXPECT_GT(pesos.Entero32("Peso"), 0);
            EXPECT_LE(pesos.Entero32("Peso"), 1500);
        }
    }
}

TEST_F(Cargas, SeGuardanRenumeradasYSumadas) {
    for (const Ambito ambito : Ambitos) {
        Lista(ambito).MoverA(2);
        AnalisisCarga analisis = Leido(ambito);
        const std::string nombre = analisis.Descripcion;
        analisis.Descripcion = "otro";
        analisis.Permanentes = {{" Losa ", 150}, {"", 0}, {"Friso", 100}};
        analisis.Variable = {" Viviendas ", 175};
        ASSERT_TRUE(GuardarAnalisis(En(ambito), Lista(ambito), ambito, analisis));
        analisis.Permanentes.erase(analisis.Permanentes.begin() + 1);
        ASSERT_TRUE(GuardarAnalisis(En(ambito), Lista(ambito), ambito, analisis));

        Recordset items = Filas(ambito, TablasDe(ambito).Permanentes, analisis.ID);
        ASSERT_EQ(items.NumeroRegistros(), 2);
        items.MoverAlUltimo();
        EXPECT_EQ(items.Entero16("Numero"), 2);
        EXPECT_EQ(items.Texto("Descripcion"), "Friso");
        Reabrir();
        BuscarRegistro(Lista(ambito), Criterio(PorID(analisis.ID)));
        const AnalisisCarga leido = Leido(ambito);
        EXPECT_EQ(leido.Descripcion, nombre);
        EXPECT_EQ(leido.Permanentes[0].Descripcion, "Losa");
        EXPECT_EQ(leido.Variable.Descripcion, "Viviendas");
        EXPECT_EQ(leido.CP, 250);
        EXPECT_EQ(leido.CV, 175);
        EXPECT_EQ(leido.Carga, 425);
        EXPECT_DOUBLE_EQ(leido.REL, 0.7);
    }
}

/// Without a name no row of the variable load is stored, and it counts: now, and after a save of items alone.
TEST_F(Cargas, LaVariableSinNombreCuentaSinFila) {
    for (const Ambito ambito : Ambitos) {
        AnalisisCarga analisis = Leido(ambito);
        analisis.Permanentes = {{"Losa", 500}};
        analisis.Variable = {"   ", 250};
        ASSERT_TRUE(GuardarAnalisis(En(ambito), Lista(ambito), ambito, analisis));
        EXPECT_EQ(Filas(ambito, TablasDe(ambito).Variables, analisis.ID).NumeroRegistros(), 0);
        EXPECT_EQ(Lista(ambito).Doble("Carga"), 750);
        analisis = Leido(ambito);
        analisis.Permanentes.push_back({"Friso", 30});
        ASSERT_TRUE(GuardarAnalisis(En(ambito), Lista(ambito), ambito, analisis));
        EXPECT_EQ(Lista(ambito).Doble("Carga"), 780);
        EXPECT_EQ(Lista(ambito).Entero32("CV"), 250);
    }
}

TEST_F(Cargas, ElNumeroDeUnoNuevo) {
    // The first draw is found, and is kept; another is not found, and the second, not looked for, takes its
    // place.
    std::vector<double> sorteo{0.5, 0.25, (8893 - 1) / 9000.0};
    const FuenteAzar azar = [&] {
        const double valor = sorteo.back();
        sorteo.pop_back();
        return valor;
    };
    ASSERT_TRUE(AgregarAnalisis(delProyecto_, Ambito::Proyecto, " NUEVO ", azar));
    EXPECT_EQ(delProyecto_.Entero32("ID"), 8893);
    EXPECT_EQ(delProyecto_.Texto("Descripcion"), "NUEVO");
    ASSERT_TRUE(AgregarAnalisis(delProyecto_, Ambito::Proyecto, "OTRO", azar));
    EXPECT_EQ(delProyecto_.Entero32("ID"), 4501);

    const int antes = compartidos_.NumeroRegistros();
    ASSERT_TRUE(AgregarAnalisis(compartidos_, Ambito::Compartido, "NUEVO", [] { return 0.0; }));
    EXPECT_EQ(compartidos_.NumeroRegistros(), antes + 1);
    EXPECT_EQ(compartidos_.Texto("Descripcion"), "NUEVO");
    EXPECT_TRUE(Leido(Ambito::Compartido).Permanentes.empty());
}

TEST_F(Cargas, SeBorranConSusFilasYSinLasAjenas) {
    for (const Ambito ambito : Ambitos) {
        Lista(ambito).MoverAlPrimero();
        const std::int32_t primero = Lista(ambito).Entero32("ID");
        Lista(ambito).MoverA(2);
        const std::int32_t segundo = Lista(ambito).Entero32("ID");
        EXPECT_TRUE(BorrarAnalisis(En(ambito), Lista(ambito), ambito));
        EXPECT_EQ(Filas(ambito, TablasDe(ambito).Permanentes, segundo).NumeroRegistros(), 0);
        EXPECT_EQ(Filas(ambito, TablasDe(ambito).Variables, segundo).NumeroRegistros(), 0);
        EXPECT_GT(Filas(ambito, TablasDe(ambito).Permanentes, primero).NumeroRegistros(), 0);
        EXPECT_NE(Lista(ambito).Entero32("ID"), segundo);
    }
}

TEST_F(Cargas, UnCapturadoEsUnaCopiaConSuNumero) {
    compartidos_.MoverA(3);
    const AnalisisCarga original = Leido(Ambito::Compartido);
    EXPECT_FALSE(YaCapturado(compartidos_, delProyecto_));
    // Its rows keep their numbers, gaps and all, and take the place of what stands under its own.
    proyecto_.Ejecutar("INSERT INTO AnalisisCargaCP VALUES (" + std::to_string(original.ID) +
                       ", 1, 'Ajena', 1)");
    compartida_.Ejecutar("UPDATE CargaPermanente SET Numero = 10 * Numero");
    ASSERT_TRUE(CapturarAnalisis(compartida_, compartidos_, proyecto_, delProyecto_));
    EXPECT_TRUE(YaCapturado(compartidos_, delProyecto_));
    EXPECT_EQ(Filas(Ambito::Proyecto, AnalisisDelProyecto.Permanentes, original.ID).Entero16("Numero"), 10);
    AnalisisCarga copia = Leido(Ambito::Proyecto);
    EXPECT_EQ(copia.ID, original.ID);
    EXPECT_EQ(copia.Descripcion, original.Descripcion);
    EXPECT_EQ(copia.Carga, original.Carga);
    EXPECT_EQ(copia.REL, original.REL);
    EXPECT_EQ(copia.Permanentes.size(), original.Permanentes.size());
    EXPECT_EQ(copia.Variable.Peso, original.Variable.Peso);

    copia.Permanentes.clear();
    ASSERT_TRUE(GuardarAnalisis(proyecto_, delProyecto_, Ambito::Proyecto, copia));
    delProyecto_.Poner("Descripcion", "OTRO NOMBRE");
    delProyecto_.Actualizar();
    EXPECT_TRUE(YaCapturado(compartidos_, delProyecto_));
    EXPECT_EQ(Leido(Ambito::Compartido).Permanentes.size(), original.Permanentes.size());
}

/// One without a variable row leaves none, its CV as stored, and what stood under its number where it has no
/// rows.
TEST_F(Cargas, UnCapturadoSinVariableNoLaInventa) {
    AnalisisCarga analisis = Leido(Ambito::Compartido);
    analisis.Variable = {"", 90};
    ASSERT_TRUE(GuardarAnalisis(compartida_, compartidos_, Ambito::Compartido, analisis));
    ASSERT_TRUE(CapturarAnalisis(compartida_, compartidos_, proyecto_, delProyecto_));
    EXPECT_EQ(Filas(Ambito::Proyecto, AnalisisDelProyecto.Variables, analisis.ID).NumeroRegistros(), 0);
    EXPECT_EQ(delProyecto_.Entero32("CV"), 90);
}

}  // namespace
}  // namespace trabex
