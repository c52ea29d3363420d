#include "comparison/wall.hpp"

#include <utility>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "equilibrium/statics.hpp"
#include "results/node_results.hpp"
#include "results/report_data.hpp"
#include "safety/words.hpp"

namespace korven::comparison {

namespace {

using base::traduttore;
using dossier::Fascicolo;
using equilibrium::FaseEquilibrio;

FaseEquilibrio fase(int k, results::NodiFase nodi) {
    FaseEquilibrio f;
    f.fase = k;
    f.y = std::move(nodi.y);
    f.momento = std::move(nodi.momento);
    f.taglioSopra = std::move(nodi.taglioSopra);
    f.taglioSotto = std::move(nodi.taglio);
    for (std::size_t i = 0; i < f.taglioSotto.size(); ++i)
        f.taglio.push_back(equilibrium::maggiore(f.taglioSopra[i], f.taglioSotto[i]));
    f.monte = std::move(nodi.monte);
    f.valle = std::move(nodi.valle);
    f.acqua = std::move(nodi.acqua);
    f.costante = nodi.costante;
    f.tiri = std::move(nodi.tiri);
    return f;
}

void verifiche(const results::DatiRelazione& dati, Fascicolo& f) {
    f.controlli.flessione = results::verificaMomenti(dati);
    f.controlli.taglio = results::verificaAlTaglio(dati);
    f.controlli.dellaRelazione = true;
    f.controlli.conAzioni = true;
}

}  // namespace

Muro muroCalcolato(std::string nome, const dossier::Richiesta& richiesta,
                   analysis::OsservatoreCorsa& osservatore) {
    return {std::move(nome), Origine::equilibrio, dossier::fascicolo(richiesta, osservatore)};
}

Muro muroDaRisultati(const std::string& percorso, const results::TestaRisultati& testa) {
    Muro muro{percorso, Origine::fileRisultati, {}};
    Fascicolo& f = muro.fascicolo;
    f.identita.file = percorso;
    f.scritti = testa.dati;
    f.scritti.metodoSpinte = testa.metodoUsato;
    f.identita.impronta = dossier::impronta(f.scritti);
    project::DatiProgetto memoria = testa.dati;
    const results::DatiRelazione dati = results::leggiRisultati(percorso, testa.nSeg, memoria);
    live::PareteViva& parete = f.parete;
    parete.dati = f.scritti;
    parete.nSeg = testa.nSeg;
    parete.h = dati.passo;
    int k = 0;
    for (results::NodiFase& nodi : results::nodiFasi(dati))
        parete.fasi.push_back(fase(++k, std::move(nodi)));
    parete.estremi = equilibrium::estremi(parete.fasi, parete.h);
    f.inviluppo = live::inviluppo(parete);
    f.tiranti = dossier::storieTiranti(parete, nullptr);
    verifiche(dati, f);
    return muro;
}

std::string verdetto(const Muro& muro) {
    const live::PareteViva& parete = muro.fascicolo.parete;
    if (muro.origine == Origine::fileRisultati)
        return base::riempito(traduttore("calcolo per fasi concluso, fasi: %1"),
                              {std::to_string(parete.fasi.size())});
    if (!parete.rifiuto.empty())
        return traduttore("non calcolata") + base::duePunti() + parete.rifiuto;
    if (parete.sta())
        return base::riempito(traduttore("in equilibrio in tutte le fasi, che sono %1"),
                              {std::to_string(parete.fasi.size())});
    return parete.perche
               ? frase(*parete.perche)
               : traduttore("non calcolata") + base::duePunti() + traduttore("nessun numero");
}

}  // namespace korven::comparison
