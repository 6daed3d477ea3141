"""A whole slab job in the real program: create, enter, see, change, rename, copy, delete, reopen; the file and the
batch program's numbers against a solution by hand."""

import json
import math
import pathlib
import subprocess
import sys

from escritorio import CAJA, PRINCIPAL, correr, crear_proyecto, filas

LOSAS = "Trabex 2024   Proyecto:[OBRA.LOS]"
DATOS = "Datos Generales Losa: "
# second, third, ninth and twelfth of the workspace's tool bar
BOTON_GENERALES, BOTON_NUEVA, BOTON_EXPORTAR, BOTON_PLANEX = (58, 42), (98, 42), (304, 42), (403, 42)
LUCES, WP, WV = (5.2, 4.8, 5.2), 290, 90


def abrir_losas(e):
    e.teclas("alt+c", "Return")
    return e.ventana(LOSAS)


def entrar(e, *textos):
    for texto in textos:
        e.escribir(texto)
        e.teclas("Return")


def entrar_datos(e):
    """Five pages by keyboard; counts and joints past the slab are refused on the way."""
    e.ventana(DATOS + "Nivel 1")
    e.teclas("ctrl+Next")
    entrar(e, "3", "5.20", "4,80", "5.2")
    e.teclas("Tab")
    entrar(e, "A", "B", "C", "D")
    e.teclas("ctrl+Next")
    entrar(e, "9")
    e.ventana(CAJA)
    e.teclas("Return")
    e.ventana(DATOS + "Nivel 1")
    e.teclas("ctrl+Next")
    entrar(e, "1", "2", "2", "6")
    e.ventana(CAJA)
    e.teclas("Return")
    e.ventana(DATOS + "Nivel 1")
    entrar(e, "2")
    e.teclas("ctrl+Next")
    e.teclas("alt+u")
    e.ventana("CARGA UNIFORME")
    e.escribir(str(WP))
    e.teclas("Tab")
    entrar(e, str(WV))
    e.teclas("alt+i")
    e.ventana(CAJA)
    e.teclas("Return")
    e.ventana(DATOS + "Nivel 1")
    e.teclas("ctrl+s")
    e.respiro()
    e.teclas("alt+r")
    e.ventana(LOSAS)


def comprobar_archivo(obra, nombre):
    assert filas(obra, f"SELECT OpcionMaciza, Bo, Ho, So, Bm, Hm, Loseta FROM LosaDatos WHERE Nombre='{nombre}'") == [
        (0, 0.1, 0.25, 0.5, 1, 0.2, 0.05)]
    assert filas(obra, f"SELECT LT, Wp, WV, p1, L1 FROM LosaTramos WHERE Nombre='{nombre}' ORDER BY Numero") == [
        (L, WP, WV, 0, 0) for L in LUCES]
    assert filas(obra, f"SELECT Eje, Tipo FROM LosaEjes WHERE Nombre='{nombre}' ORDER BY Numero") == [
        ("A", 1), ("B", 2), ("C", 2), ("D", 2)]
    assert filas(obra, f"SELECT * FROM LosaJuntasD WHERE Nombre='{nombre}'") == []


def comprobar_resultados(e, obra, fc):
    """Symmetric three spans: M (2 (L1 + L2) + L2) = -w (L1^3 + L2^3) / 4, by the theorem of three moments."""
    lote = pathlib.Path(sys.argv[1]).with_name("trabex-lote")
    subprocess.run([lote, obra, e.carpeta / "salida"], check=True, stdout=subprocess.DEVNULL)
    losa, = json.loads((e.carpeta / "salida" / "resultados.json").read_text())["losas"]
    L1, L2, _ = LUCES
    momentos = [-w * (L1**3 + L2**3) / 4 / (2 * (L1 + L2) + L2) for w in (WP, WV)]
    for caso, momento in enumerate(momentos):
        calculado = losa["ResultadoTramo"][caso][0]["MomentoB"]
        assert abs(calculado - momento) < 1e-3, (calculado, momento)
    Mu = -(1.2 * momentos[0] + 1.6 * momentos[1]) * 100 / 0.9
    b, d = 10, 22.5
    omega = (1 - math.sqrt(1 - 4 * 0.59 * Mu / (fc * b * d * d))) / (2 * 0.59)
    acero = omega * fc * b * d / 4200
    assert abs(losa["DisenoEje"][1]["AS1"] - acero) < 0.002, (losa["DisenoEje"][1], acero)


