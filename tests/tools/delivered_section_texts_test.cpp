#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "base/folders/program_folder.hpp"
#include "base/translated_texts.hpp"
#include "drawings/dimension_lines.hpp"
#include "drawings/section_drawing.hpp"
#include "plot/line_clip.hpp"
#include "plot/plot_engine.hpp"
#include "support/plot_text.hpp"

// The section drawing with the texts that the program is delivered with, in its six languages.

namespace korven {
namespace {

using plot::Riquadro;
using plot::Tratto;

// Letters with an accent and those that reach below the base line included.
Riquadro riquadro(const plot::TestoPlot& t) {
    const double lungo = plot::MetricaStimata().larghezza(t.carattere, t.altezza, t.testo);
    const double da = t.conteggio == plot::conteggioCentrato ? -lungo / 2 : 0;
    const double sotto = 0.3 * t.altezza, sopra = 1.1 * t.altezza;
    if (t.angolo == 0) return {t.x + da, t.y - sotto, t.x + da + lungo, t.y + sopra};
    return {t.x - sopra, t.y + da, t.x + sotto, t.y + da + lungo};
}

bool siCoprono(const Riquadro& a, const Riquadro& b) {
    return a.xmin < b.xmax && b.xmin < a.xmax && a.ymin < b.ymax && b.ymin < a.ymax;
}

bool dentro(const Riquadro& r, const Riquadro& stanza) {
    return r.xmin >= stanza.xmin && r.xmax <= stanza.xmax && r.ymin >= stanza.ymin &&
           r.ymax <= stanza.ymax;
}

class TestiDellaSezione : public testing::Test {
 protected:
    TestiDellaSezione() {
        base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER);
        base::caricaTesti(base::fileProgramma("texts01.txt"), base::fileProgramma("texts06.txt"));
        for (int i = 1; i <= 6; ++i) dati.titoli[i] = "Intestazione " + std::to_string(i);
        s.modEacciaio = 206000, s.modEcls = 31000, s.fyk = 430, s.fck = 25;
    }
    ~TestiDellaSezione() override {
        plot::statoPlot = {};
        base::impostaLingua(1);
        base::impostaCartellaProgramma({});
    }

    // Draws the section and looks at it: the first fault, empty when there is none. Rounds of piles
    // (strokes of no set direction) may pass under the head: they are where the scale puts them.
    std::string difetto() {
        dati.sezione = s;
        drawings::disegnaSezione(dati);
        const auto& testi = plot::statoPlot.archivio.testi();
        std::vector<Riquadro> riquadri;
        for (const auto& t : testi) riquadri.push_back(riquadro(t));
        for (std::size_t i = 0; i < testi.size(); ++i) {
            const bool quota = testi[i].altezza < 0.25;
            if (quota && !dentro(riquadri[i], drawings::stanzaQuote))
                return "outside: " + testi[i].testo;
            for (std::size_t j = 0; j < i; ++j)
                if (siCoprono(riquadri[i], riquadri[j]))
                    return testi[i].testo + " on " + testi[j].testo;
            std::string linea;
            plot::statoPlot.archivio.perOgniLinea([&](const plot::Segmento& l) {
                const bool diritta = (l.x1 == l.x2 || l.y1 == l.y2) &&
                                     std::fabs(l.x2 - l.x1) + std::fabs(l.y2 - l.y1) > 0.25;
                if (!quota && !diritta) return;
                if (plot::ritagliaTratto({{l.x1, l.y1}, {l.x2, l.y2}}, riquadri[i]))
                    linea = "line from " + test::punto(l.x1, l.y1) + " to " +
                            test::punto(l.x2, l.y2) + " through " + testi[i].testo;
            });
            if (!linea.empty()) return linea;
        }
        return {};
    }

    // In all languages, where texts are as long as they get.
    void prova(const std::string& misure) {
        for (int lingua = 1; lingua <= 6; ++lingua) {
            base::impostaLingua(lingua);
            EXPECT_EQ(difetto(), "") << misure << " language " << lingua;
        }
    }

    project::DatiProgetto dati;
    project::Sezione s;
};

std::string conMisure(double a, double b, double c = 0) {
    return std::to_string(a) + " / " + std::to_string(b) + " / " + std::to_string(c);
}

TEST_F(TestiDellaSezione, OfADiaphragmStandClearOfEachOtherAndOfAllLines) {
    s.tipoDiaframma = true;
    s.diametroMonte = 2.4, s.diametroValle = 2;
    for (const double spessore : {20.0, 60.0, 80.0, 120.0, 150.0, 200.0, 250.0})
        for (const double interasse : {5.0, 12.5, 20.0, 50.0, 60.0, 80.0, 100.0, 150.0, 300.0}) {
            s.spessoreDiaframma = spessore;
            s.copriferroMonte = 4, s.copriferroValle = 7.5;
            s.interasseMonte = interasse, s.interasseValle = 1.5 * interasse;
            prova(conMisure(spessore, interasse));
        }
}

TEST_F(TestiDellaSezione, OfTubesStandClearOfEachOtherAndOfAllLines) {
    s.tipoPali = true;
    for (const double diametro : {10.0, 24.4, 60.0, 100.0, 120.0, 160.0, 200.0, 250.0})
        for (const double interasse : {0.3, 0.8, 1.0, 1.1, 1.5, 2.0, 300 / diametro}) {
            s.paliDiamEst = diametro, s.paliDiamInt = 0.9 * diametro;
            s.paliInterasse = std::min(interasse * diametro, 300.0);
            prova(conMisure(diametro, s.paliInterasse));
        }
}

TEST_F(TestiDellaSezione, OfReinforcedPilesStandClearOfEachOtherAndOfAllLines) {
    s.tipoPaliArmati = true;
    s.armDiamStaffe = 1, s.armPassoStaffe = 20;
    for (const double diametro : {30.0, 80.0, 120.0, 180.0, 250.0})
        for (const double interasse : {0.8, 1.1, 2.0, 300 / diametro})
            for (const double ferri : {0.8, 2.0, 24.0}) {
                s.armDiamPalo = diametro, s.armDiamLong = 2.6;
                s.armCopriferro = 6, s.armNumLong = ferri;
                s.armInterasse = std::min(interasse * diametro, 300.0);
                prova(conMisure(diametro, s.armInterasse, ferri));
            }
}

TEST_F(TestiDellaSezione, OfASheetPileStandClearOfEachOtherAndOfAllLines) {
    s.tipoPalancola = true;
    s.palancolaSpessore = 1.2, s.palancolaSpessAla = 0.9;
    for (const double base : {10.0, 30.0, 60.0, 70.0})
        for (const double larghezza : {2.0, 10.0, 40.0})
            for (const double altezza : {8.0, 25.0, 60.0, 120.0}) {
                s.palancolaBase = base, s.palancolaLargAla = larghezza;
                s.palancolaAltAla = altezza;
                prova(conMisure(base, larghezza, altezza));
            }
}

}  // namespace
}  // namespace korven
