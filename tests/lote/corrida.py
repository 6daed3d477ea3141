"""Runs of the batch program as a script would, over copies of the delivered example."""

import json
import os
import pathlib
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import unittest

LOTE, IMAGEN = sys.argv[1], pathlib.Path(sys.argv[2])
EJEMPLO = IMAGEN / "Ejemplo Demostrativo.tbx"


def correr(*argumentos, **entorno):
    return subprocess.run([LOTE, *map(str, argumentos)], capture_output=True, text=True, env=os.environ | entorno)


class DelEjemplo(unittest.TestCase):
    """Those of a class share one run over the example, as `preparar` leaves it and `opciones` ask."""
    opciones, entorno = (), {}

    @classmethod
    def preparar(cls, base):
        pass

    @classmethod
    def setUpClass(cls):
        carpeta = tempfile.TemporaryDirectory(prefix="lote ñ ")
        cls.addClassCleanup(carpeta.cleanup)
        cls.comun = pathlib.Path(carpeta.name)
        cls.salida = cls.comun / "salida"
        cls.ejemplo = cls.comun / "Obra.los"
        shutil.copy(EJEMPLO, cls.ejemplo)
        base = sqlite3.connect(cls.ejemplo)
        cls.preparar(base)
        base.commit()
        base.close()
        corrida = correr(*cls.opciones, cls.ejemplo, cls.salida, **cls.entorno)
        assert corrida.returncode == 0, corrida.stderr
        cls.resumen = corrida.stdout
        cls.json = (cls.salida / "resultados.json").read_text()
        cls.documento = json.loads(cls.json)
