// The commands `lunghezza` and `bloccaggio` from outside.

#include <algorithm>
#include <nlohmann/json.hpp>

#include "batch/batch_bench.hpp"
#include "support/sample_sections.hpp"

namespace korven::batch {
namespace {

using Json = nlohmann::json;
using test::dice;

class Domande : public test::BancoConsole {
 protected:
    test::EsitoProgramma lunghezza(std::vector<std::string> altri) {
        return esegui("lunghezza", std::move(altri));
    }
    test::EsitoProgramma bloccaggio(std::vector<std::string> altri) {
        return esegui("bloccaggio", std::move(altri));
    }
};

TEST_F(Domande, OfTheLengthAreAnsweredWithATableOfThoseTried) {
    const auto esito = lunghezza({"--sicurezza-min", "1.2", "--spostamento-max", "0.05"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.uscita, "La paratia più corta che soddisfa i criteri è lunga "))
        << esito.uscita;
    EXPECT_TRUE(dice(esito.uscita, "soddisfa i criteri\n")) << esito.uscita;
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(Domande, OfTheLengthSayWhatWasAskedWithItsUnits) {
    const auto esito = lunghezza({"--spostamento-max", "0.05", "--sicurezza-min", "1.2"});
    EXPECT_TRUE(dice(esito.uscita,
                     " Criteri: equilibrio in ogni fase, riduzione F almeno 1.2, spostamento al "
                     "più 50 mm.\n"))
        << esito.uscita << esito.errori;
    const auto breve = lunghezza({"--sicurezza-min", "1.2", "--silenzioso"});
    EXPECT_TRUE(breve.uscita.starts_with("La paratia più corta che soddisfa i criteri è lunga "))
        << breve.uscita;
    EXPECT_EQ(std::count(breve.uscita.begin(), breve.uscita.end(), '\n'), 1);
}

TEST_F(Domande, OfTheLengthRefuseMillimetres) {
    const auto esito = lunghezza({"--spostamento-max", "30"});
    EXPECT_EQ(esito.codice, 2);
    EXPECT_TRUE(dice(esito.errori,
                     "--spostamento-max 30: il limite è in metri, e minore di 1: 0.03 per 30 mm"))
        << esito.errori;
    EXPECT_EQ(esito.uscita, "");
}

TEST_F(Domande, OfTheLengthHoldForTheWallThatIsSet) {
    const Json j = Json::parse(
        lunghezza({"--sicurezza-min", "1.3", "--spostamento-max", "0.03", "--json"}).uscita);
    const Json& l = j["lunghezza"];
    ASSERT_TRUE(l["lunghezza_m"].is_number());
    const std::string nuovo = cartella / "nuovo.kvd";
    ASSERT_EQ(console({"imposta", progetto, "--uscita", nuovo,
                       "lunghezzaParatia=" + l["lunghezza_m"].dump()})
                  .codice,
              0);
    const Json margine =
        Json::parse(console({"sicurezza", nuovo, "--nseg", "10", "--json"}).uscita)["sicurezza"];
    double F = 99, y = 0;
    for (const Json& fase : margine["fasi"]) {
        if (fase["riduzione"].is_number()) F = std::min(F, fase["riduzione"].get<double>());
        y = std::max(y, fase["spostamento_massimo_m"].get<double>());
    }
    EXPECT_GE(F, 1.3);
    EXPECT_LE(y, 0.03);
    for (const Json& provata : l["provate"])
        if (provata["lunghezza_m"] == l["lunghezza_m"]) {
            EXPECT_NEAR(provata["riduzione"], F, 1e-6);
            EXPECT_NEAR(provata["spostamento_massimo_m"], y, 1e-7);
        }
}

TEST_F(Domande, OfTheLengthEndWith1WhereThereIsNone) {
    const auto esito = lunghezza({"--spostamento-max", "0.000001", "--passo", "1"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.uscita, "24.00 ")) << esito.uscita;
    EXPECT_TRUE(dice(esito.errori,
                     "Nessuna lunghezza fino a 24 m soddisfa i criteri. Con 24 m: "
                     "spostamento "))
        << esito.errori;
    const auto fini = lunghezza({"--spostamento-max", "0.000001"});
    EXPECT_LT(std::ranges::count(fini.uscita, '\n'), 25) << fini.uscita;
    EXPECT_TRUE(dice(fini.uscita, "non soddisfano i criteri; --json le ha tutte.")) << fini.uscita;
    const auto corta = lunghezza({"--fino-a", "5", "--passo", "1"});
    EXPECT_EQ(corta.codice, 1);
    EXPECT_TRUE(dice(corta.errori, "Nessuna lunghezza da provare")) << corta.errori;
    EXPECT_EQ(corta.uscita, "");
}

TEST_F(Domande, OfTheLengthAreRefusedWhereTheyMakeNoSense) {
    const auto senza = lunghezza({"--resistenza"});
    EXPECT_EQ(senza.codice, 1);
    EXPECT_TRUE(dice(senza.errori, "La sezione non è definita")) << senza.errori;
    auto d = test::progettoSemplice();
    d.sezione = structure::diaframmaSimmetrico();
    scrivi(d);
    EXPECT_TRUE(dice(lunghezza({"--resistenza", "--passo", "0.5"}).uscita, "Flessione [%]"));
    d.vincoloPiede = 3;
    scrivi(d);
    const auto piede = lunghezza({});
    EXPECT_EQ(piede.codice, 1);
    EXPECT_TRUE(dice(piede.errori, "Il piede è vincolato")) << piede.errori;
    const Json j = Json::parse(lunghezza({"--json"}).uscita);
    EXPECT_EQ(j["lunghezza"], nullptr);
    for (const std::vector<std::string>& male : {std::vector<std::string>{"--passo", "0.001"},
                                                 {"--sicurezza-min", "-1"},
                                                 {"--spostamento-max", "0,03"},
                                                 {"--fino-a", "lungo"}})
        EXPECT_EQ(lunghezza(male).codice, 2) << male.back();
}

TEST_F(Domande, OfThePrestressHoldForTheWallThatIsSet) {
    const auto esito = bloccaggio({"--tirante", "1", "--forza", "80"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.uscita, "il tirante ha 80.00 kN/m alla fine della fase 2"))
        << esito.uscita;
    const Json b =
        Json::parse(bloccaggio({"--tirante", "1", "--forza", "80", "--json"}).uscita)["bloccaggio"];
    EXPECT_EQ(b["esito"], "trovato");
    const std::string nuovo = cartella / "nuovo.kvd";
    ASSERT_EQ(console({"imposta", progetto, "--uscita", nuovo,
                       "pretTirante[1]=" + b["pretensione_kN"].dump()})
                  .codice,
              0);
    const Json fasi = Json::parse(
        console({"equilibrio", nuovo, "--nseg", "10", "--json"}).uscita)["equilibrio"]["fasi"];
    EXPECT_NEAR(fasi[1]["tiri_kN"][0], 80, 1e-5);
}

TEST_F(Domande, OfThePrestressSayWhatCanBeReached) {
    const auto esito = bloccaggio({"--tirante", "1", "--forza", "0.5"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.errori, "sono troppo pochi")) << esito.errori;
    const auto assente = bloccaggio({"--tirante", "2", "--forza", "80"});
    EXPECT_EQ(assente.codice, 1);
    EXPECT_TRUE(dice(assente.errori, "Il tirante 2 non c'è: i tiranti sono 1.")) << assente.errori;
    EXPECT_EQ(bloccaggio({"--tirante", "1", "--forza", "0"}).codice, 2);
    EXPECT_EQ(bloccaggio({"--forza", "80"}).codice, 2);
}

}  // namespace
}  // namespace korven::batch
