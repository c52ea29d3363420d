#include "safety/strength_reduction.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/pressure_coefficients.hpp"
#include "equilibrium/stage_setup.hpp"
#include "project/codes.hpp"

namespace korven::safety {

using analysis::Indefinito;
using analysis::SuoloStrati;
using project::DatiProgetto;

namespace {

// What the verdict says of a stage at one factor.
struct Prova {
    bool sta = false;
    bool pendio = false;  // the friction angle is below the slope
    std::optional<equilibrium::Meccanismo> moto;
};

class Ricerca {
 public:
    Ricerca(const DatiProgetto& dati, int nSeg, int k)
        : dati_(dati), interi_(analysis::suoloStrati(dati)), nSeg_(nSeg), k_(k) {}

    [[nodiscard]] Prova prova(double F) const { return prova(stratiRidotti(dati_, interi_, F)); }

    [[nodiscard]] bool staSenzaTerreno() const {
        return prova(stratiSenzaResistenza(dati_, interi_)).sta;
    }

    // The factor at which the friction of some layer reaches the pole of Coulomb's passive
    // coefficient; at smaller ones the formula means nothing.
    [[nodiscard]] double polo() const {
        if (dati_.metodoSpinte != project::MetodoSpinte::coulomb) return 0;
        const double oltre =
            std::tan(analysis::pi / 2 - dati_.inclinazioneMonte * analysis::pi / 180);
        double fattore = 0;
        for (int j = 1; j <= dati_.nStrati; ++j)
            fattore = std::max(fattore, std::tan(interi_[j].phi) / oltre);
        return fattore;
    }

 private:
    [[nodiscard]] Prova prova(const SuoloStrati& strati) const {
        equilibrium::ImpostazioneFasi fasi(dati_, nSeg_, strati);
        const std::vector<double> fermi(fasi.problema().nodi.size());
        Prova esito;
        if (const auto rifiuto = fasi.prepara(k_, fermi)) {
            esito.pendio = rifiuto->motivo == Indefinito::radiceNegativa ||
                           rifiuto->motivo == Indefinito::discesaRipida;
            return esito;
        }
        if (datoInstabile(fasi.problema()).che != equilibrium::Instabile::no) return esito;
        esito.moto = meccanismo(fasi.problema());
        esito.sta = !esito.moto;
        return esito;
    }

    const DatiProgetto& dati_;
    SuoloStrati interi_;
    int nSeg_, k_;
};

}  // namespace

void riduci(const DatiProgetto& dati, double perAttrito, double perCoesione,
            analysis::SuoloStrato& strato) {
    const double beta = dati.inclinazioneMonte * analysis::pi / 180;
    const double phi = std::atan(std::tan(strato.phi) / perAttrito);
    const auto monte = analysis::coefficientiSpinta(dati.metodoSpinte, phi, beta);
    const auto valle = analysis::coefficientiSpinta(dati.metodoSpinte, phi, 0);
    strato.kam = monte.ka;
    strato.kpm = monte.kp;
    strato.motivoM = monte.motivo;
    strato.kav = -valle.ka;
    strato.kpv = -valle.kp;
    strato.motivoV = valle.motivo;
    strato.coesione = analysis::coesioneLimiti(strato.c / perCoesione, phi);
}

SuoloStrati stratiRidotti(const DatiProgetto& dati, const SuoloStrati& interi, double F) {
    SuoloStrati ridotti = interi;
    for (int j = 1; j <= dati.nStrati; ++j) riduci(dati, F, F, ridotti[j]);
    return ridotti;
}

SuoloStrati stratiSenzaResistenza(const DatiProgetto& dati, const SuoloStrati& interi) {
    SuoloStrati fluidi = interi;
    for (int j = 1; j <= dati.nStrati; ++j) {
        analysis::SuoloStrato& strato = fluidi[j];
        strato.kam = strato.kpm = 1;
        strato.kav = strato.kpv = -1;
        strato.motivoM = strato.motivoV = analysis::Indefinito::no;
        strato.coesione = {};
    }
    return fluidi;
}

Riduzione riduzione(const DatiProgetto& dati, int nSeg, int k) {
    const Ricerca ricerca(dati, nSeg, k);
    if (ricerca.prova(massimaRiduzione).sta)
        return {.F = {}, .oltre = true, .senzaTerreno = ricerca.staSenzaTerreno()};
    double sopra = massimaRiduzione;
    double sotto = 1;
    if (!ricerca.prova(sotto).sta) {
        sopra = 1;
        sotto = std::max(minimaRiduzione, ricerca.polo() * (1 + passoRiduzione));
        if (!(sotto < sopra) || !ricerca.prova(sotto).sta) return {};
    }
    while (sopra - sotto > passoRiduzione) {
        const double mezzo = (sopra + sotto) / 2;
        (ricerca.prova(mezzo).sta ? sotto : sopra) = mezzo;
    }
    const Prova oltre = ricerca.prova(sopra);
    return {.F = sotto, .limitePendio = oltre.pendio, .moto = oltre.moto};
}

}  // namespace korven::safety
