#!/usr/bin/env python3
"""Writes a database of the program's as a Jet 3 one, for tests: no tool at hand makes such files.

    escribir_jet3.py ORIGIN TARGET [KEY]

Every table with its rows and primary key, and after each tenth row one that is erased; views and foreign keys
as queries and relations that the catalogue alone knows. KEY is the number that the pages lie under, 0 where
they lie open. Source: the format as mdbtools' authors document it.
"""
import datetime
import sqlite3
import struct
import sys

PAGINA = 2048
LOGICO, BYTE, ENTERO, LARGO, MONEDA, SIMPLE, DOBLE, FECHA, TEXTO, OLE, MEMO = 1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12
FIJAS = {LOGICO: "", BYTE: "B", ENTERO: "h", LARGO: "i", MONEDA: "q", SIMPLE: "f", DOBLE: "d", FECHA: "d"}
DECLARADAS = {"BOOLEAN": LOGICO, "BYTE": BYTE, "SMALLINT": ENTERO, "INTEGER": LARGO, "MONEY": MONEDA,
              "REAL": SIMPLE, "DOUBLE": DOBLE, "DATE": FECHA, "BLOB": OLE}
CATALOGO = [("Id", LARGO, 4), ("ParentId", LARGO, 4), ("Name", TEXTO, 64), ("Type", ENTERO, 2),
            ("DateCreate", FECHA, 8), ("Flags", LARGO, 4), ("LvProp", OLE, 0)]


def rc4(clave, datos):
    estado, j, i, salida = list(range(256)), 0, 0, bytearray()
    for k in range(256):
        j = (j + estado[k] + clave[k % len(clave)]) % 256
        estado[k], estado[j] = estado[j], estado[k]
    j = 0
    for byte in datos:
        i = (i + 1) % 256
        j = (j + estado[i]) % 256
        estado[i], estado[j] = estado[j], estado[i]
        salida.append(byte ^ estado[(estado[i] + estado[j]) % 256])
    return bytes(salida)


