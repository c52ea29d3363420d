"""Vertical stress, pressure coefficients, spring moduli and water at the nodes.

Monte is the retained side, valle the excavated one; pressures towards the
excavation are positive, and all valle coefficients are stored negative.
"""

import math

PI = 4 * math.atan(1)
HALF = PI / 2
QUARTER = PI / 4


class Refusal(Exception):
    """The project can't be computed; the text says why."""


def _root(argument, where):
    if argument < 0:
        raise Refusal(f"square root of a negative number, {where}")
    return math.sqrt(argument)


def _ratio(above, below, where):
    if below == 0:
        raise Refusal(f"division by zero, {where}")
    return above / below


def active_passive(method, phi, beta, where):
    """(ka, kp), both positive; (0, 0) for an unknown method."""
    if method == 1:
        below = math.sin(HALF) * math.sin(HALF + beta)
        ra = _root(_ratio(math.sin(phi) * math.sin(phi - beta), below, where), where)
        rp = _root(_ratio(math.sin(phi) * math.sin(phi + beta), below, where), where)
        sa = math.sin(HALF + phi)
        sp = math.sin(HALF - phi)
        ka = _ratio(sa * sa, (1 + ra) * (1 + ra), where)
        kp = _ratio(sp * sp, (1 - rp) * (1 - rp), where)
        return ka, kp
    if method == 2:
        cb = math.cos(beta)
        cp = math.cos(phi)
        r = _root(cb * cb - cp * cp, where)
        return (_ratio(cb * (cb - r), cb + r, where), _ratio(cb * (cb + r), cb - r, where))
    if method == 3:
        ta = math.tan(QUARTER - phi / 2)
        tp = math.tan(QUARTER + phi / 2)
        return ta * ta, tp * tp
    return 0.0, 0.0


def layer_weight(top, bottom, gamma_n, gamma_sat, water, z):
    """What one layer adds to the vertical stress at depth z."""
    if z > bottom:
        if water > bottom:
            return gamma_n * (bottom - top)
        if water > top:
            return gamma_n * (water - top) + gamma_sat * (bottom - water)
        return gamma_sat * (bottom - top)
    if z >= top:
        if water > z:
            return gamma_n * (z - top)
        if water > top:
            return gamma_n * (water - top) + gamma_sat * (z - water)
        return gamma_sat * (z - top)
    return 0.0


def bowles(cohesion, weight, stress, phi):
    """40 times the bearing capacity, without width or shape factors."""
    t = math.tan(QUARTER + phi / 2)
    nq = t * t * math.exp(PI * math.tan(phi))
    nc = (nq - 1) / math.tan(phi)
    ngamma = 1.5 * (nq - 1) * math.tan(phi)
    return 40 * (cohesion * nc + weight * ngamma + stress * nq)


def linear_ks(above, own, top, bottom, z, where):
    """Modulus between the value of the layer above and the layer's own one.

    A layer without thickness gives its own value right there and nothing below.
    """
    if bottom == top:
        if z == bottom:
            return own
        raise Refusal(f"division by zero, {where}")
    return above + (own - above) * (z - top) / (bottom - top)


def set_stage(p, run, stage):
    """Fill the soil arrays of `run` for one stage."""
    e = p.profFase[stage]
    w_valle = p.faldaValle
    n = p.nStrati
    for i in range(1, run.nNodi + 1):
        z = run.zNodo[i]
        where = f"stage {stage}, depth {z}"
        run.acquaNetta[i] = 0.0
        if z > p.faldaMonte:
            run.acquaNetta[i] += (z - p.faldaMonte) * p.gammaAcqua
        if z > w_valle:
            run.acquaNetta[i] -= (z - w_valle) * p.gammaAcqua
        _monte(p, run, i, z, n, where)
        if z < e:
            for array in (run.sigmaVv, run.k0v, run.kav, run.kpv, run.Ehv):
                array[i] = 0.0
        else:
            _valle(p, run, i, z, n, e, w_valle, stage, where)


def _monte(p, run, i, z, n, where):
    """Stress of the node, and the values of its own layer.

    A node on a boundary belongs to two layers in turn and the lower one wins;
    a coefficient that can't be worked out in the upper one is then of no account.
    """
    w = p.faldaMonte
    bottoms = list(p.profStrato)
    bottoms[n] = p.profStrato[n] + 100
    total = p.sovraccMonte
    failure = None
    for j in range(1, n + 1):
        t = bottoms[j - 1]
        b = bottoms[j]
        total += layer_weight(t, b, p.gammaN[j], p.gammaSat[j], w, z)
        if not t <= z <= b:
            continue
        failure = None
        try:
            _monte_own_layer(p, run, i, z, j, t, b, total, where)
        except Refusal as refusal:
            failure = refusal
    if failure:
        raise failure


