// The window of Markus levels, answered by a script down to the file.

#include <cmath>
#include <optional>

#include <gtest/gtest.h>

#include "markus/ui/Marcus.h"
#include "support/BaseSqlite.h"
#include "support/EspacioGuiado.h"

namespace trabex::prueba {

using namespace marcus;
using namespace marcus::ui;
namespace {

class NivelesDeMarkus : public testing::Test, public PantallaMarcus {
  protected:
    NivelesDeMarkus()
        : Programa(
              "INSERT INTO MarcusDatos VALUES ('Techo', 4), ('Piso 1', 9);"
              "INSERT INTO Marcus VALUES ('Piso 1', 7, 1000, 1, 3, 6), ('Piso 1', 3, 900, 5, 4, 4),"
              " ('Piso 1', 9, 800, 10, 4, 4);"),
          Ventana(Programa.aplicacion, Programa.servicios, Espacio, *this) {
        Ventana.Lista().Abrir();
    }
    void MostrarNiveles() override {}
    void MostrarNivel() override {}
    void MostrarPanos() override {}
    void SoltarBloque() override { ++Sueltas; }
    std::string Pedir(const std::string& texto, const std::string& encabezado) override {
        Preguntas.push_back(texto + "|" + encabezado);
        return Respuesta;
    }
    bool MostrarMarcusNuevo() override {
        MarcusNuevo nuevo(Ventana.Lista());
        return nuevo.Aceptar(Respuesta);
    }
    void MostrarReporte() override { ++Reportes; }

