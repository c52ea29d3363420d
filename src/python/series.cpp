#include "python/series.hpp"

#include <algorithm>
#include <iterator>
#include <span>
#include <thread>
#include <utility>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "python/errors.hpp"
#include "review/project_review.hpp"
#include "studies/plan/fault_words.hpp"
#include "studies/plan/plan_file.hpp"
#include "studies/runner.hpp"
#include "studies/summary/row_conditions.hpp"

namespace korven::python {

namespace {

using project::DatiProgetto;
using studies::Colonna;

studies::Piano leggi(const DatiProgetto& dati, std::string_view testo) {
    studies::PianoLetto letto = studies::leggiPiano(dati, testo);
    if (letto.piano) return *std::move(letto.piano);
    std::string perche;
    for (const studies::DifettoPiano& difetto : letto.difetti)
        perche.append(perche.empty() ? "" : "\n").append(studies::parole(difetto));
    throw ErroreCampo(perche);
}

std::vector<Colonna> colonne(const RichiestaSerie& richiesta, const DatiProgetto& dati,
                             const studies::Varianti& varianti) {
    const int tiranti = studies::tirantiPossibili(dati, varianti.campi());
    std::vector<std::string> fallisce;
    std::ranges::transform(richiesta.fallisce, std::back_inserter(fallisce), studies::risultatoDi);
    auto scelta = studies::scegliColonne(richiesta.colonne, tiranti, richiesta.sicurezza, fallisce);
    if (scelta.sconosciuto.empty()) return std::move(scelta.colonne);
    throw ErroreCampo(base::conDuePunti("colonne = " + scelta.sconosciuto,
                                        studies::nessunaColonna(scelta.sconosciuto, tiranti)));
}

studies::Domanda domanda(const RichiestaSerie& richiesta, int nSeg,
                         const std::vector<Colonna>& colonne) {
    const auto una = [&colonne](bool Colonna::*che) {
        return std::any_of(colonne.begin(), colonne.end(), [che](const auto& c) { return c.*che; });
    };
    return {.nSeg = nSeg,
            .ricalcolaEJ = richiesta.ricalcolaEJ,
            .soluzione = richiesta.iterazione ? studies::Soluzione::iterazione
                                              : studies::Soluzione::equilibrio,
            .riduzione = una(&Colonna::riduzione),
            .lunghezza = una(&Colonna::lunghezza)};
}

std::vector<studies::Condizione> condizioni(const RichiestaSerie& richiesta,
                                            const studies::RigheStudio& righe) {
    auto lette = studies::leggiCondizioni(richiesta.fallisce, righe);
    if (!lette.difetto) return std::move(lette.condizioni);
    const auto& [testo, difetto] = *lette.difetto;
    throw ErroreCampo(base::conDuePunti("fallisce = " + testo, studies::parole(difetto)));
}

// The cause is a column of every study.
void segnaFallite(const std::vector<studies::Condizione>& condizioni, TabellaSerie& tabella) {
    if (condizioni.empty()) return;
    const auto causa = static_cast<std::size_t>(
        std::ranges::find(tabella.nomi, studies::colonnaCausa) - tabella.nomi.begin());
    const std::size_t quanti = tabella.nomi.size();
    for (std::size_t da = 0; da < tabella.valori.size(); da += quanti) {
        const auto riga = std::span(tabella.valori).subspan(da, quanti);
        const auto sua = static_cast<safety::Causa>(riga[causa]);
        const bool una =
            std::ranges::any_of(condizioni, [riga](const auto& c) { return c.vale(riga); });
        const bool fallita = sua != safety::Causa::eseguito || una;
        tabella.fallite.push_back(sua == safety::Causa::rifiutato ? nessunaParete
                                  : fallita                       ? 1
                                                                  : 0);
    }
}

class Raccolta : public studies::UscitaStudio {
 public:
    Raccolta(TabellaSerie& tabella, const std::function<bool()>& fermata)
        : tabella_(tabella), fermata_(fermata) {}

    void prendi(const studies::Righe& righe) override {
        tabella_.valori.insert(tabella_.valori.end(), righe.valori.begin(), righe.valori.end());
        tabella_.righe += righe.numero;
    }
    bool prosegui(std::uint64_t) override { return !fermata_(); }

 private:
    TabellaSerie& tabella_;
    const std::function<bool()>& fermata_;
};

int fili(int chiesti) {
    return chiesti > 0 ? chiesti
                       : std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

}  // namespace

TabellaSerie serie(const DatiProgetto& dati, std::string_view piano,
                   const RichiestaSerie& richiesta, const std::function<bool()>& fermata) {
    const Chiesta c = chiesta(dati, richiesta.modo);
    if (!review::mostrabile(c.dati)) throw base::ErroreValore();
    const studies::Piano varianti = leggi(c.dati, piano);
    const std::vector<Colonna> scelte = colonne(richiesta, c.dati, varianti);
    const studies::RigheStudio righe(varianti.campi(), scelte, studies::Formato::csv);
    const auto fallisce = condizioni(richiesta, righe);
    TabellaSerie tabella{.nomi = righe.nomi()};
    tabella.parole.resize(righe.campi());
    for (const Colonna& colonna : scelte)
        tabella.parole.push_back(colonna.parole != nullptr ? *colonna.parole
                                                           : std::vector<std::string_view>());
    tabella.valori.reserve(varianti.numero() * righe.quanti());
    Raccolta raccolta(tabella, fermata);
    const studies::Studio studio{varianti, c.dati, domanda(richiesta, c.nSeg, scelte), righe};
    studies::esegui(studio, {0, varianti.numero()}, fili(richiesta.fili), raccolta);
    segnaFallite(fallisce, tabella);
    return tabella;
}

}  // namespace korven::python
