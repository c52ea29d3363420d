#include <algorithm>
#include <cmath>

#include "project/shown_number.hpp"
#include "review/limits.hpp"
#include "review/remark_list.hpp"
#include "structure/axial_resistance.hpp"
#include "structure/bending_resistance.hpp"
#include "structure/offered_stiffness.hpp"
#include "structure/section_validity.hpp"

// What the section carries: an axial force beyond it leaves no resistance to bending.

namespace korven::review {

namespace {

using project::DatiProgetto;

std::string kilonewton(double newton) {
    return project::numeroMostrato(newton / project::newtonKilonewton, 0);
}

bool sforzoOltre(const DatiProgetto& d, ElencoOsservazioni& elenco) {
    const double Nd = structure::sforzoDiProgetto(d.sforzoNormale);
    const auto [compressione, trazione] = structure::resistenzeAssiali(d.sezione);
    if (Nd <= compressione && -Nd <= trazione) return false;
    elenco.aggiungi("sforzo-oltre-la-sezione",
                    campoConValore(&DatiProgetto::sforzoNormale, d.sforzoNormale),
                    {kilonewton(std::abs(Nd)), kilonewton(Nd > 0 ? compressione : trazione)});
    return true;
}

}  // namespace

void controlloResistenza(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    if (!structure::sezioneValida(dati.sezione) || structure::troppiFerri(dati.sezione)) return;
    if (sforzoOltre(dati, elenco)) return;
    structure::MomentiResistenti MRd;
    structure::momentiResistenti(dati.sezione, dati.sforzoNormale, MRd);
    constexpr double nulla = resistenzaNulla * project::newtonKilonewton * project::millimetriMetro;
    if (!(std::max(std::abs(MRd[1]), std::abs(MRd[2])) >= nulla))
        elenco.aggiungi("sezione-senza-resistenza",
                        {{}, campoConValore(&project::Sezione::fyk, dati.sezione.fyk).campi});
}

}  // namespace korven::review
