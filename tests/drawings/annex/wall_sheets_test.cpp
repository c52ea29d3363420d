// The walls of a document beside the curves of their results.

#include "drawings/annex/wall_sheets.hpp"

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "drawings/annex/annex_drawings.hpp"
#include "drawings/annex/plot_strokes.hpp"
#include "drawings/annex/wall_curves.hpp"
#include "project/shown_number.hpp"
#include "project/units.hpp"
#include "support/annex_drawings.hpp"
#include "support/sample_projects.hpp"

namespace korven::drawings {
namespace {

using scene::Elemento;
using scene::Riquadro;
using scene::Scena;
using scene::Testo;

class FogliParete : public ProvaDisegniAllegato {};

// Beside a wall that falls stand the limits of both sides, on its own depths.
TEST_F(FogliParete, OfAMechanismHaveTheLimitPressuresInAllLanguages) {
    auto dati = test::progettoSemplice();
    dati.profFase[2] = 11.9;
    dati.tirantiFase[2] = 0;
    const auto parete = live::calcola(dati, segmenti);
    ASSERT_EQ(parete.fasiInEquilibrio(), 1);
    PressioniLimite p;
    for (int i = 0; i <= segmenti; ++i) {
        p.monte.push_back(0.3 * i);
        p.valle.push_back(i < segmenti / 2 ? 0 : -3.0 * i);
        p.acqua.push_back(0);
    }
    for (int lingua = 1; lingua <= 6; ++lingua) {
        base::impostaLingua(lingua);
        const Scena s = scenaMeccanismo(parete, 2, p, formatoFase.larghezza, formatoFase.altezza);
        verifica(s, std::to_string(lingua));
        std::string testi;
        for (const Testo& t : test::figure<Testo>(s)) testi += t.testo + "\n";
        EXPECT_NE(testi.find("-900"), std::string::npos) << testi;  // kN/m2 at the toe
    }
    base::impostaLingua(1);
    const auto conAcqua = [&] {
        const Scena s = scenaMeccanismo(parete, 2, p, formatoFase.larghezza, formatoFase.altezza);
        const auto testi = test::figure<Testo>(s);
        return std::any_of(testi.begin(), testi.end(),
                           [](const Testo& t) { return t.testo == "acqua"; });
    };
    EXPECT_FALSE(conAcqua());
    for (double& acqua : p.acqua) acqua = 2;
    EXPECT_TRUE(conAcqua());
}

// In particular of a wall whose ground ends above its toe.
TEST_F(FogliParete, NameEachLineOfThePressuresAndGiveItAStrokeOfItsOwn) {
    std::size_t piu = 0;
    auto muri = esempi();
    for (const auto& file : test::muriIn(KORVEN_WALLS)) muri.push_back(test::leggiMuro(file));
    for (const auto& dati : muri) {
        const auto parete = live::calcola(dati, segmenti);
        for (int k = 1; k <= parete.fasiInEquilibrio(); ++k) {
            std::vector<std::string> testi;
            for (const Testo& t : test::figure<Testo>(
                     scenaFase(parete, k, formatoFase.larghezza, formatoFase.altezza)))
                testi.push_back(t.testo);
            const auto curve = pannelliFase(parete, k).at(0).curve;
            std::set<scene::Tratteggio> tratti;
            for (const CurvaPannello& c : curve) {
                EXPECT_EQ(std::count(testi.begin(), testi.end(), c.nome), 1)
                    << dati.titoli[1] << k << c.nome;
                tratti.insert(c.tratteggio);
            }
            EXPECT_EQ(tratti.size(), curve.size());
            piu = std::max(piu, curve.size());
        }
    }
    EXPECT_EQ(piu, 3U) << "some wall has water";
}

struct Picco {
    double valore, z;
};

// Largest and smallest value of a curve and their depths, if they are more than noise.
std::vector<Picco> picchi(const std::vector<double>& valori, double h) {
    std::vector<Picco> tutti;
    double grande = 0;
    for (const double v : valori) grande = std::max(grande, std::fabs(v));
    for (const double verso : {1.0, -1.0}) {
        std::size_t dove = 0;
        for (std::size_t i = 1; i < valori.size(); ++i)
            if (verso * valori[i] > verso * valori[dove]) dove = i;
        if (verso * valori[dove] > 0.005 * grande)
            tutti.push_back({valori[dove], h * static_cast<double>(dove)});
    }
    return tutti;
}

std::string scritto(const Picco& picco, const project::Unita& unita) {
    return project::numeroMostrato(picco.valore, 1, unita) + " · " +
           project::numeroMostrato(picco.z, 2) + " m";
}

// What is written at each peak, its rows as one.
std::vector<std::string> scritteAiPicchi(const Scena& s) {
    std::map<int, std::string> tutte;
    for (const auto& p : s.primitive) {
        const auto* t = std::get_if<Testo>(&p.figura);
        if (t == nullptr || p.elemento != Elemento::estremo) continue;
        std::string& una = tutte[p.numero];
        una += (una.empty() ? "" : " · ") + t->testo;
    }
    std::vector<std::string> scritte;
    for (const auto& [numero, una] : tutte) scritte.push_back(una);
    return scritte;
}

// The shears above and below each node, one behind the other.
std::vector<double> dueLati(const equilibrium::FaseEquilibrio& fase) {
    std::vector<double> tutti;
    for (std::size_t i = 0; i < fase.y.size(); ++i) {
        tutti.push_back(fase.taglioSopra[i]);
        tutti.push_back(fase.taglioSotto[i]);
    }
    return tutti;
}

TEST_F(FogliParete, WriteThePeaksOfEveryStageWithTheirDepthsClearOfTheCurves) {
    for (const auto& dati : esempi()) {
        const auto parete = live::calcola(dati, segmenti);
        for (int k = 1; k <= parete.fasiInEquilibrio(); ++k) {
            const auto& fase = *parete.fase(k);
            const Scena s = scenaFase(parete, k, formatoFase.larghezza, formatoFase.altezza);
            const auto scritte = scritteAiPicchi(s);
            const std::vector<double> taglio = dueLati(fase);
            using Voce = std::pair<const std::vector<double>*, project::Unita>;
            namespace unita = project::unita;
            for (const auto& [valori, una] :
                 {Voce{&fase.y, unita::spostamentoFine}, Voce{&fase.momento, unita::momentoAlMetro},
                  Voce{&fase.monte, unita::pressione}, Voce{&fase.valle, unita::pressione}})
                for (const Picco& picco : picchi(*valori, parete.h))
                    EXPECT_TRUE(test::dice(scritte, scritto(picco, una)))
                        << dati.titoli[1] << " fase " << k << ": " << scritto(picco, una);
            for (Picco picco : picchi(taglio, 1)) {
                picco.z = parete.h * std::floor(picco.z / 2);
                EXPECT_TRUE(test::dice(scritte, scritto(picco, unita::forzaAlMetro)))
                    << dati.titoli[1] << " fase " << k << ": "
                    << scritto(picco, unita::forzaAlMetro);
            }
            for (const auto& curva : test::figure<scene::Linea>(s, Elemento::curva))
                for (const Testo& t : test::figure<Testo>(s, Elemento::estremo))
                    for (const scene::Punto& p : curva.punti) {
                        const Riquadro r = t.riquadro();
                        EXPECT_FALSE(p.x > r.sinistra && p.x < r.destra && p.y > r.alto &&
                                     p.y < r.basso)
                            << dati.titoli[1] << " fase " << k << ": " << t.testo;
                    }
        }
    }
}

TEST_F(FogliParete, TellTheStageOfAnEnvelopesPeak) {
    const auto parete = live::calcola(test::progettoSemplice(), segmenti);
    ASSERT_TRUE(parete.sta());
    const auto& estremo = parete.estremi.momento();
    const auto testi = scritteAiPicchi(
        scenaInviluppi(parete, formatoInviluppi.larghezza, formatoInviluppi.altezza));
    EXPECT_TRUE(
        test::dice(testi, scritto({estremo.valore, estremo.z}, project::unita::momentoAlMetro) +
                              " · fase " + std::to_string(estremo.fase)))
        << testing::PrintToString(testi);
}

// In every language, however long its words are.
TEST_F(FogliParete, TellWhichWayPositiveDisplacementsPoint) {
    const auto parete = live::calcola(test::progettoSemplice(), segmenti);
    for (int lingua = 1; lingua <= 6; ++lingua) {
        base::impostaLingua(lingua);
        std::string testi;
        for (const Testo& t : test::figure<Testo>(
                 scenaInviluppi(parete, formatoInviluppi.larghezza, formatoInviluppi.altezza)))
            testi += t.testo + " ";
        EXPECT_NE(testi.find(base::traduttore("+ verso lo scavo")), std::string::npos) << testi;
    }
}

// The reader has nothing else that says what turns the head, or why some anchors are grey.
TEST_F(FogliParete, ValueAllLoadsOfTheHeadAndExplainAnchorsThatAreNotInPlace) {
    std::size_t conMomento = 0, conFuturi = 0;
    for (const auto& dati : esempi()) {
        const auto parete = live::calcola(dati, segmenti);
        const int carichi =
            (dati.momentoTesta != 0) + (dati.sforzoNormale != 0) + (dati.forzaTesta != 0);
        conMomento += dati.momentoTesta != 0;
        for (int k = 1; k <= parete.fasiInEquilibrio(); ++k) {
            const Scena s = scenaFase(parete, k, formatoFase.larghezza, formatoFase.altezza);
            EXPECT_EQ(test::testi(s, Elemento::caricoTesta).size(),
                      static_cast<std::size_t>(carichi))
                << dati.titoli[1] << k;
            const bool futuri = dati.tirantiFase[k] < dati.nTiranti;
            conFuturi += futuri;
            EXPECT_EQ(test::dice(test::testi(s, Elemento::nota), "in grigio: non ancora in opera"),
                      futuri)
                << dati.titoli[1] << k;
        }
    }
    EXPECT_GT(conMomento, 0U);
    EXPECT_GT(conFuturi, 0U);
}

TEST_F(FogliParete, ShowAWallThatFallsAsAMechanismWithoutCurves) {
    const auto parete =
        live::calcola(test::leggiMuro(std::string(KORVEN_WALLS) + "/meccanismo.kvd"), segmenti);
    ASSERT_FALSE(parete.sta());
    const Scena s = scenaFase(parete, static_cast<int>(parete.fasi.size()), formatoFase.larghezza,
                              formatoFase.altezza);
    EXPECT_FALSE(test::figure<scene::Linea>(s, Elemento::meccanismo).empty());
    EXPECT_TRUE(test::figure<scene::Linea>(s, Elemento::curva).empty());
    const auto testi = test::testi(s, Elemento::asse);
    EXPECT_EQ(std::count(testi.begin(), testi.end(), "nessuna curva"), 4);
}

TEST_F(FogliParete, CompareTwoWallsOnOneAxis) {
    const auto a = live::calcola(test::progettoSemplice(), segmenti);
    auto dati = test::progettoSemplice();
    dati.lunghezzaParatia = 15;
    const auto b = live::calcola(dati, segmenti);
    for (const FormatoFigura& f : {formatoConfronto, formatoConfrontoLargo}) {
        const Scena s = scenaConfronto({a, "prima.kvd"}, {b, "dopo.kvd"}, f.larghezza, f.altezza);
        verifica(s, "confronto ");
        const auto testi = scritteAiPicchi(s);
        for (const auto* parete : {&a, &b}) {
            const auto& e = parete->estremi.momento();
            EXPECT_TRUE(
                test::dice(testi, (parete == &a ? "A " : "B ") +
                                      scritto({e.valore, e.z}, project::unita::momentoAlMetro)));
        }
        EXPECT_TRUE(test::dice(test::testi(s, Elemento::nota), "A  prima.kvd"));
        EXPECT_TRUE(test::dice(test::testi(s, Elemento::nota), "B  dopo.kvd"));
    }
}

}  // namespace
}  // namespace korven::drawings
