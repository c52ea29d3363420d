"""The program folder, from which texts, examples and nseg.txt come, and the language."""

import os
from pathlib import Path
from typing import Optional

from . import _motore

# The folder named for all programs goes before the one that comes with this package.
if not os.environ.get("KORVEN32_HOME"):
    _motore.imposta_cartella(str(Path(__file__).resolve().parent / "programma"))

_SIGLE = {"it": "ita", "de": "deu", "fr": "fra", "es": "esp", "en": "eng", "pt": "por"}


def cartella() -> Path:
    """The program folder: the one that the environment variable KORVEN32_HOME named when the
    module was imported, else the one that comes with it."""
    return Path(_motore.cartella())


def lingua(sigla: Optional[str] = None) -> str:
    """Chooses the language of all sentences of this process; it is Italian at first.

    :param sigla: "ita", "deu", "fra", "esp", "eng", "por" or "it", "de", "fr", "es", "en", "pt";
        without it nothing changes
    :return: the tag of the language in force, of three letters
    :raises ErroreCampo: for another tag
    :raises ErroreFile: if the program folder lacks the texts
    """
    if sigla is not None:
        _motore.scegli_lingua(_SIGLE.get(sigla, sigla))
    return _motore.lingua()
