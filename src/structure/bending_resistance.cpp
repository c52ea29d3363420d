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

SezioneStrisce strisce(const DiaframmaMm& d, const MaterialiFlessione& materiali, double b) {
    const double H = d.spessore;
    return {modello(H, areeDiaframma(d, b), materiali),
            H,
            {d.valle.copriferro, H - d.monte.copriferro}};
}

SezioneStrisce strisce(const PaliMm& p, const MaterialiFlessione& materiali, double b) {
    const double H = p.diamEst;
    return {modello(H, areePali(p, b), materiali), H, {0, H}};
}

SezioneStrisce strisce(const PalancolaMm& p, const MaterialiFlessione& materiali, double b) {
    const double H = altezza(p);
    return {modello(H, areePalancola(p, b), materiali), H, {0, H}};
}

SezioneStrisce strisce(const PaliArmatiMm& p, const MaterialiFlessione& materiali, double b) {
    const double H = p.diamPalo;
    return {modello(H, areePaliArmati(p, b), materiali), H, {p.copriferro, H - p.copriferro}};
}

MomentiResistenti resistenza(const SezioneStrisce& s, double Nd) {
    return cercaLimite(s.modello, s.H, s.punti, Nd);
}

}  // namespace

MomentiResistenti resistenzaDiaframma(const DiaframmaMm& d, const MaterialiFlessione& materiali,
                                      double Nd, double bStriscia) {
    return resistenza(strisce(d, materiali, bStriscia), Nd);
}

MomentiResistenti resistenzaPali(const PaliMm& p, const MaterialiFlessione& materiali, double Nd,
                                 double bStriscia) {
    return resistenza(strisce(p, materiali, bStriscia), Nd);
}

MomentiResistenti resistenzaPalancola(const PalancolaMm& p, const MaterialiFlessione& materiali,
                                      double Nd, double bStriscia) {
    return resistenza(strisce(p, materiali, bStriscia), Nd);
}

MomentiResistenti resistenzaPaliArmati(const PaliArmatiMm& p, const MaterialiFlessione& materiali,
                                       double Nd, double bStriscia) {
    return resistenza(strisce(p, materiali, bStriscia), Nd);
}

std::optional<SezioneStrisce> sezioneStrisce(const project::Sezione& s) {
    const MaterialiFlessione materiali{.modEacciaio = s.modEacciaio, .fyk = s.fyk, .fck = s.fck};
    const TipoSezione tipo = tipoSezione(s);
    assert(tipo == TipoSezione::nessuno || sezioneValida(s));
    switch (tipo) {
        case TipoSezione::diaframma:
            return strisce(diaframmaMm(s), materiali, bStrisciaMetro);
        case TipoSezione::pali:
            return strisce(paliMm(s), materiali, bStrisciaMetro);
        case TipoSezione::palancola:
            return strisce(palancolaMm(s), materiali, bStrisciaMetro);
        case TipoSezione::paliArmati:
            return strisce(paliArmatiMm(s), materiali, bStrisciaMetro);
        case TipoSezione::nessuno:
            break;
    }
    return std::nullopt;
}

double sforzoDiProgetto(double sforzoNormale) {
    return fsAzioniSezione * project::newton * sforzoNormale;
}

void momentiResistenti(const project::Sezione& sezione, double sforzoNormale,
                       MomentiResistenti& MRd) {
    if (const auto s = sezioneStrisce(sezione))
        MRd = resistenza(*s, sforzoDiProgetto(sforzoNormale));
}

MomentiResistenti resistenze(const project::Sezione& sezione, double sforzoNormale) {
    MomentiResistenti MRd;
    if (sezioneValida(sezione)) momentiResistenti(sezione, sforzoNormale, MRd);
    return MRd;
}

}  // namespace korven::structure
