"""A private virtual desktop with the real program on it, driven by mouse and keyboard."""

import contextlib
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
            time.sleep(0.1)
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
            actual = self.xdotool("getactivewindow").stdout.strip()
            if actual and self.xdotool("getwindowname", actual).stdout.strip() == titulo:
                return actual
            if not sola and time.monotonic() - desde > 2:
                for numero, nombre in self.visibles().items():
                    if nombre == titulo:
                        self.xdotool("windowactivate", numero)
            return None
        numero = self.hasta(activa, titulo)
        time.sleep(0.25)
        if self.fotos:
            nombre = "".join(c if c.isalnum() else "-" for c in titulo)
            subprocess.run(["import", "-window", "root", f"{self.fotos}/{len(os.listdir(self.fotos)):02}-{nombre}.png"],
                           env=self.entorno)
        return numero

    def teclas(self, *teclas):
        self.xdotool("key", "--clearmodifiers", "--delay", 40, *teclas)

    @staticmethod
    def respiro():
        time.sleep(0.5)

    def escribir(self, texto):
        self.xdotool("type", "--clearmodifiers", "--delay", 8, texto)

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
    e.teclas("ctrl+n")
    e.ventana("Crear un Nuevo Proyecto")
    e.escribir("obra")
    e.teclas("Return")
    e.ventana("DATOS DEL PROYECTO")
    e.teclas("Return")
    e.ventana(PRINCIPAL)
    return e.usuario / "Proyectos" / "obra.los"


def guardar_pdf(e, dialogo, nombre, despues):
    """From the dialog of a staged report, which begins on the screen's option, back to the window below; the file's bytes."""
    e.ventana(dialogo)
    e.teclas("Down", "Return")
    e.ventana("Exportar el Reporte a formato: Adobe Acrobat(PDF)")
    e.escribir(nombre)
    e.teclas("Return")
    e.ventana(CAJA)   # open it?
    e.teclas("Tab", "Return")
    e.ventana(despues)
    return (e.usuario / "ReportesExportados" / nombre).read_bytes()


def correr(recorrer):
    """Walks through the program of the command line; pictures of its windows go to a second argument's folder."""
    escritorio = Escritorio(sys.argv[1], fotos=sys.argv[2] if len(sys.argv) > 2 else None)
    try:
        recorrer(escritorio)
    finally:
        escritorio.cerrar()
    print("1 passed, 0 failed")
