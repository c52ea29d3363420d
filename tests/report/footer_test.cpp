#include "report/footer.hpp"

#include <gtest/gtest.h>

#include "base/version.hpp"
#include "markup/estimated_width.hpp"
#include "support/report_text.hpp"

namespace korven::report {
namespace {

const std::string inizio = "KORVEN 32 " + std::string(base::versione) + " – ";

// Half of what a line centred on an A4 page may take: its middle is 283 points from the left end of
// the page, which is the nearer one, and 4 mm stay free there.
constexpr double mezzaRiga = 283 - 4 / 25.4 * 72;

bool sullaPagina(const std::string& riga) {
    return markup::estimatedWidth({"Arial", 12}, riga) / 2 <= mezzaRiga;
}

TEST(TestoPiede, TellsVersionProjectMethodSegmentsAndThatNoFactorActsOnTheSoil) {
    EXPECT_EQ(
        testoPiede({"muro.kvd", 2, 50}),
        inizio + "muro.kvd – Rankine – 50 segmenti – nessun coefficiente di sicurezza sul terreno");
    EXPECT_EQ(
        testoPiede({"a.kvd", 1, 3}),
        inizio + "a.kvd – Coulomb – 3 segmenti – nessun coefficiente di sicurezza sul terreno");
    EXPECT_NE(testoPiede({"muro.kvd", 3, 50}).find(" – Bell – "), std::string::npos);
}

TEST(TestoPiede, SaysThatTheRunHadNoMethodForACodeOfNone) {
    for (const double codice : {0.0, 1.5, 4.0, -1.0})
        EXPECT_EQ(testoPiede({"muro.kvd", codice, 50}),
                  inizio +
                      "muro.kvd – nessun metodo delle spinte – 50 segmenti – nessun F.S. sul "
                      "terreno")
            << codice;
}

TEST(TestoPiede, EndsWithTheSubtitleWhereAllOfItFitsBetweenTheMargins) {
    const std::string intera = testoPiede({"muro.kvd", 1, 50});
    const std::string conSottotitolo = intera + " – Dimensionamento di Paratie e Diaframmi";
    const double larghezza = markup::estimatedWidth({"Arial", 12}, conSottotitolo);
    // One centimetre of the sheet is not used, two are margin on either side.
    const double foglio = larghezza / 72 * 2.54 + 5;
    EXPECT_EQ(testoPiede({"muro.kvd", 1, 50}, foglio + 0.1), conSottotitolo);
    EXPECT_EQ(testoPiede({"muro.kvd", 1, 50}, foglio - 0.1), intera);
}

TEST(TestoPiede, TakesTheShortRemarkForANameThatIsTooLongForTheWholeOne) {
    const std::string riga = testoPiede({"diaframma_due_ordini.kvd", 1, 24});
    EXPECT_EQ(riga, inizio +
                        "diaframma_due_ordini.kvd – Coulomb – 24 segmenti – nessun F.S. sul "
                        "terreno");
    EXPECT_TRUE(sullaPagina(riga));
}

TEST(TestoPiede, LosesTheMiddleOfANameThatIsLongerStill) {
    const std::string nome = "via_roma_" + std::string(60, 'x') + "_finale.kvd";
    const std::string riga = testoPiede({nome, 1, 50});
    EXPECT_TRUE(sullaPagina(riga)) << riga;
    const std::string davanti = inizio + "via_roma_x", dietro = "_finale.kvd – Coulomb – 50 ";
    EXPECT_TRUE(riga.starts_with(davanti)) << riga;
    EXPECT_NE(riga.find("x…x"), std::string::npos) << riga;
    EXPECT_NE(riga.find(dietro), std::string::npos) << riga;
    // One character more would not fit.
    std::string conUno = riga;
    conUno.insert(conUno.find("…"), "x");
    EXPECT_FALSE(sullaPagina(conUno));
}

TEST(TestoPiede, IsOneLineOfTheReportWhateverTheFileIsNamed) {
    const std::string riga = testoPiede({"a\n#RESET\tè.kvd", 1, 50});
    EXPECT_TRUE(riga.starts_with(inizio + "a?#RESET?è.kvd – ")) << riga;
    EXPECT_TRUE(testoPiede({"\xFF\xE2\x88\x9E.kvd", 1, 50}).starts_with(inizio + "??.kvd – "));
    EXPECT_FALSE(testoPiede({"", 1, 50}).empty());
}

TEST(TestoPiede, IsTranslatedPieceByPiece) {
    const test::UnTesto tedesco("segmenti", "Abschnitte");
    EXPECT_NE(testoPiede({"segmenti", 1, 50}).find("segmenti – Coulomb – 50 Abschnitte – "),
              std::string::npos);
}

}  // namespace
}  // namespace korven::report
