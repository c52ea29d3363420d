"""Pressures, water and anchors by hand: vertical stress, at-rest line, limits, forces of anchors. kN, m."""

import numpy as np

rad = np.pi / 180


def k0(phi):
    return 1 - np.sin(phi * rad)


def ka(phi):
    return np.tan((45 - phi / 2) * rad) ** 2


def kp(phi):
    return np.tan((45 + phi / 2) * rad) ** 2


def values():
    out = {}

    def told(case, text, value):
        out[case, text] = value

    # Two layers, 0-4: 18/20, phi 30; below: 19/21, phi 35; water at 3 m on both sides; q 15 on both.
    stress = {2: 15 + 36, 4: 15 + 54 + 10, 8: 15 + 54 + 10 + 44}
    for z, s in stress.items():
        told("spinta_riposo", f"sigma_monte z {z}", s)
        told("spinta_riposo", f"pressione_monte z {z}", s * k0(30 if z < 4 else 35))
        told("spinta_riposo", f"pressione_valle z {z}", -s * k0(30 if z < 4 else 35))
    # Ground at its limits: c 12, phi 25, gamma 18; a crack down to 2 c / (gamma sqrt ka) = 2.09 m.
    for z in (1, 3, 5):
        told("spinte_limite", f"pressione_monte fase 1 z {z}", max(0, 18 * z * ka(25) - 24 * np.sqrt(ka(25))))
        told("spinte_limite", f"pressione_valle fase 1 z {z}", -(18 * z * kp(25) + 24 * np.sqrt(kp(25))))
        told("spinte_limite_ritorno", f"pressione_monte fase 1 z {z}", 18 * z * kp(25) + 24 * np.sqrt(kp(25)))
        told("spinte_limite_ritorno", f"pressione_valle fase 1 z {z}",
             -max(0, 18 * z * ka(25) - 24 * np.sqrt(ka(25))))
    told("bell_senza_coesione", "pressione_monte z 3", 54 * ka(25))
    told("bell_senza_coesione", "pressione_valle z 3", -54 * kp(25))
    told("bell_con_coesione", "pressione_monte z 3", 54 * ka(25) - 24 * np.sqrt(ka(25)))
    # Total stresses: saturated weight, water beside it.
    told("tensioni_totali", "sigma_monte z 6", 36 + 80)
    told("tensioni_totali", "pressione_monte z 6", (36 + 80) * 1 - 2 * 40)
    told("tensioni_efficaci", "sigma_monte z 6", 36 + 40)
    # modoSpinte 2: the excavated side with the stress of the retained one.
    told("valle_come_monte", "sigma_valle z 6", 18 * 6)
    told("valle_ricalcolata", "sigma_valle z 6", 18 * 2)
    # Excavated to 4 with 20 on the floor, water inside at 5.
    told("scavo_sovraccarico", "sigma_valle z 7", 20 + 18 * 1 + 10 * 2)
    told("scavo_sovraccarico", "sigma_valle z 4.5", 20 + 9)
    told("scavo_sovraccarico", "acqua z 4.5", 10 * 2.5)
    told("scavo_sovraccarico", "acqua z 7", 10 * (5 - 2))
    told("acqua_sopra_terreno", "acqua z 0", 10)
    told("acqua_sopra_terreno", "acqua z 2", 30)
    told("acqua_sopra_terreno", "acqua z 6", 70 - 20)
    told("acqua_sopra_terreno", "sigma_monte z 6", 6 * 10)
    # Rigid wall pushed by 20 kN/m2 on springs of 1000 a side: y = 10 mm.
    told("molla_elastica", "spostamento z 4", 10)
    told("molla_elastica", "pressione_monte z 4", 0.5 * 18 * 4 - 1000 * 0.010 + 0.5 * 100)
    told("molla_elastica", "pressione_valle z 4", -(0.5 * 18 * 4 + 1000 * 0.010 + 0.5 * 100))
    # The same, then an anchor of 4000 kN/m with 50 kN in the middle.
    L, k, p, ks, P = 10, 2000, 20, 4000, 50
    y1 = p / k
    y2 = (p * L - P + ks * y1) / (k * L + ks)
    told("tirante_posato_dopo", "spostamento fase 1 z 5", 1000 * y1)
    told("tirante_posato_dopo", "spostamento fase 2 z 5", 1000 * y2)
    told("tirante_posato_dopo", "tiro fase 2 tirante 1", P + ks * (y2 - y1))
    y = p * L / (k * L + ks)
    told("tirante_prima_fase", "spostamento z 5", 1000 * y)
    told("tirante_prima_fase", "tiro tirante 1", ks * y)
    # Pushed back: an anchor that only pulls lets go, one of both ways is compressed.
    told("tirante_solo_trazione", "spostamento z 5", -1000 * p / k)
    told("tirante_solo_trazione", "tiro tirante 1", 0)
    told("puntone_due_versi", "spostamento z 5", -1000 * y)
    told("puntone_due_versi", "tiro tirante 1", -ks * y)

    # What others compute: seepage around the toe. Head 6 m, path down 10 - 2, up 10 - 8 (a straight loss).
    down, up = 8.0, 2.0
    i = 6 / (down + up)
    told("filtrazione", "acqua z 8", (10 * (8 - 2) * (1 - i)) - 0)
    told("filtrazione", "acqua z 10", 0)
    return out


if __name__ == "__main__":
    for (case, text), value in values().items():
        print(f"{case:32} {text:34} {value:.7g}")
