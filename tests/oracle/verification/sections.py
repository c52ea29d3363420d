"""Sections by fibres, and by the formulas of textbooks. N, mm; results for one metre of wall in kN m, kN, kN m2.

The fibres are thousands of thin slices with bars as points or as circles cut into slices; the limit state is found by
turning the section about the fibre that is at its limit, not by raising a curvature.
"""

import numpy as np


def concrete(e, fcd):
    return np.where(e >= 0, 0.0, np.where(e > -0.002, 0.85 * fcd * 1000 * e * (1 + 250 * e), -0.85 * fcd))


def steel(e, fyd, Es):
    return np.clip(e * Es, -fyd, fyd)


class Section:
    """Slices y from the face that is compressed, with concrete and steel areas [mm2 per m]; `tension` is the depth
    at which the elongation is read."""

    def __init__(self, H, y, Ac, As, tension, fcd, fyd, Es, crush=True):
        self.H, self.y, self.Ac, self.As, self.tension = H, y, Ac, As, tension
        self.fcd, self.fyd, self.Es = fcd, fyd, Es

    def forces(self, top, bottom):
        e = top + (bottom - top) * self.y / self.H
        fc, fs = self.Ac * concrete(e, self.fcd), self.As * steel(e, self.fyd, self.Es)
        return (fc + fs).sum(), fc, fs

    def strains(self, x):
        """Limit strains of the faces for a neutral axis at depth x from the compressed face."""
        curvature = min(0.0035 / x, 0.01 / (self.tension - x) if self.tension > x else np.inf)
        return -curvature * x, curvature * (self.H - x)

    def moment(self, N=0.0):
        """Resistance under the axial force N [N], compression positive; N spreads over all areas."""
        a, b = 1e-6, 50 * self.H
        for _ in range(200):
            x = np.sqrt(a * b)
            a, b = (x, b) if self.forces(*self.strains(x))[0] + N > 0 else (a, x)
        _, fc, fs = self.forces(*self.strains(x))
        q = N / (self.Ac + self.As).sum()
        return abs(((fc + fs + q * (self.Ac + self.As)) * self.y).sum()) / 1e6


def slices(H, n=20000):
    return (np.arange(n) + 0.5) * H / n


def chord(y, centre, r):
    return 2 * np.sqrt(np.maximum(0.0, r * r - (y - centre) ** 2))


def wall(H, layers, fck, fyk, Es, n=20000):
    """Concrete wall; layers: (distance of the bar's axis from the compressed face, diameter, spacing)."""
    y = slices(H, n)
    As = sum(chord(y, d, db / 2) * H / n * 1000 / s for d, db, s in layers)
    return y, H / n * 1000 - As, As


