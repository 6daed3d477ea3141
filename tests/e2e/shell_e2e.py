"""The life of a project in the real program: new, its data, save as, open, repair, exit."""

import contextlib
import sqlite3

from escritorio import correr

SIN_PROYECTO = "Trabex 2024   Proyecto:[]"
BOTON_NUEVO, BOTON_EDITAR = (20, 50), (84, 50)   # first and third of the tool bar


def filas(archivo, consulta):
    with contextlib.closing(sqlite3.connect(archivo)) as base:
        return base.execute(consulta).fetchall()


def recorrer(e):
    proyectos = e.usuario / "Proyectos"
    principal = e.ventana(SIN_PROYECTO)
    assert (proyectos / "Ejemplo Demostrativo.los").exists()
    assert (e.usuario / "Tapiz.tbx").stat().st_size == 1280

    e.pulsar(principal, *BOTON_NUEVO)
    e.ventana("Crear un Nuevo Proyecto")
    e.escribir("obra uno")
    e.teclas("Return")
    e.ventana("DATOS DEL PROYECTO")
    e.escribir("EDIFICIO LA CEIBA")
    e.teclas("Tab")
    e.escribir("INVERSIONES")
    e.teclas("Return")
    e.ventana("Trabex 2024   Proyecto:[obra uno.los]")
    obra = proyectos / "obra uno.los"
    assert filas(obra, "SELECT Proyecto, Propietario FROM Proyecto") == [("EDIFICIO LA CEIBA", "INVERSIONES")]

    e.teclas("ctrl+shift+s")
    e.ventana("Salvar el Proyecto Como...")
    e.escribir("obra uno")
    e.teclas("Return")
    e.ventana("Trabex 2024")   # refused: the same name
    e.teclas("Return")
    e.ventana("Salvar el Proyecto Como...")
    e.escribir("obra dos")
    e.teclas("Return")
    e.ventana("Trabex 2024   Proyecto:[obra dos.los]")
    assert (proyectos / "obra dos.los").read_bytes() == obra.read_bytes()

    e.teclas("ctrl+o")
    e.ventana("Abrir un Proyecto Existente")
    e.escribir("obra uno.los")
    e.teclas("Return")
    e.ventana("Trabex 2024   Proyecto:[obra uno.los]")

    e.pulsar(e.ventana("Trabex 2024   Proyecto:[obra uno.los]"), *BOTON_EDITAR)
    e.ventana("DATOS DEL PROYECTO")
    e.teclas("Tab", "Tab")
    e.escribir("ING. PEREZ")
    e.teclas("Return")
    e.ventana("Trabex 2024   Proyecto:[obra uno.los]")
    assert filas(obra, "SELECT Propietario, Calculista FROM Proyecto") == [("INVERSIONES", "ING. PEREZ")]

    e.teclas("alt+m", "Up", "Up", "Return")   # the last but one
    e.ventana("Reparar y Compactar Archivos")
    e.teclas("alt+t")
    e.respiro()   # a button pressed by its letter takes a moment
    e.teclas("Return")
    e.ventana("Trabex 2024")   # so many files repaired
    e.teclas("Return")
    e.ventana("Trabex 2024   Proyecto:[obra uno.los]")
    assert filas(obra, "SELECT Proyecto FROM Proyecto") == [("EDIFICIO LA CEIBA",)]
    assert len(filas(proyectos / "Ejemplo Demostrativo.los", "SELECT * FROM LosaDatos")) >= 8
    assert list((e.usuario / "Temporales").glob("DBT_*.mdb"))

    e.teclas("alt+p", "s")
    assert e.programa.wait(timeout=10) == 0


if __name__ == "__main__":
    correr(recorrer)
