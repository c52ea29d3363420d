#include "dossier/anchor_story.hpp"

namespace korven::dossier {

namespace {

void segui(const live::PareteViva& parete, StoriaTirante& storia) {
    const auto j = static_cast<std::size_t>(storia.tirante) - 1;
    for (int k = 1; k <= parete.fasiInEquilibrio(); ++k) {
        const auto& tiri = parete.fase(k)->tiri;
        auto& tiro = storia.tiri.emplace_back();
        if (j >= tiri.size()) continue;
        tiro = tiri[j];
        if (storia.posa == 0) {
            storia.posa = k;
            storia.allaPosa = *tiro;
        }
        if (storia.faseMassimo == 0 || *tiro > storia.massimo) {
            storia.massimo = *tiro;
            storia.faseMassimo = k;
        }
    }
}

}  // namespace

std::vector<StoriaTirante> storieTiranti(const live::PareteViva& parete,
                                         const safety::Margine* margine) {
    std::vector<StoriaTirante> storie;
    for (int t = 1; t <= parete.dati.nTiranti; ++t) {
        StoriaTirante& storia = storie.emplace_back();
        storia.tirante = t;
        storia.profondita = parete.dati.profTirante[t];
        segui(parete, storia);
        if (margine == nullptr || !margine->relazione) continue;
        const auto& massimi = margine->relazione->tiriMassimi;
        const auto j = static_cast<std::size_t>(t) - 1;
        if (j < massimi.size()) storia.relazione = massimi[j];
    }
    return storie;
}

}  // namespace korven::dossier
