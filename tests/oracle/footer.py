"""The footer of the report: what it says, and how much of it an A4 page takes.

Widths of the characters are those of the Helvetica metrics (Adobe Core 14 AFM files), which the
Arial face shares, in thousandths of the font size.
"""

import os
import re

WIDTHS = {
    "'": 191, "ijl": 222, "|": 260, " !,./:;I[\\]ft": 278, "-()`r": 333, "*": 389, "\"": 355,
    "^": 469, "Jckszvxy": 500, "0123456789?_abdeghnopqu$#L–": 556, "+<=>~": 584, "FTZ": 611,
    "&ABEKPSVXY": 667, "CDHNRUw": 722, "GOQ": 778, "Mm": 833, "%": 889, "W": 944, "…": 1000,
    "@": 1015, "{}": 334,
}
METHODS = {1: "Coulomb", 2: "Rankine", 3: "Bell"}
SIZE = 12            # points, of the font that #RESET names
PAGE = 566           # points: 21 cm are 595.3, less one centimetre, cut to whole points
MARGIN = 56          # points: 2 cm, cut
EDGE = 4 / 25.4 * 72  # points: 4 mm


def width(text):
    total = 0
    for c in text:
        total += next((w for group, w in WIDTHS.items() if c in group), 556)
    return total * SIZE / 1000


def on_page(text):
    """A centred line may reach into the margins, but not to the end of the page."""
    w = width(text)
    start = (PAGE - 2 * MARGIN - w) / 2 + MARGIN
    return start >= EDGE and start + w <= PAGE - EDGE


def version():
    here = os.path.dirname(os.path.abspath(__file__))
    with open(os.path.join(here, "..", "..", "CMakeLists.txt"), encoding="utf-8") as file:
        return re.search(r"project\(korven32 VERSION ([0-9.]+)", file.read()).group(1)


def method_in_head(path):
    """The code of the method in the head of a result file."""
    with open(path, encoding="cp1252", errors="replace") as file:
        lines = file.read().split("\n")
    layers = int(float(lines[0]))
    return float(lines[1 + 8 * layers + 6])


def in_bytes(text):
    """Characters with the numbers of their bytes in Windows-1252, as all lines are held here."""
    return text.replace("–", "\x96").replace("…", "\x85")


def footer_line(project_name, result_file, n_seg):
    method = METHODS.get(method_in_head(result_file), "nessun metodo delle spinte")

    def line(name, soil):
        return " – ".join(("KORVEN 32 " + version(), name, method, f"{n_seg} segmenti", soil))

    whole = line(project_name, "nessun coefficiente di sicurezza sul terreno")
    titled = whole + " – Dimensionamento di Paratie e Diaframmi"
    if width(titled) <= PAGE - 2 * MARGIN:
        return in_bytes(titled)
    if on_page(whole):
        return in_bytes(whole)
    kept = len(project_name)
    short = line(project_name, "nessun F.S. sul terreno")
    while not on_page(short) and kept > 2:
        kept -= 1
        back = kept // 2
        short = line(project_name[:kept - back] + "…" + project_name[len(project_name) - back:],
                     "nessun F.S. sul terreno")
    return in_bytes(short)
