#include <cmath>

#include "base/translated_texts.hpp"
#include "review/remark_list.hpp"

namespace korven::review {

namespace {

using base::traduttore;
using project::Campo;
using project::DatiProgetto;
using project::Sezione;

// The fields of the section in the order of their remarks, which goes face by face. `dove` names
// the face.
struct CampoMostrato {
    double Sezione::*membro;
    std::string_view dove = {};
};

constexpr CampoMostrato campiMostrati[] = {
    {&Sezione::spessoreDiaframma},
    {&Sezione::copriferroMonte, "lato monte"},
    {&Sezione::interasseMonte, "lato monte"},
    {&Sezione::diametroMonte, "lato monte"},
    {&Sezione::copriferroValle, "lato valle"},
    {&Sezione::interasseValle, "lato valle"},
    {&Sezione::diametroValle, "lato valle"},
    {&Sezione::paliDiamEst},
    {&Sezione::paliDiamInt},
    {&Sezione::paliInterasse},
    {&Sezione::palancolaBase},
    {&Sezione::palancolaLargAla},
    {&Sezione::palancolaAltAla},
    {&Sezione::palancolaSpessore},
    {&Sezione::palancolaSpessAla},
    {&Sezione::armInterasse},
    {&Sezione::armDiamPalo},
    {&Sezione::armDiamLong},
    {&Sezione::armNumLong},
    {&Sezione::armCopriferro},
    {&Sezione::armDiamStaffe},
    {&Sezione::armPassoStaffe},
};

// The log draws the undrained strength as a curve and shows no number of it.
bool scritto(const Campo& campo) {
    return campo.unita.fattore != 1 && campo.membro != project::Membro(&DatiProgetto::suStrato);
}

void esamina(double valore, const std::string& campo, ElencoRilievi& elenco) {
    if (std::isfinite(valore)) return;
    elenco.impedimento(campo + ": " + traduttore("valore troppo grande per essere mostrato"));
}

void esaminaTabella(const DatiProgetto& dati, project::Parte parte, ElencoRilievi& elenco) {
    for (int j = 1; j <= project::righe(dati, parte); ++j)
        for (const Campo& c : project::campi())
            if (c.parte == parte && project::colonna(c) && scritto(c))
                esamina(project::mostrato(dati, c, j), nomeRiga(c, j) + ": " + nomeCampo(c),
                        elenco);
}

void esaminaParatia(const DatiProgetto& dati, ElencoRilievi& elenco) {
    for (const Campo& c : project::campi())
        if (c.parte == project::Parte::paratia && scritto(c))
            esamina(project::mostrato(dati, c), nomeCampo(c), elenco);
}

}  // namespace

void controlloMostrati(const DatiProgetto& dati, ElencoRilievi& elenco) {
    esaminaTabella(dati, project::Parte::strati, elenco);
    esaminaParatia(dati, elenco);
    esaminaTabella(dati, project::Parte::tiranti, elenco);
    esaminaTabella(dati, project::Parte::fasi, elenco);
    const auto inVigore = project::parteInVigore(dati.sezione);  // the only type that is shown
    for (const auto& [membro, dove] : campiMostrati) {
        const Campo& c = project::campo(membro);
        if (c.parte != inVigore) continue;
        const std::string faccia = dove.empty() ? std::string() : traduttore(dove) + ": ";
        esamina(project::mostrato(dati, c), faccia + nomeCampo(c), elenco);
    }
}

bool mostrabile(const DatiProgetto& dati) {
    ElencoRilievi elenco;
    controlloMostrati(dati, elenco);
    return elenco.ordinato().empty();
}

}  // namespace korven::review
