"""Markus levels in the real program: create, count, type, fill a block, undo, save, report; the file and the numbers."""

from escritorio import CAJA, PRINCIPAL, correr, crear_proyecto, filas

MARCUS = "COEFICIENTES DE REPARTICIÓN DE LA CARGA POR EL MÉTODO DE MARKUS"
PANOS = "SELECT Carga, Caso, LX, LY FROM Marcus ORDER BY Numero"


def crear_nivel(e, nombre, panos):
    e.teclas("ctrl+n")
    e.ventana("CREAR UN NUEVO NIVEL")
    e.escribir(nombre)
    e.teclas("Return")
    e.ventana(MARCUS)
    e.escribir(panos)
    e.teclas("Return")


def exportar(e):
    e.teclas("ctrl+p")
    e.ventana("IMPRIMIR Y EXPORTAR EL REPORTE")
    e.teclas("Down", "Return")
    e.ventana("Exportar el Reporte a formato: Adobe Acrobat(PDF)")
    e.escribir("marcus.pdf")
    e.teclas("Return")
    e.ventana(CAJA)   # open it?
    e.teclas("Tab", "Return")
    e.ventana(MARCUS)
    assert (e.usuario / "ReportesExportados" / "marcus.pdf").read_bytes().startswith(b"%PDF")


def recorrer(e):
    obra = crear_proyecto(e)
    e.teclas("alt+c", "Down", "Return")
    e.ventana(MARCUS)
    crear_nivel(e, "Piso 1", "2")
    e.escribir("900\t5\t4,5\t5.25\t1000\t7\t3\t6")   # Tab passes over the results
    e.teclas("Return", "ctrl+s")
    e.respiro()
    assert filas(obra, "SELECT * FROM MarcusDatos") == [("Piso 1", 2)]
    assert filas(obra, PANOS) == [(900, 5, 4.5, 5.25), (1000, 7, 3, 6)], filas(obra, PANOS)

    e.teclas("Home", "shift+Up")
    e.ventana("Carga de la Losa")
    e.escribir("800")
    e.teclas("Return")
    e.ventana(MARCUS)
    e.teclas("ctrl+s")
    e.respiro()
    assert [carga for carga, *_ in filas(obra, PANOS)] == [800, 800], filas(obra, PANOS)
    exportar(e)
    e.teclas("ctrl+z", "alt+r")
    e.ventana(CAJA)   # save the changes?
    e.teclas("Return")
    e.ventana(PRINCIPAL)
    assert filas(obra, PANOS) == [(900, 5, 4.5, 5.25), (1000, 7, 3, 6)], filas(obra, PANOS)


if __name__ == "__main__":
    correr(recorrer)
