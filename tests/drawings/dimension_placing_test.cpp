#include "drawings/dimension_placing.hpp"

#include <gtest/gtest.h>

#include "support/drawing_by_pen.hpp"

namespace korven::drawings {
namespace {

using test::polilinee;
using test::testiDisegnati;
using Linee = std::vector<std::string>;

class DisposizioneQuote : public test::ProvaPlot {
 protected:
    DisposizioneQuote() {
        configura(test::penneNere());
        plot::plotApri(0, 0, 19, 27);
        plot::plotPenna(4);
    }

    static Quota scritta(double x, double y) {
        return {.linee = {}, .scritta = std::string("AB"), .posizione = {x, y}};
    }
};

TEST_F(DisposizioneQuote, TakeTheFirstPlaceThatIsFree) {
    PostiQuote posti;
    posti.disponi({{scritta(5, 5)}});
    posti.disponi({{scritta(5.1, 5.1), scritta(8, 8), scritta(9, 9)}});
    EXPECT_EQ(testiDisegnati(), (Linee{"\"AB\" 5.000 5.000 h 0.20", "\"AB\" 8.000 8.000 h 0.20"}));
}

TEST_F(DisposizioneQuote, KeepTextsOffTheSectionAndInsideTheRoom) {
    PostiQuote posti;
    posti.occupa({4, 4, 6, 6});
    posti.occupaDisco({10, 10}, 2);
    posti.occupaTratto({{14, 3}, {15, 20}});
    // On the wall, on a pile, across an outline, in the title; beside the pile's round.
    posti.disponi({{scritta(5, 5), scritta(10, 8.1), scritta(14.3, 10), scritta(10, 21.9),
                    scritta(11.6, 8.3)}});
    EXPECT_EQ(testiDisegnati(), Linee{"\"AB\" 11.600 8.300 h 0.20"});
}

TEST_F(DisposizioneQuote, LetNoLineRunThroughATextNorAlongAnotherLine) {
    PostiQuote posti;
    posti.disponi({{richiamo(project::Lato::monte, {6, 5}, 5, std::string("AB"))}});
    const auto lungo = [](double y) {
        return richiamo(project::Lato::monte, {9, y}, y, std::string("CD"));
    };
    posti.disponi({{lungo(5.1), lungo(5.03), lungo(7)}});
    EXPECT_EQ(testiDisegnati()[1], "\"CD\" 2.100 7.080 h 0.20");
}

TEST_F(DisposizioneQuote, TryAnotherOrderWhereTheFirstLeavesOneOutside) {
    PostiQuote posti;
    posti.disponi({{scritta(5, 5), scritta(8, 8)}, {scritta(5, 5)}});
    EXPECT_EQ(testiDisegnati(), (Linee{"\"AB\" 8.000 8.000 h 0.20", "\"AB\" 5.000 5.000 h 0.20"}));
}

TEST_F(DisposizioneQuote, LieOnTheSectionWhereNothingElseIsFree) {
    PostiQuote posti;
    posti.occupa({0, 0, 19, 27});
    posti.disponi({{scritta(1, 1), scritta(5, 5)}});
    EXPECT_EQ(testiDisegnati(), Linee{"\"AB\" 5.000 5.000 h 0.20"});
}

// A section in the middle of the room has as much of it on both sides; between one at the edge and
// that edge no turned text has a place.
TEST_F(DisposizioneQuote, HaveAsManyPlacesForALeaderOnBothSidesAndNoneBetweenSectionAndEdge) {
    using enum project::Lato;
    const double mezzo = (stanzaQuote.xmin + stanzaQuote.xmax) / 2;
    const Scritta testo = std::string("AB");
    const auto aMonte = richiami(monte, {mezzo - 1, 10}, mezzo - 2, testo);
    const auto aValle = richiami(valle, {mezzo + 1, 10}, mezzo + 2, testo);
    EXPECT_GT(aMonte.size(), 10u);
    EXPECT_EQ(aMonte.size(), aValle.size());
    const auto alBordo = richiami(monte, {mezzo, 10}, stanzaQuote.xmin, testo);
    EXPECT_LT(alBordo.size(), aMonte.size());
    EXPECT_EQ(alBordo.size(), richiami(valle, {mezzo, 10}, stanzaQuote.xmax, testo).size());
}

TEST_F(DisposizioneQuote, AreLeftOutWhereTheSectionFillsTheSheet) {
    const Candidate senzaPosto = quoteVerticali(5, 8, 1e300, 10, std::string("CD"));
    EXPECT_TRUE(senzaPosto.empty());
    PostiQuote posti;
    posti.disponi({senzaPosto, {scritta(5, 5)}});
    EXPECT_EQ(testiDisegnati(), Linee{"\"AB\" 5.000 5.000 h 0.20"});
}

TEST_F(DisposizioneQuote, EndInAnArrowWhereTheSheetEndsBeforeThem) {
    quotaVerticale(13, 28, 12, 10, std::string("AB")).disegna();
    EXPECT_EQ(polilinee(4), (Linee{"12.000 13.000, 12.000 22.000", "10.000 13.000, 12.080 13.000",
                                   "11.900 12.900, 12.100 13.100",
                                   "11.900 21.800, 12.000 22.000, 12.100 21.800"}));
    EXPECT_EQ(testiDisegnati(), Linee{"\"AB\" 12.400 17.500 h 0.20 angle 90 centred"});
}

TEST_F(DisposizioneQuote, BendALeaderAtFortyFiveDegrees) {
    richiamo(project::Lato::valle, {12, 10}, 11, std::string("AB")).disegna();
    EXPECT_EQ(polilinee(4), (Linee{"11.900 9.900, 12.100 10.100", "13.000 11.000, 17.900 11.000",
                                   "12.000 10.000, 13.000 11.000"}));
}

}  // namespace
}  // namespace korven::drawings
