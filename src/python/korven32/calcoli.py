"""What is computed of one wall."""

from dataclasses import dataclass
from typing import Any, Dict, List, Optional

from . import _motore
from .progetto import Progetto
from .risultati import Risultati, in_tabelle


def equilibrio(progetto: Progetto, nseg: Optional[int] = None,
               metodo: Optional[str] = None) -> Risultati:
    """Computes the equilibrium solution of all stages, in memory: `korven32c equilibrio`.

    A stage without equilibrium is no error: see `Risultati.causa` and `Risultati.spiegazione`.

    :param nseg: segments of the wall, 3 to 249, with a fixed toe to 248; without it the number of
        nseg.txt in the program folder, else 50
    :param metodo: method of the soil pressures, "coulomb", "rankine" or "bell"; without it the
        project's, which is Coulomb's in every project that comes from a file
    :raises ErroreCalcolo: for a wall that a run refuses (no stages, no stiffness, ...)
    :raises ErroreCampo: for an argument out of its range
    """
    return in_tabelle(_motore.equilibrio(progetto._dati, nseg, metodo))


def sicurezza(progetto: Progetto, nseg: Optional[int] = None,
              metodo: Optional[str] = None) -> Dict[str, Any]:
    """Tells how safe a wall is: `korven32c sicurezza`.

    :param nseg: as for `equilibrio`, and so is `metodo`
    :return: what `--json` tells under "sicurezza" (docs/json.md): "fasi", a dict a stage with
        "riduzione" (factor on the soil strength at which the stage falls), "meccanismo",
        "passiva_usata" (share of the soil in front) and so on; "lunghezza_minima_m",
        "errore_maglia", "momento_kNm", "taglio_kN"; and "causa" and "spiegazione" as `Risultati`
        has them. What is not known is None
    :raises ErroreCalcolo: for a wall that a run refuses
    :raises ErroreCampo: for an argument out of its range
    """
    esito: Dict[str, Any] = _motore.sicurezza(progetto._dati, nseg, metodo)
    return esito


@dataclass(frozen=True)
class Osservazione:
    """A remark on a wall: something missing, odd or dangerous."""

    codice: str
    """Its stable name: "uscita-in-conflitto"."""
    peso: str
    """Its weight: "impedisce" (a run is refused), "pericolo", "da vedere"."""
    testo: str
    """One sentence, in the language in force."""
    campi: List[str]
    """Names of the fields in question."""


def osservazioni(progetto: Progetto, nseg: Optional[int] = None, metodo: Optional[str] = None,
                 risultati: bool = True) -> List[Osservazione]:
    """Looks through a project and, if nothing refuses a run, at what it comes to:
    `korven32c verifica --calcola`, but for what that says of the lines of a file and of whether the
    run of the report would find its rest.

    :param nseg: as for `equilibrio`, and so is `metodo`
    :param risultati: False: the data alone
    :return: the remarks, the heaviest first
    :raises ErroreCampo: for an argument out of its range
    """
    return [Osservazione(**una)
            for una in _motore.osservazioni(progetto._dati, nseg, metodo, risultati)]
