#include "tables/table_order.hpp"

#include <gtest/gtest.h>

namespace korven::tables {
namespace {

Prospetto diUnaColonna(std::vector<Cella> celle) {
    Prospetto p{.colonne = {{.titolo = "x"}}};
    for (Cella& c : celle) p.righe.push_back({std::move(c)});
    return p;
}

using Posti = std::vector<std::size_t>;

TEST(Ordine, GoesByTheNumberAndNotByItsText) {
    const Prospetto p = diUnaColonna({{.testo = "10.00", .numero = 10},
                                      {.testo = "9.00", .numero = 9},
                                      {.testo = "-1.00", .numero = -1}});
    EXPECT_EQ(ordine(p, 0, true), (Posti{2, 1, 0}));
    EXPECT_EQ(ordine(p, 0, false), (Posti{0, 1, 2}));
}

TEST(Ordine, TellsNumbersApartThatAreShownAlike) {
    const Prospetto p =
        diUnaColonna({{.testo = "1.00", .numero = 1.004}, {.testo = "1.00", .numero = 1.001}});
    EXPECT_EQ(ordine(p, 0, true), (Posti{1, 0}));
}

TEST(Ordine, PutsWhatHasNoNumberLastBothWays) {
    const Prospetto p =
        diUnaColonna({{}, {.testo = "2", .numero = 2}, {.testo = "3", .numero = 3}});
    EXPECT_EQ(ordine(p, 0, true), (Posti{1, 2, 0}));
    EXPECT_EQ(ordine(p, 0, false), (Posti{2, 1, 0}));
}

TEST(Ordine, KeepsEqualRowsInTheOrderOfTheTable) {
    const Cella una{.testo = "1", .numero = 1};
    EXPECT_EQ(ordine(diUnaColonna({una, una, una}), 0, false), (Posti{0, 1, 2}));
}

TEST(Ordine, SortsWordsByTheirNumberOrByTheirLetters) {
    EXPECT_EQ(ordine(diUnaColonna({parola("> 10", 10), {.testo = "2.00", .numero = 2}}), 0, true),
              (Posti{1, 0}));
    EXPECT_EQ(ordine(diUnaColonna({parola("passivo"), parola("attivo")}), 0, true), (Posti{1, 0}));
}

}  // namespace
}  // namespace korven::tables
