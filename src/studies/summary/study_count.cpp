#include "studies/summary/study_count.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/units.hpp"
#include "studies/summary/row_conditions.hpp"

namespace korven::studies {

namespace {

using base::riempito;
using base::traduttore;

constexpr std::size_t massimeElencate = 20;

std::string millimetri(double metri) {
    constexpr int decimali = 6;  // nanometres: ten times finer than what is allowed
    return base::testoDecimali(mostrato(project::unita::spostamentoFine, metri), decimali);
}

std::string parole(const Controllata& c) {
    const std::string variante = std::to_string(c.variante + 1),
                      fase = std::to_string(c.esito.fase);
    if (c.esito.accordo == Accordo::verdetto)
        return riempito(traduttore("variante %1, fase %2: il calcolo per fasi converge dove non "
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

FormaRiga formaDi(const RigheStudio& righe, const std::vector<std::string>& condizioni) {
    auto lette = leggiCondizioni(condizioni, righe);
    assert(!lette.difetto);
    FormaRiga f{.campi = righe.campi(),
                .valori = righe.quanti(),
                .risultati = {},
                .usi = {},
                .condizioni = std::move(lette.condizioni)};
    std::size_t j = f.campi;
    for (const Colonna& colonna : righe.colonne()) {
        if (disegnabile(colonna) && colonna.scritta) f.risultati.push_back(j);
        if (colonna.specie == Specie::uso) f.usi.push_back(j);
        ++j;
    }
    return f;
}

std::vector<std::string> uniti(std::vector<std::string> prima,
                               const std::vector<std::string>& dopo) {
    prima.insert(prima.end(), dopo.begin(), dopo.end());
    return prima;
}

}  // namespace

ContoStudio::ContoStudio(const project::DatiProgetto& dati, const RigheStudio& righe,
                         DomandaConto domanda)
    : domanda_(std::move(domanda)),
      righe_(righe),
      piedeScavato_(dati, righe.nominati()),
      causa_(posto(righe.nomi(), colonnaCausa)),
      caduta_(posto(righe.nomi(), colonnaCaduta)),
      forma_(formaDi(righe, domanda_.condizioni)),
      riassunto_(forma_, domanda_.seme) {}

EsitoRiga ContoStudio::esito(std::span<const double> valori) {
    EsitoRiga e;
    e.motivo = static_cast<int>(valori[causa_]);
    const auto causa = static_cast<safety::Causa>(e.motivo);
    if (causa == safety::Causa::rifiutato)
        e.sorte = Sorte::rifiutata;
    else if (causa != safety::Causa::eseguito)
        e.sorte = Sorte::cade;
    else if (piedeScavato_(valori))
        e.sorte = Sorte::senzaPiede;
    if (caduta_ < valori.size() && !std::isnan(valori[caduta_]))
        e.fase = static_cast<int>(valori[caduta_]);
    return e;
}

void ContoStudio::riletta(std::uint64_t i, std::span<const double> valori) {
    if (!righe_.tutteScritte()) ++rilette_;
    riga(i, valori);
}

void ContoStudio::riga(std::uint64_t i, std::span<const double> valori) {
    riassunto_.prendi(i, valori, esito(valori));
}

void ContoStudio::controllate(const std::vector<Controllata>& altre) {
    for (const Controllata& c : altre) {
        ++controllate_;
        senzaRiposo_ += c.esito.accordo == Accordo::senzaRiposo ? 1 : 0;
        if (c.esito.accordo == Accordo::senzaRiposo && primeSenzaRiposo_.size() < massimeElencate)
            primeSenzaRiposo_.push_back(c.variante);
        incerte_ += c.esito.accordo == Accordo::incerto ? 1 : 0;
        if (!c.esito.diversi()) continue;
        ++diverse_;
        if (prime_.size() < massimeElencate) prime_.push_back(c);
    }
}

std::vector<std::string> ContoStudio::conteggi() const {
    std::vector<std::string> testo;
    testo.push_back(
        riempito(traduttore("Varianti: %1; in equilibrio in tutte le fasi: %2."),
                 {std::to_string(riassunto_.numero()), std::to_string(riassunto_.stanno())}));
    return testo;
}

void ContoStudio::limitati(const ContoEstremita& quanti) {
    for (const auto& [limite, suoi] : quanti) limitati_[limite] += suoi;
}

// So many that what the study comes to is not of the law any more.
bool ContoStudio::molti(std::uint64_t limitati) const {
    constexpr double quota = 0.01;
    return static_cast<double>(limitati) > quota * static_cast<double>(riassunto_.numero());
}

std::string ContoStudio::detto(const Estremita& limite, std::uint64_t quanti) const {
    const project::CampoNominato& campo = righe_.nominati().at(limite.campo);
    assert(campo.campo->limiti);
    const ValoreMostrato valore = valoreMostrato(campo);
    const auto [minimo, massimo] = *campo.campo->limiti;
    return base::conDuePunti(
        valore.titolo,
        riempito(traduttore("%1 valori su %2 oltre %3, limite del campo, e posti al limite."),
                 {std::to_string(quanti), std::to_string(riassunto_.numero()),
                  valore.detto(limite.massimo ? massimo : minimo)}));
}

std::vector<std::string> ContoStudio::avvisi() const {
    std::vector<std::string> testo;
    for (const auto& [limite, quanti] : limitati_)
        if (molti(quanti))
            testo.push_back(detto(limite, quanti) + ' ' +
                            traduttore("I risultati non sono quelli della legge scritta: "
                                       "controllare la legge e la sua unità."));
    return testo;
}

std::vector<std::string> ContoStudio::pochiLimitati() const {
    std::vector<std::string> testo;
    for (const auto& [limite, quanti] : limitati_)
        if (!molti(quanti)) testo.push_back(detto(limite, quanti));
    return testo;
}

// A file that was gone on with may lack what is counted.
std::vector<std::string> ContoStudio::senzaConto() const {
    if (rilette_ == 0) return {};
    return {riempito(
        traduttore(
            "Varianti riprese dal file: %1. Del file non si conoscono che le colonne scritte: "
            "usi e fasi qui sopra, se non scritti, sono delle altre %2 varianti."),
        {std::to_string(rilette_), std::to_string(riassunto_.numero() - rilette_)})};
}

NomiRiassunto ContoStudio::nomi() const {
    return {.valori = valoriMostrati(righe_),
            .motivi = causeMostrate(),
            .campioni = domanda_.campioni,
            .indipendenti = domanda_.indipendenti};
}

std::vector<std::string> ContoStudio::righe() const {
    return uniti(fatti(), tavoleInTesto(riassunto_, forma_, nomi()));
}

std::vector<std::string> ContoStudio::fatti() const {
    const auto conti = uniti(uniti(avvisi(), conteggi()), pochiLimitati());
    return uniti(uniti(conti, fattiRiassunto(riassunto_, forma_, nomi())), senzaConto());
}

std::vector<std::string> ContoStudio::righeControllo() const {
    if (controllate_ == 0) return {};
    std::vector<std::string> testo;
    testo.push_back(riempito(
        traduttore("%1 varianti calcolate in ambedue i modi: %2 diverse, %3 in cui il calcolo per "
                   "fasi non converge, %4 senza soluzione di equilibrio."),
        {std::to_string(controllate_), std::to_string(diverse_), std::to_string(senzaRiposo_),
         std::to_string(incerte_)}));
    std::string senzaRiposo;
    for (const std::uint64_t i : primeSenzaRiposo_)
        senzaRiposo.append(senzaRiposo.empty() ? "" : ", ").append(std::to_string(i + 1));
    if (senzaRiposo_ > primeSenzaRiposo_.size()) senzaRiposo += ", ...";
    if (!senzaRiposo.empty())
        testo.push_back(riempito(traduttore("Il calcolo per fasi non converge nelle varianti %1."),
                                 {senzaRiposo}));
    for (const Controllata& c : prime_) testo.push_back(parole(c));
    if (diverse_ > prime_.size())
        testo.push_back(
            riempito(traduttore("... e altre %1."), {std::to_string(diverse_ - prime_.size())}));
    return testo;
}

}  // namespace korven::studies
