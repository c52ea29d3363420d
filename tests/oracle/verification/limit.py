"""Walls at failure: rigid movements of a wall between soils at their limits, and the equations of Das.

kN, m. `Ground` gives the limit pressures of both sides; a wall turns about a point (cantilever) or about its
tie (free earth support). The pressures are summed exactly: they are linear between the depths that are
named, and halves of steps are no concern.
"""

import numpy as np

rad = np.pi / 180


class Ground:
    """Level ground, H retained. Layers: (bottom, gamma, gamma_sat, phi, c)."""

    def __init__(self, H, layers, water=1e9, water_inside=1e9, gw=10.0, q=0.0, F=1.0, delta=None, total=False):
        self.H, self.layers, self.w, self.wi, self.gw, self.q = H, layers, water, water_inside, gw, q
        self.total = total
        self.friction = delta
        self.reduce = F

    def layer(self, z):
        for top, layer in zip([0] + [l[0] for l in self.layers], self.layers):
            if z < layer[0]:
                return layer
        return self.layers[-1]

    def stress(self, z, start, water, q):
        """Effective vertical stress at z, from the ground level `start` down."""
        s, top = q, 0.0
        for i, (bottom, gamma, sat, _, _) in enumerate(self.layers):
            end = bottom if i + 1 < len(self.layers) else 1e9
            a, b = max(top, start), min(end, z)
            if b > a:
                dry = max(0.0, min(b, water) - a)
                s += gamma * dry + sat * (b - a - dry)
            top = end
        return s if self.total else s - self.gw * max(0.0, z - max(water, start))

    def coefficients(self, layer):
        phi = np.arctan(np.tan(layer[3] * rad) / self.reduce)
        c = layer[4] / self.reduce
        ka, kp = (1 - np.sin(phi)) / (1 + np.sin(phi)), (1 + np.sin(phi)) / (1 - np.sin(phi))
        return ka, kp, c

    def limits(self, z):
        """Active and passive of the retained side, the same of the excavated side, net water."""
        ka, kp, c = self.coefficients(self.layer(z))
        if self.friction:
            ka, kp = self.friction
        s = self.stress(z, 0.0, self.w, self.q)
        am, pm = max(0.0, s * ka - 2 * c * np.sqrt(ka)), s * kp + 2 * c * np.sqrt(kp)
        av = pv = 0.0
        if z > self.H:
            s = self.stress(z, self.H, self.wi, 0.0)
            av, pv = max(0.0, s * ka - 2 * c * np.sqrt(ka)), s * kp + 2 * c * np.sqrt(kp)
        water = self.gw * (max(0.0, z - self.w) - max(0.0, z - self.wi))
        return am, pm, av, pv, water

    def net(self, z, outwards=True):
        am, pm, av, pv, water = self.limits(z)
        return am - pv + water if outwards else pm - av + water


def table(ground, deepest):
    """Running sums of the limit pressures: force and first moment down to each depth."""
    h = 0.005                           # all depths that are named are whole numbers of it
    n = round(deepest / h)
    z = (np.arange(n) + 0.5) * h
    out, back = np.array([ground.net(v) for v in z]), np.array([ground.net(v, False) for v in z])
    sums = [np.concatenate([[0], np.cumsum(v) * h]) for v in (out, out * z, back, back * z)]
    return np.arange(n + 1) * h, sums


def cantilever(ground, deepest=20.0):
    """Length of the wall that just falls, and the largest moment then: out above a pivot, back below it."""
    x, (fo, mo, fb, mb) = table(ground, deepest)
    at = lambda v, s: np.interp(v, x, s)

    def pivot(L):                       # forces balance
        force = lambda r: at(r, fo) + at(L, fb) - at(r, fb)
        a, b = ground.H, L
        for _ in range(60):
            m = (a + b) / 2
            a, b = (m, b) if force(m) > 0 else (a, m)
        return (a + b) / 2

    def excess(L):                      # moment about the head that turns the wall out, 0 at the limit
        r = pivot(L)
        return -(at(r, mo) + at(L, mb) - at(r, mb))

    a, b = ground.H + 0.3, deepest
    for _ in range(60):
        m = (a + b) / 2
        a, b = (m, b) if excess(m) > 0 else (a, m)
    L = (a + b) / 2
    # M(z) = - int p (z - s) ds, largest in size where the shear vanishes.
    M = -(x * fo - mo)
    inside = x <= pivot(L)
    return L, M[inside].min()


def free_earth(ground, tie, deepest=25.0, back=False):
    """Length, tie force and largest moment of a wall that turns about its tie.

    Textbooks take the active pressure above the tie too; a rigid wall moves back there, against the passive one
    (`back`)."""
    x, (fo, mo, fb, mb) = table(ground, deepest)
    about = mo - tie * fo
    if back:
        i = np.searchsorted(x, tie)
        about = about + (mb[i] - tie * fb[i]) - (mo[i] - tie * fo[i])
    i = np.argmax(about)
    j = i + np.argmax(about[i:] < 0)
    L = np.interp(0, [-about[j-1], -about[j]], [x[j-1], x[j]])
    T = np.interp(L, x, fo)
    M = -(x * fo - mo) + np.where(x > tie, T * (x - tie), 0)
    return L, T, M[x <= L].max()


def strength_factor(make, L, solve):
    """The factor by which the strength can be divided so that a wall of length L just falls."""
    a, b = 0.3, 5.0
    for _ in range(25):
        m = (a + b) / 2
        a, b = (m, b) if solve(make(m)) < L else (a, m)
    return (a + b) / 2


