"""Projects: files, fields, copies."""

import copy
import pickle

import pytest

import korven32
from conftest import ESEMPI, MURI


def test_a_file_that_is_read_and_written_has_the_same_bytes(tmp_path):
    for esempio in ESEMPI:
        korven32.Progetto.leggi(esempio).scrivi(tmp_path / esempio.name)
        assert (tmp_path / esempio.name).read_bytes() == esempio.read_bytes()


def test_fields_are_those_of_the_command_line(console_json):
    for esempio in ESEMPI:
        progetto = korven32.Progetto.leggi(esempio)
        detti = console_json("campi", esempio)["campi"]
        assert [vars(c) for c in progetto.campi()] == detti
        assert [progetto[d["campo"]] for d in detti] == [d["valore"] for d in detti]


def test_values_go_in_shown_units_and_by_name(tmp_path, console):
    progetto = korven32.Progetto.esempio("trincea_puntellata")
    progetto["phiStrato[1]"] = 31.5
    progetto["gammaN[1]"] = 18  # kN/m3, stored as 1.8 t/m3
    progetto["metodoKs"] = "bowles"
    progetto["descrStrato[1]"] = "SABBIA limosa"
    assert (progetto["phiStrato[1]"], progetto["gammaN[1]"]) == (31.5, 18)
    assert progetto["descrStrato[1]"] == "SABBIA limosa"
    progetto.scrivi(tmp_path / "suo.kvd")
    console("imposta", ESEMPI[-1], "--uscita", tmp_path / "altro.kvd", "phiStrato[1]=31.5",
            "gammaN[1]=18", "metodoKs=bowles", "descrStrato[1]=SABBIA limosa", codice=0)
    assert (tmp_path / "suo.kvd").read_bytes() == (tmp_path / "altro.kvd").read_bytes()


def test_several_fields_are_assigned_together_or_not_at_all():
    progetto = korven32.Progetto.esempio("trincea_puntellata")
    prima = progetto.copia()
    with pytest.raises(korven32.ErroreCampo) as errore:
        progetto.imposta({"lunghezzaParatia": 9, "phiStrato[1]": 99, "phi": 3})
    assert len(str(errore.value).splitlines()) == 2
    assert progetto == prima
    fasi = int(progetto["nFasi"])
    progetto.imposta({"nFasi": fasi + 1, f"profFase[{fasi + 1}]": progetto[f"profFase[{fasi}]"]})
    assert progetto["nFasi"] == fasi + 1
    assert progetto != prima


@pytest.mark.parametrize("nome,valore", [
    ("phi", 30), ("phiStrato", 30), ("phiStrato[77]", 30), ("phiStrato[1]", 77),
    ("phiStrato[1]", "trenta"), ("phiStrato[1]", "31,5"), ("phiStrato[1]", float("nan")),
    ("metodoKs", "nessuno"), ("metodoSpinte", "rankine"), ("nStrati", 1.5), ("profStrato[1]", 90),
])
def test_a_refused_field_is_told_in_the_words_of_the_command_line(nome, valore, tmp_path, console):
    esempio = MURI.parent.parent / "data/examples/trincea_puntellata.kvd"
    progetto = korven32.Progetto.leggi(esempio)
    with pytest.raises(korven32.ErroreCampo) as errore:
        progetto[nome] = valore
    corsa = console("imposta", esempio, "--uscita", tmp_path / "x.kvd", f"{nome}={valore}",
                    codice=3)
    assert str(errore.value).splitlines() == corsa.stderr.splitlines()


def test_a_name_that_is_none_can_not_be_read_either():
    progetto = korven32.Progetto.esempio("trincea_puntellata")
    with pytest.raises(korven32.ErroreCampo, match="lunghezzaParatia"):
        progetto["lunghezzaparatia"]
    with pytest.raises(korven32.Errore):
        progetto["phiStrato[77]"]


def test_a_broken_file_is_told_with_its_line(tmp_path, console):
    rotto = tmp_path / "rotto.kvd"
    rotto.write_bytes(b"2\r\ndue\r\n")
    with pytest.raises(korven32.ErroreFile) as errore:
        korven32.Progetto.leggi(rotto)
    assert "riga 2" in str(errore.value)
    assert str(errore.value) in console("equilibrio", rotto, codice=3).stderr
    with pytest.raises(korven32.ErroreFile, match="manca.kvd"):
        korven32.Progetto.leggi(tmp_path / "manca.kvd")
    with pytest.raises(korven32.ErroreFile):
        korven32.Progetto.esempio("trincea_puntellata").scrivi(tmp_path / "no" / "muro.kvd")


def test_copies_are_equal_and_apart():
    progetto = korven32.Progetto.esempio("diaframma_due_ordini")
    for altro in (progetto.copia(), copy.copy(progetto), copy.deepcopy(progetto),
                  pickle.loads(pickle.dumps(progetto))):
        assert altro == progetto
        altro["lunghezzaParatia"] = 25
        assert altro != progetto
    with pytest.raises(TypeError):
        hash(progetto)


def test_the_words_follow_the_language():
    progetto = korven32.Progetto.esempio("trincea_puntellata")
    assert korven32.lingua() == "ita"
    assert korven32.lingua("en") == "eng"
    with pytest.raises(korven32.ErroreCampo) as errore:
        progetto["phiStrato[1]"] = 77
    assert "60" in str(errore.value) and "ammessi" not in str(errore.value)
    with pytest.raises(korven32.ErroreCampo, match="ita, deu, fra, esp, eng, por"):
        korven32.lingua("xyz")
    assert korven32.lingua() == "eng"
