"""What every report and the calculation notes say, number by number, against resultados.json: of which element each comes,
under which heading it stands and with how many decimals, by the tables below. Nothing may be missing or left over."""

import contextlib
import html
import json
import math
import re
import sqlite3
import subprocess
import sys
import types
import unittest
from decimal import ROUND_HALF_UP, Decimal

import xlrd
from corrida import DelEjemplo

PROYECTO = "{0}Proyecto:=Proyecto.Proyecto; Propietario:=Proyecto.Propietario; Calculista:=Proyecto.Calculista; Fecha:=fecha"
NERVADA = "Tipo:='LOSA NERVADA'; Ancho del nervio Bo:=Bo:2 m; Altura Ho:=Ho:2 m; Separación So:=So:2 m"
MACIZA = "Tipo:='LOSA MACIZA'; Ancho de la franja Bm:=Bm:2 m; Altura Hm:=Hm:2 m"
MATERIALES = ("Concreto F'c:=g.FC:0 kgf/cm²; Acero Fy:=g.FY:0 kgf/cm²; Factor de carga permanente FCP:=g.FCP:2; "
              "Factor de carga variable FCV:=g.FCV:2; Reducción por momento Fi:=g.FiMomento:2; "
              "Reducción por corte Fi:=g.FiCorte:2; Recubrimiento R:=g.D8:3 m")
TRAMOS = ("Tramo=i; Ejes A=a.e.Eje; Ejes B=b.e.Eje; L (m)=t.LT:2; Mu (kgf·m) A=u('MomentoA'):,2; Mu (kgf·m) B=u('MomentoB'):,2; "
          "Vu (kgf) A=u('CorteA'):,2; Vu (kgf) B=u('CorteB'):,2; Máximo del tramo Mu (kgf·m)=d.MT:,2; "
          "Máximo del tramo x (m)=d.x:2; Acero (cm²) Superior=d.AS1:2; Acero (cm²) Inferior=d.AS2:2")
EJES = ("Eje=e.Eje; Apoyo=apoyo; Acero (cm²) Superior=d.AS1:2; Acero (cm²) Inferior=d.AS2:2; "
        "Zona maciza (m) Izquierda=mas3(d.MczI):2; Zona maciza (m) Derecha=mas3(d.MczD):2; "
        "Punto de inflexión (m) Izquierda=d.PtoI:2; Punto de inflexión (m) Derecha=d.PtoD:2")
REACCIONES = ("Eje=e.Eje; Vertical{0} Permanente=p.RV/q:{1}; Vertical{0} Variable=v.RV/q:{1}; Vertical{0} Total=(p.RV+v.RV)/q:{1}; "
              "Horizontal{0} Permanente=p.RH/q:{1}; Horizontal{0} Variable=v.RH/q:{1}; Horizontal{0} Total=(p.RH+v.RH)/q:{1}")
JUNTAS = "Eje=e.Eje; x (m)=p.x:2; y (m)=p.y:2; DX (m)=p.DX+v.DX:6; DY (m)=p.DY+v.DY:6; Giro (rad)=p.Giro+v.Giro:6"

# The scratch tables of the slabs, whose numbers have all their digits.
M_LOSAEJES = ("Nombre=Nombre; Numero=i; Eje=e.Eje; Tipo=e.Tipo; x=p.x; y=p.y; DX=p.DX+v.DX; DY=p.DY+v.DY; Giro=p.Giro+v.Giro; "
              "AS1=d.AS1; AS2=d.AS2; MczI=mas3(d.MczI); MczD=mas3(d.MczD); PtoI=d.PtoI; PtoD=d.PtoD; RV=p.RV+v.RV; RH=p.RH+v.RH")
M_LOSATRAMOS = ("Nombre=Nombre; Numero=i; MT=d.MT; x=d.x; AS1=d.AS1; AS2=d.AS2; PtoA=a.d.PtoD; PtoB=b.d.PtoI; MczA=mas3(a.d.MczD); "
                "Mczb=mas3(b.d.MczI); L=t.LT" + "".join(
                    f"; Eje{E}={e}.e.Eje; Tipo{E}={e}.e.Tipo; Mu{E}=u('Momento{E}'); Vu{E}=u('Corte{E}'); "
                    f"V{E}=({e}.p.RV+{e}.v.RV)/{e}.q; F{E}=({e}.p.RH+{e}.v.RH)/{e}.q; V{E}CP={e}.p.RV/{e}.q; F{E}CP={e}.p.RH/{e}.q; "
                    f"V{E}CV={e}.v.RV/{e}.q; F{E}CV={e}.v.RH/{e}.q; AS1{E}={e}.d.AS1; AS2{E}={e}.d.AS2"
                    for E, e in ("Aa", "Bb")))

