"""HTML reports printed by a real browser: where their pages break."""

import concurrent.futures
import html
import re
import shutil
import subprocess
import sys
import unittest

from corrida import DelEjemplo

NAVEGADOR = shutil.which("chromium")


def junto(texto):
    return " ".join(texto.split())


def limpio(marcado):
    return junto(html.unescape(re.sub(r"<[^>]*>", " ", marcado)))


def leer(archivo):
    """Headings of a report, and of each section that must stay together its lines in order; not those over columns, whose
    lines stand side by side on paper."""
    texto = re.sub(r"(?s)<thead>.*?</thead>", "", archivo.read_text())
    secciones = re.findall(r'(?s)<div id="[^"]*"([^>]*)>(.*?)(?=<div id=|\Z)', texto)
    lineas = [[limpio(linea) for linea in re.findall(r"(?s)<(?:h\d|p|tr)\b[^>]*>(.*?)</(?:h\d|p|tr)>", dentro)]
              for clase, dentro in secciones if "junta" in clase]
    return {limpio(titulo) for titulo in re.findall(r"(?s)<h\d\b[^>]*>(.*?)</h\d>", texto)}, [[*filter(None, l)] for l in lineas]


class Impresion(DelEjemplo):
    opciones = ("--solo=reportes,memoria",)

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        archivos = [cls.salida / "reportes" / "losas-resultados.htm", cls.salida / "reportes" / "losas-graficos.htm",
                    cls.salida / "memoria.htm"]
        with concurrent.futures.ThreadPoolExecutor(2) as manos:
            cls.paginas = dict(zip(("resultados", "graficos", "memoria"), manos.map(cls.imprimir, archivos)))
        cls.titulos, cls.juntas = (dict(zip(cls.paginas, cuales)) for cuales in zip(*map(leer, archivos)))

    @staticmethod
    def imprimir(archivo):
        """The lines of each page."""
        pdf = archivo.with_suffix(".impreso.pdf")
        subprocess.run([NAVEGADOR, "--headless", "--no-sandbox", "--disable-gpu", "--no-pdf-header-footer",
                        f"--user-data-dir={archivo.with_suffix('.perfil')}", f"--print-to-pdf={pdf}", archivo.as_uri()],
                       check=True, capture_output=True)
        texto = subprocess.run(["pdftotext", "-layout", pdf, "-"], check=True, capture_output=True, text=True).stdout
        return [[junto(linea) for linea in pagina.splitlines() if linea.strip()] for pagina in texto.split("\f")[:-1]]

    def test_ningun_titulo_queda_al_pie_ni_hay_hojas_vacias(self):
        for nombre, paginas in self.paginas.items():
            for numero, lineas in enumerate(paginas, 1):
                with self.subTest(nombre, pagina=numero):
                    self.assertTrue(lineas)
                    self.assertNotIn(lineas[-1], self.titulos[nombre])

    def test_cada_losa_queda_en_su_hoja(self):
        hojas = [junto(" ".join(lineas)) for lineas in self.paginas["resultados"]]
        for losa in self.juntas["resultados"]:
            with self.subTest(losa[0]):
                hoja = next(hoja for hoja in hojas if losa[0] in hoja)
                desde = hoja.index(losa[0])
                for texto in losa[1:]:
                    self.assertIn(texto, hoja[desde:])

    def test_los_dibujos_de_una_losa_no_se_mezclan_con_los_de_otra(self):
        pies = [{linea.split(":")[0] for linea in lineas if ": " in linea and linea.split(":")[0].startswith("L-")}
                for lineas in self.paginas["graficos"]]
        self.assertTrue(all(len(losas) == 1 for losas in pies), pies)


if __name__ == "__main__":
    if not NAVEGADOR:
        print("chromium is not installed")
        sys.exit(77)
    unittest.main(argv=sys.argv[:1])
