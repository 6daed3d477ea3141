// The windows of load analyses, answered by a script down to both files.

#include "support/CargasDePrueba.h"
#include "support/VistasDeCarga.h"

namespace trabex::prueba {
namespace {

class CargasGuiadas : public CargasDePrueba {
  protected:
    ListaAnalisis Lista(Ambito donde) { return {aplicacion, servicios, VarianteDe(donde), Azar()}; }
    VistaListaGuiada vista_;
};

class VentanasDeCarga : public CargasGuiadas, public testing::WithParamInterface<Ambito> {
  protected:
    VentanasDeCarga() { lista.Abrir(vista_); }
    ListaAnalisis lista = Lista(GetParam());
    VistaAnalisisGuiada edicion;
};

TEST_P(VentanasDeCarga, SeEditaUnAnalisisHastaElArchivo) {
    ASSERT_GT(vista_.Lineas.size(), 2U);
    std::int32_t id = 0;
    vista_.EnModificar = [&](AnalisisCargaModificar& o) {
        o.Abrir(edicion);
        id = edicion.Analisis.ID;
        EXPECT_EQ(edicion.Posicion, 2);
        EXPECT_FALSE(o.Modificado());
        caja.Respuestas.assign(edicion.Analisis.Permanentes.size() + 1, RespuestaSi);
        caja.Respuestas.front() = RespuestaAceptarONo;
        o.EliminarLinea(1);  // not sure
        EXPECT_FALSE(o.Modificado());
        EXPECT_EQ(caja.Dicho(), "¿Eliminar la Fila Seleccionada?|Eliminar Filas...");
        while (!edicion.Analisis.Permanentes.empty()) o.EliminarLinea(1);
        EXPECT_EQ(edicion.Item, 0);
        o.EliminarLinea(1);
        o.CrearLinea();
        o.CrearLinea();
        EXPECT_TRUE(o.CambiarItem(1, CampoDePeso::Descripcion, " Losa "));
        EXPECT_TRUE(o.CambiarItem(1, CampoDePeso::Peso, "150,5"));  // halves to even
        EXPECT_TRUE(o.CambiarItem(2, CampoDePeso::Peso, "99.6"));
        for (const char* malo : {"cien", "3000000000"})
            EXPECT_FALSE(o.CambiarItem(2, CampoDePeso::Peso, malo));
        EXPECT_FALSE(o.CambiarItem(3, CampoDePeso::Peso, "1"));
        EXPECT_EQ(edicion.Sumas.Permanente, 250);
        EXPECT_TRUE(o.CambiarVariable(CampoDePeso::Descripcion, "Viviendas"));
        EXPECT_TRUE(o.CambiarVariable(CampoDePeso::Peso, "175"));
        EXPECT_EQ(edicion.Sumas.Total, 425);
        EXPECT_TRUE(o.Salvar());
        EXPECT_FALSE(o.Modificado());
        EXPECT_TRUE(o.CambiarVariable(CampoDePeso::Descripcion, "Otro uso"));
        EXPECT_FALSE(o.Modificado());
        EXPECT_TRUE(o.Cerrar());  // a name alone asks nothing
    };
    lista.Seleccionar(2);
    lista.Modificar();
    EXPECT_EQ(vista_.Lineas[1].Carga, 425);
    const AnalisisCarga guardado = EnArchivo(GetParam(), id);
    ASSERT_EQ(guardado.Permanentes.size(), 2U);
    EXPECT_EQ(std::tuple(guardado.CP, guardado.REL, guardado.Permanentes[0].Descripcion,
                         guardado.Variable.Descripcion),
              std::tuple(250, 0.7, "Losa", "Viviendas"));
}

TEST_P(VentanasDeCarga, DesplazarPreguntaPorLosCambios) {
    vista_.EnModificar = [&](AnalisisCargaModificar& o) {
        o.Abrir(edicion);
        const AnalisisCarga primero = edicion.Analisis;
        o.CrearLinea();
        EXPECT_TRUE(o.Desplazar(2));  // no: the changes are dropped
        EXPECT_EQ(
            caja.Dicho(),
            "El Análisis de Carga a sido Modificado...\n¿Desea Salvar los Cambios?|Análisis de Carga...");
        EXPECT_NE(edicion.Analisis.ID, primero.ID);
        EXPECT_FALSE(o.Modificado());
        const std::size_t preguntas = caja.Mensajes.size();
        EXPECT_TRUE(o.Desplazar(1));
        EXPECT_EQ(caja.Mensajes.size(), preguntas);
        EXPECT_EQ(edicion.Analisis.Permanentes.size(), primero.Permanentes.size());
        EXPECT_FALSE(o.Desplazar(0) || o.Desplazar(99));

        o.CambiarVariable(CampoDePeso::Peso, "1000");
        caja.Respuestas = {RespuestaSi};
        EXPECT_TRUE(o.Desplazar(2));
        EXPECT_EQ(EnArchivo(GetParam(), primero.ID).CV, 1000);

        // What its column refuses keeps the window where it is, with the changes.
        o.CambiarItem(1, CampoDePeso::Descripcion, std::string(200, 'x'));
        caja.Respuestas = {RespuestaSi, RespuestaAceptarONo, RespuestaSi};
        EXPECT_FALSE(o.Desplazar(1));
        EXPECT_EQ(UltimoTexto().find("Error Número: 3163"), 0U);
        EXPECT_FALSE(o.Cerrar());
        EXPECT_TRUE(o.Modificado());
    };
    lista.Modificar();
    EXPECT_EQ(vista_.Marcada, 2);
}

/// The creation goes on only for a description that stands already.
TEST_P(VentanasDeCarga, ElSentidoDeLaCreacion) {
    const std::size_t habia = vista_.Lineas.size();
    const std::string conocido = vista_.Lineas[1].Descripcion;
    lista.Seleccionar(2);
    vista_.EnNuevo = [&](NuevoAnalisisCarga& o) {
        VistaCreacionGuiada nueva;
        EXPECT_FALSE(o.Aceptar("   ", nueva));
        EXPECT_EQ(nueva.Rechazados, std::vector{CampoDePeso::Descripcion});
        EXPECT_TRUE(caja.Mensajes.empty());
        EXPECT_FALSE(o.Aceptar("UNO NUNCA VISTO", nueva));
        EXPECT_EQ(caja.Dicho(),
                  (GetParam() == Ambito::Proyecto ? "Este Registro ya existe en la Base de Datos..."
                                                  : "¡Este Registro ya existe en la Base de Datos!") +
                      std::string("|Crear Carga Permanente..."));
    };
    lista.Crear();
    EXPECT_EQ(lista.Fila(), 2);
    EXPECT_EQ(vista_.Lineas.size(), habia);

    vista_.EnNuevo = [&](NuevoAnalisisCarga& o) {
        VistaCreacionGuiada nueva;
        EXPECT_TRUE(o.Aceptar(" " + conocido + " ", nueva));
    };
    lista.Crear();
    ASSERT_EQ(vista_.Lineas.size(), habia + 1);
    EXPECT_EQ(vista_.Lineas[static_cast<std::size_t>(vista_.Marcada) - 1].Descripcion, conocido);
    EXPECT_EQ(vista_.Lineas[static_cast<std::size_t>(vista_.Marcada) - 1].Carga, 0);
    const std::int32_t numero = EnArchivo(GetParam(), TablasDe(GetParam()).Generales).NumeroRegistros();
    EXPECT_EQ(numero, static_cast<int>(habia) + 1);
}

TEST_P(VentanasDeCarga, LasCeldasYElBorradoVanALaMismaPosicion) {
    lista.Seleccionar(2);
    const std::int32_t id = EnArchivo(GetParam(), TablasDe(GetParam()).Lista).Entero32("ID");
    const AnalisisCarga antes = EnArchivo(GetParam(), id);
    EXPECT_TRUE(lista.ModificarCelda(1, CampoDeLinea::Descripcion, " ZZZ "));
    EXPECT_TRUE(lista.ModificarCelda(1, CampoDeLinea::Carga, "123,5"));
    EXPECT_FALSE(lista.ModificarCelda(1, CampoDeLinea::Carga, "mucho"));
    EXPECT_TRUE(caja.Mensajes.empty());
    EXPECT_FALSE(lista.ModificarCelda(1, CampoDeLinea::Descripcion, std::string(200, 'x')));
    EXPECT_EQ(caja.Mensajes.size(), 1U);
    EXPECT_FALSE(lista.ModificarCelda(99, CampoDeLinea::Descripcion, "x"));
    const AnalisisCarga despues = EnArchivo(GetParam(), id);
    EXPECT_EQ(std::tuple(despues.Descripcion, despues.Carga, despues.CP, despues.CV, despues.REL),
              std::tuple("ZZZ", 123.5, antes.CP, antes.CV, antes.REL));

    lista.Seleccionar(1);
    const std::size_t habia = vista_.Lineas.size();
    lista.Eliminar();
    EXPECT_EQ(caja.Dicho(),
              "El Análisis de Carga Seleccionado será Eliminado...\n¿Esta Usted Seguro?|Eliminar Análisis de "
              "Carga...");
    EXPECT_EQ(vista_.Lineas.size(), habia);
    caja.Respuestas.assign(habia, RespuestaSi);
    lista.Eliminar();
    EXPECT_EQ(vista_.Lineas.size(), habia - 1);
    for (std::size_t n = 1; n < habia; ++n) lista.Eliminar();
    EXPECT_EQ(vista_.Marcada, 0);
    const std::size_t mensajes = caja.Mensajes.size();
    vista_.EnModificar = [](AnalisisCargaModificar&) { FAIL(); };
    lista.Eliminar();
    lista.Modificar();
    lista.Capturar();
    EXPECT_EQ(caja.Mensajes.size(), mensajes);
}

TEST_P(VentanasDeCarga, LosPesosSeCapturanYSeMantienen) {
    VistaPesosGuiada pesos;
    vista_.EnModificar = [&](AnalisisCargaModificar& o) {
        o.Abrir(edicion);
        edicion.EnPesos = [&](AnalisisCargaBDCP& b) {
            b.Abrir(pesos);
            ASSERT_GE(pesos.Lineas.size(), 60U);
            EXPECT_STREQ(b.Variante().Titulo, "BASE DE DATOS DE CARGAS PERMANENTES");
            b.Capturar(3);
            EXPECT_EQ(caja.Dicho(),
                      "¡La Carga Seleccionada fue copiada con Exito!|Capturar Carga Permanente...");
            EXPECT_EQ(edicion.Analisis.Permanentes.back().Peso, pesos.Lineas[2].Peso);
            b.Capturar(0);
            b.Capturar(9999);
            b.Cerrar();
        };
        const std::size_t items = edicion.Analisis.Permanentes.size();
        const double suma = edicion.Sumas.Permanente;
        o.BuscarPesos(PesosPermanentes);
        EXPECT_EQ(edicion.Analisis.Permanentes.size(), items + 1);
        EXPECT_EQ(edicion.Sumas.Permanente, suma + pesos.Lineas[2].Peso);
        EXPECT_TRUE(o.Modificado());

        edicion.EnPesos = [&](AnalisisCargaBDCP& b) {
            b.Abrir(pesos);
            b.Capturar(1);
            b.Capturar(5);  // takes the place of the first
            b.VerNorma();
            EXPECT_EQ(UltimoTexto().find("Error Número: 53"), 0U);  // not installed
            b.Cerrar();
        };
        o.BuscarPesos(PesosVariables);
        EXPECT_EQ(edicion.Analisis.Variable.Descripcion, pesos.Lineas[4].Descripcion);
        EXPECT_EQ(edicion.Sumas.Total, edicion.Sumas.Permanente + pesos.Lineas[4].Peso);

        std::filesystem::create_directories(carpetas.CaminoPrograma / "Normas");
        const auto norma = carpetas.CaminoPrograma / "Normas" / "Acciones Minimas Articulado 2002-1988.pdf";
        EscribirArchivo(norma, "%PDF");
        o.VerNorma();
        EXPECT_EQ(plataforma.Abiertos, std::vector{norma});
    };
    lista.Modificar();
}

TEST_P(VentanasDeCarga, ElReporteMontaElSeleccionadoOTodos) {
    std::filesystem::create_directories(carpetas.CaminoUsuario / "Trabajo");
    std::filesystem::create_directories(carpetas.CaminoPrograma / "Imagen");
    CrearBaseDatos(carpetas.CaminoPrograma / "Imagen" / "Temporal.tbx",
                   LeerArchivo(Install() + "/Imagen/Temporal.sql"));
    lista.Seleccionar(2);
    lista.Exportar();  // cancelled
    EXPECT_TRUE(vista_.Reportes.empty());
    Conexion temporal;
    const auto montadas = [&](const std::string& fuente) {
        AbrirConexion(temporal, carpetas.CaminoUsuario / "Trabajo" / "Temporal.mdb");
        Recordset registros;
        AbrirRecordset(temporal, registros, fuente);
        return registros;
    };
    EnArchivo(GetParam(), "AnalisisCargaG");  // another connection
    otra_.Ejecutar(std::string("UPDATE ") + TablasDe(GetParam()).Permanentes.Nombre +
                   " SET Numero = 10 * Numero");
    vista_.Todos = false;
    lista.Exportar();
    EXPECT_EQ(vista_.Reportes, std::vector{VarianteDe(GetParam()).ReporteActual});
    Recordset generales = montadas("AnalisisCargaG");
    ASSERT_EQ(generales.NumeroRegistros(), 1);
    EXPECT_EQ(generales.Texto("Descripcion"), vista_.Lineas[1].Descripcion);
    const AnalisisCarga guardado = EnArchivo(GetParam(), generales.Entero32("ID"));
    Recordset items = montadas("SELECT * FROM AnalisisCargaCP ORDER BY Numero");
    ASSERT_EQ(items.NumeroRegistros(), static_cast<int>(guardado.Permanentes.size()));
    EXPECT_EQ(items.Entero16("Numero"), 10);  // as it is stored
    EXPECT_EQ(montadas("AnalisisCargaCV").Entero32("Peso"), guardado.CV);
    EXPECT_EQ(montadas("Generales").Texto("Titulo"), "ANALISIS DE CARGA EN LOSAS");

    vista_.Todos = true;
    lista.Exportar();
    EXPECT_EQ(montadas("AnalisisCargaG").NumeroRegistros(), static_cast<int>(vista_.Lineas.size()));
    EXPECT_EQ(lista.Fila(), 2);
}

class ListasDePesos : public CargasGuiadas {};

TEST_F(ListasDePesos, SeCreanCambianYBorran) {
    struct Ninguno : ReceptorDePesos {
        void RecibirPermanente(const PesoUnitario&) override {}
        void RecibirVariable(const PesoUnitario&) override {}
        void AlCerrarPesos() override {}
    } receptor;
    for (const VariantePesos* variante : {&PesosPermanentes, &PesosVariables}) {
        const std::string clase = variante->EsVariable ? "Variable" : "Permanente", tabla = "BD" + clase;
        Conexion compartida;
        AbrirConexion(compartida, Compartido());
        VistaPesosGuiada vista;
        AnalisisCargaBDCP base(compartida, *variante, receptor, servicios);
        base.Abrir(vista);
        const std::size_t habia = vista.Lineas.size();
        const std::string conocida = vista.Lineas[6].Descripcion;
        vista.EnNueva = [&](AnalisisCargaNewCP& o) {
            VistaCreacionGuiada nueva;
            caja.Mensajes.clear();
            EXPECT_FALSE(o.Aceptar(" ", "10", nueva) || o.Aceptar(conocida, "0", nueva) ||
                         o.Aceptar(conocida, "0,4", nueva) || o.Aceptar(conocida, "x", nueva));
            EXPECT_EQ(nueva.Rechazados, (std::vector{CampoDePeso::Descripcion, CampoDePeso::Peso,
                                                     CampoDePeso::Peso, CampoDePeso::Peso}));
            EXPECT_TRUE(caja.Mensajes.empty());
            EXPECT_FALSE(o.Aceptar("NUNCA VISTA", "10", nueva));
            EXPECT_EQ(caja.Dicho(),
                      "Este Registro ya existe en la Base de Datos...|Crear Carga Permanente...");
            EXPECT_TRUE(o.Aceptar(conocida, "12,4", nueva));
            EXPECT_EQ(UltimoTexto(), "¡La Carga " + clase + " fue creada con Exito!");
        };
        base.Crear();
        ASSERT_EQ(vista.Lineas.size(), habia + 1);
        EXPECT_EQ(vista.Lineas[7].Descripcion, conocida);  // in its order

        EXPECT_TRUE(base.ModificarCelda(1, CampoDePeso::Descripcion, "ZZZ"));
        EXPECT_TRUE(base.ModificarCelda(1, CampoDePeso::Peso, "77"));
        EXPECT_FALSE(base.ModificarCelda(1, CampoDePeso::Peso, "x"));
        const auto cambiadas = [&] {
            return EnArchivo(Ambito::Compartido, "SELECT * FROM " + tabla + " WHERE Descripcion='ZZZ'");
        };
        ASSERT_EQ(cambiadas().NumeroRegistros(), 1);
        EXPECT_EQ(cambiadas().Entero32("Peso"), 77);

        base.Eliminar(1);
        EXPECT_EQ(caja.Dicho(),
                  "Eliminar esta Carga " + clase + "...       \n¿Esta Usted Seguro?|Eliminar Cargas...");
        caja.Respuestas = {RespuestaSi};
        base.Eliminar(1);
        EXPECT_EQ(vista.Lineas.size(), habia);
        EXPECT_EQ(cambiadas().NumeroRegistros(), 0);
    }
}

class Captura : public CargasGuiadas {};

TEST_F(Captura, UnaVezYSinTocarElCompartido) {
    ListaAnalisis lista = Lista(Ambito::Proyecto);
    lista.Abrir(vista_);
    EXPECT_FALSE(lista.PuedeCapturar());
    const std::size_t habia = vista_.Lineas.size();
    VistaListaGuiada otra;
    vista_.EnCompartidos = [&](ListaAnalisis& compartidos) {
        compartidos.Abrir(otra);
        ASSERT_TRUE(compartidos.PuedeCapturar());
        compartidos.Seleccionar(3);
        compartidos.Capturar();  // not sure
        EXPECT_EQ(UltimoTexto(), "¿Capturar el Análisis de Carga Seleccionado?");
        EXPECT_EQ(vista_.Lineas.size(), habia);
        caja.Respuestas = {RespuestaSi};
        compartidos.Capturar();
        ASSERT_EQ(vista_.Lineas.size(), habia + 1);
        EXPECT_EQ(vista_.Lineas.back().Descripcion, otra.Lineas[2].Descripcion);
        EXPECT_EQ(vista_.Lineas.back().Carga, otra.Lineas[2].Carga);
        EXPECT_TRUE(lista.ModificarCelda(lista.Fila(), CampoDeLinea::Descripcion, "OTRO NOMBRE"));
        caja.Respuestas = {RespuestaSi, RespuestaAceptarONo};
        compartidos.Capturar();
        EXPECT_EQ(caja.Dicho(), "¡El Análisis de Carga ya existe en el Proyecto!|Análisis de Carga...");
        EXPECT_EQ(otra.Enfoques, 1);
        lista.Seleccionar(1);
        caja.Respuestas = {RespuestaSi, RespuestaAceptarONo};
        compartidos.Capturar();
        EXPECT_EQ(lista.Fila(), 1);  // the search leaves the project's selection
        EXPECT_EQ(EnArchivo(Ambito::Proyecto, "AnalisisCargaG").NumeroRegistros(),
                  static_cast<int>(habia) + 1);
    };
    lista.VerCompartidos();
    EXPECT_TRUE(lista.ModificarCelda(1, CampoDeLinea::Carga, "1"));  // its own connections still stand
}

/// A shared database that is missing says so, and is not made by what comes after.
TEST_F(Captura, LoQueNoSePuedeLeerLoDice) {
    ListaAnalisis lista = Lista(Ambito::Compartido);
    std::filesystem::remove(Compartido());
    lista.Abrir(vista_);
    EXPECT_TRUE(vista_.Lineas.empty());
    EXPECT_EQ(vista_.Estado.find("No se pudo leer: "), 0U);
    vista_.EnNuevo = [](NuevoAnalisisCarga& o) {
        VistaCreacionGuiada nueva;
        EXPECT_FALSE(o.Aceptar("X", nueva));
    };
    lista.Crear();
    lista.Modificar();
    EXPECT_FALSE(std::filesystem::exists(Compartido()));
}

/// Two running programs over one shared database: each sees the other's weights; a save that meets the
/// other's loses nothing, and goes through once that has ended.
TEST_F(Captura, DosProgramasCompartenLosPesos) {
    ListaAnalisis lista = Lista(Ambito::Compartido);
    lista.Abrir(vista_);
    programa::Aplicacion otroPrograma;
    ListaAnalisis otraLista(otroPrograma, servicios, AnalisisCompartido, Azar());
    VistaListaGuiada otraVista;
    otraLista.Abrir(otraVista);
    VistaAnalisisGuiada edicion;
    VistaPesosGuiada pesos;
    edicion.EnPesos = [&](AnalisisCargaBDCP& b) {
        b.Abrir(pesos);
        b.Cerrar();
    };
    VistaAnalisisGuiada otraEdicion;
    otraEdicion.EnPesos = [&](AnalisisCargaBDCP& b) {
        b.Abrir(pesos);
        EXPECT_TRUE(b.ModificarCelda(2, CampoDePeso::Peso, "4321"));
        b.Cerrar();
    };
    vista_.EnModificar = [&](AnalisisCargaModificar& o) {
        o.Abrir(edicion);
        otraVista.EnModificar = [&](AnalisisCargaModificar& otra) {
            otra.Abrir(otraEdicion);
            otra.BuscarPesos(PesosVariables);
        };
        otraLista.Modificar();
        o.BuscarPesos(PesosVariables);
        EXPECT_EQ(pesos.Lineas[1].Peso, 4321);

        o.CambiarVariable(CampoDePeso::Peso, "999");
        EnArchivo(Ambito::Compartido, "Generales");
        {
            const Transaccion ajena(otra_);
            EXPECT_FALSE(o.Salvar());
            EXPECT_EQ(UltimoTexto().find("Error Número: "), 0U);
            EXPECT_TRUE(o.Modificado());
        }
        EXPECT_TRUE(o.Salvar());
        EXPECT_EQ(EnArchivo(Ambito::Compartido, edicion.Analisis.ID).CV, 999);
    };
    lista.Modificar();
}

INSTANTIATE_TEST_SUITE_P(, VentanasDeCarga, testing::Values(Ambito::Proyecto, Ambito::Compartido));

}  // namespace
}  // namespace trabex::prueba
