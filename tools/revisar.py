#!/usr/bin/env python3
"""Reads the sources with clang-tidy. Prints what a check finds; exit status 1 then.

    tools/revisar.py reglas                  the checks of .clang-tidy over src, apps, tests and tools
    tools/revisar.py analizador              clang's path-sensitive analyzer over what changed since it last read it
    tools/revisar.py analizador --todo       over everything
    tools/revisar.py analizador --anotar     over what changed, and notes in tools/analizado.txt that it was read

Sources are read some as one: most of the work is the headers, which they share. Needs the release preset configured.
What was found clean is remembered in build/revisado/ by the content of sources and headers.
"""

import argparse
import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

RAIZ = pathlib.Path(__file__).resolve().parent.parent
CONSTRUIDO = RAIZ / "build" / "release"
RECORDADO = RAIZ / "build" / "revisado"
ANOTADO = RAIZ / "tools" / "analizado.txt"
CARPETAS = ("src", "apps", "tests", "tools")
JUNTAS = 40   # sources in one text
# Leaks that it sees in the toolkit's parents and children are none; members stand in the order of their meaning.
ANALIZADOR = ("-*,clang-analyzer-*,-clang-analyzer-cplusplus.NewDeleteLeaks,"
              "-clang-analyzer-optin.performance.Padding")


def salida(*orden):
    return subprocess.run(orden, capture_output=True, text=True, check=True).stdout


def resumen(*partes):
    return hashlib.sha256("\0".join(partes).encode()).hexdigest()


@functools.cache
def incluidos(camino):
    """The project's headers that a file includes, directly or not."""
    vistos = set()
    for nombre in re.findall(r'^#include "([^"]+)"', camino.read_text(), re.M):
        for base in (camino.parent, RAIZ / "src", RAIZ / "tests"):
            if (base / nombre).is_file():
                cabecera = (base / nombre).resolve()
                vistos |= {cabecera} | incluidos(cabecera)
                break
    return frozenset(vistos)


@functools.cache
def contenido(camino):
    return hashlib.sha256(camino.read_bytes()).hexdigest()


class Fuente:
    """A source, how it is compiled, and a text that changes whenever the checks could say something else of it."""

    def __init__(self, camino, opciones):
        self.camino = camino
        self.opciones = opciones
        propias = " ".join(p for par in opciones for p in par).replace(str(RAIZ), ".")
        self.huella = resumen(propias, *(f"{c.relative_to(RAIZ)} {contenido(c)}"
                                         for c in sorted({camino} | incluidos(camino))))

    @property
    def de_ventanas(self):
        return ("-DQT_CORE_LIB",) in self.opciones

    @property
    def donde(self):
        return str(self.camino.relative_to(RAIZ))


def opciones_de(orden):
    """The compiler's options, each with its argument, without what checks don't see: what makes a build or a test
    quicker, where a test was built."""
    palabras = [p for p in orden if not p.endswith("/ccache")]
    palabras = palabras[1:palabras.index("-o")]
    con_argumento = ("-isystem", "-include")
    pares, lugar = [], 0
    while lugar < len(palabras):
        tantas = 2 if palabras[lugar] in con_argumento else 1
        pares.append(tuple(palabras[lugar:lugar + tantas]))
        lugar += tantas
    de_mas = re.compile("-include|-Winvalid-pch|-Wno-|-O|-DQT_TESTCASE_")
    return tuple(p for p in pares if not de_mas.match(p[0]))


def fuentes():
    """All sources, by what is compiled in the release preset; one that isn't would go unread."""
    halladas = {}
    for orden in json.loads((CONSTRUIDO / "compile_commands.json").read_text()):
        camino = pathlib.Path(orden["file"]).resolve()
        if camino.parts[:len(RAIZ.parts) + 1] in [(RAIZ / c).parts for c in CARPETAS]:
            halladas.setdefault(camino, Fuente(camino, opciones_de(shlex.split(orden["command"]))))
    perdidas = [c for carpeta in CARPETAS for c in (RAIZ / carpeta).rglob("*.cpp") if c not in halladas]
    if perdidas:
        sys.exit("not in the build, so unread: " + " ".join(str(c.relative_to(RAIZ)) for c in perdidas))
    return list(halladas.values())


def texto_de(grupo):
    return "".join(f'#include "{f.camino}"  // NOLINT\n' for f in grupo)


def con(programa, grupo, *argumentos):
    """Runs a program of clang's over sources read as one."""
    with tempfile.TemporaryDirectory() as carpeta:
        junta = pathlib.Path(carpeta) / "junta.cpp"
        junta.write_text(texto_de(grupo))
        entrada = str(grupo[0].camino if len(grupo) == 1 else junta)
        comunes = [p for par in dict.fromkeys(par for f in grupo for par in f.opciones) for p in par]
        orden = ([programa, entrada, *argumentos, *comunes] if programa == "clang++" else
                 [programa, *argumentos, entrada, "--", *comunes])
        return subprocess.run(orden, capture_output=True, text=True)


