#include "factors/combination_run.hpp"

#include <algorithm>

#include "analysis/run_arrays.hpp"
#include "equilibrium/staged_equilibrium.hpp"

namespace korven::factors {

namespace {

using equilibrium::FaseEquilibrio;
using project::DatiProgetto;

void aggiungiTiri(const FaseEquilibrio& fase, std::vector<TiroMassimo>& tiri) {
    for (std::size_t a = 0; a < fase.tiri.size() && a < tiri.size(); ++a)
        if (tiri[a].fase == 0 || fase.tiri[a] > tiri[a].tiro) tiri[a] = {fase.tiri[a], fase.fase};
}

// Takes stage k in; false if it does not stand.
bool fase(int k, const DatiProgetto& dati, equilibrium::EquilibrioParete& parete,
          EsitoCombinazione& esito) {
    const FaseEquilibrio& f = parete.calcola(k);
    FaseCombinazione& mia = esito.fasi.emplace_back(
        FaseCombinazione{.fase = k, .scavo = dati.profFase[k], .esito = f.esito});
    mia.rifiuto = f.rifiuto;
    if (!mia.sta()) {
        if (!f.rifiuto) mia.perche = safety::diagnosiSenzaLunghezza(dati, parete.problema(), f);
        return false;
    }
    mia.passiva = safety::usoPassiva(parete.problema(), f, mia.scavo);
    equilibrium::aggiungi(f, parete.problema().h, esito.estremi);
    aggiungiTiri(f, esito.tiri);
    return true;
}

// The stage that uses the largest share of the passive limit; nullptr where no stage has one.
const FaseCombinazione* piuUsata(const std::vector<FaseCombinazione>& fasi) {
    const FaseCombinazione* massima = nullptr;
    for (const FaseCombinazione& f : fasi)
        if (f.passiva.quota && (massima == nullptr || *f.passiva.quota > *massima->passiva.quota))
            massima = &f;
    return massima;
}

}  // namespace

bool EsitoCombinazione::verificata() const {
    return sta() && std::all_of(verifiche.begin(), verifiche.end(),
                                [](const Verifica& v) { return v.verificata; });
}

std::optional<bool> EsitoCombinazione::giudizio() const {
    if (sta() && verifiche.empty()) return std::nullopt;
    return verificata();
}

EsitoCombinazione calcola(const DatiProgetto& dati, int nSeg, const Combinazione& combinazione,
                          const NaturaCarichi& natura) {
    const Fattori& fattori = combinazione.fattori;
    PareteFattorizzata fattorizzata = fattorizza(dati, fattori, natura);
    EsitoCombinazione esito;
    esito.combinazione = combinazione;
    esito.carichi = std::move(fattorizzata.carichi);
    esito.inPiu = std::move(fattorizzata.inPiu);
    esito.tiri.resize(static_cast<std::size_t>(std::max(dati.nTiranti, 0)));
    equilibrium::EquilibrioParete parete(fattorizzata.dati, nSeg, fattorizzata.strati);
    for (int k = 1; k <= dati.nFasi; ++k)
        if (!fase(k, fattorizzata.dati, parete, esito)) return esito;
    esito.verifiche = verificheSezione(dati, fattori, esito.estremi);
    const FaseCombinazione* terra = fattori.terra > 0 ? piuUsata(esito.fasi) : nullptr;
    if (terra == nullptr) return esito;
    const Verifica verifica = verificaTerra(fattori, *terra->passiva.quota, terra->fase);
    if (analysis::vincoli(dati).bloccoPiede)
        esito.terraSoloDetta = verifica;
    else
        esito.verifiche.push_back(verifica);
    return esito;
}

}  // namespace korven::factors
