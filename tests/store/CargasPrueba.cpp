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

/// Without a name no row of the variable load is stored, and it counts: now, and after a save of items alone.
TEST_F(Cargas, SeGuardanRenumeradasYSumadasYSeBorranConSusFilas) {
    for (const Ambito ambito : Ambitos) {
        Lista(ambito).MoverA(2);
        AnalisisCarga analisis = Leido(ambito);
        const std::string nombre = analisis.Descripcion;
        const auto guardar = [&] {
            ASSERT_TRUE(GuardarAnalisis(En(ambito), Lista(ambito), ambito, analisis));
        };
        const auto filas = [&](const TablaDeFilas& tabla) { return Filas(ambito, tabla, analisis.ID); };
        analisis.Descripcion = "otro";
        analisis.Permanentes = {{" Losa ", 150}, {"", 0}, {"Friso", 100}};
        analisis.Variable = {" Viviendas ", 175};
        guardar();
        analisis.Permanentes.erase(analisis.Permanentes.begin() + 1);
        guardar();
        Recordset items = filas(TablasDe(ambito).Permanentes);
        ASSERT_EQ(items.NumeroRegistros(), 2);
        items.MoverAlUltimo();
        EXPECT_EQ(items.Entero16("Numero"), 2);
        Reabrir();
        BuscarRegistro(Lista(ambito), Criterio(PorID(analisis.ID)));
        analisis = Leido(ambito);
        EXPECT_EQ(analisis.Descripcion, nombre);
        EXPECT_EQ(analisis.Permanentes[0].Descripcion, "Losa");
        EXPECT_EQ(analisis.Variable.Descripcion, "Viviendas");
        EXPECT_EQ(std::tuple(analisis.CP, analisis.CV, analisis.Carga), std::tuple(250, 175, 425));
        EXPECT_DOUBLE_EQ(analisis.REL, 0.7);

        analisis.Variable = {"   ", 250};
        guardar();
        EXPECT_EQ(filas(TablasDe(ambito).Variables).NumeroRegistros(), 0);
        analisis = Leido(ambito);
        analisis.Permanentes.push_back({"Friso", 30});
        guardar();
        EXPECT_EQ(Lista(ambito).Doble("Carga"), 530);
        EXPECT_EQ(Lista(ambito).Entero32("CV"), 250);

        analisis.Variable.Descripcion = "Oficinas";
        guardar();
        EXPECT_TRUE(BorrarAnalisis(En(ambito), Lista(ambito), ambito));
        EXPECT_EQ(filas(TablasDe(ambito).Permanentes).NumeroRegistros(), 0);
        EXPECT_EQ(filas(TablasDe(ambito).Variables).NumeroRegistros(), 0);
        Lista(ambito).MoverAlPrimero();
        EXPECT_NE(Lista(ambito).Entero32("ID"), analisis.ID);
        EXPECT_GT(Leido(ambito).Permanentes.size(), 0U);
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

/// Its rows keep their numbers, gaps and all, and take the place of what stands under its own. One without a
/// variable row leaves none, its CV as stored.
TEST_F(Cargas, UnCapturadoEsUnaCopiaConSuNumero) {
    compartidos_.MoverA(3);
    const AnalisisCarga original = Leido(Ambito::Compartido);
    EXPECT_FALSE(YaCapturado(compartidos_, delProyecto_));
    proyecto_.Ejecutar("INSERT INTO AnalisisCargaCP VALUES (" + std::to_string(original.ID) +
                       ", 1, 'Ajena', 1)");
    compartida_.Ejecutar("UPDATE CargaPermanente SET Numero = 10 * Numero");
    ASSERT_TRUE(CapturarAnalisis(compartida_, compartidos_, proyecto_, delProyecto_));
    EXPECT_EQ(Filas(Ambito::Proyecto, AnalisisDelProyecto.Permanentes, original.ID).Entero16("Numero"), 10);
    AnalisisCarga copia = Leido(Ambito::Proyecto);
    EXPECT_EQ(std::tuple(copia.ID, copia.Descripcion, copia.Carga, copia.REL),
              std::tuple(original.ID, original.Descripcion, original.Carga, original.REL));
    EXPECT_EQ(copia.Permanentes.size(), original.Permanentes.size());
    EXPECT_EQ(copia.Variable.Peso, original.Variable.Peso);

    copia.Permanentes.clear();
    ASSERT_TRUE(GuardarAnalisis(proyecto_, delProyecto_, Ambito::Proyecto, copia));
    ASSERT_TRUE(CambiarDescripcion(delProyecto_, "OTRO NOMBRE"));
    EXPECT_TRUE(YaCapturado(compartidos_, delProyecto_));
    AnalisisCarga sinVariable = Leido(Ambito::Compartido);
    EXPECT_EQ(sinVariable.Permanentes.size(), original.Permanentes.size());
    sinVariable.Variable = {"", 90};
    ASSERT_TRUE(GuardarAnalisis(compartida_, compartidos_, Ambito::Compartido, sinVariable));
    ASSERT_TRUE(BorrarAnalisis(proyecto_, delProyecto_, Ambito::Proyecto));
    ASSERT_TRUE(CapturarAnalisis(compartida_, compartidos_, proyecto_, delProyecto_));
    EXPECT_EQ(Filas(Ambito::Proyecto, AnalisisDelProyecto.Variables, original.ID).NumeroRegistros(), 0);
    EXPECT_EQ(delProyecto_.Entero32("CV"), 90);
}

}  // namespace
}  // namespace trabex