class Base:
    def __init__(self):
        self.paginas = [bytes(PAGINA)] * 3  # header, map of the free pages, the catalogue's definition
        self.filas = {}                     # owner to (page, rows)

    def nueva(self, bytes_=b""):
        self.paginas.append(bytes_)
        return len(self.paginas) - 1

    def poner(self, duena, fila, marca=0):
        """A row on the owner's last page: the number that points to it."""
        pagina, filas = self.filas.get(duena, (0, []))
        if not filas or sum(len(f) + 2 for f, _ in filas) + len(fila) + 12 > PAGINA:
            pagina, filas = self.nueva(), []
        filas.append((fila, marca))
        self.filas[duena] = pagina, filas
        lugares, lugar = [], PAGINA
        for f, m in filas:
            lugar -= len(f)
            lugares.append(lugar | m)
        cabeza = struct.pack(f"<HHIH{len(filas)}H", 0x0101, lugar - 10 - 2 * len(filas),
                             int.from_bytes(duena[:4], "little") if isinstance(duena, bytes) else duena,
                             len(filas), *lugares)
        self.paginas[pagina] = cabeza.ljust(lugar, b"\0") + b"".join(f for f, _ in reversed(filas))
        return pagina << 8 | len(filas) - 1

    def mapa(self, paginas):
        bits = bytearray(128)
        for pagina in paginas:
            bits[pagina // 8] |= 1 << pagina % 8
        return self.poner(0, struct.pack("<BI", 0, 0) + bits)

    def largo(self, datos):
        if len(datos) <= 32:
            return struct.pack("<III", len(datos) | 1 << 31, 0, 0) + datos
        if len(datos) <= PAGINA - 12:
            return struct.pack("<III", len(datos) | 1 << 30, self.poner(b"LVAL", datos), 0)
        siguiente = 0
        for desde in reversed(range(0, len(datos), 1000)):
            siguiente = self.poner(b"LVAL", struct.pack("<I", siguiente) + datos[desde:desde + 1000])
        return struct.pack("<III", len(datos), siguiente, 0)

    def fila(self, columnas, valores):
        mascara, datos, lugares = bytearray((len(columnas) + 7) // 8), bytes([len(columnas)]), []
        for i, ((_, tipo, _), valor) in enumerate(zip(columnas, valores)):
            if valor is not None and (tipo != LOGICO or valor):
                mascara[i // 8] |= 1 << i % 8
            if tipo in FIJAS and tipo != LOGICO:
                datos += struct.pack("<" + FIJAS[tipo], valor or 0)
        for (_, tipo, _), valor in zip(columnas, valores):
            if tipo not in FIJAS:
                lugares.append(len(datos))
                bytes_ = b"" if valor is None else valor if tipo == OLE else valor.encode("cp1252")
                datos += bytes_ if valor is None or tipo == TEXTO else self.largo(bytes_)
        if lugares:
            # Places are bytes: beyond 255 a table says from which column on they grow by 256.
            lugares.append(len(datos))
            saltos, sin_saltos = 0, len(datos) + len(lugares) + 1 + len(mascara)
            while saltos != (sin_saltos + saltos - 1) // 256:
                saltos += 1
            tabla = [next((i for i, lugar in enumerate(lugares) if lugar >= 256 * (k + 1)), 255) for k in range(saltos)]
            datos += bytes([lugar % 256 for lugar in reversed(lugares)] + tabla[::-1] + [len(lugares) - 1])
        return datos + mascara

    def tabla(self, definicion, columnas, filas, clase=b"N", clave=()):
        """`clave` are the places of the columns of its primary key."""
        antes = len(self.paginas)
        for i, fila in enumerate(filas):
            codificada = self.fila(columnas, fila)
            self.poner(definicion, codificada)
            if i % 10 == 9:
                self.poner(definicion, codificada, 0xC000)
        suyas = [p for p in range(antes, len(self.paginas)) if self.paginas[p][4:8] == struct.pack("<I", definicion)]
        texto = struct.pack("<IIIBHHH", 0, len(filas), 0, clase[0], len(columnas),
                            sum(c[1] not in FIJAS for c in columnas), len(columnas))
        indices = 1 if clave else 0
        texto += struct.pack("<IIII", indices, indices, self.mapa(suyas), self.mapa(suyas[-1:])) + bytes(8 * indices)
        lugar = variable = 0
        for i, (_, tipo, ancho) in enumerate(columnas):
            fija = tipo in FIJAS
            texto += struct.pack("<BHHHHHHBHH", tipo, i, 0 if fija else variable, i, 0x409, 1252, 0, 3 if fija else 2,
                                 lugar if fija else 0, ancho)
            lugar, variable = lugar + (ancho if fija and tipo != LOGICO else 0), variable + (not fija)
        for nombre, _, _ in columnas:
            texto += bytes([len(nombre.encode("cp1252"))]) + nombre.encode("cp1252")
        if clave:
            hoja = self.nueva(struct.pack("<BBHI", 4, 1, 1800, definicion))
            texto += b"".join(struct.pack("<HB", clave[i] if i < len(clave) else 0xFFFF, i < len(clave)) for i in range(10))
            texto += struct.pack("<IIBIIBiIHB", self.mapa([hoja]), hoja, 9, 0, 0, 0, -1, 0, 0, 1) + b"\x0aPrimaryKey"
        texto = bytearray(texto + b"\xff\xff")
        struct.pack_into("<I", texto, 0, len(texto) + 8)
        trozos = [texto[i:i + PAGINA - 8] for i in range(0, len(texto), PAGINA - 8)]
        numeros = [definicion] + [self.nueva() for _ in trozos[1:]]
        for numero, trozo, siguiente in zip(numeros, trozos, numeros[1:] + [0]):
            self.paginas[numero] = struct.pack("<BB2sI", 2, 1, b"VC", siguiente) + bytes(trozo)

    def archivo(self, clave):
        self.paginas[1] = struct.pack("<HHIHH", 0x0101, 1903, 0, 1, 1915).ljust(1915, b"\0") + bytes(133)
        claro = struct.pack("<HHI", 0x409, 1252, clave).ljust(92, b"\0").rjust(126, b"\0")
        cabeza = b"\0\1\0\0Standard Jet DB\0" + bytes(4) + rc4(bytes([0xC7, 0xDA, 0x39, 0x6B]), claro)
        paginas = [pagina.ljust(PAGINA, b"\0") for pagina in [cabeza] + self.paginas[1:]]
        return paginas[0] + b"".join(rc4(struct.pack("<I", clave ^ i), pagina) if clave else pagina
                                     for i, pagina in enumerate(paginas) if i)


def columna(nombre, declarada):
    clase, _, ancho = declarada.upper().rstrip(")").partition("(")
    tipo = DECLARADAS.get(clase) or (TEXTO if 0 < int(ancho or 0) <= 255 else MEMO)
    return nombre, tipo, int(ancho or 0) if tipo == TEXTO else 1 if tipo == LOGICO else struct.calcsize("<" + FIJAS.get(tipo, ""))


def valor(tipo, dato):
    return (datetime.date.fromisoformat(dato) - datetime.date(1899, 12, 30)).days if tipo == FECHA and dato else dato


def escribir(origen, destino, clave=0):
    base, objetos = Base(), [(2, "MSysObjects", 1, -0x80000000)]
    with sqlite3.connect(origen) as propia:
        for nombre, in propia.execute("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY rowid").fetchall():
            leidas = propia.execute(f'PRAGMA table_info("{nombre}")').fetchall()
            columnas = [columna(c[1], c[2]) for c in leidas]
            filas = [[valor(c[1], dato) for c, dato in zip(columnas, fila)]
                     for fila in propia.execute(f'SELECT * FROM "{nombre}" ORDER BY rowid')]
            objetos.append((base.nueva(), nombre, 1, -0x80000000 * nombre.startswith("MSys")))
            base.tabla(objetos[-1][0], columnas, filas, clave=[c[0] for c in leidas if c[5]])
            objetos += [(-len(objetos), f"{nombre}{c[2]}", 8, 0) for c in propia.execute(f'PRAGMA foreign_key_list("{nombre}")')]
        objetos += [(-len(objetos) - i, nombre, 5, 0)
                    for i, (nombre,) in enumerate(propia.execute("SELECT name FROM sqlite_master WHERE type = 'view'"))]
    base.tabla(2, CATALOGO, [[id_, 0x0F000001, nombre, clase, 36000, marcas, None]
                             for id_, nombre, clase, marcas in objetos], b"S")
    with open(destino, "wb") as archivo:
        archivo.write(base.archivo(clave))


if __name__ == "__main__":
    escribir(sys.argv[1], sys.argv[2], int(sys.argv[3], 0) if len(sys.argv) > 3 else 0)
