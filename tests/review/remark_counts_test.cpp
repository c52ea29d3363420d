#include "review/remark_counts.hpp"

#include <gtest/gtest.h>

namespace korven::review {
namespace {

Osservazioni di(int impediscono, int pericoli, int daVedere) {
    Osservazioni tutte;
    const auto aggiungi = [&tutte](int quante, Peso peso) {
        while (quante-- > 0) tutte.emplace_back().peso = peso;
    };
    aggiungi(daVedere, Peso::daVedere);
    aggiungi(impediscono, Peso::impedisce);
    aggiungi(pericoli, Peso::pericolo);
    return tutte;
}

TEST(Conteggio, NamesTheWeightsThatThereAreTheHeaviestFirst) {
    EXPECT_EQ(conteggio(di(0, 1, 2)), "1 pericolo, 2 da vedere");
    EXPECT_EQ(conteggio(di(2, 3, 1)), "2 impediscono il calcolo, 3 pericoli, 1 da vedere");
    EXPECT_EQ(conteggio(di(1, 0, 0)), "1 impedisce il calcolo");
    EXPECT_EQ(conteggio(di(0, 0, 41)), "41 da vedere");
}

TEST(Conteggio, SaysThatThereIsNone) { EXPECT_EQ(conteggio({}), "nessuna osservazione"); }

}  // namespace
}  // namespace korven::review
