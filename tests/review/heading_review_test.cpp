#include "review/heading_review.hpp"

#include <gtest/gtest.h>

#include "review/bench.hpp"

namespace korven::review {
namespace {

using Righe = std::vector<std::string>;

const std::string comando =
    "comincia con #: la relazione la prende per un comando, non la stampa e può finire lì; farla "
    "cominciare con un altro segno";
const std::string vicina =
    "nella stratigrafia si sovrappone alla riga vicina: lasciare una riga vuota tra due titoli";

Righe titoli(const Righe& prime) {
    Righe sei = prime;
    sei.resize(6);
    return sei;
}

Righe stranezze(std::size_t riga, const Righe& righe) {
    Righe testi;
    for (const auto& stranezza : stranezzeTitolo(riga, righe)) testi.push_back(stranezza.testo);
    return testi;
}

TEST(StranezzeTitolo, TellALineThatTheReportTakesForACommand) {
    EXPECT_EQ(stranezze(1, titoli({"#ENDDOCUMENT"})), Righe{comando});
    EXPECT_EQ(stranezze(3, titoli({"", "", "  # 12"})), Righe{comando});
    EXPECT_TRUE(stranezze(1, titoli({"Lotto #12"})).empty());
}

// Arial sets an "m" 0.833 wide on its body; a text of height h is set on a body of 5/3 h / 1.117.
// The first line is 0.5 high about x 10 of a sheet of 19 in the diagrams: 18 cm. The others are 0.4
// high about x 10.5 of 20 in the log: 19 cm.
TEST(StranezzeTitolo, TellHowManyCharactersTheSheetHolds) {
    const double m = 0.833 * 5 / 3 / 1.117;
    const auto prima = static_cast<std::size_t>(18 / (m * 0.5));
    const auto altre = static_cast<std::size_t>(19 / (m * 0.4));
    ASSERT_EQ(prima, 28u);
    ASSERT_EQ(altre, 38u);
    const std::string lunga(60, 'm');
    EXPECT_EQ(caratteriNelFoglio(1, lunga), prima);
    for (std::size_t riga = 2; riga <= 6; ++riga) EXPECT_EQ(caratteriNelFoglio(riga, lunga), altre);
    EXPECT_EQ(stranezze(1, titoli({lunga})),
              Righe{"nei disegni esce dal foglio: numero di caratteri che ci stanno (28)"});
    EXPECT_TRUE(stranezze(1, titoli({std::string(28, 'm')})).empty());
    EXPECT_TRUE(stranezze(1, titoli({std::string(60, 'i')})).empty());  // narrow characters
}

TEST(StranezzeTitolo, TellNeighboursThatTheLogPrintsOverEachOther) {
    for (std::size_t riga = 1; riga < 6; ++riga) {
        auto due = titoli({});
        due[riga - 1] = "sopra";
        due[riga] = "sotto";
        EXPECT_EQ(stranezze(riga, due), Righe{vicina});
        EXPECT_EQ(stranezze(riga + 1, due), Righe{vicina});
        due[riga] = "  ";
        EXPECT_TRUE(stranezze(riga, due).empty());
    }
    EXPECT_TRUE(stranezze(3, titoli({"a", "", "c", "", "e"})).empty());
}

TEST(StranezzeTitolo, HaveNothingToSayOfAnEmptyLineOrOfTheFieldAfterTheLines) {
    EXPECT_TRUE(stranezze(2, titoli({"a", "", "c"})).empty());
    Righe campi = titoli({"a", "", "", "", "", "f"});
    campi.push_back("#3");  // the stage of the diagrams
    EXPECT_TRUE(stranezze(7, campi).empty());
    EXPECT_EQ(notaTitolo(6, campi), "");
}

TEST(NotaTitolo, JoinsWhatIsOddInOneLine) {
    EXPECT_EQ(notaTitolo(0, titoli({"#12", "b"})), comando + "; " + vicina);
    EXPECT_EQ(notaTitolo(0, titoli({"a"})), "");
}

TEST(ControlloTitoli, NamesTheLines) {
    aspetta({{[](DatiProgetto& d) { d.titoli[3] = "#ENDDOCUMENT"; }, {"titolo 3: " + comando}},
             {[](DatiProgetto& d) { d.titoli[2] = "Lotto"; },
              {"titoli 1, 2: nella stratigrafia si sovrappongono: lasciare una riga vuota tra due "
               "titoli"}}});
}

TEST(ControlloTitoli, TellAllLinesThatOverlapOnce) {
    const auto trovate = osservazioni(conModifica([](DatiProgetto& d) {
        d.titoli[1] = "";
        for (const int i : {2, 3, 4, 6}) d.titoli[i] = "Lotto";
    }));
    ASSERT_EQ(trovate.size(), 1u);
    EXPECT_EQ(trovate[0].codice, "titoli-sovrapposti");
    EXPECT_TRUE(trovate[0].testo.starts_with("titoli 2, 3, 4: ")) << trovate[0].testo;
    EXPECT_EQ(trovate[0].campi, (Righe{"titoli[2]", "titoli[3]", "titoli[4]"}));
}

}  // namespace
}  // namespace korven::review
