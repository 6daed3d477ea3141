// What the drawing program gets, and what happens to its files when something goes wrong.

#include <set>

#include <gmock/gmock.h>

#include "reports/planex/ui/CuadroCAD.h"
#include "reports/planex/ui/ExportarCAD.h"
#include "slab/CalcularLosa.h"
#include "store/Filas.h"
#include "support/ExportacionDePrueba.h"

namespace trabex::prueba {

using namespace planex::ui;
namespace {

using testing::ElementsAre;

struct PantallaGuiada : PantallaExportarCAD {
    bool Marcada(int fila) const override { return Marcas.contains(fila); }
    ArchivoCAD Opcion() const override { return Archivo; }
    void PunteroDeEspera(bool espera) override { Espera = espera; }
    void Cerrar() override { Cerrada = true; }
    std::set<int> Marcas;
    ArchivoCAD Archivo = ArchivoCAD::CrearNuevo;
    bool Espera = false, Cerrada = false;
};

class ExportarCAD_ : public Exportacion {
  protected:
    /// Runs the export of the rows to a file and answers yes to its question, and `otra` to a second one.
    void Exportar(std::set<int> filas, ArchivoCAD opcion, const std::filesystem::path& archivo,
                  std::uint8_t version = Planex2023, std::int16_t otra = RespuestaSi) {
        pantalla = {};
        pantalla.Marcas = std::move(filas);
        pantalla.Archivo = opcion;
        dialogos.Elegidos = {archivo};
        caja.Mensajes.clear();
        caja.Respuestas = {RespuestaSi, otra};
        ExportarCAD(aplicacion, servicios, version, pantalla).ExportarCAD80();
        EXPECT_FALSE(pantalla.Espera);
    }

    int Cuantas(const std::filesystem::path& archivo, const std::string& tabla, const std::string& nombre) {
        return Filas(archivo, "SELECT * FROM " + tabla + " WHERE " + Criterio(PorNombre(nombre)))
            .NumeroRegistros();
    }
    /// What columns of a table hold, each row after its slab's name.
    std::vector<std::string> Lineas(const std::filesystem::path& archivo, const std::string& tabla,
                                    const std::vector<std::string>& columnas) {
        std::string linea = "Nombre";
        for (const std::string& columna : columnas) linea += " || ' ' || " + columna;
        Recordset filas = Filas(archivo, "SELECT " + linea + " AS Linea FROM " + tabla + " ORDER BY Nombre");
        std::vector<std::string> lineas;
        for (int fila = 1; fila <= filas.NumeroRegistros(); ++fila) {
            filas.MoverA(fila);
            lineas.push_back(filas.Texto("Linea"));
        }
        return lineas;
    }
    const Mensaje& Ultimo() const { return caja.Mensajes.back(); }

