#pragma once

#include "review/remark_row.hpp"

namespace korven::review {

// The remarks on what the stages come to.
inline constexpr VoceOsservazione vociRisultati[] = {
    {"fase-singolare", Peso::impedisce, "sicurezza", ""},
    {"fase-senza-riposo", Peso::impedisce, "sicurezza", ""},
    {"risultato-non-mostrabile", Peso::impedisce, "sicurezza", ""},

    // A run that ends so leaves no result file, though nothing is wrong with the wall.
    {"iterazione-che-oscilla", Peso::impedisce, "sicurezza", ""},
    {"meccanismo", Peso::pericolo, "sicurezza", ""},
    {"equilibrio-non-definito", Peso::pericolo, "sicurezza", ""},
    {"nessun-numero", Peso::pericolo, "sicurezza", ""},

    {"riduzione-bassa", Peso::daVedere, "sicurezza",
     "riduzione di resistenza %1, sotto %2; oltre, %3: controllare infissione, tiranti e carichi"},
    {"riduzione-insufficiente", Peso::pericolo, "sicurezza",
     "riduzione di resistenza %1, sotto %2; oltre, %3: allungare la paratia, aggiungere un tirante "
     "o ridurre scavo e carichi"},
    {"passiva-molto-usata", Peso::daVedere, "sicurezza",
     "la spinta passiva davanti alla paratia è usata al %1 %, oltre il %2 %%3: controllare "
     "l'infissione"},
    {"passiva-esaurita", Peso::pericolo, "sicurezza",
     "la spinta passiva davanti alla paratia è usata al %1 %, oltre il %2 %%3: allungare la "
     "paratia o ridurre scavo e carichi"},
    {"spostamento-grande", Peso::daVedere, "sicurezza",
     "spostamento massimo %1 mm a %2 m di profondità, 1/%3 dello scavo, più di 1/%4: controllare "
     "che cosa sta vicino alla paratia"},
    {"spostamento-eccessivo", Peso::pericolo, "sicurezza",
     "spostamento massimo %1 mm a %2 m di profondità, 1/%3 dello scavo, più di 1/%4: controllare "
     "rigidezza, tiranti, infissione e valori di ks"},
};

}  // namespace korven::review
