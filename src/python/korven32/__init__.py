"""KORVEN 32 from Python: embedded retaining walls, their equilibrium, their margin, many variants.

    import korven32

    muro = korven32.Progetto.leggi("muro.kvd")
    muro["phiStrato[2]"] = 31.5            # names of `korven32c campi`, shown units
    esito = korven32.equilibrio(muro)      # arrays of nodes by stages
    print(esito.momento_kNm.min(), esito.sta)

Forces are in kN, moments in kN m, pressures in kPa, all per metre of wall; lengths and
displacements in m; displacements and pressures positive towards the excavation. The numbers are
those that `korven32c --json` tells, to the last digit. Errors carry the words of the command line,
in the language of `lingua`. Functions that compute let other threads run meanwhile.
"""

from ._luogo import cartella, lingua
from ._motore import Errore, ErroreCalcolo, ErroreCampo, ErroreFile, versione as __version__
from .calcoli import Osservazione, equilibrio, osservazioni, sicurezza
from .progetto import Campo, Progetto
from .risultati import Risultati
from .varianti import serie

__all__ = [
    "Campo", "Errore", "ErroreCalcolo", "ErroreCampo", "ErroreFile",
    "Osservazione", "Progetto", "Risultati",
    "cartella", "equilibrio", "lingua", "osservazioni", "serie", "sicurezza",
]
