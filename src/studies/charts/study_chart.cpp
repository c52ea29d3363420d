#include "studies/charts/study_chart.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <map>
#include <numeric>
#include <utility>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/annex/paper.hpp"
#include "drawings/annex/scene_plot.hpp"
#include "drawings/charts/charts.hpp"
#include "plot/plot_engine.hpp"
#include "scene/canvas.hpp"
#include "scene/text_measure.hpp"
#include "studies/summary/summary_tables.hpp"

namespace korven::studies {

namespace {

using base::riempito;
using base::traduttore;
using drawings::CurvaGrafico;
using drawings::GraficoCurve;
using drawings::Mancanza;
using drawings::PuntoGrafico;
using scene::Riquadro;

constexpr double bordo = 0.5 * drawings::corpoCarta;  // texts at the edge of the sheet need it
constexpr double riga = 1.5 * drawings::corpoCarta;

Mancanza mancanza(Sorte sorte) {
    switch (sorte) {
        case Sorte::cade:
            return Mancanza::cade;
        case Sorte::rifiutata:
            return Mancanza::rifiutata;
        case Sorte::senzaPiede:
            return Mancanza::senzaPiede;
        case Sorte::sta:
            break;
    }
    return Mancanza::senzaNumero;
}

drawings::ParoleMancanze parole() {
    return {traduttore("la paratia cade"), traduttore("dati rifiutati"), traduttore("senza valore"),
            traduttore("in equilibrio con il piede scavato")};
}

drawings::TestiAsse testiAsse(const ValoreMostrato& valore) {
    drawings::TestiAsse testi{.titolo = valore.testa(), .interi = valore.intero};
    for (const auto& [numero, nome] : valore.codici) testi.nomi.push_back({numero, nome});
    return testi;
}

class Foglio {
 public:
    Foglio(const Riassunto& r, const FormaRiga& forma, const GraficoStudio& grafico,
           double larghezza, double altezza)
        : r_(r),
          forma_(forma),
          grafico_(grafico),
          sorti_(r.sorti()),
          scena_(drawings::scenaCarta(drawings::misuraCarta(larghezza, altezza))),
          tela_(scena_.larghezza, scena_.altezza, testi_),
          posto_{bordo, 0, scena_.larghezza - bordo, scena_.altezza} {
        assert(std::ranges::count(forma.risultati, grafico.risultato) > 0);
        assert(grafico.valori.size() == forma.valori);
    }

    scene::Scena disegna() {
        const SceltaGrafico scelta = scegliGrafico(r_, forma_, grafico_);
        intestazione(scelta.nota);
        switch (scelta.specie) {
            case SpecieGrafico::curva:
            case SpecieGrafico::famiglia:
                curve(scelta);
                break;
            case SpecieGrafico::punti:
                nuvola(scelta.ascissa, posto_);
                break;
            case SpecieGrafico::campioni:
                campioni();
                break;
        }
        scena_.primitive = tela_.concludi();
        return std::move(scena_);
    }

 private:
    // Whose study it is and when, then what is to be known of the chart.
    void intestazione(const std::string& nota) {
        if (!grafico_.progetto.empty()) {
            scrivi(grafico_.progetto, grafico_.data);
            posto_.alto += riga / 3;
        }
        if (!nota.empty()) scrivi(nota, {});
        if (r_.tenute() < r_.numero())
            scrivi(riempito(traduttore("%1 varianti scelte a caso tra %2."),
                            {std::to_string(r_.tenute()), std::to_string(r_.numero())}),
                   {});
    }
    void scrivi(const std::string& sinistra, const std::string& destra) {
        const double y = posto_.alto + 0.7 * drawings::corpoCarta;
        drawings::scriviNota(tela_, sinistra, {posto_.sinistra, y}, scene::Ancora::sinistra);
        drawings::scriviNota(tela_, destra, {posto_.destra, y}, scene::Ancora::destra);
        posto_.alto += riga;
    }

    [[nodiscard]] std::string titolo(std::size_t posto) const {
        return grafico_.valori[posto].testa();
    }
    // The kept values of a place as they are shown.
    [[nodiscard]] std::vector<double> valori(std::size_t posto) const {
        auto tutti = r_.tenuti(posto);
        for (double& v : tutti) v = grafico_.valori[posto].mostrato(v);
        return tutti;
    }
    // The result over a field, in the order of the variants.
    [[nodiscard]] std::vector<PuntoGrafico> punti(std::size_t ascissa) const {
        const auto x = valori(ascissa), y = valori(grafico_.risultato);
        std::vector<PuntoGrafico> tutti;
        for (std::size_t i = 0; i < x.size(); ++i) {
            const bool manca = !std::isfinite(y[i]) && inEquilibrio(sorti_[i]);
            tutti.push_back({x[i], y[i], manca ? Mancanza::senzaNumero : mancanza(sorti_[i])});
        }
        return tutti;
    }