HELICE = ("Ancho B:=B:2 m; Espesor T:=T:2 m; Altura H:=H:2 m; Radio R:=R:2 m; Angulo:=Angulo:g º; Carga W:=W:,0 kgf/ml; "
          "Intervalo:=Inter:0 º; Longitud L:=L:2 m; Alfa:=Alfa:2 º; Reacción vertical RV:=FV:,0 kgf; "
          "Reacción horizontal RH:=Fh:,0 kgf")
SOLICITACIONES = ("Progresiva grados=c:0; Normal N (kgf)=s.N:,2; Cortes QX (kgf)=s.QX:,2; Cortes QY (kgf)=s.QY:,2; "
                  "Momentos MX (Inf) (kgf·m)=s.MI1:,2; Momentos MX (Sup) (kgf·m)=s.MS1:,2; Momentos MY (kgf·m)=s.MY:,2; "
                  "Torsión MT (kgf·m)=s.MT:,2; Torsión TU (kgf·m²)=s.TU:,2")
REFUERZO = ("Progresiva grados=c:0; Refuerzo por Flexión ASX (Inf) (cm²)=s.ASXI:,2; Refuerzo por Flexión ASX (Sup) (cm²)=s.ASXS:,2; "
            "Refuerzo por Flexión ASX (Mín) (cm²)=s.ASMin:,2; Refuerzo por Flexión ASY (cm²)=s.AsY:,2; "
            "Torsión Longitudinal (cm²)=s.LON:,2; Estribos Barra (cm²)=s.AsT:2; Estribos Separación (cm)=s.SEP:0")
DISENO = ("; Refuerzo de Diseño ASX (Inf) (cm²)=max(s.LON/2+s.ASXI, s.ASMin):,2; "
          "Refuerzo de Diseño ASX (Sup) (cm²)=max(s.LON/2+s.ASXS, s.ASMin):,2; Refuerzo de Diseño ASY (cm²)=s.AsY:,2; "
          "Estribos='E 3/8 @%d' % s.SEP if s.AsT == 0.71 else 'E 1/2 @%d' % s.SEP")
CARGAS = "Tramo WT:=WT:,0 kgf/ml; Descanso WT:=Wd:,0 kgf/ml; Permanente:=WpD:,0 kgf/ml"
MARKUS = ("{0}=i; Carga{1}=f.Carga:,2; {2}Caso=f.Caso; {3}LX (m)=f.LX:{4}; {3}LY (m)=f.LY:{4}; {5}CX=f.CX:4; {5}CY=f.CY:4; "
          "{6}WX{7}=f.WX:,2; {6}WY{7}=f.WY:,2")
PARTIDAS = "Cargas permanentes N°=i; Cargas permanentes Descripción=f.Descripcion; Cargas permanentes Peso (kgf/m²)=f.Peso:,0"
VARIABLE = "Carga variable Descripción=f.Descripcion; Carga variable Peso (kgf/m²)=f.Peso:,0"
ANALISIS = "CP:=CP:,0 kgf/m²; CV:=CV:,0 kgf/m²; CV / CP:=REL:2; Carga total:=Carga:,2 kgf/m²"

# The calculation notes.
M_NERVADA = ("Tipo='Nervada'; Ancho del nervio=Bo:2 m; Altura=Ho:2 m; Separación de nervios=So:2 m; "
             "Espesor de la loseta=Loseta:2 m")
M_MACIZA = "Tipo='Maciza'; Ancho de la franja=Bm:2 m; Espesor=Hm:2 m"
M_MATERIALES = "F'c=g.FC:0 kgf/cm²; Fy=g.FY:0 kgf/cm²; Recubrimiento D8=g.D8:3 m; φ de flexión=g.FiMomento:2; "
M_CARGAS = ("Tramo=a.e.Eje+'-'+b.e.Eje; Longitud (m)=t.LT:2; Carga uniforme (kgf/m) Permanente=t.Wp:,0; "
            "Carga uniforme (kgf/m) Variable=t.WV:,0; Carga puntual permanente Carga (kgf)=t.p1:,0; "
            "Carga puntual permanente a (m)=t.L1:2")
M_APOYOS = ("Eje=e.Eje; Apoyo=apoyo.replace('Libre','Sin apoyo'); Desplazamiento de la junta X (m)=corrida.x:3; "
            "Desplazamiento de la junta Y (m)=corrida.y:3")
M_TRAMOS = ("Tramo=a.e.Eje+'-'+b.e.Eje; Extremo izquierdo M (kgf·m)=u('MomentoA'):,1; Extremo izquierdo V (kgf)=u('CorteA'):,1; "
            "Mayor en el tramo M (kgf·m)=d.MT:,1; Mayor en el tramo x (m)=d.x:2; Extremo derecho M (kgf·m)=u('MomentoB'):,1; "
            "Extremo derecho V (kgf)=u('CorteB'):,1; As en el tramo sup. (cm²)=d.AS1:2; As en el tramo inf. (cm²)=d.AS2:2")
