#include "analysis/layer_soil.hpp"

#include <cmath>

#include "analysis/pressure_coefficients.hpp"
#include "project/codes.hpp"

namespace korven::analysis {

namespace {

using project::DatiProgetto;

void latoMonte(const DatiProgetto& dati, SuoloStrato& strato) {
    const double beta = dati.inclinazioneMonte * pi / 180;
    strato.k0m = coefficienteRiposo(strato.phi, beta);
    const auto [ka, kp, motivo] = coefficientiSpinta(dati.metodoSpinte, strato.phi, beta);
    strato.kam = ka;
    strato.kpm = kp;
    strato.motivoM = std::isfinite(strato.k0m) ? motivo : Indefinito::denominatoreNullo;
}

void latoValle(const DatiProgetto& dati, SuoloStrato& strato) {
    strato.k0v = -(1 - std::sin(strato.phi));
    const auto [ka, kp, motivo] = coefficientiSpinta(dati.metodoSpinte, strato.phi, 0);
    strato.kav = -ka;
    strato.kpv = -kp;
    strato.motivoV = motivo;
}

}  // namespace

SuoloStrati suoloStrati(const DatiProgetto& dati) {
    SuoloStrati strati;
    for (int j = 0; j <= dati.nStrati; ++j) {
        SuoloStrato& strato = strati[j];
        if (j > 0) {
            strato.phi = dati.phiStrato[j] * pi / 180;
            strato.c = dati.coesione[j];
            latoMonte(dati, strato);
            if (dati.metodoKs == project::MetodoKs::bowles && strato.phi != 0)
                strato.portanza = fattoriPortanza(strato.phi);
        }
        latoValle(dati, strato);
        strato.coesione = coesioneLimiti(strato.c, strato.phi);
    }
    return strati;
}

}  // namespace korven::analysis
