#include "live/slow_results.hpp"

#include <exception>
#include <utility>

#include "review/result_review.hpp"
#include "safety/short_margin.hpp"

namespace korven::live {

namespace {

void margine(const DomandaLenta& domanda, RisultatiLenti& risultati) {
    auto breve = safety::margineBreve(domanda.dati, domanda.nSeg);
    if (!breve) return;
    risultati.osservazioni = review::esaminaRisultati(breve->dati, breve->margine);
    risultati.margine = std::move(breve->margine);
}

// What is beyond the numbers or the tables has no results.
template <class Calcolo>
void prova(Calcolo calcolo) {
    try {
        calcolo();
    } catch (const std::exception&) {
    }
}

}  // namespace

RisultatiLenti calcolaLenti(const DomandaLenta& domanda) {
    RisultatiLenti risultati;
    prova([&] { risultati.dominio = structure::dominioNM(domanda.dati.sezione); });
    if (domanda.nSeg > 0) prova([&] { margine(domanda, risultati); });
    return risultati;
}

}  // namespace korven::live
