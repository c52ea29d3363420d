#include "comparison/comparison.hpp"

#include <algorithm>
#include <utility>

namespace korven::comparison {

namespace {

bool laStessa(const review::Osservazione& a, const review::Osservazione& b) {
    return a.codice == b.codice && a.peso == b.peso && a.campi == b.campi;
}

review::Osservazioni soloNelPrimo(const dossier::Fascicolo& primo,
                                  const dossier::Fascicolo& altro) {
    review::Osservazioni sole;
    for (const auto& o : primo.osservazioni)
        if (std::none_of(altro.osservazioni.begin(), altro.osservazioni.end(),
                         [&](const auto& sua) { return laStessa(o, sua); }))
            sole.push_back(o);
    return sole;
}

}  // namespace

bool Confronto::cambiaQualcosa() const {
    return std::any_of(risultati.begin(), risultati.end(),
                       [](const RisultatoConfrontato& r) { return r.cambia(); });
}

bool Confronto::uguali() const {
    return campi.empty() && !cambiaQualcosa() && sparite.empty() && nuove.empty() &&
           prima.fascicolo.parete.nSeg == dopo.fascicolo.parete.nSeg;
}

bool Confronto::stanno() const {
    return prima.fascicolo.parete.sta() && dopo.fascicolo.parete.sta();
}

Confronto confronta(Muro prima, Muro dopo) {
    Confronto c;
    c.campi = project::campiDiversi(prima.fascicolo.scritti, dopo.fascicolo.scritti);
    c.risultati = risultati(prima, dopo);
    c.sparite = soloNelPrimo(prima.fascicolo, dopo.fascicolo);
    c.nuove = soloNelPrimo(dopo.fascicolo, prima.fascicolo);
    c.prima = std::move(prima);
    c.dopo = std::move(dopo);
    return c;
}

}  // namespace korven::comparison
