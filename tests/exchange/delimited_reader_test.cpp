#include "exchange/delimited_reader.hpp"

#include <gtest/gtest.h>

namespace korven::exchange {
namespace {

using Celle = std::vector<std::string>;

std::vector<Celle> righe(std::string_view testo, char separatore = ',') {
    LettoreDelimitato lettore(testo, separatore);
    std::vector<Celle> tutte;
    while (const auto riga = lettore.prossima()) {
        Celle celle;
        for (const auto& cella : riga->celle) celle.push_back(cella.testo);
        tutte.push_back(celle);
    }
    return tutte;
}

std::string difetto(std::string_view testo) {
    LettoreDelimitato lettore(testo, ',');
    while (lettore.prossima()) {
    }
    return lettore.difetto();
}

TEST(LettoreDelimitato, PartsCellsAtTheSignAndRowsAtAnyLineEnd) {
    EXPECT_EQ(righe("1,2\r\n3,4\n5,6\r7"),
              (std::vector<Celle>{{"1", "2"}, {"3", "4"}, {"5", "6"}, {"7"}}));
    EXPECT_EQ(righe("1;2,5", ';'), (std::vector<Celle>{{"1", "2,5"}}));
    EXPECT_EQ(righe("a,,b,\n"), (std::vector<Celle>{{"a", "", "b", ""}}));
    EXPECT_EQ(righe("\n\nx"), (std::vector<Celle>{{""}, {""}, {"x"}}));
    EXPECT_TRUE(righe("").empty());
}

TEST(LettoreDelimitato, TakesQuotedCellsWithSignsQuotesAndLineEnds) {
    EXPECT_EQ(righe("\"a,b\",\"c \"\"d\"\"\",\"e\r\nf\""),
              (std::vector<Celle>{{"a,b", "c \"d\"", "e\r\nf"}}));
    EXPECT_EQ(righe("\"\",\"\"\"\""), (std::vector<Celle>{{"", "\""}}));
    EXPECT_EQ(righe("1, \"a\" ,2"), (std::vector<Celle>{{"1", "a", "2"}}));
}

TEST(LettoreDelimitato, KeepsAQuoteInsideAPlainCellAndItsBlanks) {
    EXPECT_EQ(righe("tubo 3\", x"), (std::vector<Celle>{{"tubo 3\"", " x"}}));
}

TEST(LettoreDelimitato, CountsTheLineInWhichARowBegins) {
    LettoreDelimitato lettore("\"a\nb\",1\n\n  \nc,2\n", ',', 10);
    EXPECT_EQ(lettore.prossimaPiena()->riga, 10);
    const auto seconda = lettore.prossimaPiena();
    EXPECT_EQ(seconda->riga, 14);
    EXPECT_EQ(seconda->cella(0), "c");
    EXPECT_EQ(seconda->cella(9), "");
    EXPECT_FALSE(lettore.prossimaPiena());
}

TEST(LettoreDelimitato, TellsTheLineOfQuotesThatNeverEnd) {
    EXPECT_EQ(difetto("1,2\n3,\"abc\nd"),
              "riga 2, colonna 2: le virgolette aperte non vengono mai chiuse");
    EXPECT_EQ(difetto("1,2\n3,\"abc\""), "");
}

TEST(LettoreDelimitato, TellsATextBehindTheQuotes) {
    EXPECT_EQ(difetto("1\n\"a\"b,2"),
              "riga 2, colonna 1: dopo le virgolette chiuse c'è altro testo; le virgolette nel "
              "testo vanno raddoppiate");
}

}  // namespace
}  // namespace korven::exchange
