"""Prints what another reader finds in a workbook: volcar_xls.py FILE.xls. A line a fact, in the order of the file."""

import sys

import xlrd

BORDES = ("left", "right", "top", "bottom")


def estilo(libro, celda):
    xf = libro.xf_list[celda.xf_index]
    fuente = libro.font_list[xf.font_index]
    partes = [libro.format_map[xf.format_key].format_str, fuente.name, f"{fuente.height / 20:g}"]
    partes += [marca for marca, puesta in (("b", fuente.weight >= 700), ("i", fuente.italic)) if puesta]
    partes.append(f"h{xf.alignment.hor_align}v{xf.alignment.vert_align}w{xf.alignment.text_wrapped}")
    if xf.background.fill_pattern:
        partes.append("fondo%02X%02X%02X" % libro.colour_map[xf.background.pattern_colour_index])
    color = libro.colour_map.get(fuente.colour_index)
    if color:
        partes.append("letra%02X%02X%02X" % color)
    lineas = [getattr(xf.border, lado + "_line_style") for lado in BORDES]
    if any(lineas):
        partes.append("bordes" + "".join(map(str, lineas)))
    return ",".join(partes)


def volcar_hoja(libro, hoja, salida):
    salida(f"hoja {hoja.name} {hoja.nrows}x{hoja.ncols} fijas {hoja.horz_split_pos if hoja.panes_are_frozen else 0}")
    for columna, datos in sorted(hoja.colinfo_map.items()):
        salida(f"ancho {columna} {datos.width}")
    for fila, datos in sorted(hoja.rowinfo_map.items()):
        if datos.has_default_height == 0 and datos.height_mismatch:
            salida(f"alto {fila} {datos.height}")
    for inicio, fin, izquierda, derecha in hoja.merged_cells:
        salida(f"combinada {inicio}:{fin} {izquierda}:{derecha}")
    for nombre in libro.name_obj_list:
        if nombre.hidden and nombre.scope == hoja.number:
            salida(f"{nombre.name} {nombre.area2d()[1:]}")
    salida("saltos " + " ".join(str(s[0]) for s in hoja.horizontal_page_breaks))
    for fila in range(hoja.nrows):
        for columna in range(hoja.ncols):
            celda = hoja.cell(fila, columna)
            if celda.ctype == xlrd.XL_CELL_EMPTY:
                continue
            valor = celda.value
            if celda.ctype == xlrd.XL_CELL_DATE:
                valor = xlrd.xldate_as_datetime(valor, libro.datemode).date()
            salida(f"{fila},{columna} {valor!r} [{estilo(libro, celda)}]")


def main():
    with xlrd.open_workbook(sys.argv[1], formatting_info=True, logfile=sys.stderr) as libro:
        sys.stdout.reconfigure(encoding="utf-8")
        for hoja in libro.sheets():
            volcar_hoja(libro, hoja, print)


if __name__ == "__main__":
    main()
