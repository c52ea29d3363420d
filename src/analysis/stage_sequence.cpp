#include "analysis/stage_sequence.hpp"

#include <cmath>

#include "analysis/anchors_in_place.hpp"
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

EsitoFase itera(const project::DatiProgetto& dati, ArraysCorsa& corsa,
                OsservatoreCorsa& osservatore, FaseCalcolata& fase) {
    for (bool convergente = false; !convergente;) {
        classificaNodi(dati, corsa);
        applicaTiranti(dati, corsa);
        if (!risolviIterazione(dati, corsa)) return EsitoFase::singolare;
        ++fase.iterazioni;
        fase.estremi = estremiIterazione(corsa);
        convergente = convergenza(corsa);
        osservatore.iterazione({fase.fase, fase.iterazioni, fase.estremi.yMax, fase.estremi.mMax,
                                convergente, corsa.nNodi, corsa.passoNodi, dati.profFase[fase.fase],
                                &corsa.yNodo, &corsa.momentoNodo, corsa.stati, corsa.tiranti});
        if (osservatore.fermata()) return EsitoFase::fermata;
    }
    return sensata(dati, corsa, fase.estremi) ? EsitoFase::convergente : EsitoFase::singolare;
}

}  // namespace

FaseCalcolata risolviFase(int k, project::DatiProgetto& dati, ArraysCorsa& corsa,
                          OsservatoreCorsa& osservatore) {
    preparaFase(k, dati, corsa);
    FaseCalcolata fase;
    fase.fase = k;
    fase.rifiuto = calcolaSuolo(dati, k, corsa.nNodi, corsa.passoNodi, corsa.suolo);
    if (fase.rifiuto) {
        fase.esito = EsitoFase::rifiutata;
        return fase;
    }
    fase.esito = itera(dati, corsa, osservatore, fase);
    if (fase.esito == EsitoFase::convergente) fase.risultati = risultatiFase(corsa);
    return fase;
}

}  // namespace korven::analysis
