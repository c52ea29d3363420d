#include "analysis/soil_state.hpp"

#include <cmath>

#include "analysis/pressure_coefficients.hpp"
#include "analysis/subgrade_modulus.hpp"
#include "analysis/vertical_stress.hpp"
#include "project/codes.hpp"

namespace korven::analysis {

namespace {

using project::DatiProgetto;
using project::ModoTensioni;

Indefinito latoMonte(const DatiProgetto& dati, double z, int i, const TensioneNodo& tensione,
                     StatoSuolo& suolo) {
    const int j = tensione.strato;
    if (j == 0) return Indefinito::no;  // beyond the reach of the last layer: no soil
    const double beta = dati.inclinazioneMonte * pi / 180;
    const double phi = dati.phiStrato[j] * pi / 180;
    suolo.sigmaVm[i] =
        dati.modoTensioni == ModoTensioni::efficaci ? tensione.efficace : tensione.totale;
    suolo.phiNodo[i] = phi;
    suolo.cNodo[i] = dati.coesione[j];
    suolo.k0m[i] = coefficienteRiposo(phi, beta);
    if (!std::isfinite(suolo.k0m[i])) return Indefinito::denominatoreNullo;
    const auto [ka, kp, motivo] = coefficientiSpinta(dati.metodoSpinte, phi, beta);
    suolo.kam[i] = ka;
    suolo.kpm[i] = kp;
    if (motivo != Indefinito::no) return motivo;
    const auto [Eh, senzaKs] =
        moduloReazione(dati, {j, z, phi, dati.faldaMonte, tensione.efficace,
                              suolo.k0m[i] * suolo.sigmaVm[i], fondoStrato(dati, j)});
    suolo.Ehm[i] = Eh;
    suolo.limitiM[i] =
        limitiMonte(dati.metodoSpinte, suolo.sigmaVm[i], ka, kp, suolo.cNodo[i], phi);
    return senzaKs;
}

void latoValleVuoto(int i, StatoSuolo& suolo) {
    for (auto* colonna : {&suolo.sigmaVv, &suolo.Ehv, &suolo.k0v, &suolo.kav, &suolo.kpv})
        (*colonna)[i] = 0;
    suolo.limitiV[i] = {};
}

// The layer whose ks counts on the excavated side: the last one that begins above the node. The
// bottom of the layers is not looked at.
int stratoKsValle(const DatiProgetto& dati, double z) {
    int strato = 0;
    for (int j = 1; j <= dati.nStrati; ++j)
        if (z >= dati.profStrato[j - 1]) strato = j;
    return strato;
}

Indefinito latoValle(const DatiProgetto& dati, int fase, double z, int i, StatoSuolo& suolo) {
    const double phi = suolo.phiNodo[i];
    suolo.k0v[i] = -(1 - std::sin(phi));
    const auto [ka, kp, motivo] = coefficientiSpinta(dati.metodoSpinte, phi, 0);
    suolo.kav[i] = -ka;
    suolo.kpv[i] = -kp;
    if (motivo != Indefinito::no) return motivo;

    // With pressures held equal to the uphill side no effective stress is computed here, so that
    // the depth term of Bowles' ks vanishes.
    double efficace = 0;
    if (dati.modoSpinte == project::ModoSpinte::comeMonte) {
        suolo.sigmaVv[i] = suolo.sigmaVm[i];
    } else {
        const TensioneNodo tensione =
            tensioneValle(dati, z, dati.profFase[fase], dati.sovraccFase[fase]);
        efficace = tensione.efficace;
        suolo.sigmaVv[i] =
            dati.modoTensioni == ModoTensioni::efficaci ? tensione.efficace : tensione.totale;
    }
    suolo.limitiV[i] = limitiValle(dati.metodoSpinte, suolo.sigmaVv[i], suolo.kav[i], suolo.kpv[i],
                                   suolo.cNodo[i], phi);
    if (dati.modoKs == project::ModoKs::comeMonte) {
        suolo.Ehv[i] = suolo.Ehm[i];
        return Indefinito::no;
    }
    const int j = stratoKsValle(dati, z);
    const auto [Eh, senzaKs] =
        moduloReazione(dati, {j, z, phi, dati.faldaValle, efficace,
                              -suolo.k0v[i] * suolo.sigmaVv[i], dati.profStrato[j]});
    suolo.Ehv[i] = Eh;
    return senzaKs;
}

bool tuttoFinito(const StatoSuolo& suolo, int i) {
    for (const auto* colonna :
         {&suolo.sigmaVm, &suolo.Ehm, &suolo.k0m, &suolo.kam, &suolo.kpm, &suolo.sigmaVv,
          &suolo.Ehv, &suolo.k0v, &suolo.kav, &suolo.kpv, &suolo.acquaNetta})
        if (!std::isfinite((*colonna)[i])) return false;
    for (const auto* limiti : {&suolo.limitiM[i], &suolo.limitiV[i]})
        if (!std::isfinite(limiti->attiva) || !std::isfinite(limiti->passiva)) return false;
    return true;
}

}  // namespace

std::optional<RifiutoSuolo> calcolaSuolo(const DatiProgetto& dati, int fase, int nNodi,
                                         double passoNodi, StatoSuolo& suolo) {
    for (int i = 1; i <= nNodi; ++i) {
        const double z = zNodo(i, passoNodi);
        suolo.acquaNetta[i] =
            pressioneAcquaNetta(z, dati.faldaMonte, dati.faldaValle, dati.gammaAcqua);
        Indefinito motivo = latoMonte(dati, z, i, tensioneMonte(dati, z), suolo);
        if (motivo == Indefinito::no) {
            if (z >= dati.profFase[fase])
                motivo = latoValle(dati, fase, z, i, suolo);
            else
                latoValleVuoto(i, suolo);
        }
        if (motivo == Indefinito::no && !tuttoFinito(suolo, i)) motivo = Indefinito::nonFinito;
        if (motivo != Indefinito::no) return RifiutoSuolo{z, motivo};
    }
    return std::nullopt;
}

}  // namespace korven::analysis
