"""What is computed of one wall, beside what the command line tells of the same file."""

from concurrent.futures import ThreadPoolExecutor
from dataclasses import fields

import numpy as np
import pytest

import korven32
from conftest import ESEMPI, MURI

TUTTI = ESEMPI + sorted(MURI.glob("*.kvd"))
PER_NODO = ["spostamento_m", "momento_kNm", "taglio_kN", "taglio_sopra_kN", "taglio_sotto_kN",
            "pressione_monte_kPa", "pressione_valle_kPa", "acqua_kPa", "stato_monte", "stato_valle"]
PER_FASE = ["fase", "scavo_m", "passi", "spostamento_massimo_m", "momento_massimo_kNm",
            "momento_minimo_kNm", "taglio_massimo_kN"]


def o_nan(valore):
    return np.nan if valore is None else valore


@pytest.mark.parametrize("file", TUTTI, ids=lambda f: f.stem)
def test_the_equilibrium_has_the_digits_of_the_command_line(file, console_json):
    risposta = console_json("equilibrio", file)
    progetto = korven32.Progetto.leggi(file)
    if risposta["equilibrio"] is None:
        with pytest.raises(korven32.ErroreCalcolo) as errore:
            korven32.equilibrio(progetto)
        assert str(errore.value) in risposta["messaggi"]
        return
    esito = korven32.equilibrio(progetto)
    fasi = risposta["equilibrio"]["fasi"]
    assert esito.segmenti == risposta["equilibrio"]["segmenti"]
    assert esito.causa == risposta["causa"]
    assert esito.sta == (risposta["codice"] == 0)
    assert (esito.spiegazione or None) == risposta["spiegazione"]
    assert esito.esito == [f["esito"] for f in fasi]
    assert [s or None for s in esito.spiegazioni] == [f["spiegazione"] for f in fasi]
    for nome in PER_FASE:
        np.testing.assert_array_equal(getattr(esito, nome), [o_nan(f[nome]) for f in fasi])
    assert esito.tiri_kN.shape == (progetto["nTiranti"], len(fasi))
    for k, fase in enumerate(fasi):
        in_opera = len(fase["tiri_kN"])
        np.testing.assert_array_equal(esito.tiri_kN[:in_opera, k], fase["tiri_kN"])
        assert np.isnan(esito.tiri_kN[in_opera:, k]).all()
        for nome in PER_NODO:
            tabella = getattr(esito, nome)
            assert tabella.shape == (esito.segmenti + 1, len(fasi))
            if fase["nodi"] is None:
                assert (tabella[:, k] == "").all() if nome.startswith("stato") \
                    else np.isnan(tabella[:, k]).all()
                continue
            np.testing.assert_array_equal(tabella[:, k], fase["nodi"][nome])
            np.testing.assert_array_equal(esito.z_m, fase["nodi"]["z_m"])
        assert np.isnan(esito.costante_kPa[k]) == (fase["nodi"] is None)


def test_some_walls_stand_and_some_do_not():
    """That both sides of the test above have been seen."""
    cause = {korven32.equilibrio(korven32.Progetto.leggi(f)).causa
             for f in ESEMPI + [MURI / "meccanismo.kvd"]}
    assert cause == {"eseguito", "meccanismo"}


def test_a_stage_that_falls_has_no_numbers_but_words():
    esito = korven32.equilibrio(korven32.Progetto.leggi(MURI / "meccanismo.kvd"))
    caduta = esito.esito.index("meccanismo")
    assert np.isnan(esito.momento_kNm[:, caduta]).all()
    assert esito.spiegazioni[caduta] == esito.spiegazione != ""
    assert "meccanismo" in repr(esito)


@pytest.mark.parametrize("argomenti,opzioni", [
    ({"nseg": 20}, ["--nseg", "20"]), ({"metodo": "rankine"}, ["--metodo-spinte", "rankine"])])
def test_mesh_and_method_are_those_of_the_command_line(argomenti, opzioni, console_json):
    file = ESEMPI[-1]
    fasi = console_json("equilibrio", file, *opzioni)["equilibrio"]["fasi"]
    esito = korven32.equilibrio(korven32.Progetto.leggi(file), **argomenti)
    np.testing.assert_array_equal(esito.momento_kNm.T, [f["nodi"]["momento_kNm"] for f in fasi])


