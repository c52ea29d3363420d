#pragma once

#include "review/remark_row.hpp"

namespace korven::review {

// The remarks on the stiffness, the structural section, headings and drawings.
inline constexpr VoceOsservazione vociSezione[] = {
    {"senza-rigidezza", Peso::impedisce, "parametri", ""},
    {"ej-negativa", Peso::pericolo, "parametri", "valore negativo"},
    {"ej-lontana", Peso::daVedere, "struttura", "è lontana da quella della sezione"},
    {"piu-tipi", Peso::pericolo, "struttura", "sezione: più tipi indicati insieme, vale il primo"},
    {"pali-senza-interno", Peso::daVedere, "struttura",
     "sezione di pali senza diametro interno: la relazione la mostra con resistenza nulla"},
    {"sezione-senza-tipo", Peso::daVedere, "struttura",
     "sezione senza un tipo: nessuna verifica strutturale e nessun ricalcolo di EJ"},
    {"sezione-incompleta", Peso::daVedere, "struttura",
     "sezione definita solo in parte: nessuna verifica strutturale e nessun ricalcolo di EJ"},
    {"faccia-non-armata", Peso::daVedere, "struttura", "la faccia conta come non armata"},
    {"senza-copriferro", Peso::daVedere, "struttura",
     "senza copriferro il calcolo conta le armature ma la relazione non le mostra"},
    {"ferri-a-meta", Peso::pericolo, "struttura",
     "l'asse delle armature arriva a metà della sezione o la supera"},
    {"staffe-incomplete", Peso::daVedere, "struttura",
     "senza l'uno o l'altro non c'è verifica a taglio"},
    {"diametri-invertiti", Peso::pericolo, "struttura", "non è minore del diametro esterno"},
    {"troppi-ferri", Peso::impedisce, "struttura", ""},
    {"ferri-meno-di-uno", Peso::pericolo, "struttura",
     "numero di ferri memorizzato minore di 1: i pali contano come non armati (scheda e relazione "
     "mostrano dieci volte il numero usato nel calcolo)"},
    {"ferri-da-relazione", Peso::pericolo, "struttura",
     "numero di ferri memorizzato di 100 o più: sembra quello della relazione, che mostra dieci "
     "volte il numero usato nel calcolo"},
    {"ferri-non-interi", Peso::pericolo, "struttura",
     "numero di ferri memorizzato non intero (scheda e relazione mostrano dieci volte il numero "
     "usato nel calcolo)"},
    {"ferri-troppo-pochi", Peso::pericolo, "struttura",
     "numero di ferri: scheda e relazione ne mostrano %1, il calcolo ne conta %2, troppo pochi per "
     "un palo: scrivere nella scheda dieci volte il numero dei ferri"},
    {"ferri-scritti-e-calcolati", Peso::daVedere, "struttura",
     "numero di ferri: scheda e relazione ne mostrano %1, il calcolo ne conta %2"},
    {"fck-insolita", Peso::pericolo, "struttura",
     "di solito da %1 a %2: controllare l'unità di misura"},
    {"fyk-insolita", Peso::pericolo, "struttura",
     "di solito da %1 a %2: controllare l'unità di misura"},
    {"modulo-acciaio", Peso::pericolo, "struttura",
     "di solito da %1 a %2: controllare l'unità di misura"},
    {"modulo-calcestruzzo", Peso::daVedere, "struttura",
     "è lontano da quello del calcestruzzo (circa %1): controllare, se non è ridotto apposta"},
    {"misura-non-costruibile", Peso::pericolo, "struttura",
     "non si costruisce (da %1 a %2 mm): la scheda è in mm, il file in cm"},
    {"ferri-fitti", Peso::pericolo, "struttura",
     "tra un ferro e l'altro restano %1 mm, meno di %2: non si possono posare"},
    {"pali-sovrapposti", Peso::pericolo, "struttura",
     "è minore del diametro (%1 mm): i pali si sovrappongono e le loro aree contano due volte"},
    {"sforzo-oltre-la-sezione", Peso::pericolo, "flessione",
     "di progetto %1 kN/m, la sezione ne porta %2: la resistenza a flessione è nulla"},
    {"sezione-senza-resistenza", Peso::pericolo, "flessione",
     "la sezione non ha resistenza a flessione: controllare misure, armature e materiali"},
    {"taglio-al-piede", Peso::daVedere, "sicurezza",
     "la verifica a taglio conta anche il valore al piede incastrato, che non è un taglio della "
     "paratia e cresce con il numero di segmenti"},
    {"taglio-in-testa", Peso::daVedere, "sicurezza",
     "la verifica a taglio conta anche il valore in testa, che è il doppio della forza e non è il "
     "taglio della paratia"},

    {"titolo-comando", Peso::daVedere, "titoli",
     "comincia con #: la relazione la prende per un comando, non la stampa e può finire lì; farla "
     "cominciare con un altro segno"},
    {"titolo-largo", Peso::daVedere, "titoli",
     "nei disegni esce dal foglio: numero di caratteri che ci stanno"},
    {"titoli-sovrapposti", Peso::daVedere, "titoli",
     "nella stratigrafia si sovrappone alla riga vicina: lasciare una riga vuota tra due titoli"},
    {"descrizione-lunga", Peso::daVedere, "stratigrafia",
     "nella stratigrafia la descrizione entra nella testata della tabella: abbreviare le "
     "descrizioni, la più lunga è quella dello strato"},
    {"descrizione-senza-posto", Peso::daVedere, "stratigrafia", ""},
};

}  // namespace korven::review
