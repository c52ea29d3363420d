"""The examples of the program, by the second program in the folder above. kN, m, mm; 50 segments."""

import pathlib
import subprocess
import sys
import tempfile

oracle = pathlib.Path(__file__).resolve().parents[1] / "oracle.py"
projects = pathlib.Path(__file__).resolve().parents[3] / "data" / "examples"
nodes = 51


def stages(result_file):
    """Displacements and moments of each stage: the eleventh and the twelfth column of its table."""
    lines = result_file.read_text(encoding="latin-1").splitlines()
    for i, line in enumerate(lines):
        if line.strip().startswith("sigmaVv"):
            rows = [[float(v) for v in row.split(",")] for row in lines[i + 1:i + 1 + nodes]]
            yield [r[10] for r in rows], [r[11] for r in rows]


def values():
    out = {}
    with tempfile.TemporaryDirectory() as folder:
        for project in sorted(projects.glob("*.kvd")):
            subprocess.run([sys.executable, oracle, project, "--nseg", str(nodes - 1), "--out", folder], check=True,
                           stdout=subprocess.DEVNULL)
            results = pathlib.Path(folder) / (project.stem + ".OUT")
            for k, (y, M) in enumerate(stages(results), 1):
                out[project.stem, f"spostamento_massimo fase {k}"] = 1000 * max(y, key=abs)
                if max(M) > 1e-4:
                    out[project.stem, f"momento_massimo fase {k}"] = 10 * max(M)
                if min(M) < -1e-4:
                    out[project.stem, f"momento_minimo fase {k}"] = 10 * min(M)
    return out


if __name__ == "__main__":
    for (case, text), value in values().items():
        print(f"{case:32} {text:34} {value:.7g}")