def _monte_own_layer(p, run, i, z, j, t, b, total, where):
    beta = p.inclinazioneMonte * PI / 180
    w = p.faldaMonte
    if w > z:
        effective = total
    elif w < 0:
        effective = total - z * p.gammaAcqua
    else:
        effective = total - (z - w) * p.gammaAcqua
    run.sigmaEffM[i] = effective
    run.sigmaVm[i] = effective if p.modoTensioni == 1 else total
    phi = p.phiStrato[j] * PI / 180
    run.phiNodo[i] = phi
    run.cNodo[i] = p.coesione[j]
    run.k0m[i] = _ratio(1 - math.sin(phi), 1 + math.sin(beta), where)
    run.kam[i], run.kpm[i] = active_passive(p.metodoSpinte, phi, beta, where)
    if p.metodoKs == 1:
        g = p.gammaN[j] if w > z else p.gammaSat[j] - 1
        run.Ehm[i] = -bowles(p.coesione[j], g, effective, phi)
    elif p.metodoKs == 2:
        run.Ehm[i] = -p.coeffM * _root(run.k0m[i] * run.sigmaVm[i], where)
    elif p.metodoKs == 3:
        run.Ehm[i] = -p.ksStrato[j]
    elif p.metodoKs == 4:
        run.Ehm[i] = -linear_ks(p.ksStrato[j - 1], p.ksStrato[j], t, b, z, where)


def _valle(p, run, i, z, n, e, w, stage, where):
    phi = run.phiNodo[i]
    run.k0v[i] = -(1 - math.sin(phi))
    ka, kp = active_passive(p.metodoSpinte, phi, 0.0, where)
    run.kav[i] = -ka
    run.kpv[i] = -kp
    if p.modoSpinte == 2:
        run.sigmaVv[i] = run.sigmaVm[i]
    else:
        _valle_stress(p, run, i, z, n, e, w, stage)
    if p.modoKs == 2:
        run.Ehv[i] = run.Ehm[i]
        return
    winner = 0
    for j in range(1, n + 1):
        if z >= p.profStrato[j - 1]:
            winner = j
    j = winner
    if p.metodoKs == 1:
        g = p.gammaN[j] if w > z else p.gammaSat[j] - 1
        run.Ehv[i] = -bowles(p.coesione[j], g, run.sigmaEffV[i], phi)
    elif p.metodoKs == 2:
        run.Ehv[i] = -p.coeffM * _root(-run.k0v[i] * run.sigmaVv[i], where)
    elif p.metodoKs == 3:
        run.Ehv[i] = -p.ksStrato[j]
    elif p.metodoKs == 4:
        run.Ehv[i] = -linear_ks(p.ksStrato[j - 1], p.ksStrato[j],
                                p.profStrato[j - 1], p.profStrato[j], z, where)


def _valle_stress(p, run, i, z, n, e, w, stage):
    bottoms = list(p.profStrato)
    bottoms[n] = p.profStrato[n] + 100
    first = n + 1
    for j in range(1, n + 1):
        if bottoms[j] > e:
            first = j
            break
    if first <= n:
        bottoms[first - 1] = e
    total = p.sovraccFase[stage]
    for j in range(first, n + 1):
        t = bottoms[j - 1]
        b = bottoms[j]
        total += layer_weight(t, b, p.gammaN[j], p.gammaSat[j], w, z)
        if not t <= z <= b:
            continue
        if w > z:
            effective = total
        elif w < e:
            effective = total - (z - e) * p.gammaAcqua
        else:
            effective = total - (z - w) * p.gammaAcqua
        run.sigmaEffV[i] = effective
        run.sigmaVv[i] = effective if p.modoTensioni == 1 else total


def limit_pressures(p, run, i):
    """(Am, Pm, Av, Pv) of node i; cohesion enters for methods below 3 only."""
    am = run.sigmaVm[i] * run.kam[i]
    pm = run.sigmaVm[i] * run.kpm[i]
    av = run.sigmaVv[i] * run.kav[i]
    pv = run.sigmaVv[i] * run.kpv[i]
    if p.metodoSpinte < 3:
        c = run.cNodo[i]
        t1 = math.tan(QUARTER - run.phiNodo[i] / 2)
        t2 = math.tan(QUARTER + run.phiNodo[i] / 2)
        am = am - 2 * c * t1
        if am < 0:
            am = 0.0
        pm = pm + 2 * c * t2
        if run.kav[i] != 0 and run.kpv[i] != 0:
            av = av + 2 * c * t1
            if av > 0:
                av = 0.0
            pv = pv - 2 * c * t2
    return am, pm, av, pv
