#!/usr/bin/env python3
"""Time from the program's start to its main window, the splash's own time included: arranque.py PATH/trabex"""

import pathlib
import statistics
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "e2e"))
from escritorio import Escritorio

VECES = 5


def medir(escritorio, programa):
    inicio = time.monotonic()
    proceso = escritorio.lanzar(programa)
    while "Trabex 2024   Proyecto:[]" not in escritorio.visibles().values():
        time.sleep(0.005)
    duracion = time.monotonic() - inicio
    proceso.kill()
    proceso.wait()
    return duracion


def main():
    escritorio = Escritorio(sys.argv[1])
    try:
        escritorio.ventana("Trabex 2024   Proyecto:[]")
        escritorio.programa.kill()
        escritorio.programa.wait()
        veces = [medir(escritorio, sys.argv[1]) for _ in range(VECES)]
    finally:
        escritorio.cerrar()
    print(f"start to main window: median {statistics.median(veces) * 1000:.0f} ms, of which 900 are the splash's")


if __name__ == "__main__":
    main()
