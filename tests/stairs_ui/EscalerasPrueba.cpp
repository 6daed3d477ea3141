// Entry windows of both kinds of stair down to the file, and the tables of Markus levels.

#include <gtest/gtest.h>

#include "helical/ui/EscaleraHDatos.h"
#include "stairs/ui/EscaleraTDatos.h"
#include "stairs/ui/EscaleraTG.h"
#include "store/tablas/TablasEscalera.h"
#include "store/tablas/TablasMarcus.h"
#include "support/ProyectoDePrueba.h"
#include "support/ShellGuiado.h"

namespace trabex::prueba {

using namespace escaleras;
using namespace escaleras::ui;
using namespace helices;
using namespace helices::ui;
using namespace marcus;
namespace {

/// Keeps which fields took the focus, and the beeps.
template <class Campo, class Base = PantallaDeCampos<Campo>>
class PantallaGuiada : public Base {
  public:
    void Enfocar(Campo campo) override { Focos.push_back(campo); }
    std::vector<Campo> Focos;
};
class VistaH : public PantallaGuiada<CampoEscaleraH, PantallaEscaleraHDatos> {
  public:
    void Pitar() override { ++Pitidos; }
    int Pitidos = 0;
};

class Escaleras : public testing::Test {
  protected:
    Escaleras() {
        EXPECT_TRUE(CrearBaseDatos(carpeta_ / "obra.los",
                                   EsquemaDeProyecto() +
                                       "INSERT INTO EscaleraTDatos VALUES ('E-1', 'PRINCIPAL'), ('E-2', '');"
                                       "INSERT INTO EscaleraHDatos VALUES ('H-1', 'CARACOL'), ('H-2', '');"
                                       "INSERT INTO MarcusDatos VALUES ('NIVEL 1', 7), ('NIVEL 2', 0);"));
        AbrirConexion(proyecto_.ConexionProyecto, carpeta_ / "obra.los");
    }
    void AbrirLista(std::string_view consulta) {
        AbrirRecordset(proyecto_.ConexionProyecto, proyecto_.RegistrosProyecto, consulta);
    }
    Recordset Tabla(const char* tabla) {
        Recordset filas;
        AbrirRecordset(proyecto_.ConexionProyecto, filas, tabla);
        return filas;
    }

