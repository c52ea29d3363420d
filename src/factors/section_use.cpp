#include "factors/section_use.hpp"

#include <cassert>
#include <cmath>

#include "project/units.hpp"
#include "results/structure_checks.hpp"
#include "structure/bending_resistance.hpp"
#include "structure/partial_factors.hpp"

namespace korven::factors {

namespace {

using equilibrium::Estremo;
using project::DatiProgetto;

Verifica verifica(Oggetto oggetto, double progetto, double resistenza, bool verificata,
                  const Estremo& dove) {
    return {oggetto, progetto, resistenza, verificata, dove.fase, dove.z, dove.lato};
}

// The resistance is made for 1.4 times the force of the project: a force that is to act with
// another factor is put in so much larger or smaller.
std::optional<results::ConfrontoMomenti> momenti(const DatiProgetto& dati, double perAssiale,
                                                 const Fattori& fattori,
                                                 const equilibrium::Estremi& e) {
    const auto MRd = structure::resistenze(
        dati.sezione, dati.sforzoNormale * perAssiale / structure::fsAzioniSezione);
    return results::verificaMomenti(dati.sezione, {.mrd2 = MRd[2],
                                                   .mrd1 = MRd[1],
                                                   .mMaxTotale = e.momentoMassimo.valore,
                                                   .mMinTotale = e.momentoMinimo.valore,
                                                   .fsAzioni = fattori.effetti});
}

void flessione(const DatiProgetto& dati, const Fattori& fattori, const equilibrium::Estremi& e,
               std::vector<Verifica>& verifiche) {
    std::optional<Verifica> positiva, negativa;
    const auto peggiore = [](std::optional<Verifica>& finora, Verifica nuova) {
        if (!finora || std::fabs(nuova.resistenza) < std::fabs(finora->resistenza)) finora = nuova;
    };
    for (const double perAssiale : {fattori.testaPermanente, 1.0}) {
        const auto c = momenti(dati, perAssiale, fattori, e);
        if (!c) return;
        Verifica v = verifica(Oggetto::momentoPositivo, c->mdMax, c->mrPos, c->verificatoPos,
                              e.momentoMassimo);
        v.perAssiale = perAssiale;
        peggiore(positiva, v);
        if (!c->negativo) continue;
        v = verifica(Oggetto::momentoNegativo, c->mdMin, c->mrNeg, c->verificatoNeg,
                     e.momentoMinimo);
        v.perAssiale = perAssiale;
        peggiore(negativa, v);
    }
    verifiche.push_back(*positiva);
    if (negativa) verifiche.push_back(*negativa);
}

void taglio(const DatiProgetto& dati, const Fattori& fattori, const Estremo& T,
            std::vector<Verifica>& verifiche) {
    const auto c = results::verificaAlTaglio(dati.sezione, std::fabs(T.valore), fattori.effetti);
    if (!c) return;
    const auto t = [](double kN) { return kN / project::kilonewton; };
    verifiche.push_back(verifica(Oggetto::bielle, t(c->Vsd), t(c->Vrd2), !c->rotturaBielle(), T));
    verifiche.push_back(
        verifica(Oggetto::armatura, t(c->Vsd), t(c->Vrd3), !c->rotturaArmatura(), T));
}

}  // namespace

std::optional<double> Verifica::uso() const {
    if (resistenza == 0) return std::nullopt;
    return progetto / resistenza;
}

std::vector<Verifica> verificheSezione(const DatiProgetto& dati, const Fattori& fattori,
                                       const equilibrium::Estremi& estremi) {
    std::vector<Verifica> verifiche;
    flessione(dati, fattori, estremi, verifiche);
    taglio(dati, fattori, estremi.taglio, verifiche);
    return verifiche;
}

Verifica verificaTerra(const Fattori& fattori, double quota, int fase) {
    assert(fattori.terra > 0);
    const double usata = quota * fattori.effetti, ammessa = 1 / fattori.terra;
    return {.oggetto = Oggetto::terra,
            .progetto = usata,
            .resistenza = ammessa,
            .verificata = usata < ammessa,
            .fase = fase};
}

}  // namespace korven::factors
