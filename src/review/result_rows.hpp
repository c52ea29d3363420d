#pragma once

#include "review/remark_row.hpp"

namespace korven::review {

// The remarks on what the stages come to.
inline constexpr VoceOsservazione vociRisultati[] = {
    {"fase-singolare", Peso::impedisce, "sicurezza", ""},
    {"fase-senza-riposo", Peso::impedisce, "sicurezza", ""},
    {"risultato-non-mostrabile", Peso::impedisce, "sicurezza", ""},

    // A run that ends so leaves no result file, though nothing is wrong with the wall.
    {"iterazione-che-oscilla", Peso::impedisce, "osservazioni_risultati", ""},
    {"meccanismo", Peso::impedisce, "osservazioni_risultati", ""},
    {"equilibrio-non-definito", Peso::pericolo, "osservazioni_risultati", ""},
    {"nessun-numero", Peso::pericolo, "osservazioni_risultati", ""},

    {"riduzione-bassa", Peso::daVedere, "margine",
     "riduzione della resistenza F = %1, sotto %2; con F maggiore: %3; %4"},
    {"riduzione-insufficiente", Peso::pericolo, "margine",
     "riduzione della resistenza F = %1, sotto %2; con F maggiore: %3; %4"},
    {"passiva-molto-usata", Peso::daVedere, "margine",
     "resistenza passiva mobilitata davanti alla paratia: %1 %, limite %2 %%3: controllare "
     "l'infissione"},
    {"passiva-esaurita", Peso::pericolo, "margine",
     "resistenza passiva mobilitata davanti alla paratia: %1 %, limite %2 %%3: allungare la "
     "paratia o ridurre scavo e carichi"},
    {"spostamento-grande", Peso::daVedere, "osservazioni_risultati",
     "spostamento massimo %1 mm a %2 m di profondità, 1/%3 dello scavo, più di 1/%4: controllare "
     "che cosa sta vicino alla paratia"},
    {"spostamento-eccessivo", Peso::pericolo, "osservazioni_risultati",
     "spostamento massimo %1 mm a %2 m di profondità, 1/%3 dello scavo, più di 1/%4: controllare "
     "rigidezza, tiranti, infissione e valori di ks"},
    {"piede-verso-lo-scavo", Peso::daVedere, "osservazioni_risultati",
     "il piede si sposta di %1 mm verso lo scavo, il %2 % dello spostamento massimo: il terreno "
     "davanti lo trattiene poco, controllare l'infissione"},

    {"flessione-non-verificata", Peso::pericolo, "flessione",
     "%1 di progetto %2 kN m/m (fase %3, a %4 m), resistenza %5 kN m/m%6: %7, o ridurre il momento "
     "con tiranti, scavo e carichi"},
    {"flessione-con-sforzo-favorevole", Peso::pericolo, "flessione",
     "%1 di progetto %2 kN m/m (fase %3, a %4 m), verificato soltanto con lo sforzo normale "
     "moltiplicato per %5; non moltiplicato, o senza, la resistenza è %6 kN m/m%7: contare solo "
     "lo sforzo che c'è sempre, e %8, o ridurre il momento con tiranti, scavo e carichi"},
    {"taglio-non-verificato", Peso::pericolo, "taglio_verifica",
     "taglio di progetto %1 kN/m (fase %2, a %3 m), %4 %5 kN/m%6: %7, o ridurre il taglio con "
     "tiranti, scavo e carichi"},

    {"verifica-fallita-in-equilibrio", Peso::pericolo, "osservazioni_risultati",
     "%1: con i numeri dell'equilibrio lo sfruttamento è %2 %%3: la sezione non è verificata, "
     "rinforzarla o ridurre le azioni"},
    // Of a mesh that is too coarse for its verdict: worded with the margin.
    {"verdetto-con-la-maglia", Peso::pericolo, "osservazioni_risultati", ""},

    {"tiro-impreciso", Peso::daVedere, "osservazioni_risultati",
     "la relazione dà il tiro %1 kN/m, quello vero è %2 kN/m (fase %3): lo calcola da spostamenti "
     "con sette decimali, che bastano fino a una rigidezza di circa %4 kN/m"},
    {"tiro-sbagliato", Peso::pericolo, "osservazioni_risultati",
     "la relazione dà il tiro %1 kN/m, quello vero è %2 kN/m (fase %3): lo calcola da spostamenti "
     "con sette decimali, che bastano fino a una rigidezza di circa %4 kN/m; usare il tiro vero "
     "o "
     "una rigidezza minore"},
    {"tiro-diverso", Peso::daVedere, "osservazioni_risultati",
     "la relazione dà il tiro %1 kN/m, il più grande delle fasi è %2 kN/m (fase %3): usare questo"},
    {"tiro-di-segno-opposto", Peso::daVedere, "osservazioni_risultati",
     "nella fase %1 il tiro cambia segno, %2 kN/m, e la relazione non lo dice, dà %3 kN/m: "
     "verificare l'elemento nei due sensi o indicarlo solo a trazione"},
    {"puntone-scaricato", Peso::daVedere, "osservazioni_risultati",
     "la relazione dà la pretensione, %1 kN/m, ma in nessuna fase il tiro supera %2 kN/m (fase "
     "%3): la paratia torna verso monte e lo scarica"},
    {"tirante-lento-nel-taglio", Peso::daVedere, "osservazioni_risultati",
     "è lento nella fase %1, ma %3 conta un tiro di %2 kN/m: usare il taglio dell'equilibrio"},

    {"momento-minore-della-statica", Peso::pericolo, "osservazioni_risultati",
     "momento massimo della relazione %1 kN m/m (fase %2, a %3 m), dell'equilibrio %4 kN m/m (fase "
     "%5, a %6 m)%7: verificare la sezione con il secondo"},
    {"momento-maggiore-della-statica", Peso::daVedere, "osservazioni_risultati",
     "momento massimo della relazione %1 kN m/m (fase %2, a %3 m), dell'equilibrio %4 kN m/m (fase "
     "%5, a %6 m)%7: il primo non è della paratia"},
    {"taglio-minore-della-statica", Peso::pericolo, "osservazioni_risultati",
     "taglio massimo del diagramma %1 kN/m (fase %2, a %3 m), dell'equilibrio %4 kN/m (fase %5, a "
     "%6 m)%7: verificare la sezione con il secondo"},
    {"taglio-maggiore-della-statica", Peso::daVedere, "osservazioni_risultati",
     "taglio massimo del diagramma %1 kN/m (fase %2, a %3 m), dell'equilibrio %4 kN/m (fase %5, a "
     "%6 m)%7: il primo non è della paratia"},
    {"taglio-di-altra-fase", Peso::pericolo, "osservazioni_risultati",
     "la verifica a taglio conta soltanto l'ultima fase, %1 kN/m, ma qui il taglio arriva a %2 "
     "kN/m, a %3 m: verificare anche questo"},
    {"valori-al-piede-incastrato", Peso::daVedere, "osservazioni_risultati",
     "nella fase %1 la relazione dà al piede momento %2 kN m/m e taglio %3 kN/m, l'equilibrio %4 "
     "kN m/m e %5 kN/m: usare questi"},
    {"incastro-cedevole", Peso::daVedere, "osservazioni_risultati",
     "l'incastro ruota del %1 % della rotazione massima (fase %2): con nodi così vicini le sue "
     "molle cedono, ridurre i segmenti"},

    {"scavo-spostato-dai-nodi", Peso::daVedere, "osservazioni_risultati",
     "conta dal nodo a %1 m, %2 m più in basso; con questa maglia, per tutte le cause insieme, %3 "
     "è falsato di %4 %: aumentare i segmenti"},
    {"falda-tra-due-nodi", Peso::daVedere, "osservazioni_risultati",
     "cade tra due nodi, %2 m sopra quello a %1 m; con questa maglia, per tutte le cause insieme, "
     "%3 è falsato di %4 %: aumentare i segmenti"},
    {"strato-spostato-dai-nodi", Peso::daVedere, "osservazioni_risultati",
     "lo strato che segue conta dal nodo a %1 m, %2 m più in basso; con questa maglia, per tutte "
     "le cause insieme, %3 è falsato di %4 %: aumentare i segmenti"},
};

}  // namespace korven::review
