"""A stair in the real program: create, enter, see, title, rename, report, delete; the file and the batch program's numbers."""

import json
import pathlib
import subprocess
import sys

from escritorio import CAJA, PRINCIPAL, correr, crear_proyecto, filas, guardar_pdf

ESCALERAS = "Trabex 2024   Proyecto:[OBRA.LOS]"
DATOS = "GEOMETRÍA DE LA ESCALERA AUTOPORTANTE"
VALORES = ("2.40", "1,2", "3", "0.15", "0.15", "1200", "1000", "600")


def crear_escalera(e):
    """By keyboard; a length of 0 keeps the window, and what is typed is stored."""
    e.teclas("ctrl+n")
    e.ventana("CREAR NUEVA ESCALERA")
    e.escribir(" Principal ")
    e.teclas("Tab")
    e.escribir("PLANTA TIPO")
    e.teclas("Return")
    e.ventana(DATOS)
    e.teclas("Tab", "Tab")
    e.respiro()
    e.escribir("0")
    e.teclas("alt+s")
    e.respiro()   # a button pressed by its key acts a moment later
    e.teclas("shift+Tab", "shift+Tab")
    for valor in VALORES:
        e.escribir(valor)
        e.teclas("Tab")
    e.teclas("alt+s")
    e.respiro()
    e.teclas("alt+r")
    return e.ventana(ESCALERAS)


def exportar(e):
    """All sheets of the selected stair as a PDF, on the dialog's own paper."""
    e.teclas("alt+s", "Return")
    e.ventana("EXPORTAR LOS GRÁFICOS")
    e.teclas("Return")
    pdf = guardar_pdf(e, "IMPRIMIR Y EXPORTAR LOS GRÁFICOS", "escalera.pdf", ESCALERAS)
    assert pdf.startswith(b"%PDF") and pdf.count(b"/Type/Page/") == 4
    assert filas(e.usuario / "Trabajo" / "Temporal.mdb", "SELECT Losa, CargaTramo FROM Grafico") == [
        ("Piso 1" + hoja, 1200) for hoja in (": GEOMETRÍA", ": SOLICITACIONES", ": DISEÑO", ": REACCIONES")]


def comprobar_resultados(e, obra):
    """What holds the stair is what it carries: 1200 kgf/m on 2.40 m and 1000 kgf/m on 1.20 m."""
    lote = pathlib.Path(sys.argv[1]).with_name("trabex-lote")
    subprocess.run([lote, obra, e.carpeta / "salida"], check=True, stdout=subprocess.DEVNULL)
    escalera, = json.loads((e.carpeta / "salida" / "resultados.json").read_text())["escalerasT"]
    assert abs(escalera["ReaccionVertical"] - 4080) < 1e-6, escalera["ReaccionVertical"]
    assert abs(escalera["TramoT"][5]["MomentoTotal"] - 163.91) < 0.005


def recorrer(e):
    obra = crear_proyecto(e)
    e.teclas("alt+c", "Up", "Up", "Up", "Return")
    e.ventana(ESCALERAS)
    ventana = crear_escalera(e)
    assert filas(obra, "SELECT * FROM EscaleraTDatos") == [("Principal", "PLANTA TIPO")]
    assert filas(obra, "SELECT * FROM EscaleraT") == [("Principal", 2.4, 1.2, 3, 0.15, 0.15, 1200, 1000, 600)], filas(obra, "SELECT * FROM EscaleraT")
    comprobar_resultados(e, obra)

    for hoja in "cnig":   # the sheets, and back to the first
        e.teclas("alt+" + hoja)
    e.pulsar(ventana, 700, 400)   # the canvas, and its keys
    e.teclas("KP_Add", "Left", "Escape")
    e.teclas("alt+l", "F2")
    e.ventana("RENOMBRAR")
    e.escribir("Piso 1")
    e.teclas("Return")
    e.ventana(CAJA)
    e.teclas("Return")
    e.ventana(ESCALERAS)
    assert filas(obra, "SELECT Nombre FROM EscaleraT") == [("Piso 1",)]
    exportar(e)

    e.teclas("alt+l", "Delete")
    e.ventana(CAJA)
    e.teclas("s")
    e.ventana(ESCALERAS)
    assert filas(obra, "SELECT * FROM EscaleraTDatos") == filas(obra, "SELECT * FROM EscaleraT") == []
    e.teclas("alt+r")
    e.ventana(PRINCIPAL)


if __name__ == "__main__":
    correr(recorrer)
