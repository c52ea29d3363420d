#include "drawings/hatch_samples.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/file_error.hpp"
#include "plot/sheet.hpp"
#include "support/hatch_setup.hpp"

namespace korven::drawings {
namespace {

using test::testiCon;

class Campionario : public test::ProvaCampiture {
 protected:
    // `quante` patterns of one stroke through the tile, from number 1 on.
    void libreria(int quante, const std::string& nome = "Sabbia fine") {
        test::LibreriaDiProva tutte;
        for (int n = 1; n <= quante; ++n)
            tutte[n] = {0.005, {{-100, 0, 100, 0}}, nome + " " + std::to_string(n)};
        scriviLibreria(programma, tutte);
        dimenticaCampiture();
    }
};

TEST_F(Campionario, NamesEachPatternAndFillsThreeFieldsWithIt) {
    libreria(3);
    disegnaCampionario();
    EXPECT_EQ(testiCon("Sabbia fine").size(), 3u);
    EXPECT_EQ(testiCon("\"2  Sabbia fine 2\"").size(), 1u);
    for (const char* codice : {"\"102\"", "\"302\"", "\"502\""})
        EXPECT_EQ(testiCon(codice).size(), 1u) << codice;
}

TEST_F(Campionario, LeavesOutRowsWithoutAPattern) {
    scriviLibreria(programma, {{7, {0.005, {{0, 0, 50, 0}}, "Torba"}}, {8, {0, {}, "vuota"}}});
    disegnaCampionario();
    EXPECT_EQ(testiCon("Torba").size(), 1u);
    EXPECT_EQ(testiCon("vuota").size(), 0u);
}

TEST_F(Campionario, LeavesOutTheRowThatNoCodeCanName) {
    libreria(100);
    disegnaCampionario();
    EXPECT_EQ(testiCon("99  ").size(), 1u);
    EXPECT_EQ(testiCon("100  ").size(), 0u);
}

TEST_F(Campionario, StaysOnItsSheetHoweverManyPatternsThereAre) {
    for (const int quante : {1, 16, 17, 62, 64, 65, 99}) {
        libreria(quante, "Sabbia ghiaiosa debolmente limosa e ciottoli");
        disegnaCampionario();
        EXPECT_EQ(testiCon("Sabbia").size(), static_cast<std::size_t>(quante));
        plot::statoPlot.archivio.perOgniLinea([&](const plot::Segmento& s) {
            for (const double x : {s.x1, s.x2}) EXPECT_TRUE(x > 1.49 && x < 18.51) << x;
            for (const double y : {s.y1, s.y2}) EXPECT_TRUE(y > 0.7 && y < 22) << y;
        });
        plot::plotPenna(4);
        for (const auto& t : plot::statoPlot.archivio.testi()) {
            if (t.testo.find("Sabbia") == std::string::npos) continue;
            EXPECT_LT(t.x + plot::larghezzaTesto(t.altezza, t.testo), 18.51);
        }
    }
}

TEST_F(Campionario, SamplesDoNotCover) {
    // 17 patterns: the seventeenth begins the second column, at the height of the first.
    libreria(17);
    disegnaCampionario();
    const auto& testi = plot::statoPlot.archivio.testi();
    const auto nome = [&](const std::string& inizio) {
        return *std::find_if(testi.begin(), testi.end(),
                             [&](const auto& t) { return t.testo.starts_with(inizio); });
    };
    EXPECT_DOUBLE_EQ(nome("1  ").x, 1.5);
    EXPECT_DOUBLE_EQ(nome("17  ").x, 1.5 + 17.3 / 4);
    EXPECT_DOUBLE_EQ(nome("17  ").y, nome("1  ").y);
    EXPECT_NEAR(nome("1  ").y - nome("2  ").y, 21.1 / 16, 1e-12);
}

TEST_F(Campionario, TellsAboveHowACodeIsMade) {
    libreria(1);
    disegnaCampionario();
    EXPECT_EQ(testiCon("CAMPIONARIO").size(), 1u);
    EXPECT_EQ(testiCon("22.300 h 0.40 centred").size(), 1u);
    EXPECT_EQ(testiCon("h 0.30 centred").size(), 5u);
}

TEST_F(Campionario, WithoutALibraryIsAnError) {
    EXPECT_THROW(disegnaCampionario(), base::ErroreFile);
}

}  // namespace
}  // namespace korven::drawings