M_EJES = ("Eje=e.Eje; M (kgf·m)=min(0, M):,1; As en el eje sup. (cm²)=d.AS1:2; As en el eje inf. (cm²)=d.AS2:2; "
          "Punto de inflexión izq. (m)=d.PtoI:2; Punto de inflexión der. (m)=d.PtoD:2")
M_MACIZADOS = "; Macizado izq. (m)=mas3(d.MczI):2; Macizado der. (m)=mas3(d.MczD):2"
M_MINIMO = "Acero mínimo, que se informa y no se aplica=minimo:2 cm²"
M_EQUILIBRIO = ("Equilibrio=nombre; Cargas (kgf)=cargas:,2; Reacciones verticales (kgf)=sum(j.RV for j in juntas):,2; "
                "Reacciones horizontales (kgf)=sum(j.RH for j in juntas):,2")
M_AVISOS = "Aviso=a.gravedad.capitalize(); Lugar=a.lugar; Qué=a.texto"
M_ESCALERA = ("Longitud del tramo L=L:2 m; Ancho B=B:2 m; Altura H=H:2 m; Espesor del tramo=HT:2 m; Espesor del descanso=Hd:2 m; "
              "Carga total del tramo=WT:,0 kgf/m; Carga total del descanso=Wd:,0 kgf/m; Permanente del descanso=WpD:,0 kgf/m")
M_TRAMO_T = ("X (m)=L-s.X:2; Carga total M (kgf·m)=s.MomentoTotal:,0; Carga total V (kgf)=s.CorteTotal:,0; "
            "M perm. (kgf·m)=s.MomentoPermanente:,0; Axial (kgf)=s.Axial:,0; My (kgf·m)=s.MomentoY:,0; T (kgf·m)=s.Torsor:,0; "
            "As (cm²) sup.=s.AsSuperior:2; As (cm²) inf.=s.AsInferior:2; As (cm²) tors.=s.AsTorsion:2; As (cm²) lat.=s.AsY:2; "
            "Estribos A (cm²)=s.AreaEstribo:2; Estribos s (cm)=s.SeparacionEstribo:1")
M_DESCANSO = ("θ (º)=s.Angulo:0; Mx (kgf·m)=s.MomentoTotal:,0; Vx (kgf)=s.CorteTotal:,0; Vy (kgf)=s.CorteY:,0; Axial (kgf)=s.Axial:,0; "
              "My (kgf·m)=s.MomentoY:,0; T (kgf·m)=s.Torsor:,0; As (cm²) sup.=s.AsSuperior:2; As (cm²) inf.=s.AsInferior:2; "
              "As (cm²) lat.=s.AsY:2; Corte (kgf/cm²) actuante=s.TensionCorte:2; Corte (kgf/cm²) admisible=s.TensionAdmisible:2; "
              "=s.FallaCorte")
M_VERIFICADA = ("Reacción vertical=ReaccionVertical:,0 kgf; Reacción horizontal=ReaccionHorizontal:,0 kgf; "
                "Acero mínimo del tramo=14/g.FY*B*(HT-g.D8)*1e4:2 cm²; Acero mínimo del descanso=(Hd-g.D8)*B*20:2 cm²")
M_HELICE = ("Título=Titulo; Ancho B=B:2 m; Espesor T=T:2 m; Altura H=H:2 m; Radio del eje=R:2 m; Ángulo en planta=Angulo:1 º; "
            "Carga total=W:,0 kgf/m; Intervalo=Inter:0 º")
M_ESTACIONES = ("No.=n:0; N (kgf)=s.N:,0; Qx (kgf)=s.QX:,0; Qy (kgf)=s.QY:,0; kgf·m Mx=s.MX:,0; kgf·m My=s.MY:,0; kgf·m T=s.MT:,0; "
                "As (cm²) sup.=s.ASXS:2; As (cm²) inf.=s.ASXI:2; As (cm²) lat.=s.AsY:2; As (cm²) mín.=s.ASMin:2; "
                "Estribos A (cm²)=s.AsT:2; Estribos s (cm)=s.SEP:0; Al (cm²)=s.LON:2")
R_LOSAS = ("Losa=Nombre; Tipo='MACIZA' if OpcionMaciza else 'NERVADA'; Tramos=len(Tramos):0; Longitud (m)=sum(t.LT for t in Tramos):2; "
           "M apoyo (kgf-m)=MaxMomentoApoyo:,0; M tramo (kgf-m)=MaxMomentoTramo:,0; Corte (kgf)=MaxCorte:,0; "
           "As sup (cm2)=max(d.AS1 for d in DisenoEje):2; As inf (cm2)=max(d.AS2 for d in DisenoTramo):2")
