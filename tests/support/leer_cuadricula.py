"""Prints what other programs' readers find in an exported grid: leer_cuadricula.py txt|xml FILE. A line a row, its cells by repr."""

import csv
import sys
import xml.etree.ElementTree as arbol


def filas_de_texto(camino):
    with open(camino, encoding="utf-8-sig", newline="") as archivo:
        yield from csv.reader(archivo, dialect="excel-tab")


def filas_de_xml(camino):
    raiz = arbol.parse(camino).getroot()
    yield [raiz.tag]
    for fila in raiz:
        yield [fila.tag, *fila.attrib.values()] + [f"{celda.get('columna')}={celda.text or ''}" for celda in fila]


sys.stdout.reconfigure(encoding="utf-8")
for fila in {"txt": filas_de_texto, "xml": filas_de_xml}[sys.argv[1]](sys.argv[2]):
    print(repr(fila))
