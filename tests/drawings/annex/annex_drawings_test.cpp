// What must hold of every drawing of a document, of any wall and in all languages: texts inside it,
// none over another, large enough to be read on paper; the peaks of the curves with their values.

#include "drawings/annex/annex_drawings.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "base/translated_texts.hpp"
#include "drawings/annex/domain_figure.hpp"
#include "drawings/annex/paper.hpp"
#include "drawings/annex/plot_strokes.hpp"
#include "drawings/annex/section_figure.hpp"
#include "drawings/annex/wall_curves.hpp"
#include "drawings/annex/wall_to_scale.hpp"
#include "drawings/hatch_library.hpp"
#include "live/section_checks.hpp"
#include "live/slow_results.hpp"
#include "project/shown_number.hpp"
#include "project/units.hpp"
#include "support/drawing_by_pen.hpp"
#include "support/random_walls.hpp"
#include "support/sample_projects.hpp"
#include "support/scene_parts.hpp"
#include "support/wall_files.hpp"

namespace korven::drawings {
namespace {

using scene::Elemento;
using scene::Riquadro;
using scene::Scena;
using scene::Testo;

constexpr int segmenti = 30;

// Texts of a drawing against each other and its frame.
void verifica(const Scena& s, const std::string& dove) {
    const auto testi = test::figure<Testo>(s);
    for (std::size_t i = 0; i < testi.size(); ++i) {
        const Riquadro r = testi[i].riquadro();
        EXPECT_TRUE(r.sinistra >= 0 && r.destra <= s.larghezza && r.alto >= 0 &&
                    r.basso <= s.altezza)
            << dove << testi[i].testo;
        EXPECT_GE(testi[i].corpo * altezzaMaiuscole / pixelCarta, 0.2) << dove << testi[i].testo;
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(r.tocca(testi[j].riquadro()))
                << dove << testi[i].testo << " | " << testi[j].testo;
    }
}

// The stored drawing stays in its place and needs no spill file.
void verificaStore(const FormatoFigura& f, const std::string& dove) {
    const auto& archivio = plot::statoPlot.archivio;
    EXPECT_LT(archivio.lineeInMemoria().size(), 20000u) << dove;
    EXPECT_EQ(archivio.nFileScarico(), 0) << dove;
    constexpr double ago = 1e-9;
    const auto inside = [&](double x, double y) {
        return x >= -ago && x <= f.larghezza + ago && y >= -ago && y <= f.altezza + ago;
    };
    EXPECT_TRUE(std::all_of(
        archivio.lineeInMemoria().begin(), archivio.lineeInMemoria().end(),
        [&](const plot::Segmento& l) { return inside(l.x1, l.y1) && inside(l.x2, l.y2); }))
        << dove;
    for (const plot::TestoPlot& t : archivio.testi()) EXPECT_TRUE(inside(t.x, t.y)) << dove;
}

class DisegniAllegato : public test::ProvaPlot {
 protected:
    DisegniAllegato() {
        const std::string cartella = KORVEN_PROGRAM_FOLDER;
        base::caricaTesti(cartella + "/texts01.txt", cartella + "/texts06.txt",
                          cartella + "/texts32.txt");
        base::impostaCartellaProgramma(cartella);  // with its hatches
        dimenticaCampiture();
    }
    ~DisegniAllegato() override {
        base::impostaLingua(1);
        dimenticaCampiture();
    }

    void verificaParete(const live::PareteViva& parete, const std::string& dove) {
        for (int k = 1; k <= parete.dati.nFasi; ++k)
            verifica(scenaFase(parete, k, formatoFase.larghezza, formatoFase.altezza),
                     dove + " fase " + std::to_string(k) + " ");
        verifica(scenaInviluppi(parete, formatoInviluppi.larghezza, formatoInviluppi.altezza),
                 dove + " inviluppi ");
        verifica(scenaParete(parete, formatoParete.larghezza, formatoParete.altezza),
                 dove + " parete ");
        verifica(
            scenaSezione(parete.dati.sezione, formatoSezione.larghezza, formatoSezione.altezza),
            dove + " sezione ");
    }

