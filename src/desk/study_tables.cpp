#include "desk/study_tables.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <utility>

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "studies/dug_toe.hpp"
#include "studies/shown_columns.hpp"
#include "studies/summary/summary_tables.hpp"
#include "studies/summary/summary_text.hpp"

namespace korven::desk {

namespace {

using base::riempito;
using base::traduttore;
using studies::TavolaRiassunto;
using studies::ValoreMostrato;
using tables::Cella;
using tables::Prospetto;

Cella numero(double valore) {
    if (!std::isfinite(valore)) return {};
    return {.testo = studies::cinqueCifre(valore), .numero = valore};
}

// The verdict, with the stage that does not stand.
std::string caduta(const StudioFatto& fatto, std::span<const double> riga, safety::Causa causa) {
    const auto& nomi = fatto.studio->righe->nomi();
    const auto posto = std::ranges::find(nomi, studies::colonnaCaduta) - nomi.begin();
    const double fase = riga[static_cast<std::size_t>(posto)];
    const std::string detta = studies::causaMostrata(causa);
    return std::isfinite(fase)
               ? riempito(traduttore("%1, fase %2"), {detta, base::testoNumero(fase)})
               : detta;
}

Cella esito(const StudioFatto& fatto, std::span<const double> riga,
            studies::PiedeScavato& piedeScavato) {
    const auto causa = static_cast<safety::Causa>(riga[fatto.studio->righe->campi()]);
    if (causa != safety::Causa::eseguito) return tables::esito(caduta(fatto, riga, causa), true);
    if (piedeScavato(riga))
        return tables::esito(traduttore("in equilibrio con il piede scavato"), true);
    const bool fallita = std::ranges::any_of(fatto.conto.forma().condizioni,
                                             [&](const auto& c) { return c.vale(riga); });
    return tables::esito(traduttore(fallita ? "fallisce" : "in equilibrio"), fallita);
}

// What no variant has, as stirrups of a diaphragm wall, would be an empty column.
bool unaNeHa(const StudioFatto& fatto, std::size_t posto) {
    for (std::uint64_t i = 0; i < fatto.numero(); ++i)
        if (std::isfinite(fatto.riga(i)[posto])) return true;
    return false;
}

tables::Colonna colonna(const ValoreMostrato& valore) {
    return {.titolo = valore.titolo, .unita = std::string(valore.unita.mostrata)};
}

// The name of a value at the left, the numbers of its row beside it.
Prospetto prospetto(const TavolaRiassunto& tavola, std::string titolo) {
    Prospetto p{.titolo = std::move(titolo),
                .colonne = {{.titolo = traduttore("Grandezza fisica"), .numerica = false}}};
    for (const std::string& testa : tavola.testa)
        p.colonne.push_back({.titolo = base::conMaiuscola(testa)});
    return p;
}

Prospetto distribuzioni(const TavolaRiassunto& tavola, std::string nota) {
    Prospetto p = prospetto(tavola, traduttore("Distribuzioni"));
    p.note = {std::move(nota)};
    for (const auto& [nome, numeri] : tavola.righe) {
        std::vector<Cella> celle = {tables::parola(nome)};
        for (const auto& uno : numeri) celle.push_back(uno ? numero(*uno) : Cella{});
        p.righe.push_back(std::move(celle));
    }
    return p;
}

Prospetto correlazioni(const TavolaRiassunto& tavola) {
    constexpr int decimali = 2;
    Prospetto p = prospetto(tavola, traduttore("Correlazione tra i ranghi (Spearman)"));
    for (const auto& [nome, ranghi] : tavola.righe) {
        std::vector<Cella> celle = {tables::parola(nome)};
        for (const auto& rango : ranghi)
            celle.push_back(rango ? tables::cella(*rango, decimali, project::unita::nessuna)
                                  : Cella{});
        p.righe.push_back(std::move(celle));
    }
    return p;
}

}  // namespace

Prospetto prospettoVarianti(const StudioFatto& fatto, std::size_t massimo) {
    const auto& righe = *fatto.studio->righe;
    const auto& forma = fatto.conto.forma();
    const auto valori = studies::valoriMostrati(righe);
    Prospetto p{.titolo = traduttore("Varianti"),
                .colonne = {{.titolo = traduttore("Variante")},
                            {.titolo = traduttore("Esito"), .numerica = false}}};
    std::vector<std::size_t> posti;
    for (std::size_t j = 0; j < righe.campi(); ++j) posti.push_back(j);
    std::ranges::copy_if(forma.risultati, std::back_inserter(posti),
                         [&fatto](std::size_t j) { return unaNeHa(fatto, j); });
    for (const std::size_t j : posti) p.colonne.push_back(colonna(valori[j]));
    studies::PiedeScavato piedeScavato(fatto.studio->dati, righe.nominati());
    const auto quante = std::min<std::uint64_t>(massimo, fatto.numero());
    for (std::uint64_t i = 0; i < quante; ++i) {
        const auto riga = fatto.riga(i);
        std::vector<Cella> celle = {tables::cella(static_cast<int>(i) + 1),
                                    esito(fatto, riga, piedeScavato)};
        for (const std::size_t j : posti) celle.push_back(numero(valori[j].mostrato(riga[j])));
        p.righe.push_back(std::move(celle));
    }
    if (quante < fatto.numero())
        p.note.push_back(riempito(traduttore("Le prime %1 varianti di %2; il CSV le ha tutte."),
                                  {std::to_string(quante), std::to_string(fatto.numero())}));
    return p;
}

ProspettiCampioni prospettiCampioni(const StudioFatto& fatto) {
    if (!fatto.studio->scritto.campioni || fatto.numero() == 0) return {};
    const auto tavole = studies::tavoleRiassunto(fatto.conto.riassunto(), fatto.conto.forma(),
                                                 studies::valoriMostrati(*fatto.studio->righe));
    return {distribuzioni(tavole.distribuzioni,
                          riempito(traduttore("Quantili e correlazioni da %1 varianti."),
                                   {std::to_string(fatto.conto.riassunto().tenute())})),
            correlazioni(tavole.correlazioni)};
}

}  // namespace korven::desk