def exportar(e):
    """The selected slab as a PDF report, and to the drawing program."""
    e.pulsar(e.ventana(LOSAS), *BOTON_EXPORTAR)
    e.ventana("EXPORTAR LOS RESULTADOS")
    e.teclas("Return")
    e.ventana("IMPRIMIR Y EXPORTAR EL REPORTE")
    e.teclas("Down", "Return")
    e.ventana("Exportar el Reporte a formato: Adobe Acrobat(PDF)")
    e.escribir("azotea.pdf")
    e.teclas("Return")
    e.ventana(CAJA)   # open it?
    e.teclas("Tab", "Return")
    e.ventana(LOSAS, sola=True)   # question and report window closed at once
    pdf = e.usuario / "ReportesExportados" / "azotea.pdf"
    assert pdf.read_bytes().startswith(b"%PDF")
    assert [nombre for nombre, in filas(e.usuario / "Trabajo" / "Temporal.mdb", "SELECT Nombre FROM LosaDatos")] == ["Azotea"]

    e.pulsar(e.ventana(LOSAS), *BOTON_PLANEX)
    e.ventana("EXPORTAR A Planex ESTRUCTURAL")
    e.teclas("Return")   # edition 2023
    e.respiro()
    e.ventana("EXPORTAR A Planex ESTRUCTURAL")
    e.teclas("Escape")
    e.ventana(LOSAS)


def losa_de_libro(e, obra):
    """Three spans, their axes and loads, from the command to the sheets, with few keys; then it is deleted."""
    pulsadas = 0

    def pulsar(*teclas):
        nonlocal pulsadas
        for tecla in teclas:
            pulsadas += 1
            (e.teclas if "+" in tecla or len(tecla) > 1 else e.escribir)(tecla)

    pulsar("ctrl+n")
    e.ventana("CREAR NUEVA LOSA")
    pulsar("T", "Return")
    e.ventana(DATOS + "T")
    pulsar("ctrl+Next", "3", "Return", "5", "Return", "4", "Return", "5", "Tab", "A", "ctrl+d")
    pulsar("ctrl+Next", "ctrl+Next", "ctrl+Next", *"300", "ctrl+d", "Tab", *"100", "ctrl+d", "ctrl+s")
    e.respiro()
    pulsar("alt+r")
    e.ventana(LOSAS)
    assert pulsadas < 40, pulsadas
    assert filas(obra, "SELECT LT, Wp, WV FROM LosaTramos WHERE Nombre='T' ORDER BY Numero") == [
        (5, 300, 100), (4, 300, 100), (5, 300, 100)]
    assert filas(obra, "SELECT Eje, Tipo FROM LosaEjes WHERE Nombre='T' ORDER BY Numero") == [
        ("A", 1), ("B", 1), ("C", 1), ("D", 1)]
    e.teclas("Delete")
    e.ventana(CAJA)
    e.teclas("s")
    e.ventana(LOSAS)


def recorrer(e):
    obra = crear_proyecto(e)
    ventana = abrir_losas(e)
    e.pulsar(ventana, *BOTON_NUEVA)
    e.ventana("CREAR NUEVA LOSA")
    entrar(e, "  Nivel 1 ")
    entrar_datos(e)
    comprobar_archivo(obra, "Nivel 1")
    comprobar_resultados(e, obra, 250)

    e.pulsar(ventana, *BOTON_GENERALES)
    e.ventana("DATOS GENERALES")
    entrar(e, "280")
    e.ventana(LOSAS)
    assert filas(obra, "SELECT FC, FY FROM LosaG") == [(280, 4200)]
    comprobar_resultados(e, obra, 280)
    e.teclas("alt+c", "alt+d", "alt+l")   # the sheets, and back to the list
    e.ventana(LOSAS)

    e.teclas("F2")
    e.ventana("RENOMBRAR")
    entrar(e, "Piso 2")
    e.ventana(CAJA)
    e.teclas("Return")
    e.ventana(LOSAS)
    comprobar_archivo(obra, "Piso 2")
    assert filas(obra, "SELECT * FROM LosaTramos WHERE Nombre='Nivel 1'") == []

    e.teclas("ctrl+d")
    e.ventana("Salvar Como...")
    entrar(e, "PISO 2")
    e.ventana(CAJA)   # taken, by another case
    e.teclas("Return")
    e.ventana("Salvar Como...")
    entrar(e, "Azotea")
    e.ventana(CAJA)
    e.teclas("Return")
    e.ventana(DATOS + "Azotea")
    e.teclas("Escape")
    e.ventana(LOSAS)
    comprobar_archivo(obra, "Azotea")

    e.teclas("alt+r")
    e.ventana(PRINCIPAL)
    abrir_losas(e)
    e.teclas("Return")
    e.ventana(DATOS + "Azotea")   # first by name, now that the list is filled again
    e.teclas("Escape")
    e.ventana(LOSAS)
    e.teclas("Down", "Delete")
    e.ventana(CAJA)
    e.teclas("s")   # "No" has the focus
    e.ventana(LOSAS)
    assert filas(obra, "SELECT Nombre FROM LosaDatos") == [("Azotea",)]
    assert filas(obra, "SELECT DISTINCT Nombre FROM LosaEjes") == [("Azotea",)]
    comprobar_resultados(e, obra, 280)
    losa_de_libro(e, obra)
    exportar(e)
    e.teclas("alt+r")
    e.ventana(PRINCIPAL)
    e.teclas("alt+p", "s")
    assert e.programa.wait(timeout=10) == 0


if __name__ == "__main__":
    correr(recorrer)
