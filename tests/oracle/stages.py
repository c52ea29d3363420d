"""The run: excavation stages in order, each iterated until nothing moves."""

import math

import section
import soil
from soil import Refusal
from wall import STIFF, Singular, System, anchor_node, assemble, risolvi_sistema

TOLERANCE = 0.00000001
FS_AZIONI = 1.4
NO_LENGTH = ("Non è ancora stata definita la lunghezza della paratia, "
             "i calcoli non possono pertanto essere eseguiti.")
NO_LAYERS = ("Non è ancora stata definita la stratigrafia del terreno, "
             "i calcoli non possono pertanto essere eseguiti.")
NO_STAGES = ("Non sono ancora state definite le fasi di scavo, "
             "i calcoli non possono pertanto essere eseguiti.")
NO_FRICTION = "Con il metodo scelto per il calcolo di Ks non sono ammessi angoli di attrito nulli."
NO_EJ = "Il valore di EJ non è ancora stato definito."
SINGULAR = ("La geometria assegnata al diaframma non consente l'elaborazione. "
            "Verificare i dati di input. Esempi di cause possibili: lunghezza del diaframma "
            "inferiore alla profondità di scavo, profondità di infissione del diaframma "
            "insufficiente.")
NODE_ARRAYS = ("zNodo", "sigmaVm", "sigmaEffM", "k0m", "kam", "kpm", "Ehm", "sigmaVv",
               "sigmaEffV", "k0v", "kav", "kpv", "Ehv", "phiNodo", "cNodo", "acquaNetta",
               "EJNodo", "pNodo", "kNodo", "yNodo", "yPrec", "taglioNodo", "momentoNodo")


class NotConverging(Exception):
    """A stage went on beyond the cap of iterations, or round in a circle."""


class Run:
    """Work arrays of one run; index 0 unused, all zero at the start."""

    def __init__(self, p, n_seg):
        self.nSeg = n_seg
        self.nNodi = n_seg + 1
        self.passoNodi = p.lunghezzaParatia / n_seg
        deepest = max([0.0] + p.profTirante)
        size = max(self.nNodi + 2, anchor_node(deepest, self.passoNodi) + 1) + 1
        for name in NODE_ARRAYS:
            setattr(self, name, [0.0] * size)
        for i in range(1, self.nNodi + 1):
            self.zNodo[i] = (i - 1) * self.passoNodi
        self.yTirante = [0.0] * 21
        self.incastroPiede = p.vincoloPiede == 3
        self.bloccoPiede = p.vincoloPiede in (2, 3)
        self.cernieraTesta = p.vincoloTesta == 2
        self.system = System(self.nNodi, self.incastroPiede)
        self.MRd = [0.0, 0.0, 0.0]
        self.tables = []
        self.iterations = []
        self.mMaxTotale = -1e30
        self.mMinTotale = 1e30


def check_input(p):
    if p.lunghezzaParatia <= 0:
        raise Refusal(NO_LENGTH)
    if p.nStrati == 0:
        raise Refusal(NO_LAYERS)
    if p.nFasi == 0:
        raise Refusal(NO_STAGES)
    if p.metodoKs == 1 and any(p.phiStrato[j] == 0 for j in range(1, p.nStrati + 1)):
        raise Refusal(NO_FRICTION)


def update_stiffness(p, replace):
    """The design resistances, and the stiffness taken from the section."""
    if not section.sezione_valida(p):
        return [0.0, 0.0, 0.0]
    resistances = section.momenti_resistenti(p)
    new = float(math.floor(section.calcola_ej(p) / 10000000000))
    if p.rigidezzaEJ == 0 or (new != p.rigidezzaEJ and replace):
        p.rigidezzaEJ = new
    return resistances


def calcola(p, n_seg, replace_ej, cap, on_start=None, on_stage=None):
    """The whole run; `on_start` gets the run before the first stage."""
    check_input(p)
    resistances = update_stiffness(p, replace_ej)
    if p.rigidezzaEJ == 0:
        raise Refusal(NO_EJ)
    if n_seg < 3 or n_seg > (248 if p.vincoloPiede == 3 else 249):
        raise Refusal("nseg out of range")
    run = Run(p, n_seg)
    run.MRd = resistances
    if on_start:
        on_start(run)
    for stage in range(1, p.nFasi + 1):
        run_stage(p, run, stage, cap)
        if on_stage:
            on_stage(run, stage)
    return run


def anchors_in_place(p, stage):
    """How many anchors act in a stage: never a row that the table does not count."""
    return min(int(p.tirantiFase[stage]), p.nTiranti)


