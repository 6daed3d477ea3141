// The workspace of helical stairs, with scripted answers, down to the file.

#include <gmock/gmock.h>

#include "helical/ui/EscaleraH.h"
#include "stairs/ui/EscaleraTNueva.h"
#include "stairs/ui/EscaleraTitulo.h"
#include "support/EspacioGuiado.h"

namespace trabex::prueba {

using namespace helices;
using namespace helices::ui;
using dibujo::helice::ModoGiro;
namespace {

using testing::ElementsAre;

struct PantallaGuiada : PantallaEspacioGuiada, PantallaEscaleraH {
    bool MostrarEscaleraTNueva() override { return Nueva(); }
    void MostrarEscaleraHDatos(const TrabajoEscaleraH& trabajo) override { Datos(trabajo); }
    void MostrarEscaleraTG() override { General(); }
    bool MostrarEscaleraTitulo() override { return TituloNuevo(); }
    void PonerPaneles(const EscaleraHCalculada& escalera) override {
        EnPaneles = escalera.Datos.Nombre;
        Estaciones = escalera.Resultados.NEst;
    }
    void MarcarGiro(ModoGiro modo) override { Giro = modo; }

    std::string EnPaneles;
    std::size_t Estaciones = 99;
    ModoGiro Giro = ModoGiro::Ninguno;
    std::function<bool()> Nueva, TituloNuevo;
    std::function<void()> General;
    std::function<void(const TrabajoEscaleraH&)> Datos;
};

struct SinFoco : PantallaEscaleraHDatos {
    void Enfocar(CampoEscaleraH) override {}
    void Pitar() override {}
};

/// 'A' is a stair of every day, 'B' one without data, 'C' one whose stirrups come to a spacing of 0.
struct EspacioHelices : testing::Test, ProgramaGuiado {
    EspacioHelices()
        : ProgramaGuiado(
              "INSERT INTO EscaleraHDatos VALUES ('C', 'FALLA'), ('B', 'SEGUNDA'), ('A', 'PRIMERA');"
              "INSERT INTO EscaleraH VALUES ('A', 1.5, 0.15, 3, 2.5, 260, 1500, 5),"
              "('C', 1.5, 0.15, 3, 2.5, 260, 900000000, 5);") {
        espacio.Lista().Abrir();
    }
    /// The data window of a stair, in which its rise is entered.
    void Guardar(const TrabajoEscaleraH& trabajo, double H) {
        EscaleraHDatos ventana(trabajo, caja, sinFoco);
        EntradaEscaleraH entrados = ventana.Mostrar();
        entrados.H = H;
        EXPECT_TRUE(ventana.Salvar(entrados));
    }
    /// Heading, stair and stations of the panels, horizontal reaction, times drawn.
    std::string Visto() const {
        return vista.Encabezado.substr(0, 25) + "|" + vista.EnPaneles + "|" +
               std::to_string(vista.Estaciones) + "|" + std::to_string(espacio.Calculada().Resultados.Fh) +
               "|" + std::to_string(vista.Dibujos);
    }

