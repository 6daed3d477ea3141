"""Load analyses in the real program, by keyboard: the shared ones without a project, captures, weights, both files."""

from escritorio import CAJA, PRINCIPAL, correr, crear_proyecto, filas, guardar_pdf

COMPARTIDOS = "Base de Datos Análisis de Carga de Losas"
PROYECTO = "ANÁLISIS DE CARGA DE LAS LOSAS"
MODIFICAR = "MODIFICAR EL ANÁLISIS DE CARGA"
PERMANENTES = "BASE DE DATOS DE CARGAS PERMANENTES"
VARIABLES = "Base de Datos Cargas Variables"


def ver_compartidos_sin_proyecto(e):
    e.ventana("Trabex 2024   Proyecto:[]")
    e.teclas("alt+m", "Return")
    e.ventana(COMPARTIDOS)
    e.teclas("ctrl+p")
    e.ventana("Reportes TBX")
    e.teclas("Escape")
    e.ventana(COMPARTIDOS)
    e.teclas("Escape")
    e.ventana("Trabex 2024   Proyecto:[]")


def capturar(e):
    e.teclas("alt+c", *["Up"] * 4, "Return")
    e.ventana(PROYECTO)
    e.teclas("ctrl+b")
    e.ventana(COMPARTIDOS)
    e.teclas("Down", "ctrl+t")
    e.ventana(CAJA)   # capture it?
    e.teclas("Return")
    e.ventana(COMPARTIDOS)
    e.teclas("ctrl+t")
    e.ventana(CAJA)
    e.teclas("Return")
    e.ventana(CAJA)   # it is there already
    e.teclas("Return")
    e.ventana(COMPARTIDOS)
    e.teclas("Escape")
    e.ventana(PROYECTO)


def editar(e):
    """A weight of the list, another typed after it, the variable load, and the sums as they are stored."""
    e.teclas("Return")
    e.ventana(MODIFICAR)
    e.teclas("ctrl+b")
    e.ventana(PERMANENTES)
    e.escribir("tejas")
    e.teclas("Return")
    e.ventana(CAJA)
    e.teclas("Return")
    e.ventana(PERMANENTES)
    e.teclas("ctrl+p")
    e.ventana("Reportes TBX")
    e.teclas("Escape")
    e.ventana(PERMANENTES)
    e.teclas("Escape")
    e.ventana(MODIFICAR + "*")
    e.teclas("ctrl+n")
    e.respiro()
    e.escribir("Equipos")
    e.teclas("Tab")
    e.escribir("35,4")
    e.teclas("Tab", "ctrl+shift+b")
    e.ventana(VARIABLES)
    e.escribir("oficinas")
    e.teclas("Return")
    e.ventana(CAJA)
    e.teclas("Return")
    e.ventana(VARIABLES)
    e.teclas("ctrl+m")
    e.ventana("NORMAS DE ACCIONES MÍNIMAS")
    e.teclas("Return")
    e.ventana(CAJA)   # it is not installed
    e.teclas("Return")
    e.ventana(VARIABLES)
    e.teclas("Escape")
    e.ventana(MODIFICAR + "*")
    e.teclas("Escape")
    e.ventana(CAJA)   # save it?
    e.teclas("Return")
    e.ventana(PROYECTO)


def exportar(e):
    e.teclas("ctrl+e")
    e.ventana("EXPORTAR LOS ANÁLISIS DE CARGA")
    e.teclas("Return")
    assert guardar_pdf(e, "IMPRIMIR Y EXPORTAR EL REPORTE", "cargas.pdf", PROYECTO).startswith(b"%PDF")


def recorrer(e):
    ver_compartidos_sin_proyecto(e)
    compartido = e.usuario / "Proyectos" / "AnalisisCarga.mdb"
    antes = compartido.read_bytes()
    obra = crear_proyecto(e)
    capturar(e)
    (clave, cp), = filas(obra, "SELECT ID, CP FROM AnalisisCargaG")
    assert filas(compartido, f"SELECT CP FROM Generales WHERE ID = {clave}") == [(cp,)]
    editar(e)
    items = filas(obra, f"SELECT Numero, Descripcion, Peso FROM AnalisisCargaCP WHERE ID = {clave} ORDER BY Numero")
    assert [i[0] for i in items] == list(range(1, len(items) + 1))
    assert items[-2][1].startswith("Tejas") and items[-1][1:] == ("Equipos", 35), items
    suma = sum(i[2] for i in items)
    assert suma == cp + items[-2][2] + 35
    assert filas(obra, "SELECT CP, CV, Carga, REL FROM AnalisisCargaG") == [(suma, 250, suma + 250, 250 / suma)]
    assert filas(obra, "SELECT ID, Descripcion, Peso FROM AnalisisCargaCV") == [(clave, "Oficinas", 250)]
    exportar(e)
    assert filas(e.usuario / "Trabajo" / "Temporal.mdb", "SELECT Carga FROM AnalisisCargaG") == [(suma + 250,)]
    assert compartido.read_bytes() == antes   # what was captured and edited is the project's
    e.teclas("Escape")
    e.ventana(PRINCIPAL)


if __name__ == "__main__":
    correr(recorrer)
