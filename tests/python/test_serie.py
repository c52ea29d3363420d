"""Studies: tables of pandas in and out, beside the file of the command line."""

import signal
import subprocess
import sys
import time
from concurrent.futures import ThreadPoolExecutor

import numpy as np
import pandas as pd
import pytest

import korven32
from conftest import RADICE

DUE_ORDINI = RADICE / "data/examples/diaframma_due_ordini.kvd"


@pytest.fixture
def muro():
    return korven32.Progetto.leggi(DUE_ORDINI)


def caso(righe, seme=1):
    """Variants of all kinds: walls that stand, that fall, that a run refuses."""
    rng = np.random.default_rng(seme)
    return pd.DataFrame({
        "lunghezzaParatia": rng.uniform(6, 20, righe),
        "phiStrato[1]": rng.normal(30, 4, righe).clip(15, 45),
        "pretTirante[1]": rng.uniform(0, 300, righe).round(1),
        "profTirante[1]": rng.uniform(0.5, 9, righe).round(2),
        "vincoloPiede": rng.integers(1, 4, righe),
    })


def del_comando(console, tmp_path, piano, *opzioni):
    piano.to_csv(tmp_path / "piano.csv", index=False)
    console("serie", DUE_ORDINI, "--piano", tmp_path / "piano.csv", "--uscita",
            tmp_path / "righe.csv", "--silenzioso", *opzioni, codice=0)
    righe = pd.read_csv(tmp_path / "righe.csv", float_precision="round_trip")
    assert list(righe.pop("variante")) == list(range(1, len(piano) + 1))
    return righe.rename(columns=lambda nome: nome.split(" [")[0])


@pytest.mark.parametrize("argomenti,opzioni", [
    ({}, []),
    ({"sicurezza": True}, ["--sicurezza"]),
    ({"colonne": ["tiro_2_kN", "momento_massimo_kNm"]},
     ["--colonne", "tiro_2_kN,momento_massimo_kNm"]),
    ({"nseg": 20, "metodo": "rankine"}, ["--nseg", "20", "--metodo-spinte", "rankine"]),
    ({"soluzione": "iterazione"}, ["--soluzione", "iterazione"]),
])
def test_rows_are_those_of_the_command_line(argomenti, opzioni, muro, console, tmp_path):
    piano = caso(60)
    mie = korven32.serie(muro, piano, **argomenti)
    sue = del_comando(console, tmp_path, piano, *opzioni)
    pd.testing.assert_frame_equal(mie, sue, check_exact=True, check_dtype=False)


def test_some_variants_stand_some_fall_and_some_are_refused(muro):
    """That all of them have been seen above."""
    cause = set(korven32.serie(muro, caso(60))["causa"])
    assert cause >= {"eseguito", "meccanismo", "rifiutato"}


def test_what_makes_a_variant_fail_is_a_column_of_its_own(muro):
    piano = caso(60)
    righe = korven32.serie(muro, piano, colonne=["momento_massimo_kNm"],
                           fallisce=["spostamento_massimo_m>0.02", "riduzione < 1.1"])
    cade = righe["causa"] != "eseguito"
    spostata = righe["spostamento_massimo_m"] > 0.02
    pareti = righe["causa"] != "rifiutato"
    attese = cade | spostata | (righe["riduzione"] < 1.1)
    assert list(righe["fallita"][pareti]) == list(attese[pareti])
    assert (spostata & ~cade).any() and not righe["fallita"].all()
    assert "fallita" not in korven32.serie(muro, piano)
    with pytest.raises(korven32.ErroreCampo, match="causa: è una parola, non un numero"):
        korven32.serie(muro, piano, fallisce=["causa>1"])


def test_a_refused_variant_neither_stands_nor_fails(muro):
    """Its data are no wall: it has no part in the share of those that fail."""
    righe = korven32.serie(muro, caso(60), fallisce=["spostamento_massimo_m>0.02"])
    rifiutate = righe["causa"] == "rifiutato"
    assert 0 < rifiutate.sum() < 60
    assert list(righe["fallita"].isna()) == list(rifiutate)
    pareti = righe[~rifiutate]
    assert righe["fallita"].mean() == pareti["fallita"].sum() / len(pareti)
    assert len(righe[righe["fallita"]]) == pareti["fallita"].sum()


