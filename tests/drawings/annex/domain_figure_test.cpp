#include "drawings/annex/domain_figure.hpp"

#include <cmath>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "drawings/annex/annex_drawings.hpp"
#include "drawings/annex/plot_strokes.hpp"
#include "live/section_checks.hpp"
#include "live/slow_results.hpp"
#include "support/annex_drawings.hpp"

namespace korven::drawings {
namespace {

using scene::Elemento;
using scene::Scena;
using scene::Testo;

class DominioSuCarta : public ProvaDisegniAllegato {};

// How often a stage is named: "fase 3", "fasi 1, 3–5".
std::map<int, int> quanteVolte(const std::vector<Testo>& testi) {
    std::map<int, int> volte;
    for (const Testo& t : testi) {
        std::istringstream parole(t.testo.substr(t.testo.find_first_of("0123456789")));
        for (std::string pezzo; std::getline(parole, pezzo, ',');) {
            const std::size_t tratto = pezzo.find("–");
            const int da = std::stoi(pezzo);
            const int a = tratto == std::string::npos
                              ? da
                              : std::stoi(pezzo.substr(tratto + std::string_view("–").size()));
            for (int k = da; k <= a; ++k) ++volte[k];
        }
    }
    return volte;
}

// At both points of each stage, none of its numbers on the border.
TEST_F(DominioSuCarta, NumbersTheStagesClearOfItsBorder) {
    for (const auto& dati : esempi()) {
        if (!live::sezioneCalcolabile(dati.sezione)) continue;
        const auto parete = live::calcola(dati, segmenti);
        const auto fasi = live::fasiNelDominio(parete, nullptr);
        const auto dominio = live::calcolaLenti({1, parete.dati, 0}).dominio;
        const Scena s =
            scenaDominioCarta(dominio, fasi, formatoDominio.larghezza, formatoDominio.altezza);
        verifica(s, dati.titoli[1] + " dominio ");
        const auto testi = test::figure<Testo>(s, Elemento::estremo);
        auto numeri = quanteVolte(testi);
        for (const Testo& t : testi) {
            for (const auto& bordo : test::figure<scene::Linea>(s, Elemento::curva))
                for (std::size_t i = 0; i + 1 < bordo.punti.size(); ++i)
                    EXPECT_FALSE(dentro(bordo.punti[i], bordo.punti[i + 1], t.riquadro()))
                        << dati.titoli[1] << ' ' << t.testo;
        }
        ASSERT_FALSE(fasi.empty());
        for (const auto& fase : fasi)
            EXPECT_TRUE(numeri[fase.fase] == 2 || (fase.fase == 1 && numeri[1] == 1))
                << dati.titoli[1] << ' ' << fase.fase;
    }
}

// The moments of twenty stages, the later ones the largest and close together.
TEST_F(DominioSuCarta, NamesHeapsOfStagesOnce) {
    for (const auto& dati : esempi()) {
        if (!live::sezioneCalcolabile(dati.sezione)) continue;
        const auto parete = live::calcola(dati, segmenti);
        auto fasi = live::fasiNelDominio(parete, nullptr);
        ASSERT_FALSE(fasi.empty());
        const live::FaseNelDominio ultima = fasi.back();
        fasi.clear();
        for (int k = 1; k <= 20; ++k) {
            auto& una = fasi.emplace_back(ultima);
            una.fase = k;
            const double quota = 1 - std::pow(0.7, k);
            una.momenti.mdMax *= quota;
            una.momenti.mdMin *= quota;
        }
        const Scena s = scenaDominioCarta(live::calcolaLenti({1, parete.dati, 0}).dominio, fasi,
                                          formatoDominio.larghezza, formatoDominio.altezza);
        verifica(s, dati.titoli[1] + " dominio ");
        const auto testi = test::figure<Testo>(s, Elemento::estremo);
        EXPECT_LT(testi.size(), 30U) << dati.titoli[1];
        auto numeri = quanteVolte(testi);
        for (int k = 1; k <= 20; ++k) EXPECT_GE(numeri[k], 1) << dati.titoli[1] << ' ' << k;
    }
}

}  // namespace
}  // namespace korven::drawings
