"""compare_tables.py MINE THEIRS: the CSV files of the program against those that a spreadsheet program
has made of the workbook's sheets. Theirs have a title in the first line and notes below the table."""

import csv
import pathlib
import sys

SHEETS = {"progetto": "Progetto", "dati": "Dati", "fasi": "Fasi", "nodi": "Nodi",
          "inviluppo": "Inviluppo", "tiranti": "Tiranti", "verifiche": "Verifiche", "maglia": "Errore di maglia",
          "osservazioni": "Osservazioni"}


def rows(path):
    with open(path, encoding="utf-8", newline="") as file:
        return list(csv.reader(file))


def same(mine, theirs):
    if mine == theirs:
        return True
    try:
        # Calc writes 20 decimals and no exponent: what is next to nothing loses digits.
        return abs(float(mine) - float(theirs)) <= max(1e-14 * abs(float(mine)), 1e-19)
    except ValueError:
        return False


def differences(name, mine, theirs):
    for r, row in enumerate(mine):
        other = theirs[r + 1] if r + 1 < len(theirs) else []
        for c, cell in enumerate(row):
            found = other[c] if c < len(other) else ""
            if not same(cell, found):
                yield f"{name}, row {r + 1}, column {c + 1}: {cell!r} is {found!r}"


def main(mine, theirs):
    found, numbers = [], 0
    for end, sheet in SHEETS.items():
        own = list(pathlib.Path(mine).glob(f"*-{end}.csv"))
        other = list(pathlib.Path(theirs).glob(f"*-{sheet}.csv"))
        if len(own) != 1 or len(other) != 1:
            found.append(f"{sheet}: {len(own)} and {len(other)} files")
            continue
        table = rows(own[0])
        numbers += sum(len(row) for row in table)
        found += differences(sheet, table, rows(other[0]))
    for line in found[:20]:
        print(line)
    print(f"{numbers} cells, {len(found)} differences")
    return 1 if found or numbers == 0 else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:3]))
