"""Markus levels in the real program: create, count, type, fill a block, undo, save, report; the file and the numbers."""

from escritorio import CAJA, PRINCIPAL, correr, crear_proyecto, filas, guardar_pdf

MARCUS = "COEFICIENTES DE REPARTICIÓN DE LA CARGA POR EL MÉTODO DE MARKUS"


def panos(obra):
    return filas(obra, "SELECT Carga, Caso, LX, LY FROM Marcus ORDER BY Numero")


def recorrer(e):
    obra = crear_proyecto(e)
    e.ir(MARCUS, "alt+c", "Down", "Return")
    e.ir("CREAR UN NUEVO NIVEL", "ctrl+n")
    e.ir(MARCUS, "Return", escribir="Piso 1")
    e.escribir("2")
    e.teclas("Return")
    e.escribir("900\t5\t4,5\t5.25\t1000\t7\t3\t6")   # Tab passes over the results
    e.teclas("Return", "ctrl+s")
    e.reposo()
    assert filas(obra, "SELECT * FROM MarcusDatos") == [("Piso 1", 2)]
    assert panos(obra) == [(900, 5, 4.5, 5.25), (1000, 7, 3, 6)], panos(obra)

    e.ir("Carga de la Losa", "Home", "shift+Up")
    e.ir(MARCUS, "Return", escribir="800")
    e.teclas("ctrl+s")
    e.reposo()
    assert [carga for carga, *_ in panos(obra)] == [800, 800], panos(obra)
    e.teclas("ctrl+p")
    guardar_pdf(e, "IMPRIMIR Y EXPORTAR EL REPORTE", "marcus.pdf", MARCUS)
    e.ir(CAJA, "ctrl+z", "alt+r")   # save the changes?
    e.ir(PRINCIPAL, "Return")
    assert panos(obra) == [(900, 5, 4.5, 5.25), (1000, 7, 3, 6)], panos(obra)


if __name__ == "__main__":
    correr(recorrer)
