#include "masks/edited_tables.hpp"

#include <gtest/gtest.h>

#include "support/wall_builder.hpp"

namespace korven::masks {
namespace {

TEST(RiprendiStrati, ConvertsTheShownUnitsAndSortsByDepth) {
    project::DatiProgetto d = test::progettoVuoto();
    d.nStrati = 2;
    d.suStrato[1] = 11;
    d.suStrato[2] = 22;
    riprendiStrati(d, {"2", "8", "19", "21", "34", "5", "30000", "G Ghiaia",  //
                       "3", "18", "20", "30", "0", "15000", "S Sabbia"});
    EXPECT_EQ(d.nStrati, 2);
    EXPECT_EQ(d.profStrato[1], 3);
    EXPECT_EQ(d.gammaN[1], 1.8);
    EXPECT_EQ(d.phiStrato[1], 30);
    EXPECT_EQ(d.ksStrato[1], 1500);
    EXPECT_EQ(d.descrStrato[1], "S Sabbia");
    EXPECT_EQ(d.coesione[2], 0.5);
    EXPECT_EQ(d.descrStrato[2], "G Ghiaia");
    // Su has no column in the editor and stays with its row number.
    EXPECT_EQ(d.suStrato[1], 11);
    EXPECT_EQ(d.suStrato[2], 22);
}

// What a longer table of before left in a row is not the new layer's.
TEST(RiprendiStrati, GivesNewRowsNoUndrainedStrength) {
    project::DatiProgetto d = test::progettoVuoto();
    d.nStrati = 2;
    for (int j = 1; j <= 4; ++j) d.suStrato[j] = 11.0 * j;
    const std::vector<std::string> riga = {"1", "19", "21", "34", "5", "30000", "G Ghiaia"};
    const auto conRighe = [&riga](int n) {
        std::vector<std::string> testi = {std::to_string(n)};
        for (int j = 1; j <= n; ++j) testi.insert(testi.end(), riga.begin(), riga.end());
        return testi;
    };
    riprendiStrati(d, conRighe(3));
    EXPECT_EQ(d.suStrato[1], 11);
    EXPECT_EQ(d.suStrato[2], 22);
    EXPECT_EQ(d.suStrato[3], 0);
    EXPECT_EQ(d.suStrato[4], 44);  // beyond the count the table keeps what it held
    riprendiStrati(d, conRighe(1));
    EXPECT_EQ(d.suStrato[2], 22);
    riprendiStrati(d, conRighe(2));
    EXPECT_EQ(d.suStrato[1], 11);
    EXPECT_EQ(d.suStrato[2], 0);
}

TEST(RiprendiStrati, KeepsTheTypedOrderOfEqualDepths) {
    project::DatiProgetto d = test::progettoVuoto();
    riprendiStrati(d, {"3", "5", "1", "", "", "", "", "a", "5", "2", "", "", "", "", "b",  //
                       "2", "3", "",  "", "", "", "c"});
    EXPECT_EQ(d.descrStrato[1], "c");
    EXPECT_EQ(d.descrStrato[2], "a");  // its thickness is 3, that of the next one 0
    EXPECT_EQ(d.descrStrato[3], "b");
    EXPECT_EQ(d.profStrato[2], d.profStrato[3]);
}

TEST(RiprendiTiranti, SortsWholeRows) {
    project::DatiProgetto d = test::progettoVuoto();
    riprendiTiranti(d, {"2", "6", "8000", "100", "1", "2", "5000", "50", "0"});
    EXPECT_EQ(d.nTiranti, 2);
    EXPECT_EQ(d.profTirante[1], 2);
    EXPECT_EQ(d.rigTirante[1], 500);
    EXPECT_EQ(d.pretTirante[1], 5);
    EXPECT_EQ(d.tipoTirante[1], 0);
    EXPECT_EQ(d.tipoTirante[2], 1);
    EXPECT_EQ(d.rigTirante[2], 800);
}

TEST(RiprendiFasi, OutOfDepthOrderExchangesCountsSurchargesAndAnchorStiffnessOnly) {
    project::DatiProgetto d = test::progettoVuoto();
    d.rigTirante[1] = 100;
    d.rigTirante[2] = 200;
    riprendiFasi(d, {"2", "5", "1", "20", "6", "3", "0", "10", "4"});
    EXPECT_EQ(d.profFase[1], 5);
    EXPECT_EQ(d.profFase[2], 3);
    EXPECT_EQ(d.faldaFase[1], 6);
    EXPECT_EQ(d.faldaFase[2], 4);
    EXPECT_EQ(d.tirantiFase[1], 0);
    EXPECT_EQ(d.tirantiFase[2], 1);
    EXPECT_EQ(d.sovraccFase[1], 1);
    EXPECT_EQ(d.sovraccFase[2], 2);
    EXPECT_EQ(d.rigTirante[1], 200);
    EXPECT_EQ(d.rigTirante[2], 100);
}

// The wall and the headings are compared with what is stored; a table is not.
TEST(RiprendiTabelle, ConfirmedWithoutAChangeStillCountAsModified) {
    project::DatiProgetto d = test::progettoVuoto();
    const project::DatiProgetto prima = d;
    EXPECT_TRUE(riprendiStrati(d, {"0"}));
    EXPECT_TRUE(riprendiTiranti(d, {"0"}));
    EXPECT_TRUE(riprendiFasi(d, {"0"}));
    EXPECT_EQ(d, prima);
    const std::vector<std::string> strati = {"1", "8", "19", "21", "34", "5", "30000", "G Ghiaia"};
    EXPECT_TRUE(riprendiStrati(d, strati));
    EXPECT_TRUE(riprendiStrati(d, strati));
}

TEST(RiprendiTabelle, RefuseMoreRowsThanTheTableHoldsAndLeaveTheProjectAlone) {
    project::DatiProgetto d = test::progettoVuoto();
    const project::DatiProgetto prima = d;
    EXPECT_THROW(riprendiStrati(d, {"101"}), base::ErroreIndice);
    EXPECT_THROW(riprendiTiranti(d, {"21"}), base::ErroreIndice);
    EXPECT_THROW(riprendiFasi(d, {"21"}), base::ErroreIndice);
    EXPECT_EQ(d, prima);
    EXPECT_NO_THROW(riprendiStrati(d, {"100"}));
}

TEST(RiprendiTabelle, ReadTheNumericPrefixOfATextAndZeroWhereThereIsNone) {
    project::DatiProgetto d = test::progettoVuoto();
    riprendiTiranti(d, {"1", " 2.5m", "1 2", "circa 3", "1d3"});
    EXPECT_EQ(d.profTirante[1], 2.5);
    EXPECT_EQ(d.rigTirante[1], 0.1);
    EXPECT_EQ(d.pretTirante[1], 0);
    EXPECT_EQ(d.tipoTirante[1], 1);
}

TEST(RiprendiParatia, TellsWhetherAnyValueChanged) {
    project::DatiProgetto d = test::progettoVuoto();
    std::vector<std::string> testi = {"1", "3", "1",  "2", "1",  "2",   "4", "12.5", "120000",
                                      "2", "5", "10", "7", "-8", "100", "5", "3",    "1"};
    EXPECT_TRUE(riprendiParatia(d, testi));
    EXPECT_EQ(d.vincoloPiede, 3);
    EXPECT_EQ(d.metodoSpinte, 2);
    EXPECT_EQ(d.lunghezzaParatia, 12.5);
    EXPECT_EQ(d.rigidezzaEJ, 12000);
    EXPECT_EQ(d.coeffM, 2);
    EXPECT_EQ(d.pressioneOrizz, 0.5);
    EXPECT_EQ(d.forzaTesta, -0.8);
    EXPECT_EQ(d.sforzoNormale, 10);
    EXPECT_EQ(d.faldaMonte, 3);
    EXPECT_EQ(d.gammaAcqua, 1);
    EXPECT_FALSE(riprendiParatia(d, testi));
    testi[17] = "1.01";
    EXPECT_TRUE(riprendiParatia(d, testi));
}

TEST(RiprendiTitoli, StoresTheLinesAndTellsAChange) {
    project::DatiProgetto d = test::progettoVuoto();
    EXPECT_FALSE(riprendiTitoli(d, {"", "", "", "", "", ""}));
    EXPECT_TRUE(riprendiTitoli(d, {"", "", " Lotto 2", "", "", ""}));
    EXPECT_EQ(d.titoli[3], " Lotto 2");
}

}  // namespace
}  // namespace korven::masks
