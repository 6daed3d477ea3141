"""A whole slab job in the real program: create, enter, see, change, rename, copy, delete, reopen; the file and the
batch program's numbers against a solution by hand."""

import math

from escritorio import CAJA, PRINCIPAL, correr, crear_proyecto, filas, guardar_pdf, renombrar, resultados

LOSAS = "Trabex 2024   Proyecto:[OBRA.LOS]"
DATOS = "Datos Generales Losa: "
# second, third, ninth and twelfth of the workspace's tool bar
BOTON_GENERALES, BOTON_NUEVA, BOTON_EXPORTAR, BOTON_PLANEX = (58, 42), (98, 42), (304, 42), (403, 42)
LUCES, WP, WV = (5.2, 4.8, 5.2), 290, 90


def entrar_datos(e):
    """Five pages by keyboard; counts and joints past the slab are refused on the way."""
    pagina = DATOS + "Nivel 1"
    e.teclas("ctrl+Next")
    e.escribir("3\n5.20\n4,80\n5.2\n\tA\nB\nC\nD\n")
    e.teclas("ctrl+Next")
    e.ir(CAJA, "Return", escribir="9")
    e.ir(pagina, "Return")
    e.teclas("ctrl+Next")
    e.ir(CAJA, "Return", escribir="1\n2\n2\n6")
    e.ir(pagina, "Return")
    e.escribir("2\n")
    e.ir("CARGA UNIFORME", "ctrl+Next", "alt+u")
    e.ir(CAJA, "alt+i", escribir=f"{WP}\t{WV}\n")
    e.ir(pagina, "Return")
    e.teclas("ctrl+s")
    e.reposo()
    e.ir(LOSAS, "alt+r")


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
    losa = resultados(e, obra, "losas")
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
    guardar_pdf(e, "IMPRIMIR Y EXPORTAR EL REPORTE", "azotea.pdf", LOSAS)
    assert filas(e.usuario / "Trabajo" / "Temporal.mdb", "SELECT Nombre FROM LosaDatos") == [("Azotea",)]

    e.pulsar(e.ventana(LOSAS), *BOTON_PLANEX)
    e.ventana("EXPORTAR A Planex ESTRUCTURAL")
    e.teclas("Return")   # edition 2023
    e.reposo()
    e.ventana("EXPORTAR A Planex ESTRUCTURAL")
    e.ir(LOSAS, "Escape")


def losa_de_libro(e, obra):
    """Three spans, their axes and loads, from the command to the sheets, with few keys; then it is deleted."""
    e.ir("CREAR NUEVA LOSA", "ctrl+n")
    e.ir(DATOS + "T", "Return", escribir="T")
    e.teclas("ctrl+Next")
    e.escribir("3\n5\n4\n5\tA")
    e.teclas("ctrl+d", "ctrl+Next", "ctrl+Next", "ctrl+Next")
    e.escribir("300")
    e.teclas("ctrl+d", "Tab")
    e.escribir("100")
    e.teclas("ctrl+d", "ctrl+s")
    e.reposo()
    e.ir(LOSAS, "alt+r")
    assert filas(obra, "SELECT LT, Wp, WV FROM LosaTramos WHERE Nombre='T' ORDER BY Numero") == [
        (5, 300, 100), (4, 300, 100), (5, 300, 100)]
    assert filas(obra, "SELECT Eje, Tipo FROM LosaEjes WHERE Nombre='T' ORDER BY Numero") == [
        ("A", 1), ("B", 1), ("C", 1), ("D", 1)]
    e.ir(CAJA, "Delete")
    e.ir(LOSAS, "s")


def recorrer(e):
    obra = crear_proyecto(e)
    ventana = e.ir(LOSAS, "alt+c", "Return")
    e.pulsar(ventana, *BOTON_NUEVA)
    e.ventana("CREAR NUEVA LOSA")
    e.ir(DATOS + "Nivel 1", "Return", escribir="  Nivel 1 ")
    entrar_datos(e)
    comprobar_archivo(obra, "Nivel 1")
    comprobar_resultados(e, obra, 250)

    e.pulsar(ventana, *BOTON_GENERALES)
    e.ventana("DATOS GENERALES")
    e.ir(LOSAS, "Return", escribir="280")
    assert filas(obra, "SELECT FC, FY FROM LosaG") == [(280, 4200)]
    comprobar_resultados(e, obra, 280)
    e.ir(LOSAS, "alt+c", "alt+d", "alt+l")   # the sheets, and back to the list

    renombrar(e, "Piso 2", LOSAS)
    comprobar_archivo(obra, "Piso 2")
    assert filas(obra, "SELECT * FROM LosaTramos WHERE Nombre='Nivel 1'") == []

    e.ir("Salvar Como...", "ctrl+d")
    e.ir(CAJA, "Return", escribir="PISO 2")   # taken, by another case
    e.ir("Salvar Como...", "Return")
    e.ir(CAJA, "Return", escribir="Azotea")
    e.ir(DATOS + "Azotea", "Return")
    e.ir(LOSAS, "Escape")
    comprobar_archivo(obra, "Azotea")

    e.ir(PRINCIPAL, "alt+r")
    e.ir(LOSAS, "alt+c", "Return")
    e.ir(DATOS + "Azotea", "Return")   # first by name, now that the list is filled again
    e.ir(LOSAS, "Escape")
    e.ir(CAJA, "Down", "Delete")
    e.ir(LOSAS, "s")   # "No" has the focus
    assert filas(obra, "SELECT Nombre FROM LosaDatos") == [("Azotea",)]
    assert filas(obra, "SELECT DISTINCT Nombre FROM LosaEjes") == [("Azotea",)]
    losa_de_libro(e, obra)
    exportar(e)
    e.ir(PRINCIPAL, "alt+r")
    e.teclas("alt+p", "s")
    assert e.programa.wait(timeout=10) == 0


if __name__ == "__main__":
    correr(recorrer)
