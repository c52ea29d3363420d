#include "analysis/stage_sequence.hpp"

#include <cmath>

#include "analysis/anchors_in_place.hpp"
#include "analysis/run_flags.hpp"
#include "analysis/wall_mesh.hpp"

namespace korven::analysis {

namespace {

double spostamento(const ArraysCorsa& corsa, int nodo) {
    return nodo >= 1 && nodo <= corsa.nNodi ? corsa.yNodo[nodo] : 0;
}

void preparaFase(int k, project::DatiProgetto& dati, ArraysCorsa& corsa) {
    corsa.nTirantiAttivi = tirantiInOpera(dati, k);
    dati.faldaValle = dati.faldaFase[k];
    for (int a = tirantiInOpera(dati, k - 1) + 1; a <= corsa.nTirantiAttivi; ++a)
        corsa.yTirante[a] = spostamento(corsa, nodoTirante(dati.profTirante[a], corsa.passoNodi));
    for (int i = 1; i <= corsa.nNodi; ++i) {
        corsa.EJNodo[i] = dati.rigidezzaEJ;
        corsa.yPrec[i] = 0;
    }
}

bool sensata(const project::DatiProgetto& dati, const ArraysCorsa& corsa,
             const EstremiIterazione& estremi) {
    for (int i = 1; i <= corsa.nNodi; ++i)
        if (!std::isfinite(corsa.yNodo[i]) || !std::isfinite(corsa.momentoNodo[i]) ||
            !std::isfinite(corsa.taglioNodo[i]))
            return false;
    return estremi.yMax <= massimoSpostamentoRelativo * dati.lunghezzaParatia;
}

}  // namespace

Vincoli vincoli(const project::DatiProgetto& dati) {
    return {dati.vincoloTesta == 2, dati.vincoloPiede == 2 || dati.vincoloPiede == 3,
            dati.vincoloPiede == 3};
}

std::unique_ptr<ArraysCorsa> preparaCorsa(const project::DatiProgetto& dati, int nSeg) {
    auto corsa = std::make_unique<ArraysCorsa>();
    corsa->nSeg = nSeg;
    corsa->nNodi = nSeg + 1;
    corsa->passoNodi = dati.lunghezzaParatia / nSeg;
    corsa->vincolo = vincoli(dati);
    return corsa;
}

RisultatoFase risolviFase(int k, project::DatiProgetto& dati, ArraysCorsa& corsa,
                          Avanzamento& avanzamento) {
    preparaFase(k, dati, corsa);
    RisultatoFase risultato;
    risultato.rifiuto = calcolaSuolo(dati, k, corsa.nNodi, corsa.passoNodi, corsa.suolo);
    if (risultato.rifiuto) {
        risultato.esito = EsitoFase::rifiutata;
        return risultato;
    }
    for (int iterazione = 1;; ++iterazione) {
        classificaNodi(dati, corsa);
        applicaTiranti(dati, corsa);
        if (!risolviIterazione(dati, corsa)) {
            risultato.esito = EsitoFase::singolare;
            return risultato;
        }
        risultato.estremi = estremiIterazione(corsa);
        const bool convergente = convergenza(corsa);
        avanzamento.iterazione({k, iterazione, risultato.estremi.yMax, risultato.estremi.mMax,
                                convergente, corsa.nNodi, corsa.passoNodi, dati.profFase[k],
                                &corsa.yNodo, &corsa.momentoNodo, corsa.stati, corsa.tiranti});
        if (stopCalcolo) {
            risultato.esito = EsitoFase::fermata;
            return risultato;
        }
        if (convergente) break;
    }
    if (!sensata(dati, corsa, risultato.estremi)) risultato.esito = EsitoFase::singolare;
    return risultato;
}

}  // namespace korven::analysis
