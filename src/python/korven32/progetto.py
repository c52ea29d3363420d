"""The project: the data of one wall."""

import os
from pathlib import Path
from dataclasses import dataclass
from typing import Any, Dict, List, Mapping, Optional, Tuple, Union

import numpy as np

from . import _motore
from ._luogo import cartella

Valore = Union[float, str]
"""What a field holds: a number in the unit that people see, or a text."""

Percorso = Union[str, "os.PathLike[str]"]


@dataclass(frozen=True)
class Campo:
    """A field of a project with its value."""

    campo: str
    """Its name for programs, with the row of one in a table: "phiStrato[2]"."""
    cosa: str
    """What it is, in the language in force."""
    unita: str
    """The unit that people see, empty for none."""
    valore: Valore
    """In that unit; of a code and a flag its number."""
    minimo: Optional[float]
    """The least number that may be assigned; None for a code, a text, a field without limits."""
    massimo: Optional[float]
    """The greatest."""
    codici: List[Dict[str, Any]]
    """Of a field that is a code all of them: "valore", "nome", "voce"; else empty."""


def scritto(valore: Any) -> str:
    """A value as the command line takes it: a number by the shortest text that names it."""
    if isinstance(valore, str):
        return valore
    if isinstance(valore, (bool, np.bool_)):
        return str(int(valore))
    return np.format_float_positional(float(valore), trim="-")


class Progetto:
    """The data of one wall, as a project file (.kvd) keeps them.

    Fields go by their names for programs, those of `korven32c campi`, and by the units that people
    see: kN, m, mm, degrees, section dimensions in cm. Rows of tables count from 1.

        muro["lunghezzaParatia"]           # 12.0
        muro["pretTirante[1]"] = 150       # kN
        muro["metodoKs"] = "bowles"        # a code by its number or by its name
        muro["descrStrato[1]"]             # a text

    A value is held to the limits of the editors and kept as the file would give it back, with seven
    decimals of its stored unit.
    """

    __slots__ = ("_dati",)

    def __init__(self, dati: "_motore.Dati") -> None:
        self._dati = dati

    @classmethod
    def leggi(cls, percorso: Percorso) -> "Progetto":
        """Reads a project file.

        :raises ErroreFile: if it is missing, unreadable or broken, with the line
        """
        return cls(_motore.Dati.leggi(os.fsencode(percorso)))

    @classmethod
    def esempio(cls, nome: str) -> "Progetto":
        """One of the examples that come with the program, by its Italian name:
        "trincea_puntellata"."""
        return cls.leggi(cartella() / "data" / "ita" / (nome + ".kvd"))

    def scrivi(self, percorso: Percorso) -> None:
        """Writes the project file; one that has the name is replaced, whole or not at all.

        :raises ErroreFile: if it can't be written
        """
        self._dati.scrivi(os.fsencode(Path(percorso)))

    def copia(self) -> "Progetto":
        """Another project with the same data."""
        return Progetto(self._dati.copia())

    def __getitem__(self, nome: str) -> Valore:
        """The value of a field in its shown unit; of a code and a flag its number.

        :raises ErroreCampo: for a name that is none, or a row that the table has not
        """
        return self._dati.valore(nome)

    def campi(self) -> List[Campo]:
        """All fields with what may be assigned to them: `korven32c campi`. A DataFrame of them is
        `pandas.DataFrame(muro.campi())`."""
        return [Campo(**uno) for uno in self._dati.campi()]

    def __setitem__(self, nome: str, valore: Valore) -> None:
        """Assigns one field: `imposta` with one."""
        self.imposta({nome: valore})

    def imposta(self, valori: Mapping[str, Valore]) -> None:
        """Assigns several fields at once: all of them, or none if one is refused.

        They are judged together: a count (`nTiranti`) before the rows that it adds, which begin
        with zeros; depths of layers, anchors and stages when all is assigned. Nothing is sorted.

        :raises ErroreCampo: with a line for each of: a name that is none, a row that is not there,
            a value that the editors would not take, depths that come out of order, a method of
            the soil pressures that no file keeps (see the argument `metodo` of `equilibrio`)
        """
        self._dati.assegna([f"{nome}={scritto(valore)}" for nome, valore in valori.items()])

    def __eq__(self, altro: object) -> bool:
        """True if all fields are equal."""
        return isinstance(altro, Progetto) and self._dati == altro._dati

    __hash__ = None  # type: ignore[assignment]

    def __copy__(self) -> "Progetto":
        return self.copia()

    def __deepcopy__(self, _memo: Any) -> "Progetto":
        return self.copia()

    def __reduce__(self) -> Tuple[Any, ...]:
        """For other processes: the content of the file."""
        return _da_testo, (self._dati.testo(),)

    def __repr__(self) -> str:
        d = self._dati
        return (f"<Progetto: {d.valore('lunghezzaParatia'):g} m, nStrati={d.valore('nStrati'):g}, "
                f"nTiranti={d.valore('nTiranti'):g}, nFasi={d.valore('nFasi'):g}>")


def _da_testo(testo: bytes) -> Progetto:
    return Progetto(_motore.Dati.da_testo(testo))