    PantallaGuiada pantalla;
};

TEST_F(ExportarCAD_, PreguntaEnSuOrdenYNuncaReemplaza) {
    pantalla.Marcas = {};
    ExportarCAD operaciones(aplicacion, servicios, Planex8, pantalla);
    operaciones.ExportarCAD80();
    EXPECT_EQ(caja.Dicho(),
              "No ha Seleccionado Losas para Exportar a Planex Estructural...|Planex Estructural 2023");
    EXPECT_TRUE(dialogos.Peticiones.empty());

    const auto viejo = carpeta / "viejo.cad";
    const auto nuevo = carpeta / "nuevo.cad";
    EscribirArchivo(viejo, "ajeno");
    pantalla.Marcas = {1};
    caja.Respuestas = {RespuestaSi, RespuestaAceptarONo};
    dialogos.Elegidos = {viejo, nuevo};
    operaciones.ExportarCAD80();
    ASSERT_EQ(caja.Mensajes.size(), 3U);
    EXPECT_EQ(caja.Mensajes[1].Texto + caja.Mensajes[1].Encabezado,
              "viejo.cad Ya Existe...\n¿Desea Usted Reemplazarlo?Planex Estructural...");
    EXPECT_EQ(Ultimo().Texto, "nuevo.cad\n¿Anexar las Losas Seleccionadas a Planex Estructural 2023?");
    EXPECT_EQ(LeerArchivo(viejo), "ajeno");
    EXPECT_EQ(Filas(nuevo, "LosaDatos").NumeroRegistros(), 0);  // the template was copied before the question
    EXPECT_FALSE(pantalla.Cerrada);
    EXPECT_EQ(dialogos.Peticiones[0].Titulo, "Crear Nuevo Proyecto en Planex Estructural 8.0");
    EXPECT_EQ(dialogos.Peticiones[0].Nombre, "obra.cad");
    EXPECT_EQ(dialogos.Peticiones[0].Carpeta, carpeta / "C" / "Nodara Software" / "Planex8" / "Proyectos");

    Exportar({1}, ArchivoCAD::AnexarAExistente, nuevo);
    EXPECT_EQ(dialogos.Peticiones.back().Titulo, "Abrir un Proyecto en Planex Estructural 2023");
    EXPECT_TRUE(dialogos.Peticiones.back().DebeExistir);
    EXPECT_EQ(Filas(nuevo, "Proyecto").NumeroRegistros(), 0);
    EXPECT_EQ(Cuantas(nuevo, "LosaDatos", "A MACIZA"), 1);

    std::filesystem::create_directories(dialogos.Peticiones[0].Carpeta);
    ExportarCAD(aplicacion, servicios, Planex2023, pantalla).AbrirCarpeta();
    EXPECT_EQ(plataforma.Abiertos.back(), dialogos.Peticiones[0].Carpeta);
    std::filesystem::remove(carpeta / "programa" / "Imagen" / "ImagenCAD8.tbx");
    Exportar({1}, ArchivoCAD::CrearNuevo, carpeta / "sin plantilla.cad", Planex8);
    EXPECT_EQ(Ultimo().Texto, "Error Número: 53\nNo se encontró el archivo");
}

TEST_F(ExportarCAD_, LasFilasDeCadaLosa) {
    const auto archivo = carpeta / "obra.cad";
    aplicacion.Datos.Comentario = "dos 'comillas'";
    Exportar({1, 2, 3}, ArchivoCAD::CrearNuevo, archivo);
    EXPECT_EQ(Ultimo().Texto, "¡Se Exportaron ( 3 ) Losa(s) con Exito a Planex Estructural!");
    EXPECT_TRUE(pantalla.Cerrada);
    EXPECT_EQ(aplicacion.Proyecto.RegistrosProyecto.Posicion(), 1);
    EXPECT_EQ(Filas(archivo, "Proyecto").Texto("Comentario"), "dos 'comillas'");

    EXPECT_THAT(Lineas(archivo, "LosaNervios", {"Tramo", "Opcion", "Ancho", "Diametro"}),
                ElementsAre("A MACIZA 1 0 0.0 ", "A MACIZA 2 0 0.0 ", "B NERVADA 1 0 0.0 ",
                            "B NERVADA 2 1 0.15 1/2", "B NERVADA 3 0 0.0 "));
    EXPECT_THAT(Lineas(archivo, "LosaEjes", {"Numero", "Apoyo", "HViga", "Lizq", "Lder", "MczIzq", "MczDer"}),
                ElementsAre("A MACIZA 1 1 0.5 0.15 0.15 0.0 0.0", "A MACIZA 2 1 0.5 0.15 0.15 0.0 0.0",
                            "A MACIZA 3 1 0.5 0.15 0.15 0.0 0.0", "B NERVADA 1 1 0.5 0.15 0.15 0.0 0.15",
                            "B NERVADA 2 1 0.5 0.15 0.15 0.15 0.15", "B NERVADA 3 1 0.5 0.15 0.15 0.15 0.15",
                            "B NERVADA 4 0 0.0 0.0 0.0 0.1 0.0", "C SIN TRAMOS 1 1 0.5 0.15 0.15 0.0 0.15"));
    EXPECT_THAT(Lineas(archivo, "LosaDatos", {"NT"}),
                ElementsAre("A MACIZA 2", "B NERVADA 3", "C SIN TRAMOS 0"));
    EXPECT_EQ(Cuantas(archivo, "LosaTramos", "C SIN TRAMOS"), 0);
    EXPECT_EQ(Filas(archivo, "SELECT * FROM LosaRefTeorico WHERE Nombre='C SIN TRAMOS'").Doble("AsEje"), 0);
}

TEST_F(ExportarCAD_, VolverAExportarReemplazaSoloLaSuya) {
    const auto archivo = carpeta / "obra.cad";
    Exportar({1, 2}, ArchivoCAD::CrearNuevo, archivo);
    std::vector<std::string> suyas;
    for (const char* tabla : {"LosaReparticion", "LosaRefuerzoEjeSuperior", "LosaDefecto"})
        for (const char* nombre : {"a maciza", "B NERVADA"})
            suyas.push_back(std::string("INSERT INTO ") + tabla + " VALUES ('" + nombre + "')");
    EnPlanex(archivo, suyas);
    aplicacion.Generales.FCP = 2;
    Exportar({1}, ArchivoCAD::AnexarAExistente, archivo);
    EXPECT_EQ(Cuantas(archivo, "LosaDatos", "B NERVADA"), 1);
    for (const char* tabla : {"LosaReparticion", "LosaRefuerzoEjeSuperior"})
        EXPECT_THAT(Lineas(archivo, tabla, {}), ElementsAre("B NERVADA"));
    EXPECT_EQ(Filas(archivo, "LosaDefecto").NumeroRegistros(), 0);
    EXPECT_EQ(Filas(archivo, "Proyecto").NumeroRegistros(), 1);

    // The steel is of a fresh calculation: the factor has changed since the first export.
    const Losa losa = ExportarCAD(aplicacion, servicios, Planex2023, pantalla).LosaDe(1);
    ResultadosLosa resultados;
    CalcularLosa(losa, aplicacion.Generales, resultados);
    Recordset acero = Filas(archivo, "SELECT * FROM LosaRefTeorico WHERE Nombre='A MACIZA' ORDER BY Eje");
    ASSERT_EQ(acero.NumeroRegistros(), 3);
    for (std::size_t i = 1; i <= 3; ++i) {
        acero.MoverA(static_cast<int>(i));
        EXPECT_EQ(acero.Doble("AsEje"), resultados.DisenoEje[i].AS1);
        if (i == 3)
            EXPECT_TRUE(std::holds_alternative<std::monostate>(acero.Leer("AsTramo")));
        else
            EXPECT_EQ(acero.Doble("AsTramo"), resultados.DisenoTramo[i].AS2);
    }
    EXPECT_GT(resultados.DisenoEje[2].AS1, 0);
}

TEST_F(ExportarCAD_, UnFalloAMediasDejaLasFilasAnteriores) {
    const auto archivo = carpeta / "obra.cad";
    Exportar({1, 2}, ArchivoCAD::CrearNuevo, archivo);
    // An edition of the drawing program with another width: a name of nine letters does not fit one of eight.
    EnPlanex(archivo, {"UPDATE LosaDatos SET EscLosa=75", "UPDATE LosaRefTeorico SET Nombre='viejo'",
                       "UPDATE trabex_jet SET Ancho=8 WHERE Tabla='LosaRefTeorico' AND Orden=0"});
    Exportar({1, 2, 3}, ArchivoCAD::AnexarAExistente, archivo);
    EXPECT_EQ(Ultimo().Encabezado, "Error Inesperado...");
    EXPECT_TRUE(Ultimo().Texto.starts_with("Error Número: 75\n"));
    EXPECT_FALSE(pantalla.Cerrada);
    EXPECT_THAT(Lineas(archivo, "LosaDatos", {"EscLosa"}), ElementsAre("A MACIZA 50", "B NERVADA 75"));
    EXPECT_EQ(Cuantas(archivo, "LosaRefTeorico", "viejo"), 7);
}

TEST_F(ExportarCAD_, LoQueNoEsDePlanexQuedaComoEstaba) {
    const auto ajeno = carpeta / "carta.cad";
    EscribirArchivo(ajeno, "no es una base de datos");
    Exportar({1, 2}, ArchivoCAD::AnexarAExistente, ajeno);
    EXPECT_EQ(caja.Mensajes.size(), 2U);
    EXPECT_EQ(Ultimo().Texto, "¡Se Exportaron ( 2 ) Losa(s) con Exito a Planex Estructural!");
    EXPECT_EQ(LeerArchivo(ajeno), "no es una base de datos");

    // The project itself has tables of the same names: they must not lose their rows.
    const std::string antes = LeerArchivo(aplicacion.ArchivoProyecto);
    Exportar({1, 2}, ArchivoCAD::AnexarAExistente, aplicacion.ArchivoProyecto);
    EXPECT_EQ(LeerArchivo(aplicacion.ArchivoProyecto), antes);
}

TEST_F(ExportarCAD_, LoQueNoSeConservaSePreguntaYQuedaAlLado) {
    const auto archivo = carpeta / "obra.cad", ocupado = carpeta / "obra (original).cad",
               original = carpeta / "obra (original 2).cad";
    Exportar({1}, ArchivoCAD::CrearNuevo, archivo);
    prueba::EscribirArchivo(ocupado, "de nadie");
    std::string antes = prueba::LeerArchivo(archivo);
    antes[0x44] ^= 1;  // a password
    prueba::EscribirArchivo(archivo, antes);
    for (const std::int16_t respuesta : {RespuestaAceptarONo, RespuestaCancelar, RespuestaSi}) {
        const bool sigue = respuesta == RespuestaSi;
        Exportar({2}, ArchivoCAD::AnexarAExistente, archivo, Planex2023, respuesta);
        const Mensaje& pregunta = caja.Mensajes.at(1);
        EXPECT_EQ(pregunta.Texto,
                  "obra.cad\nAl Anexar no se Conservan:\n- Su Contraseña o Cifrado\n"
                  "El Archivo Original quedará como: obra (original 2).cad\n¿Desea Usted Continuar?");
        EXPECT_EQ(pregunta.PorDefecto, 1);
        EXPECT_EQ(DisposicionDe(pregunta.Botones).Escape, RespuestaCancelar);
        EXPECT_EQ(prueba::LeerArchivo(sigue ? original : archivo), antes);
        EXPECT_EQ(Cuantas(archivo, "LosaDatos", "B NERVADA"), sigue ? 1 : 0);
    }
    EXPECT_EQ(prueba::LeerArchivo(ocupado), "de nadie");
    std::filesystem::create_directories(carpeta / "obra.cad.trabajo" / "ocupado");
    Exportar({1}, ArchivoCAD::AnexarAExistente, archivo);
    EXPECT_TRUE(Ultimo().Texto.starts_with("Error Número: 75\n")) << Ultimo().Texto;
}

TEST_F(ExportarCAD_, UnaComillaEnElNombreRompeSoloLoSuyo) {
    Losa losa = LosaContinua({4}, 300);
    losa.Nombre = "B O'HIGGINS";
    ProyectoAbierto& proyecto = aplicacion.Proyecto;
    ASSERT_TRUE(AgregarLosa(proyecto, losa));
    AbrirRecordset(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, ConsultaListaLosas);
    const auto archivo = carpeta / "obra.cad";
    for (const ArchivoCAD opcion : {ArchivoCAD::CrearNuevo, ArchivoCAD::AnexarAExistente}) {
        Exportar({1, 2, 3, 4}, opcion, archivo);
        EXPECT_EQ(Ultimo().Texto, "¡Se Exportaron ( 4 ) Losa(s) con Exito a Planex Estructural!");
    }
    // Its own rows could be neither read nor deleted; its neighbours stand once.
    EXPECT_THAT(Lineas(archivo, "LosaDatos", {"NT"}),
                ElementsAre("A MACIZA 2", "B NERVADA 3", "B O'HIGGINS 0", "B O'HIGGINS 0", "C SIN TRAMOS 0"));
}

}  // namespace
}  // namespace trabex::prueba
