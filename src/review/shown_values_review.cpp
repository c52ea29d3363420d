#include <cmath>

#include "base/colon.hpp"
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

void esamina(double valore, const Soggetto& campo, ElencoOsservazioni& elenco) {
    if (!std::isfinite(valore)) elenco.aggiungi("valore-non-mostrabile", campo);
}

// The value can't be told: its name alone.
Soggetto nominato(const Campo& campo, int riga = 0) {
    return {nomeCampo(campo), {project::nomeStabile(campo, riga)}};
}

void esaminaTabella(const DatiProgetto& dati, project::Parte parte, ElencoOsservazioni& elenco) {
    for (int j = 1; j <= project::righe(dati, parte); ++j)
        for (const Campo& c : project::campi())
            if (c.parte == parte && project::colonna(c) && scritto(c))
                esamina(project::mostrato(dati, c, j),
                        dopo(nomeRiga(c, j) + base::duePunti(), nominato(c, j)), elenco);
}

void esaminaParatia(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    for (const Campo& c : project::campi())
        if (c.parte == project::Parte::paratia && scritto(c))
            esamina(project::mostrato(dati, c), nominato(c), elenco);
}

}  // namespace

void controlloMostrati(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    esaminaTabella(dati, project::Parte::strati, elenco);
    esaminaParatia(dati, elenco);
    esaminaTabella(dati, project::Parte::tiranti, elenco);
    esaminaTabella(dati, project::Parte::fasi, elenco);
    const auto inVigore = project::parteInVigore(dati.sezione);  // the only type that is shown
    for (const auto& [membro, dove] : campiMostrati) {
        const Campo& c = project::campo(membro);
        if (c.parte != inVigore) continue;
        const std::string faccia =
            dove.empty() ? std::string() : traduttore(dove) + base::duePunti();
        esamina(project::mostrato(dati, c), dopo(faccia, nominato(c)), elenco);
    }
}

bool mostrabile(const DatiProgetto& dati) {
    ElencoOsservazioni elenco;
    controlloMostrati(dati, elenco);
    return elenco.ordinate().empty();
}

}  // namespace korven::review
