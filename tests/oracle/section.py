"""Stiffness, bending resistance and shear resistance of the wall's section.

Lengths of the project are centimetres; everything here works in mm and N.
Position 0 across the depth is the valle face.
"""

import math

PI = 4 * math.atan(1)
STRIPS = 100
WIDTH = 1000.0
KINDS = ("tipoDiaframma", "tipoPali", "tipoPalancola", "tipoPaliArmati")
_NEEDED = {
    "tipoDiaframma": ("spessoreDiaframma", "modEacciaio", "modEcls", "fyk", "fck"),
    "tipoPali": ("paliDiamEst", "paliDiamInt", "paliInterasse", "modEacciaio", "modEcls", "fyk",
                 "fck"),
    "tipoPalancola": ("palancolaBase", "palancolaLargAla", "palancolaAltAla",
                      "palancolaSpessore", "palancolaSpessAla", "modEacciaio", "fyk"),
    "tipoPaliArmati": ("armInterasse", "armDiamLong", "armDiamPalo", "armNumLong",
                       "armCopriferro", "modEacciaio", "modEcls", "fyk", "fck"),
}


def kind(p):
    """Name of the first true type flag, or None."""
    for name in KINDS:
        if getattr(p, name):
            return name
    return None


def side_complete(p, side):
    return (getattr(p, "copriferro" + side) > 0 and getattr(p, "interasse" + side) > 0
            and getattr(p, "diametro" + side) > 0)


def sezione_valida(p, not_asked=()):
    name = kind(p)
    if name is None:
        return False
    if not all(getattr(p, field) > 0 for field in _NEEDED[name] if field not in not_asked):
        return False
    return name != "tipoDiaframma" or side_complete(p, "Monte") or side_complete(p, "Valle")


# --- stiffness -------------------------------------------------------------

def calcola_ej(p):
    """Stiffness of one metre of wall, N mm2."""
    return {"tipoDiaframma": _ej_wall, "tipoPali": _ej_tubes, "tipoPalancola": _ej_sheet,
            "tipoPaliArmati": _ej_piles}[kind(p)](p)


def _ej_wall(p):
    H = p.spessoreDiaframma * 10
    n = p.modEacciaio / p.modEcls
    dv, dm = p.diametroValle * 10, p.diametroMonte * 10
    iv, im = p.interasseValle * 10, p.interasseMonte * 10
    cv, cm = p.copriferroValle * 10, p.copriferroMonte * 10
    av = PI * (dv * dv) / 4 / iv if iv > 0 and dv > 0 else 0.0
    am = PI * (dm * dm) / 4 / im if im > 0 and dm > 0 else 0.0
    x = ((H * H / 2 + (n - 1) * av * (H - cv - dv / 2) + (n - 1) * am * cm)
         / (H + (n - 1) * (am + av)))
    lv = H - x - cv - dv / 2
    lm = x - cm - dm / 2
    jv = av * (lv * lv)
    jm = am * (lm * lm)
    return p.modEcls * 1000 * (H * H * H / 12 + (n - 1) * (jv + jm))


def _ej_tubes(p):
    re = p.paliDiamEst * 10 / 2
    ri = p.paliDiamInt * 10 / 2
    re4, ri4 = re * re * re * re, ri * ri * ri * ri
    return 1000 * (PI / 4) * (p.modEcls * ri4 + p.modEacciaio * (re4 - ri4)) / (p.paliInterasse * 10)


def _ej_sheet(p):
    base, larg, alt = p.palancolaBase * 10, p.palancolaLargAla * 10, p.palancolaAltAla * 10
    sp, sa = p.palancolaSpessore * 10, p.palancolaSpessAla * 10
    cos_a = math.cos(math.atan(larg / alt))
    be = base + sa / cos_a
    he = 2 * alt + sp
    bi = be - 2 * sa / cos_a
    hi = he - 2 * sp
    inertia = be * (he * he * he) / 12 - bi * (hi * hi * hi) / 12
    return 1000 * p.modEacciaio * inertia / (4 * larg + 2 * base)


def _ej_piles(p):
    d, db = p.armDiamPalo * 10, p.armDiamLong * 10
    cop = p.armCopriferro * 10
    r, rb = d / 2, db / 2
    sc = (PI * p.modEcls / 4) * (r * r * r * r)
    ss = 0.0
    ab = PI * (rb * rb)
    delta = 2 * PI / p.armNumLong
    i = 0
    while i <= p.armNumLong - 1:
        a = math.sin(delta * i) * (r - cop - rb)
        jb = a * a * ab + (PI / 4) * (rb * rb * rb * rb)
        ss = ss + jb * p.modEacciaio
        sc = sc - jb * p.modEcls
        i += 1
    return 1000 * (ss + sc) / (p.armInterasse * 10)


# --- bending ---------------------------------------------------------------

