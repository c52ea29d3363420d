#include "studies/questions/length_criteria.hpp"

#include <algorithm>
#include <cmath>

#include "safety/strength_reduction.hpp"
#include "safety/words.hpp"

namespace korven::studies {

namespace {

using live::ControlliSezione;
using live::PareteViva;

std::string perche(const PareteViva& parete) {
    if (!parete.rifiuto.empty()) return parete.rifiuto;
    return parete.perche ? safety::inBreve(*parete.perche) : std::string();
}

// @return nothing where some stage stands at no factor of the range
std::optional<DiFase> minimaRiduzione(const project::DatiProgetto& dati, int nSeg) {
    std::optional<DiFase> minima;
    for (int k = 1; k <= dati.nFasi; ++k) {
        const safety::Riduzione trovata = safety::riduzione(dati, nSeg, k);
        if (!trovata.F && !trovata.oltre) return {};
        const double F = trovata.oltre ? safety::massimaRiduzione : *trovata.F;
        if (!minima || F < minima->valore) minima = DiFase{F, k};
    }
    return minima;
}

struct Uso {
    double progetto, resistenza;
    int fase;
};

// The larger share; nothing where one of them has no resistance.
std::optional<DiFase> massimoUso(std::initializer_list<Uso> usi) {
    std::optional<DiFase> massimo;
    for (const Uso& uso : usi) {
        if (uso.progetto == 0) continue;
        const double quota = uso.progetto / uso.resistenza;
        if (!(quota >= 0 && std::isfinite(quota))) return {};
        if (!massimo || quota > massimo->valore) massimo = DiFase{quota, uso.fase};
    }
    return massimo;
}

void provaSezione(const PareteViva& parete, LunghezzaProvata& provata) {
    const ControlliSezione controlli = live::controlliSezione(parete, nullptr);
    if (const auto& c = controlli.flessione) {
        const Uso positivo{c->mdMax, c->mrPos, controlli.positivo.fase};
        const Uso negativo{c->mdMin, c->mrNeg, controlli.negativo.fase};
        provata.flessione = c->negativo ? massimoUso({positivo, negativo}) : massimoUso({positivo});
        if (c->fallitaPos() || c->fallitaNeg()) provata.mancati.push_back(Criterio::flessione);
    }
    if (const auto& c = controlli.taglio) {
        const int fase = controlli.diTaglio.fase;
        provata.taglio = massimoUso({{c->Vsd, c->Vrd2, fase}, {c->Vsd, c->Vrd3, fase}});
        if (c->rotturaBielle() || c->rotturaArmatura()) provata.mancati.push_back(Criterio::taglio);
    }
}

}  // namespace

LunghezzaProvata prova(const project::DatiProgetto& dati, double lunghezza, int nSeg,
                       const Criteri& criteri) {
    project::DatiProgetto suoi = dati;
    suoi.lunghezzaParatia = lunghezza;
    const PareteViva parete = live::calcola(suoi, nSeg);
    LunghezzaProvata provata{.lunghezza = lunghezza, .perche = perche(parete)};
    if (!parete.sta()) provata.mancati.push_back(Criterio::equilibrio);
    if (criteri.riduzione && parete.rifiuto.empty()) {
        provata.riduzione = minimaRiduzione(parete.dati, nSeg);
        if (!provata.riduzione || provata.riduzione->valore < *criteri.riduzione)
            provata.mancati.push_back(Criterio::riduzione);
    }
    if (!parete.sta()) return provata;
    const auto& estremo = parete.estremi.spostamento;
    provata.spostamento = DiFase{std::fabs(estremo.valore), estremo.fase};
    if (criteri.spostamento && provata.spostamento->valore > *criteri.spostamento)
        provata.mancati.push_back(Criterio::spostamento);
    if (criteri.resistenza) provaSezione(parete, provata);
    return provata;
}

}  // namespace korven::studies
