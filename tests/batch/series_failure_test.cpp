// What makes a variant fail in the command `serie`, beside a wall that falls.

#include <nlohmann/json.hpp>
#include <utility>

#include "batch/series_bench.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using test::contenuto;
using test::dice;
using test::linee;
using test::Serie;

// One of the numbers that rows have is too large in some variants that stand: as many fail as the
// rows say.
TEST_F(Serie, CountsAVariantAsFailedByWhatItIsToldTo) {
    const auto esito = serie(studio(
        {"--fallisce", "spostamento_massimo_m>0.4", "--fallisce", "uso_momento_positivo >= 0.3"}));
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    const auto righe = linee(serie(studio({"--json", "--silenzioso"})).uscita);
    int cadute = 0, spostate = 0, usate = 0, fallite = 0;
    for (const auto& riga : righe) {
        const Json j = Json::parse(riga);
        if (j["causa"] != "eseguito") {
            ++cadute;
            continue;
        }
        const bool spostata = j["spostamento_massimo_m"] > 0.4;
        const bool usata = j["uso_momento_positivo"] >= 0.3;
        spostate += spostata;
        usate += usata;
        fallite += spostata || usata;
    }
    EXPECT_GT(cadute, 0);
    EXPECT_GT(spostate, 0);
    EXPECT_LT(cadute + fallite, 60);
    EXPECT_TRUE(dice(esito.errori,
                     "Varianti che falliscono: " + std::to_string(cadute + fallite) + " su 60."))
        << esito.errori;
    EXPECT_TRUE(dice(esito.errori, "  in equilibrio con Spostamento massimo > 400 mm: " +
                                       std::to_string(spostate)))
        << esito.errori;
    EXPECT_TRUE(dice(esito.errori, "  in equilibrio con Uso, momento positivo >= 30 %: " +
                                       std::to_string(usate)));
}

TEST_F(Serie, ComputesWhatMakesAVariantFail) {
    const auto esito = serie({"--griglia", "phiStrato[1]=30:32:2", "--colonne", "tiro_2_kN",
                              "--fallisce", "riduzione<5"});
    EXPECT_EQ(linee(esito.uscita).at(0), "variante,phiStrato[1] [°],causa,tiro_2_kN,riduzione");
    EXPECT_TRUE(dice(esito.errori, "Varianti che falliscono: 2 su 2.")) << esito.errori;
}

TEST_F(Serie, GoesOnWithWhatMakesAVariantFail) {
    const std::vector<std::string> suo =
        studio({"--fallisce", "spostamento_massimo_m>0.4", "--uscita", file});
    const auto intero = serie(suo);
    const std::string tutto = contenuto(file);
    test::metti(parziale, tutto.substr(0, tutto.size() / 2));
    fs::remove(file);
    auto ripreso = suo;
    ripreso.emplace_back("--riprendi");
    EXPECT_EQ(serie(ripreso).errori, intero.errori);
    EXPECT_EQ(contenuto(file), tutto);
}

TEST_F(Serie, SaysWhyItCanNotTellWhatFails) {
    const std::pair<const char*, const char*> casi[] = {
        {"uso>1",
         "--fallisce uso>1: uso: nessun risultato si chiama così: ci sono causa, motivo, "},
        {"causa>1", "causa: è una parola, non un numero"},
        {"passiva_usata>0,5", "carattere 15: 0,5: il segno decimale è il punto: 0.5"},
        {"passiva_usata", "atteso come in spostamento_massimo_m>0.03"}};
    for (const auto& [testo, perche] : casi) {
        const auto esito = serie(studio({"--fallisce", testo}));
        EXPECT_EQ(esito.codice, 2) << testo;
        EXPECT_EQ(esito.uscita, "");
        EXPECT_TRUE(dice(esito.errori, perche)) << esito.errori;
    }
}

}  // namespace
}  // namespace korven::batch
