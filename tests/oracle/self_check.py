#!/usr/bin/env python3
"""The independent calculation checked by statics and closed forms.

    python3 self_check.py
"""

import math
import os
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import section
from number_text import formatta_numero, formatta_relazione
from project_file import BrokenInput, LineReader, Project, leggi_dati
from random_projects import write_project
from stages import NotConverging, Refusal, calcola
from wall import Singular

FAILURES = []


def check(name, good, shown=""):
    print(("ok      " if good else "FAILED  ") + name, shown)
    if not good:
        FAILURES.append(name)


def beam(n_seg=20):
    """A wall of 10 m without soil, hinged at top and toe."""
    p = Project()
    p.nStrati = p.nFasi = 1
    p.profStrato[1] = 20.0
    p.vincoloTesta = p.vincoloPiede = 2.0
    p.metodoSpinte, p.metodoKs = 1.0, 3.0
    p.modoTensioni = 1.0
    p.lunghezzaParatia = 10.0
    p.rigidezzaEJ = 5000.0
    p.faldaMonte = p.faldaFase[1] = 100.0
    p.phiStrato[1] = 30.0
    return p, n_seg


def closed_forms():
    p, n = beam()
    p.pressioneOrizz = 0.8
    run = calcola(p, n, False, 50)
    moments = run.momentoNodo
    worst = max(abs(moments[i] - 0.8 * run.zNodo[i] * (10 - run.zNodo[i]) / 2)
                for i in range(1, n + 2))
    check("simple beam under constant pressure: q z (L - z) / 2 at every node", worst < 1e-6,
          f"gap {worst:.2g}")
    middle = 5 * 0.8 * 10 ** 4 / 384 / 5000
    check("its deflection at mid span is 5 q L^4 / 384 EJ within the mesh error",
          abs(run.yNodo[11] / middle - 1) < 0.01, f"{run.yNodo[11]:.8f} {middle:.8f}")
    p.pressioneOrizz = -0.8
    mirrored = calcola(p, n, False, 50)
    gap = max(abs(a + b) for a, b in zip(run.yNodo, mirrored.yNodo))
    check("mirrored pressure mirrors the displacements", gap < 1e-12, f"gap {gap:.2g}")
    p, n = beam()
    p.momentoTesta = 3.0
    run = calcola(p, n, False, 50)
    worst = max(abs(run.momentoNodo[i] + 3 * (1 - run.zNodo[i] / 10)) for i in range(1, n + 2))
    check("moment at the top runs out linearly", worst < 1e-6, f"gap {worst:.2g}")
    p, n = beam()
    p.vincoloTesta = 1.0
    p.pressioneOrizz = 0.8
    p.nTiranti = 1
    p.rigTirante[1], p.tipoTirante[1], p.tirantiFase[1] = 1000.0, 1.0, 1.0
    run = calcola(p, n, False, 50)
    check("an anchor at the top carries half of the load", abs(1000 * run.yNodo[1] - 4) < 1e-6,
          f"{1000 * run.yNodo[1]:.9f}")


def residuals(p, run):
    """Horizontal force and moment about the top that are left over, as parts of all loads.

    A fixed toe has one node more below the wall, and its spring takes part; the cells that
    its system never clears leave about 1e-10 there. 1e-3 stands for a stage without load.
    """
    last = run.nNodi + (1 if run.incastroPiede else 0)
    h = run.passoNodi
    force, moment = p.forzaTesta, -p.momentoTesta
    size, arm_size = abs(p.forzaTesta) + 1e-3, abs(p.momentoTesta) + 1e-3
    for i in range(1, last + 1):
        width = h / 2 if i in (1, last) else h
        net = (run.pNodo[i] + run.kNodo[i] * run.yNodo[i]) * width
        both = (abs(run.pNodo[i]) + abs(run.kNodo[i] * run.yNodo[i])) * width
        force += net
        moment += net * (i - 1) * h
        size += both
        arm_size += both * (i - 1) * h
    return abs(force) / size, abs(moment) / arm_size


