#include "answers/nodes_json.hpp"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

namespace korven::answers {
namespace {

using Json = nlohmann::ordered_json;

TEST(Parola, NamesTheStatesOfTheSoil) {
    EXPECT_EQ(parola(analysis::StatoLato::elastico), "elastico");
    EXPECT_EQ(parola(analysis::StatoLato::attivo), "attivo");
    EXPECT_EQ(parola(analysis::StatoLato::passivo), "passivo");
}

// A zero with a sign would be another text than that of the zero beside it.
TEST(JsonNodi, HaveNoMinusBeforeAZero) {
    equilibrium::FaseEquilibrio fase;
    fase.y = {-0.0, -1e-300, 0.0};
    fase.momento = fase.taglio = fase.taglioSopra = fase.taglioSotto = {-0.0, 0.0, -0.0};
    const Json j = jsonNodi(fase, 0.5);
    EXPECT_EQ(j["spostamento_m"].dump(), "[0.0,-1e-300,0.0]");
    EXPECT_EQ(j["momento_kNm"].dump(), "[0.0,0.0,0.0]");
    EXPECT_EQ(j["taglio_sopra_kN"].dump(), "[0.0,0.0,0.0]");
}

// The first node lies at the head, the others h below each other; 1 t is 10 kN.
TEST(JsonNodi, TellDepthsDisplacementsWithAllDigitsAndForcesInKilonewton) {
    equilibrium::FaseEquilibrio fase;
    fase.y = {0.012345678901234567, 0.0};
    fase.momento = {1.5, -0.25};
    fase.costante = 0.75;
    fase.stati.resize(2);
    fase.stati[1].monte = analysis::StatoLato::attivo;
    fase.stati[1].valle = analysis::StatoLato::passivo;
    const Json j = jsonNodi(fase, 0.5);
    EXPECT_EQ(j["z_m"], Json({0.0, 0.5}));
    EXPECT_EQ(j["spostamento_m"][0].get<double>(), 0.012345678901234567);
    EXPECT_EQ(j["momento_kNm"], Json({15.0, -2.5}));
    EXPECT_EQ(j["costante_kPa"], 7.5);
    EXPECT_EQ(j["stato_monte"], Json({"elastico", "attivo"}));
    EXPECT_EQ(j["stato_valle"], Json({"elastico", "passivo"}));
}

}  // namespace
}  // namespace korven::answers