def con_otras(fuentes):
    """The sources that can stand in one text, and those that can't stand with them: names that no other file sees may be
    the same. An error counts for the source through which it was come to."""
    if len(fuentes) == 1:
        return fuentes, []
    dicho = con("clang++", fuentes, "-fsyntax-only", "-w", "-ferror-limit=0", "-fno-caret-diagnostics").stderr
    culpables, lugar = set(), 0
    for linea in dicho.splitlines():
        if hallada := re.match(r"In file included from \S*junta\.cpp:(\d+)", linea):
            lugar = int(hallada[1]) - 1
        elif re.match(r"\S+: (fatal )?error:", linea):
            culpables.add(lugar)
    if culpables == {0}:
        culpables = set(range(1, len(fuentes)))
    fuera = [f for i, f in enumerate(fuentes) if i and i in culpables]
    return [f for f in fuentes if f not in fuera], fuera


def grupos_de(fuentes):
    """Sources that can be read as one, neighbours together."""
    while fuentes:
        juntas, fuentes = con_otras(fuentes)
        tantos = -(-len(juntas) // JUNTAS)
        yield from (juntas[len(juntas) * i // tantos:len(juntas) * (i + 1) // tantos] for i in range(tantos))


def revisar(grupo, argumentos):
    """What clang-tidy says of sources; where they turn out not to stand together, of fewer at a time."""
    corrida = con("clang-tidy", grupo, "--quiet", f"--config-file={RAIZ}/.clang-tidy", *argumentos)
    if corrida.returncode and len(grupo) > 1 and "[clang-diagnostic-error]" in corrida.stdout:
        juntas, fuera = con_otras(grupo)
        partes = (juntas, fuera) if fuera else (grupo[:1], grupo[1:])
        return "".join(revisar(parte, argumentos) for parte in partes)
    return "" if corrida.returncode == 0 else corrida.stdout or corrida.stderr


def recorrer(pedidas, clase, argumentos):
    """Checks what isn't remembered as clean. Says whether all is clean."""
    base = resumen(clase, *argumentos, salida("clang-tidy", "--version"), (RAIZ / ".clang-tidy").read_text(),
                   salida("dpkg-query", "-W", "*-dev"))
    recordadas = {f: RECORDADO / clase / resumen(base, f.huella) for f in pedidas}
    pendientes = [f for f in pedidas if not recordadas[f].exists()]
    print(f"{clase}: {len(pendientes)} sources to read; {len(pedidas) - len(pendientes)} unchanged since they were "
          "found clean", flush=True)
    (RECORDADO / clase).mkdir(parents=True, exist_ok=True)
    clases = {}
    for fuente in sorted(pendientes, key=lambda f: f.camino):
        clases.setdefault(fuente.de_ventanas, []).append(fuente)
    limpio = True
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as obreros:
        grupos = [g for de_clase in obreros.map(lambda c: list(grupos_de(c)), clases.values()) for g in de_clase]
        tareas = {obreros.submit(revisar, grupo, argumentos): grupo for grupo in sorted(grupos, key=len, reverse=True)}
        for tarea in concurrent.futures.as_completed(tareas):
            if tarea.result():
                print(tarea.result(), flush=True)
                limpio = False
            else:
                for fuente in tareas[tarea]:
                    recordadas[fuente].touch()
    return limpio


def main():
    ordenes = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    ordenes.add_argument("clase", choices=("reglas", "analizador"))
    ordenes.add_argument("--todo", action="store_true")
    ordenes.add_argument("--anotar", action="store_true")
    pedido = ordenes.parse_args()
    todas = fuentes()
    if pedido.clase == "reglas":
        return 0 if recorrer(todas, "reglas", []) else 1
    anotadas = set(ANOTADO.read_text().split()) if ANOTADO.exists() and not pedido.todo else set()
    pedidas = [f for f in todas if f.huella not in anotadas]
    print(f"analizador: {len(todas) - len(pedidas)} of {len(todas)} sources are as {ANOTADO.name} notes them")
    limpio = recorrer(pedidas, "analizador", [f"--checks={ANALIZADOR}"])
    if limpio and pedido.anotar:
        ANOTADO.write_text("".join(f"{f.huella} {f.donde}\n" for f in sorted(todas, key=lambda f: f.camino)))
    return 0 if limpio else 1


if __name__ == "__main__":
    sys.exit(main())
