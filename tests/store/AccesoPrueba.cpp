#include <algorithm>
#include <limits>

#include <gtest/gtest.h>

#include "store/Comparacion.h"
#include "store/Filas.h"
#include "support/CarpetaTemporal.h"
#include "support/LosasDePrueba.h"
#include "support/ProyectoDePrueba.h"

namespace trabex {

using namespace almacen;
using namespace almacen::tablas;
using namespace losas;
namespace {

using prueba::LeerArchivo;

class Acceso : public testing::Test {
  protected:
    Acceso() : camino(carpeta / "Proyecto Año 1.los") {
        EXPECT_TRUE(CrearBaseDatos(camino, prueba::EsquemaDeProyecto()));
        EXPECT_TRUE(prueba::Abrir(proyecto, camino));
    }

    Recordset Abierto(std::string_view fuente) {
        Recordset registros;
        AbrirRecordset(proyecto.ConexionProyecto, registros, fuente);
        return registros;
    }
    int Filas(const std::string& fuente) { return Abierto(fuente).NumeroRegistros(); }
    void Crear(const std::string& nombre) {
        Losa losa = prueba::LosaContinua({4, 5}, 300, 200);
        losa.Nombre = nombre;
        ASSERT_TRUE(prueba::AgregarLosa(proyecto, losa)) << nombre;
    }

