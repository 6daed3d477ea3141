"""What the manual names between « » is the text of a window, a tab or a command of the program; its pictures are there."""

import pathlib
import re
import sys

RAIZ = pathlib.Path(sys.argv[1])


def textos():
    """The program's texts, without mnemonics and the blanks around them."""
    for fuente in (RAIZ / "src").rglob("*.[ch]*"):
        if fuente.suffix in (".h", ".cpp"):
            for literal in re.findall(r'"((?:\\.|[^"\\\n])*)"', fuente.read_text()):
                yield literal.replace("&", "").strip()


conocidos = set(textos())
faltas = []
for pagina in sorted((RAIZ / "docs" / "manual").glob("*.md")):
    texto = pagina.read_text()
    for nombre in re.findall(r"«([^»]+)»", texto):
        if " ".join(nombre.split()) not in conocidos:
            faltas.append(f"{pagina.name}: the program has no «{nombre}»")
    for imagen in re.findall(r"!\[[^]]*\]\(([^)]+)\)", texto):
        if not (RAIZ / "docs" / "manual" / "imagenes" / f"{imagen}.png").exists():
            faltas.append(f"{pagina.name}: no picture {imagen}")
print(*faltas, sep="\n")
sys.exit(bool(faltas))
