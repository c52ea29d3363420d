"""Soil coefficients by roads of their own: trial wedges for Coulomb, the circle of stresses for Rankine.

Degrees, kN, m.
"""

import numpy as np

rad = np.pi / 180


def wedge(phi, beta, active, delta=0.0):
    """Coefficient of the thrust on a vertical wall, horizontal part, by trial wedges.

    The force polygon of weight, wall thrust (inclined by delta) and reaction (inclined by phi to the plane of
    sliding) closes; the active thrust is the largest of all planes, the passive one the smallest."""
    phi, beta, delta = phi * rad, beta * rad, delta * rad
    sign = 1 if active else -1
    low = max(phi, beta) if active else beta
    high = np.pi / 2 - (0 if active else phi)
    for _ in range(6):
        theta = np.linspace(low, high, 4001)[1:-1]
        # Wedge on a wall of height 1: the plane at theta meets the slope at beta.
        weight = 0.5 * np.cos(beta) * np.cos(theta) / np.sin(theta - beta)
        # Directions of the unknown forces: thrust on the wedge, reaction of the plane.
        p = np.array([np.cos(delta) + 0 * theta, sign * np.sin(delta) + 0 * theta])
        r = np.array([-np.sin(theta - sign * phi), np.cos(theta - sign * phi)])
        # p P + r R + (0, -W) = 0
        det = p[0] * r[1] - p[1] * r[0]
        thrust = -weight * r[0] / det
        valid = (thrust > 0) & (weight > 0) & (det > 0)
        thrust = np.where(valid, thrust, -np.inf if active else np.inf)
        best = np.argmax(thrust) if active else np.argmin(thrust)
        low, high = theta[max(best - 2, 0)], theta[min(best + 2, len(theta) - 1)]
    return 2 * thrust[best] * np.cos(delta)


def circle(phi, beta):
    """Rankine: conjugate stress ratio on vertical planes under a slope, times cos beta.

    A plane parallel to the slope carries the vertical stress gamma z cos^2(beta) with the obliquity beta. The circle
    through it that touches the strength line has two points of that obliquity; the other one is the stress on
    the vertical plane. Found by bisection of the circle's centre, not by the formula."""
    phi, beta = phi * rad, beta * rad
    s = np.cos(beta) ** 2                        # normal stress on the plane, gamma z = 1
    t = np.cos(beta) * np.sin(beta)
    p = np.hypot(s, t)                           # resultant on the plane
    found = []
    for low, high in ((s, 100.0), (0.0, s)):     # centre beyond the point (passive), before it (active)
        gap = lambda c: np.hypot(c - s, t) - c * np.sin(phi)
        a, b = (c_turn(gap, low, high), high) if low == s else (low, c_turn(gap, low, high))
        for _ in range(200):
            m = (a + b) / 2
            if (gap(a) < 0) == (gap(m) < 0):
                a = m
            else:
                b = m
        c = (a + b) / 2
        power = c * c * (1 - np.sin(phi) ** 2)   # of the origin with respect to the circle
        found.append(power / p / np.cos(0))      # resultant on the vertical plane
    passive, active = found
    # gamma z = 1: the pressure on the vertical plane is K gamma z.
    return active, passive


def c_turn(gap, low, high):
    """Where gap is smallest between low and high: golden section."""
    g = (np.sqrt(5) - 1) / 2
    a, b = low, high
    for _ in range(200):
        c, d = b - g * (b - a), a + g * (b - a)
        a, b = (a, d) if gap(c) < gap(d) else (c, b)
    return (a + b) / 2


def values():
    out = {}

    def told(case, text, value):
        out[case, text] = value

    # Tables that every textbook prints, to their own digits.
    table = {20: (0.490, 2.040, 0.658), 25: (0.406, 2.464, 0.577), 30: (0.333, 3.000, 0.500),
             35: (0.271, 3.690, 0.426), 40: (0.217, 4.599, 0.357)}
    for i, (phi, (ka, kp, k0)) in enumerate(table.items()):
        z = 2 * i + 1
        assert abs(wedge(phi, 0, True) - ka) < 6e-4 and abs(wedge(phi, 0, False) - kp) < 6e-4, phi
        for case in ("coulomb_orizzontale", "rankine_orizzontale", "bell_orizzontale"):
            told(case, f"ka_monte z {z}", ka)
            told(case, f"kp_monte z {z}", kp)
        told("jaky_orizzontale", f"k0_monte z {z}", k0)
    for beta, case in ((10, "coulomb_pendio_10"), (20, "coulomb_pendio_20"), (-10, "coulomb_pendio_scende")):
        for z, phi in ((1, 25), (3, 30), (5, 35)):
            told(case, f"ka_monte z {z}", wedge(phi, beta, True))
            told(case, f"kp_monte z {z}", wedge(phi, beta, False))
    for z, phi in ((1, 25), (3, 30), (5, 35)):
        active, passive = circle(phi, 15)
        told("rankine_pendio_15", f"ka_monte z {z}", active)
        told("rankine_pendio_15", f"kp_monte z {z}", passive)
        told("k0_pendio", f"k0_monte z {z}", (1 - np.sin(phi * rad)) / (1 + np.sin(15 * rad)))

    # Hansen's factors as Bowles prints them (table 4-4): phi, Nc, Nq, Ngamma.
    hansen = {20: (14.83, 6.4, 2.9), 25: (20.71, 10.7, 6.8), 30: (30.13, 18.4, 15.1), 40: (75.25, 64.1, 79.4)}
    for i, (phi, (Nc, Nq, Ng)) in enumerate(hansen.items()):
        z = 2 * i + 1
        told("bowles_coesione", f"ks_monte z {z}", 40 * (10 * Nc + 18 * Ng + 18 * z * Nq))
        told("bowles_sabbia", f"ks_monte z {z}", 40 * (18 * Ng + 18 * z * Nq))
    Nc, Nq, Ng = hansen[30]
    # Water at 2 m: effective stress 2*18 + 2*10, submerged weight 20 - 10.
    told("bowles_falda", "ks_monte z 4", 40 * (10 * Ng + 56 * Nq))
    # Excavated to 3 m, downhill: weight of 1 m below water at 3 m.
    told("bowles_falda", "ks_valle z 4", 40 * (10 * Ng + 10 * Nq))

    # m sqrt(k0 sigma): m counts in the stored unit, sigma in t/m2.
    for z in (2, 6):
        k0 = 1 - np.sin(30 * rad)
        told("lancellotta", f"ks_monte z {z}", 10 * 400 * np.sqrt(k0 * 1.8 * z))
    told("lancellotta", "ks_valle z 6", 10 * 400 * np.sqrt(0.5 * 1.8 * 4))
    told("ks_costante", "ks_monte z 1", 8000)
    told("ks_costante", "ks_monte z 2", 20000)
    told("ks_costante", "ks_valle z 4", 20000)
    told("ks_lineare", "ks_monte z 1", 4000)
    told("ks_lineare", "ks_monte z 4", 8000 + 12000 * 2 / 4)
    told("ks_lineare", "ks_valle z 4", 14000)

    # Walls with friction (delta = 2/3 phi for active, phi/2 for passive), which the program leaves out.
    told("attrito_parete_attiva", "ka_monte z 3", wedge(30, 0, True, 20))
    told("attrito_parete_passiva", "kp_monte z 3", wedge(30, 0, False, 15))
    told("k0_pendio_norma", "k0_monte z 3", 0.5 * (1 + np.sin(15 * rad)))
    return out


if __name__ == "__main__":
    for (case, text), value in values().items():
        print(f"{case:32} {text:34} {value:.7g}")
