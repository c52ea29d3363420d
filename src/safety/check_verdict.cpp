#include "safety/check_verdict.hpp"

#include <algorithm>

#include "safety/margin.hpp"

namespace korven::safety {

namespace {

using results::Verifica;

const UsoMaglia* usiMaglia(const Margine& margine, Verifica cosa) {
    if (!margine.maglia) return nullptr;
    const auto& usi = margine.maglia->usi;
    const auto trovato =
        std::find_if(usi.begin(), usi.end(), [cosa](const UsoMaglia& u) { return u.cosa == cosa; });
    return trovato == usi.end() ? nullptr : &*trovato;
}

// What finer meshes say of a check that holds with this one.
Giudizio conMaglieFini(const Margine& margine, Verifica cosa) {
    if (!assestata(margine)) return Giudizio::cambia;
    const UsoMaglia* usi = usiMaglia(margine, cosa);
    if (usi == nullptr) return Giudizio::verificata;
    switch (usi->esito()) {
        case EsitoMaglie::verificata:
            return Giudizio::verificata;
        case EsitoMaglie::nonAssestata:
            return Giudizio::nonAssestata;
        case EsitoMaglie::cambia:
        case EsitoMaglie::fallita:
            break;
    }
    return Giudizio::cambia;
}

}  // namespace

bool VerificaSezione::fallita() const {
    return (equilibrio && equilibrio->fallita) || (relazione && relazione->fallita);
}

std::vector<VerificaSezione> verificheSezione(const project::DatiProgetto& dati,
                                              const equilibrium::Estremi& estremi,
                                              const results::NumeriRelazione* relazione) {
    const results::Controlli equilibrio = results::controlli(
        dati.sezione, results::momentiResistenti(dati), estremi.momentoMassimo.valore,
        estremi.momentoMinimo.valore, estremi.taglio.valore);
    std::vector<VerificaSezione> tutte;
    for (const Verifica cosa : results::tutteLeVerifiche) {
        VerificaSezione v{
            .cosa = cosa, .equilibrio = results::uso(equilibrio, cosa), .relazione = {}};
        if (relazione != nullptr)
            v.relazione = results::uso({relazione->flessione, relazione->taglioSezione}, cosa);
        if (v.equilibrio || v.relazione) tutte.push_back(v);
    }
    return tutte;
}

std::optional<Giudizio> giudizio(const Margine& margine, Verifica cosa) {
    const auto& tutte = margine.verifiche;
    const auto sua = std::find_if(tutte.begin(), tutte.end(),
                                  [cosa](const VerificaSezione& v) { return v.cosa == cosa; });
    // A negative moment may act with a finer mesh alone.
    if (sua == tutte.end() && usiMaglia(margine, cosa) == nullptr) return std::nullopt;
    return sua != tutte.end() && sua->fallita() ? Giudizio::fallita : conMaglieFini(margine, cosa);
}

std::vector<VerificaGiudicata> giudizi(const Margine& margine) {
    std::vector<VerificaGiudicata> tutti;
    for (const Verifica cosa : results::tutteLeVerifiche)
        if (const auto suo = giudizio(margine, cosa)) tutti.push_back({cosa, *suo});
    return tutti;
}

std::optional<double> tendenza(const Margine& margine, Verifica cosa) {
    const UsoMaglia* usi = usiMaglia(margine, cosa);
    return usi == nullptr ? std::nullopt : usi->limite();
}

bool assestata(const Margine& margine) { return !margine.sta() || margine.maglia.has_value(); }

std::string_view nome(Giudizio giudizio) {
    switch (giudizio) {
        case Giudizio::verificata:
            return "verificata";
        case Giudizio::nonAssestata:
            return "non a convergenza";
        case Giudizio::cambia:
            return "cambia con la maglia";
        case Giudizio::fallita:
            break;
    }
    return "NON verificata";
}

std::string_view parola(Giudizio giudizio) {
    switch (giudizio) {
        case Giudizio::verificata:
            return "verificata";
        case Giudizio::nonAssestata:
            return "non_assestata";
        case Giudizio::cambia:
            return "cambia";
        case Giudizio::fallita:
            break;
    }
    return "fallita";
}

}  // namespace korven::safety
