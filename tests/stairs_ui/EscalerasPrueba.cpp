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
    entrados.Hd = entrados.B = 0;
    EXPECT_FALSE(nueva.Salvar(entrados));
    EXPECT_EQ(vista.Focos, std::vector{CampoEscaleraT::B});

    entrados = nueva.Mostrar();
    entrados.L = -3.1;  // signs are not looked at, and loads may be 0
    entrados.Wd = entrados.WpD = 0;
    nueva.Cambiar();
    EXPECT_TRUE(nueva.Salvar(entrados) && nueva.Salvar(entrados) && cambiados_ && !nueva.Modificada());
    EXPECT_TRUE(nueva.Cerrar(entrados) && caja_.Mensajes.empty());
    EXPECT_EQ(Tabla("EscaleraT").NumeroRegistros(), 1);
    DatosEscaleraT leida;
    EXPECT_TRUE(LeaDatosEscalera(proyecto_, leida));
    EXPECT_EQ(std::tuple(leida.Nombre, leida.L, leida.HT, leida.WT, leida.Wd),
              std::tuple("E-1", -3.1, 0.2, 2076, 0));
    EXPECT_EQ(actual.L, -3.1);

    entrados.L = 0;
    nueva.Cambiar();
    caja_.Respuestas = {RespuestaSi, RespuestaAceptarONo};
    EXPECT_FALSE(nueva.Cerrar(entrados));  // the save stopped at a field
    EXPECT_EQ(vista.Focos.back(), CampoEscaleraT::L);
    EXPECT_TRUE(nueva.Cerrar(entrados));
    EXPECT_EQ(actual.L, -3.1);
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
    const auto salvar = [&](auto campo, auto valor) {
        EntradaEscaleraH e = semilla;
        e.*campo = valor;
        return datos.Salvar(e);
    };
    EXPECT_FALSE(salvar(&EntradaEscaleraH::B, 0) || salvar(&EntradaEscaleraH::T, 0) ||
                 salvar(&EntradaEscaleraH::R, 0) || salvar(&EntradaEscaleraH::Angulo, 0) ||
                 salvar(&EntradaEscaleraH::Inter, 0));
    using enum CampoEscaleraH;
    EXPECT_TRUE(caja_.Mensajes.empty());
    EXPECT_FALSE(salvar(&EntradaEscaleraH::Angulo, 360.5));
    EXPECT_EQ(caja_.Dicho(), "El angulo de Desarrollo no puede ser > 360º|Escalera Helicoidal...");
    EXPECT_EQ(vista.Focos, (std::vector{B, T, R, Angulo, Angulo, Angulo}));
    EXPECT_EQ(vista.Pitidos, 5);
    EXPECT_FALSE(salvar(&EntradaEscaleraH::Inter, 40000));
    EXPECT_EQ(caja_.Mensajes.back().Texto.find("Error Número: 6"), 0U);
    EXPECT_EQ(Tabla("EscaleraH").NumeroRegistros(), 0);
    EXPECT_TRUE(nueva && !cambiados_);

    EntradaEscaleraH e = semilla;
    e.Angulo = 360;
    e.H = e.W = 0;
    EXPECT_TRUE(datos.Salvar(e) && datos.Salvar(e) && !nueva && cambiados_);
    EXPECT_EQ(Tabla("EscaleraH").NumeroRegistros(), 1);
    DatosEscaleraH leida;
    EXPECT_TRUE(LeaDatosEscalera(proyecto_, leida));
    EXPECT_EQ(std::tuple(leida.Nombre, leida.Angulo, leida.R, leida.W, leida.Inter),
              std::tuple("H-1", 360, 2.5, 0, 5));
    EXPECT_EQ(datos.Mostrar().Angulo, 360);
}

TEST_F(Escaleras, LosParametrosDeDiseno) {
    DatosDelProyecto datos;
    DatosGenerales g;
    g.FCP = 1.4;
    g.FC = 999;
    LeaDatosGenerales(proyecto_.ConexionProyecto, ClaseEscalera::Autoportante, "ING. NÚÑEZ", datos, g);
    EXPECT_EQ(std::tuple(datos.Calculista, g.FC, g.FCP), std::tuple("ING. NÚÑEZ", 250, 1.4));
    EXPECT_EQ(Tabla("EscaleraTG").Doble("FS"), 1.55);

    PantallaGuiada<CampoEscaleraTG> vista;
    EscaleraTG ventana(proyecto_.ConexionProyecto, ClaseEscalera::Helicoidal, g, cambiados_, caja_, vista);
    EntradaEscaleraTG e = ventana.Mostrar();
    e.FC = 300;
    e.FY = 32768;
    EXPECT_FALSE(ventana.Aceptar(e) || cambiados_);
    EXPECT_EQ(std::tuple(g.FC, g.FY), std::tuple(300, 4200));  // narrowed before the one that did not fit
    EXPECT_EQ(Tabla("EscaleraHG").NumeroRegistros(), 0);
    e.FY = 5000;
    EXPECT_TRUE(ventana.Aceptar(e) && ventana.Aceptar(e) && cambiados_);
    EXPECT_EQ(Tabla("EscaleraHG").NumeroRegistros(), 1);
    EXPECT_EQ(Tabla("EscaleraTG").Entero16("FY"), 4200);
    LeaDatosGenerales(proyecto_.ConexionProyecto, ClaseEscalera::Helicoidal, "", datos, g);
    EXPECT_EQ(g.FY, 5000);
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
