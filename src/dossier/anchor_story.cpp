#include "dossier/anchor_story.hpp"

#include "analysis/wall_mesh.hpp"

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

// Where it acts, and from where it counts.
void posa(const live::PareteViva& parete, StoriaTirante& storia) {
    if (parete.nSeg == 0) return;
    const int nodo = analysis::nodoTirante(storia.profondita, parete.h);
    if (nodo < 1 || nodo > parete.nSeg + 1) return;
    storia.profonditaNodo = (nodo - 1) * parete.h;
    if (storia.posa == 0) return;
    const auto* prima = parete.fase(storia.posa - 1);
    storia.spostamentoPosa = prima == nullptr ? 0 : prima->y[static_cast<std::size_t>(nodo) - 1];
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
        posa(parete, storia);
        if (margine == nullptr || !margine->relazione) continue;
        const auto& massimi = margine->relazione->tiriMassimi;
        const auto j = static_cast<std::size_t>(t) - 1;
        if (j < massimi.size()) storia.relazione = massimi[j];
    }
    return storie;
}

}  // namespace korven::dossier
