#include <algorithm>
#include <cmath>
#include <filesystem>
#include <optional>
#include <utility>

#include "base/filled_text.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"
#include "desk/study_result.hpp"
#include "dossier/identity.hpp"
#include "drawings/annex/scene_plot.hpp"
#include "studies/charts/study_chart.hpp"
#include "studies/summary/summary_text.hpp"

namespace korven::desk {

namespace {

using base::riempito;
using base::traduttore;
using document::Documento;
using document::Paragrafo;
using document::Titolo;
using tables::Cella;
using tables::Prospetto;

constexpr std::size_t righeDocumento = 200, righeCartella = 20'000;

std::vector<std::string> titoli(const studies::RigheStudio& righe) {
    std::vector<std::string> tutti(righe.teste());
    for (std::size_t j = righe.campi(); j < tutti.size(); ++j)
        tutti[j] = titoloRisultato(righe.nomi()[j]);
    return tutti;
}

// Of a result that the rows have.
std::optional<studies::GraficoStudio> grafico(const StudioFatto& fatto,
                                              const std::string& risultato) {
    const auto& nomi = fatto.studio->righe->nomi();
    const auto quale = std::ranges::find(nomi, risultato);
    const auto posto = static_cast<std::size_t>(quale - nomi.begin());
    if (std::ranges::find(fatto.conto.forma().risultati, posto) ==
            fatto.conto.forma().risultati.end() ||
        fatto.numero() == 0)
        return {};
    return studies::GraficoStudio{.risultato = posto,
                                  .titoli = titoli(*fatto.studio->righe),
                                  .campioni = fatto.studio->scritto.campioni};
}

std::optional<document::Figura> figura(const std::shared_ptr<const StudioFatto>& fatto,
                                       const std::string& risultato) {
    const auto suo = grafico(*fatto, risultato);
    if (!suo) return {};
    const auto [larghezza, altezza] =
        studies::formatoGrafico(fatto->conto.riassunto(), fatto->conto.forma(), *suo);
    return document::Figura{
        .didascalia = {},
        .descrizione =
            riempito(traduttore("Grafico dello studio: %1"), {titoloRisultato(risultato)}),
        .larghezza = larghezza,
        .altezza = altezza,
        .disegna = [fatto, suo = *suo, larghezza = larghezza, altezza = altezza] {
            drawings::disegnaScena(studies::scenaGrafico(
                fatto->conto.riassunto(), fatto->conto.forma(), suo, larghezza, altezza));
        }};
}

Cella numero(double valore) {
    if (!std::isfinite(valore)) return {};
    return {.testo = studies::cinqueCifre(valore), .numero = valore};
}

Cella esito(const StudioFatto& fatto, std::span<const double> riga) {
    const auto& righe = *fatto.studio->righe;
    const auto causa = static_cast<std::size_t>(riga[righe.campi()]);
    if (causa != static_cast<std::size_t>(safety::Causa::eseguito))
        return tables::esito(std::string(studies::paroleCausa().at(causa)), true);
    const bool fallita = std::ranges::any_of(fatto.conto.forma().condizioni,
                                             [&](const auto& c) { return c.vale(riga); });
    return tables::esito(traduttore(fallita ? "fallisce" : "in equilibrio"), fallita);
}

std::string impronta(const ProgettoDetto& progetto, const StudioFatto& fatto) {
    return std::filesystem::path(progetto.file).filename().string() + " (SHA-256 " +
           std::string(dossier::inBreve(dossier::impronta(fatto.studio->dati))) + ")";
}

std::string elenco(const std::vector<std::string>& parti) {
    std::string testo;
    for (const std::string& parte : parti) testo += (testo.empty() ? "" : ", ") + parte;
    return testo;
}

std::vector<std::string> domande(const StudioFatto& fatto) {
    const StudioScritto& s = fatto.studio->scritto;
    std::vector<std::string> dette = {
        riempito(traduttore("Varia: %1."), {elenco(fatto.studio->varia)})};
    if (s.campioni)
        dette.push_back(riempito(traduttore("Campioni: %1, seme %2."),
                                 {std::to_string(s.numero), std::to_string(s.seme)}));
    if (!s.fallisce.empty())
        dette.push_back(riempito(traduttore("Fallisce anche con: %1."), {elenco(s.fallisce)}));
    return dette;
}

}  // namespace

Prospetto prospetto(const StudioFatto& fatto, std::size_t massimo) {
    const auto& righe = *fatto.studio->righe;
    const auto& forma = fatto.conto.forma();
    const auto teste = titoli(righe);
    Prospetto p{.titolo = traduttore("Varianti"),
                .colonne = {{.titolo = traduttore("Variante")},
                            {.titolo = traduttore("Esito"), .numerica = false}}};
    std::vector<std::size_t> posti;
    for (std::size_t j = 0; j < righe.campi(); ++j) posti.push_back(j);
    posti.insert(posti.end(), forma.risultati.begin(), forma.risultati.end());
    for (const std::size_t j : posti) p.colonne.push_back({.titolo = teste[j]});
    const auto quante = std::min<std::uint64_t>(massimo, fatto.numero());
    for (std::uint64_t i = 0; i < quante; ++i) {
        const auto riga = fatto.riga(i);
        std::vector<Cella> celle = {tables::cella(static_cast<int>(i) + 1), esito(fatto, riga)};
        for (const std::size_t j : posti) celle.push_back(numero(riga[j]));
        p.righe.push_back(std::move(celle));
    }
    if (quante < fatto.numero())
        p.note.push_back(riempito(traduttore("Le prime %1 varianti di %2; il CSV le ha tutte."),
                                  {std::to_string(quante), std::to_string(fatto.numero())}));
    return p;
}

Documento documentoGrafico(const std::shared_ptr<const StudioFatto>& fatto,
                           const std::string& risultato) {
    Documento d;
    d.titolo = titoloRisultato(risultato);
    if (auto f = figura(fatto, risultato)) d.blocchi.emplace_back(*std::move(f));
    return d;
}

document::Formato formatoGrafico(const StudioFatto& fatto, const std::string& risultato) {
    constexpr double margine = 0.3 * document::puntiPerCentimetro;
    const auto suo = grafico(fatto, risultato);
    const auto [larga, alta] =
        suo ? studies::formatoGrafico(fatto.conto.riassunto(), fatto.conto.forma(), *suo)
            : studies::FormatoGrafico{1, 1};
    return {.larghezza = larga * document::puntiPerCentimetro + 2 * margine,
            .altezza = alta * document::puntiPerCentimetro + 2 * margine,
            .sinistra = margine,
            .destra = margine,
            .sopra = margine,
            .sotto = margine,
            .cornice = false};
}

Documento documento(const std::shared_ptr<const StudioFatto>& fatto, const std::string& risultato,
                    const ProgettoDetto& progetto) {
    Documento d;
    d.titolo = traduttore("Studio di varianti");
    d.autore = std::string(base::nomeEVersione);
    d.data = progetto.data;
    d.lingua = base::siglaIso(base::linguaCorrente());
    d.testata = {d.titolo, std::filesystem::path(progetto.file).filename().string()};
    d.piede = d.autore + ", " + progetto.data;
    d.blocchi.emplace_back(Titolo{1, d.titolo});
    d.blocchi.emplace_back(Paragrafo{impronta(progetto, *fatto)});
    for (std::string& frase : domande(*fatto)) d.blocchi.emplace_back(Paragrafo{std::move(frase)});
    for (std::string& frase : frasi(*fatto)) d.blocchi.emplace_back(Paragrafo{std::move(frase)});
    if (auto f = figura(fatto, risultato)) {
        d.blocchi.emplace_back(Titolo{2, titoloRisultato(risultato)});
        d.blocchi.emplace_back(*std::move(f));
    }
    Prospetto varianti = prospetto(*fatto, righeDocumento);
    d.blocchi.emplace_back(Titolo{2, std::exchange(varianti.titolo, {})});
    d.blocchi.emplace_back(document::Tavola{std::move(varianti)});
    return d;
}

workbook::CartellaFogli cartella(const StudioFatto& fatto, const ProgettoDetto& progetto) {
    workbook::CartellaFogli cartella;
    cartella.titolo = traduttore("Studio di varianti");
    cartella.piede = impronta(progetto, fatto) + " - " + std::string(base::nomeEVersione);
    cartella.data = progetto.data;
    Prospetto varianti = prospetto(fatto, righeCartella);
    for (auto dette : {domande(fatto), frasi(fatto)})
        varianti.note.insert(varianti.note.end(), dette.begin(), dette.end());
    cartella.fogli.push_back(
        {.nome = {}, .prospetto = std::move(varianti), .fonte = cartella.titolo});
    return cartella;
}

}  // namespace korven::desk
