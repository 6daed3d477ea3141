"""A helical stair in the real program: create, enter, see, turn, copy, rename, report, delete; the file, the clipboard and the
batch program's numbers."""

import json
import pathlib
import subprocess
import sys

from escritorio import CAJA, PRINCIPAL, correr, crear_proyecto, filas, guardar_pdf

ESCALERAS = "ESCALERAS HELICOIDALES"
DATOS = "ESCALERA HELICOIDAL"


def crear_escalera(e):
    """By keyboard: an angle past 360 is told, an interval of 0 sends to the angle, and what is typed is stored."""
    e.teclas("ctrl+n")
    e.ventana("Escalera o Viga Helicoidal")
    e.escribir(" Caracol ")
    e.teclas("Tab")
    e.escribir("PLANTA TIPO")
    e.teclas("Return")
    e.ventana(DATOS)
    for valor in ("3", "1,5", "0.15", "2.5", "361"):
        e.escribir(valor)
        e.teclas("Tab")
    e.teclas("alt+s")
    e.ventana(CAJA)
    e.teclas("Return")
    e.ventana(DATOS)
    e.escribir("260")
    e.teclas("Tab")
    e.escribir("1500")
    e.teclas("Tab")
    e.escribir("0")
    e.teclas("alt+s")
    e.respiro()   # a button pressed by its key acts a moment later
    e.escribir("260")
    e.teclas("Tab", "Tab")
    e.escribir("7")
    e.teclas("alt+s")
    e.respiro()
    e.teclas("alt+r")
    return e.ventana(ESCALERAS)


def comprobar_resultados(e, obra):
    lote = pathlib.Path(sys.argv[1]).with_name("trabex-lote")
    subprocess.run([lote, obra, e.carpeta / "salida"], check=True, stdout=subprocess.DEVNULL)
    escalera, = json.loads((e.carpeta / "salida" / "resultados.json").read_text())["escalerasH"]
    assert (escalera["FV"], escalera["Fh"]) == (8508, 10639)
    return escalera


def exportar(e):
    """Both reports as PDF: the drawing with the grids, and the table of stations."""
    temporal = e.usuario / "Trabajo" / "Temporal.mdb"
    e.teclas("alt+s", "Return")
    assert guardar_pdf(e, "IMPRIMIR Y EXPORTAR LOS GRÁFICOS", "helice.pdf", ESCALERAS).startswith(b"%PDF")
    assert filas(temporal, "SELECT Titulo FROM Generales") == [("ANALISIS Y DISEÑO DE LOSAS Y VIGAS HELICOIDALES",)]
    assert filas(temporal, "SELECT Nombre, FV, Fh FROM EscaleraH") == [("Piso 116", 8508, 10639)]
    primera, *_, ultima = filas(temporal, "SELECT Numero, Inter, Estribos FROM EscaleraH1S")
    assert (primera[:2], ultima[:2]) == ((1, 130), (38, 126)), (primera, ultima)
    e.teclas("alt+s", "Down", "Return")
    assert guardar_pdf(e, "IMPRIMIR Y EXPORTAR EL REPORTE", "tabla.pdf", ESCALERAS).startswith(b"%PDF")
    assert len(filas(temporal, "SELECT * FROM EscaleraHS")) == 38


def recorrer(e):
    obra = crear_proyecto(e)
    e.teclas("alt+c", "Up", "Up", "Return")
    e.ventana(ESCALERAS)
    ventana = crear_escalera(e)
    assert filas(obra, "SELECT * FROM EscaleraHDatos") == [("Caracol", "PLANTA TIPO")]
    guardada = filas(obra, "SELECT Nombre, B, T, H, R, Angulo, W, Inter FROM EscaleraH")
    assert guardada == [("Caracol", 1.5, 0.15, 3, 2.5, 260, 1500, 7)], guardada
    comprobar_resultados(e, obra)

    e.pulsar(ventana, 700, 400)   # the canvas, and its keys
    e.teclas("KP_Add", "Left", "Escape")
    e.teclas("alt+g", "alt+d", "alt+c", "Down", "Down", "Down", "ctrl+c")   # the third angle of the grid
    e.teclas("alt+g", "alt+l", "F2")
    e.ventana("RENOMBRAR")
    e.escribir("Piso ")
    e.teclas("ctrl+v", "Return")
    e.ventana(CAJA)
    e.teclas("Return")
    e.ventana(ESCALERAS)
    assert filas(obra, "SELECT Nombre FROM EscaleraH") == [("Piso 116",)]
    exportar(e)

    e.teclas("alt+l", "Delete")
    e.ventana(CAJA)
    e.teclas("s")
    e.ventana(ESCALERAS)
    assert filas(obra, "SELECT * FROM EscaleraHDatos") == filas(obra, "SELECT * FROM EscaleraH") == []
    e.teclas("alt+r")
    e.ventana(PRINCIPAL)


if __name__ == "__main__":
    correr(recorrer)
