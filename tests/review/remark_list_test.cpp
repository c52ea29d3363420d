#include "review/remark_list.hpp"

#include <gtest/gtest.h>

namespace korven::review {
namespace {

TEST(ElencoRilievi, KeepsTheOrderWithinWhatPreventsARunAndWithinTheRest) {
    ElencoRilievi elenco;
    elenco.avviso("a");
    elenco.impedimento("b");
    elenco.avviso("c");
    elenco.impedimento("d");
    std::string ordine;
    for (const auto& r : elenco.ordinato()) ordine += r.testo;
    EXPECT_EQ(ordine, "bdac");
    EXPECT_TRUE(elenco.ordinato().empty());
}

TEST(Riga, NamesTheRowInFrontOfTheText) {
    EXPECT_EQ(rigaNumerata("strato", 3, "ha spessore nullo"), "strato 3: ha spessore nullo");
}

TEST(ConValore, PutsThePlainNumberInBrackets) {
    EXPECT_EQ(conValoreTraParentesi("codice", -0.5), "codice (-0.5)");
    EXPECT_EQ(conValoreTraParentesi("codice", 3), "codice (3)");
}

TEST(Intero, IsTrueForWholeNumbersOfEitherSignAlone) {
    for (const double si : {0.0, -3.0, 1e15}) EXPECT_TRUE(intero(si)) << si;
    for (const double no : {0.5, -0.1, 1.2}) EXPECT_FALSE(intero(no)) << no;
}

}  // namespace
}  // namespace korven::review
