#include "exchange/ags_ranges.hpp"

#include <algorithm>
#include <string>
#include <utility>

#include "base/translated_texts.hpp"
#include "exchange/fault_texts.hpp"
#include "exchange/layer_checks.hpp"

namespace korven::exchange {

namespace {

std::vector<Tratto> numerici(const Foro& foro, StratiLetti& letti) {
    std::vector<Tratto> tratti;
    for (const TrattoForo& t : foro.tratti) {
        const auto tetto = soloNumero(t.tetto), base = soloNumero(t.base);
        if (!tetto || !base)
            letti.difetti.push_back(
                inRiga(t.riga, 0,
                       frase("%1 «%2» non è un numero",
                             {!tetto ? "GEOL_TOP" : "GEOL_BASE", !tetto ? t.tetto : t.base})));
        else if (!(*base > *tetto))
            letti.difetti.push_back(inRiga(
                t.riga, 0, frase("la base %1 non sta sotto il tetto %2", {t.base, t.tetto})));
        else
            tratti.push_back({*tetto, *base, &t});
    }
    return tratti;
}

void ordina(std::vector<Tratto>& tratti, StratiLetti& letti) {
    const auto sopra = [](const Tratto& a, const Tratto& b) {
        return std::pair(a.tetto, a.base) < std::pair(b.tetto, b.base);
    };
    if (std::is_sorted(tratti.begin(), tratti.end(), sopra)) return;
    std::stable_sort(tratti.begin(), tratti.end(), sopra);
    letti.avvertenze.push_back(base::traduttore(
        "le righe del foro non sono in ordine di profondità: sono state ordinate"));
}

bool stesso(const Tratto& a, const Tratto& b) {
    return a.tetto == b.tetto && a.base == b.base && a.letto->descrizione == b.letto->descrizione;
}

void togliDoppi(std::vector<Tratto>& tratti, StratiLetti& letti) {
    std::vector<Tratto> soli;
    for (const Tratto& t : tratti) {
        if (soli.empty() || !stesso(soli.back(), t)) {
            soli.push_back(t);
            continue;
        }
        letti.avvertenze.push_back(
            inRiga(t.letto->riga, 0,
                   frase("lo strato è già alla riga %1: conta una volta sola",
                         {std::to_string(soli.back().letto->riga)})));
    }
    tratti = std::move(soli);
}

// Two descriptions of one depth: only the user knows which one counts.
void controllaSovrapposti(const std::vector<Tratto>& tratti, StratiLetti& letti) {
    for (std::size_t i = 1; i < tratti.size(); ++i) {
        const Tratto &sopra = tratti[i - 1], &sotto = tratti[i];
        if (sotto.tetto >= sopra.base - stessoConfine) continue;
        letti.difetti.push_back(inRiga(
            sotto.letto->riga, 0,
            frase("tra %1 e %2 m lo strato si sovrappone a quello della riga %3",
                  {testoProfondita(sotto.tetto), testoProfondita(std::min(sotto.base, sopra.base)),
                   std::to_string(sopra.letto->riga)})));
    }
}

}  // namespace

std::vector<Tratto> trattiOrdinati(const Foro& foro, StratiLetti& letti) {
    auto tratti = numerici(foro, letti);
    ordina(tratti, letti);
    togliDoppi(tratti, letti);
    controllaSovrapposti(tratti, letti);
    return tratti;
}

}  // namespace korven::exchange
