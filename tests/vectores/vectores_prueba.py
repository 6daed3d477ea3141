"""The SVG and DXF drawings of the batch program, read with programs of others, under a locale with a decimal comma."""

import collections
import json
import os
import pathlib
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml

import ezdxf
from ezdxf.lldxf.encoding import decode_dxf_unicode

LOTE, IMAGEN = sys.argv[1], pathlib.Path(sys.argv[2])
NOMBRE = 'A 1 Ñandú Ω ^J %%c \\U+0041 <b>&"'  # with what each format writes in its own way
CAPAS = {"geometria": "COTAS", "fuerzas": "DIAGRAMAS", "diseno": "TABLA"}
SVG = "{http://www.w3.org/2000/svg}"


def textos_de(dxf):
    return [decode_dxf_unicode(texto.dxf.text).strip() for texto in dxf.query("TEXT")]


class Vectores(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        carpeta = tempfile.TemporaryDirectory(prefix="vectores ñ ")
        cls.addClassCleanup(carpeta.cleanup)
        cls.carpeta = pathlib.Path(carpeta.name)
        proyecto = cls.carpeta / "Obra.los"
        shutil.copy(IMAGEN / "Ejemplo Demostrativo.tbx", proyecto)
        with sqlite3.connect(proyecto) as base:
            for tabla in ("LosaDatos", "LosaTramos", "LosaEjes", "LosaJuntasD"):
                base.execute(f"UPDATE {tabla} SET Nombre=? WHERE Nombre LIKE 'L-1 %'", (NOMBRE,))
        base.close()
        locales = cls.carpeta / "locales"
        locales.mkdir()
        subprocess.run(["localedef", "-i", "es_ES", "-f", "UTF-8", locales / "es_ES.UTF-8"], check=True)
        corrida = subprocess.run([LOTE, "--solo=vectores", proyecto, cls.carpeta / "salida"], capture_output=True, text=True,
                                 env={**os.environ, "LOCPATH": str(locales), "LC_ALL": "es_ES.UTF-8"})
        assert corrida.returncode == 0, corrida.stderr
        cls.losas = json.loads((cls.carpeta / "salida" / "resultados.json").read_text())["losas"]

    def dibujos(self, patron):
        caminos = sorted((self.carpeta / "salida").glob(patron + ".dxf"))
        self.assertTrue(caminos)
        return [(camino, ezdxf.readfile(camino)) for camino in caminos]

    def test_otros_leen_lo_mismo_en_los_dos_formatos(self):
        for camino, dxf in self.dibujos("*/*"):
            revision = dxf.audit()
            self.assertEqual((revision.errors, revision.fixes), ([], []), camino)
            svg = xml.parse(camino.with_suffix(".svg")).getroot()
            textos = collections.Counter("".join(texto.itertext()).strip() for texto in svg.iter(SVG + "text"))
            textos.pop("", None)
            self.assertEqual(textos, collections.Counter(textos_de(dxf)), camino)
            pintado = subprocess.run(["rsvg-convert", camino.with_suffix(".svg")], capture_output=True, check=True).stdout
            self.assertEqual(pintado[16:24], (940).to_bytes(4, "big") + (580).to_bytes(4, "big"))

    def test_el_dibujo_esta_en_metros_y_con_su_nombre(self):
        self.assertEqual(self.losas[0]["Nombre"], NOMBRE)
        for camino, dxf in self.dibujos("losas/*"):
            losa = self.losas[int(camino.name.split("-")[0]) - 1]
            luces = [tramo["LT"] for tramo in losa["Tramos"]]
            ejes = [sum(luces[:i]) - sum(luces) / 2 for i in range(len(luces) + 1)]
            for junta in losa["JuntasD"]:
                ejes[junta["Junta"] - 1] += junta["x"]
            circulos = [circulo.dxf.center.x for circulo in dxf.query("CIRCLE") if abs(circulo.dxf.radius - 0.26) < 1e-3]
            self.assertEqual(len(circulos), len(ejes))
            for circulo, eje in zip(sorted(circulos), sorted(ejes)):
                self.assertAlmostEqual(circulo, eje, delta=0.001)
            self.assertIn(losa["Nombre"], textos_de(dxf))
            propia = next(capa for vista, capa in CAPAS.items() if f"-{vista}" in camino.stem)
            self.assertEqual({figura.dxf.layer for figura in dxf.modelspace()},
                             {"LOSA", "EJES", "APOYOS", "CARGAS", "TEXTOS", propia})
            self.assertTrue(all(eje.dxf.layer == "EJES" for eje in dxf.query("CIRCLE") if abs(eje.dxf.radius - 0.26) < 1e-3))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