R_ESCALERAS = ("Escalera autoportante=Nombre; L (m)=L:2; B (m)=B:2; H (m)=H:2; RV (kgf)=ReaccionVertical:,0; "
               "RH (kgf)=ReaccionHorizontal:,0; "
               "M (kgf-m)=max(abs(m) for s in TramoT for m in (s.MomentoTotal, s.MomentoPermanente)):,0; "
               "As sup (cm2)=max(s.AsSuperior+s.AsTorsion for s in TramoT):2; "
               "As inf (cm2)=max(s.AsInferior+s.AsTorsion for s in TramoT):2; "
               "Estribos @ (cm)=min(s.SeparacionEstribo for s in TramoT):1")
R_HELICES = ("Escalera helicoidal=Nombre; R (m)=R:2; Angulo (º)=Angulo:1; H (m)=H:2; RV (kgf)=FV:,0; RH (kgf)=Fh:,0; "
             + "".join(f"{m} (kgf-m)=max(abs(s.{m}) for s in TramoSuperior+TramoInferior):,0; " for m in ("MX", "MY", "MT"))
             + "Estribos @ (cm)=min(s.SEP for s in TramoSuperior+TramoInferior):0")
R_MARKUS = ("Nivel (Markus)=Nombre; Paños=len(Filas):0; Cx menor=min(f.CX for f in Filas):3; Cx mayor=max(f.CX for f in Filas):3; "
            "Wx mayor=max(f.WX for f in Filas):,1; Wy mayor=max(f.WY for f in Filas):,1")
R_CARGAS = ("Análisis de carga=Descripcion; Partidas=len(Permanentes):0; CP (kgf/m2)=CP:,0; CV (kgf/m2)=CV:,0; "
            "Carga (kgf/m2)=Carga:,2; CV/CP=REL:3")


def numero(valor, forma):
    """Halves away from zero, by the 15 digits that a double holds."""
    if forma == "g":
        return f"{valor:g}"
    redondo = Decimal(f"{valor:.15g}").quantize(Decimal(1).scaleb(-int(forma.strip(","))), ROUND_HALF_UP)
    texto = f"{abs(redondo) if not redondo else redondo:{',' if ',' in forma else ''}f}"
    return texto.translate(str.maketrans(".,", ",."))


def partes(columnas):
    for columna in columnas.split("; "):
        titulo, que = columna.split("=", 1)
        cual = re.fullmatch(r"(.*):(,?\d|g)( .*)?", que)
        yield titulo, *(cual.groups() if cual else (que, None, None))


def celdas(columnas, entorno):
    """The texts of a row or card by its columns, each an expression over names of `entorno`."""
    for _, expresion, forma, unidad in partes(columnas):
        valor = eval(expresion, {}, entorno)
        yield str(valor) if forma is None else numero(valor, forma) + (unidad or "")


def tabla(titulos, columnas, filas):
    return titulos, [titulo for titulo, *_ in partes(columnas)], [f if isinstance(f, list) else [*celdas(columnas, f)] for f in filas]


def ficha(titulos, columnas, entorno):
    return titulos, dict(zip([titulo for titulo, *_ in partes(columnas)], celdas(columnas, entorno)))


def texto_de(marcado):
    return html.unescape(re.sub(r"<[^>]*>", "", re.sub(r"<br[^>]*>", " ", marcado)))


def bloques_de(archivo):
    """The tables of a page in their order, each with the headings over it."""
    bloques, titulos = [], {}
    for marca, atributos, dentro in re.findall(r"(?s)<(h[123]|table)\b([^>]*)>(.*?)</\1>", archivo.read_text()):
        if marca != "table":
            titulos = {m: t for m, t in titulos.items() if m < marca} | {marca: texto_de(dentro)}
            continue
        filas = []
        for fila in re.findall(r"(?s)<tr\b[^>]*>(.*?)</tr>", dentro):
            filas.append([])
            for celda, de, contenido in re.findall(r"(?s)<(t[hd])\b([^>]*)>(.*?)</\1>", fila):
                ancho = re.search(r'colspan="(\d+)"', de) if celda == "th" else None
                filas[-1] += [(celda, texto_de(contenido))] * (int(ancho[1]) if ancho else 1)
        sobre = tuple(titulos.get(m) for m in ("h2", "h3"))
        if 'class="ficha"' in atributos:
            todas = [texto for fila in filas for _, texto in fila]
            bloques.append((sobre, dict(zip(todas[::2], todas[1::2]))))
        else:
            cabeza = [[t for _, t in fila] for fila in filas if fila[0][0] == "th"]
            bloques.append((sobre, [" ".join(filter(None, t)) for t in zip(*cabeza)],
                            [[t for _, t in fila] for fila in filas if fila[0][0] == "td"]))
    return bloques


class De(dict):
    """Names of a row: its own and those of its element."""

    def __init__(self, elemento, **otros):
        super().__init__(vars(elemento) | otros)


def mas3(macizado):
    return macizado if macizado > 0.3 else 0


