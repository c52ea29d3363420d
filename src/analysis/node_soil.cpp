#include "analysis/node_soil.hpp"

#include <cmath>

#include "analysis/subgrade_modulus.hpp"
#include "analysis/vertical_stress.hpp"
#include "project/codes.hpp"

namespace korven::analysis {

namespace {

using project::DatiProgetto;
using project::ModoTensioni;

double tensioneUsata(const DatiProgetto& dati, const TensioneNodo& tensione) {
    return dati.modoTensioni == ModoTensioni::efficaci ? tensione.efficace : tensione.totale;
}

// The layer whose ks counts on the excavated side: the last one that begins above the node. The
// bottom of the layers is not looked at.
int stratoKsValle(const DatiProgetto& dati, double z) {
    int strato = 0;
    for (int j = 1; j <= dati.nStrati; ++j)
        if (z >= dati.profStrato[j - 1]) strato = j;
    return strato;
}

}  // namespace

Indefinito suoloMonte(const DatiProgetto& dati, const SuoloStrati& strati, double z,
                      SuoloMonte& nodo) {
    const TensioneNodo tensione = tensioneMonte(dati, z);
    const int j = tensione.strato;
    nodo = {};
    if (j == 0) return Indefinito::no;  // beyond the reach of the last layer: no soil
    const SuoloStrato& strato = strati[j];
    nodo.strato = j;
    nodo.sigmaVm = tensioneUsata(dati, tensione);
    nodo.k0m = strato.k0m;
    nodo.kam = strato.kam;
    nodo.kpm = strato.kpm;
    if (strato.motivoM != Indefinito::no) return strato.motivoM;
    const auto [Eh, senzaKs] =
        moduloReazione(dati, {j, z, strato.portanza, dati.faldaMonte, tensione.efficace,
                              nodo.k0m * nodo.sigmaVm, fondoStrato(dati, j)});
    nodo.Ehm = Eh;
    nodo.limiti = limitiMonte(dati.metodoSpinte, nodo.sigmaVm, nodo.kam, nodo.kpm, strato.coesione);
    return senzaKs;
}

Indefinito suoloValle(const DatiProgetto& dati, const SuoloStrati& strati, int fase, double z,
                      const SuoloMonte& monte, SuoloValle& nodo) {
    nodo = {};
    if (!(z >= dati.profFase[fase])) return Indefinito::no;
    const SuoloStrato& strato = strati[monte.strato];
    nodo.k0v = strato.k0v;
    nodo.kav = strato.kav;
    nodo.kpv = strato.kpv;
    if (strato.motivoV != Indefinito::no) return strato.motivoV;

    // With pressures held equal to the uphill side no effective stress is computed here, so that
    // the depth term of Bowles' ks vanishes.
    double efficace = 0;
    if (dati.modoSpinte == project::ModoSpinte::comeMonte) {
        nodo.sigmaVv = monte.sigmaVm;
    } else {
        const TensioneNodo tensione =
            tensioneValle(dati, z, dati.profFase[fase], dati.sovraccFase[fase]);
        efficace = tensione.efficace;
        nodo.sigmaVv = tensioneUsata(dati, tensione);
    }
    nodo.limiti = limitiValle(dati.metodoSpinte, nodo.sigmaVv, nodo.kav, nodo.kpv, strato.coesione);
    if (dati.modoKs == project::ModoKs::comeMonte) {
        nodo.Ehv = monte.Ehm;
        return Indefinito::no;
    }
    const int j = stratoKsValle(dati, z);
    const auto [Eh, senzaKs] =
        moduloReazione(dati, {j, z, strato.portanza, dati.faldaValle, efficace,
                              -nodo.k0v * nodo.sigmaVv, dati.profStrato[j]});
    nodo.Ehv = Eh;
    return senzaKs;
}

bool tuttoFinito(const SuoloMonte& m, const SuoloValle& v) {
    for (const double valore :
         {m.sigmaVm, m.Ehm, m.k0m, m.kam, m.kpm, v.sigmaVv, v.Ehv, v.k0v, v.kav, v.kpv,
          m.limiti.attiva, m.limiti.passiva, v.limiti.attiva, v.limiti.passiva})
        if (!std::isfinite(valore)) return false;
    return true;
}

}  // namespace korven::analysis
