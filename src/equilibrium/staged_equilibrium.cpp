#include "equilibrium/staged_equilibrium.hpp"

#include <algorithm>
#include <cmath>

#include "equilibrium/statics.hpp"

namespace korven::equilibrium {

namespace {

using analysis::StatoLato;
using project::DatiProgetto;

StatoLato stato(const LatoNodo& lato, double y, StatoLato sottoIlMinimo, StatoLato sopraIlMassimo) {
    const double prova = lato.riposo + y * lato.Eh;
    if (prova < lato.minimo) return sottoIlMinimo;
    return prova > lato.massimo ? sopraIlMassimo : StatoLato::elastico;
}

// Displacements that are numbers may come with moments that are none.
bool numeri(const FaseEquilibrio& fase) {
    for (const auto* v : {&fase.momento, &fase.taglio, &fase.tiri})
        for (const double x : *v)
            if (!std::isfinite(x)) return false;
    return true;
}

}  // namespace

EquilibrioParete::EquilibrioParete(const DatiProgetto& dati, int nSeg, RigiditaVincoli rigidita)
    : EquilibrioParete(dati, nSeg, analysis::suoloStrati(dati), rigidita) {}

EquilibrioParete::EquilibrioParete(const DatiProgetto& dati, int nSeg,
                                   const analysis::SuoloStrati& strati, RigiditaVincoli rigidita)
    : impostazione_(dati, nSeg, strati, rigidita),
      y_(problema().nodi.size()),
      newton_(problema().n()) {
    const auto n = static_cast<std::size_t>(nSeg) + 1;
    for (auto* v : {&fase_.y, &fase_.momento, &fase_.taglio, &fase_.taglioSopra, &fase_.taglioSotto,
                    &fase_.monte, &fase_.valle, &fase_.acqua})
        v->resize(n);
    fase_.costante = dati.pressioneOrizz;
    fase_.stati.resize(n);
    fase_.tiri.reserve(project::massimoTiranti);
}

void EquilibrioParete::risultati() {
    fase_.tiri.clear();
    for (int i = 0; i < problema().nParete; ++i) {
        const auto j = static_cast<std::size_t>(i);
        const NodoFase& nodo = problema().nodi[j];
        const double y = nodo.vincolato ? 0 : y_[j];
        fase_.y[j] = y_[j];
        fase_.acqua[j] = nodo.acqua;
        fase_.monte[j] = nodo.monte.pressione(y);
        fase_.valle[j] = nodo.valle.pressione(y);
        fase_.stati[j] = {stato(nodo.monte, y, StatoLato::attivo, StatoLato::passivo),
                          stato(nodo.valle, y, StatoLato::passivo, StatoLato::attivo)};
    }
    for (const TiranteFase& t : problema().tiranti)
        fase_.tiri.push_back(t.nodo < 0 ? 0 : t.tiro(y_[static_cast<std::size_t>(t.nodo)]));
    statica(problema(), y_, fase_);
}

const FaseEquilibrio& EquilibrioParete::calcola(int k) {
    fase_.fase = k;
    fase_.passi = 0;
    fase_.moto.reset();
    fase_.instabile = {};
    fase_.newton = EsitoNewton::trovato;
    fase_.rifiuto = impostazione_.prepara(k, y_);
    if (fase_.rifiuto) {
        fase_.esito = EsitoFase::nonDefinito;
        return fase_;
    }
    fase_.instabile = datoInstabile(problema());
    if (fase_.instabile.che != Instabile::no) {
        fase_.esito = EsitoFase::nonDefinito;
        return fase_;
    }
    fase_.moto = meccanismo(problema());
    if (fase_.moto) {
        if (!std::isfinite(fase_.moto->mancante)) return senzaNumero();
        fase_.esito = EsitoFase::meccanismo;
        return fase_;
    }
    const SoluzioneNewton soluzione = newton_.risolvi(problema(), y_);
    fase_.passi = soluzione.passi;
    fase_.newton = soluzione.esito;
    fase_.esito =
        soluzione.esito == EsitoNewton::trovato ? EsitoFase::equilibrio : EsitoFase::nessunNumero;
    if (fase_.esito != EsitoFase::equilibrio) return fase_;
    risultati();
    return numeri(fase_) ? fase_ : senzaNumero();
}

const FaseEquilibrio& EquilibrioParete::senzaNumero() {
    fase_.esito = EsitoFase::nessunNumero;
    fase_.newton = EsitoNewton::nessunNumero;
    fase_.moto.reset();
    return fase_;
}

std::vector<FaseEquilibrio> calcolaEquilibrio(const DatiProgetto& dati, int nSeg,
                                              RigiditaVincoli rigidita) {
    EquilibrioParete parete(dati, nSeg, rigidita);
    std::vector<FaseEquilibrio> fasi;
    fasi.reserve(static_cast<std::size_t>(std::clamp(dati.nFasi, 0, project::massimoFasi)));
    for (int k = 1; k <= dati.nFasi; ++k)
        if (fasi.emplace_back(parete.calcola(k)).esito != EsitoFase::equilibrio) break;
    return fasi;
}

}  // namespace korven::equilibrium
