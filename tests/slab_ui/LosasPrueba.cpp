#include <gmock/gmock.h>

#include "slab/ui/LosaNueva.h"
#include "support/LosasGuiadas.h"

namespace trabex::prueba {

using namespace dibujo::losa;
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Losa Maciza() {
    Losa losa = LosaContinua({4}, 500, 200);
    losa.OpcionMaciza = true;
    return Nombrada(losa, "BALCON");
}

Losa Desplazada() {
    Losa losa = LosaContinua({5, 4, 3}, 300, 90);
    losa.Tramos[2].p1 = 450;
    losa.Tramos[2].L1 = 1.5;
    losa.JuntasD.push_back({2, 0.1, -0.5});
    losa.JuntasD.push_back({3, 0, -0.5});
    return Nombrada(losa, "Nivel 1");
}

struct Espacio : testing::Test {
    EspacioDePrueba e{{Desplazada(), Maciza()}};
    Losas& espacio = e.espacio;

    bool Nueva(const std::string& nombre) { return LosaNueva(espacio).Aceptar(nombre); }
    bool Copia(const std::string& nombre) { return LosaSalvarComo(espacio, e.caja).Aceptar(nombre); }
};

TEST_F(Espacio, AbreEnLaPrimeraYMuestraCadaSeleccionada) {
    EXPECT_EQ(e.pantalla.Titulo, "Trabex 2024   Proyecto:[OBRA.LOS]");
    EXPECT_THAT(e.pantalla.Filas, ElementsAre("BALCON", "Nivel 1"));
    EXPECT_EQ(e.pantalla.Encabezado, "LOSA MACIZA: BALCON");
    EXPECT_EQ(e.pantalla.Dibujos, 1);  // nothing is drawn while it loads
    espacio.ElegirHoja(VistaDiseno);
    const int restablecida = e.pantalla.Restablecida;
    espacio.Lista().Seleccionar(2);
    EXPECT_EQ(e.pantalla.Encabezado, "LOSA NERVADA: Nivel 1");
    EXPECT_EQ(e.pantalla.Marcada, 2);
    EXPECT_GT(e.pantalla.Restablecida, restablecida);
    EXPECT_EQ(espacio.Estado().Hoja.VistaActual, VistaDiseno);
    EXPECT_EQ(espacio.Estado().Resultados.DisenoTramo.size(), 4U);
    espacio.Lista().Seleccionar(3);
    EXPECT_EQ(espacio.Lista().Fila(), 2);
}

TEST(EspacioConFallas, AlAbrirSeMarcanLasLosasQueNoSeSostienen) {
    Losa suelta = Nombrada(LosaContinua({4, 4}, 300), "Suelta");
    suelta.Ejes[1].Tipo = suelta.Ejes[2].Tipo = SinApoyo;
    EspacioDePrueba e({Maciza(), suelta, Desplazada()});
    EXPECT_EQ(e.espacio.Lista().Fila(), 1);
    EXPECT_EQ(e.espacio.Estado().Abierta.Nombre, "BALCON");
    EXPECT_TRUE(e.pantalla.Fallan[3]);
    EXPECT_FALSE(e.pantalla.Fallan[1] || e.pantalla.Fallan[2] || HayFalla(e.pantalla.Puestos));
}

TEST_F(Espacio, CopiaTodoLoDeLaSeleccionada) {
    espacio.Lista().Seleccionar(2);
    e.pantalla.SalvarComo = [&] {
        EXPECT_FALSE(Copia("BALCÓN "));  // first the user says no
        e.caja.Respuestas = {RespuestaSi};
        return Copia("Nivel 2");
    };
    espacio.CrearDesdeSeleccionada();
    ASSERT_EQ(e.caja.Mensajes.size(), 2U);
    EXPECT_EQ(e.caja.Dicho(), "Crear la Losa: Nivel 2\n\nA Partir de la Losa: Nivel 1\n|Salvar Como...");
    EXPECT_THAT(e.pantalla.Filas, ElementsAre("BALCON", "Nivel 1", "Nivel 2"));
    const Losa copia = e.Guardada("Nivel 2");
    EXPECT_EQ(copia.Tramos.size(), 4U);
    EXPECT_EQ(copia.JuntasD.size(), 3U);
    EXPECT_EQ(e.Filas("LosaDatos", "BALCÓN"), 0);
}

TEST_F(Espacio, RenombraEnTodasLasTablas) {
    espacio.Lista().Seleccionar(2);
    e.pantalla.Renombrar = [&](Renombrar& ventana) {
        EXPECT_FALSE(ventana.Aceptar(" ") || ventana.Aceptar("balcon"));
        EXPECT_FALSE(ventana.Aceptar("NIVEL 1"));  // its own name by another case is taken too
        EXPECT_FALSE(ventana.Aceptar("Azotea"));   // not sure
        EXPECT_EQ(ventana.NombreNuevo(), "");
        e.caja.Respuestas = {RespuestaSi};
        EXPECT_TRUE(ventana.Aceptar(" Azotea "));
    };
    espacio.Lista().Renombrar();
    ASSERT_EQ(e.caja.Mensajes.size(), 4U);
    EXPECT_EQ(e.caja.Mensajes[0].Texto, "Nombre: balcon\nEste Nombre ya Existe en las Losas del Proyecto...");
    EXPECT_EQ(e.caja.Mensajes[3].Texto,
              "Renombrar la Losa: Nivel 1   Por el Nombre: Azotea\n¿Esta Usted Seguro?");
    EXPECT_THAT(e.pantalla.Filas, ElementsAre("Azotea", "BALCON"));
    EXPECT_EQ(e.pantalla.Marcada, 1);
    EXPECT_EQ(e.pantalla.Encabezado, "LOSA NERVADA: Azotea");
    EXPECT_EQ(e.Filas("LosaJuntasD", "Azotea"), 2);
}

TEST_F(Espacio, EliminaHastaQueNoQuedaNingunaYLosBotonesCallan) {
    espacio.Lista().Eliminar();
    EXPECT_EQ(e.pantalla.Filas.size(), 2U);
    EXPECT_EQ(e.caja.Dicho(),
              "Losa: BALCON\n¿Esta Usted Seguro de Eliminar la Losa del Proyecto?|Eliminar la Losa...");
    espacio.Lista().Seleccionar(2);
    e.caja.Respuestas = {RespuestaSi, RespuestaSi};
    espacio.Lista().Eliminar();
    EXPECT_THAT(e.pantalla.Filas, ElementsAre("BALCON"));
    EXPECT_EQ(e.pantalla.Encabezado, "LOSA MACIZA: BALCON");
    EXPECT_EQ(e.Filas("LosaJuntasD", "Nivel 1"), 0);
    espacio.Lista().Eliminar();
    EXPECT_THAT(e.pantalla.Filas, IsEmpty());
    EXPECT_EQ(e.pantalla.Encabezado, "");
    EXPECT_TRUE(espacio.Estado().Resultados.DisenoEje.empty());

    e.pantalla.Datos = [] { return ADD_FAILURE(), false; };
    espacio.Modificar();  // a double click on its empty sheet

    e.pantalla.Datos = nullptr;
    e.pantalla.LosaNueva = [&] { return Nueva("O'Higgins"); };  // nothing to find its name in
    espacio.CrearNueva();
    EXPECT_THAT(e.pantalla.Filas, ElementsAre("O'Higgins"));
}

TEST_F(Espacio, UnNombreConComillaRompeSoloSusSentencias) {
    espacio.Lista().Seleccionar(2);
    e.pantalla.LosaNueva = [&] { return Nueva("L'1"); };
    espacio.CrearNueva();
    e.pantalla.Renombrar = [&](Renombrar& ventana) {
        e.caja.Respuestas = {RespuestaSi};
        ventana.Aceptar("L'1");
    };
    espacio.Lista().Renombrar();
    EXPECT_THAT(e.pantalla.Filas, ElementsAre("BALCON", "Nivel 1"));
    EXPECT_EQ(e.Filas("LosaTramos", "Nivel 1"), 3);

    espacio.Lista().Cerrar();
    const auto otra = e.CrearProyecto("otra.los", {Nombrada(LosaContinua({3, 3}, 200), "L'1"), Maciza()});
    e.aplicacion.ArchivoProyecto = otra;
    espacio.Lista().Abrir();
    espacio.Lista().Seleccionar(2);
    EXPECT_EQ(espacio.Estado().Abierta.Nombre, "L'1");
    EXPECT_EQ(espacio.Estado().Abierta.Tramos.size(), 1U);  // its reading breaks
    e.caja.Respuestas = {RespuestaSi};
    espacio.Lista().Eliminar();
    EXPECT_THAT(e.pantalla.Filas, ElementsAre("BALCON"));
    EXPECT_EQ(e.Guardada("BALCON").Tramos.size(), 2U);
}

TEST_F(Espacio, UnProyectoQueNoSePuedeEscribirQuedaComoEstaba) {
    espacio.Lista().Seleccionar(2);
    e.aplicacion.Proyecto.ConexionProyecto.Ejecutar("PRAGMA query_only = 1");
    e.pantalla.LosaNueva = [&] { return Nueva("Azotea"); };
    e.pantalla.SalvarComo = [&] { return Copia("Azotea"); };
    e.pantalla.Renombrar = [&](Renombrar& ventana) { EXPECT_TRUE(ventana.Aceptar("Azotea")); };
    e.caja.Respuestas.assign(9, RespuestaSi);
    espacio.CrearNueva();
    espacio.CrearDesdeSeleccionada();
    espacio.Lista().Renombrar();
    espacio.Lista().Eliminar();
    EXPECT_EQ(std::count_if(e.caja.Mensajes.begin(), e.caja.Mensajes.end(),
                            [](const Mensaje& m) { return m.Texto.starts_with("Error Número: "); }),
              4);
    EXPECT_THAT(e.pantalla.Filas, ElementsAre("BALCON", "Nivel 1"));
    EXPECT_EQ(espacio.Lista().NumeroDeElementos(), 2);
    EXPECT_EQ(e.Filas("LosaTramos", "Nivel 1"), 3);
}

TEST_F(Espacio, LosDatosGeneralesRecalculanSoloSiCambiaron) {
    e.pantalla.General = [&] {
        e.aplicacion.Generales.FCP = 2;
        return false;
    };
    espacio.DatosGenerales();
    const double antes = espacio.Estado().Resultados.MaxCorte;
    e.pantalla.General = [] { return true; };
    espacio.DatosGenerales();
    EXPECT_GT(espacio.Estado().Resultados.MaxCorte, antes);
}

TEST_F(Espacio, AbreOtroProyectoYUnoQueNoSePuedeLeerCuentaComoVacio) {
    espacio.ElegirOpcionCarga(CargaPorCasos);
    espacio.Lista().AbrirProyecto();  // cancelled
    EXPECT_EQ(e.pantalla.Filas.size(), 2U);
    EXPECT_EQ(e.dialogos.Peticiones[0].Filtro, "Archivos de Proyectos (.los)|*.los");
    e.dialogos.Elegidos = {e.CrearProyecto("otra ñ.los", {Maciza()})};
    espacio.Lista().AbrirProyecto();
    EXPECT_EQ(e.pantalla.Titulo, "Trabex 2024   Proyecto:[OTRA Ñ.LOS]");
    EXPECT_EQ(e.aplicacion.NombreProyecto, "otra ñ.los");
    EXPECT_THAT(e.pantalla.Filas, ElementsAre("BALCON"));
    EXPECT_EQ(espacio.Estado().Hoja.OpcionCarga, CargaTotal);
    EXPECT_EQ(e.pantalla.OpcionCarga, CargaTotal);

    EscribirArchivo(e.carpeta / "roto.los", "no es un proyecto");
    e.dialogos.Elegidos = {e.carpeta / "roto.los"};
    espacio.Lista().AbrirProyecto();
    EXPECT_THAT(e.pantalla.Filas, IsEmpty());
    EXPECT_EQ(e.pantalla.Encabezado, "");
    EXPECT_THAT(e.pantalla.Pie, testing::HasSubstr("No se pudo leer"));
    EXPECT_EQ(espacio.Estado().Abierta.Tramos.size(), 1U);
}

}  // namespace
}  // namespace trabex::prueba