@pytest.mark.parametrize("argomenti,parole", [
    ({"nseg": 2}, "3 a 249"), ({"nseg": 250}, "3 a 249"), ({"metodo": "boh"}, "rankine")])
def test_an_argument_out_of_its_range_is_refused(argomenti, parole):
    progetto = korven32.Progetto.leggi(ESEMPI[-1])
    for calcolo in (korven32.equilibrio, korven32.sicurezza, korven32.osservazioni):
        with pytest.raises(korven32.ErroreCampo, match=parole):
            calcolo(progetto, **argomenti)


@pytest.mark.parametrize("file", TUTTI, ids=lambda f: f.stem)
def test_the_margin_is_that_of_the_command_line(file, console_json):
    risposta = console_json("sicurezza", file)
    progetto = korven32.Progetto.leggi(file)
    if risposta["sicurezza"] is None:
        with pytest.raises(korven32.ErroreCalcolo) as errore:
            korven32.sicurezza(progetto)
        assert str(errore.value) in risposta["messaggi"]
        return
    esito = korven32.sicurezza(progetto)
    assert esito.pop("causa") == risposta["causa"]
    assert (esito.pop("spiegazione") or None) == risposta["spiegazione"]
    assert esito == risposta["sicurezza"]


# What the run of the report comes to, which `verifica` tries too.
DELLA_CORSA = {"fase-singolare", "fase-senza-riposo"}


@pytest.mark.parametrize("file", TUTTI, ids=lambda f: f.stem)
def test_the_remarks_are_those_of_the_command_line(file, console_json):
    dette = console_json("verifica", "--calcola", file)["osservazioni"]
    trovate = korven32.osservazioni(korven32.Progetto.leggi(file))
    assert [vars(o) for o in trovate] == [o for o in dette if o["codice"] not in DELLA_CORSA]


def test_a_wall_without_stages_is_refused(tmp_path, console):
    progetto = korven32.Progetto.leggi(ESEMPI[-1])
    progetto["nFasi"] = 0
    progetto.scrivi(tmp_path / "senza.kvd")
    detto = console("equilibrio", tmp_path / "senza.kvd", codice=1).stderr
    for calcolo in (korven32.equilibrio, korven32.sicurezza):
        with pytest.raises(korven32.ErroreCalcolo) as errore:
            calcolo(progetto)
        assert str(errore.value) in detto
    assert any(o.peso == "impedisce" for o in korven32.osservazioni(progetto))


def test_threads_compute_what_one_after_the_other_computes():
    progetti = [korven32.Progetto.leggi(f) for f in ESEMPI]
    uno_per_uno = [(korven32.equilibrio(p), korven32.sicurezza(p), korven32.osservazioni(p))
                   for p in progetti]
    with ThreadPoolExecutor(4) as fili:
        equilibri = list(fili.map(korven32.equilibrio, progetti * 8))
        margini = list(fili.map(korven32.sicurezza, progetti))
        rilievi = list(fili.map(korven32.osservazioni, progetti))
    for i, esito in enumerate(equilibri):
        atteso = uno_per_uno[i % len(progetti)][0]
        for campo in fields(esito):
            np.testing.assert_array_equal(getattr(esito, campo.name), getattr(atteso, campo.name))
    assert margini == [m for _, m, _ in uno_per_uno]
    assert rilievi == [r for _, _, r in uno_per_uno]


def test_other_threads_go_on_while_one_computes():
    """A calculation that held the interpreter's lock would let the counter stand still."""
    import threading

    progetto = korven32.Progetto.esempio("paratia_lunga_incastro")
    fine = threading.Event()
    contati = 0

    def conta():
        nonlocal contati
        while not fine.wait(0.0005):
            contati += 1

    filo = threading.Thread(target=conta)
    filo.start()
    prima = contati
    for _ in range(5):
        korven32.sicurezza(progetto, nseg=200)
    fine.set()
    filo.join()
    assert contati > prima + 5