    static std::vector<project::DatiProgetto> esempi() {
        std::vector<project::DatiProgetto> tutti;
        for (const auto& file : test::muriIn(KORVEN_EXAMPLES))
            tutti.push_back(test::leggiMuro(file));
        return tutti;
    }
};

TEST_F(DisegniAllegato, OfTheExamplesHaveNoTextOverAnotherInAnyLanguage) {
    for (const auto& dati : esempi()) {
        const auto parete = live::calcola(dati, segmenti);
        for (int lingua = 1; lingua <= 6; ++lingua) {
            base::impostaLingua(lingua);
            verificaParete(parete, dati.titoli[1] + " " + std::to_string(lingua));
        }
    }
}

TEST_F(DisegniAllegato, OfAnyWallHaveNoTextOverAnother) {
    test::MuriCasuali muri(1301);
    for (int i = 0; i < 12; ++i) {
        auto dati = muri.prossimo();
        dati.nFasi = std::min(dati.nFasi, 2);
        verificaParete(live::calcola(dati, segmenti), std::to_string(i));
    }
    for (const auto& file : test::muriIn(KORVEN_WALLS))
        verificaParete(live::calcola(test::leggiMuro(file), segmenti), file);
}

// Beside a wall that falls stand the limits of both sides, on its own depths.
TEST_F(DisegniAllegato, OfAMechanismHaveTheLimitPressuresInAllLanguages) {
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
}

// In particular of a wall whose ground ends above its toe.
TEST_F(DisegniAllegato, NameEachLineOfThePressuresAndGiveItAStrokeOfItsOwn) {
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

TEST_F(DisegniAllegato, WriteThePeaksOfEveryStageWithTheirDepthsClearOfTheCurves) {
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

// How often a stage is named: "3", "fasi 1, 3–5".
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
TEST_F(DisegniAllegato, NumberTheStagesInTheDomainClearOfItsBorder) {
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
TEST_F(DisegniAllegato, NameHeapsOfStagesInTheDomainOnce) {
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

TEST_F(DisegniAllegato, TellTheStageOfAnEnvelopesPeak) {
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

TEST_F(DisegniAllegato, ShowAWallThatFallsAsAMechanismWithoutCurves) {
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

TEST_F(DisegniAllegato, CompareTwoWallsOnOneAxis) {
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

// The bar of the scale is as long on paper as it says, in all its numbers.
TEST_F(DisegniAllegato, HaveABarOfTheScaleThatIsTrue) {
    for (const double lunghezza : {3.0, 8.0, 12.0, 26.0, 60.0}) {
        auto dati = test::progettoSemplice();
        dati.lunghezzaParatia = lunghezza;
        const auto parete = live::calcola(dati, segmenti);
        const Scena s = scenaParete(parete, formatoParete.larghezza, formatoParete.altezza);
        EXPECT_NEAR(test::pianta(s).altezza(), lunghezza * s.scala, 1e-9);
        std::vector<Testo> numeri;
        for (const Testo& t : test::figure<Testo>(s, Elemento::quota))
            if (t.punto.y > s.altezza - 2.2 * corpoCarta) numeri.push_back(t);
        ASSERT_EQ(numeri.size(), 3u) << lunghezza;
        EXPECT_EQ(numeri[0].testo, "0");
        EXPECT_TRUE(numeri[2].testo.ends_with(" m"));
        for (const Testo& t : numeri)
            EXPECT_NEAR(t.punto.x - numeri[0].punto.x, std::stod(t.testo) * s.scala, 1e-6)
                << lunghezza << ' ' << t.testo;
    }
}

TEST_F(DisegniAllegato, AreStoredInsideTheirPlaceWithoutSpillFiles) {
    for (const auto& dati : esempi()) {
        const auto parete = live::calcola(dati, segmenti);
        const auto disegna = [&](const FormatoFigura& f, const auto& disegno) {
            plot::statoPlot = {};
            disegno(f.larghezza, f.altezza);
            verificaStore(f, dati.titoli[1]);
            EXPECT_FALSE(plot::statoPlot.archivio.testi().empty()) << dati.titoli[1];
        };
        disegna(formatoParete, [&](double w, double h) { disegnaParete(parete, w, h); });
        disegna(formatoInviluppi, [&](double w, double h) { disegnaInviluppi(parete, w, h); });
        disegna(formatoFase, [&](double w, double h) { disegnaFase(parete, 1, w, h); });
        disegna(formatoConfronto, [&](double w, double h) {
            disegnaConfronto({parete, "a"}, {parete, "b"}, w, h);
        });
        if (!live::sezioneCalcolabile(dati.sezione)) continue;
        disegna(formatoSezione,
                [&](double w, double h) { disegnaSezioneParete(dati.sezione, w, h); });
    }
}

// What is typed may be anything: nothing throws, nothing is drawn that has no number.
TEST_F(DisegniAllegato, OfNothingAndOfNonsenseAreDrawnAsFarAsTheyGo) {
    const live::PareteViva nulla;
    disegnaFase(nulla, 1, formatoFase.larghezza, formatoFase.altezza);
    disegnaInviluppi(nulla, formatoInviluppi.larghezza, formatoInviluppi.altezza);
    disegnaDominio({}, {}, formatoDominio.larghezza, formatoDominio.altezza);
    disegnaSezioneParete({}, formatoSezione.larghezza, formatoSezione.altezza);
    disegnaParete(nulla, formatoParete.larghezza, formatoParete.altezza);
    disegnaConfronto({nulla, ""}, {nulla, ""}, formatoConfronto.larghezza,
                     formatoConfronto.altezza);
    verificaStore(formatoConfronto, "nulla");
    plot::statoPlot = {};
    live::PareteViva oltre;
    oltre.dati = test::progettoSemplice();
    oltre.dati.nFasi = 1000;
    oltre.dati.nTiranti = -7;
    oltre.dati.lunghezzaParatia = std::numeric_limits<double>::quiet_NaN();
    disegnaFase(oltre, 1000, formatoFase.larghezza, formatoFase.altezza);
    disegnaInviluppi(oltre, formatoInviluppi.larghezza, formatoInviluppi.altezza);
    verificaStore(formatoFase, "oltre");
    plot::statoPlot = {};
    disegnaParete(oltre, formatoParete.larghezza, formatoParete.altezza);
    verificaStore(formatoParete, "oltre");
}

}  // namespace
}  // namespace korven::drawings