def de_losa(losa, g):
    """The spans and the axes of a slab, as rows."""
    casos, juntas = losa.ResultadoTramo, losa.ResultadoJunta
    N = len(losa.Tramos)

    def mayorado(i, campo):
        return g.FCP * getattr(casos[0][i], campo) + g.FCV * getattr(casos[1][i], campo)

    ejes = [De(losa, i=j + 1, e=losa.Ejes[j], d=losa.DisenoEje[j], p=juntas[0][j], v=juntas[1][j], mas3=mas3,
               q=1 if losa.OpcionMaciza else losa.So, M=mayorado(j, "MomentoA") if j < N else mayorado(N - 1, "MomentoB"),
               apoyo=["", "Fijo", "Rodillo en X", "Rodillo en Y", "Empotrado", "Libre"][losa.Ejes[j].Tipo],
               corrida=types.SimpleNamespace(**{c: sum(getattr(k, c) for k in losa.JuntasD if k.Junta == j + 1) for c in "xy"}))
            for j in range(N + 1)]
    a = [types.SimpleNamespace(**eje) for eje in ejes]
    tramos = [De(losa, i=i + 1, t=losa.Tramos[i], a=a[i], b=a[i + 1], d=losa.DisenoTramo[i], mas3=mas3,
                 u=lambda campo, i=i: mayorado(i, campo)) for i in range(N)]
    return tramos, ejes


def de_helice(helice):
    """The stations of a helix as rows, each with its degrees from the centre."""
    mitad = round(helice.Angulo / 2)
    for n, s in enumerate(helice.TramoSuperior):
        yield De(helice, n=n + 1, s=s, c=mitad - n * helice.Inter)
    for n, s in enumerate(helice.TramoInferior):
        yield De(helice, n=n + 1, s=s, c=n * helice.Inter)


