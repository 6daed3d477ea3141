// Layouts: what they say of the rows, and what they are told when they are wrong.

#include "ReportePreparado.h"

namespace trabex::prueba {

using namespace documento;
namespace {

class Disenos : public ReportePreparado {
  protected:
    std::string Falta(const std::string& diseno) {
        try {
            Abrir(diseno).Contenido();
        } catch (const ErrorEjecucion& error) {
            EXPECT_EQ(error.Codigo(), 321);
            return error.Texto();
        }
        return "";
    }
    template <class T>
    static std::vector<T> Bloques(const Documento& documento) {
        std::vector<T> hallados;
        for (const Seccion& seccion : documento.Secciones) {
            for (const Bloque& bloque : seccion.Bloques) {
                if (const auto* uno = std::get_if<T>(&bloque)) hallados.push_back(*uno);
            }
        }
        return hallados;
    }
    static std::vector<Losa> DosLosas() {
        Losa a = LosaContinua({4, 5, 6}, 300, 100);
        Losa b = LosaContinua({7, 8}, 300, 100);
        a.Nombre = "B'1";
        b.Nombre = "A 2";
        b.OpcionMaciza = true;
        return {a, b};
    }
};

TEST_F(Disenos, LosErroresDicenArchivoLineaYNombre) {
    Preparar(DosLosas());
    for (const auto& [maqueta, falta] : {
             std::pair{"\ntabal LosaDatos\nfin\n", "línea 2: no existe el elemento \"tabal\""},
             {"tabla LosaNada\ncolumna \"x\" x\nfin\n", "línea 1: no existe la tabla \"LosaNada\""},
             {"parrafo \"a\"\ntabla LosaDatos # con\n columna \"x\" Boo\nfin\n",
              "línea 3: no existe la columna \"Boo\""},
             {"parrafo \"{Generales.Titulito}\"\n", "línea 1: no existe la columna \"Generales.Titulito\""},
             {"grupo LosaDatos\nsi Bo\nparrafo \"{Bo}\"\nsino\nparrafo \"{Nada}\"\nfin\nfin\n",
              "línea 5: no existe la columna \"Nada\""},
             {"tabla LosaTramos orden Nada\ncolumna \"x\" x\nfin\n",
              "línea 1: no existe la columna \"LosaTramos.Nada\""},
             {"grupo Grafico\nimagen Losa\nfin\n", "línea 2: no existe la imagen \"Losa\""},
             {"grupo Grafico\nparrafo \"{Grafico}\"\nfin\n", "línea 2: no existe la columna \"Grafico\""},
             {"\n\nseccion \"a\"\n", "línea 3: falta el \"fin\" de lo que empieza aquí"},
             {"parrafo \"a\n", "línea 1: faltan las comillas que cierran"},
             {"parrafo \"{Bo\"\n", "línea 1: falta } en \"{Bo\""},
             {"encabezado 4 \"a\"\n", "línea 1: el nivel de un encabezado es 1, 2 o 3"},
             {"pagina A3\n", "línea 1: no existe la página \"A3\""},
             {"salto ya\n", "línea 1: sobra \"ya\""},
             {"tabla LosaDatos\ncolumna \"x\" lado arriba\nfin\n", "línea 2: no existe el lado \"arriba\""},
             {"tabla LosaDatos\ncolumna \"x\"\nfila Bo Ho\nfin\n",
              "línea 3: la fila tiene más celdas que la tabla"},
             {"tabla LosaDatos\ncolumna \"x\" Bo\ntotal media:Bo\nfin\n",
              "línea 3: no existe el total \"media:Bo\""},
             {"parrafo \"a\"\nsubreporte \"prueba.rpt\"\n",
              "línea 2: el reporte \"prueba.rpt\" se contiene a sí mismo"},
         })
        EXPECT_EQ(Falta(maqueta), std::string("prueba.rpt, ") + falta) << maqueta;
    EXPECT_EQ(CodigoDe([&] { Abrir("NoExiste.rpt"); }), 53);
}

TEST_F(Disenos, LasFilasSeEnlazanOrdenanYTotalizan) {
    Preparar(DosLosas());
    Reporte reporte = Abrir(
        "grupo LosaDatos orden Nombre\n"
        "  parrafo \"{Nombre}: {OpcionMaciza:Maciza|Nervada}, {Generales.Version}\"\n"
        "  tabla LosaTramos con Nombre orden Numero\n"
        "    columna \"n\"\n    columna \"L\"\n    columna \"eje\"\n"
        "    fila Numero L EjeA\n    fila ultima - - EjeB\n"
        "    total cuenta:L suma:L \"{LosaDatos.Nombre}\"\n    total minimo:L maximo:L\n"
        "  fin\nfin\n"
        "grupo LosaTramos por Nombre\n  destacado \"{Nombre} {Numero}\"\nfin\n");
    const Documento& documento = reporte.Contenido();
    const auto parrafos = Bloques<Parrafo>(documento);
    ASSERT_EQ(parrafos.size(), 4U);
    EXPECT_EQ(parrafos[0].Texto, "A 2: Maciza, 2024");
    EXPECT_EQ(parrafos[1].Texto, "B'1: Nervada, 2024");
    EXPECT_EQ(parrafos[2].Texto, "B'1 1");  // as they were staged
    EXPECT_EQ(parrafos[3].Texto, "A 2 1");
    const auto tablas = Bloques<Tabla>(documento);
    ASSERT_EQ(tablas.size(), 2U);
    std::string textos;
    for (const FilaDeTabla& fila : tablas[1].Filas) {
        for (const Valor& celda : fila.Celdas) textos += TextoDeValor(celda, "", {}) + ";";
        textos += fila.Destacada ? "T|" : "|";
    }
    EXPECT_EQ(textos, "1;4;1;|2;5;2;|3;6;3;|;;4;|3;15;B'1;T|4;6;;T|");
}

TEST_F(Disenos, UnSubreporteLeeLaBaseDelPrograma) {
    Preparar(DosLosas());
    EscribirArchivo(carpeta / "dentro.rpt",
                    "base \"C:\\\\viejo\\\\Temporal.mdb\"\n"
                    "tabla LosaEjes con Nombre\ncolumna \"Eje\" Eje\nfin\n");
    Reporte reporte = Abrir("base \"otra.mdb\"\ngrupo LosaDatos\nsubreporte \"dentro.rpt\"\nfin\n");
    EXPECT_EQ(reporte.Subreportes().at(0).Tablas.at(0).Ubicacion, base);
    const auto tablas = Bloques<Tabla>(reporte.Contenido());
    ASSERT_EQ(tablas.size(), 2U);
    EXPECT_EQ(tablas[0].Filas.size(), 4U);
    EXPECT_EQ(tablas[1].Filas.size(), 3U);
}

TEST_F(Disenos, SinDatosElReporteSaleVacio) {
    for (const char* diseno : {"ResultadosLosa.rpt", "Grafico.rpt"}) {
        Reporte reporte = Abrir(diseno);  // there is no database
        EXPECT_TRUE(Bloques<Tabla>(reporte.Contenido()).empty());
        Exportar(reporte, FormatoPdf, "vacio.pdf");
        EXPECT_TRUE(Correr("pdfinfo", {Ruta(carpeta / "vacio.pdf")}).contains("Pages:           1"));
    }
    Losa sinTramos;
    sinTramos.Nombre = "VACÍA";
    Preparar({sinTramos});
    Reporte reporte = Abrir("ResultadosLosa.rpt");
    EXPECT_EQ(Bloques<Parrafo>(reporte.Contenido()).back().Texto, "La losa no tiene tramos.");
    // What was composed serves until it is discarded.
    std::filesystem::remove(base);
    EXPECT_FALSE(Bloques<Parrafo>(reporte.Contenido()).empty());
    reporte.DescartarDatos();
    EXPECT_EQ(Bloques<Parrafo>(reporte.Contenido()).size(), 1U);
}

}  // namespace
}  // namespace trabex::prueba
