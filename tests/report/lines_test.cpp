#include "report/lines.hpp"

#include <gtest/gtest.h>

#include "support/report_text.hpp"

namespace korven::report {
namespace {

TEST(RigheRelazione, EndsEveryLineWithCarriageReturnAndLineFeed) {
    RigheRelazione righe;
    righe.riga("#LEFT");
    righe.vuota();
    righe.titolo("CALCOLO DIAFRAMMA");
    EXPECT_EQ(righe.testo(), "#LEFT\r\n\r\nCALCOLO DIAFRAMMA\r\n");
}

TEST(RigheRelazione, PartsTheCellsOfARowByTabsAndShowsTwoDecimalsWhateverTheSize) {
    RigheRelazione righe;
    righe.intestazione({"Prof. [m]", "Phi [°]"});
    righe.valori({1250, 0.5, 1000000});
    righe.valori({-0.5, -0.001, -0.00001, 0});
    EXPECT_EQ(righe.testo(),
              "Prof. [m]\tPhi [°]\r\n1250.00\t0.50\t1000000.00\r\n-.50\t-.00\t0.00\t0.00\r\n");
}

TEST(RigheRelazione, CutsAfterTheSecondDecimalAndDoesNotRoundTheThird) {
    RigheRelazione righe;
    righe.valori({2.999, 2.99996, 1.005, -1.239});
    EXPECT_EQ(righe.testo(), "2.99\t3.00\t1.00\t-1.23\r\n");
}

TEST(RigheRelazione, PutsATextAfterTheNumbersOfARow) {
    RigheRelazione righe;
    righe.valori({2, 5000}, "Solo traz.");
    EXPECT_EQ(righe.testo(), "2.00\t5000.00\tSolo traz.\r\n");
}

TEST(RigheRelazione, WritesAListAsLabelTabValueAndLeavesOutRowsThatAreNotWanted) {
    RigheRelazione righe;
    righe.lista({{"Diametro pali [mm]", 600}, {"Passo staffe [mm]", 0, false}, {"Fyk", 430}});
    EXPECT_EQ(righe.testo(),
              "#STARTLIST\r\nDiametro pali [mm]\t600.00\r\nFyk\t430.00\r\n#ENDLIST\r\n");
}

TEST(RigheRelazione, WritesAnEmptyListWhenNoRowIsWanted) {
    RigheRelazione righe;
    righe.lista({{"Passo staffe [mm]", 0, false}});
    EXPECT_EQ(righe.testo(), "#STARTLIST\r\n#ENDLIST\r\n");
}

TEST(RigheRelazione, TranslatesTitlesCaptionsAndLabelsButNoLineAsItIs) {
    const test::UnTesto tedesco("Phi", "Reibungswinkel");
    RigheRelazione righe;
    righe.riga("Phi");
    righe.titolo("Phi");
    righe.intestazione({"Phi", "altro"});
    righe.valori({30}, "Phi");
    righe.lista({{"Phi", 30}});
    EXPECT_EQ(righe.testo(),
              "Phi\r\nReibungswinkel\r\nReibungswinkel\taltro\r\n30.00\tReibungswinkel\r\n"
              "#STARTLIST\r\nReibungswinkel\t30.00\r\n#ENDLIST\r\n");
}

}  // namespace
}  // namespace korven::report
