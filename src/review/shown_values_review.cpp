#include <cmath>

#include "base/translated_texts.hpp"
#include "review/remark_list.hpp"
#include "structure/section_type.hpp"

namespace korven::review {

namespace {

using base::traduttore;
using project::Campo;
using project::DatiProgetto;
using project::Sezione;
using structure::TipoSezione;

// Of the section only the type in force is shown. `dove` names a face of the diaphragm.
struct CampoMostrato {
    TipoSezione tipo;
    double Sezione::*membro;
    std::string_view dove = {};
};

constexpr CampoMostrato campiMostrati[] = {
    {TipoSezione::diaframma, &Sezione::spessoreDiaframma},
    {TipoSezione::diaframma, &Sezione::copriferroMonte, "lato monte"},
    {TipoSezione::diaframma, &Sezione::interasseMonte, "lato monte"},
    {TipoSezione::diaframma, &Sezione::diametroMonte, "lato monte"},
    {TipoSezione::diaframma, &Sezione::copriferroValle, "lato valle"},
    {TipoSezione::diaframma, &Sezione::interasseValle, "lato valle"},
    {TipoSezione::diaframma, &Sezione::diametroValle, "lato valle"},
    {TipoSezione::pali, &Sezione::paliDiamEst},
    {TipoSezione::pali, &Sezione::paliDiamInt},
    {TipoSezione::pali, &Sezione::paliInterasse},
    {TipoSezione::palancola, &Sezione::palancolaBase},
    {TipoSezione::palancola, &Sezione::palancolaLargAla},
    {TipoSezione::palancola, &Sezione::palancolaAltAla},
    {TipoSezione::palancola, &Sezione::palancolaSpessore},
    {TipoSezione::palancola, &Sezione::palancolaSpessAla},
    {TipoSezione::paliArmati, &Sezione::armInterasse},
    {TipoSezione::paliArmati, &Sezione::armDiamPalo},
    {TipoSezione::paliArmati, &Sezione::armDiamLong},
    {TipoSezione::paliArmati, &Sezione::armNumLong},
    {TipoSezione::paliArmati, &Sezione::armCopriferro},
    {TipoSezione::paliArmati, &Sezione::armDiamStaffe},
    {TipoSezione::paliArmati, &Sezione::armPassoStaffe},
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
    for (const auto& [tipo, membro, dove] : campiMostrati) {
        if (tipo != structure::tipoSezione(dati.sezione)) continue;
        const Campo& c = project::campo(membro);
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
