#!/usr/bin/env python3
"""proyecto_grande.py PLANTILLA.tbx DESTINO.los LOSAS TRAMOS: a project of equal ribbed slabs, for measuring."""

import pathlib
import shutil
import sqlite3
import sys

TABLAS = ("LosaDatos", "LosaTramos", "LosaEjes", "LosaJuntasD")


def main():
    plantilla, destino, losas, tramos = sys.argv[1], sys.argv[2], int(sys.argv[3]), int(sys.argv[4])
    pathlib.Path(destino).unlink(missing_ok=True)
    shutil.copy(plantilla, destino)
    with sqlite3.connect(destino) as base:
        for tabla in TABLAS:
            base.execute(f"DELETE FROM {tabla}")
        for n in range(1, losas + 1):
            nombre = f"LOSA {n:05}"
            base.execute("INSERT INTO LosaDatos VALUES (?, 0, 0.1, 0.25, 0.5, 1, 0.2, 0.05)", (nombre,))
            base.executemany("INSERT INTO LosaTramos VALUES (?, ?, 4.85, 290, 90, NULL, NULL)",
                             [(nombre, i) for i in range(1, tramos + 1)])
            base.executemany("INSERT INTO LosaEjes VALUES (?, ?, 'E', ?, 0, 0, 0)",
                             [(nombre, i, 1 if i == 1 else 2) for i in range(1, tramos + 2)])


if __name__ == "__main__":
    main()
