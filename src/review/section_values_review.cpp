#include <cmath>
#include <numbers>

#include "base/colon.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "review/limits.hpp"
#include "review/remark_list.hpp"
#include "structure/section_millimetres.hpp"
#include "structure/section_type.hpp"

// Strengths, moduli and lengths of the section that look typed in another unit or can't be built.

namespace korven::review {

namespace {

using project::Sezione;
using structure::TipoSezione;

using Misura = double Sezione::*;

// What is not above 0 counts as missing, which is told elsewhere.
bool fuori(double valore, const Intervallo& usuale) {
    return valore > 0 && !(valore >= usuale.minimo && valore <= usuale.massimo);
}

std::vector<std::string> estremi(const Intervallo& usuale, Misura membro) {
    const auto& campo = project::campo(membro);
    return {base::testoNumero(project::mostrato(campo, usuale.minimo)),
            base::testoNumero(project::mostrato(campo, usuale.massimo))};
}

void esamina(const Sezione& s, Misura membro, const Intervallo& usuale, Voce voce,
             ElencoOsservazioni& elenco) {
    if (fuori(s.*membro, usuale))
        elenco.aggiungi(voce, campoConValore(membro, s.*membro), estremi(usuale, membro));
}

Intervallo attorno(double usuale) { return {usuale / scartoModulo, usuale * scartoModulo}; }

// Mean secant modulus of concrete [N/mm2]. Source: CEN, ENV 1992-1-1 (1991), 3.1.2.5.2 (not looked
// up).
double moduloCalcestruzzo(double fck) { return 9500 * std::cbrt(fck + 8); }

void controlloMateriali(const Sezione& s, TipoSezione tipo, ElencoOsservazioni& elenco) {
    const bool palancola = tipo == TipoSezione::palancola;
    esamina(s, &Sezione::fyk, palancola ? fykPalancole : fykUsuale, "fyk-insolita", elenco);
    esamina(s, &Sezione::modEacciaio, attorno(moduloUsualeAcciaio), "modulo-acciaio", elenco);
    if (palancola) return;
    esamina(s, &Sezione::fck, fckUsuale, "fck-insolita", elenco);
    if (s.fck > 0 && !fuori(s.fck, fckUsuale) &&
        fuori(s.modEcls, attorno(moduloCalcestruzzo(s.fck))))
        elenco.aggiungi("modulo-calcestruzzo", campoConValore(&Sezione::modEcls, s.modEcls),
                        {project::numeroMostrato(moduloCalcestruzzo(s.fck), 0)});
}

struct MisuraCostruibile {
    TipoSezione tipo;
    Misura membro;
    Intervallo costruibile;
    std::string_view dove = {};
};

constexpr MisuraCostruibile misure[] = {
    {TipoSezione::diaframma, &Sezione::spessoreDiaframma, diaframmaCostruibile},
    {TipoSezione::diaframma, &Sezione::copriferroMonte, copriferroCostruibile, "lato monte"},
    {TipoSezione::diaframma, &Sezione::interasseMonte, interasseFerriCostruibile, "lato monte"},
    {TipoSezione::diaframma, &Sezione::diametroMonte, ferroCostruibile, "lato monte"},
    {TipoSezione::diaframma, &Sezione::copriferroValle, copriferroCostruibile, "lato valle"},
    {TipoSezione::diaframma, &Sezione::interasseValle, interasseFerriCostruibile, "lato valle"},
    {TipoSezione::diaframma, &Sezione::diametroValle, ferroCostruibile, "lato valle"},
    {TipoSezione::pali, &Sezione::paliDiamEst, paloCostruibile},
    {TipoSezione::palancola, &Sezione::palancolaBase, ondaCostruibile},
    {TipoSezione::palancola, &Sezione::palancolaAltAla, ondaCostruibile},
    {TipoSezione::palancola, &Sezione::palancolaSpessore, lamieraCostruibile},
    {TipoSezione::palancola, &Sezione::palancolaSpessAla, lamieraCostruibile},
    {TipoSezione::paliArmati, &Sezione::armDiamPalo, paloCostruibile},
    {TipoSezione::paliArmati, &Sezione::armDiamLong, ferroCostruibile},
    {TipoSezione::paliArmati, &Sezione::armCopriferro, copriferroCostruibile},
    {TipoSezione::paliArmati, &Sezione::armDiamStaffe, staffaCostruibile},
    {TipoSezione::paliArmati, &Sezione::armPassoStaffe, interasseFerriCostruibile},
};

std::string luogo(std::string_view dove) {
    return dove.empty() ? std::string() : base::traduttore(dove) + base::duePunti();
}

void controlloMisureCostruibili(const Sezione& s, TipoSezione tipo, ElencoOsservazioni& elenco) {
    for (const auto& [di, membro, costruibile, dove] : misure)
        if (di == tipo && fuori(s.*membro, costruibile))
            elenco.aggiungi("misura-non-costruibile",
                            dopo(luogo(dove), campoConValore(membro, s.*membro)),
                            estremi(costruibile, membro));
}

void controlloLuce(double passo, double diametro, const Soggetto& soggetto,
                   ElencoOsservazioni& elenco) {
    const double luce = passo - diametro;
    if (!(passo > 0 && diametro > 0) || luce >= luceTraFerri) return;
    elenco.aggiungi("ferri-fitti", soggetto,
                    {project::numeroMostrato(luce, 1, project::unita::misura),
                     project::numeroMostrato(luceTraFerri, 0, project::unita::misura)});
}

void controlloLuci(const Sezione& s, TipoSezione tipo, ElencoOsservazioni& elenco) {
    const auto faccia = [&](std::string_view nome, Misura interasse, Misura diametro) {
        controlloLuce(s.*interasse, s.*diametro,
                      dopo(luogo(nome), insieme(campoConValore(interasse, s.*interasse),
                                                campoConValore(diametro, s.*diametro))),
                      elenco);
    };
    if (tipo == TipoSezione::diaframma) {
        faccia("lato monte", &Sezione::interasseMonte, &Sezione::diametroMonte);
        faccia("lato valle", &Sezione::interasseValle, &Sezione::diametroValle);
    }
    if (tipo == TipoSezione::paliArmati && s.armNumLong >= 2 && s.armNumLong < ferriDaRelazione) {
        const double raggio =
            structure::raggioFerri(structure::paliArmatiMm(s)) / project::millimetri;
        const double corda = 2 * raggio * std::sin(std::numbers::pi / s.armNumLong);
        controlloLuce(corda, s.armDiamLong, campoConValore(&Sezione::armDiamLong, s.armDiamLong),
                      elenco);
    }
}

void controlloSovrapposti(double interasse, double diametro, Misura membro,
                          ElencoOsservazioni& elenco) {
    if (interasse > 0 && interasse < diametro)
        elenco.aggiungi("pali-sovrapposti", campoConValore(membro, interasse),
                        {project::numeroMostrato(diametro, 0, project::unita::misura)});
}

}  // namespace

void controlloValoriSezione(const Sezione& s, ElencoOsservazioni& elenco) {
    const TipoSezione tipo = structure::tipoSezione(s);
    if (tipo == TipoSezione::nessuno) return;
    controlloMateriali(s, tipo, elenco);
    controlloMisureCostruibili(s, tipo, elenco);
    controlloLuci(s, tipo, elenco);
    if (tipo == TipoSezione::pali)
        controlloSovrapposti(s.paliInterasse, s.paliDiamEst, &Sezione::paliInterasse, elenco);
    if (tipo == TipoSezione::paliArmati)
        controlloSovrapposti(s.armInterasse, s.armDiamPalo, &Sezione::armInterasse, elenco);
}

}  // namespace korven::review
