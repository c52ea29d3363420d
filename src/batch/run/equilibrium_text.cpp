#include <algorithm>
#include <cmath>

#include "base/translated_texts.hpp"
#include "batch/run/equilibrium_outcome.hpp"
#include "batch/run/text_table.hpp"
#include "equilibrium/extremes.hpp"
#include "project/shown_number.hpp"
#include "safety/words.hpp"

namespace korven::batch {

namespace {

using base::traduttore;
using project::numeroMostrato;
using safety::EquilibrioRaccontato;
using safety::FaseRaccontata;
namespace unita = project::unita;

constexpr const char* nessuno = "-";

std::string titolo(std::string_view cosa, const project::Unita& u) {
    return traduttore(etichetta(cosa, u));
}

std::vector<std::string> riga(const FaseRaccontata& r, double h) {
    std::vector<std::string> celle = {std::to_string(r.fase.fase), std::to_string(r.fase.passi),
                                      numeroMostrato(r.scavo, 2)};
    if (r.sta()) {
        const auto& M = r.fase.momento;
        const auto [minimo, massimo] = std::minmax_element(M.begin(), M.end());
        const equilibrium::Estremi e = equilibrium::estremi(r.fase, h);
        celle.push_back(numeroMostrato(std::fabs(e.spostamento.valore), 3, unita::spostamentoFine));
        celle.push_back(numeroMostrato(*massimo, 2, unita::momentoAlMetro));
        celle.push_back(numeroMostrato(*minimo, 2, unita::momentoAlMetro));
    } else {
        celle.insert(celle.end(), 3, nessuno);
    }
    celle.push_back(safety::parole(r.fase.esito));
    return celle;
}

}  // namespace

std::string testoEquilibrio(const EquilibrioRaccontato& equilibrio) {
    TabellaTesto tabella({traduttore("Fase"), traduttore("Passi"), titolo("Scavo", unita::metri),
                          titolo("Spostamento max.", unita::spostamentoFine),
                          titolo("Momento max.", unita::momentoAlMetro),
                          titolo("Momento min.", unita::momentoAlMetro), traduttore("Esito")},
                         true);
    for (const FaseRaccontata& r : equilibrio.fasi) tabella.riga(riga(r, equilibrio.h));
    std::string testo = tabella.testo();
    for (const FaseRaccontata& r : equilibrio.fasi)
        if (const std::string frase = r.frase(); !frase.empty()) testo += frase + '\n';
    return testo +
           traduttore("Soluzione di equilibrio, calcolata in memoria: nessun file dei risultati.") +
           '\n';
}

}  // namespace korven::batch
