#!/usr/bin/env python3
"""The whole calculation of a wall, from project file to report mark-up.

Exit codes: 0 done, 1 refused or singular (message on standard output),
3 broken input, 4 a stage does not converge within the cap.
"""

import argparse
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from project_file import BrokenInput, LineReader, Project, leggi_dati, project_lines, write_lines
from report import report_lines, result_lines
from stages import SINGULAR, NotConverging, Refusal, calcola
from wall import Singular


def paths(project, folder):
    """(result file, mark-up file) for a project path moved to `folder`."""
    moved = os.path.join(os.path.abspath(folder), os.path.basename(project))
    out = moved[:-3] + "OUT"
    return out, out[: out.index(".") + 1] + "TAB"


def compute(project, folder, n_seg=50, method=0, ej="mantieni", cap=2000):
    """(exit code, message, run); writes the two files when the code is 0."""
    p = Project()
    try:
        leggi_dati(LineReader(project), p)
    except BrokenInput as error:
        return 3, str(error), None
    if method:
        p.metodoSpinte = float(method)
    head = []
    try:
        run = calcola(p, n_seg, ej == "ricalcola", cap,
                      on_start=lambda _: head.extend(project_lines(p)))
    except Refusal as refusal:
        return 1, str(refusal), None
    except Singular:
        return 1, SINGULAR, None
    except NotConverging as circle:
        return 4, str(circle), None
    out, tab = paths(project, folder)
    write_lines(out, result_lines(head, run))
    write_lines(tab, report_lines(out, p, n_seg, os.path.basename(project)))
    return 0, "", run


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("project")
    parser.add_argument("--nseg", type=int, default=50)
    parser.add_argument("--out", required=True)
    parser.add_argument("--metodo-spinte", type=int, choices=(1, 2, 3), default=0)
    parser.add_argument("--ej", choices=("mantieni", "ricalcola"), default="mantieni")
    parser.add_argument("--max-iter", type=int, default=2000)
    a = parser.parse_args()
    code, message, run = compute(a.project, a.out, a.nseg, a.metodo_spinte, a.ej, a.max_iter)
    if message:
        print(message)
    if run:
        print("iterations by stage:", *run.iterations)
    return code


if __name__ == "__main__":
    sys.exit(main())
