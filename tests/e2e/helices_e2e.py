"""A helical stair in the real program: create, enter, see, turn, copy, rename, report, delete; the file, the clipboard and the
batch program's numbers."""

from escritorio import CAJA, PRINCIPAL, correr, crear_proyecto, filas, guardar_pdf, resultados

ESCALERAS = "ESCALERAS HELICOIDALES"
DATOS = "ESCALERA HELICOIDAL"


def crear_escalera(e):
    """By keyboard: an angle past 360 is told, an interval of 0 sends to the angle, and what is typed is stored."""
    e.ir("Escalera o Viga Helicoidal", "ctrl+n")
    e.ir(DATOS, "Return", escribir=" Caracol \tPLANTA TIPO")
    e.ir(CAJA, "alt+s", escribir="3\t1,5\t0.15\t2.5\t361\t")
    e.ir(DATOS, "Return")
    e.escribir("260\t1500\t0")
    e.teclas("alt+s")
    e.reposo()
    e.escribir("260\t\t7")
    e.teclas("alt+s")
    e.reposo()
    return e.ir(ESCALERAS, "alt+r")


def exportar(e):
    """Both reports as PDF: the drawing with the grids, and the table of stations."""
    temporal = e.usuario / "Trabajo" / "Temporal.mdb"
    e.teclas("alt+s", "Return")
    guardar_pdf(e, "IMPRIMIR Y EXPORTAR LOS GRÁFICOS", "helice.pdf", ESCALERAS)
    assert filas(temporal, "SELECT Titulo FROM Generales") == [("ANALISIS Y DISEÑO DE LOSAS Y VIGAS HELICOIDALES",)]
    assert filas(temporal, "SELECT Nombre, FV, Fh FROM EscaleraH") == [("Piso 116", 8508, 10639)]
    primera, *_, ultima = filas(temporal, "SELECT Numero, Inter FROM EscaleraH1S")
    assert (primera, ultima) == ((1, 130), (38, 126)), (primera, ultima)
    e.teclas("alt+s", "Down", "Return")
    guardar_pdf(e, "IMPRIMIR Y EXPORTAR EL REPORTE", "tabla.pdf", ESCALERAS)
    assert len(filas(temporal, "SELECT * FROM EscaleraHS")) == 38


def recorrer(e):
    obra = crear_proyecto(e)
    e.ir(ESCALERAS, "alt+c", "Up", "Up", "Return")
    ventana = crear_escalera(e)
    assert filas(obra, "SELECT * FROM EscaleraHDatos") == [("Caracol", "PLANTA TIPO")]
    guardada = filas(obra, "SELECT Nombre, B, T, H, R, Angulo, W, Inter FROM EscaleraH")
    assert guardada == [("Caracol", 1.5, 0.15, 3, 2.5, 260, 1500, 7)], guardada
    escalera = resultados(e, obra, "escalerasH")
    assert (escalera["FV"], escalera["Fh"]) == (8508, 10639)

    e.pulsar(ventana, 700, 400)   # the canvas, and its keys
    e.teclas("KP_Add", "Left", "Escape")
    e.teclas("alt+g", "alt+d", "alt+c", "Down", "Down", "Down", "ctrl+c")   # the third angle of the grid
    e.ir("RENOMBRAR", "alt+g", "alt+l", "F2")
    e.ir(CAJA, "ctrl+v", "Return", escribir="Piso ")
    e.ir(ESCALERAS, "Return")
    assert filas(obra, "SELECT Nombre FROM EscaleraH") == [("Piso 116",)]
    exportar(e)

    e.ir(CAJA, "alt+l", "Delete")
    e.ir(ESCALERAS, "s")
    assert filas(obra, "SELECT * FROM EscaleraHDatos") == filas(obra, "SELECT * FROM EscaleraH") == []
    e.ir(PRINCIPAL, "alt+r")


if __name__ == "__main__":
    correr(recorrer)
