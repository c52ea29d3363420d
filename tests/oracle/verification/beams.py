"""Exact solutions of beams: simple spans, cantilevers, beams on an elastic foundation.

kN, m. x runs from the head of the wall to its toe. Two roads: closed forms, and a beam of Hermite elements
whose foundation is integrated, for loads that no textbook lists.
"""

import numpy as np


def winkler(L, EJ, k, loads, distributed=None, n=240):
    """Beam on springs of stiffness k (number or function of x) [kN/m3], free ends.

    loads: (x, force, moment) at nodes; distributed: function of x [kN/m2], positive towards the
    excavation. Returns x, y, M, T at the nodes; M is -EJ y''."""
    h = L / n
    x = np.linspace(0, L, n + 1)
    K = np.zeros((2 * n + 2, 2 * n + 2))
    F = np.zeros(2 * n + 2)
    bending = EJ / h**3 * np.array([[12, 6*h, -12, 6*h], [6*h, 4*h*h, -6*h, 2*h*h],
                                    [-12, -6*h, 12, -6*h], [6*h, 2*h*h, -6*h, 4*h*h]])
    points, weights = np.polynomial.legendre.leggauss(5)
    stiffness = k if callable(k) else (lambda z: k)
    for e in range(n):
        ke = bending.copy()
        fe = np.zeros(4)
        for p, w in zip((points + 1) / 2, weights / 2):
            N = np.array([1 - 3*p**2 + 2*p**3, h*(p - 2*p**2 + p**3), 3*p**2 - 2*p**3,
                          h*(p**3 - p**2)])
            z = x[e] + p * h
            ke += stiffness(z) * np.outer(N, N) * w * h
            if distributed:
                fe += distributed(z) * N * w * h
        K[2*e:2*e+4, 2*e:2*e+4] += ke
        F[2*e:2*e+4] += fe
    for z, force, moment in loads:
        i = int(round(z / h))
        assert abs(x[i] - z) < 1e-9
        F[2*i] += force
        F[2*i+1] += moment
    u = np.linalg.solve(K, F)
    y = u[::2]
    # Moment and shear from the loads and springs above: the integral of the net pressure.
    net = (np.array([distributed(z) for z in x]) if distributed else np.zeros(n + 1))
    net = net - np.array([stiffness(z) for z in x]) * y
    T = np.zeros(n + 1)
    M = np.zeros(n + 1)
    at = {int(round(z / h)): (force, moment) for z, force, moment in loads}
    t = -at.get(0, (0, 0))[0]
    m = at.get(0, (0, 0))[1]
    T[0], M[0] = t, m
    for i in range(n):
        mid = t - net[i] * h / 2 - (net[i+1] - net[i]) * h / 8
        new = t - (net[i] + net[i+1]) / 2 * h
        m += h * (t + 4 * mid + new) / 6
        t = new
        if i + 1 in at:
            t -= at[i+1][0]
            m += at[i+1][1]
        T[i+1], M[i+1] = t, m
    return x, y, M, T


def hetenyi_middle(L, EJ, k, P):
    """Finite beam, free ends, force in the middle: deflection and moment below it."""
    a = (k / (4 * EJ)) ** 0.25
    s = a * L
    d = np.sinh(s) + np.sin(s)
    return (P * a / (2 * k) * (np.cosh(s) + np.cos(s) + 2) / d,
            P / (4 * a) * (np.cosh(s) - np.cos(s)) / d)


def hetenyi_end_force(L, EJ, k, P):
    """Finite beam, free ends, force at one: deflection of both."""
    a = (k / (4 * EJ)) ** 0.25
    s = a * L
    d = np.sinh(s) ** 2 - np.sin(s) ** 2
    return (2 * P * a / k * (np.sinh(s) * np.cosh(s) - np.sin(s) * np.cos(s)) / d,
            2 * P * a / k * (np.sinh(s) * np.cos(s) - np.sin(s) * np.cosh(s)) / d)


def hetenyi_end_moment(L, EJ, k, M):
    """Finite beam, free ends, moment at one that turns it towards the excavation: deflection."""
    a = (k / (4 * EJ)) ** 0.25
    s = a * L
    return 2 * M * a**2 / k * (np.sinh(s) ** 2 + np.sin(s) ** 2) / (np.sinh(s) ** 2 - np.sin(s) ** 2)


