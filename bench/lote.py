#!/usr/bin/env python3
"""lote.py TRABEX-LOTE [LOSAS [TRAMOS [OPCIONES...]]]: the batch program with OPCIONES (else --sin-dibujos) over a project
of equal slabs, and beside it, turn by turn, what it must do anyway: reading the file and writing the JSON. Tells the
best wall and processor seconds of each, their ratios, and the peak of memory."""

import os
import pathlib
import subprocess
import sys
import tempfile
import time

VUELTAS = 5


def correr(*orden):
    """Wall seconds, processor seconds and MiB of a run."""
    inicio = time.monotonic()
    proceso = subprocess.Popen(orden, stdout=subprocess.DEVNULL)
    _, estado, uso = os.wait4(proceso.pid, 0)
    if estado != 0:
        sys.exit(f"{orden} ended with {estado}")
    return time.monotonic() - inicio, uso.ru_utime + uso.ru_stime, uso.ru_maxrss / 1024


def main():
    programa = pathlib.Path(sys.argv[1]).resolve()
    losas, tramos = (sys.argv[2:4] + ["2000", "8"][len(sys.argv[2:4]):])
    opciones = sys.argv[4:] or ["--sin-dibujos"]
    with tempfile.TemporaryDirectory(prefix="lote ") as carpeta:
        proyecto = pathlib.Path(carpeta) / "obra.los"
        subprocess.run([pathlib.Path(__file__).with_name("proyecto_grande.py"),
                        programa.parent / "Imagen" / "LosaImagen.tbx", proyecto, losas, tramos], check=True)
        salida = pathlib.Path(carpeta) / "salida"
        parejas = [(correr(programa, "--solo=resultados", proyecto, salida), correr(programa, *opciones, proyecto, salida))
                   for _ in range(VUELTAS)]
    referencia, medida = ([min(vuelta[k] for vuelta in columna) for k in range(3)] for columna in zip(*parejas))
    print(f"{losas} slabs of {tramos} spans, {' '.join(opciones)}")
    for nombre, k, unidad in (("wall", 0, "s"), ("processor", 1, "s"), ("memory", 2, "MiB")):
        print(f"{nombre:12}{medida[k]:10.2f} {unidad:4}  results alone{referencia[k]:10.2f} {unidad:4}"
              f"  ratio{medida[k] / referencia[k]:8.1f}")


if __name__ == "__main__":
    main()