    PanoMarcus Pano(std::size_t fila) { return Ventana.Panos().Panos()[fila - 1]; }
    std::vector<std::string> EnArchivo(std::string_view consulta) {
        return Programa.Columna("SELECT Nombre || ' ' || Numero || ' ' || Carga AS Fila FROM Marcus" +
                                    std::string(consulta) + " ORDER BY Nombre, Numero",
                                "Fila");
    }
    std::vector<std::string> Niveles() {
        std::vector<std::string> niveles;
        for (const FilaDeNivel& fila : Ventana.Niveles())
            niveles.push_back(fila.Nombre + " " + std::to_string(fila.Panos));
        return niveles;
    }
    ProgramaGuiado Programa;
    PantallaEspacioGuiada Espacio;
    std::vector<std::string> Preguntas;
    std::string Respuesta;
    int Sueltas = 0, Reportes = 0;
    Marcus Ventana;
};

using Textos = std::vector<std::string>;

TEST_F(NivelesDeMarkus, SeCalculaAlInstanteYSeSalvaNumeradoDesdeUno) {
    EXPECT_EQ(Niveles(), (Textos{"Piso 1 9", "Techo 4"}));
    ASSERT_EQ(Ventana.Panos().Cuantos(), 3U);  // its rows decide, in the order of their numbers
    EXPECT_NEAR(Pano(1).Reparto.CX, 5.0 / 7, 1e-12);
    EXPECT_NEAR(Pano(2).Reparto.WX, 1000 * 16.0 / 17, 1e-9);
    EXPECT_EQ(Pano(3).Reparto.CX, Pano(2).Reparto.CX);  // case 10 repeats
    Ventana.PonerPano(2, ColumnaDePano::LY, 3);
    EXPECT_EQ(Pano(3).Reparto.WY, 400);
    Ventana.PonerNumeroDePanos(5);
    EXPECT_EQ(Pano(5).Caso, 1);
    EXPECT_EQ(Pano(5).Carga + Pano(5).LX + Pano(5).LY + Pano(5).Reparto.CX + Pano(5).Reparto.CY, 0);
    Ventana.PonerNumeroDePanos(2);
    EXPECT_TRUE(Ventana.Salvar());
    EXPECT_FALSE(Ventana.Modificado());
    EXPECT_EQ(EnArchivo(""), (Textos{"Piso 1 1 900.0", "Piso 1 2 1000.0"}));
    EXPECT_EQ(Programa.Columna("MarcusDatos", "Nombre").size(), 2U);
    EXPECT_EQ(Niveles()[0], "Piso 1 2");
}

TEST_F(NivelesDeMarkus, OtroNivelPierdeLoQueNoSeSalvoYAlCerrarSePregunta) {
    Ventana.SeleccionarNivel(2);
    EXPECT_EQ(Ventana.Panos().Cuantos(), 0U);
    EXPECT_TRUE(Ventana.PuedeCerrar());
    Ventana.PonerNumeroDePanos(3);
    Ventana.SeleccionarNivel(1);
    Ventana.SeleccionarNivel(2);
    EXPECT_EQ(Ventana.Panos().Cuantos(), 0U);
    EXPECT_TRUE(Ventana.Modificado());
    Programa.caja.Respuestas = {programa::RespuestaCancelar, programa::RespuestaAceptarONo,
                                programa::RespuestaSi};
    EXPECT_FALSE(Ventana.PuedeCerrar());
    EXPECT_EQ(Programa.caja.Dicho(), "¿Desea Salvar las Modificaciones?|Método de Markus...");
    Conexion otra;
    AbrirConexion(otra, Programa.aplicacion.ArchivoProyecto);
    otra.Ejecutar("INSERT INTO MarcusDatos VALUES ('Sótano', 1)");
    Ventana.NotarCambios();
    EXPECT_EQ(Niveles().size(), 2U);  // not over what was entered
    EXPECT_TRUE(Ventana.PuedeCerrar() && Ventana.Modificado());
    EXPECT_TRUE(Ventana.PuedeCerrar());
    EXPECT_FALSE(Ventana.Modificado());
    Ventana.NotarCambios();
    EXPECT_EQ(Niveles().size(), 3U);
}

TEST_F(NivelesDeMarkus, UnBloqueEnUnaColumnaPideSuNumero) {
    struct Caso {
        Bloque Elegido;
        const char* Respuesta;
        const char* Pregunta;  ///< null: nothing is asked
        std::optional<double> Puesto;
        bool Suelta;
    };
    const Caso casos[]{
        {{1, 2, 1, 1}, "1.250,5", "Entre la Carga de la Losa (tf/m2):|Carga de la Losa", 1250.5, true},
        {{2, 3, 3, 3}, " 4,5 ", "Entre la Longitud en Dirección X (m):|Método de Markus", 4.5, true},
        {{1, 3, 4, 4}, "-6", "Entre la Longitud en Dirección Y (m):|Método de Markus", -6, true},
        {{1, 3, 3, 3}, "1.250", "Entre la Longitud en Dirección X (m):|Método de Markus", {}, true},
        {{1, 3, 3, 3}, "abc", "Entre la Longitud en Dirección X (m):|Método de Markus", {}, true},
        {{1, 3, 1, 1}, "  ", "Entre la Carga de la Losa (tf/m2):|Carga de la Losa", {}, false},
        {{1, 3, 2, 2}, "4", nullptr, {}, false},
        {{1, 3, 5, 5}, "4", nullptr, {}, false},
        {{1, 3, 3, 4}, "4", nullptr, {}, false},
    };
    for (const Caso& caso : casos) {
        const auto columna = static_cast<ColumnaDePano>(caso.Elegido.PrimeraColumna);
        std::vector<double> antes(1, 0);
        const bool entrada = caso.Elegido.PrimeraColumna <= 4;
        for (std::size_t f = 1; f <= 3 && entrada; ++f) antes.push_back(Ventana.Panos().Leer(f, columna));
        Preguntas.clear();
        Sueltas = 0;
        Respuesta = caso.Respuesta;
        Ventana.EntrarBloque(caso.Elegido);
        EXPECT_EQ(Preguntas, caso.Pregunta ? Textos{caso.Pregunta} : Textos{});
        EXPECT_EQ(Sueltas, caso.Suelta) << caso.Respuesta;
        for (int f = 1; f <= 3 && entrada; ++f) {
            const bool dentro = f >= caso.Elegido.PrimeraFila && f <= caso.Elegido.UltimaFila;
            EXPECT_EQ(Ventana.Panos().Leer(static_cast<std::size_t>(f), columna),
                      dentro && caso.Puesto ? *caso.Puesto : antes[static_cast<std::size_t>(f)])
                << caso.Respuesta << " fila " << f;
        }
    }
    EXPECT_EQ(Programa.caja.Dicho(), "Debe Introducir un Número...|Error en Cargas...");
    ASSERT_EQ(Programa.caja.Mensajes.size(), 2U);  // 1250 where the point parts thousands, or 1.25
    EXPECT_EQ(Programa.caja.Mensajes[0].Texto, "Puede leerse 1250 o 1,25: escríbalo sin separador de miles.");
}

TEST_F(NivelesDeMarkus, SeCreanRenombranYEliminan) {
    for (const char* nombre : {"  ", "TECHO"}) {
        Respuesta = nombre;
        Ventana.Crear();
        EXPECT_EQ(Ventana.Lista().Fila(), 1);
    }
    EXPECT_EQ(Programa.caja.Dicho(),
              "Nivel: TECHO\nEl Nivel ya Existe en el Proyecto...|Creando Nuevo Nivel...");
    Respuesta = " Azotea ";
    Ventana.Crear();
    EXPECT_EQ(Niveles(), (Textos{"Piso 1 9", "Techo 4", "Azotea 0"}));
    EXPECT_EQ(Espacio.Marcada, 3);
    EXPECT_EQ(Ventana.Panos().Cuantos(), 0U);

    Ventana.PonerNumeroDePanos(2);
    Textos mensajes;
    Espacio.Renombrar = [&](programa::Renombrar& o) {
        for (const char* nombre : {"piso 1", "Casa"}) {
            Programa.caja.Respuestas = {programa::RespuestaSi};
            o.Aceptar(nombre);
            mensajes.push_back(Programa.caja.Dicho());
        }
    };
    Ventana.Lista().Renombrar();
    EXPECT_EQ(mensajes,
              (Textos{"Nombre: piso 1\nEste Nombre ya Existe en el Proyecto de Marcus...|Renombrar Nivel...",
                      "Renombrar Azotea\nPor Casa\n¿Esta Usted Seguro?|Renombrar Nivel..."}));
    EXPECT_EQ(Niveles(), (Textos{"Casa 2", "Piso 1 9", "Techo 4"}));  // what was not saved is still there
    EXPECT_TRUE(Ventana.Salvar());
    EXPECT_EQ(EnArchivo(" WHERE Nombre='Casa'").size(), 2U);

    Ventana.SeleccionarNivel(2);
    Programa.caja.Respuestas.assign(3, programa::RespuestaSi);
    Ventana.Lista().Eliminar();
    EXPECT_EQ(Programa.caja.Dicho(),
              "Nivel: Piso 1\n¿Esta Usted Seguro de Eliminar El Nivel del Proyecto?|"
              "Eliminar Nivel en Marcus...");
    EXPECT_EQ(Ventana.Panos().Cuantos(), 2U);  // the first one's
    Ventana.Lista().Eliminar();
    Ventana.Lista().Eliminar();
    EXPECT_TRUE(EnArchivo("").empty());
    EXPECT_EQ(Ventana.Panos().Cuantos(), 0U);
}

TEST_F(NivelesDeMarkus, LosCambiosSeDeshacenPorGrupos) {
    Ventana.PonerPano(1, ColumnaDePano::Carga, 1);
    Ventana.PonerPano(2, ColumnaDePano::Carga, 2);
    Ventana.Panos().CerrarCambio();
    Respuesta = "5";
    Ventana.EntrarBloque({1, 3, 3, 3});
    Ventana.PonerNumeroDePanos(1);
    Ventana.Deshacer();
    EXPECT_EQ(Niveles()[0], "Piso 1 3");
    EXPECT_EQ(Pano(3).LX, 5);
    Ventana.Deshacer();
    EXPECT_EQ(Pano(3).LX, 4);
    EXPECT_EQ(Pano(2).Carga, 2);
    Ventana.Deshacer();
    Ventana.Deshacer();
    EXPECT_EQ(Pano(1).Carga, 900);
    EXPECT_EQ(Pano(2).Carga, 1000);
    Ventana.SeleccionarNivel(2);
    EXPECT_FALSE(Ventana.Panos().PuedeDeshacer());
}

/// A stored null is no number: what can't be calculated shows nothing, and is not stored in its place.
TEST_F(NivelesDeMarkus, UnNumeroVacioSeAvisaNoSeSalvaYQuedaNuloEnElReporte) {
    Programa.aplicacion.Proyecto.ConexionProyecto.Ejecutar("UPDATE Marcus SET LX = NULL WHERE Numero = 7");
    Programa.carpetas.CaminoPrograma = Programa.carpeta.Camino();
    std::filesystem::create_directories(Programa.carpeta / "Imagen");
    CrearBaseDatos(Programa.carpeta / "Imagen" / "Temporal.tbx",
                   LeerArchivo(Install() + "/Imagen/Temporal.sql"));
    Ventana.SeleccionarNivel(2);
    Ventana.SeleccionarNivel(1);
    EXPECT_NEAR(Pano(1).Reparto.CX, 5.0 / 7, 1e-12);
    EXPECT_TRUE(std::isnan(Pano(2).Reparto.CX) && std::isnan(Pano(3).Reparto.WY));
    EXPECT_EQ(EnUnaLinea(Ventana.Panos().LosAvisos().back()).find("Paño 2: "), 0U);
    EXPECT_FALSE(Ventana.Salvar());
    EXPECT_EQ(Programa.caja.Dicho().find("Error Número: 13"), 0U);
    Ventana.Imprimir();
    EXPECT_EQ(Reportes, 1);
    const auto filas = ConsultarSqlite(Programa.carpeta / "Trabajo" / "Temporal.mdb",
                                       "SELECT * FROM Marcus, (SELECT Titulo, Nombre FROM Generales)");
    ASSERT_EQ(filas.size(), 3U);
    EXPECT_EQ(filas[0].at("Titulo"), "COEFICIENTES DE REPARTICION DE LA CARGA");
    EXPECT_EQ(filas[0].at("Nombre"), "Piso 1");
    EXPECT_NEAR(std::stod(filas[0].at("WX")), 900 * 5.0 / 7, 1e-9);
    EXPECT_EQ(filas[1].at("WX"), "NULL");
    EXPECT_EQ(filas[2].at("Numero") + filas[2].at("Caso"), "310");
    Ventana.PonerPano(2, ColumnaDePano::LX, 3);
    EXPECT_TRUE(Ventana.Salvar());
}

}  // namespace
}  // namespace trabex::prueba
