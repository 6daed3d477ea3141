"""A private virtual desktop with the real program on it, driven by mouse and keyboard."""

import contextlib
import json
import os
import pathlib
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import time

ESPERA = 60
PRINCIPAL = "Trabex 2024   Proyecto:[obra.los]"
CAJA = "Trabex 2024"


def exigir(*programas):
    faltan = [programa for programa in programas if shutil.which(programa) is None]
    if faltan:
        print("skipped: not installed:", *faltan)
        sys.exit(77)


class Escritorio:
    def __init__(self, programa, tamano="1280x800", fotos=None):
        exigir("Xvfb", "xdotool", "openbox")
        self.carpeta = pathlib.Path(tempfile.mkdtemp(prefix="trabex e2e ñ "))
        self.fotos = fotos
        self.procesos = []
        hogar = self.carpeta / "hogar"
        (hogar / ".config").mkdir(parents=True)
        (hogar / ".config" / "user-dirs.dirs").write_text('XDG_DOCUMENTS_DIR="$HOME/Documentos"\n')
        entorno = {clave: valor for clave, valor in os.environ.items() if not clave.startswith(("XDG_", "QT_"))}
        self.entorno = entorno | {"HOME": str(hogar), "XDG_RUNTIME_DIR": str(hogar), "QT_QPA_PLATFORM": "xcb",
                                  "LC_ALL": "C.UTF-8"}
        self.usuario = hogar / "Documentos" / "Nodara Software" / "Trabex24"
        self._pantalla(tamano)
        gestor = self.lanzar("openbox")
        self.hasta(lambda: self.xdotool("get_num_desktops").returncode == 0, "the window manager")
        assert gestor.poll() is None
        self.programa = self.lanzar(programa)

    def _pantalla(self, tamano):
        lectura, escritura = os.pipe()
        # Without -noreset the display begins anew when a first client leaves, and drops one that is just connecting.
        self.procesos.append(subprocess.Popen(
            ["Xvfb", "-noreset", "-displayfd", str(escritura), "-screen", "0", tamano + "x24"], pass_fds=[escritura],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        os.close(escritura)
        with os.fdopen(lectura) as tubo:
            self.entorno["DISPLAY"] = ":" + tubo.readline().strip()

    def lanzar(self, *orden):
        proceso = subprocess.Popen(orden, env=self.entorno, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.procesos.append(proceso)
        return proceso

    def xdotool(self, *argumentos):
        return subprocess.run(["xdotool", *map(str, argumentos)], env=self.entorno, capture_output=True, text=True)

    def hasta(self, condicion, que):
        limite = time.monotonic() + ESPERA
        while time.monotonic() < limite:
            valor = condicion()
            if valor:
                return valor
            time.sleep(0.03)
        raise AssertionError(f"did not come: {que}; windows: {self.visibles()}")

    def visibles(self):
        """Titles of the windows on the screen, by their numbers."""
        numeros = self.xdotool("search", "--onlyvisible", "--name", ".+").stdout.split()
        return {numero: self.xdotool("getwindowname", numero).stdout.strip() for numero in numeros}

    def ventana(self, titulo, sola=False):
        """Waits for a window of that exact title, and until it has the keyboard. One that stays without for two seconds
        gets it as by a click on its title; `sola` asks that the program takes care of that itself."""
        desde = time.monotonic()

        def activa():
            if self.xdotool("getactivewindow", "getwindowname").stdout.strip() == titulo:
                return self.xdotool("getactivewindow").stdout.strip()
            if not sola and time.monotonic() - desde > 2:
                for numero, nombre in self.visibles().items():
                    if nombre == titulo:
                        self.xdotool("windowactivate", numero)
            return None
        numero = self.hasta(activa, titulo)
        self.reposo(0.05)
        if self.fotos:
            nombre = "".join(c if c.isalnum() else "-" for c in titulo)
            subprocess.run(["import", "-window", "root", f"{self.fotos}/{len(os.listdir(self.fotos)):02}-{nombre}.png"],
                           env=self.entorno)
        return numero

    def teclas(self, *teclas):
        self.xdotool("key", "--clearmodifiers", "--delay", 15, *teclas)

    def ir(self, titulo, *teclas, escribir=""):
        """Types, presses keys, and waits for the window that comes of it."""
        if escribir:
            self.escribir(escribir)
        self.teclas(*teclas)
        return self.ventana(titulo)

    def reposo(self, quieto=0.2):
        """Until nobody on the desktop has done anything for that long: a button pressed by its key acts after a tenth of a
        second."""
        antes, desde = None, time.monotonic()
        while time.monotonic() - desde < quieto:
            time.sleep(0.01)
            procesos = [pathlib.Path(f"/proc/{proceso.pid}") for proceso in self.procesos if proceso.poll() is None]
            ahora = [(p / "schedstat").read_text().split()[0] for p in procesos]
            if ahora != antes or any(") R " in (p / "stat").read_text() for p in procesos):
                antes, desde = ahora, time.monotonic()

    def escribir(self, texto):
        """The end of a line is the Return key."""
        for numero, linea in enumerate(texto.split("\n")):
            if numero > 0:
                self.teclas("Return")
            if linea:
                self.xdotool("type", "--clearmodifiers", "--delay", 8, linea)

    def pulsar(self, ventana, x, y):
        self.xdotool("mousemove", "--window", ventana, x, y, "click", 1)

    def cerrar(self):
        for proceso in reversed(self.procesos):
            proceso.kill()
            proceso.wait()
        shutil.rmtree(self.carpeta, ignore_errors=True)


def filas(archivo, consulta):
    with contextlib.closing(sqlite3.connect(archivo)) as base:
        return base.execute(consulta).fetchall()


def crear_proyecto(e):
    e.ventana("Trabex 2024   Proyecto:[]")
    e.ir("Crear un Nuevo Proyecto", "ctrl+n")
    e.ir("DATOS DEL PROYECTO", "Return", escribir="obra")
    e.ir(PRINCIPAL, "Return")
    return e.usuario / "Proyectos" / "obra.los"


def renombrar(e, nombre, lista):
    e.ir("RENOMBRAR", "F2")
    e.ir(CAJA, "Return", escribir=nombre)
    e.ir(lista, "Return")


def guardar_pdf(e, dialogo, nombre, despues):
    """From the dialog of a staged report, which begins on the screen's option, back to the window below."""
    e.ventana(dialogo)
    e.ir("Exportar el Reporte a formato: Adobe Acrobat(PDF)", "Down", "Return")
    e.ir(CAJA, "Return", escribir=nombre)   # open it?
    e.teclas("Tab", "Return")
    e.ventana(despues, sola=True)   # question and report window closed at once
    pdf = (e.usuario / "ReportesExportados" / nombre).read_bytes()
    assert pdf.startswith(b"%PDF")
    return pdf


def resultados(e, obra, clave):
    """What the batch program says of the only element of a kind."""
    subprocess.run([pathlib.Path(sys.argv[1]).with_name("trabex-lote"), "--solo=resultados", obra, e.carpeta / "salida"],
                   check=True, stdout=subprocess.DEVNULL)
    elemento, = json.loads((e.carpeta / "salida" / "resultados.json").read_text())[clave]
    return elemento


def correr(recorrer):
    """Walks through the program of the command line; pictures of its windows go to a second argument's folder."""
    escritorio = Escritorio(sys.argv[1], fotos=sys.argv[2] if len(sys.argv) > 2 else None)
    try:
        recorrer(escritorio)
    finally:
        escritorio.cerrar()
    print("1 passed, 0 failed")