    prueba::CarpetaTemporal carpeta;
    std::filesystem::path camino;
    ProyectoAbierto proyecto;
};

TEST_F(Acceso, LosGeneralesVaciosSeSiembran) {
    DatosDelProyecto datos;
    DatosGenerales generales;
    generales.FC = 1;
    LeerDatosGenerales(proyecto.ConexionProyecto, "ING. NÚÑEZ", datos, generales);
    EXPECT_EQ(generales.FC, 250);
    EXPECT_EQ(generales.FiCorte, 0.75);
    EXPECT_EQ(datos.Calculista, "ING. NÚÑEZ");
    EXPECT_EQ(datos.Fecha, Hoy());
    LeerDatosGenerales(proyecto.ConexionProyecto, "OTRO", datos, generales);
    EXPECT_EQ(datos.Calculista, "ING. NÚÑEZ");
    EXPECT_EQ(Filas("Proyecto"), 1);
    EXPECT_EQ(Filas("LosaG"), 1);
    EXPECT_EQ(Abierto("LosaG").Entero16("FY"), 4200);
}

/// Each field has its column and comes back, as the lists of fields tell.
TEST_F(Acceso, LaLosaGuardadaEsLaLeida) {
    std::mt19937 azar(17);
    for (int vez = 0; vez < 10; ++vez) {
        Losa losa = prueba::LosaAlAzar(azar, true);
        losa.Nombre = "L-" + std::to_string(vez);
        losa.Loseta = vez == 0 ? 0 : 0.06;
        std::sort(losa.JuntasD.begin() + 1, losa.JuntasD.end(),
                  [](auto& a, auto& b) { return a.Junta < b.Junta; });
        ASSERT_TRUE(prueba::AgregarLosa(proyecto, losa));
        ASSERT_TRUE(GuardarLosa(proyecto, losa));  // a second save leaves no second rows
        Losa leida;
        LeerLosa(proyecto, leida);
        EXPECT_EQ(leida.Loseta, vez == 0 ? 0.05 : 0.06);
        const auto iguales = [](const auto& unos, const auto& otros, auto campo) {
            ASSERT_EQ(unos.size(), otros.size());
            for (std::size_t i = 1; i < unos.size(); ++i) EXPECT_EQ(unos[i].*campo, otros[i].*campo);
        };
        iguales(leida.Tramos, losa.Tramos, &Tramo::LT);
        iguales(leida.Ejes, losa.Ejes, &EjeLosa::Tipo);
        iguales(leida.JuntasD, losa.JuntasD, &JuntaD::Junta);
    }
}

/// Rows are read by their number, however they stand in the table, and stored without gaps or nulls; what no
/// calculation reads is not read back.
TEST_F(Acceso, LasFilasSeLeenPorSuNumeroYSeGuardanSinHuecos) {
    Losa losa = prueba::LosaContinua({4, 5, 6}, 300, 200);
    losa.Nombre = "L-1";
    losa.Ejes[1].Lizq = losa.Ejes[1].Lder = losa.Ejes[1].HV = 0.4;
    ASSERT_TRUE(prueba::AgregarLosa(proyecto, losa));
    EXPECT_EQ(Abierto("LosaEjes").Doble("HV"), 0.4);
    EXPECT_TRUE(proyecto.ConexionProyecto.Ejecutar(
        "UPDATE LosaTramos SET Numero = 90 - 10 * Numero, p1 = NULL, L1 = NULL"));
    LeerLosa(proyecto, losa);
    EXPECT_EQ(losa.Tramos[1].LT, 6);
    EXPECT_EQ(losa.Tramos[3].LT, 4);
    EXPECT_EQ(losa.Tramos[1].p1, 0);
    EXPECT_EQ(losa.Ejes[1].Lizq + losa.Ejes[1].Lder + losa.Ejes[1].HV, 0);
    losa.Tramos.resize(2);
    EXPECT_TRUE(GuardarLosa(proyecto, losa));
    const Recordset tramos = Abierto("LosaTramos");
    ASSERT_EQ(tramos.NumeroRegistros(), 1);
    EXPECT_EQ(tramos.Entero16("Numero"), 1);
    EXPECT_TRUE(std::holds_alternative<std::int32_t>(tramos.Leer("p1")));
    EXPECT_EQ(Filas("LosaEjes"), 2);
}

TEST_F(Acceso, ElRecordsetEsEstatico) {
    for (const char* nombre : {"C", "A", "B"}) Crear(nombre);
    Recordset& lista = proyecto.RegistrosProyecto;
    EXPECT_EQ(lista.Posicion(), 3);  // new rows stand at the end until it opens again
    EXPECT_EQ(lista.Texto("Nombre"), "B");
    EXPECT_TRUE(prueba::Abrir(proyecto, camino));
    EXPECT_EQ(lista.Texto("Nombre"), "A");
    Crear("0");
    EXPECT_EQ(lista.Posicion(), 4);
    lista.MoverA(2);
    EXPECT_TRUE(lista.Borrar());
    EXPECT_EQ(lista.Texto("Nombre"), "C");
    lista.MoverAlUltimo();
    EXPECT_TRUE(lista.Borrar());
    EXPECT_EQ(lista.Texto("Nombre"), "C");
    lista.MoverAlSiguiente();
    EXPECT_TRUE(lista.EOF_());
    EXPECT_FALSE(lista.Borrar());
    lista.MoverA(99);
    EXPECT_TRUE(lista.EOF_());
    EXPECT_EQ(Filas("LosaDatos"), 2);
}

TEST_F(Acceso, BuscarRegistroMiraEnLosDosSentidos) {
    for (const char* nombre : {"LOSA 1", "LOSA Ñ", "LOSÁ 2"}) Crear(nombre);
    Recordset& lista = proyecto.RegistrosProyecto;
    lista.MoverAlUltimo();
    BuscarRegistro(lista, Criterio(PorNombre("losa ñ")));
    EXPECT_TRUE(lista.Encontrado());
    EXPECT_EQ(lista.Texto("Nombre"), "LOSA Ñ");
    BuscarRegistro(lista, "Nombre='losa 2'");
    EXPECT_FALSE(lista.Encontrado());
    BuscarRegistro(lista, "Nombre='losá 2'");
    EXPECT_TRUE(lista.Encontrado());
    lista.Buscar("OpcionMaciza=0", 1, Direccion::Atras);
    EXPECT_EQ(lista.Posicion(), 2);
    Recordset vacia = Abierto("LosaG");
    BuscarRegistro(vacia, "FC=250");
    EXPECT_FALSE(vacia.Encontrado());
}

TEST_F(Acceso, LosNombresSeOrdenanComoEnEspanol) {
    for (const char* nombre : {"z", "Ñandú", "nube", "Ábaco", "abeja", "oro"}) Crear(nombre);
    prueba::Abrir(proyecto, camino);
    std::vector<std::string> nombres;
    for (int i = 1; i <= 6; ++i) {
        proyecto.RegistrosProyecto.MoverA(i);
        nombres.push_back(proyecto.RegistrosProyecto.Texto("Nombre"));
    }
    EXPECT_EQ(nombres, (std::vector<std::string>{"Ábaco", "abeja", "nube", "Ñandú", "oro", "z"}));
    const Comparador comparador;
    EXPECT_NE(comparador.Comparar("m²", "M2"), 0);
    EXPECT_EQ(comparador.Comparar("Ç-É", "ç-é"), 0);
    EXPECT_NE(comparador.Comparar("\xFF\xC3", "a"), 0);
}

TEST_F(Acceso, UnNombreConComillaSoloRompeSusSentencias) {
    Crear("L-1");
    for (const char* nombre :
         {"O'Brien", "' OR ''='", "x' --", "x'; DELETE FROM LosaTramos; --", "'", "''"}) {
        SCOPED_TRACE(nombre);
        Losa rota = prueba::LosaContinua({3}, 100);
        rota.Nombre = nombre;
        EXPECT_TRUE(
            prueba::AgregarLosa(proyecto, rota));  // its deletes fail, the next steps run all the same
        LeerLosa(proyecto, rota);
        EXPECT_EQ(rota.Tramos.size(), 1U);
        EXPECT_TRUE(RenombrarElemento(proyecto.ConexionProyecto, TablasDeLosa, nombre, "' WHERE Nombre='"));
        EXPECT_TRUE(RenombrarElemento(proyecto.ConexionProyecto, TablasDeLosa, "L-1", nombre));
        EXPECT_TRUE(BorrarElemento(proyecto.ConexionProyecto, TablasDeLosa, proyecto.RegistrosProyecto));
        EXPECT_EQ(Filas("SELECT * FROM LosaTramos WHERE Nombre='l-1'"), 2);
    }
    EXPECT_EQ(Filas("LosaDatos"), 1);
}

/// Another program has the same project: what it changed after it was read is neither overwritten nor
/// orphaned.
TEST_F(Acceso, LoQueOtroProgramaCambioNoSePisa) {
    struct Caso {
        const char* Sentencia;
        bool Cabe;  ///< the slab's save goes through all the same
    };
    for (const auto& [sentencia, cabe] :
         {Caso{"UPDATE LosaDatos SET Ho = 0.5 WHERE Nombre='L-1'", false},
          Caso{"UPDATE LosaTramos SET Wp = 7 WHERE Nombre='L-1'", false},
          Caso{"DELETE * FROM LosaEjes WHERE Nombre='L-1'", false},
          Caso{"UPDATE LosaDatos SET Nombre = 'OTRA' WHERE Nombre='L-1'", false},
          Caso{"DELETE * FROM LosaDatos WHERE Nombre='L-1'", false},
          Caso{"DELETE * FROM LosaDatos WHERE Nombre='L-2'", true},
          Caso{"UPDATE LosaTramos SET Wp = 7 WHERE Nombre='L-2'", true}}) {
        SCOPED_TRACE(sentencia);
        std::filesystem::remove(camino);
        CrearBaseDatos(camino, prueba::EsquemaDeProyecto());
        ASSERT_TRUE(prueba::Abrir(proyecto, camino));
        for (const char* nombre : {"L-1", "L-2"}) Crear(nombre);
        proyecto.RegistrosProyecto.MoverAlPrimero();
        Losa losa;
        LeerLosa(proyecto, losa);
        losa.Ho = 0.9;
        losa.Tramos.pop_back();
        ProyectoAbierto otro;
        ASSERT_TRUE(prueba::Abrir(otro, camino));
        ASSERT_TRUE(otro.ConexionProyecto.Ejecutar(sentencia));
        const std::string antes = LeerArchivo(camino);
        EXPECT_EQ(GuardarLosa(proyecto, losa), cabe);
        EXPECT_EQ(GuardarLosa(proyecto, losa), cabe);
        if (cabe) continue;
        EXPECT_EQ(proyecto.ConexionProyecto.Causa(), CodigoError::RegistroCambiado);
        EXPECT_EQ(LeerArchivo(camino), antes);
        EXPECT_EQ(proyecto.RegistrosProyecto.Doble("Ho"), 0.25);
    }
    DatosGenerales generales;
    DatosDelProyecto datos;
    LeerDatosGenerales(proyecto.ConexionProyecto, "YO", datos, generales);
    ProyectoAbierto otro;
    prueba::Abrir(otro, camino);
    otro.ConexionProyecto.Ejecutar("UPDATE LosaG SET FC = 300");
    EXPECT_FALSE(GuardarGeneralesLosa(proyecto.ConexionProyecto, generales));
    EXPECT_FALSE(RenombrarElemento(proyecto.ConexionProyecto, TablasDeLosa, "NO ESTÁ", "X"));
}

TEST_F(Acceso, UnaSentenciaPorLlamada) {
    Conexion& conexion = proyecto.ConexionProyecto;
    Crear("L-1");
    EXPECT_FALSE(conexion.Ejecutar("DELETE * FROM LosaEjes; DELETE * FROM LosaTramos"));
    EXPECT_FALSE(conexion.Ejecutar("DELETE * FROM LosaEjes -- todo"));
    EXPECT_FALSE(conexion.Ejecutar("DELETE * FROM NoExiste"));
    EXPECT_TRUE(conexion.Ejecutar("delete  * from LosaEjes WHERE Nombre='L-1' ;"));
    EXPECT_EQ(Filas("LosaEjes"), 0);
    EXPECT_FALSE(Abierto("DROP TABLE LosaTramos").Abierto());
    EXPECT_EQ(Filas("LosaTramos"), 2);
}

TEST_F(Acceso, LasColumnasGuardanSuTipo) {
    Crear("L-1");
    Recordset tramos = Abierto("LosaTramos");
    EXPECT_FALSE(tramos.Poner("Numero", 32768.0));
    EXPECT_FALSE(tramos.Poner("Wp", 3e9));
    EXPECT_FALSE(tramos.Poner("LT", std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(tramos.Poner("LT", "cuatro"));
    EXPECT_FALSE(tramos.Poner("Nombre", std::string(61, 'x')));
    EXPECT_FALSE(tramos.Poner("Otro", 1.0));
    EXPECT_TRUE(tramos.Poner("Wp", 2.5));
    EXPECT_TRUE(tramos.Poner("Nombre", Valor{std::string("L-1")}));
    EXPECT_TRUE(tramos.Actualizar());
    EXPECT_EQ(tramos.Entero32("Wp"), 2);
    // What another program stored against the types reads as null.
    EXPECT_TRUE(proyecto.ConexionProyecto.Ejecutar("UPDATE LosaTramos SET Wp = 'mucho', Numero = 70000"));
    tramos = Abierto("LosaTramos");
    EXPECT_EQ(tramos.Entero32("Wp"), 0);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(tramos.Leer("Numero")));

    Recordset datos = Abierto("Proyecto");
    datos.AgregarNuevo();
    using namespace std::chrono;
    EXPECT_FALSE(datos.Poner("Fecha", Fecha{2024y / February / 30d}));
    EXPECT_TRUE(datos.Poner("Fecha", Fecha{2024y / February / 29d}));
    EXPECT_TRUE(datos.Actualizar());
    EXPECT_EQ(Abierto("Proyecto").LeerFecha("Fecha"), (Fecha{2024y / February / 29d}));
}

TEST_F(Acceso, UnGuardadoEstropeadoDejaLaLosaQueHabia) {
    Crear("L-1");
    Losa losa;
    LeerLosa(proyecto, losa);
    losa.Ho = 0.9;
    losa.Ejes[2].Eje = std::string(500, 'x');  // refused by its column
    EXPECT_FALSE(GuardarLosa(proyecto, losa));
    EXPECT_EQ(proyecto.RegistrosProyecto.Doble("Ho"), 0.25);  // the open list stands as the file does
    LeerLosa(proyecto, losa);
    EXPECT_EQ(losa.Tramos.size(), 3U);
    EXPECT_EQ(losa.Ejes[2].Eje, "2");
}

TEST_F(Acceso, UnaConexionCerradaNoHaceNada) {
    Crear("L-1");
    proyecto.ConexionProyecto.Cerrar();
    Losa losa = prueba::LosaContinua({3}, 100);
    EXPECT_FALSE(GuardarLosa(proyecto, losa));
    EXPECT_FALSE(proyecto.RegistrosProyecto.Borrar());
    EXPECT_EQ(proyecto.RegistrosProyecto.Texto("Nombre"), "L-1");
    EXPECT_FALSE(Abierto("LosaDatos").Abierto());
    DatosDelProyecto datos;
    DatosGenerales generales;
    LeerDatosGenerales(proyecto.ConexionProyecto, "YO", datos, generales);
    EXPECT_EQ(generales.FY, 4200);
}

}  // namespace
}  // namespace trabex
