#include "live/wall.hpp"

#include <utility>

#include "analysis/run_arrays.hpp"
#include "analysis/run_start.hpp"
#include "analysis/segment_count.hpp"
#include "base/translated_texts.hpp"
#include "safety/prepared_wall.hpp"

namespace korven::live {

namespace {

using equilibrium::EsitoFase;
using equilibrium::FaseEquilibrio;
using project::DatiProgetto;

// What a stage that does not stand is told by.
void spiega(const equilibrium::EquilibrioParete& equilibrio, const FaseEquilibrio& fase,
            PareteViva& parete) {
    if (fase.rifiuto)
        parete.rifiuto = analysis::testoRifiuto(fase.fase, *fase.rifiuto);
    else
        parete.perche = safety::diagnosiSenzaLunghezza(parete.dati, equilibrio.problema(), fase);
}

void seguiFasi(PareteViva& parete) {
    equilibrium::EquilibrioParete equilibrio(parete.dati, parete.nSeg);
    for (int k = 1; k <= parete.dati.nFasi; ++k) {
        const FaseEquilibrio& fase = parete.fasi.emplace_back(equilibrio.calcola(k));
        if (fase.esito != EsitoFase::equilibrio) return spiega(equilibrio, fase, parete);
    }
}

PareteViva calcola(const DatiProgetto& dati, std::optional<int> nSeg) {
    safety::ParetePronta pronta = safety::preparaParete(dati);
    PareteViva parete;
    parete.dati = std::move(pronta.dati);
    parete.ejDellaSezione = pronta.ejDellaSezione;
    parete.rifiuto = std::move(pronta.rifiuto);
    if (parete.rifiuto.empty() && !nSeg) parete.rifiuto = base::traduttore(analysis::motivoNSeg());
    if (!parete.rifiuto.empty()) return parete;
    parete.nSeg = *nSeg;
    parete.h = parete.dati.lunghezzaParatia / *nSeg;
    seguiFasi(parete);
    parete.estremi = equilibrium::estremi(parete.fasi, parete.h);
    return parete;
}

}  // namespace

bool PareteViva::sta() const { return !fasi.empty() && fasi.back().esito == EsitoFase::equilibrio; }

int PareteViva::fasiInEquilibrio() const {
    return static_cast<int>(fasi.size()) - (fasi.empty() || sta() ? 0 : 1);
}

const FaseEquilibrio* PareteViva::fase(int k) const {
    return k < 1 || k > fasiInEquilibrio() ? nullptr : &fasi[static_cast<std::size_t>(k) - 1];
}

std::optional<equilibrium::Estremi> PareteViva::estremiDi(int k) const {
    if (k == 0) return sta() ? std::optional(estremi) : std::nullopt;
    const FaseEquilibrio* una = fase(k);
    return una != nullptr ? std::optional(equilibrium::estremi(*una, h)) : std::nullopt;
}

PareteViva calcola(const DatiProgetto& dati) {
    return calcola(dati, analysis::leggiNSeg(analysis::vincoli(dati).incastroPiede));
}

PareteViva calcola(const DatiProgetto& dati, int nSeg) {
    return calcola(dati, std::optional<int>(nSeg));
}

}  // namespace korven::live