    void curve(const SceltaGrafico& scelta) {
        const auto tutti = punti(scelta.ascissa);
        const auto p =
            scelta.parametro ? r_.tenuti(*scelta.parametro) : std::vector<double>(tutti.size());
        std::map<double, std::vector<PuntoGrafico>> gruppi;
        for (std::size_t i = 0; i < tutti.size(); ++i) gruppi[p[i]].push_back(tutti[i]);
        GraficoCurve dati{.x = testiAsse(grafico_.valori[scelta.ascissa]),
                          .titoloY = titolo(grafico_.risultato),
                          .titoloCurve = {},
                          .curve = {},
                          .mancanze = parole()};
        if (scelta.parametro) dati.titoloCurve = grafico_.valori[*scelta.parametro].titolo;
        for (auto& [valore, suoi] : gruppi) {
            std::ranges::stable_sort(suoi, {}, &PuntoGrafico::x);
            std::string nome;
            if (scelta.parametro) nome = grafico_.valori[*scelta.parametro].detto(valore);
            dati.curve.push_back({std::move(nome), std::move(suoi)});
        }
        disegnaCurve(tela_, posto_, dati);
    }

    [[nodiscard]] Statistica statistica() const {
        const auto tutte = r_.statistiche();
        return *std::ranges::find(tutte, grafico_.risultato, &Statistica::posto);
    }

    // One below the other; the bars as high as they need.
    void campioni() {
        constexpr double massimaBarre = 0.35;
        const Statistica s = statistica();
        std::vector<std::size_t> ordine(forma_.campi);
        std::iota(ordine.begin(), ordine.end(), std::size_t{0});
        std::ranges::stable_sort(ordine, std::greater{}, [&s](std::size_t j) {
            return std::fabs(s.ranghi[j].value_or(0));
        });
        const double alto = posto_.altezza();
        const double barre = std::min(drawings::altezzaBarre(ordine.size()), massimaBarre * alto);
        const double primo = posto_.alto + (alto - barre - 2 * riga) / 2, secondo = primo + riga,
                     terzo = secondo + barre + riga;
        istogramma(s, {posto_.sinistra, posto_.alto, posto_.destra, primo});
        this->barre(s, ordine, {posto_.sinistra, secondo, posto_.destra, secondo + barre});
        nuvola(ordine.front(), {posto_.sinistra, terzo, posto_.destra, posto_.basso});
    }

    void istogramma(const Statistica& s, const Riquadro& posto) {
        drawings::Istogramma dati{titolo(s.posto), traduttore("varianti"), valori(s.posto), {}};
        for (std::size_t k = 0; s.quantili && k < quoteQuantili.size(); ++k)
            dati.segni.push_back({grafico_.valori[s.posto].mostrato((*s.quantili)[k]),
                                  nomeQuantile(quoteQuantili[k])});
        disegnaIstogramma(tela_, posto, dati);
    }

    void barre(const Statistica& s, const std::vector<std::size_t>& ordine, const Riquadro& posto) {
        drawings::GraficoBarre dati{traduttore("Correlazione tra i ranghi (Spearman)"), {}};
        for (const std::size_t j : ordine)
            dati.barre.push_back({grafico_.valori[j].titolo, s.ranghi[j]});
        disegnaGraficoBarre(tela_, posto, dati);
    }

    void nuvola(std::size_t campo, const Riquadro& posto) {
        drawings::disegnaNuvola(tela_, posto,
                                {.x = testiAsse(grafico_.valori[campo]),
                                 .titoloY = titolo(grafico_.risultato),
                                 .punti = punti(campo),
                                 .mancanze = parole()});
    }

    const Riassunto& r_;
    const FormaRiga& forma_;
    const GraficoStudio& grafico_;
    const std::vector<Sorte> sorti_;
    scene::MisuraStimata testi_;
    scene::Scena scena_;
    scene::Tela tela_;
    Riquadro posto_;  // still free
};

}  // namespace

FormatoGrafico formatoGrafico(const Riassunto& riassunto, const FormaRiga& forma,
                              const GraficoStudio& grafico) {
    constexpr FormatoGrafico largo{17, 11}, alto{17, 21};
    return scegliGrafico(riassunto, forma, grafico).specie == SpecieGrafico::campioni ? alto
                                                                                      : largo;
}

scene::Scena scenaGrafico(const Riassunto& riassunto, const FormaRiga& forma,
                          const GraficoStudio& grafico, double larghezza, double altezza) {
    return Foglio(riassunto, forma, grafico, larghezza, altezza).disegna();
}

void disegnaGrafico(const Riassunto& riassunto, const FormaRiga& forma,
                    const GraficoStudio& grafico, double larghezza, double altezza) {
    plot::plotApri(0, 0, larghezza, altezza);
    drawings::disegnaScena(scenaGrafico(riassunto, forma, grafico, larghezza, altezza));
    plot::plotMuovi(0, 0, plot::fineDisegno);
}

}  // namespace korven::studies