def values():
    out = {}

    def told(case, text, value):
        out[case, text] = value

    y, m = hetenyi_middle(20, 1042, 10, 10)
    told("hetenyi_forza_mezzeria", "spostamento z 10", -1000 * y)
    told("hetenyi_forza_mezzeria", "momento z 10", -m)

    y0, yl = hetenyi_end_force(10, 5000, 4000, 50)
    told("hetenyi_forza_testa", "spostamento z 0", 1000 * y0)
    told("hetenyi_forza_testa", "spostamento z 10", 1000 * yl)
    x, y, M, T = winkler(10, 5000, 4000, [(0, 50, 0)])
    assert abs(y[0] - y0) < 1e-8, (y[0], y0)
    told("hetenyi_forza_testa", "momento_minimo", M.min())

    y0 = hetenyi_end_moment(10, 5000, 4000, 100)
    told("hetenyi_momento_testa", "spostamento z 0", 1000 * y0)
    x, y, M, T = winkler(10, 5000, 4000, [(0, 0, -100)])
    assert abs(y[0] - y0) < 1e-8
    told("hetenyi_momento_testa", "momento z 2", M[48])

    # Infinite beam: lambda L is 16.6, so the ends are far away.
    a = (2000 / (4 * 1042)) ** 0.25
    told("pretensione_trave_infinita", "spostamento z 10", -1000 * 100 * a / 4000)
    told("pretensione_trave_infinita", "momento z 10", -100 / (4 * a))
    told("pretensione_trave_infinita", "tiro tirante 1", 100)

    # Step of water, 10 kN/m3, the level inside 2, 4, 6 m lower than outside.
    for stage, drop in ((2, 2), (3, 4), (4, 6)):
        x, y, M, T = winkler(12, 1042, 100, [], lambda z: 10 * min(z, drop))
        told("gradino_acqua", f"spostamento_massimo fase {stage}", 1000 * max(y, key=abs))
        told("gradino_acqua", f"momento_massimo fase {stage}", max(M))
    told("gradino_acqua", "spostamento_massimo fase 1", 0)

    L, EJ, P, p, M0 = 6.0, 20000.0, 40.0, 15.0, 60.0
    told("mensola_forza", "spostamento z 0", 1000 * P * L**3 / (3 * EJ))
    told("mensola_forza", "momento z 3", -P * 3)
    # The mesh clamps the toe half a step too deep: 120 segments.
    told("mensola_forza_maglia", "spostamento z 0",
         1000 * P * L**3 / (3 * EJ) * (1 + 1 / 120) * (1 + 1 / 240))
    told("mensola_pressione", "spostamento z 0", 1000 * p * L**4 / (8 * EJ))
    told("mensola_pressione", "momento z 3", -p * 9 / 2)
    told("mensola_acqua", "spostamento z 0", 1000 * 10 * L**5 / (30 * EJ))
    told("mensola_acqua", "momento z 3", -10 * 27 / 6)
    told("mensola_momento", "spostamento z 0", 1000 * M0 * L**2 / (2 * EJ))
    told("mensola_momento", "momento z 3", -M0)

    L = 8.0
    told("appoggi_pressione", "spostamento z 4", 1000 * 5 * p * L**4 / (384 * EJ))
    told("appoggi_pressione", "momento z 4", p * L**2 / 8)
    told("appoggi_pressione", "taglio z 2", p * (L / 2 - 2))
    told("appoggi_forza", "spostamento z 4", -1000 * P * L**3 / (48 * EJ))
    told("appoggi_forza", "momento z 4", -P * L / 4)
    told("appoggi_acqua", "spostamento z 4", 1000 * 10 * 4 * (7*L**4 - 10*L**2*16 + 3*256) / (360 * EJ))
    told("appoggi_acqua", "momento z 4", 10 * 4 * (L**2 - 16) / 6)
    told("appoggi_momento", "spostamento z 4", -1000 * M0 * L**2 / (16 * EJ))
    told("appoggi_momento", "momento z 4", -M0 / 2)

    # Fixed toe, hinged head: R = 3/8 p L at the head.
    told("incastro_cerniera_pressione", "momento z 3", p * (3 / 8 * L * 3 - 9 / 2))
    told("incastro_cerniera_pressione", "taglio z 2", p * (3 / 8 * L - 2))
    told("incastro_cerniera_pressione", "spostamento z 4",
         1000 * p * 4 * (L**3 - 3 * L * 16 + 2 * 64) / (48 * EJ))

    # A spring in the middle of a span under pressure: equal displacement of both.
    ka = 5000.0
    F = 5 * p * L**4 / (384 * EJ) / (1 / ka + L**3 / (48 * EJ))
    told("appoggi_tirante_elastico", "tiro tirante 1", F)
    told("appoggi_tirante_elastico", "spostamento z 4", 1000 * F / ka)
    told("appoggi_tirante_elastico", "momento z 4", p * L**2 / 8 - F * L / 4)

    # Rigid walls.
    L, k, P = 10.0, 2000.0, 30.0
    told("palo_rigido", "spostamento z 0", 1000 * 4 * P / (k * L))
    told("palo_rigido", "spostamento z 10", -1000 * 2 * P / (k * L))
    # p(z) = P (4 - 6 z / L) / L; the shear vanishes at L/3.
    told("palo_rigido", "momento_minimo", -P * L * 4 / 27)
    n = 500.0
    told("palo_rigido_modulo_lineare", "spostamento z 0", 1000 * 18 * P / (n * L**2))
    told("palo_rigido_modulo_lineare", "spostamento z 10", -1000 * 6 * P / (n * L**2))
    # p = n z a (1 - 4 z / (3 L)), a the displacement of the head.
    z = np.linspace(0, L, 200001)
    T = -P + n * 18 * P / (n * L**2) * (z**2 / 2 - 4 * z**3 / (9 * L))
    M = np.concatenate([[0], np.cumsum((T[1:] + T[:-1]) / 2 * np.diff(z))])
    told("palo_rigido_modulo_lineare", "momento_minimo", M.min())

    # Flexible wall, modulus that grows with the depth: Hermite elements alone.
    x, y, M, T = winkler(10, 5000, lambda z: 2000 * z, [(0, 50, 0)])
    told("trave_modulo_lineare", "spostamento z 0", 1000 * y[0])
    told("trave_modulo_lineare", "momento_minimo", M.min())

    # Two anchors as springs on a rigid wall under water to the head.
    L, k1, k2 = 8.0, 4000.0, 6000.0
    R2 = (10 * L**2 / 2 * (2 * L / 3) - 10 * L**2 / 2 * 2) / (6 - 2)
    R1 = 10 * L**2 / 2 - R2
    told("due_puntoni_statica", "tiro tirante 1", R1)
    told("due_puntoni_statica", "tiro tirante 2", R2)
    told("due_puntoni_statica", "momento z 2", -10 * 8 / 6)
    told("due_puntoni_statica", "momento z 3", R1 - 10 * 27 / 6)
    told("due_puntoni_statica", "momento z 6", R1 * 4 - 10 * 216 / 6)
    return out


if __name__ == "__main__":
    for (case, text), value in values().items():
        print(f"{case:32} {text:34} {value:.7g}")