def test_a_row_is_the_equilibrium_of_its_project(muro):
    piano = caso(40, seme=2)
    righe = korven32.serie(muro, piano)
    stanno = 0
    for i, variante in piano.iterrows():
        suo = muro.copia()
        try:
            suo.imposta(variante.to_dict())
        except korven32.ErroreCampo:
            assert righe.loc[i, "causa"] == "rifiutato"
            continue
        esito = korven32.equilibrio(suo)
        assert righe.loc[i, "causa"] == esito.causa
        if esito.sta:
            stanno += 1
            assert righe.loc[i, "momento_massimo_kNm"] == max(esito.momento_massimo_kNm.max(), 0)
            assert righe.loc[i, "spostamento_massimo_m"] == esito.spostamento_massimo_m.max()
    assert stanno > 5


def test_the_index_stays_and_parts_are_rows_of_the_whole(muro):
    piano = caso(50)
    piano.index = [f"v{i}" for i in range(50)]
    intera = korven32.serie(muro, piano, fili=2)
    assert list(intera.index) == list(piano.index)
    pezzi = [korven32.serie(muro, piano.iloc[da:da + 7], fili=1) for da in range(0, 50, 7)]
    pd.testing.assert_frame_equal(pd.concat(pezzi), intera, check_exact=True)
    with ThreadPoolExecutor(4) as fili:
        insieme = list(fili.map(lambda da: korven32.serie(muro, piano.iloc[da:da + 7], fili=1),
                                range(0, 50, 7)))
    pd.testing.assert_frame_equal(pd.concat(insieme), intera, check_exact=True)


@pytest.mark.parametrize("colonna,valore", [
    ("phi", 30.0), ("phiStrato[77]", 30.0), ("phiStrato[1]", 99.0), ("phiStrato[1]", np.nan),
    ("phiStrato[1]", "trenta"), ("descrStrato[1]", "sabbia")])
def test_a_faulty_table_is_told_in_the_words_of_the_command_line(colonna, valore, muro, console,
                                                                 tmp_path):
    piano = pd.DataFrame({"lunghezzaParatia": [12.0, 13.0], colonna: [30.0, valore]})
    with pytest.raises(korven32.ErroreCampo) as errore:
        korven32.serie(muro, piano)
    piano.to_csv(tmp_path / "piano.csv", index=False, na_rep="nan")
    corsa = console("serie", DUE_ORDINI, "--piano", tmp_path / "piano.csv", "--uscita",
                    tmp_path / "righe.csv", codice=3)
    for riga in str(errore.value).splitlines():
        assert riga in corsa.stderr


def test_arguments_out_of_their_range_are_refused(muro):
    piano = pd.DataFrame({"lunghezzaParatia": [12.0]})
    with pytest.raises(korven32.ErroreCampo, match="momento_massimo_kNm"):
        korven32.serie(muro, piano, colonne=["momento"])
    with pytest.raises(korven32.ErroreCampo, match="3 a 249"):
        korven32.serie(muro, piano, nseg=2)
    with pytest.raises(ValueError, match="iterazione"):
        korven32.serie(muro, piano, soluzione="boh")


def test_an_interrupt_ends_a_study_at_once():
    """In a process of its own, which gets the signal."""
    programma = f"""
import pandas as pd, numpy as np, korven32
muro = korven32.Progetto.leggi({str(DUE_ORDINI)!r})
piano = pd.DataFrame({{"lunghezzaParatia": np.linspace(10, 20, 2_000_000)}})
print("via", flush=True)
try:
    korven32.serie(muro, piano)
except KeyboardInterrupt:
    print("interrotta", flush=True)
"""
    # Whoever starts the tests in the background of a shell has interrupts ignored, for all below it.
    corsa = subprocess.Popen([sys.executable, "-c", programma], stdout=subprocess.PIPE, text=True,
                             preexec_fn=lambda: signal.signal(signal.SIGINT, signal.SIG_DFL))
    assert corsa.stdout.readline() == "via\n"
    time.sleep(4)  # the table becomes a plan, and the study begins
    assert corsa.poll() is None
    prima = time.monotonic()
    corsa.send_signal(signal.SIGINT)
    assert corsa.communicate(timeout=60)[0] == "interrotta\n"
    assert time.monotonic() - prima < 10


def test_the_example_makes_its_figure(tmp_path):
    figura = tmp_path / "studio.png"
    corsa = subprocess.run([sys.executable, RADICE / "docs/examples/study.py", "-n", "50", "-o",
                            figura], capture_output=True, text=True, check=False)
    assert corsa.returncode == 0, corsa.stderr
    assert "of 50 samples stand" in corsa.stdout
    assert figura.read_bytes().startswith(b"\x89PNG") and figura.stat().st_size > 20_000
