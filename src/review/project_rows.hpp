#pragma once

#include "review/remark_row.hpp"

namespace korven::review {

// The remarks on what is typed: soil, ground, water, method, anchors, stages, file.
inline constexpr VoceOsservazione vociProgetto[] = {
    {"dati-mancanti", Peso::impedisce, "primo_calcolo", ""},
    {"segmenti-non-ammessi", Peso::impedisce, "sicurezza", ""},
    {"uscita-in-conflitto", Peso::impedisce, "salva", ""},
    {"suolo-non-calcolabile", Peso::impedisce, "stratigrafia", ""},
    {"valore-non-mostrabile", Peso::impedisce, "schede",
     "valore troppo grande per essere mostrato"},
    {"codice-non-previsto", Peso::pericolo, "parametri", ""},
    {"valore-negativo", Peso::daVedere, "schede", "valore negativo"},
    {"coesione-negativa", Peso::pericolo, "stratigrafia", "valore negativo"},
    {"rigidezza-negativa", Peso::pericolo, "tiranti", "valore negativo"},

    {"strato-in-disordine", Peso::pericolo, "stratigrafia",
     "finisce più in alto dello strato precedente"},
    {"strato-nullo", Peso::daVedere, "stratigrafia", "ha spessore nullo"},
    {"strato-profondo", Peso::daVedere, "stratigrafia",
     "supera i 200 m: controllare la profondità"},
    {"strato-prolungato", Peso::daVedere, "stratigrafia",
     "gli strati finiscono sopra il piede della paratia: l'ultimo viene prolungato"},
    {"terreno-finito", Peso::pericolo, "stratigrafia",
     "la paratia scende più di 100 m sotto l'ultimo strato: là sotto non ha terreno"},
    {"peso-mancante", Peso::pericolo, "stratigrafia", "peso di volume mancante"},
    {"peso-in-kilonewton", Peso::pericolo, "stratigrafia",
     "sembra un peso di volume in kN/m³: il file lo tiene in t/m³, dieci volte più piccolo"},
    {"peso-saturo-minore", Peso::pericolo, "stratigrafia",
     "il peso di volume saturo è minore di quello naturale"},
    {"strato-senza-resistenza", Peso::pericolo, "stratigrafia",
     "né attrito né coesione: il terreno spinge come un liquido e non resiste"},
    {"angolo-non-ammissibile", Peso::pericolo, "stratigrafia", "l'angolo non è ammissibile"},
    {"angolo-minore-del-pendio", Peso::pericolo, "stratigrafia",
     "l'angolo di attrito è minore dell'inclinazione del terreno"},
    {"angolo-insolito", Peso::daVedere, "stratigrafia",
     "supera %1°: pochi terreni ci arrivano, e un angolo troppo grande toglie spinta attiva e "
     "aggiunge resistenza davanti; controllare le prove"},
    {"coesione-insolita", Peso::daVedere, "stratigrafia",
     "supera %1 kN/m², troppo per quasi ogni terreno: se nel file è scritta in kPa, il file la "
     "tiene in t/m², dieci volte più piccola; giusta solo per roccia o argilla molto consistente"},
    {"polo-passivo", Peso::pericolo, "stratigrafia",
     "con l'inclinazione del terreno arriva a 90°: il coefficiente passivo di Coulomb non ha "
     "significato"},

    {"acqua-a-zero", Peso::pericolo, "fasi",
     "acqua fino alla testa della paratia da entrambi i lati, come risulta quando i livelli non "
     "sono scritti: scriverli; se non c'è falda, scrivere più di %1 m"},
    {"acqua-piu-alta-davanti", Peso::pericolo, "fasi",
     "l'acqua è più alta davanti che dietro e spinge la paratia verso il terreno: se non è voluto, "
     "correggere il livello di valle; se non c'è falda, scrivere più di %1 m"},
    {"acqua-sopra-lo-scavo", Peso::daVedere, "fasi",
     "l'acqua davanti sta sopra il fondo dello scavo e sostiene la paratia: vale solo se lo scavo "
     "resta pieno d'acqua, altrimenti scrivere almeno la profondità dello scavo"},

    {"tensioni-totali-con-attrito", Peso::pericolo, "non_drenato",
     "con attrito sotto l'acqua le tensioni totali contano l'acqua due volte, nel peso del terreno "
     "e come spinta: usare le tensioni efficaci, o Phi = 0 con la coesione non drenata"},
    {"su-non-usata", Peso::daVedere, "non_drenato",
     "nessun calcolo legge la resistenza non drenata, solo la stratigrafia la disegna: nei calcoli "
     "in tensioni totali scriverla come coesione"},
    {"coesione-con-bell", Peso::pericolo, "parametri",
     "con Bell la coesione non entra nelle spinte: usare Coulomb o Rankine"},
    {"pendio-con-bell", Peso::pericolo, "parametri",
     "con Bell la pendenza non entra nelle spinte attiva e passiva: usare Coulomb o Rankine"},
    {"k0-sotto-ka", Peso::daVedere, "spinte",
     "il coefficiente a riposo (%1) è minore di quello attivo (%2): coesione a parte, il terreno a "
     "monte è in stato attivo già senza spostamenti"},
    {"riposo-del-pendio", Peso::daVedere, "spinte",
     "con il terreno che sale il coefficiente a riposo è %1 (Kézdi), per EN 1997-1, 9.5.2, sarebbe "
     "%2: dove il terreno a monte è elastico pressioni, momenti e forze sono minori, dalla parte "
     "non sicura; confrontare con inclinazione nulla e il peso del terreno sopra la testa come "
     "sovraccarico a monte"},

    {"ks-mancante", Peso::pericolo, "ks_valori", "modulo ks mancante"},
    {"ks-negativo", Peso::pericolo, "ks_valori", "valore negativo"},
    {"terreno-senza-rigidezza", Peso::pericolo, "ks_valori", "il terreno non ha rigidezza"},
    {"modulo-negativo", Peso::pericolo, "ks_valori",
     "il terreno spinge invece di reagire, come accade con una tensione efficace negativa"},
    {"modulo-lineare-negativo", Peso::pericolo, "ks",
     "oltre l'ultimo strato la legge lineare di ks prosegue e scende sotto zero: da qui in giù il "
     "terreno spinge invece di reagire; portare l'ultimo strato fino al piede della paratia"},
    {"ks-ultimo-strato", Peso::daVedere, "ks",
     "a monte la legge lineare arriva a questo valore solo 100 m sotto il piede dell'ultimo "
     "strato: "
     "aggiungere un altro strato sotto il piede della paratia"},
    {"bowles-senza-tensione", Peso::daVedere, "ks",
     "ks secondo Bowles perde a valle il termine della tensione verticale: scegliere anche ks "
     "uguale al lato monte, o le spinte ricalcolate"},
    {"relazione-con-coulomb", Peso::pericolo, "parametri",
     "la relazione dirà Coulomb, il comando seguente ricalcola con Coulomb e il file si riapre con "
     "Coulomb: scegliere di nuovo il metodo prima di ogni comando"},
    {"valore-senza-effetto", Peso::daVedere, "parametri", "senza effetto: %1"},

    {"troppi-tiranti", Peso::impedisce, "fasi", "più tiranti di quanti ne tiene la tabella (20)"},
    {"tiranti-non-definiti", Peso::pericolo, "fasi",
     "più tiranti di quelli definiti: gli altri non agiscono, definirli nella tabella dei tiranti "
     "o correggere il numero"},
    {"tiranti-negativi", Peso::pericolo, "fasi", "valore negativo"},
    {"tiranti-non-interi", Peso::daVedere, "fasi", "il numero di tiranti non è intero"},
    {"tiranti-in-meno", Peso::daVedere, "fasi", "i tiranti sono meno che nella fase precedente"},
    {"tirante-sotto-il-piede", Peso::pericolo, "tiranti", "è più profondo della paratia"},
    {"tirante-sopra-la-testa", Peso::pericolo, "tiranti", "è sopra la testa della paratia"},
    {"tirante-in-disordine", Peso::daVedere, "tiranti", "è più in alto del precedente"},
    {"tirante-mai-in-opera", Peso::daVedere, "fasi", "nessuna fase lo mette in opera: non agisce"},
    {"tirante-sotto-lo-scavo", Peso::daVedere, "fasi",
     "sta sotto il fondo dello scavo della fase che lo mette in opera: controllare profondità e "
     "fase"},
    {"tirante-spostato", Peso::daVedere, "mesh",
     "agisce sul nodo più vicino, a %1 m: con più segmenti il nodo si avvicina"},
    {"tirante-sul-vincolo", Peso::daVedere, "tiranti",
     "sta sul nodo del vincolo: la sua rigidezza non conta"},
    {"tirante-inerte", Peso::pericolo, "tiranti",
     "senza rigidezza né pretensione il tirante non agisce"},
    {"tirante-mai-teso", Peso::pericolo, "tiranti",
     "senza rigidezza e con pretensione negativa un tirante a sola trazione non agisce mai"},
    {"tipo-tirante", Peso::pericolo, "tiranti",
     "tipo non previsto: il calcolo lo fa agire solo a trazione, la relazione lo dice a trazione e "
     "compressione"},

    {"scavo-sopra-la-testa", Peso::pericolo, "fasi", "lo scavo è sopra la testa della paratia"},
    {"scavo-che-risale", Peso::daVedere, "fasi",
     "lo scavo è meno profondo che nella fase precedente"},
    {"scavo-al-piede", Peso::pericolo, "fasi",
     "lo scavo raggiunge o supera il piede della paratia"},

    {"resto-della-riga", Peso::pericolo, "sicurezza",
     "il resto della riga non conta, il segno decimale è il punto"},
    {"metodo-riaperto", Peso::pericolo, "parametri",
     "un progetto si riapre sempre con il metodo di Coulomb (1)"},
    {"righe-in-piu", Peso::pericolo, "sicurezza",
     "il file continua dopo l'ultimo valore: i numeri di strati, tiranti e fasi potrebbero non "
     "essere quelli delle righe scritte"},
};

}  // namespace korven::review
