#pragma once

#include <string>
#include <vector>

#include "masks/mask.hpp"

namespace korven::test {

inline masks::CampoMaschera campoMaschera(const std::string& etichetta, const std::string& tipo,
                                          double minimo = 0, double massimo = 0,
                                          const std::string& aiuto = "") {
    masks::CampoMaschera campo;
    campo.etichetta = etichetta;
    campo.tipo = tipo;
    campo.minimo = minimo;
    campo.massimo = massimo;
    campo.aiuto = aiuto;
    return campo;
}

/// A form with two choices, of 2 and 3 items, a number from -5 to 10, a text of 4 characters and a
/// number picture with two decimals.
inline masks::Maschera mascheraCampi() {
    masks::Maschera maschera;
    maschera.titolo = "Prova";
    maschera.scelte = {{"libera", "cerniera"}, {"Coulomb", "Rankine", "Bell"}};
    maschera.campi = {campoMaschera("Vincolo", "0", 1, 2, "aiuto 0"),
                      campoMaschera("Metodo", "0", 1, 3, "aiuto 1"),
                      campoMaschera("Lunghezza [m]", "0", -5, 10, "aiuto 2"),
                      campoMaschera("Sigla", "4", 0, 0, "aiuto 3"),
                      campoMaschera("Peso", "##.##@", 0, 0, "aiuto 4")};
    maschera.riferimento = "6 EDITX";
    maschera.pulsanti = {"&Conferma", "&Annulla", "&Help"};
    return maschera;
}

/// A grid of four columns: number from 0 to 100, number, text of at most 5 characters, kind 0 or 1.
inline masks::Maschera mascheraGriglia(
    masks::GenereMaschera genere = masks::GenereMaschera::griglia) {
    masks::Maschera maschera;
    maschera.genere = genere;
    maschera.titolo = "Tabella";
    maschera.campi = {campoMaschera("N", "####", 1, 500),
                      campoMaschera("Prof. [m]", "######", 0, 100, "la profondità"),
                      campoMaschera("Peso", "####", -1000, 1000, "il peso"),
                      campoMaschera("Nome", "/2345", 0, 0, "il nome"),
                      campoMaschera("Tipo", "##", 0, 9, "il tipo$$$0=traz.,1=tutti")};
    maschera.pulsanti = {"&Conferma", "&Annulla", "&Inserisci riga", "&Elimina riga", "&Help"};
    return maschera;
}

}  // namespace korven::test
