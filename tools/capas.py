#!/usr/bin/env python3
"""Checks the structure of the house. Prints what breaks a rule; exit status 1 then.

  layers       a folder includes only what its library links; Qt stays in folders named qt/, the store's engine and SQL in
               src/store/; services link no element
  names        one namespace a folder, and one definition of a name in it
  what is used fields and functions of headers that nothing reads or calls
  comments     files that they name exist
  format       clang-format changes nothing
"""

import collections
import pathlib
import re
import subprocess
import sys

RAIZ = pathlib.Path(__file__).resolve().parent.parent
FUENTES = RAIZ / "src"
ELEMENTOS = {"slab", "stairs", "helical", "markus", "loads"}
SERVICIOS = {"store", "proyecto", "drawing", "drawing_qt", "documento", "xls", "cuadricula", "salidas", "salidas_qt",
             "montaje", "montaje_qt", "shell", "shell_qt", "lote", "reports_ui", "reports_ui_qt"}
SQL = re.compile(r'"\s*(SELECT \*|SELECT |DELETE \*|DELETE FROM|UPDATE |INSERT INTO|CREATE TABLE|DROP TABLE|ALTER TABLE)')


class Archivo:
    """A source with its text in two forms: the code without comments and literals, and the comments alone."""

    def __init__(self, camino):
        self.camino = camino
        self.texto = camino.read_text()
        self.codigo = re.sub(r'//[^\n]*|/\*.*?\*/|R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"',
                             lambda m: re.sub(r"[^\n]", " ", m.group(0)), self.texto, flags=re.S)
        self.comentarios = [(n, linea[linea.index("//"):]) for n, linea in enumerate(self.texto.splitlines(), 1)
                            if "//" in linea]

    @property
    def donde(self):
        return self.camino.relative_to(RAIZ)

    def linea(self, lugar):
        return self.texto.count("\n", 0, lugar) + 1


def bibliotecas():
    """Name of the library of each folder below src/, and what each links directly."""
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


def capas(archivos, carpetas, enlaces):
    for nombre in sorted(SERVICIOS & set(enlaces)):
        for elemento in sorted(alcance(nombre, enlaces) & ELEMENTOS):
            yield f"trabex_{nombre} is a service and links the element {elemento}"
    for archivo in archivos:
        if archivo.camino.parent not in carpetas:
            yield f"{archivo.donde}: in a folder without a library"
            continue
        propia = alcance(carpetas[archivo.camino.parent], enlaces)
        en_almacen = (FUENTES / "store") in archivo.camino.parents
        for numero, linea in enumerate(archivo.texto.splitlines(), 1):
            donde = f"{archivo.donde}:{numero}"
            local = re.match(r'#include "([^"]+)"', linea)
            if local and carpetas.get((FUENTES / local.group(1)).parent) not in propia:
                yield f"{donde}: {local.group(1)} is of no library below this one"
            sistema = re.match(r"#include <([^>]+)>", linea)
            if sistema and re.match(r"Q[A-Z]|Qt", sistema.group(1)) and archivo.camino.parent.name != "qt":
                yield f"{donde}: Qt outside a folder named qt/"
            if sistema and re.match(r"sqlite3|unicode/", sistema.group(1)) and not en_almacen:
                yield f"{donde}: the store's engine outside src/store/"
            if SQL.search(linea) and not en_almacen:
                yield f"{donde}: SQL outside src/store/"


ESPACIO = re.compile(r"^namespace (trabex(?:::\w+)*) \{", re.M)
TIPO = re.compile(r"^(?:template <[^;{]*>\s*)?(?:class|struct|enum class|enum struct|enum)\s+(\w+)(?!::|\w)[^;{}()=]*\{", re.M)
FUNCION = re.compile(r"^(?!return|else|using|namespace|class|struct|enum|friend|extern|#|case|\s)"
                     r"(?:template <[^;{]*>\s*)?(?:[\w:<>,&*\s]+?[\s&*])(\w+)\([^;{}]*\)(?: const| noexcept)*\s*\{", re.M)


def sin_anonimo(codigo):
    """Without unnamed namespaces: a comment, blanks by now, stands behind the brace that closes one."""
    return re.sub(r"^namespace \{$.*?^\}  *$", lambda m: re.sub(r"[^\n]", " ", m[0]), codigo, flags=re.S | re.M)


def alias_o_tipos(archivo):
    codigo = sin_anonimo(archivo.codigo)
    yield from TIPO.finditer(codigo)
    yield from re.finditer(r"^using (\w+) =", codigo, re.M)


