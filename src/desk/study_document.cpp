#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "desk/study_result.hpp"
#include "desk/study_tables.hpp"
#include "drawings/annex/scene_plot.hpp"
#include "studies/charts/study_chart.hpp"
#include "studies/plan/law.hpp"
#include "studies/shown_columns.hpp"

namespace korven::desk {

namespace {

using base::riempito;
using base::traduttore;
using document::Documento;
using document::Paragrafo;
using document::Titolo;
using tables::Prospetto;

constexpr std::size_t righeDocumento = 200, righeCartella = 20'000;
constexpr double altezzaMinima = 14;  // of a chart of samples that stays below its words [cm]

std::string titoloRisultato(const std::string& nome) {
    return studies::valoreMostrato(nome).testa();
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
                                  .valori = studies::valoriMostrati(*fatto.studio->righe),
                                  .campioni = fatto.studio->scritto.campioni};
}

std::optional<document::Figura> figura(const std::shared_ptr<const StudioFatto>& fatto,
                                       const std::string& risultato) {
    const auto suo = grafico(*fatto, risultato);
    if (!suo) return {};
    const auto [larghezza, altezza] =
        studies::formatoGrafico(fatto->conto.riassunto(), fatto->conto.forma(), *suo);
    const auto disegna = [fatto, suo = *suo, larghezza = larghezza](double alta) {
        drawings::disegnaScena(studies::scenaGrafico(fatto->conto.riassunto(), fatto->conto.forma(),
                                                     suo, larghezza, alta));
    };
    return document::Figura{.didascalia = {},
                            .descrizione = riempito(traduttore("Grafico dello studio: %1"),
                                                    {titoloRisultato(risultato)}),
                            .larghezza = larghezza,
                            .altezza = altezza,
                            .disegna = [disegna, altezza = altezza] { disegna(altezza); },
                            .altezzaMinima = std::min(altezza, altezzaMinima),
                            .disegnaBassa = disegna};
}

std::string elenco(const std::vector<std::string>& parti) {
    std::string testo;
    for (const std::string& parte : parti) testo += (testo.empty() ? "" : ", ") + parte;
    return testo;
}

std::string elenco(const std::vector<CriterioScritto>& criteri) {
    std::vector<std::string> parti;
    std::ranges::transform(criteri, std::back_inserter(parti), detto);
    return elenco(parti);
}

// Under a heading of its own, where it has rows.
void aggiungi(Documento& d, Prospetto prospetto) {
    if (prospetto.righe.empty()) return;
    d.blocchi.emplace_back(Titolo{2, std::exchange(prospetto.titolo, {})});
    d.blocchi.emplace_back(document::Tavola{std::move(prospetto)});
}

// "Lunghezza della paratia [m], da 8 a 12, passo 0.5"
std::string detta(const project::CampoNominato& campo, const VariazioneScritta& v, bool campioni) {
    std::string testo = studies::valoreMostrato(campo).testa();
    if (campioni) {
        const auto& legge = studies::nomiLeggi()[static_cast<std::size_t>(v.legge)];
        testo.append(", ").append(legge.nome.mostrato());
    }
    const auto nomi = nomiNumeri(campioni, v.legge);
    for (std::size_t j = 0; j < nomi.size(); ++j)
        if (!nomi[j].empty())
            testo.append(j == 1 && !campioni ? " " : ", ").append(nomi[j] + ' ' + v.numeri[j]);
    return testo;
}

std::vector<std::string> cheVaria(const StudioFatto& fatto) {
    std::vector<std::string> dette;
    std::size_t j = 0;
    for (const VariazioneScritta& v : fatto.studio->scritto.variazioni)
        if (!v.campo.empty())
            dette.push_back(riempito(
                traduttore("Varia: %1."),
                {detta(fatto.studio->righe->nominati()[j++], v, fatto.studio->scritto.campioni)}));
    return dette;
}

std::vector<std::string> domande(const StudioFatto& fatto) {
    const StudioScritto& s = fatto.studio->scritto;
    std::vector<std::string> dette = cheVaria(fatto);
    if (s.campioni)
        dette.push_back(riempito(traduttore("Campioni: %1, seme %2."),
                                 {std::to_string(s.numero), std::to_string(s.seme)}));
    if (!s.fallisce.empty())
        dette.push_back(riempito(traduttore("Fallisce anche con: %1."), {elenco(s.fallisce)}));
    return dette;
}

// The parts of a fact stay below it, further in.
void aggiungi(Documento& d, const std::vector<std::string>& fatti) {
    constexpr std::string_view parte = "  ", rientro = "\u00a0\u00a0\u00a0\u00a0";
    for (const std::string& fatto : fatti)
        if (fatto.starts_with(parte) && !d.blocchi.empty())
            std::get<Paragrafo>(d.blocchi.back())
                .testo.append("\n")
                .append(rientro)
                .append(fatto.substr(parte.size()));
        else
            d.blocchi.emplace_back(Paragrafo{fatto});
}

}  // namespace

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
    Documento d = documentoDi(progetto, traduttore("Studio di varianti"));
    aggiungi(d, domande(*fatto));
    aggiungi(d, frasi(*fatto));
    if (auto f = figura(fatto, risultato)) {
        d.blocchi.emplace_back(Titolo{2, titoloRisultato(risultato)});
        d.blocchi.emplace_back(*std::move(f));
    }
    auto [distribuzioni, correlazioni] = prospettiCampioni(*fatto);
    aggiungi(d, std::move(distribuzioni));
    aggiungi(d, std::move(correlazioni));
    aggiungi(d, prospettoVarianti(*fatto, righeDocumento));
    return d;
}

workbook::CartellaFogli cartella(const StudioFatto& fatto, const ProgettoDetto& progetto) {
    workbook::CartellaFogli cartella = cartellaDi(progetto, traduttore("Studio di varianti"));
    Prospetto varianti = prospettoVarianti(fatto, righeCartella);
    for (auto dette : {domande(fatto), frasi(fatto)})
        varianti.note.insert(varianti.note.end(), dette.begin(), dette.end());
    auto [distribuzioni, correlazioni] = prospettiCampioni(fatto);
    for (Prospetto* p : {&varianti, &distribuzioni, &correlazioni})
        if (!p->righe.empty())
            cartella.fogli.push_back(
                {.nome = {}, .prospetto = std::move(*p), .fonte = cartella.titolo});
    return cartella;
}

}  // namespace korven::desk
