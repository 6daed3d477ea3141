"""Runs the batch program as a script would and reads what it writes with another JSON parser."""

import json
import os
import pathlib
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import unittest

LOTE, IMAGEN = sys.argv[1], pathlib.Path(sys.argv[2])


def correr(*argumentos):
    return subprocess.run([LOTE, *map(str, argumentos)], capture_output=True, text=True)


class Lote(unittest.TestCase):
    def setUp(self):
        carpeta = tempfile.TemporaryDirectory(prefix="lote ñ ")
        self.addCleanup(carpeta.cleanup)
        self.carpeta = pathlib.Path(carpeta.name)
        self.proyecto = self.carpeta / "Obra Año 1.los"
        shutil.copy(IMAGEN / "Ejemplo Demostrativo.tbx", self.proyecto)

    def resultados(self):
        corrida = correr(self.proyecto, self.carpeta / "salida")
        self.assertEqual(corrida.returncode, 0, corrida.stderr)
        return json.loads((self.carpeta / "salida" / "resultados.json").read_text()), corrida.stdout

    def sql(self, *sentencias):
        with sqlite3.connect(self.proyecto) as base:
            for sentencia in sentencias:
                base.execute(sentencia)
        base.close()

    def test_el_ejemplo_equilibra_sus_cargas(self):
        antes = self.proyecto.read_bytes()
        documento, resumen = self.resultados()
        self.assertEqual(self.proyecto.read_bytes(), antes)
        self.assertEqual(os.listdir(self.carpeta / "salida"), ["resultados.json"])
        self.assertEqual(documento["Proyecto"]["Calculista"], "ING. MARÍA NÚÑEZ")
        self.assertEqual(documento["LosaG"]["FC"], 250)
        self.assertGreaterEqual(len(documento["losas"]), 8)
        nombres = [losa["Nombre"] for losa in documento["losas"]]
        self.assertEqual(nombres, sorted(nombres))
        for losa in documento["losas"]:
            self.assertIn(losa["Nombre"], resumen)
            self.assertNotIn("error", losa)
            tramos, ejes = len(losa["Tramos"]), len(losa["Ejes"])
            self.assertEqual(ejes, tramos + 1)
            self.assertEqual([len(caso) for caso in losa["ResultadoJunta"]], [ejes, ejes])
            self.assertEqual([len(caso) for caso in losa["ResultadoTramo"]], [tramos, tramos])
            self.assertEqual((len(losa["DisenoEje"]), len(losa["DisenoTramo"])), (ejes, tramos))
            for caso, carga in ((0, "Wp"), (1, "WV")):
                juntas = losa["ResultadoJunta"][caso]
                total = sum(t[carga] * ((b["x"] - a["x"]) ** 2 + (b["y"] - a["y"]) ** 2) ** 0.5
                            for t, a, b in zip(losa["Tramos"], juntas, juntas[1:]))
                if caso == 0:
                    total += sum(t["p1"] for t in losa["Tramos"])
                self.assertAlmostEqual(sum(j["RV"] for j in juntas), total, delta=0.5)

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

    def test_lo_que_no_se_puede(self):
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
