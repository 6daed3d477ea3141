"""The life of a project in the real program: new, its data, save as, open, repair, exit."""

from escritorio import CAJA, correr, filas

SIN_PROYECTO = "Trabex 2024   Proyecto:[]"
OBRA_UNO = "Trabex 2024   Proyecto:[obra uno.los]"
BOTON_NUEVO, BOTON_EDITAR = (20, 50), (84, 50)   # first and third of the tool bar


def recorrer(e):
    proyectos = e.usuario / "Proyectos"
    principal = e.ventana(SIN_PROYECTO)
    assert (proyectos / "Ejemplo Demostrativo.los").exists()
    assert (e.usuario / "Tapiz.tbx").stat().st_size == 1280

    e.pulsar(principal, *BOTON_NUEVO)
    e.ventana("Crear un Nuevo Proyecto")
    e.ir("DATOS DEL PROYECTO", "Return", escribir="obra uno")
    e.ir(OBRA_UNO, "Return", escribir="EDIFICIO LA CEIBA\tINVERSIONES")
    obra = proyectos / "obra uno.los"
    assert filas(obra, "SELECT Proyecto, Propietario FROM Proyecto") == [("EDIFICIO LA CEIBA", "INVERSIONES")]

    e.ir("Salvar el Proyecto Como...", "ctrl+shift+s")
    e.ir(CAJA, "Return", escribir="obra uno")   # refused: the same name
    e.ir("Salvar el Proyecto Como...", "Return")
    e.ir("Trabex 2024   Proyecto:[obra dos.los]", "Return", escribir="obra dos")
    assert (proyectos / "obra dos.los").read_bytes() == obra.read_bytes()

    e.ir("Abrir un Proyecto Existente", "ctrl+o")
    e.pulsar(e.ir(OBRA_UNO, "Return", escribir="obra uno.los"), *BOTON_EDITAR)
    e.ventana("DATOS DEL PROYECTO")
    e.ir(OBRA_UNO, "Return", escribir="\t\tING. PEREZ")
    assert filas(obra, "SELECT Propietario, Calculista FROM Proyecto") == [("INVERSIONES", "ING. PEREZ")]

    e.ir("Reparar y Compactar Archivos", "alt+m", "Up", "Up", "Return")   # the last but one
    e.teclas("alt+t")
    e.reposo()
    e.ir(CAJA, "Return")   # so many files repaired
    e.ir(OBRA_UNO, "Return")
    assert filas(obra, "SELECT Proyecto FROM Proyecto") == [("EDIFICIO LA CEIBA",)]
    assert len(filas(proyectos / "Ejemplo Demostrativo.los", "SELECT * FROM LosaDatos")) >= 8
    assert list((e.usuario / "Temporales").glob("DBT_*.mdb"))

    e.teclas("alt+p", "s")
    assert e.programa.wait(timeout=10) == 0


if __name__ == "__main__":
    correr(recorrer)