    PantallaGuiada vista;
    SinFoco sinFoco;
    EscaleraH espacio{aplicacion, servicios, vista, vista};
};

TEST_F(EspacioHelices, SeVeLaQueSeEligeYLaQueFallaDejaLaAnterior) {
    EXPECT_THAT(vista.Filas, ElementsAre("A", "B", "C"));
    EXPECT_EQ(vista.Titulo, "ESCALERAS HELICOIDALES");
    EXPECT_EQ(Visto(), "ESCALERA: A|A|27|10639|1");
    EXPECT_TRUE(vista.Fallan[3] && !vista.Fallan[1]);  // seen at opening

    vista.Fallan.clear();
    espacio.Lista().Seleccionar(3);
    EXPECT_EQ(Visto(), "ESCALERA: C   (sin calcul|A|27|10639|1");
    EXPECT_TRUE(vista.Fallan[3] && !vista.Puestos.empty() && espacio.Estado().Fallo);
    espacio.Lista().Anterior();
    EXPECT_EQ(Visto(), "ESCALERA: B|B|0|0|2");
    EXPECT_TRUE(vista.Puestos.empty() && !espacio.Estado().Fallo);
    espacio.Lista().Anterior();
    espacio.Lista().Anterior();  // there is none
    EXPECT_EQ(vista.Marcada, 1);
    EXPECT_EQ(Visto(), "ESCALERA: A|A|27|10639|3");

    // Of another project nothing stays, though its first stair fails.
    dialogos.Elegidos = {Proyecto("otra.los",
                                  "INSERT INTO EscaleraHDatos VALUES ('Z', '');"
                                  "INSERT INTO EscaleraH VALUES ('Z', 1.5, 0.15, 3, 2.5, 260, 1500, -5);")};
    espacio.Lista().AbrirProyecto();
    EXPECT_EQ(Visto(), "ESCALERA: Z   (sin calcul||0|0|4");
}

TEST_F(EspacioHelices, CrearEditarYDatosGeneralesCalculan) {
    const auto crear = [&](const char* nombre) {
        vista.Nueva = [&, nombre] {
            return escaleras::ui::EscaleraTNueva(espacio.Lista()).Aceptar(nombre, " T ");
        };
        espacio.Nueva();
    };
    int mostradas = 0;
    vista.Datos = [&](const TrabajoEscaleraH& trabajo) {
        ++mostradas;
        EXPECT_EQ(EscaleraHDatos(trabajo, caja, sinFoco).Mostrar().Angulo, 260);
    };
    crear(" D ");  // left without a save it is listed and shows nothing
    EXPECT_THAT(Columna("EscaleraHDatos", "Nombre"), ElementsAre("C", "B", "A", "D"));
    EXPECT_THAT(Columna("EscaleraH", "Nombre"), ElementsAre("A", "C"));
    EXPECT_EQ(Visto(), "ESCALERA: D|D|0|0|3");
    espacio.Editar();  // and is still offered its seeds
    EXPECT_EQ(mostradas, 2);
    espacio.Lista().Seleccionar(2);  // another stair is not
    vista.Datos = [&](const TrabajoEscaleraH& trabajo) {
        EXPECT_EQ(EscaleraHDatos(trabajo, caja, sinFoco).Mostrar().Angulo, 0);
    };
    espacio.Editar();
    EXPECT_EQ(vista.Estaciones, 0U);

    vista.Datos = [&](const TrabajoEscaleraH& trabajo) { Guardar(trabajo, trabajo.Nueva ? 3 : 2); };
    crear("E");
    const auto RH = [this] { return espacio.Calculada().Resultados.Fh; };
    EXPECT_EQ(RH(), 10639);
    espacio.Editar();
    EXPECT_NE(RH(), 10639);
    EXPECT_THAT(Columna("EscaleraH", "Nombre"), ElementsAre("A", "C", "E"));

    const double antes = espacio.Calculada().Resultados.TramoSuperior[1].ASXS;
    vista.General = [&] { aplicacion.Generales.FS *= 2; };
    espacio.DatosGenerales();
    EXPECT_GT(espacio.Calculada().Resultados.TramoSuperior[1].ASXS, 1.5 * antes);
}

TEST_F(EspacioHelices, TitularYEliminar) {
    vista.TituloNuevo = [&] {
        return escaleras::ui::EscaleraTitulo(aplicacion.Proyecto, caja).Aceptar("NUEVO");
    };
    espacio.Titulo();
    EXPECT_EQ(espacio.Calculada().Datos.Titulo, "NUEVO");
    caja.Respuestas.assign(3, RespuestaSi);
    espacio.Lista().Eliminar();
    EXPECT_EQ(caja.Dicho(),
              "Escalera: A  (NUEVO)\n¿Esta Usted Seguro de Eliminar la Escalera del Proyecto?|Eliminar "
              "Escalera...");
    for (int i = 0; i < 2; ++i) espacio.Lista().Eliminar();
    EXPECT_TRUE(vista.Filas.empty() && Columna("EscaleraH", "Nombre").empty());
    EXPECT_EQ(Visto(), "||0|0|4");
    vista.TituloNuevo = nullptr;
    espacio.Editar();  // with an empty list nothing is shown
    espacio.Titulo();
}

TEST_F(EspacioHelices, UnGiroTomaElLugarDelOtroYQuedaComoEstaba) {
    const dibujo::helice::Giro& giro = espacio.Estado().Hoja.ElGiro;
    espacio.AvanzarGiro();
    EXPECT_EQ(vista.Dibujos, 1);
    espacio.Girar(ModoGiro::Vertical);
    espacio.AvanzarGiro();
    EXPECT_EQ(vista.Dibujos, 2);
    espacio.Girar(ModoGiro::Horizontal);
    EXPECT_EQ(vista.Giro, ModoGiro::Horizontal);
    espacio.AvanzarGiro();
    espacio.Girar(ModoGiro::Horizontal);  // again: it ends
    EXPECT_EQ(vista.Giro, ModoGiro::Ninguno);
    espacio.Lista().Seleccionar(2);
    EXPECT_TRUE(giro.GiroVertical == 5 && giro.GiroHorizontal == 5);
}

}  // namespace
}  // namespace trabex::prueba
