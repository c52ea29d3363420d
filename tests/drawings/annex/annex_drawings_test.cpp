// What must hold of every drawing of a document, of any wall and in all languages: texts inside it,
// none over another, large enough to be read on paper.

#include "drawings/annex/annex_drawings.hpp"

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "drawings/annex/section_figure.hpp"
#include "drawings/annex/wall_to_scale.hpp"
#include "live/section_checks.hpp"
#include "support/annex_drawings.hpp"
#include "support/random_walls.hpp"
#include "support/sample_projects.hpp"

namespace korven::drawings {
namespace {

using scene::Elemento;
using scene::Scena;
using scene::Testo;

class DisegniAllegato : public ProvaDisegniAllegato {
 protected:
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
};

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
