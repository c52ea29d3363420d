#include "structure/axial_resistance.hpp"

#include <cassert>

#include "structure/bending_resistance.hpp"
#include "structure/material_laws.hpp"
#include "structure/section_validity.hpp"

namespace korven::structure {

ResistenzeAssiali resistenzeAssiali(const project::Sezione& s) {
    assert(sezioneValida(s));
    const ModelloStrisce m = sezioneStrisce(s)->modello;
    double Ac = 0;
    double As = 0;
    for (int i = 1; i <= nStrisce; ++i) {
        Ac += m.Ac[i];
        As += m.As[i];
    }
    return {.compressione = -Ac * tensioneCls(accorciamentoLimite, m.fcd) -
                            As * tensioneAcciaio(accorciamentoLimite, m.fyd, m.modEacciaio),
            .trazione = As * tensioneAcciaio(allungamentoLimite, m.fyd, m.modEacciaio)};
}

}  // namespace korven::structure