def tensione_cls(strain, fcd):
    """Parabola and rectangle, compression only."""
    if strain >= 0:
        return 0.0
    if strain >= -0.002:
        return 0.85 * fcd * (1000 * strain) * (1 + 250 * strain)
    return -0.85 * fcd


def tensione_acciaio(strain, fyd, es):
    """Elastic, perfectly plastic."""
    ey = fyd / es
    if strain < -ey:
        return -fyd
    if strain > ey:
        return fyd
    return strain * es


def area_cerchio_in_striscia(c, r, y0, y1):
    """Area of the circle (centre c, radius r) between the depths y0 and y1."""
    if c + r <= y0 or c - r >= y1:
        return 0.0
    whole = PI * (r * r)
    if c - r >= y0 and c + r <= y1:
        return whole

    def cap(t):
        w2 = r * r - t * t
        if w2 <= 0:
            return 0.0
        w = math.sqrt(w2)
        return r * r * (PI - 2 * math.atan(t / w)) / 2 - t * w

    def below(y):
        if y < c:
            return cap(c - y)
        if y > c:
            return whole - cap(y - c)
        return whole / 2

    def above(y):
        if y > c:
            return cap(y - c)
        if y < c:
            return whole - cap(c - y)
        return whole / 2

    area = whole
    if c - r < y0 < c + r:
        area -= below(y0)
    if c - r < y1 < c + r:
        area -= above(y1)
    return area


