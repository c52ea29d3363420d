#!/usr/bin/env python3
"""Random but sensible wall projects, one for each seed.

    python3 random_projects.py FIRST_SEED COUNT DIR
"""

import os
import random
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from project_file import FLAGS, Project, project_lines, write_lines

WORDS = ("sabbia fine, limosa", "argilla \"grigia\"", "ghiaia  con ciottoli", "limo", "",
         " riporto ", "torba; molle", "calcare fratturato à 45°", "#CENTER", "-12.5")


def coded(rnd, codes, other=0.04):
    """One of the codes, now and then a value that is none of them."""
    return float(rnd.choice((0, 7)) if rnd.random() < other else rnd.choice(codes))


def layers(rnd, p, length):
    p.nStrati = rnd.choice((1, 1, 2, 2, 3, 3, 4, 5, 6))
    reach = length * (rnd.uniform(0.4, 0.95) if rnd.random() < 0.3 else rnd.uniform(1.0, 2.0))
    cuts = sorted(round(rnd.uniform(0.3, reach) * 4) / 4 if rnd.random() < 0.6
                  else round(rnd.uniform(0.3, reach), 3) for _ in range(p.nStrati))
    if p.nStrati > 1 and rnd.random() < 0.15:
        row = rnd.randrange(1, p.nStrati)
        cuts[row] = cuts[row - 1]
        cuts.sort()
    for j in range(1, p.nStrati + 1):
        p.profStrato[j] = cuts[j - 1]
        p.gammaN[j] = round(rnd.uniform(1.5, 2.1), 2)
        p.gammaSat[j] = round(p.gammaN[j] + rnd.uniform(0.0, 0.3), 2)
        p.phiStrato[j] = float(rnd.choice((0, rnd.randint(18, 42), rnd.randint(18, 42),
                                           round(rnd.uniform(18, 40), 1))))
        if p.metodoKs == 1 and p.phiStrato[j] == 0 and rnd.random() < 0.97:
            p.phiStrato[j] = 24.0
        p.coesione[j] = round(rnd.uniform(0, 3), 2) if rnd.random() < 0.5 else 0.0
        if p.phiStrato[j] == 0:
            p.coesione[j] = round(rnd.uniform(1, 6), 2)
        p.suStrato[j] = rnd.choice((0.0, 4.5))
        p.ksStrato[j] = round(rnd.uniform(300, 6000), rnd.choice((0, 1)))
        p.descrStrato[j] = str(rnd.randint(1, 40)) + " " + rnd.choice(WORDS)


def wall(rnd, p, length):
    p.vincoloTesta = float(rnd.choices((0, 1, 2, 9), (1, 12, 4, 1))[0])
    p.vincoloPiede = float(rnd.choices((0, 1, 2, 3, 9), (1, 10, 4, 4, 1))[0])
    p.modoSpinte = coded(rnd, (1, 1, 1, 2))
    p.modoKs = coded(rnd, (1, 1, 1, 2))
    p.modoTensioni = coded(rnd, (1, 1, 2))
    p.opzioneRiservata = float(rnd.choice((0, 0, 3)))
    p.metodoSpinte = coded(rnd, (1, 1, 2, 3), 0.02)
    p.metodoKs = coded(rnd, (1, 2, 3, 3, 4), 0.02)
    p.lunghezzaParatia = length
    p.rigidezzaEJ = 0.0 if rnd.random() < 0.1 else round(10 ** rnd.uniform(2.7, 4.8), 1)
    p.coeffM = round(rnd.uniform(200, 2500), 1)
    p.pressioneOrizz = rnd.choice((0.0, 0.0, 0.0, round(rnd.uniform(-0.5, 1), 2)))
    p.sovraccMonte = rnd.choice((0.0, 1.0, 2.0, round(rnd.uniform(0, 4), 3)))
    p.momentoTesta = rnd.choice((0.0, 0.0, 0.0, round(rnd.uniform(-5, 5), 2)))
    p.forzaTesta = rnd.choice((0.0, 0.0, 0.0, round(rnd.uniform(-3, 4), 2)))
    p.inclinazioneMonte = rnd.choice((0.0, 0.0, 0.0, 5.0, 12.5, -8.0, float(rnd.randint(0, 22))))
    p.faldaMonte = rnd.choice((100.0, 100.0, 1.0, 0.0, -0.5, round(rnd.uniform(0, length), 2)))
    p.gammaAcqua = rnd.choice((1.0, 1.0, 1.0, 1.03))
    p.faldaValle = rnd.choice((0.0, 0.0, 4.2))