def run_stage(p, run, stage, cap):
    active, before = anchors_in_place(p, stage), anchors_in_place(p, stage - 1)
    p.faldaValle = p.faldaFase[stage]
    for a in range(before + 1, active + 1):
        run.yTirante[a] = run.yNodo[anchor_node(p.profTirante[a], run.passoNodi)]
    soil.set_stage(p, run, stage)
    for i in range(1, len(run.EJNodo)):
        run.EJNodo[i] = p.rigidezzaEJ
        run.yPrec[i] = 0.0
    limits = [None] + [soil.limit_pressures(p, run, i) for i in range(1, run.nNodi + 1)]
    seen = set()
    count = 0
    while True:
        count += 1
        if iterate(p, run, active, limits):
            break
        if count >= cap:
            raise NotConverging(f"stage {stage}: no convergence in {cap} iterations")
        if not run.incastroPiede:  # without stale cells the displacements are the whole state
            state = tuple(run.yNodo)
            if state in seen:
                raise NotConverging(f"stage {stage}: goes round in a circle")
            seen.add(state)
    judge(p, run)
    moments = run.momentoNodo[1:run.nNodi + 1]
    run.mMaxTotale = max(run.mMaxTotale, max(moments))
    run.mMinTotale = min(run.mMinTotale, min(moments))
    run.iterations.append(count)
    columns = (run.sigmaVv, run.Ehv, run.k0v, run.kav, run.kpv, run.sigmaVm, run.Ehm, run.k0m,
               run.kam, run.kpm, run.yNodo, run.momentoNodo, run.taglioNodo)
    run.tables.append([[column[i] for column in columns] for i in range(1, run.nNodi + 1)])


def judge(p, run):
    """A converged stage with absurd values was singular but for rounding."""
    for i in range(1, run.nNodi + 1):
        values = (run.yNodo[i], run.momentoNodo[i], run.taglioNodo[i])
        if not all(math.isfinite(v) for v in values):
            raise Singular
        if abs(run.yNodo[i]) > 1000 * p.lunghezzaParatia:
            raise Singular


def soil_state(run, limits, i):
    """Add the two soil sides of node i to its pressure and spring."""
    am, pm, av, pv = limits[i]
    em = run.sigmaVm[i] * run.k0m[i] + run.yNodo[i] * run.Ehm[i]
    if em < am:
        run.pNodo[i] += am
    elif em > pm:
        run.pNodo[i] += pm
    else:
        run.pNodo[i] += run.sigmaVm[i] * run.k0m[i]
        run.kNodo[i] += run.Ehm[i]
    ev = run.sigmaVv[i] * run.k0v[i] + run.yNodo[i] * run.Ehv[i]
    if ev < pv:
        run.pNodo[i] += pv
    elif ev > av:
        run.pNodo[i] += av
    else:
        run.pNodo[i] += run.sigmaVv[i] * run.k0v[i]
        run.kNodo[i] += run.Ehv[i]


def anchor(p, run, a):
    """An acting anchor is a pressure and a spring at its node."""
    m = anchor_node(p.profTirante[a], run.passoNodi)
    if m > run.nNodi:
        return  # deeper than the wall: no effect, not even on the node below a fixed toe
    y = run.yNodo[m]
    stiffness = p.rigTirante[a]
    acts = (run.yTirante[a] - y) * stiffness <= p.pretTirante[a] or p.tipoTirante[a] == 1
    if not acts:
        return
    f = 2 / run.passoNodi if m in (1, run.nNodi) else 1 / run.passoNodi
    run.pNodo[m] = run.pNodo[m] - (p.pretTirante[a] - stiffness * run.yTirante[a]) * f
    run.kNodo[m] = run.kNodo[m] - stiffness * f


def iterate(p, run, active, limits):
    """One classification, solve and update; True when nothing moved."""
    n = run.nNodi
    run.system.clear(n)
    for i in range(1, n + 1):
        run.pNodo[i] = run.acquaNetta[i] + p.pressioneOrizz
        run.kNodo[i] = 0.0
        soil_state(run, limits, i)
    for a in range(1, active + 1):
        anchor(p, run, a)
    if run.cernieraTesta:
        run.kNodo[1] = STIFF
    if run.bloccoPiede:
        run.kNodo[n] = STIFF
    grown = n
    if run.incastroPiede:
        grown = n + 1
        run.kNodo[grown] = STIFF
    assemble(run.system, grown, run.passoNodi, run.EJNodo, run.kNodo, run.pNodo,
             p.forzaTesta, p.momentoTesta)
    risolvi_sistema(2 * grown, run.system)
    for i in range(1, grown + 1):
        run.yNodo[i] = run.system.x[grown + i]
        run.taglioNodo[i] = run.system.x[i]
    m = run.momentoNodo
    m[1] = -p.momentoTesta
    m[n] = 2 * m[n - 1] - m[n - 2] if run.incastroPiede else 0.0
    h = run.passoNodi
    for i in range(2, n):
        m[i] = (-run.EJNodo[i] / (h * h)) * (run.yNodo[i - 1] + run.yNodo[i + 1]
                                             - 2 * run.yNodo[i])
    still = True
    for i in range(1, n + 1):
        if abs(run.yNodo[i] - run.yPrec[i]) > TOLERANCE:
            still = False
        run.yPrec[i] = run.yNodo[i]
    return still
