#!/usr/bin/env python3
"""Checks the layers of the house: each folder includes only what its library links, Qt stays in folders named
qt/, SQLite and ICU in src/store/, and every source is formatted. Prints what breaks a rule; exit status 1 then."""

import pathlib
import re
import subprocess
import sys

RAIZ = pathlib.Path(__file__).resolve().parent.parent
FUENTES = RAIZ / "src"


def bibliotecas():
    """Folder of each library below src/, and the libraries it links directly."""
    carpetas, enlaces = {}, {}
    for lista in FUENTES.rglob("CMakeLists.txt"):
        hallada = re.search(r"^trabex_biblioteca(?:_qt)?\(([^)]*)\)", lista.read_text(), re.M)
        if hallada:
            nombre, *otras = hallada.group(1).split()
            carpetas[lista.parent] = nombre
            enlaces[nombre] = otras
    return carpetas, enlaces


def alcance(nombre, enlaces):
    vistas, pendientes = set(), [nombre]
    while pendientes:
        actual = pendientes.pop()
        if actual not in vistas:
            vistas.add(actual)
            pendientes += enlaces.get(actual, [])
    return vistas


def faltas_de(archivo, carpetas, enlaces):
    propia = alcance(carpetas[archivo.parent], enlaces)
    for numero, linea in enumerate(archivo.read_text().splitlines(), 1):
        donde = f"{archivo.relative_to(RAIZ)}:{numero}"
        local = re.match(r'#include "([^"]+)"', linea)
        if local:
            incluida = carpetas.get((FUENTES / local.group(1)).parent)
            if incluida not in propia:
                yield f"{donde}: {local.group(1)} is of no library below this one"
        sistema = re.match(r"#include <([^>]+)>", linea)
        if sistema and re.match(r"Q[A-Z]|Qt", sistema.group(1)) and archivo.parent.name != "qt":
            yield f"{donde}: Qt outside a folder named qt/"
        if sistema and re.match(r"sqlite3|unicode/", sistema.group(1)) and archivo.parent != FUENTES / "store":
            yield f"{donde}: the store's engine outside src/store/"


def main():
    carpetas, enlaces = bibliotecas()
    archivos = [a for a in sorted(FUENTES.rglob("*")) if a.suffix in (".h", ".cpp")]
    faltas = [falta for archivo in archivos for falta in faltas_de(archivo, carpetas, enlaces)]
    for falta in faltas:
        print(falta)
    todos = [str(a) for base in ("src", "apps", "tests", "tools", "bench")
             for a in sorted((RAIZ / base).rglob("*")) if a.suffix in (".h", ".cpp")]
    formato = subprocess.run(["clang-format", "--dry-run", "--Werror", *todos]).returncode
    return 1 if faltas or formato else 0


if __name__ == "__main__":
    sys.exit(main())
