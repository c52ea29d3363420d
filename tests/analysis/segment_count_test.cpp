#include "analysis/segment_count.hpp"

#include <gtest/gtest.h>

#include "base/folders/program_folder.hpp"
#include "support/temporary_folder.hpp"

namespace korven::analysis {
namespace {

// A program folder of its own; the rules of the process come back at the end.
class LeggiNSeg : public testing::Test {
 protected:
    LeggiNSeg() {
        contenutoNSeg.reset();
        base::impostaCartellaProgramma(cartella.percorso());
    }
    ~LeggiNSeg() override {
        contenutoNSeg.reset();
        base::impostaCartellaProgramma({});
    }

    std::optional<int> letto(std::string_view testo, bool incastroPiede = false) {
        test::metti(cartella / "nseg.txt", testo);
        return leggiNSeg(incastroPiede);
    }

    test::CartellaProvvisoria cartella;
};

TEST_F(LeggiNSeg, IsFiftyWithoutTheFileSoThatTenMetresHaveStepsOfTwentyCentimetres) {
    const auto nSeg = leggiNSeg(false);
    ASSERT_TRUE(nSeg.has_value());
    EXPECT_EQ(*nSeg, 50);
    EXPECT_EQ(*nSeg + 1, 51);
    EXPECT_EQ(10.0 / *nSeg, 0.2);
    EXPECT_EQ(leggiNSeg(true), 50);
}

TEST_F(LeggiNSeg, TakesTheFirstItemOfTheFile) {
    EXPECT_EQ(letto("100"), 100);
    EXPECT_EQ(letto("100\r\n200\r\n"), 100);
    EXPECT_EQ(letto("\r\n \t 40 segmenti"), 40);
    EXPECT_EQ(letto("30,60"), 30);
}

TEST_F(LeggiNSeg, TakesEveryFormOfANumber) {
    EXPECT_EQ(letto("50.0"), 50);
    EXPECT_EQ(letto("+50"), 50);
    EXPECT_EQ(letto("5e1"), 50);
    EXPECT_EQ(letto("5E1"), 50);
}

TEST_F(LeggiNSeg, IsReadAtEveryCall) {
    EXPECT_EQ(letto("20"), 20);
    EXPECT_EQ(letto("21"), 21);
}

TEST_F(LeggiNSeg, FindsTheFileWhateverTheCaseOfItsName) {
    test::metti(cartella / "NSEG.TXT", "33");
    EXPECT_EQ(leggiNSeg(false), 33);
}

// The matrix holds 500 unknowns: 2 (249 + 1), or 2 (248 + 2) with the node that a fixed toe adds.
TEST_F(LeggiNSeg, GoesUpToTheCapacityOfTheSystem) {
    EXPECT_EQ(letto("249"), 249);
    EXPECT_EQ(letto("250"), std::nullopt);
    EXPECT_EQ(letto("248", true), 248);
    EXPECT_EQ(letto("249", true), std::nullopt);
}

// With one or two segments the equations have no inner row or reach past the toe.
TEST_F(LeggiNSeg, RefusesAWallWithoutAnInnerSegment) {
    EXPECT_EQ(letto("3"), 3);
    EXPECT_EQ(letto("2"), std::nullopt);
    EXPECT_EQ(letto("1"), std::nullopt);
}

TEST_F(LeggiNSeg, RefusesWhatIsNoWholePositiveNumber) {
    for (const char* testo : {"", "  \r\n", "molti", "0", "-50", "50.5", "1e300", "1e999", "."})
        EXPECT_EQ(letto(testo), std::nullopt) << '"' << testo << '"';
}

TEST_F(LeggiNSeg, TakesAGivenTextInsteadOfTheFile) {
    test::metti(cartella / "nseg.txt", "20");
    contenutoNSeg = " 60";
    EXPECT_EQ(leggiNSeg(false), 60);
    contenutoNSeg = "";
    EXPECT_EQ(leggiNSeg(false), std::nullopt);
    contenutoNSeg.reset();
    EXPECT_EQ(leggiNSeg(false), 20);
}

TEST_F(LeggiNSeg, BlamesTheOptionWhenItWasGivenAndTheFileElse) {
    EXPECT_NE(motivoNSeg().find("indicato in nseg.txt"), std::string_view::npos);
    contenutoNSeg = "2";
    EXPECT_NE(motivoNSeg().find("con l'opzione --nseg"), std::string_view::npos);
    EXPECT_EQ(motivoNSeg().find("nseg.txt"), std::string_view::npos);
}

}  // namespace
}  // namespace korven::analysis
