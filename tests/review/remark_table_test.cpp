#include "review/remark_table.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "review/remark.hpp"

namespace korven::review {
namespace {

TEST(TabellaOsservazioni, HasEachCodeOnceInSmallLettersAndHyphens) {
    std::set<std::string_view> codici;
    for (const auto voci : vociOsservazioni)
        for (const auto& voce : voci) {
            EXPECT_TRUE(codici.insert(voce.codice).second) << voce.codice;
            EXPECT_EQ(voce.codice.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-"),
                      std::string_view::npos)
                << voce.codice;
        }
    EXPECT_GT(codici.size(), 50u);
}

TEST(Voce, IsTheRowOfItsCode) {
    EXPECT_EQ(Voce("ks-mancante")->testo, "modulo ks mancante");
    EXPECT_EQ((*Voce("fase-singolare")).peso, Peso::impedisce);
}

TEST(Peso, HasAWordAndIsCounted) {
    EXPECT_EQ(parola(Peso::impedisce), "impedisce");
    EXPECT_EQ(parola(Peso::pericolo), "pericolo");
    EXPECT_EQ(parola(Peso::daVedere), "da vedere");
    const Osservazioni tre = {{"a", Peso::daVedere, "", {}, ""},
                              {"b", Peso::pericolo, "", {}, ""},
                              {"c", Peso::daVedere, "", {}, ""}};
    EXPECT_EQ(quante(tre, Peso::daVedere), 2);
    EXPECT_EQ(quante(tre, Peso::pericolo), 1);
    EXPECT_EQ(quante(tre, Peso::impedisce), 0);
    EXPECT_TRUE(calcolabile(tre));
    EXPECT_FALSE(calcolabile({{"d", Peso::impedisce, "", {}, ""}}));
}

}  // namespace
}  // namespace korven::review
