#include "safety/run_cause.hpp"

#include <gtest/gtest.h>

#include "analysis/segment_count.hpp"
#include "safety/words.hpp"
#include "support/wall_files.hpp"

namespace korven::safety {
namespace {

using analysis::FineCorsa;
using analysis::ModoFine;

project::DatiProgetto muro(const std::string& nome) {
    return test::leggiMuro(std::string(KORVEN_WALLS) + "/" + nome + ".kvd");
}

TEST(CausaCorsa, NeedsNoEquilibriumForARunThatEndedRefusedOrAtItsUsersWish) {
    const std::pair<ModoFine, Causa> attese[] = {
        {ModoFine::compiuta, Causa::eseguito},
        {ModoFine::rifiutata, Causa::rifiutato},
        {ModoFine::fermata, Causa::fermato},
        {ModoFine::nonMostrabile, Causa::nessunNumero},
    };
    for (const auto& [modo, attesa] : attese) {
        const CausaCorsa c = causaCorsa({modo, 1}, muro("meccanismo"), 50);
        EXPECT_EQ(c.causa, attesa);
        EXPECT_EQ(c.frase, "");
        EXPECT_EQ(c.breve, "");
    }
}

TEST(CausaCorsa, AsksTheEquilibriumOfARunThatFoundNoRest) {
    for (const auto modo : {ModoFine::singolare, ModoFine::oltreLimite}) {
        const CausaCorsa cade = causaCorsa({modo, 1}, muro("meccanismo"), 50);
        EXPECT_EQ(cade.causa, Causa::meccanismo);
        EXPECT_TRUE(cade.frase.starts_with("la paratia è un meccanismo nella fase 1: "));
    }
}

TEST(CausaCorsa, SaysWhatKeepsTheRunFromAStageThatStands) {
    auto attesa = diagnosi(muro("oscilla_1"), 50, 2);
    const std::pair<analysis::FineCorsa, Ostacolo> fini[] = {
        {{ModoFine::oltreLimite, 2, 200}, Ostacolo::oscillazione},
        {{ModoFine::oltreLimite, 2, 199}, Ostacolo::limite},
        {{ModoFine::singolare, 2, 0}, Ostacolo::singolare},
    };
    for (const auto& [fine, ostacolo] : fini) {
        const CausaCorsa sta = causaCorsa(fine, muro("oscilla_1"), 50);
        EXPECT_EQ(sta.causa, Causa::oscilla);
        attesa.ostacolo = ostacolo;
        EXPECT_EQ(sta.frase, frase(attesa));
        EXPECT_EQ(sta.breve, inPocheParole(attesa));
    }
}

TEST(CausaCorsa, TakesTheSegmentsThatARunTakes) {
    const auto dati = muro("meccanismo");
    analysis::contenutoNSeg = "17";
    EXPECT_EQ(causaCorsa({ModoFine::singolare, 1}, dati).frase,
              causaCorsa({ModoFine::singolare, 1}, dati, 17).frase);
    EXPECT_NE(causaCorsa({ModoFine::singolare, 1}, dati, 17).frase,
              causaCorsa({ModoFine::singolare, 1}, dati, 50).frase);
    analysis::contenutoNSeg = "2";
    EXPECT_EQ(causaCorsa({ModoFine::singolare, 1}, dati).causa, Causa::rifiutato);
    analysis::contenutoNSeg.reset();
}

}  // namespace
}  // namespace korven::safety
