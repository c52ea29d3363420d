#include "comparison/computed_comparison.hpp"

#include <utility>

namespace korven::comparison {

namespace {

Muro muro(const ProgettoDetto& progetto, std::optional<int> nSeg,
          analysis::OsservatoreCorsa& osservatore) {
    dossier::Richiesta richiesta{.scritti = progetto.dati,
                                 .usati = progetto.dati,
                                 .nSeg = nSeg,
                                 .identita = {},
                                 .sulProgetto = {}};
    richiesta.identita.file = progetto.file;
    return muroCalcolato(progetto.nome, richiesta, osservatore);
}

}  // namespace

Confronto CalcoloConfronti::calcola(const DomandaConfronto& domanda,
                                    analysis::OsservatoreCorsa& osservatore) {
    if (!prima_ || prima_->nSeg != domanda.nSeg || prima_->progetto != domanda.prima)
        prima_ = {domanda.prima, domanda.nSeg, muro(domanda.prima, domanda.nSeg, osservatore)};
    Muro prima = prima_->muro;
    if (osservatore.fermata()) prima_.reset();  // half of it is missing
    return confronta(std::move(prima), muro(domanda.dopo, domanda.nSeg, osservatore));
}

}  // namespace korven::comparison
