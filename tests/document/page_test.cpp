#include "document/page.hpp"

#include <gtest/gtest.h>

#include <set>

namespace korven::document {
namespace {

Pagina diTutto() {
    Pagina p;
    p.fondi.push_back({.x = 10, .y = 20, .larghezza = 5, .altezza = 6});
    p.filetti.push_back({.x1 = 11, .y1 = 21, .x2 = 13, .y2 = 24});
    p.disegni.push_back({.x = 12, .y = 22, .scala = 0.5});
    p.scritte.push_back({.x = 13, .y = 23, .testo = "uno", .carattere = {}});
    p.rimandi.push_back({.x = 14, .y = 24, .larghezza = 7, .altezza = 8, .segnalibro = 3});
    return p;
}

TEST(Pagina, TakesAllOfAnotherMovedByTheSame) {
    Pagina p = diTutto();
    p.aggiungi(diTutto(), 100, 1000);
    ASSERT_EQ(p.fondi.size(), 2u);
    EXPECT_EQ(p.fondi[0].x, 10);
    EXPECT_EQ(p.fondi[1].x, 110);
    EXPECT_EQ(p.fondi[1].y, 1020);
    EXPECT_EQ(p.fondi[1].larghezza, 5);
    ASSERT_EQ(p.filetti.size(), 2u);
    EXPECT_EQ(p.filetti[1].x1, 111);
    EXPECT_EQ(p.filetti[1].x2, 113);
    EXPECT_EQ(p.filetti[1].y1, 1021);
    EXPECT_EQ(p.filetti[1].y2, 1024);
    ASSERT_EQ(p.disegni.size(), 2u);
    EXPECT_EQ(p.disegni[1].x, 112);
    EXPECT_EQ(p.disegni[1].y, 1022);
    EXPECT_EQ(p.disegni[1].scala, 0.5);
    ASSERT_EQ(p.scritte.size(), 2u);
    EXPECT_EQ(p.scritte[1].x, 113);
    EXPECT_EQ(p.scritte[1].y, 1023);
    EXPECT_EQ(p.scritte[1].testo, "uno");
    ASSERT_EQ(p.rimandi.size(), 2u);
    EXPECT_EQ(p.rimandi[1].x, 114);
    EXPECT_EQ(p.rimandi[1].y, 1024);
    EXPECT_EQ(p.rimandi[1].segnalibro, 3u);
}

// Who prints without colours still tells what is what.
TEST(Colore, HasAnotherLightnessForEachPartOfAPage) {
    using enum Tinta;
    std::set<int> chiarezze;
    for (const Tinta tinta : {testo, tenue, titolo, pericolo, filetto, riga, fondoTesta, barra}) {
        const plot::Colore c = colore(tinta);
        chiarezze.insert((299 * plot::rosso(c) + 587 * plot::verde(c) + 114 * plot::blu(c)) / 1000);
    }
    EXPECT_EQ(chiarezze.size(), 8u);
}

}  // namespace
}  // namespace korven::document
