#include "batch/run/series_outcome.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/units.hpp"
#include "studies/summary/row_conditions.hpp"

namespace korven::batch {

namespace {

using base::riempito;
using base::traduttore;
using studies::Accordo;

constexpr std::size_t massimeElencate = 20;

std::string millimetri(double metri) {
    constexpr int decimali = 6;  // nanometres: ten times finer than what is allowed
    return base::testoDecimali(mostrato(project::unita::spostamentoFine, metri), decimali);
}

std::string parole(const studies::Controllata& c) {
    const std::string variante = std::to_string(c.variante + 1),
                      fase = std::to_string(c.esito.fase);
    if (c.esito.accordo == Accordo::verdetto)
        return riempito(
            traduttore("variante %1, fase %2: il calcolo per fasi trova riposo dove non "
                       "c'è equilibrio"),
            {variante, fase});
    return riempito(
        traduttore("variante %1, fase %2: gli spostamenti differiscono di %3 mm, ammessi "
                   "%4 mm"),
        {variante, fase, millimetri(c.esito.scarto), millimetri(c.esito.ammesso)});
}

std::size_t posto(const std::vector<std::string>& nomi, std::string_view nome) {
    return static_cast<std::size_t>(std::find(nomi.begin(), nomi.end(), nome) - nomi.begin());
}

studies::FormaRiga formaDi(const studies::RigheStudio& righe,
                           const std::vector<std::string>& condizioni) {
    auto lette = studies::leggiCondizioni(condizioni, righe);
    assert(!lette.difetto);
    studies::FormaRiga f{.campi = righe.campi(),
                         .valori = righe.quanti(),
                         .risultati = {},
                         .usi = {},
                         .condizioni = std::move(lette.condizioni)};
    std::size_t j = f.campi;
    for (const studies::Colonna& colonna : righe.colonne()) {
        const auto specie = colonna.specie;
        if (specie == studies::Specie::numero || specie == studies::Specie::uso)
            f.risultati.push_back(j);
        if (specie == studies::Specie::uso) f.usi.push_back(j);
        ++j;
    }
    return f;
}

}  // namespace

ContoSerie::ContoSerie(const studies::RigheStudio& righe, DomandaConto domanda)
    : domanda_(std::move(domanda)),
      nomi_(righe.nomi()),
      causa_(posto(nomi_, studies::colonnaCausa)),
      caduta_(posto(nomi_, studies::colonnaCaduta)),
      forma_(formaDi(righe, domanda_.condizioni)),
      riassunto_(forma_, domanda_.seme) {}

studies::EsitoRiga ContoSerie::esito(std::span<const double> valori) const {
    studies::EsitoRiga e;
    e.motivo = static_cast<int>(valori[causa_]);
    e.sta = e.motivo == static_cast<int>(safety::Causa::eseguito);
    if (caduta_ < valori.size() && !std::isnan(valori[caduta_]))
        e.fase = static_cast<int>(valori[caduta_]);
    return e;
}

void ContoSerie::riga(std::uint64_t i, std::span<const double> valori) {
    riassunto_.prendi(i, valori, esito(valori));
}

void ContoSerie::controllate(const std::vector<studies::Controllata>& altre) {
    for (const studies::Controllata& c : altre) {
        ++controllate_;
        senzaRiposo_ += c.esito.accordo == Accordo::senzaRiposo ? 1 : 0;
        incerte_ += c.esito.accordo == Accordo::incerto ? 1 : 0;
        if (!c.esito.diversi()) continue;
        ++diverse_;
        if (prime_.size() < massimeElencate) prime_.push_back(c);
    }
}

std::vector<std::string> ContoSerie::righe() const {
    std::vector<std::string> testo;
    testo.push_back(
        riempito(traduttore("%1 varianti, %2 in equilibrio in tutte le fasi."),
                 {std::to_string(riassunto_.numero()), std::to_string(riassunto_.stanno())}));
    if (limitati_ > 0)
        testo.push_back(
            riempito(traduttore("%1 valori erano oltre i limiti del loro campo e sono stati posti "
                                "al limite."),
                     {std::to_string(limitati_)}));
    const auto sue = studies::righeRiassunto(riassunto_, forma_,
                                             {.valori = nomi_,
                                              .motivi = studies::paroleCausa(),
                                              .condizioni = domanda_.condizioni,
                                              .campioni = domanda_.campioni,
                                              .indipendenti = domanda_.indipendenti});
    testo.insert(testo.end(), sue.begin(), sue.end());
    return testo;
}

std::vector<std::string> ContoSerie::righeControllo() const {
    if (controllate_ == 0) return {};
    std::vector<std::string> testo;
    testo.push_back(riempito(
        traduttore("%1 varianti calcolate in ambedue i modi: %2 diverse, %3 in cui il calcolo per "
                   "fasi non trova riposo, %4 senza soluzione di equilibrio."),
        {std::to_string(controllate_), std::to_string(diverse_), std::to_string(senzaRiposo_),
         std::to_string(incerte_)}));
    for (const studies::Controllata& c : prime_) testo.push_back(parole(c));
    if (diverse_ > prime_.size())
        testo.push_back(
            riempito(traduttore("... e altre %1."), {std::to_string(diverse_ - prime_.size())}));
    return testo;
}

}  // namespace korven::batch
