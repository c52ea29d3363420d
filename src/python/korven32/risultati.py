"""The equilibrium of a wall as arrays."""

from dataclasses import dataclass
from typing import Any, Callable, Dict, List, Mapping, Sequence

import numpy as np
import numpy.typing as npt

Reali = npt.NDArray[np.float64]
Parole = npt.NDArray[np.str_]


@dataclass(frozen=True, eq=False)
class Risultati:
    """The equilibrium solution of a wall, all stages.

    Arrays of nodes by stages have one row a node, from the top, and one column a stage; element
    [i, k] is node i + 1 in stage k + 1. A stage that does not stand has NaN, in an array of words "".
    Names and numbers are those of `korven32c equilibrio --json`.
    """

    segmenti: int
    """Segments of the mesh: the wall has one node more."""
    causa: str
    """"eseguito" if all stages stand, else why the first does not: "meccanismo", "non_definito",
    "nessun_numero"."""
    spiegazione: str
    """The same in words; empty if all stages stand."""

    fase: npt.NDArray[np.int_]
    """Number of each stage, from 1. Shape (stages,), as all up to `costante_kPa`."""
    esito: List[str]
    """Of each stage: "equilibrio", "meccanismo", "non_definito", "nessun_numero"."""
    spiegazioni: List[str]
    """Of each stage that does not stand why, in words; else empty."""
    scavo_m: Reali
    """Depth of the excavation [m]."""
    passi: npt.NDArray[np.int_]
    """Steps of the solver."""
    spostamento_massimo_m: Reali
    """Largest displacement in size [m]."""
    momento_massimo_kNm: Reali
    """Largest moment, with its sign [kN m/m]."""
    momento_minimo_kNm: Reali
    """Smallest moment, with its sign [kN m/m]."""
    taglio_massimo_kN: Reali
    """Largest shear in size [kN/m]."""
    costante_kPa: Reali
    """Constant horizontal pressure [kPa]."""

    tiri_kN: Reali
    """Force of each anchor, tension positive [kN/m]; shape (anchors, stages), NaN where the anchor
    is not in place."""

    z_m: Reali
    """Depth of the nodes [m]; shape (nodes,)."""
    spostamento_m: Reali
    """Displacement, positive towards the excavation [m]; shape (nodes, stages), as all that follow."""
    momento_kNm: Reali
    """Bending moment [kN m/m]."""
    taglio_kN: Reali
    """Shear, of the two sides of a node the larger in size [kN/m]."""
    taglio_sopra_kN: Reali
    """Shear just above the node [kN/m]."""
    taglio_sotto_kN: Reali
    """Shear just below the node [kN/m]."""
    pressione_monte_kPa: Reali
    """Pressure of the retained soil [kPa], positive."""
    pressione_valle_kPa: Reali
    """Pressure of the soil in front [kPa], negative."""
    acqua_kPa: Reali
    """Net water pressure [kPa]."""
    stato_monte: Parole
    """State of the retained soil: "elastico", "attivo", "passivo"."""
    stato_valle: Parole
    """State of the soil in front."""

    @property
    def sta(self) -> bool:
        """True if all stages are in equilibrium."""
        return self.causa == "eseguito"

    def __repr__(self) -> str:
        nodi, fasi = self.spostamento_m.shape
        return f"<Risultati: {nodi} nodi, {fasi} fasi, {self.causa}>"


_PER_FASE = ("scavo_m", "spostamento_massimo_m", "momento_massimo_kNm", "momento_minimo_kNm",
             "taglio_massimo_kN")
_PER_NODO = ("spostamento_m", "momento_kNm", "taglio_kN", "taglio_sopra_kN", "taglio_sotto_kN",
             "pressione_monte_kPa", "pressione_valle_kPa", "acqua_kPa")
_STATI = ("stato_monte", "stato_valle")

_Fasi = List[Dict[str, Any]]


def _vettore(fasi: _Fasi, valore: Callable[[Dict[str, Any]], Any]) -> Reali:
    return np.array([np.nan if (v := valore(fase)) is None else v for fase in fasi], dtype=float)


def _nodi(fasi: _Fasi, nome: str, righe: int) -> Reali:
    tabella = np.full((righe, len(fasi)), np.nan)
    for k, fase in enumerate(fasi):
        if fase["nodi"] is not None:
            tabella[:, k] = fase["nodi"][nome]
    return tabella


def _stati(fasi: _Fasi, nome: str, righe: int) -> Parole:
    tabella = np.full((righe, len(fasi)), "", dtype="U8")
    for k, fase in enumerate(fasi):
        if fase["nodi"] is not None:
            tabella[:, k] = fase["nodi"][nome]
    return tabella


def _tiri(fasi: _Fasi, tiranti: int) -> Reali:
    tiri: Sequence[Sequence[float]] = [fase["tiri_kN"] for fase in fasi]
    tabella = np.full((max([tiranti, *map(len, tiri)]), len(fasi)), np.nan)
    for k, della_fase in enumerate(tiri):
        tabella[:len(della_fase), k] = della_fase
    return tabella


def in_tabelle(esito: Mapping[str, Any]) -> Risultati:
    """The arrays of what the engine tells."""
    fasi: _Fasi = esito["equilibrio"]["fasi"]
    z = np.array(esito["z_m"])
    tabelle: Dict[str, Any] = {nome: _vettore(fasi, lambda fase, n=nome: fase[n])
                               for nome in _PER_FASE}
    tabelle.update({nome: _nodi(fasi, nome, len(z)) for nome in _PER_NODO})
    tabelle.update({nome: _stati(fasi, nome, len(z)) for nome in _STATI})
    return Risultati(
        segmenti=esito["equilibrio"]["segmenti"], causa=esito["causa"],
        spiegazione=esito["spiegazione"], z_m=z,
        fase=np.array([fase["fase"] for fase in fasi], dtype=int),
        passi=np.array([fase["passi"] for fase in fasi], dtype=int),
        esito=[fase["esito"] for fase in fasi],
        spiegazioni=[fase["spiegazione"] or "" for fase in fasi],
        costante_kPa=_vettore(fasi, lambda fase: fase["nodi"] and fase["nodi"]["costante_kPa"]),
        tiri_kN=_tiri(fasi, esito["tiranti"]), **tabelle)
