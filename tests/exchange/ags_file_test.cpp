#include "exchange/ags_file.hpp"

#include <gtest/gtest.h>

#include "exchange/ags_text.hpp"

namespace korven::exchange {
namespace {

using test::gruppoGeol;
using test::gruppoLoca;
using test::rigaAgs;
using Frasi = std::vector<std::string>;

const std::string progetto = rigaAgs({"GROUP", "PROJ"}) +
                             rigaAgs({"HEADING", "PROJ_ID", "PROJ_NAME"}) +
                             rigaAgs({"UNIT", "", ""}) + rigaAgs({"TYPE", "ID", "X"}) +
                             rigaAgs({"DATA", "1", "Scavo \"\"Nord\"\""}) + "\r\n";

std::string difetto(const std::string& testo) {
    const auto file = leggiAgs(testo);
    EXPECT_TRUE(file.fori.empty());
    return file.difetti.empty() ? std::string() : file.difetti[0];
}

TEST(SembraAgs, IsKnownByItsFirstRow) {
    EXPECT_TRUE(sembraAgs(progetto));
    EXPECT_TRUE(sembraAgs("\r\nGROUP,PROJ\n"));
    EXPECT_TRUE(sembraAgs("\"**PROJ\"\n"));
    EXPECT_FALSE(sembraAgs("Prof.;Phi\n3;30"));
    EXPECT_FALSE(sembraAgs("GROUP\n3"));
    EXPECT_FALSE(sembraAgs(""));
}

TEST(LeggiAgs, HoldsTheHolesWithTheirLevelAndRanges) {
    const auto file =
        leggiAgs(progetto + gruppoLoca({{"BH1", "101.35"}, {"BH2", ""}, {"BH3", "99"}}) +
                 gruppoGeol({{"BH2", "0.00", "1.20", "MADE GROUND"},
                             {"BH1", "0.00", "3.40", "Firm brown CLAY, \"\"blocky\"\""},
                             {"BH1", "3.40", "10.00", "Dense SAND"}}));
    EXPECT_EQ(file.difetti, Frasi{});
    ASSERT_EQ(file.fori.size(), 2U);  // BH3 has no ranges
    const Foro& uno = file.fori[0];
    EXPECT_EQ(uno.nome, "BH1");
    EXPECT_EQ(uno.quota, "101.35");
    EXPECT_EQ(uno.difetti, Frasi{});
    EXPECT_EQ(uno.avvertenze, Frasi{});
    ASSERT_EQ(uno.tratti.size(), 2U);
    EXPECT_EQ(uno.tratti[0].tetto, "0.00");
    EXPECT_EQ(uno.tratti[0].base, "3.40");
    EXPECT_EQ(uno.tratti[0].descrizione, "Firm brown CLAY, \"blocky\"");
    EXPECT_EQ(uno.tratti[0].riga, 20);
    EXPECT_EQ(file.fori[1].nome, "BH2");
    EXPECT_EQ(file.fori[1].quota, "");
}

TEST(LeggiAgs, ReadsColumnsByTheirHeadingsAndGroupsInAnyOrder) {
    const auto file = leggiAgs(
        rigaAgs({"GROUP", "GEOL"}) +
        rigaAgs({"HEADING", "GEOL_DESC", "GEOL_BASE", "FILE_FSET", "GEOL_TOP", "LOCA_ID"}) +
        rigaAgs({"DATA", "Sand", "2", "", "0", "BH1"}) + gruppoLoca({{"BH1", "10"}}));
    ASSERT_EQ(file.fori.size(), 1U);
    EXPECT_EQ(file.fori[0].quota, "10");
    EXPECT_EQ(file.fori[0].tratti[0].base, "2");
    EXPECT_EQ(file.fori[0].tratti[0].descrizione, "Sand");
}

TEST(LeggiAgs, TakesShortAndUnquotedRowsAndDescriptionsOfSeveralLines) {
    const auto file = leggiAgs(gruppoLoca({{"BH1", "10"}}) +
                               "GROUP,GEOL\nHEADING,LOCA_ID,GEOL_TOP,GEOL_BASE,GEOL_DESC\n"
                               "DATA,BH1,0,1\nDATA,BH1,1,2,\"Sand\r\nand gravel\"\n");
    ASSERT_EQ(file.fori.size(), 1U);
    EXPECT_EQ(file.fori[0].tratti[0].descrizione, "");
    EXPECT_EQ(file.fori[0].tratti[1].descrizione, "Sand\r\nand gravel");
}

TEST(LeggiAgs, DescribesByTheCodesWhereThereIsNoDescription) {
    const auto file = leggiAgs(gruppoGeol({{"BH1", "0", "1", ""}}));
    EXPECT_EQ(file.fori[0].tratti[0].descrizione, "LC");
}

TEST(LeggiAgs, WarnsOfAHoleWithoutItsRowInLoca) {
    const auto file = leggiAgs(gruppoGeol({{"BH1", "0", "1", "Sand"}}));
    EXPECT_EQ(file.fori[0].avvertenze,
              Frasi{"il foro non sta nel gruppo LOCA: la sua quota non è nota"});
}

TEST(LeggiAgs, TellsAHoleThatStandsTwiceInLoca) {
    const auto uguale = leggiAgs(gruppoLoca({{"BH1", "10"}, {"BH1", "10"}}) +
                                 gruppoGeol({{"BH1", "0", "1", "Sand"}}));
    EXPECT_EQ(uguale.fori[0].avvertenze, Frasi{"riga 6: il foro è già alla riga 5: vale quella"});
    EXPECT_EQ(uguale.fori[0].difetti, Frasi{});
    const auto diversa = leggiAgs(gruppoLoca({{"BH1", "10"}, {"BH1", "11"}}) +
                                  gruppoGeol({{"BH1", "0", "1", "Sand"}}));
    EXPECT_EQ(diversa.fori[0].difetti,
              Frasi{"riga 6, colonna 3: il foro ha due quote del terreno, «10» e «11»"});
}

TEST(LeggiAgs, TellsARowWithMoreCellsThanHeadings) {
    const auto file = leggiAgs(gruppoGeol({{"BH1", "0", "1", "Sand"}, {"BH2", "0", "1", "Clay"}}) +
                               rigaAgs({"DATA", "BH1", "1", "2", "Clay, soft", "1", "2", "3"}));
    EXPECT_EQ(file.fori[0].difetti, Frasi{"riga 8: la riga ha più celle dei nomi di colonna"});
    EXPECT_EQ(file.fori[1].difetti, Frasi{});
}

TEST(LeggiAgs, RefusesAFileWithoutRanges) {
    const std::string manca = "il file AGS non descrive strati: il gruppo GEOL manca o è vuoto";
    EXPECT_EQ(difetto(progetto), manca);
    EXPECT_EQ(difetto(gruppoLoca({{"BH1", "10"}})), manca);
    EXPECT_EQ(difetto(gruppoGeol({})), manca);
}

TEST(LeggiAgs, RefusesTheVersionBefore) {
    EXPECT_EQ(difetto("\"**PROJ\"\r\n\"*PROJ_ID\"\r\n"),
              "riga 1: questo è un file AGS 3: serve un file AGS 4");
}

TEST(LeggiAgs, RefusesAGroupWithoutTheHeadingsItNeeds) {
    EXPECT_EQ(difetto(rigaAgs({"GROUP", "GEOL"}) + rigaAgs({"HEADING", "LOCA_ID", "GEOL_TOP"})),
              "riga 2: nel gruppo GEOL manca la colonna GEOL_BASE");
    EXPECT_EQ(difetto(rigaAgs({"GROUP", "LOCA"}) + rigaAgs({"HEADING", "HOLE_ID"})),
              "riga 2: nel gruppo LOCA manca la colonna LOCA_ID");
    EXPECT_EQ(difetto(rigaAgs({"GROUP", "GEOL"}) + rigaAgs({"DATA", "BH1", "0", "1"})),
              "riga 2: il gruppo GEOL ha dati prima dei nomi delle colonne");
}

TEST(LeggiAgs, RefusesDepthsInAnotherUnit) {
    EXPECT_EQ(difetto(rigaAgs({"GROUP", "GEOL"}) +
                      rigaAgs({"HEADING", "LOCA_ID", "GEOL_TOP", "GEOL_BASE"}) +
                      rigaAgs({"UNIT", "", "m", "ft"}) + rigaAgs({"DATA", "BH1", "0", "1"})),
              "riga 3: GEOL_BASE è in ft: servono metri");
}

TEST(LeggiAgs, RefusesARowThatBeginsWithNoWordOfTheFormat) {
    EXPECT_EQ(difetto(gruppoGeol({{"BH1", "0", "1", "Sand"}}) + "\"<CONT>\",\"BH1\"\r\n"),
              "riga 7: «<CONT>» non è l'inizio di una riga AGS");
    EXPECT_EQ(difetto(rigaAgs({"GROUP", "GEOL"}) + "\"DATA,BH1\r\n"),
              "riga 2, colonna 1: le virgolette aperte non vengono mai chiuse");
}

}  // namespace
}  // namespace korven::exchange
