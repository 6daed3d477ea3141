"""Runs the batch program as a script would and reads what it writes with another JSON parser."""

import json
import os
import pathlib
import re
import shutil
import sqlite3
import struct
import subprocess
import sys
import tempfile
import unittest

from corrida import EJEMPLO, LOTE, DelEjemplo, correr

PLANTILLA, ESQUEMAS = sys.argv[3], pathlib.Path(sys.argv[4])


class Lote(DelEjemplo):
    def setUp(self):
        carpeta = tempfile.TemporaryDirectory(prefix="lote ñ ")
        self.addCleanup(carpeta.cleanup)
        self.carpeta = pathlib.Path(carpeta.name)
        self.proyecto = self.carpeta / "Obra Año 1.los"
        shutil.copy(EJEMPLO, self.proyecto)

    def resultados(self, *opciones):
        """A run that draws nothing unless it is asked to."""
        corrida = correr(*(opciones or ["--solo=planex"]), self.proyecto, self.carpeta / "salida")
        self.assertEqual(corrida.returncode, 0, corrida.stderr)
        return json.loads((self.carpeta / "salida" / "resultados.json").read_text()), corrida.stdout

    def sql(self, *sentencias):
        with sqlite3.connect(self.proyecto) as base:
            for sentencia in sentencias:
                base.execute(sentencia)
        base.close()

    def test_el_ejemplo(self):
        """Every element is there; its values stand in the reports too, where the test of values reads them."""
        self.assertEqual(self.ejemplo.read_bytes(), EJEMPLO.read_bytes())
        self.assertEqual(sorted(os.listdir(self.salida)),
                         ["Trabajo", "escalerasH", "escalerasT", "losas", "planex", "reportes", "resultados.json"])
        self.assertEqual(self.documento["Proyecto"]["Calculista"], "ING. MARÍA NÚÑEZ")
        self.assertEqual((self.documento["LosaG"]["FC"], self.documento["EscaleraTG"]["FS"]), (250, 1.55))
        self.assertEqual(set(self.documento["EscaleraHG"]), {"FC", "FY", "D8", "FiMomento", "FiCorte", "FS"})
        for clave, cuantos in (("losas", 9), ("escalerasT", 5), ("escalerasH", 7), ("marcus", 2), ("analisisCarga", 3)):
            elementos = self.documento[clave]
            self.assertEqual(len(elementos), cuantos)
            for elemento in elementos:
                self.assertIn(elemento["Descripcion" if clave == "analisisCarga" else "Nombre"], self.resumen)
                self.assertNotIn("error", elemento)
        self.assertLessEqual({aviso["gravedad"] for losa in self.documento["losas"] for aviso in losa["avisos"]},
                             {"nota", "advertencia"})
        nombres = [losa["Nombre"] for losa in self.documento["losas"]]
        self.assertEqual(nombres, sorted(nombres))
        self.assertEqual([(a["ID"], a["Carga"]) for a in self.documento["analisisCarga"]], [(2741, 770), (6120, 690), (8893, 505)])

    def test_una_losa_que_no_se_sostiene_lo_dice(self):
        self.sql("UPDATE LosaEjes SET Tipo = 5")
        documento, _ = self.resultados()
        for losa in documento["losas"]:
            fallas = [aviso for aviso in losa["avisos"] if aviso["gravedad"] == "falla"]
            self.assertTrue(any("La losa no se sostiene" in aviso["texto"] for aviso in fallas), losa["Nombre"])
            self.assertIn(fallas[0]["lugar"], ["Eje " + eje["Eje"] for eje in losa["Ejes"]])

    def test_escaleras_sin_datos_y_tablas_que_faltan(self):
        self.sql("INSERT INTO EscaleraTDatos VALUES ('E-9', 'SIN DATOS')",
                 "INSERT INTO EscaleraHDatos VALUES ('H-9', NULL)",
                 "UPDATE EscaleraT SET HT = 0.025 WHERE Nombre LIKE 'E-2%'",
                 "UPDATE EscaleraH SET R = 0 WHERE Nombre LIKE 'H-2%'",
                 "UPDATE Marcus SET LX = 1e-200 WHERE Numero = 3",
                 "DELETE FROM EscaleraHG")
        documento, resumen = self.resultados()
        vacia = documento["escalerasT"][-1]
        self.assertEqual((vacia["L"], vacia["WT"], vacia["TramoT"], vacia["Alfa"]), (0, 0, [], 0))
        helice = documento["escalerasH"][-1]
        self.assertEqual((helice["Inter"], helice["TramoSuperior"], helice["L"]), (5, [], 0))
        self.assertNotIn("error", vacia | helice)
        self.assertEqual(documento["EscaleraHG"]["FC"], 250)
        fallida = documento["escalerasT"][1]
        self.assertIn("error", fallida)
        self.assertLess(fallida["TramoT"][0]["MomentoTotal"], 0)  # what stood before the fault
        self.assertEqual(documento["escalerasH"][1]["error"]["codigo"], 11)
        nivel = documento["marcus"][0]
        self.assertEqual(nivel["error"]["codigo"], 6)
        self.assertIn("error 11", documento["escalerasH"][1]["avisos"][0]["texto"])
        self.assertEqual([fila["CX"] > 0 for fila in nivel["Filas"]], [True, True, False, False, False])
        self.assertIn("División por cero", resumen)

        self.sql(*(f"DROP TABLE {tabla}" for tabla in (
            "EscaleraT", "EscaleraTG", "EscaleraHDatos", "EscaleraH", "EscaleraHG", "MarcusDatos", "Marcus",
            "AnalisisCargaG", "AnalisisCargaCP")))
        documento, _ = self.resultados()
        self.assertEqual([len(documento[clave]) for clave in ("escalerasT", "escalerasH", "marcus", "analisisCarga")],
                         [6, 0, 0, 0])
        self.assertEqual([e["L"] for e in documento["escalerasT"]], [0] * 6)
        self.assertEqual(documento["EscaleraTG"]["FS"], 1.55)
        self.assertGreaterEqual(len(documento["losas"]), 8)

    def test_un_proyecto_del_formato_anterior(self):
        esquemas = [ESQUEMAS / "LosaImagen.sql", ESQUEMAS / "Ejemplo Demostrativo.sql"]
        jet3 = pathlib.Path(__file__).parent.parent / "antiguo" / "escribir_jet3.py"
        for escritor in ([PLANTILLA, "--jet", self.proyecto, *esquemas],
                         [sys.executable, jet3, EJEMPLO, self.proyecto]):
            subprocess.run(escritor, check=True)
            antes = self.proyecto.read_bytes()
            documento, resumen = self.resultados()
            self.assertEqual((documento, resumen.split("Resultados:")[0]),
                             (self.documento, self.resumen.split("Resultados:")[0]))
            self.assertEqual(self.proyecto.read_bytes(), antes)
            self.proyecto.write_bytes(antes[:30000])
            self.assertEqual(correr("--solo=resultados", self.proyecto, self.carpeta / "otra").returncode, 3)

    def test_la_memoria_sola(self):
        self.resultados("--solo=memoria")
        self.assertEqual(sorted(a.name for a in (self.carpeta / "salida").iterdir()),
                         ["memoria.htm", "memoria.pdf", "memoria.rtf", "memoria.xls", "resultados.json"])
        imagenes = subprocess.run(["pdfimages", "-list", self.carpeta / "salida" / "memoria.pdf"], capture_output=True,
                                  text=True).stdout
        self.assertEqual(len(imagenes.splitlines()), 2, "its sheets are strokes, not pictures")
        sola = (self.carpeta / "salida" / "memoria.htm").read_bytes()
        self.resultados("--solo=memoria,reportes")  # with the reports' drawings
        self.assertEqual((self.carpeta / "salida" / "memoria.htm").read_bytes(), sola)

    def planex(self):
        """The exchange file's rows by table, as mdbtools reads them."""
        archivo = self.carpeta / "salida" / "planex" / "Obra Año 1.cad"
        self.assertEqual([entrada.name for entrada in archivo.parent.iterdir()], [archivo.name])
        copia = self.carpeta / "planex.db"
        copia.unlink(missing_ok=True)
        subprocess.run([pathlib.Path(LOTE).parent / "trabex-jet", archivo, copia], check=True)
        base = sqlite3.connect(copia)
        base.row_factory = sqlite3.Row
        self.addCleanup(base.close)
        tablas = subprocess.run(["mdb-tables", "-1", archivo], check=True, capture_output=True, text=True).stdout.split()
        odbc = subprocess.run(["isql", "-k", f"Driver=libmdbodbc.so;DBQ={archivo}", "-b", "-d,"], check=True, text=True,
                              input="select Nombre, NT from LosaDatos", capture_output=True).stdout.split("\n")
        self.assertEqual([linea for linea in odbc if linea],
                         [f"{nombre},{tramos}" for nombre, tramos in base.execute("SELECT Nombre, NT FROM LosaDatos")])
        return {tabla: [dict(fila) for fila in base.execute(f"SELECT * FROM {tabla}")] for tabla in tablas}

    def test_el_archivo_de_planex(self):
        self.sql("INSERT INTO LosaDatos (Nombre) VALUES ('Z SIN TRAMOS')")
        self.resultados()
        documento, _ = self.resultados()  # over an earlier output of its own
        tablas = self.planex()
        self.assertEqual(tablas["Proyecto"], [{
            "Proyecto": "EDIFICIO RESIDENCIAS LA CEIBA", "Cliente": "CONDOMINIO LA CEIBA",
            "Propietario": "INVERSIONES LA CEIBA, C.A.", "Responsable": "ING. MARÍA NÚÑEZ",
            "Comentario": "Cinco plantas y techo; losas nervadas en una dirección", "Fecha": "15/03/2024",
            "FC": 250, "FY": 4200, "RLosas": 0.025, "RVigas": 0.025, "RColumnas": 0.025, "DVigas": 0.05,
            "NormaSolape": 1, "RVigasR": 0.05, "RLosasR": 0.04, "OpcionDiametro": 0, "OpcionEspesor": 1,
            "ValorDatum": 0, "NMAX": 0, "LMax": 12}])
        fijos = {"EscLosa": 50, "EscPlano": 50, "Nervios": 1, "Ancho": 1, "Repeticiones": 0, "OK": 0,
                 "OpcionLosaF": 0}
        self.assertEqual(tablas["LosaDatos"], [{
            "Nombre": losa["Nombre"], "NT": len(losa["Tramos"]), "OpcionMaciza": int(losa["OpcionMaciza"]),
            "H": losa["Hm" if losa["OpcionMaciza"] else "Ho"],
            **{campo: None if losa["OpcionMaciza"] else losa[campo] for campo in ("Bo", "So", "Loseta")},
            **fijos} for losa in documento["losas"]])
        self.assertEqual(
            [(fila["Nombre"], fila["Eje"], fila["AsEje"], fila["AsTramo"]) for fila in tablas["LosaRefTeorico"]],
            [(losa["Nombre"], i, diseno["AS1"], tramo["AS2"])
             for losa in documento["losas"]
             for i, (diseno, tramo) in enumerate(zip(losa["DisenoEje"] or [{"AS1": 0}],
                                                     losa["DisenoTramo"] + [{"AS2": None}]), 1)])
        for tabla in ("LosaComputos", "LosaDefecto", "LosaIguales", "LosaNM", "LosaReparticion"):
            self.assertEqual(tablas[tabla], [])

    def test_un_archivo_de_planex_que_no_se_completa_deja_el_anterior(self):
        self.resultados()
        antes = self.planex()
        self.sql("UPDATE LosaEjes SET Eje = 'un eje de nombre más largo que su columna' WHERE Nombre = 'L-7 TECHO'",
                 "UPDATE LosaTramos SET LT = 4", "DELETE FROM LosaDatos WHERE Nombre <> 'L-7 TECHO'")
        corrida = correr("--solo=hojas,planex", self.proyecto, self.carpeta / "salida")
        self.assertEqual(corrida.returncode, 1)
        self.assertEqual(self.planex(), antes)
        linea, = corrida.stderr.splitlines()
        self.assertIn('Obra Año 1.cad de losa "L-7 TECHO"', linea)
        self.assertIn("L-7 TECHO", corrida.stdout)
        self.assertEqual(len(list((self.carpeta / "salida" / "losas").iterdir())), 4)  # the sheets all the same

    def test_un_archivo_de_planex_que_otro_programa_cambio_queda_al_lado(self):
        self.resultados()
        archivo = self.carpeta / "salida" / "planex" / "Obra Año 1.cad"
        ajeno = archivo.read_bytes() + bytes(4096)
        archivo.write_bytes(ajeno)
        dichas = [self.resultados()[1] for _ in range(2)]
        original = archivo.with_name("Obra Año 1 (original).cad")
        self.assertEqual(original.read_bytes(), ajeno)
        self.assertEqual(["queda como: " + str(original) in dicha for dicha in dichas], [True, False])
        original.unlink()
        self.planex()

    def test_los_errores_quedan_escritos(self):
        self.sql("DELETE FROM LosaDatos WHERE Nombre <> 'L-1 PLANTA BAJA'",
                 "INSERT INTO LosaDatos (Nombre) VALUES ('SIN TRAMOS')",
                 "INSERT INTO LosaDatos (Nombre) VALUES ('O''Brien \"x\"' || char(10))",
                 "INSERT INTO LosaDatos (Nombre) VALUES (CAST(x'4CEDA080' AS TEXT))",  # half a surrogate pair
                 "INSERT INTO LosaJuntasD VALUES ('L-1 PLANTA BAJA', 9, 0, 0)")
        documento, resumen = self.resultados()
        losas = {losa["Nombre"]: losa for losa in documento["losas"]}
        self.assertEqual(losas["L-1 PLANTA BAJA"]["error"],
                         {"codigo": 9, "texto": "El subíndice está fuera del intervalo"})
        self.assertIn("El subíndice", resumen)
        self.assertEqual(losas["SIN TRAMOS"]["DisenoEje"], [])
        self.assertIn('O\'Brien "x"\n', losas)
        self.assertIn("L\uFFFD\uFFFD\uFFFD", losas)

    def test_cada_losa_tiene_sus_hojas(self):
        self.sql("UPDATE LosaDatos SET Nombre='L/8: \"TECHO\"' WHERE Nombre='L-8 SALA DE MÁQUINAS'",
                 "DELETE FROM LosaDatos WHERE Nombre < 'L-8' AND Nombre > 'L-2'")
        documento, _ = self.resultados("--solo=hojas")
        hojas = self.carpeta / "salida" / "losas"
        for numero, losa in enumerate(documento["losas"], 1):
            nombre = "".join("_" if c in '\\/:*?"<>|' else c for c in losa["Nombre"])
            for vista in ("geometria", "fuerzas", "diseno"):
                png = (hojas / f"{numero}-{nombre}-{vista}.png").read_bytes()
                self.assertEqual(struct.unpack(">4s2I", png[12:24]), (b"IHDR", 940, 580))
            papel = (hojas / f"{numero}-{nombre}-papel.pdf").read_bytes()
            self.assertEqual(papel.count(b"/Type /Page\n"), 3)
        self.assertEqual(len(os.listdir(hojas)), 4 * len(documento["losas"]))

        def papeles():
            return [re.sub(rb"/CreationDate.*", b"", papel.read_bytes()) for papel in sorted(hojas.glob("*papel.pdf"))]
        primeros = papeles()
        for _ in range(3):  # each run is another, but for its date, where the toolkit orders fonts by chance
            self.resultados("--solo=hojas")
            self.assertEqual(papeles(), primeros)

    def test_cada_elemento_tiene_sus_reportes(self):
        self.assertEqual(sorted(os.listdir(self.salida / "reportes")),
                         sorted(f"{cual}.{formato}" for formato in ("htm", "pdf", "rtf", "xls")
                                for cual in ("analisisCarga-resultados", "escalerasH-graficos", "escalerasH-resultados",
                                             "escalerasT-graficos", "losas-graficos", "losas-resultados",
                                             "marcus-1-NIVEL 1", "marcus-2-TECHO")))
        self.assertEqual(len(os.listdir(self.salida / "escalerasH")), 2 * len(self.documento["escalerasH"]))

    def test_se_escribe_lo_que_se_pide(self):
        self.sql("DELETE FROM LosaDatos WHERE Nombre <> 'L-7 TECHO'", "DELETE FROM MarcusDatos")
        pedidos = ((["--solo=resultados"], []), (["--solo=planex,resultados"], ["planex"]),
                   (["--sin-dibujos", "--solo=hojas,planex"], ["planex"]),
                   (["--solo=reportes", "--sin-dibujos"], ["Trabajo", "reportes"]))
        for k, (opciones, partes) in enumerate(pedidos):
            carpeta = self.carpeta / str(k)
            corrida = correr(*opciones, self.proyecto, carpeta)
            self.assertEqual((corrida.returncode, corrida.stderr), (0, ""))
            self.assertEqual(sorted(os.listdir(carpeta)), sorted(partes + ["resultados.json"]))
        self.assertEqual(sorted(os.listdir(carpeta / "reportes")),
                         [f"{cual}-resultados.{formato}" for cual in ("analisisCarga", "escalerasH", "losas")
                          for formato in ("htm", "pdf", "rtf", "xls")])

    def test_ningun_valor_ensancha_el_resumen(self):
        self.sql("DELETE FROM LosaDatos WHERE Nombre <> 'L-7 TECHO'",
                 f"INSERT INTO LosaDatos (Nombre) VALUES ('{'Ñ' * 300}')",
                 "INSERT INTO LosaTramos VALUES ('L-7 TECHO', 9, 1e200, 1e100, 0, NULL, NULL)")
        _, resumen = self.resultados("--solo=resultados")
        self.assertIn("Ñ" * 39 + "…", resumen)
        self.assertRegex(resumen, r"L-7 TECHO .* 1,00e\+200 ")

    def test_un_reporte_que_no_se_puede_escribir_deja_los_otros(self):
        self.sql("DELETE FROM LosaDatos WHERE Nombre <> 'L-7 TECHO'")
        (self.carpeta / "salida" / "reportes" / "losas-resultados.xls").mkdir(parents=True)
        corrida = correr("--solo=reportes", "--sin-dibujos", self.proyecto, self.carpeta / "salida")
        self.assertEqual(corrida.returncode, 1)
        linea, = corrida.stderr.splitlines()
        self.assertIn("losas-resultados.xls", linea)
        for formato in ("htm", "pdf", "rtf"):
            self.assertGreater((self.carpeta / "salida" / "reportes" / f"losas-resultados.{formato}").stat().st_size, 0)

    def test_lo_que_no_se_puede(self):
        for opciones in (["--solo="], ["--solo=dibujos"], ["--solo=hojas,"], ["--con-dibujos"]):
            self.assertEqual(correr(*opciones, self.proyecto, self.carpeta / "salida").returncode, 2)
        self.assertEqual(correr().returncode, 2)
        self.assertEqual(correr(self.proyecto).returncode, 2)
        (self.carpeta / "carta.los").write_text("no es un proyecto")
        for malo in ("carta.los", "no existe.los", "."):
            corrida = correr(self.carpeta / malo, self.carpeta / "salida")
            self.assertEqual(corrida.returncode, 3)
            self.assertEqual(len(corrida.stderr.splitlines()), 1)
        (self.carpeta / "archivo").write_text("")
        self.assertEqual(correr(self.proyecto, self.carpeta / "archivo").returncode, 1)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
