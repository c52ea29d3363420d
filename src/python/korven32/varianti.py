"""Many variants of one wall, from and to tables of pandas."""

from typing import Any, List, Optional, Sequence

import numpy as np
import pandas as pd

from . import _motore
from .progetto import Progetto

_SOLUZIONI = {"equilibrio": False, "iterazione": True}


def _piano(tabella: pd.DataFrame) -> str:
    """The table as the command reads it from a file: a row is in the line after its number."""
    numeri = tabella.astype({nome: int for nome in tabella.columns if tabella[nome].dtype == bool})
    testo: str = numeri.to_csv(index=False, na_rep="nan")
    return testo


def _colonna(valori: "np.ndarray[Any, Any]", parole: List[str]) -> Any:
    if not parole:
        return valori
    noti = np.isfinite(valori)
    colonna = np.full(len(valori), np.nan, dtype=object)
    colonna[noti] = np.array(parole, dtype=object)[valori[noti].astype(int)]
    return colonna


def serie(progetto: Progetto, tabella: pd.DataFrame, *, nseg: Optional[int] = None,
          metodo: Optional[str] = None, ricalcola_ej: bool = False, soluzione: str = "equilibrio",
          sicurezza: bool = False, colonne: Optional[Sequence[str]] = None,
          fallisce: Optional[Sequence[str]] = None,
          fili: Optional[int] = None) -> pd.DataFrame:
    """Computes variants of a project: `korven32c serie --piano`.

        piano = pandas.DataFrame({"lunghezzaParatia": [8, 9, 10]})
        korven32.serie(muro, piano)["spostamento_massimo_m"]

    Each variant is computed as if its values had been assigned, saved and opened again; one that a
    run would refuse has the word "rifiutato" under "causa", and no numbers.

    :param tabella: a column a field, named as `Progetto` names it, in shown units; a row a variant
    :param nseg: as for `equilibrio`, and so is `metodo`
    :param ricalcola_ej: the bending stiffness is that of the section, not that of the project
    :param soluzione: "equilibrio", or "iterazione" for the run of the report
    :param sicurezza: with strength reductions and the shortest wall, which take longer
    :param colonne: names of results, as `korven32c serie --colonne`; without it all that
        `sicurezza` allows
    :param fallisce: what makes a variant fail that stands, as `korven32c serie --fallisce`:
        ["spostamento_massimo_m>0.03"]; the table has a last column "fallita" then, of the type
        "boolean" of pandas: True for a variant that does not stand or meets one of them, <NA> for
        one that was refused ("motivo" tells why), which is no wall. So its mean is the share of
        the walls that fail, as the summary of the command has it
    :param fili: threads; without it one a processor
    :return: a row a variant, with the index of `tabella`: first the fields, with the values that
        the file of the variant would keep, then the results, named as in the file of `serie`
        (docs/batch.md); NaN for what a variant has not. Any number of threads, and any way to part
        the rows, gives the same
    :raises ErroreCampo: for a field that is none, a value that its editor would not take, with the
        line that the row would have in a file (the first row is line 2) and the column; for a
        result that there is not, a text that is no condition, an argument out of its range
    """
    if soluzione not in _SOLUZIONI:
        raise ValueError(f"soluzione = {soluzione}: {', '.join(_SOLUZIONI)}")
    richiesta = _motore.RichiestaSerie(nseg, metodo, ricalcola_ej, _SOLUZIONI[soluzione],
                                       sicurezza, list(colonne or []), list(fallisce or []),
                                       fili or 0)
    nomi, parole, valori, fallite = _motore.serie(progetto._dati, _piano(tabella), richiesta)
    righe = {nome: _colonna(valori[:, j], parole[j]) for j, nome in enumerate(nomi)}
    if fallisce:
        righe["fallita"] = pd.arrays.BooleanArray(fallite > 0, fallite < 0)
    return pd.DataFrame(righe, index=tabella.index)