def nombres(archivos):
    """One namespace a folder, and each type or function of it defined in one place."""
    de_carpeta, duenos = {}, {}
    tipos, funciones = collections.defaultdict(set), collections.defaultdict(set)
    for archivo in archivos:
        espacios = ESPACIO.findall(archivo.codigo)
        if not espacios:
            continue
        propio = espacios[-1]  # those before it declare types of others
        esperado = de_carpeta.setdefault(archivo.camino.parent, propio)
        if propio != esperado:
            yield f"{archivo.donde}: namespace {propio} in a folder of {esperado}"
        if duenos.setdefault(propio, archivo.camino.parent) != archivo.camino.parent:
            yield f"{archivo.donde}: namespace {propio} is that of {duenos[propio].relative_to(RAIZ)}"
        for tipo in alias_o_tipos(archivo):
            tipos[(propio, tipo.group(1))].add((archivo.donde, archivo.linea(tipo.start())))
        for funcion in FUNCION.finditer(sin_anonimo(archivo.codigo)):
            funciones[(propio, funcion.group(1))].add(archivo.donde.with_suffix(""))
    for (espacio, nombre), lugares in sorted(tipos.items()):
        if len(lugares) > 1:
            yield f"{espacio}::{nombre} is defined in " + " and ".join(f"{d}:{n}" for d, n in sorted(lugares))
    for (espacio, nombre), lugares in sorted(funciones.items()):
        if len(lugares) > 1:
            yield f"{espacio}::{nombre}() is defined in " + " and ".join(str(d) for d in sorted(lugares))


CAMPO = re.compile(r"^    (?:[\w:<>,\s*&]+?)[\s*&](\w+)(?:\{[^;]*\}| = [^;]+)?;", re.M)
DECLARADA = re.compile(r"^(?: {4})?(?!return|using|typedef|friend|case)[\w:<>,&*\s\[\]]*?[\s&*](\w+)\([^;{}]*\)"
                       r"(?: const| noexcept| override| = 0| final)*\s*[;{]", re.M)


def en_uso(archivos, otros):
    """What a header offers is read or called by the program, not by tests alone."""
    palabras = collections.Counter()
    for archivo in archivos + otros:
        palabras.update(re.findall(r"\w+", archivo.codigo))
    codigo_de = {a.camino: a.codigo for a in archivos}
    for archivo in archivos:
        if archivo.camino.suffix != ".h":
            continue
        for campo in CAMPO.finditer(archivo.codigo):
            nombre = campo.group(1)
            if re.match(r"\s*(return|using|friend|typedef)\b", campo.group(0)) or nombre in ("default", "delete", "const"):
                continue
            if palabras[nombre] == 1:
                yield f"{archivo.donde}:{archivo.linea(campo.start(1))}: nothing uses {nombre}"
        for funcion in DECLARADA.finditer(archivo.codigo):
            nombre = funcion.group(1)
            if "override" in funcion.group(0) or re.match(r"operator|if|for|while|switch|sizeof|function|[a-z0-9]+_", nombre):
                continue
            propio = archivo.codigo + codigo_de.get(archivo.camino.with_suffix(".cpp"), "")
            if palabras[nombre] <= min(2, len(re.findall(rf"\b{nombre}\(", propio))):
                llamadas = len(re.findall(rf"(?:[=(,!?:]|return|[.>&|+]|;\n)\s*{nombre}\(", propio))
                if palabras[nombre] == 1 or not llamadas:
                    yield f"{archivo.donde}:{archivo.linea(funcion.start(1))}: nothing calls {nombre}()"


def comentarios(archivos):
    versionados = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard"], cwd=RAIZ, text=True,
                                 capture_output=True, check=True).stdout.splitlines()
    conocidos = {pathlib.Path(v).name for v in versionados}
    for archivo in archivos:
        for numero, comentario in archivo.comentarios:
            for nombre in re.findall(r"\b([\w-]+\.(?:h|cpp|py|md|cmake))\b", comentario):
                if nombre not in conocidos:
                    yield f"{archivo.donde}:{numero}: the comment names {nombre}, which does not exist"


def leer(carpeta):
    return [Archivo(a) for a in sorted((RAIZ / carpeta).rglob("*")) if a.suffix in (".h", ".cpp")]


def main():
    carpetas, enlaces = bibliotecas()
    fuentes, programas = leer("src"), leer("apps") + leer("bench") + leer("tools")
    pruebas = leer("tests")
    faltas = [*capas(fuentes, carpetas, enlaces), *nombres(fuentes), *en_uso(fuentes, programas),
              *comentarios(fuentes + programas + pruebas)]
    for falta in faltas:
        print(falta)
    todos = [str(a.camino) for a in fuentes + programas + pruebas]
    formato = subprocess.run(["clang-format", "--dry-run", "--Werror", *todos]).returncode
    return 1 if faltas or formato else 0


if __name__ == "__main__":
    sys.exit(main())
