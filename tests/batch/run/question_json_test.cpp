#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "batch/run/question_outcome.hpp"

namespace korven::batch {
namespace {

using studies::EsitoBloccaggio;

nlohmann::ordered_json jsonDi(studies::Bloccaggio bloccaggio) {
    return jsonBloccaggio({.tirante = 1, .forza = 8, .bloccaggio = std::move(bloccaggio)});
}

TEST(JsonBloccaggio, NamesTheStageFromTheFirstOn) {
    EXPECT_EQ(jsonDi({.esito = EsitoBloccaggio::trovato, .fase = 1})["fase"], 1);
    EXPECT_EQ(jsonDi({.esito = EsitoBloccaggio::trovato, .fase = 2})["fase"], 2);
    EXPECT_TRUE(jsonDi({.esito = EsitoBloccaggio::maiInOpera})["fase"].is_null());
}

TEST(JsonBloccaggio, HasNumbersOnlyOfWhatWasFound) {
    const auto trovato = jsonDi({.esito = EsitoBloccaggio::trovato,
                                 .fase = 1,
                                 .pretensione = 9,
                                 .forza = 8,
                                 .forze = {8, 8.5}});
    EXPECT_EQ(trovato["forza_chiesta_kN"], 80);
    EXPECT_EQ(trovato["pretensione_kN"], 90);
    EXPECT_EQ(trovato["forza_kN"], 80);
    EXPECT_EQ(trovato["forze_kN"], nlohmann::ordered_json({80, 85}));
    EXPECT_TRUE(trovato["spiegazione"].is_null());
    const auto oltre = jsonDi({.esito = EsitoBloccaggio::sopra, .fase = 1, .pretMassima = 7});
    EXPECT_TRUE(oltre["pretensione_kN"].is_null());
    EXPECT_TRUE(oltre["forza_kN"].is_null());
    EXPECT_EQ(oltre["pretensione_massima_kN"], 70);
    EXPECT_TRUE(jsonDi({.esito = EsitoBloccaggio::maiInOpera})["pretensione_massima_kN"].is_null());
}

}  // namespace
}  // namespace korven::batch
