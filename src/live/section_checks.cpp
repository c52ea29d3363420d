#include "live/section_checks.hpp"

#include <utility>

#include "analysis/run_closing.hpp"
#include "results/section_uses.hpp"
#include "structure/bending_resistance.hpp"

namespace korven::live {

namespace {

using results::ConfrontoMomenti;

analysis::ChiusuraRisultati chiusura(const structure::MomentiResistenti& MRd, double massimo,
                                     double minimo) {
    return analysis::chiusura(MRd, {.fasi = {}, .mMaxTotale = massimo, .mMinTotale = minimo});
}

const results::NumeriRelazione* relazione(const safety::Margine* margine) {
    if (margine == nullptr || !margine->relazione || margine->relazione->fasi.empty())
        return nullptr;
    return &*margine->relazione;
}

ControlliSezione daRelazione(const results::NumeriRelazione& relazione) {
    const auto dove = [](const auto& n) { return DoveVerifica{n.fase, n.z}; };
    return {relazione.flessione,
            relazione.taglioSezione,
            dove(relazione.momentoMassimo()),
            dove(relazione.momentoMinimo()),
            dove(relazione.fasi.back().taglio),
            true,
            true};
}

ControlliSezione daEquilibrio(const PareteViva& parete) {
    const auto dove = [](const auto& e) { return DoveVerifica{e.fase, e.z, e.lato}; };
    const equilibrium::Estremi& e = parete.estremi;
    auto sui = results::controlli(parete.dati.sezione, results::momentiResistenti(parete.dati),
                                  e.momentoMassimo.valore, e.momentoMinimo.valore, e.taglio.valore);
    return {std::move(sui.flessione),     std::move(sui.taglio), dove(e.momentoMassimo),
            dove(e.momentoMinimo),        dove(e.taglio),        false,
            parete.fasiInEquilibrio() > 0};
}

}  // namespace

ControlliSezione controlliSezione(const PareteViva& parete, const safety::Margine* margine) {
    const auto* sua = relazione(margine);
    return sua != nullptr ? daRelazione(*sua) : daEquilibrio(parete);
}

std::vector<FaseNelDominio> fasiNelDominio(const PareteViva& parete,
                                           const safety::Margine* margine) {
    std::vector<FaseNelDominio> fasi;
    if (!sezioneCalcolabile(parete.dati.sezione)) return fasi;
    const auto MRd = results::momentiResistenti(parete.dati);
    const double Nd = structure::sforzoDiProgetto(parete.dati.sforzoNormale);
    const auto aggiungi = [&](int k, double massimo, double minimo) {
        fasi.push_back({k, Nd, results::confrontaMomenti(chiusura(MRd, massimo, minimo))});
    };
    if (const auto* sua = relazione(margine)) {
        int k = 0;
        for (const auto& fase : sua->fasi)
            aggiungi(++k, fase.momentoMassimo.valore, fase.momentoMinimo.valore);
        return fasi;
    }
    for (int k = 1; k <= parete.fasiInEquilibrio(); ++k) {
        const auto estremi = equilibrium::estremi(*parete.fase(k), parete.h);
        aggiungi(k, estremi.momentoMassimo.valore, estremi.momentoMinimo.valore);
    }
    return fasi;
}

}  // namespace korven::live
