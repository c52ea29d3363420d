#include "safety/margin.hpp"

#include <algorithm>
#include <utility>

#include "analysis/run_arrays.hpp"

namespace korven::safety {

namespace {

using equilibrium::EquilibrioParete;
using equilibrium::EsitoFase;
using equilibrium::FaseEquilibrio;
using project::DatiProgetto;

MargineFase fase(const DatiProgetto& dati, int nSeg, int k, EquilibrioParete& parete,
                 equilibrium::Estremi& diTutte) {
    const FaseEquilibrio& f = parete.calcola(k);
    const equilibrium::ProblemaFase& problema = parete.problema();
    MargineFase m;
    m.fase = k;
    m.scavo = dati.profFase[k];
    m.esito = f.esito;
    m.rifiuto = f.rifiuto;
    if (m.rifiuto) return m;
    m.riduzione = riduzione(dati, nSeg, k);
    if (!m.inEquilibrio()) {
        m.perche = diagnosi(dati, nSeg, parete, f);
        return m;
    }
    m.passiva = usoPassiva(problema, f, m.scavo);
    m.piede = motoPiede(problema, parete.spostamenti());
    m.estremi = equilibrium::estremi(f, problema.h);
    m.confronto = statica(f, problema.h);
    equilibrium::aggiungi(f, problema.h, diTutte);
    return m;
}

MargineFase ignota(const DatiProgetto& dati, int k) {
    MargineFase m;
    m.fase = k;
    m.scavo = dati.profFase[k];
    return m;
}

bool haSostegni(const DatiProgetto& dati) {
    const analysis::Vincoli vincolo = analysis::vincoli(dati);
    bool tiranti = false;
    for (int k = 1; k <= dati.nFasi; ++k) tiranti = tiranti || dati.tirantiFase[k] > 0;
    return tiranti || vincolo.cernieraTesta || vincolo.bloccoPiede;
}

// The specified run can come to rest where the certain method finds data without a certain
// equilibrium, but not where there is none.
bool puoAvereRelazione(const Margine& m) {
    const MargineFase* caduta = m.caduta();
    return !caduta || (caduta->esito == EsitoFase::nonDefinito && !caduta->rifiuto);
}

void affiancaRelazione(Margine& m) {
    if (!m.relazione) return;
    for (MargineFase& f : m.fasi)
        if (f.inEquilibrio())
            affianca(m.relazione->fasi.at(static_cast<std::size_t>(f.fase - 1)), f.confronto);
    if (!m.sta()) return;  // the report is of more stages than the statics
    m.momento.relazione = m.relazione->momento;
    m.taglio.relazione = m.relazione->taglio;
}

}  // namespace

const MargineFase* Margine::caduta() const {
    const auto f =
        std::find_if(fasi.begin(), fasi.end(), [](const auto& una) { return !una.inEquilibrio(); });
    return f == fasi.end() ? nullptr : &*f;
}

const MargineFase* Margine::decisiva() const {
    const MargineFase* minima = caduta();
    if (minima) return minima;
    for (const MargineFase& f : fasi)
        if (f.riduzione.F && (!minima || *f.riduzione.F < *minima->riduzione.F)) minima = &f;
    return minima;
}

bool Margine::pericolosa() const {
    const MargineFase* fase = decisiva();
    return fase != nullptr && fase->riduzione.F && *fase->riduzione.F < riduzionePericolosa;
}

Margine margine(const DatiProgetto& dati, int nSeg, analysis::OsservatoreCorsa& osservatore) {
    Margine m;
    m.nSeg = nSeg;
    m.paratia = dati.lunghezzaParatia;
    m.sostegni = haSostegni(dati);
    EquilibrioParete parete(dati, nSeg);
    equilibrium::Estremi estremi;
    for (int k = 1; k <= dati.nFasi; ++k)
        m.fasi.push_back(m.sta() ? fase(dati, nSeg, k, parete, estremi) : ignota(dati, k));
    m.momento.statica = estremi.momento();
    m.taglio.statica = estremi.taglio;
    m.lunghezza = lunghezzaMinima(dati, nSeg);
    if (m.sta()) m.maglia = erroreMaglia(dati, nSeg, estremi);
    if (puoAvereRelazione(m)) {
        RelazioneInMemoria relazione = relazioneInMemoria(dati, nSeg, osservatore);
        m.relazione = std::move(relazione.numeri);
        m.corsa = relazione.fine;
    }
    affiancaRelazione(m);
    if (m.sta() && m.haNumeri())
        m.verifiche = verificheSezione(dati, estremi, m.relazione ? &*m.relazione : nullptr);
    return m;
}

}  // namespace korven::safety