def das_cantilever_sand(L1, L2, gamma, sat, phi, gw=9.81):
    """Das: cantilever sheet pile in sand, linear change of pressure between the two extremes at the toe."""
    ka, kp = np.tan((45 - phi / 2) * rad) ** 2, np.tan((45 + phi / 2) * rad) ** 2
    g = sat - gw if L2 else gamma
    s1 = gamma * L1 * ka
    s2 = (gamma * L1 + g * L2) * ka
    L3 = s2 / (g * (kp - ka))
    P = s1 * L1 / 2 + s1 * L2 + (s2 - s1) * L2 / 2 + s2 * L3 / 2
    zbar = (s1 * L1 / 2 * (L3 + L2 + L1 / 3) + s1 * L2 * (L3 + L2 / 2) + (s2 - s1) * L2 / 2 * (L3 + L2 / 3)
            + s2 * L3 / 2 * 2 * L3 / 3) / P
    s5 = (gamma * L1 + g * L2) * kp + g * L3 * (kp - ka)
    k = g * (kp - ka)
    roots = np.roots([1, s5 / k, -8 * P / k, -6 * P / k**2 * (2 * zbar * k + s5), -P * (6 * zbar * s5 + 4 * P) / k**2])
    L4 = max(r.real for r in roots if abs(r.imag) < 1e-9)
    z = np.sqrt(2 * P / k)
    return L3 + L4, P * (zbar + z) - k * z**3 / 6


def values():
    out = {}

    def told(case, text, value):
        out[case, text] = value

    wet = Ground(5, [(30, 15.90, 19.33, 32, 0)], 2, 2, 9.81)
    dry = Ground(5, [(30, 15.90, 15.90, 32, 0)])
    for case, ground, das in (("das_mensola_falda", wet, das_cantilever_sand(2, 3, 15.90, 19.33, 32)),
                              ("das_mensola_asciutta", dry, das_cantilever_sand(5, 0, 15.90, 15.90, 32))):
        L, M = cantilever(ground)
        # What his straight change of pressure at the toe costs: his D beside that of the rigid movement.
        told(case + "_infissione", "lunghezza_minima", 5 + das[0])
        assert abs(M + das[1]) < 0.01
        told(case + "_lunghezza", "lunghezza_minima", L)
        told(case, "momento_minimo", -das[1])
    # Three depths of excavation fall: the moment of dry sand with Ka = 1/3 is gamma H^3 / 8.
    told("mensola_gamma_h3_8", "momento_minimo", -18 * 64 / 8)
    told("mensola_gamma_h3_8_lunghezza", "lunghezza_minima", cantilever(Ground(4, [(30, 18, 18, 30, 0)]))[0])
    L, M = cantilever(Ground(4, [(30, 18, 18, 30, 0)], q=20))
    told("mensola_sovraccarico_lunghezza", "lunghezza_minima", L)
    told("mensola_sovraccarico", "momento_minimo", M)
    L, M = cantilever(Ground(4.025, [(4.025, 17, 17, 30, 0), (30, 18, 18, 0, 30)], total=True), 12)
    # Clay below sand: net 4c - q above the pivot; zero shear at P / (4c - q).
    told("mensola_argilla_lunghezza", "lunghezza_minima", L)
    q = 17 * 4.025
    P1, z1, up = q * 4.025 / 6, 4.025 / 3, 4 * 30 - q
    told("mensola_argilla", "momento_minimo", -(P1 * z1 + P1**2 / (2 * up)))

    ground = Ground(9.15, [(40, 16, 19.5, 30, 0)], 3.05, 3.05, 9.81)
    told("das_tirante_falda_lunghezza", "lunghezza_minima", free_earth(ground, 1.52, back=True)[0])
    L, T, M = free_earth(ground, 1.52)
    told("das_tirante_falda_infissione", "lunghezza_minima", L)
    told("das_tirante_falda", "tiro tirante 1", T)
    told("das_tirante_falda", "momento_massimo", M)
    ground = Ground(6, [(40, 18, 18, 33, 0)], q=10)
    told("tirante_asciutto_lunghezza", "lunghezza_minima", free_earth(ground, 1, back=True)[0])
    L, T, M = free_earth(ground, 1)
    told("tirante_asciutto", "tiro tirante 1", T)
    told("tirante_asciutto", "momento_massimo", M)
    ground = Ground(6.025, [(6.025, 17, 17, 32, 0), (40, 18, 18, 0, 45)], total=True)
    told("tirante_argilla_lunghezza", "lunghezza_minima", free_earth(ground, 1.5, back=True)[0])
    L, T, M = free_earth(ground, 1.5)
    told("tirante_argilla", "tiro tirante 1", T)
    told("tirante_argilla", "momento_massimo", M)
    for case, H, length, layers, q, tie in (("riduzione_mensola", 4, 10, [(30, 18, 18, 32, 0)], 0, None),
                                            ("riduzione_mensola_coesiva", 4, 9, [(30, 18, 18, 25, 5)], 10, None),
                                            ("riduzione_tirante", 6, 9, [(30, 18, 18, 33, 0)], 10, 1)):
        make = lambda F: Ground(H, layers, q=q, F=F)
        solve = (lambda g: cantilever(g, 22)[0]) if tie is None else (lambda g: free_earth(g, tie, 22, back=True)[0])
        told(case, "riduzione", strength_factor(make, length, solve))

    # With wall friction: Coulomb, delta = 2/3 phi active and 1/2 phi passive, phi 32.
    from coefficients import wedge
    L, M = cantilever(Ground(5, [(30, 15.90, 15.90, 32, 0)],
                             delta=(wedge(32, 0, True, 64 / 3), wedge(32, 0, False, 16))))
    told("attrito_parete_infissione", "lunghezza_minima", L)
    told("attrito_parete_infissione", "momento_minimo", M)
    return out


if __name__ == "__main__":
    for (case, text), value in values().items():
        print(f"{case:32} {text:34} {value:.7g}")