    CarpetaTemporal carpeta_;
    ProyectoAbierto proyecto_;
    CajaGuiada caja_;
    bool cambiados_ = false;
};

TEST_F(Escaleras, LosDatosDeLaEscaleraT) {
    AbrirLista(ConsultaListaEscalerasT);
    DatosEscaleraT actual{"otra", "", 9, 9, 9, 9, 9, 9, 9, 9};
    EXPECT_FALSE(LeaDatosEscalera(proyecto_, actual));  // listed, and without data
    EXPECT_EQ(actual.Titulo, "PRINCIPAL");
    EXPECT_EQ(actual.L + actual.B + actual.H + actual.HT + actual.Hd + actual.WT + actual.Wd + actual.WpD, 0);

    PantallaGuiada<CampoEscaleraT> vista;
    EscaleraTDatos nueva({proyecto_, actual, true, cambiados_}, caja_, vista);
    DatosEscaleraT entrados = nueva.Mostrar();
    EXPECT_EQ(entrados.L, 2.7);
    EXPECT_EQ(entrados.WpD, 1040);
    entrados.Hd = entrados.B = 0;
    EXPECT_FALSE(nueva.Salvar(entrados));
    EXPECT_EQ(vista.Focos, std::vector{CampoEscaleraT::B});
    EXPECT_TRUE(caja_.Mensajes.empty());
    EXPECT_EQ(Tabla("EscaleraT").NumeroRegistros(), 0);

    entrados = nueva.Mostrar();
    entrados.L = -3.1;  // signs are not looked at, and loads may be 0
    entrados.Wd = entrados.WpD = 0;
    nueva.Cambiar();
    EXPECT_TRUE(nueva.Salvar(entrados) && nueva.Salvar(entrados));
    EXPECT_TRUE(cambiados_ && !nueva.Modificada());
    EXPECT_EQ(Tabla("EscaleraT").NumeroRegistros(), 1);
    DatosEscaleraT leida;
    EXPECT_TRUE(LeaDatosEscalera(proyecto_, leida));
    EXPECT_EQ(leida.Nombre, "E-1");
    EXPECT_EQ(leida.L, -3.1);
    EXPECT_EQ(leida.HT, 0.2);
    EXPECT_EQ(leida.WT, 2076);
    EXPECT_EQ(leida.Wd, 0);
    EXPECT_EQ(actual.L, -3.1);
    proyecto_.RegistrosProyecto.MoverA(2);
    EXPECT_FALSE(LeaDatosEscalera(proyecto_, leida));
    EXPECT_EQ(leida.Nombre, "E-2");
}

TEST_F(Escaleras, CerrarPregunta) {
    AbrirLista(ConsultaListaEscalerasT);
    DatosEscaleraT actual = EscaleraTNuevaDe("E-1", "");
    PantallaGuiada<CampoEscaleraT> vista;
    EscaleraTDatos datos({proyecto_, actual, false, cambiados_}, caja_, vista);
    DatosEscaleraT entrados = datos.Mostrar();
    EXPECT_TRUE(datos.Cerrar(entrados));
    EXPECT_TRUE(caja_.Mensajes.empty());

    entrados.L = 0;
    datos.Cambiar();
    caja_.Respuestas = {RespuestaCancelar, RespuestaSi, RespuestaAceptarONo};
    EXPECT_FALSE(datos.Cerrar(entrados));
    EXPECT_EQ(caja_.Mensajes[0].Texto, "E-1\n¿Desea Salvar las Modificaciones?");
    EXPECT_EQ(caja_.Mensajes[0].Encabezado, "Análisis y Diseño de Escaleras...");
    EXPECT_FALSE(datos.Cerrar(entrados));  // the save stopped at a field
    EXPECT_EQ(vista.Focos, std::vector{CampoEscaleraT::L});
    EXPECT_TRUE(datos.Cerrar(entrados));
    EXPECT_FALSE(cambiados_);
    datos.Mostrar();  // "Siguiente Escalera" discards the edits
    EXPECT_FALSE(datos.Modificada());

    // What can't be stored is told, and stays as it was.
    proyecto_.ConexionProyecto.Cerrar();
    entrados.L = 5;
    EXPECT_FALSE(datos.Salvar(entrados));
    EXPECT_EQ(caja_.Mensajes.back().Encabezado, "Error Inesperado...");
    EXPECT_EQ(actual.L, 2.7);
}

TEST_F(Escaleras, LosDatosDeLaEscaleraH) {
    AbrirLista(ConsultaListaEscalerasH);
    DatosEscaleraH actual{"otra", "", 1, 1, 1, 1, 1, 1, 1};
    EXPECT_FALSE(LeaDatosEscalera(proyecto_, actual));
    EXPECT_EQ(actual.B + actual.T + actual.H + actual.R + actual.Angulo + actual.W, 0);
    EXPECT_EQ(actual.Inter, 5);

    VistaH vista;
    bool nueva = true;
    EscaleraHDatos datos({proyecto_, actual, nueva, cambiados_}, caja_, vista);
    const EntradaEscaleraH semilla = datos.Mostrar();
    EXPECT_EQ(semilla.Angulo, 260);
    const auto sinCampo = [&](auto campo) {
        EntradaEscaleraH e = semilla;
        e.*campo = 0;
        return datos.Salvar(e);
    };
    EXPECT_FALSE(sinCampo(&EntradaEscaleraH::B) || sinCampo(&EntradaEscaleraH::T) ||
                 sinCampo(&EntradaEscaleraH::R) || sinCampo(&EntradaEscaleraH::Angulo) ||
                 sinCampo(&EntradaEscaleraH::Inter));
    using enum CampoEscaleraH;
    EXPECT_EQ(vista.Focos, (std::vector{B, T, R, Angulo, Angulo}));
    EXPECT_EQ(vista.Pitidos, 5);
    EXPECT_TRUE(caja_.Mensajes.empty());

    EntradaEscaleraH e = semilla;
    e.Angulo = 360.5;
    EXPECT_FALSE(datos.Salvar(e));
    EXPECT_EQ(caja_.Mensajes.back().Texto, "El angulo de Desarrollo no puede ser > 360º");
    EXPECT_EQ(caja_.Mensajes.back().Encabezado, "Escalera Helicoidal...");
    EXPECT_EQ(vista.Focos.size(), 6U);
    EXPECT_EQ(vista.Pitidos, 5);
    e = semilla;
    e.Inter = 40000;
    EXPECT_FALSE(datos.Salvar(e));
    EXPECT_EQ(caja_.Mensajes.back().Texto.find("Error Número: 6"), 0U);
    EXPECT_EQ(Tabla("EscaleraH").NumeroRegistros(), 0);
    EXPECT_TRUE(nueva && !cambiados_);

    e = semilla;
    e.Angulo = 360;
    e.H = e.W = 0;
    EXPECT_TRUE(datos.Salvar(e) && datos.Salvar(e));
    EXPECT_TRUE(!nueva && cambiados_);
    EXPECT_EQ(Tabla("EscaleraH").NumeroRegistros(), 1);
    DatosEscaleraH leida;
    EXPECT_TRUE(LeaDatosEscalera(proyecto_, leida));
    EXPECT_EQ(leida.Nombre, "H-1");
    EXPECT_EQ(leida.Angulo, 360);
    EXPECT_EQ(leida.R, 2.5);
    EXPECT_EQ(leida.W, 0);
    EXPECT_EQ(leida.Inter, 5);
    EXPECT_EQ(datos.Mostrar().Angulo, 360);
}

TEST_F(Escaleras, LosParametrosDeDiseno) {
    DatosDelProyecto datos;
    DatosGenerales g;
    g.FCP = 1.4;
    g.FC = 999;
    LeaDatosGenerales(proyecto_.ConexionProyecto, ClaseEscalera::Autoportante, "ING. NÚÑEZ", datos, g);
    EXPECT_EQ(datos.Calculista, "ING. NÚÑEZ");
    EXPECT_EQ(g.FC, 250);
    EXPECT_EQ(g.FCP, 1.4);
    EXPECT_EQ(Tabla("EscaleraTG").Doble("FS"), 1.55);
    EXPECT_EQ(Tabla("EscaleraHG").NumeroRegistros(), 0);

    PantallaGuiada<CampoEscaleraTG> vista;
    EscaleraTG ventana(proyecto_.ConexionProyecto, ClaseEscalera::Helicoidal, g, cambiados_, caja_, vista);
    EntradaEscaleraTG e = ventana.Mostrar();
    e.FS = e.FiCorte = 0;
    EXPECT_FALSE(ventana.Aceptar(e));
    EXPECT_EQ(vista.Focos, std::vector{CampoEscaleraTG::FS});
    e = ventana.Mostrar();
    e.FC = 300;
    e.FY = 32768;
    EXPECT_FALSE(ventana.Aceptar(e));
    EXPECT_EQ(caja_.Mensajes.back().Texto.find("Error Número: 6"), 0U);
    EXPECT_EQ(g.FC, 300);  // narrowed before the one that did not fit
    EXPECT_EQ(g.FY, 4200);
    EXPECT_EQ(Tabla("EscaleraHG").NumeroRegistros(), 0);
    EXPECT_FALSE(cambiados_);

    e.FY = 5000;
    e.FS = 1.7;
    EXPECT_TRUE(ventana.Aceptar(e) && ventana.Aceptar(e));
    EXPECT_TRUE(cambiados_);
    EXPECT_EQ(Tabla("EscaleraHG").NumeroRegistros(), 1);
    EXPECT_EQ(Tabla("EscaleraTG").Entero16("FY"), 4200);
    DatosGenerales leidos;
    LeaDatosGenerales(proyecto_.ConexionProyecto, ClaseEscalera::Helicoidal, "", datos, leidos);
    EXPECT_EQ(leidos.FY, 5000);
    EXPECT_EQ(leidos.FS, 1.7);
}

TEST_F(Escaleras, LosPanosDeUnNivel) {
    AbrirLista(ConsultaListaMarcus);
    NivelMarcus nivel;
    LeerMarcus(proyecto_, nivel);
    EXPECT_EQ(nivel.Panos, 7);
    EXPECT_TRUE(nivel.Filas.empty());  // the rows decide
    nivel.Filas = {{900, 4, 3.5, 5, {}}, {800.5, 12, 4, 4, {}}, {700, 1, 0, 0, {}}};
    EXPECT_TRUE(GuardarMarcus(proyecto_, nivel));
    nivel.Filas.pop_back();
    EXPECT_TRUE(GuardarMarcus(proyecto_, nivel));
    AbrirLista(ConsultaListaMarcus);
    NivelMarcus leido;
    LeerMarcus(proyecto_, leido);
    EXPECT_EQ(leido.Panos, 2);
    ASSERT_EQ(leido.Filas.size(), 2U);
    EXPECT_EQ(leido.Filas[1].Carga, 800.5);
    EXPECT_EQ(leido.Filas[1].Caso, 12);
    EXPECT_EQ(leido.Filas[0].LY, 5);
    proyecto_.RegistrosProyecto.MoverA(2);
    LeerMarcus(proyecto_, leido);
    EXPECT_TRUE(leido.Filas.empty());
    EXPECT_EQ(leido.Nombre, "NIVEL 2");
}

/// A row that can't be written leaves the old ones, and the count in the list.
TEST_F(Escaleras, UnGuardadoQueFallaNoDejaNada) {
    AbrirLista(ConsultaListaMarcus);
    NivelMarcus nivel{"NIVEL 1", 0, std::vector<PanoMarcus>(3)};
    ASSERT_TRUE(GuardarMarcus(proyecto_, nivel));
    nivel.Filas.resize(40000);  // past the 16 bits of a row's number
    EXPECT_FALSE(GuardarMarcus(proyecto_, nivel));
    EXPECT_EQ(proyecto_.RegistrosProyecto.Entero16("Paños"), 3);
    EXPECT_EQ(Tabla("Marcus").NumeroRegistros(), 3);
}

}  // namespace
}  // namespace trabex::prueba