def values():
    out = {}

    def told(case, text, value):
        out[case, text] = value

    fcd, fyd, Es = 25 / 1.6, 450 / 1.15, 200000.0
    # Wall 600 mm: valle face cover 50, 24/200; monte face cover 60, 20/250.
    H = 600
    valle, monte = (50, 24, 200), (60, 20, 250)
    for text, near, far in (("momento_resistente_positivo", monte, valle), ("momento_resistente_negativo", valle, monte)):
        layers = [(near[0] + near[1] / 2, near[1], near[2]), (H - far[0] - far[1] / 2, far[1], far[2])]
        y, Ac, As = wall(H, layers, 25, 450, Es)
        s = Section(H, y, Ac, As, H - far[0], fcd, fyd, Es)
        told("diaframma_fibre", text, s.moment() if "positivo" in text else -s.moment())
        told("diaframma_fibre_sforzo_normale", text,
             s.moment(1.4 * 500e3) if "positivo" in text else -s.moment(1.4 * 500e3))
    # One layer of bars: x = As fyd / (0.81 0.85 fcd b), M = As fyd (d - 0.416 x).
    As1 = np.pi * 30**2 / 4 * 10
    d = H - 50 - 15
    x = As1 * fyd / (0.8095 * 0.85 * fcd * 1000)
    told("diaframma_manuale", "momento_resistente_positivo", As1 * fyd * (d - 0.416 * x) / 1e6)
    assert 0.0035 * (d - x) / x > fyd / Es                     # the steel yields

    # Uncracked stiffness: the transformed section about its own centroid.
    Ec = 30000.0
    n = Es / Ec
    Av, Am = np.pi * 24**2 / 4 / 200, np.pi * 20**2 / 4 / 250
    zv, zm = H - 62, 70                                        # from the monte face
    A = H + (n - 1) * (Av + Am)
    xg = (H * H / 2 + (n - 1) * (Av * zv + Am * zm)) / A
    J = H**3 / 12 + H * (H / 2 - xg) ** 2 + (n - 1) * (Av * (zv - xg) ** 2 + Am * (zm - xg) ** 2)
    told("diaframma_rigidezza", "rigidezza_sezione", Ec * 1000 * J / 1e9)

    # Tubes 600 x 10 at 800, filled.
    De, Di, i = 600, 580, 800
    told("pali_rigidezza", "rigidezza_sezione",
         1000 / i * np.pi / 64 * (Ec * Di**4 + 210000 * (De**4 - Di**4)) / 1e9)
    y = slices(De)
    outer, inner = chord(y, De / 2, De / 2), chord(y, De / 2, Di / 2)
    w = De / len(y) * 1000 / i
    tube = Section(De, y, inner * w, (outer - inner) * w, De, fcd, 235 / 1.15, 210000)
    told("pali_fibre", "momento_resistente_positivo", tube.moment())
    told("pali_fibre", "momento_resistente_negativo", -tube.moment())

    # Sheet pile: flange 250 x 10, half web 175 x 185, web 8.
    base, la, ha, t, tw = 250, 175, 185, 10, 8
    wave, He = 4 * la + 2 * base, 2 * ha + t
    leg = tw * np.hypot(la, ha) / ha                           # thickness of the web along the wall
    y = slices(He, 38000)                                      # the flange ends between two slices
    inside = np.abs(y - He / 2) > He / 2 - t
    width = np.where(inside, base - leg, 0) + 2 * leg
    J = (width * (y - He / 2) ** 2).sum() * He / len(y)
    told("palancola_rigidezza", "rigidezza_sezione", 210000 * 1000 / wave * J / 1e9)
    As = width * He / len(y) * 1000 / wave
    pile = Section(He, y, 0 * As, As, He, 1.0, 355 / 1.15, 210000)
    told("palancola_fibre", "momento_resistente_positivo", pile.moment())
    told("palancola_fibre_sforzo_normale", "momento_resistente_positivo", pile.moment(1.4 * 800e3))
    W = (width * np.abs(y - He / 2)).sum() * He / len(y) * 1000 / wave
    told("palancola_plastico", "momento_resistente_positivo", W * 355 / 1.15 / 1e6)

    # Piles 800, 16 bars of 26, cover 60, every 1000.
    D, db, nb, cover, s = 800, 26, 16, 60, 1000
    R = D / 2 - cover - db / 2
    a = R * np.sin(2 * np.pi / nb * np.arange(nb))
    J = np.pi * D**4 / 64
    Jb = (a**2 * np.pi * db**2 / 4 + np.pi * db**4 / 64).sum()
    told("pali_armati_rigidezza", "rigidezza_sezione", 1000 / s * (Ec * J + (Es - Ec) * Jb) / 1e9)
    y = slices(D)
    As = sum(chord(y, D / 2 + v, db / 2) for v in a) * D / len(y)
    Ac = chord(y, D / 2, D / 2) * D / len(y) - As
    pile = Section(D, y, Ac, As, D - cover, fcd, fyd, Es)
    told("pali_armati_fibre", "momento_resistente_positivo", pile.moment())
    told("pali_armati_fibre_sforzo_normale", "momento_resistente_positivo", pile.moment(1.4 * 1000e3))

    # ENV 1992-1-1, 4.3.2, standard method: one pile, brought to one metre. fck 30, stirrups 10 every 150.
    fck, st, step = 30.0, 10, 150
    d = D - cover - db / 2
    tau = 0.25 * 0.7 * 0.3 * fck ** (2 / 3) / 1.6
    rho = nb * np.pi * db**2 / 4 / (D * d)
    told("taglio_pali_armati", "taglio_resistente_bielle",
         0.5 * max(0.5, 0.7 - fck / 200) * fck / 1.6 * D * 0.9 * d / 1000)
    told("taglio_pali_armati", "taglio_resistente_armatura",
         (tau * (1.6 - d / 1000) * (1.2 + 40 * rho) * D * d
          + 450 / 1.15 * 0.9 * d * 2 * np.pi * st**2 / 4 / step) / 1000)
    # As the code has it: k not below 1, rho not above 0.02.
    told("taglio_pali_norma", "taglio_resistente_armatura",
         (tau * max(1.0, 1.6 - d / 1000) * (1.2 + 40 * min(0.02, rho)) * D * d
          + 450 / 1.15 * 0.9 * d * 2 * np.pi * st**2 / 4 / step) / 1000)
    return out


if __name__ == "__main__":
    for (case, text), value in values().items():
        print(f"{case:32} {text:34} {value:.7g}")
