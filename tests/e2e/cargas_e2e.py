"""Load analyses in the real program, by keyboard: the shared ones without a project, captures, weights, both files."""

from escritorio import CAJA, PRINCIPAL, correr, crear_proyecto, filas, guardar_pdf

SIN_PROYECTO = "Trabex 2024   Proyecto:[]"
COMPARTIDOS = "Base de Datos Análisis de Carga de Losas"
PROYECTO = "ANÁLISIS DE CARGA DE LAS LOSAS"
MODIFICAR = "MODIFICAR EL ANÁLISIS DE CARGA"
PERMANENTES = "BASE DE DATOS DE CARGAS PERMANENTES"
VARIABLES = "Base de Datos Cargas Variables"


def ver_reporte(e, ventana):
    e.ir("Reportes TBX", "ctrl+p")
    e.ir(ventana, "Escape")


def ver_compartidos_sin_proyecto(e):
    e.ventana(SIN_PROYECTO)
    e.ir(COMPARTIDOS, "alt+m", "Return")
    ver_reporte(e, COMPARTIDOS)
    e.ir(SIN_PROYECTO, "Escape")


def capturar(e):
    e.ir(PROYECTO, "alt+c", *["Up"] * 4, "Return")
    e.ir(COMPARTIDOS, "ctrl+b")
    e.ir(CAJA, "Down", "ctrl+t")   # capture it?
    e.ir(COMPARTIDOS, "Return")
    e.ir(CAJA, "ctrl+t")
    e.ir(CAJA, "Return")   # it is there already
    e.ir(COMPARTIDOS, "Return")
    e.ir(PROYECTO, "Escape")


def elegir(e, busca, lista):
    """Takes the weight found by its first letters."""
    e.ir(CAJA, "Return", escribir=busca)
    e.ir(lista, "Return")


def editar(e):
    """A weight of the list, another typed after it, the variable load, and the sums as they are stored."""
    e.ir(MODIFICAR, "Return")
    e.ir(PERMANENTES, "ctrl+b")
    elegir(e, "tejas", PERMANENTES)
    ver_reporte(e, PERMANENTES)
    e.ir(MODIFICAR + "*", "Escape")
    e.teclas("ctrl+n")
    e.reposo()
    e.escribir("Equipos\t35,4\t")
    e.ir(VARIABLES, "ctrl+shift+b")
    elegir(e, "oficinas", VARIABLES)
    e.ir("NORMAS DE ACCIONES MÍNIMAS", "ctrl+m")
    e.ir(CAJA, "Return")   # it is not installed
    e.ir(VARIABLES, "Return")
    e.ir(MODIFICAR + "*", "Escape")
    e.ir(CAJA, "Escape")   # save it?
    e.ir(PROYECTO, "Return")


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
    e.ir("EXPORTAR LOS ANÁLISIS DE CARGA", "ctrl+e")
    e.teclas("Return")
    guardar_pdf(e, "IMPRIMIR Y EXPORTAR EL REPORTE", "cargas.pdf", PROYECTO)
    assert filas(e.usuario / "Trabajo" / "Temporal.mdb", "SELECT Carga FROM AnalisisCargaG") == [(suma + 250,)]
    assert compartido.read_bytes() == antes   # what was captured and edited is the project's
    e.ir(PRINCIPAL, "Escape")


if __name__ == "__main__":
    correr(recorrer)
