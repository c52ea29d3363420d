#include "answers/margin_json.hpp"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

namespace korven::answers {
namespace {

TEST(ParolaVerifica, NamesEachCheckForPrograms) {
    EXPECT_STREQ(parola(results::Verifica::momentoPositivo), "momento_positivo");
    EXPECT_STREQ(parola(results::Verifica::momentoNegativo), "momento_negativo");
    EXPECT_STREQ(parola(results::Verifica::bielle), "bielle");
    EXPECT_STREQ(parola(results::Verifica::armatura), "armatura");
}

TEST(JsonMargine, TellsWhatIsKnownOfTheShortestWall) {
    using safety::EsitoLunghezza;
    safety::Margine margine;
    margine.nSeg = 50;
    margine.paratia = 12;
    margine.fasi.resize(1);
    margine.fasi[0].fase = 1;
    margine.fasi[0].esito = equilibrium::EsitoFase::equilibrio;
    const std::pair<EsitoLunghezza, const char*> esiti[] = {
        {EsitoLunghezza::trovata, "trovata"},
        {EsitoLunghezza::sempre, "sempre"},
        {EsitoLunghezza::mai, "mai"},
        {EsitoLunghezza::vincolata, "vincolata"}};
    for (const auto& [esito, detto] : esiti) {
        margine.lunghezza = {esito, {}};
        if (esito == EsitoLunghezza::trovata) margine.lunghezza.lunghezza = 9.25;
        const auto j = jsonMargine(margine);
        EXPECT_EQ(j["lunghezza_m"], 12.0);
        EXPECT_EQ(j["lunghezza_minima_esito"], detto);
        EXPECT_EQ(j["lunghezza_minima_m"].is_null(), esito != EsitoLunghezza::trovata);
    }
}

}  // namespace
}  // namespace korven::answers