class Valores(DelEjemplo):
    maxDiff = 4000
    opciones = ("--solo=reportes,memoria",)

    @classmethod
    def preparar(cls, base):
        """With cantilevers at each end and at both, and loads at their tips."""
        for nombre, maciza, apoyos in (("V-1", 0, "512"), ("V-2", 1, "125"), ("V-3", 0, "5125"), ("V-4", 0, "4224")):
            base.execute("INSERT INTO LosaDatos VALUES (?, ?, 0.12, 0.3, 0.6, 1, 0.18, 0.05)", (nombre, maciza))
            for n, tipo in enumerate(apoyos, 1):
                base.execute("INSERT INTO LosaEjes VALUES (?, ?, ?, ?, 0, 0, 0)", (nombre, n, "ABCDE"[n], int(tipo)))
            for n in range(1, len(apoyos)):
                base.execute("INSERT INTO LosaTramos VALUES (?, ?, ?, ?, ?, ?, ?)",
                             (nombre, n, 1.5 + 3.1 * (n == 2) + n / 10, 300 + 40 * n, 90 + 15 * n, 800 + n, 0.4 + n / 10))
        base.execute("INSERT INTO LosaJuntasD VALUES ('V-4', 2, 0.15, 0.35)")

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.reportes = cls.salida / "reportes"
        cls.d = json.loads(cls.json, object_hook=lambda o: types.SimpleNamespace(**o))
        año, mes, dia = cls.d.Proyecto.Fecha.split("-")
        cls.obra = De(cls.d, fecha=f"{dia}/{mes}/{año}", g=cls.d.LosaG)

    def compara(self, archivo, esperados):
        """The page's tables are the expected ones; and each of their rows stands in the other formats' text."""
        leidos = bloques_de(archivo)
        for leido, esperado in zip(leidos, esperados):
            self.assertEqual(leido, esperado, archivo.name)
        self.assertEqual(len(leidos), len(esperados))
        corridas = [max(re.findall(r"(?:(?<= )-?[\d.,]+ )+", f" {' | '.join(fila)} ".replace(" | ", " ")), key=len, default="")
                    for bloque in leidos if len(bloque) == 3 for fila in bloque[2]]
        textos = [subprocess.run(orden, capture_output=True, encoding="utf-8", errors="replace", cwd=self.comun).stdout for orden in (
            ["pdftotext", "-layout", archivo.with_suffix(".pdf"), "-"], ["unrtf", "--text", archivo.with_suffix(".rtf")])]
        with xlrd.open_workbook(archivo.with_suffix(".xls"), formatting_info=True, logfile=sys.stderr) as libro:
            textos.append(" ".join(self.en_xls(libro, celda) for hoja in libro.sheets() for fila in hoja.get_rows() for celda in fila))
        for texto in textos:
            corrido = f" {' '.join(texto.split())} "
            for corrida in corridas:
                self.assertIn(" " + corrida, corrido, archivo.name)

    @staticmethod
    def en_xls(libro, celda):
        """A cell as its format shows it."""
        if celda.ctype != xlrd.XL_CELL_NUMBER:
            return str(celda.value)
        forma = libro.format_map[libro.xf_list[celda.xf_index].format_key].format_str.split('"')[0]
        return numero(celda.value, "g" if forma == "General" else ("," if "," in forma else "") + str(len(forma.partition(".")[2])))

    def test_las_losas(self):
        g = self.d.LosaG
        esperados = [ficha((None, None), PROYECTO.format(""), self.obra), ficha(("Materiales y factores", None), MATERIALES, self.obra)]
        for losa in self.d.losas:
            tramos, ejes = de_losa(losa, g)
            total = ["Total", "", "", numero(sum(t.LT for t in losa.Tramos), "2")] + [""] * 8
            cuales = " (kgf)" if losa.OpcionMaciza else ", por metro de ancho (kgf/m)"
            esperados += [
                ficha((losa.Nombre, None), MACIZA if losa.OpcionMaciza else NERVADA, De(losa)),
                tabla((losa.Nombre, "Momentos, cortes y acero de los tramos"), TRAMOS, tramos + [total]),
                tabla((losa.Nombre, "Acero, zonas macizas y puntos de inflexión en los ejes"), EJES, ejes),
                tabla((losa.Nombre, "Reacciones de servicio en los ejes" + cuales), REACCIONES.format("", ",2"), ejes),
                tabla((losa.Nombre, "Desplazamientos de las juntas"), JUNTAS, ejes)]
        self.compara(self.reportes / "losas-resultados.htm", esperados)

    def test_el_montaje_de_las_losas(self):
        with contextlib.closing(sqlite3.connect(self.salida / "Trabajo" / "losas" / "Temporal.mdb")) as base:
            base.row_factory = sqlite3.Row
            for tabla_de, columnas, cual in (("LosaTramos", M_LOSATRAMOS, 0), ("LosaEjes", M_LOSAEJES, 1)):
                montadas = base.execute(f"SELECT * FROM {tabla_de}").fetchall()
                filas = [fila for losa in self.d.losas for fila in de_losa(losa, self.d.LosaG)[cual]]
                self.assertEqual(len(montadas), len(filas))
                for montada, fila in zip(montadas, filas):
                    self.assertEqual(len(montada), len([*partes(columnas)]))
                    for columna, expresion, *_ in partes(columnas):
                        valor = eval(expresion, {}, fila)
                        self.assertTrue(montada[columna] == valor or math.isclose(montada[columna], valor, rel_tol=1e-12, abs_tol=1e-12),
                                        (columna, montada[columna], valor))
        self.assertTrue(any(0 < eje.MczI <= 0.3 for losa in self.d.losas for eje in losa.DisenoEje))

    def test_las_helices(self):
        tablas, graficos = [ficha((None, None), PROYECTO.format(""), self.obra)], []
        for helice in self.d.escalerasH:
            filas = [*de_helice(helice)]
            datos = ficha((helice.Nombre, None), HELICE, De(helice))
            de, a = "del apoyo superior al centro y del centro al apoyo inferior", helice.Nombre
            tablas += [datos, tabla((a, "Solicitaciones, " + de), SOLICITACIONES, filas), tabla((a, "Refuerzo"), REFUERZO, filas)]
            graficos += [datos, tabla((a, "Solicitaciones y refuerzo, " + de), SOLICITACIONES + DISENO, filas)]
        self.compara(self.reportes / "escalerasH-resultados.htm", tablas)
        self.compara(self.reportes / "escalerasH-graficos.htm", graficos)

    def test_las_demas(self):
        self.compara(self.reportes / "escalerasT-graficos.htm", [
            ficha((f"{e.Nombre}: {hoja}", None), CARGAS, De(e)) for e in self.d.escalerasT
            for hoja in ("GEOMETRÍA", "SOLICITACIONES", "DISEÑO", "REACCIONES")])
        for numero_de, nivel in enumerate(self.d.marcus, 1):
            filas = [De(nivel, i=i, f=f) for i, f in enumerate(nivel.Filas, 1)]
            columnas = MARKUS.format("No Paño", " (kgf/m2)", "Markus ", "Longitudes ", 3, "Coeficientes ", "En cada Dirección ", " (kgf/m)")
            columnas = re.sub(r"([LCW])([XY])( \([^=]*)?(=)", lambda m: m[1] + m[2].lower() + (m[3] or "") + m[4], columnas)
            self.compara(self.reportes / f"marcus-{numero_de}-{nivel.Nombre}.htm", [
                ficha((None, None), PROYECTO.format(""), self.obra), tabla(("Nivel: " + nivel.Nombre, None), columnas, filas)])
        resumen = "Descripción=Descripcion; CP=CP:,0; CV=CV:,0; CV / CP=REL:2; Carga=Carga:,2"
        esperados = [tabla((None, None), resumen, [De(a) for a in self.d.analisisCarga]),
                     ficha((None, None), PROYECTO.format(""), self.obra)]
        for a in self.d.analisisCarga:
            partidas = [De(a, i=i, f=f) for i, f in enumerate(a.Permanentes, 1)]
            suma = ["", "Carga permanente CP", numero(sum(f.Peso for f in a.Permanentes), ",0")]
            esperados += [tabla((a.Descripcion, None), PARTIDAS, partidas + [suma]),
                          tabla((a.Descripcion, None), VARIABLE, [De(a, f=a.Variable)]), ficha((a.Descripcion, None), ANALISIS, De(a))]
        self.compara(self.reportes / "analisisCarga-resultados.htm", esperados)

    @staticmethod
    def pasos(titulos, gobierna):
        """A table of steps, and the values that some of them end in."""
        return titulos, ["", "Fórmula", "Con los números", "Valor", ""], gobierna

    def test_la_memoria(self):
        d, g = self.d, self.d.LosaG
        obra = self.obra
        esperados = [
            tabla((None, "LOSAS"), R_LOSAS, [De(l) for l in d.losas]),
            tabla((None, "ESCALERAS AUTOPORTANTES"), R_ESCALERAS, [De(e) for e in d.escalerasT]),
            tabla((None, "ESCALERAS HELICOIDALES"), R_HELICES, [De(e) for e in d.escalerasH]),
            tabla((None, "NIVELES DE MARKUS"), R_MARKUS, [De(n) for n in d.marcus]),
            tabla((None, "ANÁLISIS DE CARGA"), R_CARGAS, [De(a) for a in d.analisisCarga])]

        def avisos(elemento, titulo="Verificaciones"):
            return [tabla((elemento.Nombre, titulo), M_AVISOS, [De(elemento, a=a) for a in elemento.avisos])] * bool(elemento.avisos)

        for losa in d.losas:
            tramos, ejes = de_losa(losa, g)
            n = losa.Nombre
            eje = max(range(len(ejes)), key=lambda j: abs(losa.DisenoEje[j].AS1))
            tramo = max(range(len(tramos)), key=lambda i: abs(losa.DisenoTramo[i].AS2))
            de_tramo = f"Sección que rige en los tramos: tramo {losa.Ejes[tramo].Eje}-{losa.Ejes[tramo + 1].Eje}"
            minimo = (losa.Hm - g.D8) * losa.Bm * 20 if losa.OpcionMaciza else 14 / g.FY * losa.Bo * (losa.Ho - g.D8) * 1e4
            casos = [De(losa, nombre=nombre, juntas=juntas, cargas=sum(
                getattr(t["t"], w) * math.hypot(b.x - a.x, b.y - a.y) + (t["t"].p1 if w == "Wp" else 0)
                for t, a, b in zip(tramos, juntas, juntas[1:])))
                for nombre, w, juntas in zip(("Carga permanente", "Carga variable"), ("Wp", "WV"), losa.ResultadoJunta)]
            esperados += [
                ficha((n, "Datos"), M_MACIZA if losa.OpcionMaciza else M_NERVADA, De(losa)),
                ficha((n, "Datos"), M_MATERIALES + "φ de corte=g.FiCorte:2; Factor de carga permanente=g.FCP:2; "
                      "Factor de carga variable=g.FCV:2", obra),
                tabla((n, "Datos"), M_CARGAS, tramos), tabla((n, "Datos"), M_APOYOS, ejes),
                tabla((n, "Solicitaciones mayoradas y acero de los tramos"), M_TRAMOS, tramos),
                tabla((n, "Acero, puntos de inflexión y macizados en los ejes"), M_EJES + ("" if losa.OpcionMaciza else M_MACIZADOS), ejes),
                tabla((n, "Reacciones de servicio por metro de viga"), REACCIONES.format(" (kgf/m)", ",1"), ejes),
                self.pasos((n, "Sección que rige sobre los apoyos: eje " + losa.Ejes[eje].Eje), {"As": losa.DisenoEje[eje].AS1}),
                self.pasos((n, de_tramo), {"As": losa.DisenoTramo[tramo].AS2}),
                ficha((n, de_tramo), M_MINIMO, {"minimo": minimo}),
                tabla((n, "Verificaciones"), M_EQUILIBRIO, casos)] + avisos(losa)
        for e in d.escalerasT:
            rige = max(e.TramoT, key=lambda s: max(s.AsSuperior, s.AsInferior))
            cerca = min(e.TramoT, key=lambda s: s.SeparacionEstribo)
            equis = [f" (X = {numero(e.L - s.X, '2')} m)" for s in (rige, cerca)]
            esperados += [
                ficha((e.Nombre, "Datos"), M_ESCALERA, De(e)),
                ficha((e.Nombre, "Datos"), M_MATERIALES + "Factor de seguridad FS=g.FS:2", De(e, g=d.EscaleraTG)),
                tabla((e.Nombre, "Estaciones del tramo, desde el apoyo"), M_TRAMO_T, [De(e, s=s) for s in reversed(e.TramoT)]),
                tabla((e.Nombre, "Estaciones del descanso"), M_DESCANSO, [De(e, s=s) for s in reversed(e.DescansoT)]),
                self.pasos((e.Nombre, "Estación del tramo que rige por flexión" + equis[0]), {"mayor": max(rige.AsSuperior, rige.AsInferior)}),
                self.pasos((e.Nombre, "Estación del tramo que rige por torsión" + equis[1]), {"s": cerca.SeparacionEstribo, "Al": cerca.AsTorsion}),
                self.pasos((e.Nombre, "Corte en el plano del descanso"), {"vu": max(s.TensionCorte for s in e.DescansoT),
                                                                         "vadm": e.DescansoT[0].TensionAdmisible}),
                ficha((e.Nombre, "Verificaciones"), M_VERIFICADA, De(e, g=d.EscaleraTG))] + avisos(e)
        for e in d.escalerasH:
            todas = e.TramoSuperior + e.TramoInferior
            cual = [min(range(len(todas)), key=clave) for clave in (lambda k: -max(todas[k].ASXS, todas[k].ASXI), lambda k: todas[k].SEP)]
            lugares = [f" (tramo {'superior' if k < len(todas) / 2 else 'inferior'}, estación {k % (len(todas) // 2) + 1})" for k in cual]
            filas = [De(e, **f) for f in de_helice(e)]
            partida = len(e.TramoSuperior)
            esperados += [
                ficha((e.Nombre, "Datos"), M_HELICE, De(e)),
                ficha((e.Nombre, "Datos"), M_MATERIALES + "Factor de seguridad FS=g.FS:2", De(e, g=d.EscaleraHG)),
                tabla((e.Nombre, "Estaciones"), M_ESTACIONES, [["Tramo superior"], *filas[:partida], ["Tramo inferior"], *filas[partida:]]),
                self.pasos((e.Nombre, "Estación que rige por flexión" + lugares[0]), {"mayor": max(todas[cual[0]].ASXS, todas[cual[0]].ASXI)}),
                self.pasos((e.Nombre, "Estación que rige por torsión" + lugares[1]), {"s": todas[cual[1]].SEP, "Al": todas[cual[1]].LON}),
                ficha((e.Nombre, "Verificaciones"), "Reacción vertical=FV:,0 kgf; Reacción horizontal=Fh:,0 kgf", De(e))] + avisos(e)
        for nivel in d.marcus:
            columnas = MARKUS.format("Paño", "", "", "", 2, "", "", "")
            esperados += [tabla((nivel.Nombre, None), columnas, [De(nivel, i=i, f=f) for i, f in enumerate(nivel.Filas, 1)])] + avisos(nivel, None)
        for a in d.analisisCarga:
            otras = [["Carga permanente", numero(a.CP, ",2")], ["Carga variable: " + a.Variable.Descripcion, numero(a.CV, ",2")], ["Carga total", numero(a.Carga, ",2")]]
            esperados += [tabla((a.Descripcion, None), "Partida=f.Descripcion; Peso (kgf/m²)=f.Peso:,2", [De(a, f=f) for f in a.Permanentes] + otras),
                          ficha((a.Descripcion, None), "Relación variable / permanente=REL:3", De(a))]
        leidos = bloques_de(self.salida / "memoria.htm")[2:]
        for leido, esperado in zip(leidos, esperados):
            if isinstance(esperado[-1], dict) and len(esperado) == 3:
                self.assertEqual(leido[:2], esperado[:2])
                self.sigue(leido, esperado[2])
            else:
                self.assertEqual(leido, esperado)
        self.assertEqual(len(leidos), len(esperados))

    def sigue(self, leido, gobierna):
        """Each step is what its own numbers give, to the five figures that they are written with; the last, what governs."""
        valores = {}
        for simbolo, _, con_numeros, valor, _ in leido[2]:
            valores[simbolo] = float(valor.replace(",", "."))
            cuenta = re.sub(r"√([\d.]+)", r"√(\1)", con_numeros.translate(str.maketrans("·−,", "*-."))).replace("²", "**2")
            if not re.search(r"[^\d\s.*+\-/()√]", cuenta):
                da = eval(cuenta.replace("√", "sqrt"), {"sqrt": math.sqrt})
                self.assertAlmostEqual(da, valores[simbolo], delta=1e-3 * abs(da), msg=f"{leido[0]} {con_numeros}")
        valores["mayor"] = max(valores.get("As", 0), valores.get("A's", 0))
        for simbolo, valor in gobierna.items():
            self.assertAlmostEqual(valores[simbolo], valor, delta=6e-5 * abs(valor), msg=f"{leido[0]} {simbolo}")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
