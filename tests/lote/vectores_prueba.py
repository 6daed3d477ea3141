"""The SVG and DXF drawings of the batch program, read with programs of others, under a locale with a decimal comma."""

import collections
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml

import ezdxf
from corrida import DelEjemplo
from ezdxf.lldxf.encoding import decode_dxf_unicode

NOMBRE = 'A 1 Ñandú Ω ^J %%c \\U+0041 <b>&"'  # with what each format writes in its own way
CAPAS = {"geometria": "COTAS", "fuerzas": "DIAGRAMAS", "diseno": "TABLA"}
SVG = "{http://www.w3.org/2000/svg}"


def textos_de(dxf):
    return [decode_dxf_unicode(texto.dxf.text).strip() for texto in dxf.query("TEXT")]


class Vectores(DelEjemplo):
    opciones = ("--solo=vectores",)

    @classmethod
    def setUpClass(cls):
        locales = tempfile.TemporaryDirectory()
        cls.addClassCleanup(locales.cleanup)
        subprocess.run(["localedef", "-i", "es_ES", "-f", "UTF-8", locales.name + "/es_ES.UTF-8"], check=True)
        cls.entorno = {"LOCPATH": locales.name, "LC_ALL": "es_ES.UTF-8"}
        super().setUpClass()

    @classmethod
    def preparar(cls, base):
        """A level slab, a cantilever, one with a step; a stair and a helix."""
        for tabla, quedan in (("LosaDatos", "135"), ("EscaleraTDatos", "1"), ("EscaleraHDatos", "1")):
            base.execute(f"DELETE FROM {tabla} WHERE instr(?, substr(Nombre, 3, 1)) = 0", (quedan,))
        for tabla in ("LosaDatos", "LosaTramos", "LosaEjes", "LosaJuntasD"):
            base.execute(f"UPDATE {tabla} SET Nombre=? WHERE Nombre LIKE 'L-1 %'", (NOMBRE,))

    def dibujos(self, patron):
        caminos = sorted(self.salida.glob(patron + ".dxf"))
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
        self.assertEqual(self.documento["losas"][0]["Nombre"], NOMBRE)
        for camino, dxf in self.dibujos("losas/*"):
            losa = self.documento["losas"][int(camino.name.split("-")[0]) - 1]
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
