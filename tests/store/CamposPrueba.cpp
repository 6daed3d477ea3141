// Every record's list of fields against the schema that the program delivers, and through a file and back.

#include <set>

#include <gtest/gtest.h>

#include "store/Filas.h"
#include "store/proyecto/CamposProyecto.h"
#include "store/tablas/CamposCargas.h"
#include "store/tablas/CamposEscalera.h"
#include "store/tablas/CamposLosa.h"
#include "store/tablas/CamposMarcus.h"
#include "store/tablas/TablasEscalera.h"
#include "store/tablas/TablasMarcus.h"
#include "support/CarpetaTemporal.h"
#include "support/ProyectoDePrueba.h"

namespace trabex {

using namespace almacen;
using namespace almacen::tablas;
namespace {

/// A value of each type that no other field of its record has.
template <class Tipo>
void Distinto(Tipo& valor, int n) {
    using namespace std::chrono;
    if constexpr (std::is_same_v<Tipo, std::string>)
        valor = "Ñ " + std::to_string(n);
    else if constexpr (std::is_same_v<Tipo, Fecha>)
        valor = 2024y / February / day(static_cast<unsigned>(n));
    else if constexpr (std::is_integral_v<Tipo>)
        valor = static_cast<Tipo>(100 + n);
    else
        valor = 0.1 + n;
}

class CamposDeRegistros : public testing::Test {
  protected:
    CamposDeRegistros() {
        CrearBaseDatos(carpeta_ / "p.los", prueba::EsquemaDeProyecto());
        AbrirConexion(conexion_, carpeta_ / "p.los");
    }

    Recordset Tabla(const char* nombre) {
        Recordset registros;
        AbrirRecordset(conexion_, registros, nombre);
        return registros;
    }

    /// `ajenas`: the columns of the table that belong to its key and to the row's number.
    template <class Registro, class Campos>
    void Probar(const char* tabla, const Campos& campos, std::set<std::string> ajenas = {}) {
        SCOPED_TRACE(tabla);
        Registro escrito{};
        Registro leido{};
        int n = 0;
        std::set<std::string> nombres = std::move(ajenas);
        const auto llenar = [&](const auto& campo) {
            Distinto(escrito.*(campo.Dato), ++n);
            EXPECT_TRUE(nombres.insert(campo.Nombre).second) << campo.Nombre;
        };
        std::apply([&](const auto&... campo) { (llenar(campo), ...); }, campos);

        Recordset registros = Tabla(tabla);
        std::set<std::string> columnas;
        for (const Columna& columna : registros.Columnas()) columnas.insert(columna.Nombre);
        EXPECT_EQ(nombres, columnas);
        registros.AgregarNuevo();
        PonerCampos(registros, escrito, campos);
        ASSERT_TRUE(registros.Actualizar());

        registros = Tabla(tabla);
        LeerCampos(registros, leido, campos);
        const auto comparar = [&](const auto& campo) {
            const bool vuelve = leido.*(campo.Dato) == escrito.*(campo.Dato);
            EXPECT_EQ(vuelve, campo.SeLee) << campo.Nombre;
        };
        std::apply([&](const auto&... campo) { (comparar(campo), ...); }, campos);
    }

    prueba::CarpetaTemporal carpeta_;
    Conexion conexion_;
};

TEST_F(CamposDeRegistros, CadaListaEsSuTablaYVuelveDelArchivo) {
    Probar<DatosDelProyecto>("Proyecto", proyecto::CamposProyecto);
    Probar<DatosGenerales>("LosaG", CamposGeneralesLosa);
    Probar<losas::Losa>("LosaDatos", CamposSeccion, {"Nombre"});
    Probar<losas::Tramo>("LosaTramos", CamposTramo, {"Nombre", "Numero"});
    Probar<losas::EjeLosa>("LosaEjes", CamposEje, {"Nombre", "Numero"});
    Probar<losas::JuntaD>("LosaJuntasD", CamposJuntaD, {"Nombre"});
    Probar<DatosGenerales>("EscaleraTG", CamposGeneralesEscalera);
    Probar<DatosGenerales>("EscaleraHG", CamposGeneralesEscalera);
    Probar<escaleras::DatosEscaleraT>("EscaleraTDatos", CamposListaT);
    Probar<escaleras::DatosEscaleraT>("EscaleraT", CamposEscaleraT, {"Nombre"});
    Probar<helices::DatosEscaleraH>("EscaleraHDatos", CamposListaH);
    Probar<helices::DatosEscaleraH>("EscaleraH", CamposEscaleraH, {"Nombre"});
    Probar<marcus::NivelMarcus>("MarcusDatos", CamposNivel);
    Probar<marcus::PanoMarcus>("Marcus", CamposPano, {"Nombre", "Numero"});
    Probar<cargas::AnalisisCarga>("AnalisisCargaG", CamposAnalisis);
    Probar<cargas::PesoUnitario>("AnalisisCargaCP", CamposPeso, {"ID", "Numero"});
    Probar<cargas::PesoUnitario>("AnalisisCargaCV", CamposPeso, {"ID"});
}

class Elementos : public CamposDeRegistros, public testing::WithParamInterface<TablasDeElemento> {
  protected:
    int Filas(const char* tabla, const std::string& nombre) {
        Recordset registros;
        AbrirFilas(conexion_, registros, {tabla}, PorNombre(nombre));
        return registros.NumeroRegistros();
    }
    void Agregar(const char* tabla, const std::string& nombre) {
        Recordset registros = Tabla(tabla);
        registros.AgregarNuevo();
        registros.Poner("Nombre", nombre);
        registros.Actualizar();
    }
};

TEST_P(Elementos, SeRenombranYBorranEnTodasSusTablas) {
    std::vector<const char*> tablas(GetParam().Hijas.begin(), GetParam().Hijas.end());
    tablas.push_back(GetParam().Lista);
    for (const char* tabla : tablas) {
        for (const char* nombre : {"A", "B"}) Agregar(tabla, nombre);
    }
    EXPECT_TRUE(RenombrarElemento(conexion_, GetParam(), "a", "Ñ"));
    for (const char* tabla : tablas) {
        EXPECT_EQ(Filas(tabla, "A"), 0) << tabla;
        EXPECT_EQ(Filas(tabla, "Ñ"), 1) << tabla;
    }
    Recordset lista = Tabla(GetParam().Lista);
    BuscarRegistro(lista, "Nombre='Ñ'");
    EXPECT_TRUE(BorrarElemento(conexion_, GetParam(), lista));
    for (const char* tabla : tablas) {
        EXPECT_EQ(Filas(tabla, "Ñ"), 0) << tabla;
        EXPECT_EQ(Filas(tabla, "B"), 1) << tabla;
    }
    lista.MoverAlSiguiente();
    EXPECT_FALSE(BorrarElemento(conexion_, GetParam(), lista));  // past its records
    EXPECT_EQ(Filas(tablas.front(), "B"), 1);
}

INSTANTIATE_TEST_SUITE_P(, Elementos,
                         testing::Values(TablasDeLosa, TablasDeEscaleraT, TablasDeEscaleraH, TablasDeMarcus),
                         [](const auto& caso) { return std::string(caso.param.Lista); });

}  // namespace
}  // namespace trabex
