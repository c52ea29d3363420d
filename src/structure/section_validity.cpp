#include "structure/section_validity.hpp"

#include <array>

#include "structure/section_type.hpp"

namespace korven::structure {

using project::Sezione;

namespace {

struct CampoRichiesto {
    TipoSezione tipo;
    double Sezione::*campo;
    bool perLaRelazione = true;  // false: the report does not ask for it
};

// The bar layers of the diaphragm are each judged alone: one face may make up for the other.
constexpr CampoRichiesto campiRichiesti[] = {
    {TipoSezione::diaframma, &Sezione::spessoreDiaframma},
    {TipoSezione::diaframma, &Sezione::modEacciaio},
    {TipoSezione::diaframma, &Sezione::modEcls},
    {TipoSezione::diaframma, &Sezione::fyk},
    {TipoSezione::diaframma, &Sezione::fck},

    {TipoSezione::pali, &Sezione::paliDiamEst},
    {TipoSezione::pali, &Sezione::paliDiamInt, false},
    {TipoSezione::pali, &Sezione::paliInterasse},
    {TipoSezione::pali, &Sezione::modEacciaio},
    {TipoSezione::pali, &Sezione::modEcls},
    {TipoSezione::pali, &Sezione::fyk},
    {TipoSezione::pali, &Sezione::fck},

    {TipoSezione::palancola, &Sezione::palancolaBase},
    {TipoSezione::palancola, &Sezione::palancolaLargAla},
    {TipoSezione::palancola, &Sezione::palancolaAltAla},
    {TipoSezione::palancola, &Sezione::palancolaSpessore},
    {TipoSezione::palancola, &Sezione::palancolaSpessAla},
    {TipoSezione::palancola, &Sezione::modEacciaio},
    {TipoSezione::palancola, &Sezione::fyk},

    {TipoSezione::paliArmati, &Sezione::armInterasse},
    {TipoSezione::paliArmati, &Sezione::armDiamLong},
    {TipoSezione::paliArmati, &Sezione::armDiamPalo},
    {TipoSezione::paliArmati, &Sezione::armNumLong},
    {TipoSezione::paliArmati, &Sezione::armCopriferro},
    {TipoSezione::paliArmati, &Sezione::modEacciaio},
    {TipoSezione::paliArmati, &Sezione::modEcls},
    {TipoSezione::paliArmati, &Sezione::fyk},
    {TipoSezione::paliArmati, &Sezione::fck},
};

using CampiFaccia = std::array<double Sezione::*, 3>;

constexpr CampiFaccia campiMonte{&Sezione::copriferroMonte, &Sezione::interasseMonte,
                                 &Sezione::diametroMonte};
constexpr CampiFaccia campiValle{&Sezione::copriferroValle, &Sezione::interasseValle,
                                 &Sezione::diametroValle};

std::vector<double Sezione::*> mancanti(const Sezione& sezione, const CampiFaccia& campi) {
    std::vector<double Sezione::*> vuoti;
    for (const auto campo : campi)
        if (!(sezione.*campo > 0)) vuoti.push_back(campo);
    return vuoti;
}

// One face is enough: the one that lacks least, the earth's where both lack as much.
std::vector<double Sezione::*> mancantiFaccia(const Sezione& sezione) {
    const auto monte = mancanti(sezione, campiMonte), valle = mancanti(sezione, campiValle);
    return valle.size() < monte.size() ? valle : monte;
}

bool completa(const Sezione& sezione, bool perLaRelazione) {
    const TipoSezione tipo = tipoSezione(sezione);
    if (tipo == TipoSezione::nessuno) return false;
    for (const CampoRichiesto& riga : campiRichiesti) {
        if (riga.tipo != tipo || (perLaRelazione && !riga.perLaRelazione)) continue;
        if (!(sezione.*riga.campo > 0)) return false;
    }
    return tipo != TipoSezione::diaframma || facciaCompleta(sezione, project::Lato::monte) ||
           facciaCompleta(sezione, project::Lato::valle);
}

}  // namespace

bool facciaCompleta(const Sezione& sezione, project::Lato lato) {
    return lato == project::Lato::monte
               ? sezione.copriferroMonte > 0 && sezione.interasseMonte > 0 &&
                     sezione.diametroMonte > 0
               : sezione.copriferroValle > 0 && sezione.interasseValle > 0 &&
                     sezione.diametroValle > 0;
}

bool staffePresenti(const Sezione& sezione) {
    return tipoSezione(sezione) == TipoSezione::paliArmati && sezione.armPassoStaffe > 0 &&
           sezione.armDiamStaffe > 0;
}

bool sezioneValida(const Sezione& sezione) { return completa(sezione, false); }

bool sezioneDefinita(const Sezione& sezione) { return completa(sezione, true); }

std::vector<double Sezione::*> campiMancanti(const Sezione& sezione) {
    const TipoSezione tipo = tipoSezione(sezione);
    std::vector<double Sezione::*> mancanti;
    for (const CampoRichiesto& riga : campiRichiesti)
        if (riga.tipo == tipo && !(sezione.*riga.campo > 0)) mancanti.push_back(riga.campo);
    if (tipo == TipoSezione::diaframma)
        for (const auto campo : mancantiFaccia(sezione)) mancanti.push_back(campo);
    return mancanti;
}

}  // namespace korven::structure