def anchors(rnd, p, length, n_seg):
    p.nTiranti = rnd.choice((0, 0, 1, 1, 2, 3, 4))
    step = length / n_seg
    depths = []
    for _ in range(p.nTiranti):
        depths.append(rnd.choices(
            (round(rnd.uniform(0, 0.6) * length, 2), rnd.randint(1, n_seg // 2) * step, 0.0,
             length, length + rnd.uniform(0.3, 4) * step,
             depths[-1] if depths else 1.0), (8, 5, 1, 1, 1, 1))[0])
    for a, depth in enumerate(sorted(depths), 1):
        p.profTirante[a] = depth
        p.rigTirante[a] = rnd.choice((0.0, 500.0, 1500.0, round(10 ** rnd.uniform(1.5, 4), 1)))
        p.pretTirante[a] = rnd.choice((0.0, 0.0, 5.0, round(rnd.uniform(1, 25), 2)))
        p.tipoTirante[a] = float(rnd.choices((0, 1, 2), (6, 4, 1))[0])


def stages(rnd, p, length, n_seg):
    p.nFasi = rnd.choice((1, 2, 2, 3, 3, 4, 5))
    deepest = length * rnd.choice((rnd.uniform(0.15, 0.45), rnd.uniform(0.3, 0.65)))
    depths = sorted(rnd.choice((round(rnd.uniform(0.1, 1) * deepest, 2),
                                int(rnd.uniform(0.1, 1) * deepest / length * n_seg)
                                * (length / n_seg),
                                round(rnd.uniform(0.1, 1) * deepest * 2) / 2))
                    for _ in range(p.nFasi))
    if rnd.random() < 0.15:
        rnd.shuffle(depths)
    counts = sorted(rnd.randint(0, p.nTiranti) for _ in range(p.nFasi))
    if rnd.random() < 0.7:
        counts[-1] = p.nTiranti
    if rnd.random() < 0.25:
        rnd.shuffle(counts)
    for k in range(1, p.nFasi + 1):
        p.profFase[k] = depths[k - 1]
        p.tirantiFase[k] = float(counts[k - 1])
        p.sovraccFase[k] = rnd.choice((0.0, 0.0, 0.0, 0.5, round(rnd.uniform(0, 2), 2)))
        p.faldaFase[k] = rnd.choice((100.0, 100.0, p.profFase[k], p.profFase[k] + 0.5,
                                     max(0.0, p.profFase[k] - 1), p.faldaMonte))


def section(rnd, p):
    for flag in FLAGS:
        setattr(p, flag, False)
    setattr(p, rnd.choice(FLAGS), True)
    if rnd.random() < 0.03:
        setattr(p, rnd.choice(FLAGS), True)
    p.modEacciaio, p.modEcls = rnd.choice(((210000.0, 30000.0), (206000.0, 31447.2)))
    p.fyk = rnd.choice((430.0, 440.0, 275.0, 355.5))
    p.fck = rnd.choice((20.0, 25.0, 30.5, 45.0))
    for side in ("Monte", "Valle"):
        if rnd.random() < 0.85:
            setattr(p, "copriferro" + side, rnd.choice((4.0, 5.0, 6.5)))
            setattr(p, "interasse" + side, rnd.choice((15.0, 20.0, 25.0)))
            setattr(p, "diametro" + side, rnd.choice((1.6, 2.0, 2.4, 3.2)))
            if rnd.random() < 0.1:
                setattr(p, rnd.choice(("copriferro", "interasse", "diametro")) + side, 0.0)
    p.spessoreDiaframma = rnd.choice((50.0, 60.0, 80.0, 100.0))
    p.paliDiamEst = rnd.choice((21.91, 32.39, 40.64))
    p.paliDiamInt = rnd.choice((0.0, p.paliDiamEst - 2, p.paliDiamEst - 1.25))
    p.paliInterasse = rnd.choice((40.0, 55.0, 80.0))
    p.palancolaBase = rnd.choice((22.0, 34.5))
    p.palancolaLargAla = rnd.choice((8.0, 12.5))
    p.palancolaAltAla = rnd.choice((15.0, 20.5))
    p.palancolaSpessore = rnd.choice((0.95, 1.2, 2.0))
    p.palancolaSpessAla = rnd.choice((0.8, 1.0))
    p.armInterasse = rnd.choice((70.0, 100.0, 120.0))
    p.armDiamPalo = rnd.choice((60.0, 80.0, 100.0))
    p.armDiamLong = rnd.choice((1.8, 2.2, 2.6))
    p.armNumLong = rnd.choice((0.8, 1.0, 8.0, 12.0, 16.5, 20.0))
    p.armCopriferro = rnd.choice((5.0, 7.5))
    p.armDiamStaffe = rnd.choice((0.0, 0.8, 1.2))
    p.armPassoStaffe = rnd.choice((0.0, 15.0, 20.0))
    p.sforzoNormale = rnd.choice((0.0, 0.0, 12.5, 60.0, -20.0, 9000.0))
    if rnd.random() < 0.15:  # leave the section half defined
        for name in rnd.sample(("modEacciaio", "modEcls", "fyk", "fck", "spessoreDiaframma",
                                "paliInterasse", "palancolaBase", "armInterasse"), 2):
            setattr(p, name, 0.0)


def unusual(rnd, p, length):
    """Rare data that the formulas must bear all the same."""
    if rnd.random() < 0.03 and p.nTiranti < 20:  # stages ask for more anchors than there are
        p.tirantiFase[p.nFasi] = float(p.nTiranti + rnd.randint(1, 3))
    if rnd.random() < 0.02:  # dug to the toe or below
        p.profFase[p.nFasi] = length + rnd.choice((0.0, 1.0))
    if rnd.random() < 0.02:
        p.faldaFase[rnd.randint(1, p.nFasi)] = -1.0
    if rnd.random() < 0.02 and p.nTiranti > 1:  # anchors out of order
        p.profTirante[1], p.profTirante[2] = p.profTirante[2], p.profTirante[1]
    if rnd.random() < 0.02 and p.nStrati > 1:  # layers out of order
        p.profStrato[1], p.profStrato[2] = p.profStrato[2], p.profStrato[1]
    if rnd.random() < 0.02:
        p.phiStrato[rnd.randint(1, p.nStrati)] = rnd.choice((90.0, 60.0, -5.0))
    if rnd.random() < 0.01:
        p.rigidezzaEJ = -2000.0
    if rnd.random() < 0.02:
        p.inclinazioneMonte = rnd.choice((45.0, -90.0, 90.0, 30.0))
    if rnd.random() < 0.02:
        p.coeffM = 0.0
    if rnd.random() < 0.02:
        p.gammaAcqua = rnd.choice((0.0, 2.5))
    if rnd.random() < 0.02:
        for flag in FLAGS:
            setattr(p, flag, False)


def random_project(seed):
    """(project, number of segments, method set in memory or 0, answer about EJ)."""
    rnd = random.Random(seed)
    n_seg = rnd.choice((8, 10, 12, 14, 16, 20, 20, 24, 25, 30))
    if rnd.random() < 0.03:
        n_seg = 50
    if rnd.random() < 0.01:
        n_seg = rnd.choice((2, 3, 4, 5))
    p = Project()
    length = rnd.choice((float(rnd.randint(4, 15)), round(rnd.uniform(4, 15), 2)))
    wall(rnd, p, length)
    layers(rnd, p, length)
    anchors(rnd, p, length, n_seg)
    stages(rnd, p, length, n_seg)
    section(rnd, p)
    for row in range(1, 7):
        p.titoli[row] = rnd.choice(("", "", "  ", "Cantiere di prova", " rientrato, con virgola",
                                    "Perché così", "\t", "#FONTSIZE 20", "5 \x80 \x91x\x92"))
    method = rnd.choice((0, 0, 1, 2, 3))
    unusual(rnd, p, length)
    if rnd.random() < 0.01:
        setattr(p, rnd.choice(("nStrati", "nFasi")), 0)
    if rnd.random() < 0.005:
        p.lunghezzaParatia = 0.0
    return p, n_seg, method, rnd.choice(("mantieni", "mantieni", "ricalcola"))


def vary_lines(rnd, p, lines):
    """Rewrite some lines in other forms that mean the same, or hold more digits."""
    wall_start = 1 + 8 * p.nStrati
    for offset in (8, 12):  # length and surcharge: more decimals than the format keeps
        if rnd.random() < 0.03:
            lines[wall_start + offset] = repr(float(lines[wall_start + offset]) + 1.23456789e-3)
    if rnd.random() < 0.05:  # blanks, signs, exponents and trailing words around a number
        at = wall_start + rnd.randrange(9, 19)
        value = float(lines[at])
        lines[at] = rnd.choice((f"  {lines[at]}  ", f"{value:+}", f"{value:.17e}",
                                f"{value:f} t", f"{lines[at]},9"))
    if rnd.random() < 0.04:  # older forms end before one of the last blocks
        return lines[: len(lines) - rnd.choice((1, 9, 15))]
    if rnd.random() < 0.02:  # broken: cut short, or a line that is no number
        if rnd.random() < 0.5:
            return lines[: rnd.randrange(1, len(lines) - 16)]
        lines[wall_start + rnd.randrange(19)] = rnd.choice(("", "abc", "--1", "."))
    return lines


def write_project(seed, folder):
    """Write seedN.kvd into `folder`; returns (path, nseg, method, ej)."""
    p, n_seg, method, ej = random_project(seed)
    rnd = random.Random(seed + 10 ** 9)
    lines = vary_lines(rnd, p, project_lines(p))
    path = os.path.join(folder, f"seed{seed}.kvd")
    write_lines(path, lines)
    if rnd.random() < 0.05:
        with open(path, "rb") as file:
            text = file.read()
        with open(path, "wb") as file:  # line feeds alone, the last line without one
            file.write(text.replace(b"\r\n", b"\n")[:-1])
    return path, n_seg, method, ej


if __name__ == "__main__":
    first, count, target = int(sys.argv[1]), int(sys.argv[2]), sys.argv[3]
    os.makedirs(target, exist_ok=True)
    for number in range(first, first + count):
        print(*write_project(number, target))
