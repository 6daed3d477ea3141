"""Markus levels in the real program: create, count, type, fill a block, undo, save, report; the file and the numbers."""

import contextlib
import sqlite3

from escritorio import correr

PRINCIPAL = "Trabex 2024   Proyecto:[obra.los]"
MARCUS = "COEFICIENTES DE REPARTICIÓN DE LA CARGA POR EL MÉTODO DE MARKUS"
CAJA = "Trabex 2024"


def filas(archivo, consulta):
    with contextlib.closing(sqlite3.connect(archivo)) as base:
        return base.execute(consulta).fetchall()


def crear_proyecto(e):
    e.ventana("Trabex 2024   Proyecto:[]")
    e.teclas("ctrl+n")
    e.ventana("Crear un Nuevo Proyecto")
    e.escribir("obra")
    e.teclas("Return")
    e.ventana("DATOS DEL PROYECTO")
    e.teclas("Return")
    e.ventana(PRINCIPAL)
    return e.usuario / "Proyectos" / "obra.los"


def crear_nivel(e, nombre, panos):
    e.teclas("ctrl+n")
    e.ventana("CREAR UN NUEVO NIVEL")
    e.escribir(nombre)
    e.teclas("Return")
    e.ventana(MARCUS)
    e.escribir(panos)
    e.teclas("Return")


def recorrer(e):
    obra = crear_proyecto(e)
    e.teclas("alt+c", "Down", "Return")
    e.ventana(MARCUS)
    crear_nivel(e, "Piso 1", "2")
    e.teclas("Tab")
    for fila in ("900\t5\t4,5\t5.25\t", "1000\t7\t3\t6\t"):   # Tab passes over the results
        e.escribir(fila)
    e.teclas("ctrl+s")
    e.respiro()
    assert filas(obra, "SELECT * FROM MarcusDatos") == [("Piso 1", 2)]
    assert filas(obra, "SELECT * FROM Marcus") == [("Piso 1", 1, 900, 5, 4.5, 5.25), ("Piso 1", 2, 1000, 7, 3, 6)], \
        filas(obra, "SELECT * FROM Marcus")


if __name__ == "__main__":
    correr(recorrer)
