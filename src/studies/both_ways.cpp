#include "studies/both_ways.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

#include "equilibrium/staged_equilibrium.hpp"
#include "safety/statics_beside_report.hpp"

namespace korven::studies {

namespace {

using equilibrium::EsitoFase;

double massimo(const std::vector<double>& y) {
    double m = 0;
    for (const double valore : y) m = std::max(m, std::fabs(valore));
    return m;
}

double distanza(const std::vector<double>& a, const std::vector<double>& b) {
    double d = 0;
    for (std::size_t i = 0; i < a.size(); ++i) d = std::max(d, std::fabs(a[i] - b.at(i)));
    return d;
}

}  // namespace

double tolleranza(double massimo) {
    constexpr double dellaCorsa = 1e-7, diIncastro = 1e-6;
    return dellaCorsa + diIncastro * massimo;
}

EsitoControllo controlla(const project::DatiProgetto& dati, int nSeg,
                         analysis::OsservatoreCorsa& osservatore) {
    const auto fasi = equilibrium::calcolaEquilibrio(dati, nSeg);
    const auto corsa = safety::relazioneInMemoria(dati, nSeg, osservatore);
    const EsitoFase ultima = fasi.empty() ? EsitoFase::nonDefinito : fasi.back().esito;
    if (!corsa.numeri)
        return {ultima == EsitoFase::equilibrio ? Accordo::senzaRiposo : Accordo::uguali};
    if (ultima == EsitoFase::nonDefinito)
        return {Accordo::incerto, fasi.empty() ? 0 : fasi.back().fase};
    if (ultima != EsitoFase::equilibrio) return {Accordo::verdetto, fasi.back().fase};
    EsitoControllo esito;
    for (std::size_t k = 0; k < fasi.size(); ++k) {
        const double scarto = distanza(fasi[k].y, corsa.spostamenti.at(k));
        const double ammesso = tolleranza(massimo(fasi[k].y));
        if (scarto > esito.scarto && !(esito.diversi() && scarto <= ammesso))
            esito = {esito.accordo, fasi[k].fase, scarto, ammesso};
        if (!(scarto <= ammesso)) esito.accordo = Accordo::spostamenti;
    }
    return esito;
}

}  // namespace korven::studies
