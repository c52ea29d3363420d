#include "analysis/soil_state.hpp"

#include <cmath>

#include "analysis/node_soil.hpp"
#include "analysis/vertical_stress.hpp"

namespace korven::analysis {

namespace {

void scrivi(const SuoloMonte& nodo, int i, StatoSuolo& suolo) {
    suolo.sigmaVm[i] = nodo.sigmaVm;
    suolo.Ehm[i] = nodo.Ehm;
    suolo.k0m[i] = nodo.k0m;
    suolo.kam[i] = nodo.kam;
    suolo.kpm[i] = nodo.kpm;
    suolo.limitiM[i] = nodo.limiti;
}

void scrivi(const SuoloValle& nodo, int i, StatoSuolo& suolo) {
    suolo.sigmaVv[i] = nodo.sigmaVv;
    suolo.Ehv[i] = nodo.Ehv;
    suolo.k0v[i] = nodo.k0v;
    suolo.kav[i] = nodo.kav;
    suolo.kpv[i] = nodo.kpv;
    suolo.limitiV[i] = nodo.limiti;
}

}  // namespace

std::optional<RifiutoSuolo> calcolaSuolo(const project::DatiProgetto& dati, int fase, int nNodi,
                                         double passoNodi, StatoSuolo& suolo) {
    const SuoloStrati strati = suoloStrati(dati);
    SuoloMonte monte;
    SuoloValle valle;
    for (int i = 1; i <= nNodi; ++i) {
        const double z = zNodo(i, passoNodi);
        suolo.acquaNetta[i] =
            pressioneAcquaNetta(z, dati.faldaMonte, dati.faldaValle, dati.gammaAcqua);
        Indefinito motivo = suoloMonte(dati, strati, z, monte);
        if (motivo == Indefinito::no) motivo = suoloValle(dati, strati, fase, z, monte, valle);
        if (motivo == Indefinito::no &&
            !(tuttoFinito(monte, valle) && std::isfinite(suolo.acquaNetta[i])))
            motivo = Indefinito::nonFinito;
        if (motivo != Indefinito::no) return RifiutoSuolo{z, motivo};
        scrivi(monte, i, suolo);
        scrivi(valle, i, suolo);
        suolo.phiNodo[i] = strati[monte.strato].phi;
        suolo.cNodo[i] = strati[monte.strato].c;
    }
    return std::nullopt;
}

}  // namespace korven::analysis
