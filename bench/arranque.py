#!/usr/bin/env python3
"""Time from the program's start to its main window, the splash's own time included, and the processor's time that
it took: arranque.py PATH/trabex"""

import os
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
    while not escritorio.xdotool("search", "--onlyvisible", "--name", "^Trabex 2024   Proyecto:").stdout:
        pass
    duracion = time.monotonic() - inicio
    proceso.kill()
    _, _, gasto = os.wait4(proceso.pid, 0)
    return duracion, gasto.ru_utime + gasto.ru_stime


def main():
    escritorio = Escritorio(sys.argv[1])
    try:
        escritorio.ventana("Trabex 2024   Proyecto:[]")
        escritorio.programa.kill()
        escritorio.programa.wait()
        veces = [medir(escritorio, sys.argv[1]) for _ in range(VECES)]
    finally:
        escritorio.cerrar()
    duracion, procesador = (statistics.median(medidas) * 1000 for medidas in zip(*veces))
    print(f"start to main window: median {duracion:.0f} ms, {procesador:.0f} of them on the processor")


if __name__ == "__main__":
    main()