def balances():
    """Horizontal forces and moments of every stage of many random projects."""
    found = {False: [], True: []}
    with tempfile.TemporaryDirectory() as folder:
        for seed in range(1, 201):
            path, n, _, _ = write_project(seed, folder)
            p = Project()
            try:
                leggi_dati(LineReader(path), p)
                calcola(p, n, False, 200, on_stage=lambda run, _, q=p: found[
                    run.incastroPiede].append(residuals(q, run)))
            except (BrokenInput, Refusal, Singular, NotConverging):
                pass  # not the matter here
    for fixed, bound, word in ((False, 1e-12, "no fixed toe"), (True, 1e-8, "fixed toe")):
        forces = max(force for force, _ in found[fixed])
        moments = max(moment for _, moment in found[fixed])
        count = len(found[fixed])
        check(f"{count} random stages, {word}: horizontal balance", count > 50 and forces < bound,
              f"{forces:.2g}")
        check(f"{count} random stages, {word}: moments about the top", moments < bound,
              f"{moments:.2g}")


def sections():
    total = sum(section.area_cerchio_in_striscia(31.0, 12.5, 0.7 * i, 0.7 * (i + 1))
                for i in range(100))
    check("strips of a circle add up to its area", abs(total - math.pi * 12.5 ** 2) < 1e-9)
    p = Project()
    p.tipoPalancola = True
    p.palancolaBase, p.palancolaLargAla, p.palancolaAltAla = 30.0, 10.0, 20.0
    p.palancolaSpessore, p.palancolaSpessAla = 1.2, 1.0
    p.modEacciaio, p.fyk = 210000.0, 275.0
    mrd = section.momenti_resistenti(p)
    s = section._strips_sheet(p)
    plastic = sum(s.As[i] * abs(s.dy * (i - 0.5) - s.H / 2) for i in range(1, 101)) * 275 / 1.15
    check("sheet pile: both resistances alike, below the full plastic moment and near it",
          abs(mrd[1] + mrd[2]) < 1e-6 * mrd[2] and 0.85 < mrd[2] / plastic < 1,
          f"{mrd[2] / plastic:.4f}")
    p = Project()
    p.tipoDiaframma = True
    p.spessoreDiaframma, p.modEacciaio, p.modEcls, p.fyk, p.fck = 80.0, 210000.0, 30000.0, 440.0, 25.0
    p.copriferroValle, p.interasseValle, p.diametroValle = 5.0, 20.0, 2.0
    mrd = section.momenti_resistenti(p)
    area = math.pi * 10 ** 2 * 5
    pull = area * 440 / 1.15
    lever = 800 - 60 - pull / (0.85 * 25 / 1.6 * 1000) / 2
    check("lightly reinforced wall: steel at yield times the lever arm",
          abs(-mrd[1] / (pull * lever) - 1) < 0.02, f"{-mrd[1] / (pull * lever):.4f}")
    p.sforzoNormale = 9000.0
    check("a crushed section has no resistance", section.momenti_resistenti(p) == [0.0] * 3)


def numbers():
    for value, text in ((0, "0"), (12, "12"), (0.5, "0.5"), (-0.5, "-.5"), (True, "-1"),
                        (1.123456789, "1.1234568"), (0.00390625, "0.0039063"),
                        (0.00000005, "0.0000001"), (-0.00000004, "0")):
        check(f"number of the file {value}", formatta_numero(value) == text, text)
    for value, text in ((0, "0.00"), (-0.001, "-.00"), (-0.5, "-.50"), (1250, "1250.00"),
                        (-0.00004, "0.00"), (1.999, "1.99"), (1.99999, "2.00")):
        check(f"number of the report {value}", formatta_relazione(value) == text, text)


if __name__ == "__main__":
    numbers()
    sections()
    closed_forms()
    balances()
    print(f"{len(FAILURES)} failures")
    sys.exit(1 if FAILURES else 0)
