#include "exchange/csv_layers.hpp"

#include <gtest/gtest.h>

#include "exchange/layer_columns.hpp"

namespace korven::exchange {
namespace {

using Frasi = std::vector<std::string>;

const RigaStrato sabbia{"3.5", "18", "19.5", "30", "0", "5000", "103C3 Sabbia"};
const RigaStrato argilla{"12", "19", "20", "24", "10", "", "105 Argilla"};

// One fault alone, and then nothing is taken.
std::string difetto(std::string_view testo) {
    const auto letti = leggiCsv(testo);
    EXPECT_TRUE(letti.righe.empty());
    return letti.difetti.size() == 1 ? letti.difetti[0]
                                     : std::to_string(letti.difetti.size()) + " faults";
}

RigheStrati lette(std::string_view testo) {
    const auto letti = leggiCsv(testo);
    EXPECT_EQ(letti.difetti, Frasi{}) << testo;
    return letti.righe;
}

TEST(LeggiCsv, TakesRowsWithoutNamesInTheOrderOfTheEditor) {
    EXPECT_EQ(lette("3.5,18,19.5,30,0,5000,103C3 Sabbia\n12,19,20,24,10,,105 Argilla\n"),
              (RigheStrati{sabbia, argilla}));
    EXPECT_EQ(lette("3.5\n"), (RigheStrati{{"3.5"}}));
}

TEST(LeggiCsv, FindsOutTheSignBetweenCells) {
    const RigheStrati due{sabbia, argilla};
    EXPECT_EQ(lette("3,5;18;19,5;30;0;5000;103C3 Sabbia\r\n12;19;20;24;10;;105 Argilla"), due);
    EXPECT_EQ(
        lette("3,5\t18\t19,5\t30\t0\t5000\t103C3 Sabbia\r\n12\t19\t20\t24\t10\t\t105 Argilla"),
        due);
    EXPECT_EQ(
        lette("3.5\t18\t19.5\t30\t0\t5000\t103C3 Sabbia\r\n12\t19\t20\t24\t10\t\t105 Argilla"),
        due);
}

TEST(LeggiCsv, IsNotLedAstrayBySignsInADescription) {
    RigaStrato riga = sabbia;
    riga[descrizione] = "103 Sabbia; fine; con ghiaia;;;;;;";
    EXPECT_EQ(lette("3.5,18,19.5,30,0,5000," + riga[descrizione]), (RigheStrati{riga}));
    riga[descrizione] = "103 Sabbia, fine, con ghiaia,,,,,,,";
    EXPECT_EQ(lette("3,5;18;19,5;30;0;5000;" + riga[descrizione]), (RigheStrati{riga}));
}

TEST(LeggiCsv, BelievesALineThatTellsTheSign) {
    EXPECT_EQ(lette("sep=|\r\n3,5|18|19,5|30|0|5000|103C3 Sabbia"), (RigheStrati{sabbia}));
    EXPECT_EQ(difetto("sep=;\n3;x"), "riga 2, colonna 2: «x» non è un numero (Gamma [kN/m³])");
    EXPECT_EQ(difetto("sep=;"), "il file non contiene strati");
}

TEST(LeggiCsv, KnowsColumnsByTheNamesOfTheFieldsInAnyOrder) {
    EXPECT_EQ(lette("descrStrato;profStrato;gammaN;gammaSat;phiStrato;coesione;ksStrato\n"
                    "103C3 Sabbia;3.5;18;19.5;30;0;5000\n"),
              (RigheStrati{sabbia}));
}

TEST(LeggiCsv, KnowsColumnsByItalianAndEnglishWords) {
    EXPECT_EQ(lette("Prof. [m];Gamma [kN/m³];Gamma Sat. [kN/m3];Phi [°];Coes. [kPa];ks [kN/mc];"
                    "Descrizione\n3.5;18;19.5;30;0;5000;103C3 Sabbia"),
              (RigheStrati{sabbia}));
    EXPECT_EQ(lette("DEPTH (m),unit weight,saturated unit weight,friction angle [deg],cohesion,"
                    "Subgrade modulus,Description\n3.5,18,19.5,30,0,5000,103C3 Sabbia"),
              (RigheStrati{sabbia}));
}

TEST(LeggiCsv, KnowsTheGermanSignOfTheSaturatedUnitWeight) {
    EXPECT_EQ(lette("prof;gamma;Gamma r [kN/m³];phi;coes;ks;descrizione\n"
                    "3.5;18;19.5;30;0;5000;103C3 Sabbia"),
              (RigheStrati{sabbia}));
}

TEST(LeggiCsv, SaysWhichColumnsTheFileLacksOrWhichItDoesNotRead) {
    const auto letti = leggiCsv("profStrato;suStrato;descrStrato\n3;5;105 Argilla");
    ASSERT_TRUE(letti.riuscita());
    EXPECT_EQ(letti.righe, (RigheStrati{{"3", "", "", "", "", "", "105 Argilla"}}));
    EXPECT_EQ(letti.assenti, std::bitset<numeroColonne>("0111110"));
    EXPECT_EQ(letti.avvertenze,
              Frasi{"riga 1, colonna 2: la colonna «suStrato» non è di questa tabella e non viene "
                    "letta"});
}

TEST(LeggiCsv, TellsWhetherDescriptionsAreThoseOfThisProgram) {
    EXPECT_TRUE(leggiCsv("profStrato;descrStrato\n3;105 Argilla").descrizioniConCodice);
    EXPECT_TRUE(leggiCsv("3,1,1,1,1,1,105 Argilla").descrizioniConCodice);
    EXPECT_FALSE(leggiCsv("Depth;Description\n3;Clay").descrizioniConCodice);
}

TEST(LeggiCsv, AddsThicknessesUpFromTheHead) {
    EXPECT_EQ(lette("Spessore [m];Descrizione\n0,1;a\n0,2;b\n3;c\n"),
              (RigheStrati{{"0.1", "", "", "", "", "", "a"},
                           {"0.3", "", "", "", "", "", "b"},
                           {"3.3", "", "", "", "", "", "c"}}));
    EXPECT_FALSE(leggiCsv("Thickness\n1").assenti[profondita]);
    EXPECT_EQ(difetto("Spessore\n999\n2"),
              "riga 3, colonna 1: «1001» non sta tra 0 e 1000 (Prof. [m])");
}

TEST(LeggiCsv, TakesDepthsBeforeThicknesses) {
    const auto letti = leggiCsv("Thickness,Depth\n1,2\n");
    EXPECT_EQ(letti.righe, (RigheStrati{{"2"}}));
    EXPECT_EQ(letti.avvertenze, Frasi{"ci sono profondità e spessori: valgono le profondità"});
}

TEST(LeggiCsv, QuotesTheBeginningOfALongCell) {
    const std::string lungo(79, 'x');
    EXPECT_EQ(leggiCsv("Prof.;" + lungo + "àààà\n1;2\n").avvertenze,
              Frasi{"riga 1, colonna 2: la colonna «" + lungo +
                    "...» non è di questa tabella e non viene letta"});
    EXPECT_LT(difetto("Prof.\n1" + std::string(5000000, 'x')).size(), 200U);
}

TEST(LeggiCsv, RefusesAnotherUnit) {
    EXPECT_EQ(
        difetto("Prof. [m];Gamma [t/m³]\n3;1,8"),
        "riga 1, colonna 2: l'unità [t/m³] non è quella della tabella: convertire i valori in "
        "[kN/m³]");
    EXPECT_EQ(difetto("Depth [cm]\n300"),
              "riga 1, colonna 1: l'unità [cm] non è quella della tabella: convertire i valori in "
              "[m]");
}

TEST(LeggiCsv, RefusesNamesWithoutADepthAndNamesTwice) {
    EXPECT_EQ(difetto("Phi;Coes.\n30;0"),
              "riga 1: tra i nomi delle colonne manca la profondità (Prof. [m]) o lo spessore "
              "(Spessore [m])");
    EXPECT_EQ(difetto("Prof.;Phi;Friction angle\n3;30;30"),
              "riga 1, colonna 3: la colonna «Friction angle» c'è già");
}

TEST(LeggiCsv, RefusesATextThatIsNoTableOfLayers) {
    EXPECT_EQ(difetto("Cara Anna,\nci vediamo alle 3"),
              "riga 1: tra i nomi delle colonne manca la profondità (Prof. [m]) o lo spessore "
              "(Spessore [m])");
    EXPECT_EQ(difetto(""), "il file non contiene strati");
    EXPECT_EQ(difetto("\n;;;\n"), "il file non contiene strati");
    EXPECT_EQ(difetto("profStrato;phiStrato\n"), "il file non contiene strati");
}

TEST(LeggiCsv, TellsLineAndColumnOfWhatIsNoNumber) {
    EXPECT_EQ(difetto("3;18\n\n6;19 circa"),
              "riga 3, colonna 2: «19 circa» non è un numero (Gamma [kN/m³])");
    EXPECT_EQ(difetto("3;1.018,5"), "riga 1, colonna 2: «1.018,5» non è un numero (Gamma [kN/m³])");
}

TEST(LeggiCsv, TellsANumberBeyondTheLimitsOfItsField) {
    EXPECT_EQ(difetto("3;18;19;61"), "riga 1, colonna 4: «61» non sta tra 0 e 60 (Phi [°])");
    EXPECT_EQ(difetto("-1;18"), "riga 1, colonna 1: «-1» non sta tra 0 e 1000 (Prof. [m])");
    EXPECT_EQ(lette("1e3;0;40;60"), (RigheStrati{{"1e3", "0", "40", "60"}}));
}

TEST(LeggiCsv, TellsAMissingDepth) {
    EXPECT_EQ(difetto("Phi;Prof.\n30;3\n31;"),
              "riga 3, colonna 2: manca la profondità dello strato");
}

TEST(LeggiCsv, RefusesCommasThatPartBothCellsAndDecimals) {
    EXPECT_EQ(difetto("3,5,18,2,19,1,30,0,0,105"),
              "3 faults");  // 8 to 10 have no column
    EXPECT_EQ(difetto("3,\"18,2\",19"),
              "riga 1, colonna 2: «18,2» non è un numero (Gamma [kN/m³])");
}

// 10.000 may be ten thousand where 18,5 stands beside it.
TEST(LeggiCsv, RefusesTwoDecimalSignsInOneFile) {
    EXPECT_EQ(
        difetto("3;18,5;20;30;0;10.000"),
        "riga 1, colonna 6: qui il segno decimale è diverso da quello della riga 1: usarne uno "
        "solo, e nessun segno per le migliaia");
}

TEST(LeggiCsv, RefusesMoreLayersThanAProjectHolds) {
    std::string testo;
    for (int i = 1; i <= 100; ++i) testo += std::to_string(i) + "\n";
    EXPECT_EQ(lette(testo).size(), 100U);
    EXPECT_EQ(difetto(testo + "101\n"), "gli strati sono 101: un progetto ne tiene al massimo 100");
}

TEST(LeggiCsv, StopsAtTwentyFaults) {
    std::string testo;
    for (int i = 1; i <= 1000; ++i) testo += "x1;y\n";
    const auto letti = leggiCsv("Prof.;Phi\n" + testo);
    EXPECT_EQ(letti.difetti.size(), 21U);
    EXPECT_EQ(letti.difetti.back(), "quello che segue non è stato esaminato");
}

TEST(LeggiCsv, MakesOneLineOfADescriptionOfSeveral) {
    EXPECT_EQ(lette("3,1,1,1,1,1,\"105 Argilla\r\ngrigia\nscura\""),
              (RigheStrati{{"3", "1", "1", "1", "1", "1", "105 Argilla grigia scura"}}));
}

TEST(LeggiCsv, SaysWhichCharactersAProjectCanNotHold) {
    const auto letti = leggiCsv("3,1,1,1,1,1,105 γ ≥ 18\n");
    EXPECT_EQ(letti.righe[0][descrizione], "105 ? ? 18");
    EXPECT_EQ(letti.avvertenze,
              Frasi{"riga 1, colonna 7: un carattere che il file del progetto non può contenere "
                    "diventa «?»"});
}

TEST(LeggiCsv, WarnsOfDepthsOutOfOrderOrTheSame) {
    EXPECT_EQ(leggiCsv("3\n2\n").avvertenze,
              Frasi{"gli strati non sono in ordine di profondità: la conferma della tabella li "
                    "ordina"});
    EXPECT_EQ(leggiCsv("2\n3\n3.0\n").avvertenze,
              Frasi{"gli strati 2 e 3 finiscono alla stessa profondità: il secondo ha spessore 0"});
}

TEST(LeggiCsv, TellsQuotesThatNeverEnd) {
    EXPECT_EQ(difetto("3,1,1,1,1,1,\"105 Argilla\n4,1\n"),
              "riga 1, colonna 7: le virgolette aperte non vengono mai chiuse");
}

TEST(ColonneStrati, AreThoseOfTheEditor) {
    EXPECT_EQ(campoColonna(profondita).nome, "profStrato");
    EXPECT_EQ(campoColonna(gammaSat).nome, "gammaSat");
    EXPECT_EQ(campoColonna(ks).nome, "ksStrato");
    EXPECT_EQ(campoColonna(descrizione).nome, "descrStrato");
}

}  // namespace
}  // namespace korven::exchange
