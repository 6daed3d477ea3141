"""A stair in the real program: create, enter, see, title, rename, report, delete; the file and the batch program's numbers."""

from escritorio import CAJA, PRINCIPAL, correr, crear_proyecto, filas, guardar_pdf, renombrar, resultados

ESCALERAS = "Trabex 2024   Proyecto:[OBRA.LOS]"


def crear_escalera(e):
    """By keyboard; a length of 0 keeps the window, and what is typed is stored."""
    e.ir("CREAR NUEVA ESCALERA", "ctrl+n")
    e.ir("GEOMETRÍA DE LA ESCALERA AUTOPORTANTE", "Return", escribir=" Principal \tPLANTA TIPO")
    e.teclas("Tab", "Tab")
    e.escribir("0")
    e.teclas("alt+s")
    e.reposo()
    e.teclas("shift+Tab", "shift+Tab")
    e.escribir("2.40\t1,2\t3\t0.15\t0.15\t1200\t1000\t600\t")
    e.teclas("alt+s")
    e.reposo()
    return e.ir(ESCALERAS, "alt+r")


def recorrer(e):
    obra = crear_proyecto(e)
    e.ir(ESCALERAS, "alt+c", "Up", "Up", "Up", "Return")
    ventana = crear_escalera(e)
    assert filas(obra, "SELECT * FROM EscaleraTDatos") == [("Principal", "PLANTA TIPO")]
    assert filas(obra, "SELECT * FROM EscaleraT") == [("Principal", 2.4, 1.2, 3, 0.15, 0.15, 1200, 1000, 600)], filas(obra, "SELECT * FROM EscaleraT")
    # What holds the stair is what it carries: 1200 kgf/m on 2.40 m and 1000 kgf/m on 1.20 m.
    escalera = resultados(e, obra, "escalerasT")
    assert abs(escalera["ReaccionVertical"] - 4080) < 1e-6, escalera["ReaccionVertical"]
    assert abs(escalera["TramoT"][5]["MomentoTotal"] - 163.91) < 0.005

    e.teclas("alt+c", "alt+n", "alt+i", "alt+g")   # the sheets, and back to the first
    e.pulsar(ventana, 700, 400)   # the canvas, and its keys
    e.teclas("KP_Add", "Left", "Escape", "alt+l")
    renombrar(e, "Piso 1", ESCALERAS)
    assert filas(obra, "SELECT Nombre FROM EscaleraT") == [("Piso 1",)]
    e.ir("EXPORTAR LOS GRÁFICOS", "alt+s", "Return")
    e.teclas("Return")
    pdf = guardar_pdf(e, "IMPRIMIR Y EXPORTAR LOS GRÁFICOS", "escalera.pdf", ESCALERAS)
    assert pdf.count(b"/Type/Page/") == 4
    assert filas(e.usuario / "Trabajo" / "Temporal.mdb", "SELECT Losa, CargaTramo FROM Grafico") == [
        ("Piso 1" + hoja, 1200) for hoja in (": GEOMETRÍA", ": SOLICITACIONES", ": DISEÑO", ": REACCIONES")]

    e.ir(CAJA, "alt+l", "Delete")
    e.ir(ESCALERAS, "s")
    assert filas(obra, "SELECT * FROM EscaleraTDatos") == filas(obra, "SELECT * FROM EscaleraT") == []
    e.ir(PRINCIPAL, "alt+r")


if __name__ == "__main__":
    correr(recorrer)
