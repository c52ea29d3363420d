#include "studies/charts/study_chart.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <map>
#include <numeric>
#include <optional>
#include <set>
#include <utility>

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

using drawings::CurvaGrafico;
using drawings::GraficoCurve;
using scene::Riquadro;

constexpr std::size_t massimeCurve = 12;              // that the eye tells apart
constexpr double bordo = 0.5 * drawings::corpoCarta;  // texts at the edge of the sheet need it

std::size_t quantiValori(const std::vector<double>& v) {
    return std::set<double>(v.begin(), v.end()).size();
}

// The field whose values give the curves of a family.
std::optional<std::size_t> parametro(const Riassunto& r, const FormaRiga& forma,
                                     const GraficoStudio& grafico) {
    if (grafico.campioni || forma.campi != 2) return {};
    const std::size_t primo = quantiValori(r.tenuti(0)), secondo = quantiValori(r.tenuti(1));
    if (std::min(primo, secondo) > massimeCurve) return {};
    return primo < secondo ? 0 : 1;
}

bool curvaSola(const FormaRiga& forma, const GraficoStudio& grafico) {
    return !grafico.campioni && forma.campi == 1;
}

CurvaGrafico curva(std::string nome, std::vector<std::pair<double, double>> punti) {
    std::ranges::stable_sort(punti, {}, &std::pair<double, double>::first);
    CurvaGrafico c{std::move(nome), {}, {}};
    for (const auto& [x, y] : punti) {
        c.x.push_back(x);
        c.y.push_back(y);
    }
    return c;
}

class Foglio {
 public:
    Foglio(const Riassunto& r, const FormaRiga& forma, const GraficoStudio& grafico,
           double larghezza, double altezza)
        : r_(r),
          forma_(forma),
          grafico_(grafico),
          scena_(drawings::scenaCarta(drawings::misuraCarta(larghezza, altezza))),
          tela_(scena_.larghezza, scena_.altezza, testi_) {
        assert(std::ranges::count(forma.risultati, grafico.risultato) > 0);
        assert(grafico.valori.size() == forma.valori);
    }

    scene::Scena disegna() {
        if (curvaSola(forma_, grafico_))
            curve(0, std::nullopt);
        else if (const auto p = parametro(r_, forma_, grafico_))
            curve(1 - *p, p);
        else
            trePezzi();
        scena_.primitive = tela_.concludi();
        return std::move(scena_);
    }

 private:
    [[nodiscard]] std::string titolo(std::size_t posto) const {
        return grafico_.valori[posto].testa();
    }
    // The kept values of a place as they are shown.
    [[nodiscard]] std::vector<double> valori(std::size_t posto) const {
        auto tutti = r_.tenuti(posto);
        for (double& v : tutti) v = grafico_.valori[posto].mostrato(v);
        return tutti;
    }

    void curve(std::size_t ascissa, std::optional<std::size_t> parametro) {
        const auto x = valori(ascissa), y = valori(grafico_.risultato);
        const auto p = parametro ? valori(*parametro) : std::vector<double>(x.size());
        std::map<double, std::vector<std::pair<double, double>>> gruppi;
        for (std::size_t i = 0; i < x.size(); ++i) gruppi[p[i]].emplace_back(x[i], y[i]);
        GraficoCurve dati{
            titolo(ascissa), titolo(grafico_.risultato), {}, base::traduttore("senza valore")};
        for (auto& [valore, punti] : gruppi) {
            std::string nome;
            if (parametro) nome = titolo(*parametro) + " = " + base::testoNumero(valore);
            dati.curve.push_back(curva(std::move(nome), std::move(punti)));
        }
        disegnaCurve(tela_, {bordo, 0, scena_.larghezza - bordo, scena_.altezza}, dati);
    }

    [[nodiscard]] Statistica statistica() const {
        const auto tutte = r_.statistiche();
        return *std::ranges::find(tutte, grafico_.risultato, &Statistica::posto);
    }

    void trePezzi() {
        const Statistica s = statistica();
        const double meta = scena_.altezza / 2, mezza = scena_.larghezza / 2;
        istogramma(s, {bordo, 0, scena_.larghezza - bordo, meta - drawings::corpoCarta});
        std::vector<std::size_t> ordine(forma_.campi);
        std::iota(ordine.begin(), ordine.end(), std::size_t{0});
        std::ranges::stable_sort(ordine, std::greater{}, [&s](std::size_t j) {
            return std::fabs(s.ranghi[j].value_or(0));
        });
        barre(s, ordine, {bordo, meta, mezza - drawings::corpoCarta, scena_.altezza});
        nuvola(ordine.front(), {mezza, meta, scena_.larghezza - bordo, scena_.altezza});
    }

    void istogramma(const Statistica& s, const Riquadro& posto) {
        drawings::Istogramma dati{
            titolo(s.posto), base::traduttore("varianti"), valori(s.posto), {}};
        for (std::size_t k = 0; s.quantili && k < quoteQuantili.size(); ++k)
            dati.segni.push_back({grafico_.valori[s.posto].mostrato((*s.quantili)[k]),
                                  nomeQuantile(quoteQuantili[k])});
        disegnaIstogramma(tela_, posto, dati);
    }

    void barre(const Statistica& s, const std::vector<std::size_t>& ordine, const Riquadro& posto) {
        drawings::GraficoBarre dati{base::traduttore("Correlazione tra i ranghi (Spearman):"), {}};
        for (const std::size_t j : ordine) dati.barre.push_back({titolo(j), s.ranghi[j]});
        disegnaGraficoBarre(tela_, posto, dati);
    }

    void nuvola(std::size_t campo, const Riquadro& posto) {
        const auto x = valori(campo), y = valori(grafico_.risultato);
        drawings::Nuvola dati{titolo(campo), titolo(grafico_.risultato), {}};
        for (std::size_t i = 0; i < x.size(); ++i) dati.punti.push_back({x[i], y[i]});
        disegnaNuvola(tela_, posto, dati);
    }

    const Riassunto& r_;
    const FormaRiga& forma_;
    const GraficoStudio& grafico_;
    scene::MisuraStimata testi_;
    scene::Scena scena_;
    scene::Tela tela_;
};

}  // namespace

FormatoGrafico formatoGrafico(const Riassunto& riassunto, const FormaRiga& forma,
                              const GraficoStudio& grafico) {
    constexpr FormatoGrafico largo{17, 11}, alto{17, 18};
    return curvaSola(forma, grafico) || parametro(riassunto, forma, grafico) ? largo : alto;
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
