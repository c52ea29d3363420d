#include "safety/slow_stage.hpp"

#include <gtest/gtest.h>

#include "safety/words.hpp"
#include "support/wall_files.hpp"

namespace korven::safety {
namespace {

project::DatiProgetto muro(const std::string& nome) {
    return test::leggiMuro(std::string(KORVEN_WALLS) + "/" + nome + ".kvd");
}

analysis::StatoIterazione stato(int fase, int iterazione) {
    analysis::StatoIterazione s;
    s.fase = fase;
    s.iterazione = iterazione;
    s.nNodi = 51;
    return s;
}

TEST(FaseSenzaRiposo, IsToldFromTheTwoHundredthIterationOn) {
    const auto dati = muro("oscilla_1");
    const std::string detto = inBreve(diagnosi(dati, 50, 2));
    ASSERT_FALSE(detto.empty());
    FaseSenzaRiposo fase;
    EXPECT_EQ(fase.riga(stato(2, 1), dati), "");
    EXPECT_EQ(fase.riga(stato(2, 199), dati), "");
    EXPECT_EQ(fase.riga(stato(2, 200), dati), detto);
    EXPECT_EQ(fase.riga(stato(2, 5000), dati), detto);
}

// Told by data that change meanwhile: what was said of the stage stays.
TEST(FaseSenzaRiposo, AsksTheEquilibriumOnceAStage) {
    FaseSenzaRiposo fase;
    const std::string sta = fase.riga(stato(1, 200), muro("oscilla_1"));
    EXPECT_EQ(fase.riga(stato(1, 201), muro("meccanismo")), sta);
    EXPECT_EQ(fase.riga(stato(2, 1), muro("meccanismo")), "");
    EXPECT_TRUE(fase.riga(stato(1, 200), muro("meccanismo"))
                    .starts_with("la paratia è un meccanismo nella fase 1: "));
}

}  // namespace
}  // namespace korven::safety
