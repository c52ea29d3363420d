#!/usr/bin/python3
"""A study of a wall from Python, with a figure: how it moves as it gets longer, and what the soil's
scatter makes of it.

    /usr/bin/python3 study.py [-n 2000] [-o study.png]

It needs the module korven32 and, beside what that needs, python3-matplotlib.
"""

import argparse
from itertools import product

import matplotlib

matplotlib.use("Agg")  # a file, no window

import matplotlib.pyplot as plt
import numpy as np
import pandas as pd

import korven32

parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
parser.add_argument("-n", type=int, default=2000, help="samples of the soil")
parser.add_argument("-o", default="study.png", help="the figure")
options = parser.parse_args()

korven32.lingua("en")
wall = korven32.Progetto.esempio("diaframma_due_ordini")

# %% One wall: every stage, node by node.
result = korven32.equilibrio(wall)
print(f"{result}: M from {np.nanmin(result.momento_kNm):.0f} to {np.nanmax(result.momento_kNm):.0f} kNm/m")

# %% Length and friction angle of the first layer: a grid of both.
length, phi = wall["lunghezzaParatia"], wall["phiStrato[1]"]
lengths = np.round(np.linspace(0.8, 1.2, 21) * length, 2)
angles = [phi - 4, phi, phi + 4]
grid = pd.DataFrame(product(lengths, angles), columns=["lunghezzaParatia", "phiStrato[1]"])
curves = korven32.serie(wall, grid)

# %% Friction angle and subgrade modulus as they may be: normal and lognormal, not correlated.
random = np.random.default_rng(seed=1)
spread = np.sqrt(np.log(1 + 0.3**2))  # of the logarithm, for a coefficient of variation of 30 %
samples = pd.DataFrame({
    "phiStrato[1]": np.clip(random.normal(phi, 2, options.n), 20, 45),
    "ksStrato[1]": wall["ksStrato[1]"] * random.lognormal(-spread**2 / 2, spread, options.n),
})
sampled = korven32.serie(wall, samples)
standing = sampled[sampled["causa"] == "eseguito"]
print(f"{len(standing)} of {options.n} samples stand")

# %% The figure.
figure, (left, right) = plt.subplots(1, 2, figsize=(11, 4.5), layout="constrained")
for angle, one in curves.groupby("phiStrato[1]"):
    left.plot(one["lunghezzaParatia"], 1000 * one["spostamento_massimo_m"], label=f"φ₁ = {angle:g}°")
left.axvline(length, color="grey", linewidth=0.8, linestyle=":")
left.set(xlabel="length of the wall [m]", ylabel="largest displacement [mm]")
left.legend()
right.hist(1000 * standing["spostamento_massimo_m"], bins=40)
right.set(xlabel="largest displacement [mm]", ylabel=f"of {options.n} samples")
figure.savefig(options.o, dpi=150)
print(f"written: {options.o}")
