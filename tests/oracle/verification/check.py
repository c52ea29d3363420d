"""Compares the expected values in data/verifica with those that the scripts beside this one compute.

    python3 tests/oracle/verification/check.py

Every value that a script knows must stand in the file of its case, to the digits that are written there. Ends with 1
if one does not. Needs NumPy."""

import pathlib
import sys

here = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(here))
import beams  # noqa: E402
import coefficients  # noqa: E402
import examples  # noqa: E402
import limit  # noqa: E402
import sections  # noqa: E402
import springs  # noqa: E402

cases = {p.stem: p for p in (here.parents[2] / "data" / "verifica").glob("*/*.txt") if p.stem != "gruppo"}


def written(path):
    """Left-hand side and number of each expected value."""
    found = {}
    lines = path.read_text(encoding="utf-8").split("[attesi]")[1].splitlines()
    for line in lines:
        if "=" in line:
            left, right = (part.strip() for part in line.split("=", 1))
            found[left] = right.split()[0]
    return found


def main():
    checked = wrong = 0
    for module in (beams, coefficients, examples, limit, sections, springs):
        for (case, left), value in module.values().items():
            text = written(cases[case]).get(left) if case in cases else None
            decimals = len(text.partition(".")[2]) if text else 0
            checked += 1
            if text is None or abs(float(text) - value) > 0.51 * 10.0 ** -decimals:
                wrong += 1
                print(f"{case}: {left}: written {text}, computed {value:.8g}")
    print(f"{checked} values, {wrong} wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
