"""What the tests of the Python module share: where the module, the command line and walls are.

    KORVEN_CONSOLE=build/release/bin/korven32c PYTHONPATH=build/python/python \
        /usr/bin/python3 -m pytest tests/python
"""

import json
import os
import subprocess
from pathlib import Path

import pytest

import korven32

RADICE = Path(__file__).resolve().parents[2]
CONSOLE = Path(os.environ.get("KORVEN_CONSOLE", RADICE / "build/release/bin/korven32c"))
ESEMPI = sorted((RADICE / "data/examples").glob("*.kvd"))
MURI = RADICE / "tests/walls"


@pytest.fixture(autouse=True)
def _italiano():
    """Every test begins and ends in Italian, whose words need no table."""
    korven32.lingua("ita")
    yield
    korven32.lingua("ita")


@pytest.fixture
def console():
    """Runs korven32c in Italian; the result has `codice`, `errori` (its lines) and `uscita`."""

    def esegui(*argomenti, codice=None):
        ambiente = {**os.environ, "KORVEN32_HOME": str(korven32.cartella())}
        corsa = subprocess.run([str(CONSOLE), argomenti[0], "--lingua", "ita",
                                *map(str, argomenti[1:])],
                               capture_output=True, text=True, env=ambiente, check=False)
        if codice is not None:
            assert corsa.returncode == codice, corsa.stderr
        return corsa

    return esegui


@pytest.fixture
def console_json(console):
    """The answer of korven32c as JSON, whatever its exit code."""

    def esegui(*argomenti):
        return json.loads(console(*argomenti, "--json", "--silenzioso").stdout)

    return esegui
