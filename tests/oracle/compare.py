#!/usr/bin/env python3
"""Compare the program with the independent calculation on random projects.

    python3 compare.py PROGRAM [--first SEED] [--count N] [--work DIR] [--jobs N]

Result file and mark-up are compared byte by byte. Lines that differ in numbers
alone are sorted by the size of the difference, so that rounding of one formula
in two orders can be told from a formula that is another one. Exit code 1 when
any project differs by more than rounding.
"""

import argparse
import collections
import concurrent.futures
import os
import re
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from oracle import compute
from random_projects import write_project

METHODS = {1: "coulomb", 2: "rankine", 3: "bell"}
MESSAGES = ("La geometria", "Non ", "Il valore", "Con il metodo")
SMALL_STEP = 2.5e-7  # two units of the seventh decimal
SMALL_PART = 1e-11


def run_program(program, path, folder, n_seg, method, ej, cap):
    command = [program, "relazione", path, "--uscita", folder, "--silenzioso",
               "--nseg", str(n_seg), "--ej", ej, "--max-iterazioni", str(cap)]
    if method:
        command += ["--metodo-spinte", METHODS[method]]
    done = subprocess.run(command, capture_output=True, timeout=300, check=False)
    return done.returncode, done.stderr.decode("utf-8", "replace").strip()


def number_gap(one, other):
    """(absolute, relative) gap of two number texts; None when one is no number."""
    try:
        a, b = float(one), float(other)
    except ValueError:
        return None
    gap = abs(a - b)
    return gap, gap / max(abs(a), abs(b), 1e-300)


def compare_lines(mine, theirs):
    """(kind, text) of the first difference of the worst kind."""
    if mine == theirs:
        return "identical", ""
    a, b = mine.split(b"\r\n"), theirs.split(b"\r\n")
    if len(a) != len(b):
        return "REAL", f"{len(a)} lines against {len(b)}: " + first_line(a, b)
    worst = ("rounding", first_line(a, b))
    for at, (one, other) in enumerate(zip(a, b), 1):
        if one == other:
            continue
        cells = one.replace(b"\t", b",").split(b",")
        their_cells = other.replace(b"\t", b",").split(b",")
        shown = f"line {at}: {one[:150]!r} / {other[:150]!r}"
        if len(cells) != len(their_cells):
            return "REAL", shown
        for cell, their in zip(cells, their_cells):
            if cell == their:
                continue
            gap = number_gap(cell, their)
            if gap is None:
                return "REAL", shown
            if gap[0] > SMALL_STEP and gap[1] > SMALL_PART:
                worst = ("LARGER", f"{shown} gap {gap[0]:.2g}, relative {gap[1]:.2g}")
                if gap[1] > 1e-5:
                    return "REAL", shown
    return worst


def first_line(a, b):
    for at, (one, other) in enumerate(zip(a, b), 1):
        if one != other:
            return f"line {at}: {one[:150]!r} / {other[:150]!r}"
    return "one file goes on"


def read(folder, name):
    path = os.path.join(folder, name)
    if not os.path.exists(path):
        return None
    with open(path, "rb") as file:
        return file.read()


def compare_one(job):
    """(seed, outcome, list of (kind, text)) for one random project."""
    program, seed, work, cap, forced = job
    base = os.path.join(work, f"s{seed}")
    mine, theirs = os.path.join(base, "mine"), os.path.join(base, "theirs")
    shutil.rmtree(base, ignore_errors=True)
    os.makedirs(mine)
    os.makedirs(theirs)
    path, n_seg, method, ej = write_project(seed, base)
    n_seg = forced or n_seg
    code, message, _ = compute(path, mine, n_seg, method, ej, cap)
    their_code, their_message = run_program(program, path, theirs, n_seg, method, ej, cap)
    stem = f"seed{seed}."
    found = []
    expected = 1 if code == 4 else code
    if expected != their_code:
        found.append(("REAL", f"exit {expected} ({message}) against {their_code} "
                              f"({their_message[:300]})"))
    elif code == 1 and message.startswith(MESSAGES) and message not in their_message:
        found.append(("REAL", f"message {message!r} against {their_message!r}"))
    elif code == 1 and "depth" in message:
        place = re.search(r"stage (\d+), depth (\S+)", message).groups()
        theirs_at = re.search(r"fase (\d+), profondità ([\d.]+) m", their_message)
        if (theirs_at is None or theirs_at.group(1) != place[0]
                or abs(float(theirs_at.group(2)) - float(place[1])) > 0.01):
            found.append(("REAL", f"message {message!r} against {their_message!r}"))
    elif code == 4 and "La geometria" in their_message:
        found.append(("REAL", f"no convergence against {their_message[:100]!r}"))
    for suffix in ("OUT", "TAB"):
        a, b = read(mine, stem + suffix), read(theirs, stem + suffix)
        if a is None or b is None:
            if (a is None) != (b is None):
                found.append(("REAL", f"{suffix} written by one alone"))
            continue
        kind, text = compare_lines(a, b)
        if kind != "identical":
            found.append((kind, f"{suffix} {text}"))
    if not found:
        shutil.rmtree(base)
    return seed, f"exit {code}", found


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("program")
    parser.add_argument("--first", type=int, default=1)
    parser.add_argument("--count", type=int, default=200)
    parser.add_argument("--work", default="")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--max-iter", type=int, default=200)
    parser.add_argument("--nseg", type=int, default=0, help="the same mesh for all projects")
    a = parser.parse_args()
    work = a.work or tempfile.mkdtemp(prefix="oracle")
    jobs = [(os.path.abspath(a.program), seed, work, a.max_iter, a.nseg)
            for seed in range(a.first, a.first + a.count)]
    outcomes, kinds = collections.Counter(), collections.Counter()
    with concurrent.futures.ProcessPoolExecutor(a.jobs) as pool:
        for seed, outcome, found in pool.map(compare_one, jobs):
            outcomes[outcome] += 1
            worst = "identical"
            for level in ("rounding", "LARGER", "REAL"):
                if any(kind == level for kind, _ in found):
                    worst = level
            kinds[worst] += 1
            for kind, text in found:
                print(f"seed {seed} {kind}: {text}")
    print("outcomes:", dict(outcomes))
    print("files:", dict(kinds), "in", work)
    return 1 if kinds["REAL"] + kinds["LARGER"] else 0


if __name__ == "__main__":
    sys.exit(main())
