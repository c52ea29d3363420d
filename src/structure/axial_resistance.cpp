#include "structure/axial_resistance.hpp"

#include <cassert>

#include "structure/limit_search.hpp"
#include "structure/material_laws.hpp"
#include "structure/partial_factors.hpp"
#include "structure/section_type.hpp"
#include "structure/section_validity.hpp"
#include "structure/strip_areas.hpp"

namespace korven::structure {

namespace {

AreeStrisce aree(const project::Sezione& s) {
    switch (tipoSezione(s)) {
        case TipoSezione::diaframma:
            return areeDiaframma(diaframmaMm(s), bStrisciaMetro);
        case TipoSezione::pali:
            return areePali(paliMm(s), bStrisciaMetro);
        case TipoSezione::palancola:
            return areePalancola(palancolaMm(s), bStrisciaMetro);
        case TipoSezione::paliArmati:
            return areePaliArmati(paliArmatiMm(s), bStrisciaMetro);
        case TipoSezione::nessuno:
            break;
    }
    return {};
}

}  // namespace

ResistenzeAssiali resistenzeAssiali(const project::Sezione& s) {
    assert(sezioneValida(s));
    const AreeStrisce a = aree(s);
    double Ac = 0;
    double As = 0;
    for (int i = 1; i <= nStrisce; ++i) {
        Ac += a.Ac[i];
        As += a.As[i];
    }
    const double fyd = s.fyk / fsAcciaio;
    return {.compressione = -Ac * tensioneCls(accorciamentoLimite, s.fck / fsCalcestruzzo) -
                            As * tensioneAcciaio(accorciamentoLimite, fyd, s.modEacciaio),
            .trazione = As * tensioneAcciaio(allungamentoLimite, fyd, s.modEacciaio)};
}

}  // namespace korven::structure