class Strips:
    """Strip areas, materials and design axial force of one section."""

    def __init__(self, p, depth):
        self.H = depth
        self.dy = depth / STRIPS
        self.Ac = [0.0] * (STRIPS + 1)
        self.As = [0.0] * (STRIPS + 1)
        self.fcd = p.fck / 1.6
        self.fyd = p.fyk / 1.15
        self.es = p.modEacciaio
        self.Nd = 1.4 * 10000 * p.sforzoNormale
        self.limits = []  # (position, kind of limit)

    def bounds(self, i):
        return self.dy * (i - 1), self.dy * i

    def circle(self, i, c, r, spacing):
        y0, y1 = self.bounds(i)
        return area_cerchio_in_striscia(c, r, y0, y1) * WIDTH / spacing

    def stresses(self, i, eps0, chi):
        y = self.dy / 2 + self.dy * (i - 1)
        strain = eps0 + chi * y
        return y, tensione_cls(strain, self.fcd), tensione_acciaio(strain, self.fyd, self.es)

    def force(self, eps0, chi):
        total = 0.0
        for i in range(1, STRIPS + 1):
            _, sc, ss = self.stresses(i, eps0, chi)
            total = total + (self.Ac[i] * sc + self.As[i] * ss)
        return total

    def moment(self, eps0, chi):
        area = 0.0
        for i in range(1, STRIPS + 1):
            area = area + (self.Ac[i] + self.As[i])
        q = self.Nd / area
        total = 0.0
        for i in range(1, STRIPS + 1):
            y, sc, ss = self.stresses(i, eps0, chi)
            total = total + y * (self.Ac[i] * (sc + q) + self.As[i] * (ss + q))
        return total

    def find_strain(self, k, chi):
        """eps0 by bisection, and whether it is in equilibrium."""
        d = STRIPS * self.dy * chi
        if k == 1:
            lower, upper = -0.01 - d, 0.01
        else:
            lower, upper = -0.01, 0.01 - d
        f_lo = self.force(lower, chi)
        f_hi = self.force(upper, chi)
        while True:
            eps0 = (lower + upper) / 2
            f_mid = self.force(eps0, chi)
            if (f_mid + self.Nd) * (f_lo + self.Nd) <= 0:
                upper = eps0
                f_hi = f_mid
            else:
                lower = eps0
                f_lo = f_mid
            if abs(f_lo - f_hi) < 1:
                return eps0, abs(f_mid + self.Nd) < 1

    def exceeded(self, eps0, chi):
        for position, limit in self.limits:
            strain = eps0 + chi * position
            if limit < 0 and strain < limit:
                return True
            if limit > 0 and strain > limit:
                return True
        return False

    def resistances(self):
        """[unused, negative curvature, positive curvature], N mm."""
        result = [0.0, 0.0, 0.0]
        for k in (-1, 1):
            chi_lo = 0.0
            chi_hi = k * 0.02 / self.H
            while True:
                chi = (chi_hi + chi_lo) / 2
                eps0, balanced = self.find_strain(k, chi)
                if self.exceeded(eps0, chi):
                    chi_hi = chi
                else:
                    chi_lo = chi
                if abs(chi_lo - chi_hi) < (0.02 / self.H) / 10000:
                    break
            if balanced:
                result[(k + 3) // 2] = self.moment(eps0, chi)
        return result


def _limits(depth, near_valle, near_monte):
    return [(0.0, -0.0035), (near_valle, 0.01), (depth, -0.0035), (near_monte, 0.01)]


def momenti_resistenti(p):
    return {"tipoDiaframma": _strips_wall, "tipoPali": _strips_tubes,
            "tipoPalancola": _strips_sheet, "tipoPaliArmati": _strips_piles}[kind(p)](p).resistances()


def _strips_wall(p):
    H = p.spessoreDiaframma * 10
    s = Strips(p, H)
    rm, rv = p.diametroMonte * 10 / 2, p.diametroValle * 10 / 2
    cm, cv = p.copriferroMonte * 10, p.copriferroValle * 10
    im, iv = p.interasseMonte * 10, p.interasseValle * 10
    for i in range(1, STRIPS + 1):
        if im > 0 and rm > 0:
            s.As[i] += s.circle(i, H - cm - rm, rm, im)
        if iv > 0 and rv > 0:
            s.As[i] += s.circle(i, cv + rv, rv, iv)
        s.Ac[i] = s.dy * WIDTH - s.As[i]
    s.limits = _limits(H, cv, H - cm)
    return s


def _strips_tubes(p):
    H = p.paliDiamEst * 10
    s = Strips(p, H)
    spacing = p.paliInterasse * 10
    for i in range(1, STRIPS + 1):
        y0, y1 = s.bounds(i)
        outer = area_cerchio_in_striscia(H / 2, H / 2, y0, y1)
        inner = area_cerchio_in_striscia(H / 2, p.paliDiamInt * 10 / 2, y0, y1)
        s.As[i] = (outer - inner) * WIDTH / spacing
        s.Ac[i] = inner * WIDTH / spacing
    s.limits = _limits(H, 0.0, H)
    return s


def _strips_sheet(p):
    base, larg, alt = p.palancolaBase * 10, p.palancolaLargAla * 10, p.palancolaAltAla * 10
    sp, sa = p.palancolaSpessore * 10, p.palancolaSpessAla * 10
    s = Strips(p, 2 * alt + sp)
    wave = 4 * larg + 2 * base
    tw = sa / math.cos(math.atan(larg / alt))
    m = int(sp / s.dy)
    B = [0.0] * (STRIPS + 2)
    for i in range(1, m + 1):
        B[i] = s.dy * (base - tw)
        B[101 - i] = s.dy * (base - tw)
    B[m + 1] = (base - tw) * (sp - m * s.dy)
    B[100 - m] = (base - tw) * (sp - m * s.dy)
    for i in range(1, STRIPS + 1):
        s.As[i] = WIDTH * (B[i] + 2 * s.dy * tw) / wave
    s.limits = _limits(s.H, 0.0, s.H)
    return s


def _strips_piles(p):
    H = p.armDiamPalo * 10
    s = Strips(p, H)
    spacing = p.armInterasse * 10
    rb = p.armDiamLong * 10 / 2
    cop = p.armCopriferro * 10
    bars = math.floor(p.armNumLong)
    for i in range(1, STRIPS + 1):
        y0, y1 = s.bounds(i)
        steel = 0.0
        for j in range(1, bars + 1):
            c = H / 2 + math.sin((j - 1) * 2 * PI / p.armNumLong) * (H / 2 - cop - rb)
            steel = steel + area_cerchio_in_striscia(c, rb, y0, y1)
        s.As[i] = steel * WIDTH / spacing
        s.Ac[i] = s.circle(i, H / 2, H / 2, spacing) - s.As[i]
    s.limits = _limits(H, cop, H - cop)
    return s


# --- shear -----------------------------------------------------------------

def verifica_taglio(p, nsd=0.0):
    """(Vrd2, Vrd3) of one pile, N."""
    fcd = p.fck / 1.6
    fyd = p.fyk / 1.15
    d = 10 * (p.armDiamPalo - p.armCopriferro - p.armDiamLong / 2)
    bw = 10 * p.armDiamPalo
    fctk = 0.7 * (0.3 * p.fck ** (2 / 3))
    tau = 0.25 * fctk / 1.6
    k = 1.6 - d / 1000
    rb = 10 * p.armDiamLong / 2
    asl = p.armNumLong * PI * (rb * rb)
    rho = asl / (d * bw)
    rp = 10 * p.armDiamPalo / 2
    sigma = nsd / (PI * (rp * rp) + asl * (p.modEacciaio / p.modEcls - 1))
    vrd1 = tau * k * (1.2 + 40 * rho + 0.15 * sigma) * bw * d
    nu = 0.7 - p.fck / 200
    if nu < 0.5:
        nu = 0.5
    vrd2 = 0.5 * nu * fcd * bw * 0.9 * d
    rs = 10 * p.armDiamStaffe / 2
    asw = 2 * PI * (rs * rs)
    vrd3 = vrd1 + fyd * d * 0.9 * asw / (10 * p.armPassoStaffe)
    return vrd2, vrd3
