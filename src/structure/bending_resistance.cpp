#include "structure/bending_resistance.hpp"

#include <cassert>

#include "structure/partial_factors.hpp"
#include "structure/section_type.hpp"
#include "structure/section_validity.hpp"
#include "structure/strip_areas.hpp"

namespace korven::structure {

namespace {

ModelloStrisce modello(double H, const AreeStrisce& aree, const MaterialiFlessione& materiali) {
    return {.dy = H / nStrisce,
            .fcd = materiali.fck / fsCalcestruzzo,
            .fyd = materiali.fyk / fsAcciaio,
            .modEacciaio = materiali.modEacciaio,
            .Ac = aree.Ac,
            .As = aree.As};
}

}  // namespace

MomentiResistenti resistenzaDiaframma(const DiaframmaMm& d, const MaterialiFlessione& materiali,
                                      double Nd, double bStriscia) {
    const double H = d.spessore;
    return cercaLimite(modello(H, areeDiaframma(d, bStriscia), materiali), H,
                       {d.valle.copriferro, H - d.monte.copriferro}, Nd);
}

MomentiResistenti resistenzaPali(const PaliMm& p, const MaterialiFlessione& materiali, double Nd,
                                 double bStriscia) {
    const double H = p.diamEst;
    return cercaLimite(modello(H, areePali(p, bStriscia), materiali), H, {0, H}, Nd);
}

MomentiResistenti resistenzaPalancola(const PalancolaMm& p, const MaterialiFlessione& materiali,
                                      double Nd, double bStriscia) {
    const double H = altezza(p);
    return cercaLimite(modello(H, areePalancola(p, bStriscia), materiali), H, {0, H}, Nd);
}

MomentiResistenti resistenzaPaliArmati(const PaliArmatiMm& p, const MaterialiFlessione& materiali,
                                       double Nd, double bStriscia) {
    const double H = p.diamPalo;
    return cercaLimite(modello(H, areePaliArmati(p, bStriscia), materiali), H,
                       {p.copriferro, H - p.copriferro}, Nd);
}

void momentiResistenti(const project::Sezione& s, double sforzoNormale, MomentiResistenti& MRd) {
    const double Nd = fsAzioniSezione * project::newton * sforzoNormale;
    const MaterialiFlessione materiali{.modEacciaio = s.modEacciaio, .fyk = s.fyk, .fck = s.fck};
    const TipoSezione tipo = tipoSezione(s);
    assert(tipo == TipoSezione::nessuno || sezioneValida(s));
    switch (tipo) {
        case TipoSezione::diaframma:
            MRd = resistenzaDiaframma(diaframmaMm(s), materiali, Nd, bStrisciaMetro);
            break;
        case TipoSezione::pali:
            MRd = resistenzaPali(paliMm(s), materiali, Nd, bStrisciaMetro);
            break;
        case TipoSezione::palancola:
            MRd = resistenzaPalancola(palancolaMm(s), materiali, Nd, bStrisciaMetro);
            break;
        case TipoSezione::paliArmati:
            MRd = resistenzaPaliArmati(paliArmatiMm(s), materiali, Nd, bStrisciaMetro);
            break;
        case TipoSezione::nessuno:
            break;
    }
}

MomentiResistenti resistenze(const project::Sezione& sezione, double sforzoNormale) {
    MomentiResistenti MRd;
    if (sezioneValida(sezione)) momentiResistenti(sezione, sforzoNormale, MRd);
    return MRd;
}

}  // namespace korven::structure
