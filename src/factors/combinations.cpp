#include "factors/combinations.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace korven::factors {

namespace {

Massimo massimo(const equilibrium::Estremo& e, double fattore, int quale) {
    return {e.valore * fattore, e.fase > 0 ? quale : -1, e.fase, e.z};
}

void perGrandezza(const Massimo& nuovo, Massimo& finora) {
    if (nuovo.combinazione >= 0 &&
        (finora.combinazione < 0 || std::fabs(nuovo.valore) > std::fabs(finora.valore)))
        finora = nuovo;
}

void aggiungi(const EsitoCombinazione& esito, int quale, Inviluppo& inviluppo) {
    const double gamma = esito.effetti();
    const equilibrium::Estremi& e = esito.estremi;
    perGrandezza(massimo(e.spostamento, 1, quale), inviluppo.spostamento);
    perGrandezza(massimo(e.momentoMassimo, gamma, quale), inviluppo.momentoMassimo);
    perGrandezza(massimo(e.momentoMinimo, gamma, quale), inviluppo.momentoMinimo);
    perGrandezza(massimo(e.taglio, gamma, quale), inviluppo.taglio);
    for (std::size_t a = 0; a < esito.tiri.size(); ++a) {
        const TiroMassimo& t = esito.tiri[a];
        if (t.fase == 0) continue;
        Massimo& finora = inviluppo.tiri[a];
        if (finora.combinazione < 0 || t.tiro * gamma > finora.valore)
            finora = {t.tiro * gamma, quale, t.fase, 0};
    }
}

// A check without a use has no resistance: nothing is worse.
double gravita(const Verifica& v) {
    return v.uso().value_or(std::numeric_limits<double>::infinity());
}

}  // namespace

const EsitoCombinazione* Combinazioni::caduta() const {
    const auto f = std::find_if(esiti.begin(), esiti.end(), [](const auto& e) { return !e.sta(); });
    return f == esiti.end() ? nullptr : &*f;
}

bool Combinazioni::sta() const { return caduta() == nullptr; }

bool Combinazioni::verificate() const {
    return std::all_of(esiti.begin(), esiti.end(), [](const auto& e) { return e.verificata(); });
}

std::optional<bool> Combinazioni::giudizio() const {
    if (sta() && !conVerifiche()) return std::nullopt;
    return verificate();
}

bool Combinazioni::conVerifiche() const {
    return std::any_of(esiti.begin(), esiti.end(),
                       [](const EsitoCombinazione& e) { return !e.verifiche.empty(); });
}

std::optional<std::pair<std::size_t, Verifica>> Combinazioni::peggiore(Oggetto oggetto) const {
    std::optional<std::pair<std::size_t, Verifica>> peggiore;
    for (std::size_t i = 0; i < esiti.size(); ++i)
        for (const Verifica& v : esiti[i].verifiche)
            if (v.oggetto == oggetto && (!peggiore || gravita(v) > gravita(peggiore->second)))
                peggiore = {i, v};
    return peggiore;
}

Combinazioni combinazioni(const project::DatiProgetto& dati, int nSeg, const Norma& norma,
                          const NaturaCarichi& natura) {
    Combinazioni tutte{
        .norma = norma, .natura = natura, .nSeg = nSeg, .esiti = {}, .inviluppo = {}};
    tutte.inviluppo.tiri.resize(static_cast<std::size_t>(std::max(dati.nTiranti, 0)));
    for (const Combinazione& una : norma.combinazioni) {
        const auto quale = static_cast<int>(tutte.esiti.size());
        const EsitoCombinazione& esito = tutte.esiti.emplace_back(calcola(dati, nSeg, una, natura));
        if (esito.sta()) aggiungi(esito, quale, tutte.inviluppo);
    }
    return tutte;
}

}  // namespace korven::factors
